words = 0
for turn in range(1500):
    text = ""
    for place in range(250):
        text = text + "சொல்" + str(place) + " "
    text = text.replace("சொல்", "வார்த்தை")
    pieces = text.split(" ")
    for piece in pieces:
        if piece != "":
            words = words + 1
print(words, len(text.encode()))
