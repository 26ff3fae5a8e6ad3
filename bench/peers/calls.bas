def fnadd(a, b) = a + b
s = 0
i = 0
while i < 200000
s = fnadd(s, i)
i = i + 1
wend
print using "###########"; s
system
