#!/usr/bin/env python3
"""Small ASCII grids for the map tests, and an independent check of the maps that
scripts write from them.

make NAME LINES COLUMNS SEED KIND: writes NAME (.asc) with deterministic cells: KIND
"real" (reals in [-10, 10)), "class" (integers 1 to 5) or "binary" (0 or 1); every
seventh cell or so is NoData (-9999).
check FORMULA OUT IN...: compares every cell of OUT, NoData included, with FORMULA
computed here over the IN grids; prints the first differences and exits 1 on any.
town LANDUSE TOWN TABLE YEARS PREFIX: the same for the years of examples/maps/model.vrk,
PREFIX01.asc and on.
"""
import math
import sys

NODATA = -9999.0


def make(name, lines, columns, seed, kind):
    state = seed
    rows = []
    for line in range(lines):
        row = []
        for column in range(columns):
            state = (state * 1103515245 + 12345) % 2147483648
            unit = state / 2147483648
            if (line * columns + column + seed) % 7 == 3:
                row.append("-9999")
            elif kind == "real":
                row.append(repr(round(unit * 20 - 10, 3)))
            elif kind == "class":
                row.append(str(1 + int(unit * 5)))
            else:
                row.append(str(int(unit * 2)))
        rows.append(" ".join(row))
    header = (f"ncols {columns}\nnrows {lines}\nxllcorner 1000\nyllcorner 2000\n"
              f"cellsize 25\nNODATA_value -9999\n")
    with open(name, "w") as out:
        out.write(header + "\n".join(rows) + "\n")


def read(name):
    header = {}
    cells = []
    with open(name) as grid:
        for text in grid:
            words = text.split()
            if not words:
                continue
            if words[0][0].isalpha():
                header[words[0].lower()] = float(words[1])
            else:
                cells.append([float(word) for word in words])
    nodata = header.get("nodata_value")
    return [[None if value == nodata else value for value in row] for row in cells]


def window(grid, line, column, size):
    values = []
    for l in range(line - size // 2, line + size // 2 + 1):
        for c in range(column - size // 2, column + size // 2 + 1):
            if 0 <= l < len(grid) and 0 <= c < len(grid[0]) and grid[l][c] is not None:
                values.append(grid[l][c])
    return values


def round_half_away(value):
    return math.copysign(math.floor(abs(value) + 0.5), value)


TABLE = {1: 10.0, 2: 20.0, 3: 35.5, 4: -4.0}


def local(grids, line, column):
    a, b = grids[0][line][column], grids[1][line][column]
    if a is None or b is None:
        return None
    return a * 2 + b if a > 5 else b - 1


def focal_sum(grids, line, column):
    values = window(grids[0], line, column, 3)
    return sum(values) if values else None


def focal_count(grids, line, column):
    return float(sum(1 for value in window(grids[0], line, column, 3) if value != 0))


def classified(grids, line, column):
    a = grids[0][line][column]
    return None if a is None else TABLE.get(int(a))


def quarter(grids, line, column):
    a = grids[0][line][column]
    return None if a is None else round_half_away(a / 4)


def plus_step(step):
    def formula(grids, line, column):
        a = grids[0][line][column]
        return None if a is None else a + step
    return formula


FORMULAS = {"local": local, "focal_sum": focal_sum, "focal_count": focal_count,
            "classified": classified, "quarter": quarter}


def formula_named(name):
    if name.startswith("plus"):
        return plus_step(float(name[4:]))
    return FORMULAS[name]


def check(name, out, inputs):
    formula = formula_named(name)
    grids = [read(grid) for grid in inputs]
    written = read(out)
    differences = []
    if len(written) != len(grids[0]) or len(written[0]) != len(grids[0][0]):
        differences.append("the size differs")
    else:
        for line in range(len(written)):
            for column in range(len(written[0])):
                expected = formula(grids, line, column)
                actual = written[line][column]
                same = (expected is None and actual is None) or (
                    expected is not None and actual is not None
                    and abs(expected - actual) <= 1e-5 * max(1.0, abs(expected)))
                if not same:
                    differences.append(f"({line}, {column}): {actual}, expected {expected}")
    for difference in differences[:5]:
        print(f"{out}: {difference}")
    return 1 if differences else 0


def compare(out, expected):
    written = read(out)
    differences = [f"({line}, {column}): {written[line][column]}, expected {value}"
                   for line, row in enumerate(expected) for column, value in enumerate(row)
                   if written[line][column] != value]
    for difference in differences[:5]:
        print(f"{out}: {difference}")
    return bool(differences)


def town(landuse, start, table, years, prefix):
    suitability = {}
    with open(table) as lines:
        for text in lines.readlines()[1:]:
            key, value = text.split(",")
            suitability[float(key)] = float(value)
    classes = read(landuse)
    built = read(start)
    failed = False
    for year in range(1, years + 1):
        grown = []
        for line, row in enumerate(built):
            grown.append([])
            for column, cell in enumerate(row):
                neighbours = float(sum(1 for value in window(built, line, column, 3) if value))
                weight = suitability.get(classes[line][column], 0.0)
                grown[-1].append(1.0 if cell == 1 or neighbours * weight >= 1.5 else 0.0)
        built = grown
        failed = compare(f"{prefix}{year:02d}.asc", built) or failed
    return 1 if failed else 0


if __name__ == "__main__":
    if sys.argv[1] == "make":
        make(sys.argv[2], int(sys.argv[3]), int(sys.argv[4]), int(sys.argv[5]), sys.argv[6])
    elif sys.argv[1] == "town":
        sys.exit(town(sys.argv[2], sys.argv[3], sys.argv[4], int(sys.argv[5]), sys.argv[6]))
    else:
        sys.exit(check(sys.argv[2], sys.argv[3], sys.argv[4:]))
