#!/usr/bin/env python3
"""Measures the library beside its peers and prints one table.

  bench/compare.py --build build/bench
  bench/compare.py --build build/bench --rows 'plus|floor' --repetitions 9 --cpu 1

Runs the benchmark programs of a build tree, each measurement several times in shuffled order, and NumPy where it can
be imported. A line of the table is one row at one level: our nanoseconds an element (a call, for the short rows), the
minimum and the median of the repetitions, and for every peer its minimum and in brackets how many times slower than
ours it is. Ratios are taken between minima of the same run.
"""
import argparse
import json
import os
import re
import statistics
import subprocess
import sys
import tempfile

PROGRAMS = ('zthalf_bench', 'zthalf_bench_shared')
LEVELS = ('base', 'v3', 'v4', 'shared')


def options():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument('--build', default='build/bench', help='build tree that holds bench/zthalf_bench')
    parser.add_argument('--rows', default='.', help='only rows whose name matches this regular expression')
    parser.add_argument('--counts', help='only these numbers of elements, separated by commas')
    parser.add_argument('--repetitions', type=int, default=5, help='measurements of each point (default 5)')
    parser.add_argument('--seconds', type=float, default=0.05, help='least duration of one measurement')
    parser.add_argument('--cpu', type=int, help='run everything on this processor')
    parser.add_argument('--no-numpy', action='store_true', help='leave NumPy out')
    parser.add_argument('--json', metavar='FILE', help='also write all repetitions to FILE')
    parser.add_argument('--from-json', metavar='FILE', help='measure nothing, print the table of an earlier FILE')
    return parser.parse_args()


def point(name):
    row, subject, data, n = name.split('/')[:4]
    return row, subject, data, int(n)


def names_in(path, wanted):
    """The program's measurements that were asked for, in its own order."""
    listed = subprocess.run([path, '--benchmark_list_tests'], check=True, capture_output=True, text=True).stdout.split()
    counts = set(wanted.counts.split(',')) if wanted.counts else None
    return [name for name in listed
            if re.search(wanted.rows, name.split('/')[0]) and (counts is None or name.split('/')[3] in counts)]


def run_program(path, wanted):
    """All repetitions of one program: {(row, subject, data, count): [nanoseconds an element]}."""
    names = names_in(path, wanted)
    if not names:
        return {}
    with tempfile.NamedTemporaryFile(suffix='.json') as out:
        subprocess.run([path, '--benchmark_filter=^(%s)$' % '|'.join(names),
                        '--benchmark_repetitions=%d' % wanted.repetitions,
                        '--benchmark_min_time=%g' % wanted.seconds,
                        '--benchmark_enable_random_interleaving=true',
                        '--benchmark_out=' + out.name, '--benchmark_out_format=json'],
                       check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        measured = json.load(open(out.name))['benchmarks']
    found = {point(name): [] for name in names}
    for entry in measured:
        if entry['run_type'] == 'iteration':
            found[point(entry['run_name'])].append(1e9 / entry['items_per_second'])
    return found


def run_numpy(points, wanted):
    """The rows that NumPy has, measured by the interpreter that has it."""
    helper = os.path.join(os.path.dirname(os.path.abspath(__file__)), 'numpy_rows.py')
    asked = json.dumps({'points': sorted(points), 'repetitions': wanted.repetitions, 'seconds': wanted.seconds})
    for interpreter in dict.fromkeys([sys.executable, '/usr/bin/python3', 'python3']):
        try:
            done = subprocess.run([interpreter, helper], input=asked, capture_output=True, text=True)
        except FileNotFoundError:
            continue
        if done.returncode == 0:
            return {(row, 'numpy', data, n): times for row, data, n, times in json.loads(done.stdout)}
    print('NumPy cannot be imported; its column is left out', file=sys.stderr)
    return {}


def number(value):
    return '%.3f' % value if value < 10 else '%.1f' % value


def line(found, row, data, n, level, peers):
    scale = n if row.startswith('short-') else 1
    ours = found[row, level, data, n]
    cells = [row, data, str(n), level, number(min(ours) * scale), number(statistics.median(ours) * scale)]
    for peer in peers:
        theirs = found.get((row, peer, data, n))
        cells.append('%s (%.2f)' % (number(min(theirs) * scale), min(theirs) / min(ours)) if theirs else '')
    return cells


def tables(found):
    """One table for each set of peers, so that none is wider than it must be: lists of lines of cells."""
    groups = {}
    for row, data, n in dict.fromkeys((row, data, n) for row, _, data, n in found):
        peers = tuple(sorted((p for r, p, d, m in found if (r, d, m) == (row, data, n) and p not in LEVELS),
                             key=lambda peer: (peer != 'copy', peer)))
        groups.setdefault(peers, []).append((row, data, n))
    for peers, points in groups.items():
        yield [['row', 'data', 'count', 'level', 'min', 'median', *peers]] + [
            line(found, row, data, n, level, peers)
            for row, data, n in points for level in LEVELS if (row, level, data, n) in found]


def show(lines):
    widths = [max(map(len, column)) for column in zip(*lines)]
    for cells in lines:
        print('  '.join(cell.ljust(w) if k in (0, 1, 3) else cell.rjust(w)
                        for k, (cell, w) in enumerate(zip(cells, widths))).rstrip())


def main():
    wanted = options()
    if wanted.from_json:
        found = {tuple(key): times for key, times in json.load(open(wanted.from_json))}
    else:
        if wanted.cpu is not None:
            os.sched_setaffinity(0, {wanted.cpu})
        found = {}
        for program in PROGRAMS:
            path = os.path.join(wanted.build, 'bench', program)
            if not os.path.exists(path):
                sys.exit('%s is missing; configure with -DZTHALF_BUILD_BENCH=ON and build it' % path)
            for key, times in run_program(path, wanted).items():
                found.setdefault(key, []).extend(times)
        if not wanted.no_numpy:
            found.update(run_numpy({(row, data, n) for row, _, data, n in found}, wanted))
    if wanted.json:
        with open(wanted.json, 'w') as out:
            json.dump([[list(key), times] for key, times in found.items()], out)
    if not found:
        sys.exit('no row matches')
    for lines in tables(found):
        show(lines)
        print()


if __name__ == '__main__':
    main()
