import re


def எழுத்துகள்(சொல்):
    return re.findall("[^\u0bbe-\u0bcd][\u0bbe-\u0bcd]*", சொல்)


print(len(எழுத்துகள்("கமலா")), "".join(எழுத்துகள்("கமலா")[:2]))
print("".join(reversed(எழுத்துகள்("வானம்"))))
if "நாடு" in "தமிழ்நாடு":
    print("-".join(["தை", "மாசி"]), "ஆ" * 3)
