from enum import IntEnum


class திசைகள்(IntEnum):
    வடக்கு = 0
    கிழக்கு = 1


வழி = திசைகள்.கிழக்கு
print(int(வழி))
if வழி == திசைகள்.கிழக்கு:
    print("கிழக்கே")
