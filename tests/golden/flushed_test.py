"""Which results change where the caller and the workers flush subnormal floats to zero: those that flushed.txt lists,
under the rows of the table in docs/numerics.md, and no others. And functions of halves and integers alone never meet a
subnormal float.

usage: flushed_test.py PROGRAM [EMULATOR...]        PROGRAM is the built result_sweep
"""
import os
import re
import sys

import golden_test
from golden_test import library

HERE = os.path.dirname(os.path.abspath(__file__))
NUMERICS = os.path.join(HERE, '..', '..', 'docs', 'numerics.md')
HEADING = '## Programs that flush subnormal numbers'
BESIDE_HALVES = re.compile(r'Single|Double|\bfloat\b|\bdouble\b')
# Repeated squaring of complex halves goes down to subnormal floats, and the reciprocal of one is seen.
SQUARES_HALVES = re.compile(r'cplxPowerCplxHalfCplxHalf|cplxPowerCplxHalfHalf|power\(std::complex<half_t>')
MET_SUBNORMALS = '*'


def listed():
    """row of the table -> names of functions"""
    rows = {}
    for line in library.lines_of(os.path.join(HERE, 'flushed.txt')):
        if line.startswith('['):
            rows[line.strip('[]')] = []
        else:
            rows[list(rows)[-1]].append(line)
    return rows


def rows_of_the_docs():
    with open(NUMERICS) as text:
        section = text.read().split(HEADING + '\n', 1)[1].split('\n## ')[0]
    table = [line for line in section.split('\n') if line.startswith('|')]
    return [line.split('|')[1].strip() for line in table[2:]]


def changed_and_met(command):
    """The names of functions that give other bits flushed, of those that meet subnormals otherwise, and of all."""
    changed, met, names = set(), set(), set()
    for group in golden_test.GROUPS:
        for inputs in ([], ['underflow']):
            ordinary = golden_test.by_name(golden_test.sweep(command, group, *inputs, 'watched'))
            flushed = golden_test.by_name(golden_test.sweep(command, group, *inputs, 'flushed'))
            if list(ordinary) != list(flushed):
                sys.exit('FAILED: %s %s has other functions when flushed' % (group, ' '.join(inputs)))
            names |= set(ordinary)
            met |= {name for name in ordinary if ordinary[name][1].endswith(MET_SUBNORMALS)}
            changed |= {name for name in ordinary if ordinary[name][1].rstrip(MET_SUBNORMALS) != flushed[name][1]}
    return changed, met, names


def main(command):
    report = library.Report('results where subnormals are flushed')
    rows = listed()
    expected = {name for functions in rows.values() for name in functions}
    report.require(sum(len(functions) for functions in rows.values()) == len(expected), 'flushed.txt repeats a name')
    report.require(list(rows) == rows_of_the_docs(), 'the rows of flushed.txt are not those of docs/numerics.md')

    changed, met, names = changed_and_met(command)
    for name in sorted(names | expected):
        report.require(name in names, '%s is listed, and the program does not have it' % name)
        report.require(name not in changed or name in expected, '%s gives other bits and is not listed' % name)
        report.require(name in changed or name not in expected, '%s is listed and gives the same bits' % name)
        if not BESIDE_HALVES.search(name) and not SQUARES_HALVES.match(name):
            report.require(name not in expected and name not in met, '%s meets subnormal floats' % name)
    report.finish()


if __name__ == '__main__':
    main(sys.argv[2:] + [sys.argv[1]])
