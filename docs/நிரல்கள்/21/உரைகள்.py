வாசகம் = "மா, பலா, வாழை"
பழங்கள் = வாசகம்.split(", ")
print(பழங்கள்[1], len(பழங்கள்))
print(வாசகம்.replace("பலா", "கொய்யா"))
print("ok".upper(), "OK".lower())
print(int("12") + 1, str(12))
print(len("கமலா".encode()))
