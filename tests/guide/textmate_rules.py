#!/usr/bin/env python3
"""Checks the TextMate grammar's rules on sample pieces of Tamrix.

  textmate_rules.py GRAMMAR

Each rule's expression is compiled (Python's engine reads these simple
expressions as TextMate editors' Oniguruma does) and must find its sample,
and only the rule meant for it may claim a keyword.
"""
import json
import re
import sys

# rule, text, what the rule's match (or its capture 2) must be
SAMPLES = [
    ("comment", "x = 1 ' note", "' note"),
    ("label", "Again:", "Again:"),
    ("declaration", "Function Square(n Integer) Integer", "Square"),
    ("declaration", "Sub Timer_Clock(100)", "Timer_Clock"),
    ("control", "EndIf", "EndIf"),
    ("control", "while x < 3", "while"),
    ("report", "Rep.TestEndPage", "Rep.TestEndPage"),
    ("command", "Write x", "Write"),
    ("command", "n = StrLen(s)", "StrLen"),
    ("type", "Var n Integer", "Integer"),
    ("builtin", "x = LinSize", "LinSize"),
    ("number", "x = 3.25", "3.25"),
]


def main():
    grammar = json.load(open(sys.argv[1], encoding="utf-8"))
    rules = grammar["repository"]
    failed = False
    for rule, text, wanted in SAMPLES:
        match = re.search(rules[rule]["match"], text)
        found = None if match is None else (match.group(2) if rule == "declaration" else match.group(0))
        if rule == "label" and match:
            found = match.group(1)
        if found != wanted:
            print(f"FAIL: the rule {rule} finds {found!r} in {text!r}, not {wanted!r}")
            failed = True
    # A command name must not be cut short by a shorter one: "WindowHeight"
    # is one word, not "Window" and the rest.
    match = re.search(rules["command"]["match"], "x = WindowHeight()")
    if match is None or match.group(0) != "WindowHeight":
        print("FAIL: the command rule does not take WindowHeight whole")
        failed = True
    if "string" not in rules or rules["string"].get("begin") != '"':
        print("FAIL: the grammar has no string rule")
        failed = True
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
