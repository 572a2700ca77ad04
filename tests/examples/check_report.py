"""check_report.py report.json table.csv...: recomputes the report of halfscope from its tables, in another way.

Halves come from the struct module's 'e' format, sums from its 'f' format, and the tables from the csv module. Prints
what differs and exits with 1 if anything does.
"""

import cmath
import csv
import json
import math
import statistics
import struct
import sys
from fractions import Fraction

LARGEST, SMALLEST = sys.float_info.max, 5e-324  # what stands for numbers beyond double
differences = []


class Cell(float):
    """A number of the file as a double, with what the file says exactly; exact is None for an infinity."""

    exact = None

    @staticmethod
    def read(text):
        cell = Cell(text)
        if "inf" in text.lower():
            return cell
        exact = Fraction(text)
        if math.isinf(cell):
            cell = Cell(math.copysign(LARGEST, cell))
        elif cell == 0 and exact != 0:
            cell = Cell(math.copysign(SMALLEST, cell))
        elif exact != Fraction(cell) and to_half(cell) == cell:  # not to be taken for a half
            cell = Cell(math.nextafter(cell, math.inf if exact > Fraction(cell) else -math.inf))
        cell.exact = exact
        return cell

    def is_beyond(self):
        return self.exact is not None and (abs(self.exact) > LARGEST or 0 < abs(self.exact) < SMALLEST)


def to_half(x):
    try:
        return struct.unpack("<e", struct.pack("<e", x))[0]
    except OverflowError:  # finite, but beyond half
        return math.copysign(math.inf, x)


def to_single(x):
    return struct.unpack("<f", struct.pack("<f", x))[0]  # sums of halves do not reach its end


def half_ulp(x):
    """The distance between halves at the binade of x."""
    return math.ldexp(1.0, max(math.frexp(x)[1] - 11, -24)) if x else 2.0**-24


def ulp_distance(x, y):
    if x == 0 and y == 0:  # the two zeros are half a unit apart
        return 0.0 if math.copysign(1.0, x) == math.copysign(1.0, y) else 0.5
    return abs(x - y) / min(half_ulp(to_half(x)), half_ulp(to_half(y)))


def missing(text):
    return text.strip() in ("", "NA") or text.strip().lower() in ("nan", "+nan", "-nan")


def numeric_columns(path):
    with open(path, encoding="utf-8-sig", newline="") as file:
        rows = [row for row in csv.reader(file, skipinitialspace=True) if row]
    for j, name in enumerate(rows[0]):
        words = [row[j].strip() for row in rows[1:]]
        first = next((w for w in words if not missing(w)), None)
        try:
            float(first or "x")
        except ValueError:
            continue
        yield name.strip(), [None if missing(w) else Cell.read(w) for w in words]


def number(x):
    """A JSON value as a float: infinities are words there."""
    return float(x) if x is not None else None


def expect(where, key, found, expected, tolerance=0.0, absolute=1e-300):
    found = number(found)
    same = found == expected
    if not same and found is not None and expected is not None:
        both_nan = math.isnan(found) and math.isnan(expected)
        same = both_nan or math.isclose(found, expected, rel_tol=tolerance, abs_tol=absolute)
    if not same:
        differences.append(f"{where} {key}: {found} in the report, {expected} by this check")


def check_rounding(where, entry, cells, _):
    values = [x for x in cells if x is not None]
    halves = [to_half(x) for x in values]
    kept = [(x, h) for x, h in zip(values, halves) if math.isfinite(h)]
    errors = [abs(h - x) for x, h in kept]
    ulps = [abs(h - x) / half_ulp(h) for x, h in kept]
    pairs = list(zip(values, halves))
    # What becomes of a value is asked of the file's own numbers, not of what they are in double.
    exact = sum(h == x if x.exact is None else math.isfinite(h) and Fraction(h) == x.exact for x, h in pairs)
    expect(where, "value_count", entry["value_count"], len(values))
    expect(where, "missing_count", entry["missing_count"], len(cells) - len(values))
    expect(where, "beyond_double_count", entry["beyond_double_count"], sum(x.is_beyond() for x in values))
    expect(where, "minimum", entry["minimum"], min(values))
    expect(where, "maximum", entry["maximum"], max(values))
    expect(where, "exact_count", entry["exact_count"], exact)
    expect(where, "distinct_value_count", entry["distinct_value_count"], len(set(values)))
    expect(where, "distinct_half_count", entry["distinct_half_count"], len(set(halves)))
    expect(where, "overflow_count", entry["overflow_count"], sum(math.isinf(h) and x.exact is not None for x, h in pairs))
    expect(where, "vanished_count", entry["vanished_count"], sum(h == 0 and x.exact != 0 for x, h in pairs))
    expect(where, "subnormal_count", entry["subnormal_count"], sum(0 < abs(h) < 2.0**-14 for h in halves))
    expect(where, "largest_error", entry["largest_error"], max(errors, default=None))
    expect(where, "largest_error_ulp", entry["largest_error_ulp"], max(ulps, default=None), 1e-9)
    expect(where, "mean_error_ulp", entry["mean_error_ulp"], statistics.fmean(ulps) if ulps else None, 1e-9)
    expect(where, "spacing", entry["spacing"], half_ulp(max(abs(h) for _, h in kept)) if kept else None)


class Deviations:
    """Differences that were computed in half, beside the exact ones."""

    def __init__(self, results, exact):
        self.kept = [(s, e) for s, e in zip(results, exact) if math.isfinite(s)]
        self.lost = len(results) - len(self.kept)
        self.nearest = sum(s == to_half(e) for s, e in self.kept)
        self.ulps = sorted(ulp_distance(s, e) for s, e in self.kept)
        self.typical = self.ulps[len(self.ulps) // 2] if self.ulps else None
        self.largest = max((abs(s - e) for s, e in self.kept), default=None)


def check_anomalies(where, entry, cells, _):
    values = [x for x in cells if x is not None]
    finite = [x for x in values if abs(x) < LARGEST]
    mean = math.fsum(finite) / len(finite) if finite else 0.0
    reported = number(entry["mean"])  # its last bits depend on the order of the sum
    offset = to_half(-reported)
    found = Deviations([to_half(to_single(to_half(x) + offset)) for x in values], [x - reported for x in values])
    expect(where, "mean", entry["mean"], mean, 1e-12)
    expect(where, "offset", entry["offset"], offset)
    expect(where, "lost", entry["lost_count"], found.lost)
    expect(where, "minimum", entry["minimum"], min((s for s, _ in found.kept), default=None))
    expect(where, "maximum", entry["maximum"], max((s for s, _ in found.kept), default=None))
    expect(where, "nearest", entry["nearest_count"], found.nearest)
    expect(where, "largest_error", entry["largest_error"], found.largest)
    expect(where, "typical_error_ulp", entry["typical_error_ulp"], found.typical, 1e-9)
    expect(where, "largest_error_ulp", entry["largest_error_ulp"], found.ulps[-1] if found.ulps else None, 1e-9)


def check_mixed(where, entry, cells, others):
    mean = number(others["anomalies"]["mean"])
    values = [x for x in cells if x is not None]
    exact = [x - mean for x in values]
    ways = {
        "half_half": Deviations([to_half(to_half(x) - to_half(mean)) for x in values], exact),
        "half_double": Deviations([to_half(to_half(x) - mean) for x in values], exact),
        "double_half": Deviations([to_half(x - to_half(mean)) for x in values], exact),
    }
    for way, found in ways.items():
        expect(where, way, entry["nearest_count_" + way], found.nearest)
        expect(where, way, entry["lost_count_" + way], found.lost)
        expect(where, way, entry["typical_error_ulp_" + way], found.typical, 1e-9)
        if way != "half_half":
            expect(where, way, entry["largest_error_" + way], found.largest)


def tree_mean(cells, rounded, result):
    """The mean of a column as docs/reductions.md tells it: rounded() is what happens to a sum, result() to the mean."""

    def tree(part):
        if len(part) > 256:
            return rounded(tree(part[: len(part) // 2]) + tree(part[len(part) // 2 :]))
        total = 0.0
        for x in part:
            total = total if x is None else rounded(total + x)
        return total

    return result(tree(cells) / sum(x is not None for x in cells))


def mean_with_single_sums(cells):
    return tree_mean(cells, to_single, lambda x: to_half(to_single(x)))


def check_statistics(where, entry, cells, _):
    halves = [None if x is None else to_half(x) for x in cells]
    values = [x for x in cells if x is not None]
    infinities = sum(x for x in values if math.isinf(x))
    unknown = not infinities and any(x.is_beyond() and abs(x) == LARGEST for x in values)
    expect(where, "mean", entry["mean"], None if unknown else infinities or math.fsum(values) / len(values), 1e-12)
    mean = math.nan if unknown else number(entry["mean"])
    for sums, found in (
        ("half_sums", tree_mean(halves, lambda x: to_half(to_single(x)), to_half)),
        ("single_sums", mean_with_single_sums(halves)),
        ("double_sums", tree_mean(halves, float, float)),
    ):
        expect(where, "mean", entry["mean_" + sums], found)
        finite = math.isfinite(found) and math.isfinite(mean)
        expect(where, sums, entry["error_ulp_" + sums], ulp_distance(found, mean) if finite else None, 1e-9)
    for name, choose in (("minimum", min), ("maximum", max)):
        best = choose(x for x in halves if x is not None)
        expect(where, name, entry[name], best)
        expect(where, name, entry[name + "_row"], halves.index(best) + 1)
        first = choose(values)
        unsure = abs(first) in (LARGEST, SMALLEST) and sum(x.is_beyond() for x in values) > 1
        expect(where, name, entry[name + "_row_in_file"], None if unsure else cells.index(first) + 1)


def straight_line(cells):
    """The line of least squares at every row and its slope, exact."""
    points = [(i, Fraction(x)) for i, x in enumerate(cells) if x is not None]
    centre = Fraction(sum(i for i, _ in points), len(points))
    middle = sum(x for _, x in points) / len(points)
    squares = sum((i - centre) ** 2 for i, _ in points)
    slope = sum((i - centre) * x for i, x in points) / squares if squares else Fraction(0)
    return [middle + slope * (i - centre) for i in range(len(cells))], slope


def half_amplitudes(deviations, most):
    """What complex halves make of each number of cycles, halved."""
    n = len(deviations)
    turns = [2 * math.pi * t / n for t in range(n)]
    cosines, sines = [to_half(math.cos(a)) for a in turns], [to_half(math.sin(a)) for a in turns]
    found = []
    for cycles in range(1, most + 1):
        parts = []
        for table in (cosines, sines):
            products = [None if d is None else to_half(d * table[i * cycles % n]) for i, d in enumerate(deviations)]
            parts.append(mean_with_single_sums(products))
        found.append(to_half(math.hypot(*parts)))
    return found


def check_cycles(where, entry, cells, _):
    n, present = len(cells), [x for x in cells if x is not None]
    most = min((n - 1) // 2, 64)
    keys = ("cycles", "cycles_half", "rows_per_cycle", "share", "amplitude", "amplitude_half", "error_ulp")
    expected = dict.fromkeys(keys)
    slope, exponent = None, 0
    if all(abs(x) < LARGEST for x in present):
        line, slope = straight_line(cells)
        exponent = math.frexp(max(abs(x) for x in present))[1]
        scale = Fraction(2) ** exponent  # no square overflows below it
        rest = [(i, float((Fraction(x) - y) / scale)) for i, (x, y) in enumerate(zip(cells, line)) if x is not None]
        if most > 0 and len(rest) > 2 and max(abs(d) for _, d in rest) > 1e-9:
            turn = 2j * math.pi / n
            sums = [sum(d * cmath.exp(turn * k * i) for i, d in rest) for k in range(1, most + 1)]
            whole = [abs(x) / len(rest) for x in sums]
            best = whole.index(max(whole))
            expected["cycles"] = best + 1
            expected["rows_per_cycle"] = n / (best + 1)
            expected["amplitude"] = math.ldexp(2 * whole[best], exponent)
            expected["share"] = 200 * whole[best] ** 2 / (math.fsum(d * d for _, d in rest) / len(rest))
            halves = [None if x is None else to_half(to_half(x) - float(y)) for x, y in zip(cells, line)]
            if all(d is None or math.isfinite(d) for d in halves):
                found = half_amplitudes(halves, most)
                if max(found) > 0:
                    expected["cycles_half"] = found.index(max(found)) + 1
                    expected["amplitude_half"] = 2 * found[best]
                    expected["error_ulp"] = ulp_distance(found[best], math.ldexp(whole[best], exponent))
    trend = None if slope is None else float(slope)
    expect(where, "trend", entry["trend"], trend, 1e-9, math.ldexp(1e-15, exponent))
    for key in keys:
        tolerance = 0.0 if "half" in key else 1e-9
        expect(where, key, entry[key], expected[key], tolerance, 1e-9 if key == "error_ulp" else 1e-300)


def check_summary(where, file):
    found = {"losing": 0, "rounded": 0, "exact": 0}
    for c in file["rounding"]["columns"]:
        lost = c["overflow_count"] + c["vanished_count"] + c["distinct_value_count"] - c["distinct_half_count"]
        found["losing" if lost else "exact" if c["exact_count"] == c["value_count"] else "rounded"] += 1
    for kind, count in found.items():
        expect(where, kind, file["summary"][kind + "_column_count"], count)


CHECKS = {
    "rounding": check_rounding,
    "anomalies": check_anomalies,
    "mixed": check_mixed,
    "cycles": check_cycles,
    "statistics": check_statistics,
}


def main():
    with open(sys.argv[1], encoding="utf-8") as file:
        report = json.load(file)
    tables = sys.argv[2:]
    if len(report["files"]) != len(tables):
        differences.append(f"{len(report['files'])} files in the report, {len(tables)} tables")
    checked = 0
    for file, table in zip(report["files"], tables):
        columns = list(numeric_columns(table))
        check_summary(f"{file['file']}, summary:", file)
        for section, check in CHECKS.items():
            entries = file[section]["columns"]
            names = [entry["column"] for entry in entries]
            if names != [name for name, _ in columns]:
                differences.append(f"{file['file']}: the columns {names} in {section}")
                continue
            for j, (entry, (name, cells)) in enumerate(zip(entries, columns)):
                others = {other: file[other]["columns"][j] for other in CHECKS}
                check(f"{file['file']}, {name}, {section}:", entry, cells, others)
                checked += 1
    print("\n".join(differences) or f"{checked} columns agree")
    sys.exit(1 if differences or not checked else 0)


main()
