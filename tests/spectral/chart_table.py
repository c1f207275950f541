"""Prints the table of the curves on standard input, by dictionaries of cells and decimal numbers.

Input: a line with the lowest and the highest wavelength, then for each curve a line with its title, a
line with the number of its points, and a line with x and y for each of them.
"""
import decimal
import math
import sys

decimal.getcontext().prec = 800


def two_decimals(value):
    if not math.isfinite(value):
        return str(value)
    if value == 0:
        return "0.00"
    rounded = decimal.Decimal(abs(value)).quantize(decimal.Decimal("0.01"), decimal.ROUND_HALF_UP)
    return ("-" if value < 0 else "") + f"{rounded:f}"


def read(lines):
    low, high = map(float, next(lines).split())
    curves = []
    for title in lines:
        points = [tuple(map(float, next(lines).split())) for _ in range(int(next(lines)))]
        curves.append((title, points))
    return low, high, curves


def merge(low, high, curves):
    rows = {}
    x = int(low)
    while x < high + 1:
        rows[float(x)] = {}
        x += 1
    if rows:
        first, last = min(rows), max(rows)
        for column, (_, points) in enumerate(curves):
            for x, y in points:
                if first <= x <= last:
                    rows.setdefault(x, {})[column] = y
    return rows


def interpolate(rows, column):
    order = sorted(rows)
    left = None
    waiting = []
    for x in order:
        if column not in rows[x]:
            if left is not None:
                waiting.append(x)
            continue
        y = rows[x][column]
        if waiting:
            for k in waiting + [x]:
                rows[k][column] = (k - left[0]) / (x - left[0]) * (y - left[1]) + left[1]
        waiting = []
        left = (x, y)


def main():
    low, high, curves = read(iter(sys.stdin.read().splitlines()))
    rows = merge(low, high, curves)
    for column in range(len(curves)):
        interpolate(rows, column)
    titles = ["Wavelength (nm)"] + [title for title, _ in curves]
    sys.stdout.write(",".join(f'"{title}"' for title in titles) + "\n")
    for x in sorted(rows):
        cells = [x] + [rows[x].get(column, 0.0) for column in range(len(curves))]
        sys.stdout.write(",".join(map(two_decimals, cells)) + "\n")


main()
