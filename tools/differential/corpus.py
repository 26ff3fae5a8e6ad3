"""Writes random programs and expressions for the differential run: program
lines are drawn from the test programs, examples, benchmarks and the string
literals of the unit tests, mixed with loops, calls and counting forms."""
import glob
import random
import re
import sys

top, out = sys.argv[1], sys.argv[2]
random.seed(int(sys.argv[3]) if len(sys.argv) > 3 else 1)

lines = set()
for path in glob.glob(f'{top}/tests/programs/*.tam') + glob.glob(f'{top}/examples/*.tam') + \
        glob.glob(f'{top}/bench/programs/*.tam'):
    lines.update(l for l in open(path, encoding='latin-1').read().splitlines() if l.strip())
for path in glob.glob(f'{top}/tests/unit/*.cpp'):
    for literal in re.finditer(r'"((?:[^"\\]|\\.)*)"', open(path, encoding='latin-1').read()):
        text = literal.group(1).replace('\\"', '"')
        if 2 < len(text) < 80 and '\\' not in text:
            lines.add(text)
lines = sorted(lines)

frame = ['Variable i Integer, s Decimal, t String, n Integer, a(5) Integer', 'While i < 4', 'Loop', 'i++',
         'If i % 2 = 0', 'Else', 'EndIf', 's = s + i % 7', 't = t & "x"', 'a(i) = a(i) + i',
         's = s + Twice(i) * 10', 'Write s, t, i', 'n --', 's += i', 's+= 1', 'EndProgram',
         'Function Twice(x Integer) Integer', 'Return x * 2', 'EndFunction', 'Sub Show', 'Write "sub ", i',
         'EndSub', 'Show', 'd = t + i', 's = i / 3', 's = i - -2', 'Write Int(s / 2)', 't = Str(i)',
         's = StrLen(t) + i', 'GoTo Again', 'Again:']
for k in range(3000):
    source = [random.choice(lines) if random.random() < 0.3 else random.choice(frame)
              for _ in range(random.randint(3, 14))]
    if random.random() < 0.7:
        source.insert(0, frame[0])
    open(f'{out}/programs/p{k:05d}.tam', 'w', encoding='latin-1').write('\r\n'.join(source))

pieces = ['s', 'n', 'd', 't', 'a(1)', 'a(n)', 'a(9)', 'F(n)', 'F(2)', 'Int(', 'StrLen(s)', 'Str(n)', 'Val(t)',
          ' + ', ' - ', '*', '/', '%', '&', '@', '^', '(', ')', ' ', '1', '0', '7', '2.5', '3,5', '.5', '"x"',
          '"12"', '-', '<', '>', '=', '<>', ' AND ', ' OR ', 'e5', '1E3', '&H10', 'Chr(65)',
          'Format(d, "0.00")', 'x']
for k in range(4000):
    text = ''.join(random.choice(pieces) for _ in range(random.randint(1, 8)))
    open(f'{out}/expressions/e{k:05d}.txt', 'w', encoding='latin-1').write(text)
