words = ["அகல்", "ஆடு", "இலை", "ஈட்டி", "உரல்", "ஊசி", "எலி", "ஏணி", "ஐந்து", "ஒளி"]
count = {}
for word in words:
    count[word] = 0
for turn in range(30000):
    for word in words:
        count[word] = count[word] + 1
for word in sorted(count):
    print(word, count[word])
