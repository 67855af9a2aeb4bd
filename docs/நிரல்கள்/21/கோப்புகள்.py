import os

with open("குறிப்பு.txt", "w") as கோப்பு:
    கோப்பு.write("பால் 1\n")
with open("குறிப்பு.txt", "a") as கோப்பு:
    கோப்பு.write("தயிர் 2\n")
with open("குறிப்பு.txt") as கோப்பு:
    for வரி in கோப்பு:
        print(வரி.rstrip("\n"))
if os.path.exists("குறிப்பு.txt"):
    os.remove("குறிப்பு.txt")
