limit = 200000
prime = []
for place in range(limit + 1):
    prime.append(True)
factor = 2
while factor * factor <= limit:
    if prime[factor]:
        multiple = factor * factor
        while multiple <= limit:
            prime[multiple] = False
            multiple = multiple + factor
    factor = factor + 1
count = -2
for is_prime in prime:
    if is_prime:
        count = count + 1
print(count)
