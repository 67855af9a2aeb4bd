import math
print(7 + 2, 7 - 2, 7 * 2, 7 % 2)
மொத்தம் = 7
print(மொத்தம் // 2, f"{7 / 2:f}")
print(f"{2.0 ** 10:f}", f"{math.sqrt(16):f}")
print(f"{abs(-2.5):f}", math.floor(2.9), math.ceil(2.1))
