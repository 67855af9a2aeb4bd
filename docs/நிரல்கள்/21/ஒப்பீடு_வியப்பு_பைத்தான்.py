print("1" != 1)
print("அ" < "ஆ")
