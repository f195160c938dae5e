#!/usr/bin/env python3
"""What SQLAlchemy takes to build the statement that query_bench builds: times as Google Benchmark's JSON."""
import json
import timeit

from sqlalchemy import column, select, table, text
from sqlalchemy.dialects import mssql

DIALECT = mssql.dialect()
NAMES = {"T1": "Clientes", "T2": "Pedidos", "T3": "Lineas", "T4": "Articulos"}
KEYS = {"T1": ["Id", "Baja"], "T2": ["Id", "Id1"], "T3": ["Id", "Id2"], "T4": ["Id3"]}


def tables(count):
    """The tables with as many columns as the statement takes; a program has them ready, so they are not measured."""
    columns = {alias: list(keys) for alias, keys in KEYS.items()}
    for i in range(1, count + 1):
        columns[f"T{i % 4 + 1}"].append(f"Columna{i}")
    return {alias: table(NAMES[alias], *map(column, names)).alias(alias) for alias, names in columns.items()}


def statement(count, of):
    t1, t2, t3, t4 = of.values()
    columns = [of[f"T{i % 4 + 1}"].c[f"Columna{i}"].label(f"Columna {i}") for i in range(1, count + 1)]
    joined = t1.join(t2, t1.c.Id == t2.c.Id1).outerjoin(t3, t2.c.Id == t3.c.Id2).outerjoin(t4, t3.c.Id == t4.c.Id3)
    query = select(*columns).select_from(joined).where(t1.c.Baja == 0).order_by(text("1"))
    return str(query.compile(dialect=DIALECT, compile_kwargs={"literal_binds": True}))


def nanoseconds(count):
    of = tables(count)
    runs = max(1, 500 // count)
    return min(timeit.repeat(lambda: statement(count, of), number=runs, repeat=7)) / runs * 1e9


if __name__ == "__main__":
    found = [
        {"name": f"SQLAlchemy/{count}", "cpu_time": nanoseconds(count), "time_unit": "ns"} for count in (1, 10, 100)
    ]
    print(json.dumps({"benchmarks": found, "example": statement(10, tables(10))}))
