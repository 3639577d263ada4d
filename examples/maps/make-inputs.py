#!/usr/bin/env python3
"""Makes the inputs of model.vrk in the current folder: landuse.asc, a landscape of
four classes (1 water, 2 forest, 3 farmland, 4 grassland) whose lake's middle is
NoData; town.asc, the cells settled at the start (1, else 0); and suitability.csv, how
suited each class is to building on. The same files every time."""
import math

LINES, COLUMNS = 48, 64
HEADER = (f"ncols {COLUMNS}\nnrows {LINES}\nxllcorner 420000\nyllcorner 5100000\n"
          f"cellsize 100\nNODATA_value -9999\n")


def landuse(line, column):
    lake = math.hypot(line - 34, column - 14)
    if lake < 3:
        return -9999
    if lake < 7:
        return 1
    wave = math.sin(line / 5.0) + math.cos(column / 7.0) + math.sin((line + column) / 11.0)
    if wave > 1.2:
        return 2
    return 3 if wave > -0.4 else 4


def town(line, column):
    return 1 if (line, column) in {(10, 40), (11, 40), (11, 41), (30, 50), (31, 50), (30, 51)} else 0


def write(name, cell):
    with open(name, "w") as grid:
        grid.write(HEADER)
        for line in range(LINES):
            grid.write(" ".join(str(cell(line, column)) for column in range(COLUMNS)) + "\n")


write("landuse.asc", landuse)
write("town.asc", town)
with open("suitability.csv", "w") as table:
    table.write("class,suitability\n1,0\n2,0.3\n3,0.8\n4,0.6\n")
