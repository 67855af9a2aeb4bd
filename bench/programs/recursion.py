def descend(depth):
    if depth == 0:
        return 0
    return 1 + descend(depth - 1)


def two_branches(depth):
    if depth < 2:
        return depth
    return two_branches(depth - 1) + two_branches(depth - 2)


total = 0
for turn in range(5000):
    total = total + descend(100)
print(total, two_branches(25))
