def பங்கிடு(தொகை, பேர்):
    try:
        return தொகை // பேர்
    except ZeroDivisionError as தவறு:
        print("பங்கிட முடியவில்லை")
        return 0


print(பங்கிடு(12, 4))
print(பங்கிடு(12, 0))
