class Account:
    def __init__(self):
        self.balance = 0
        self.deposits = 0

    def deposit(self, amount):
        self.balance = self.balance + amount
        self.deposits = self.deposits + 1

    def remaining(self):
        return self.balance


book = Account()
total = 0
for turn in range(300000):
    book.deposit(turn % 10)
    total = total + book.remaining() % 3
print(book.deposits, book.remaining(), total)
