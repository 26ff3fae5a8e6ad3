#!/usr/bin/env python3
"""Reads the format trace of kate-syntax-highlighter (-f ansi --syntax-trace
format, escape sequences removed) and checks expected formats.

  syntax_formats.py DEFINITION TRACE SOURCE EXPECT...

Each EXPECT is "line|text|Format": the piece of source line `line` (from 1)
that starts with `text` must begin a piece of format `Format`.

The trace prints each source line, then a line of "|" marks at the columns
where pieces start, then lines naming the formats, each name starting at
the column of its piece. Names may hold blanks, so they are matched
against the format names of the definition.
"""
import re
import sys


def read_formats(trace_lines, source_lines, names):
    """Per source line (0-based), a map from start column to format name."""
    result = []
    i = 0
    for source in source_lines:
        while i < len(trace_lines) and trace_lines[i] != source:
            i += 1
        i += 1
        starts = []
        formats = {}
        first_marks = True
        while i < len(trace_lines) and (len(result) + 1 >= len(source_lines) or trace_lines[i] != source_lines[len(result) + 1]):
            line = trace_lines[i]
            if set(line) <= {"|", " "}:
                if first_marks:
                    starts = [c for c, ch in enumerate(line) if ch == "|"]
                    first_marks = False
            else:
                taken = 0
                for c in starts:
                    if c < taken or (c > 0 and line[c - 1:c] != " "):
                        continue
                    name = next((n for n in names if line.startswith(n, c)), None)
                    if name:
                        formats[c] = name
                        taken = c + len(name)
            i += 1
        result.append(formats)
    return result


def main():
    definition_path, trace_path, source_path, *expectations = sys.argv[1:]
    names = re.findall(r'<itemData name="([^"]+)"', open(definition_path, encoding="utf-8").read())
    names.sort(key=len, reverse=True)
    trace_lines = open(trace_path, encoding="utf-8").read().split("\n")
    source_lines = open(source_path, encoding="utf-8").read().rstrip("\n").split("\n")
    formats = read_formats(trace_lines, source_lines, names)
    failed = False
    for expectation in expectations:
        number, text, wanted = expectation.split("|", 2)
        line = int(number) - 1
        column = source_lines[line].find(text)
        found = formats[line].get(column, "(no piece starts there)")
        if column < 0 or found != wanted:
            print(f"FAIL: line {number}: {text!r} is {found}, not {wanted}")
            failed = True
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
