dim a(10000)
s = 0
p = 0
while p < 20
i = 0
while i < 10000
a(i) = a(i) + i
s = s + a(i)
i = i + 1
wend
p = p + 1
wend
print using "###########"; s
system
