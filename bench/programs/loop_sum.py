total = 0
for turn in range(3000000):
    if turn % 2 == 0:
        total = total + turn * 3 % 7
    else:
        total = total - 1
print(total)
