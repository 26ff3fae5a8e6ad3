#!/usr/bin/env python3
"""The work of bench/programs/sql.tam in Python's sqlite3: 100,000 INSERT
texts in one transaction, then every row read back with one field taken."""
import os
import sqlite3
import sys
import tempfile
import time

path = os.path.join(tempfile.mkdtemp(), "bench.db")
db = sqlite3.connect(path, isolation_level=None)
db.execute("CREATE TABLE bench (id INTEGER PRIMARY KEY, name TEXT, amount REAL)")
start = time.perf_counter()
db.execute("BEGIN")
for i in range(100000):
    db.execute(f"INSERT INTO bench VALUES ({i}, 'Name', {i}.25)")
db.execute("COMMIT")
added = time.perf_counter() - start
start = time.perf_counter()
n = 0
for row in db.execute("SELECT * FROM bench"):
    value = str(row[2])
    n += 1
read = time.perf_counter() - start
print(f"insert {int(100000 / added)} rows/s, read {int(n / read)} rows/s, rows {n}")
sys.exit(0)
