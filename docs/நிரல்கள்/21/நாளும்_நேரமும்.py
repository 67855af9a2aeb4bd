import datetime, random, time
இப்போது = datetime.datetime.now()
print(len(இப்போது.strftime("%d-%m-%Y")))
print("சரி" if இப்போது.year > 2000 else "தவறு")
பகடை = random.randint(1, 6)
print("சரி" if பகடை <= 6 else "தவறு")
time.sleep(0.1)
