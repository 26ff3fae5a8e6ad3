s = 0
i = 0
while i < 1000000
s = s + (i mod 7)
i = i + 1
wend
print s
system
