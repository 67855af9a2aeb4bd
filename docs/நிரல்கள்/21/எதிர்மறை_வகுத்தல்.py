import ctypes, math

print(int(-7 / 2), int(math.fmod(-7, 2)))
print(ctypes.c_int64(9223372036854775807 + 1).value)
