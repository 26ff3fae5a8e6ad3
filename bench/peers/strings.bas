t$ = ""
i = 0
while i < 20000
t$ = t$ + "x"
i = i + 1
wend
print len(t$)
system
