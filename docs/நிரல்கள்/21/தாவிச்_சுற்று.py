for படி in range(0, 20, 5):
    print(படி)
for கீழிறங்கு in range(3, 0, -1):
    print(கீழிறங்கு)
