from கடைக்கணக்கு import வரியோடு

print(வரியோடு(400))
