வயது = 12
மழை = False
print(வயது == 12, வயது != 12)
print(10 < வயது <= 15)
print(வயது >= 18 or not மழை)
print("அ" == "அ")
