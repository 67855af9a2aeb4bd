எண்ணி = 0
while True:
    எண்ணி += 1
    if எண்ணி == 2:
        continue
    if எண்ணி > 3:
        break
    print("சுற்று", எண்ணி)
for இடம் in range(5, 8):
    print("இடம்", இடம்)
