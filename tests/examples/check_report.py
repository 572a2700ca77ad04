"""check_report.py report.json table.csv...: recomputes the report of halfscope from its tables, in another way.

Halves come from the struct module's 'e' format, sums from its 'f' format, and the tables from the csv module. Prints
what differs and exits with 1 if anything does.
"""

import csv
import json
import math
import statistics
import struct
import sys

differences = []


def to_half(x):
    try:
        return struct.unpack("<e", struct.pack("<e", x))[0]
    except OverflowError:  # finite, but beyond half
        return math.copysign(math.inf, x)


def to_single(x):
    return struct.unpack("<f", struct.pack("<f", x))[0]


def half_ulp(x):
    """The distance between halves at the binade of x."""
    return math.ldexp(1.0, max(math.frexp(x)[1] - 11, -24)) if x else 2.0**-24


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
        yield name.strip(), [None if missing(w) else float(w) for w in words]


def number(x):
    """A JSON value as a float: infinities are words there."""
    return float(x) if x is not None else None


def expect(where, key, found, expected, tolerance=0.0):
    found = number(found)
    same = found == expected or (
        found is not None and expected is not None and math.isclose(found, expected, rel_tol=tolerance, abs_tol=1e-300)
    )
    if not same:
        differences.append(f"{where} {key}: {found} in the report, {expected} by this check")


def check_rounding(where, entry, cells):
    values = [x for x in cells if x is not None]
    halves = [to_half(x) for x in values]
    kept = [(x, h) for x, h in zip(values, halves) if math.isfinite(h)]
    errors = [abs(h - x) for x, h in kept]
    ulps = [abs(h - x) / half_ulp(h) for x, h in kept]
    expect(where, "values", entry["values"], len(values))
    expect(where, "missing", entry["missing"], len(cells) - len(values))
    expect(where, "minimum", entry["minimum"], min(values))
    expect(where, "maximum", entry["maximum"], max(values))
    expect(where, "exact", entry["exact"], sum(x == h for x, h in zip(values, halves)))
    expect(where, "distinct_values", entry["distinct_values"], len(set(values)))
    expect(where, "distinct_halves", entry["distinct_halves"], len(set(halves)))
    expect(where, "overflows", entry["overflows"], sum(math.isinf(h) and math.isfinite(x) for x, h in zip(values, halves)))
    expect(where, "vanished", entry["vanished"], sum(h == 0 and x != 0 for x, h in zip(values, halves)))
    expect(where, "subnormal", entry["subnormal"], sum(0 < abs(h) < 2.0**-14 for h in halves))
    expect(where, "largest_error", entry["largest_error"], max(errors, default=None))
    expect(where, "largest_error_ulp", entry["largest_error_ulp"], max(ulps, default=None), 1e-9)
    expect(where, "mean_error_ulp", entry["mean_error_ulp"], statistics.fmean(ulps) if ulps else None, 1e-9)
    expect(where, "spacing", entry["spacing"], half_ulp(max(abs(h) for _, h in kept)) if kept else None)


def check_anomalies(where, entry, cells):
    values = [x for x in cells if x is not None]
    finite = [x for x in values if math.isfinite(x)]
    mean = math.fsum(finite) / len(finite) if finite else 0.0
    offset = to_half(-entry["mean"])  # the report's own: its last bits depend on the order of the sum
    sums = [to_half(to_single(to_half(x) + offset)) for x in values]
    exact = [x - entry["mean"] for x in values]
    kept = [(s, e) for s, e in zip(sums, exact) if math.isfinite(s)]
    ulps = sorted(abs(s - e) / min(half_ulp(s), half_ulp(to_half(e))) for s, e in kept)
    expect(where, "mean", entry["mean"], mean, 1e-12)
    expect(where, "offset", entry["offset"], offset)
    expect(where, "lost", entry["lost"], len(sums) - len(kept))
    expect(where, "minimum", entry["minimum"], min((s for s, _ in kept), default=None))
    expect(where, "maximum", entry["maximum"], max((s for s, _ in kept), default=None))
    expect(where, "nearest", entry["nearest"], sum(s == to_half(e) for s, e in kept))
    expect(where, "largest_error", entry["largest_error"], max((abs(s - e) for s, e in kept), default=None))
    expect(where, "typical_error_ulp", entry["typical_error_ulp"], ulps[len(ulps) // 2] if ulps else None, 1e-9)
    expect(where, "largest_error_ulp", entry["largest_error_ulp"], ulps[-1] if ulps else None, 1e-9)


def main():
    with open(sys.argv[1], encoding="utf-8") as file:
        report = json.load(file)
    tables = sys.argv[2:]
    if len(report["files"]) != len(tables):
        differences.append(f"{len(report['files'])} files in the report, {len(tables)} tables")
    checked = 0
    for file, table in zip(report["files"], tables):
        columns = list(numeric_columns(table))
        for section, check in (("rounding", check_rounding), ("anomalies", check_anomalies)):
            entries = file[section]["columns"]
            names = [entry["column"] for entry in entries]
            if names != [name for name, _ in columns]:
                differences.append(f"{file['file']}: the columns {names} in {section}")
                continue
            for entry, (name, cells) in zip(entries, columns):
                check(f"{file['file']}, {name}, {section}:", entry, cells)
                checked += 1
    print("\n".join(differences) or f"{checked} columns agree")
    sys.exit(1 if differences or not checked else 0)


main()
