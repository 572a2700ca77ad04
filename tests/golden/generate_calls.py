"""Writes the calls of the result sweep: one for each entry present, for each scalar function that is exported, and for
the array functions that have no entry, so that none can be left out.

usage: generate_calls.py ENTRIES_TXT EXPORTS_TXT OUTPUT
"""
import re
import sys

WITHOUT_ENTRY = re.compile(r'function +(half_vector::ulp)\((.*)\)')
SCALAR = re.compile(r'function +(half_scalar::[\w:]+)\((.*)\)')

HEAD = '''// Written by tests/golden/generate_calls.py.
#include "tests/golden/linalg_sweep.h"
#include "zthalf/zthalf.h"

namespace zthalf::golden {
'''


def present_entries(path):
    with open(path) as text:
        section = text.read().split('# Present', 1)[1].split('# Still to come')[0]
    return [line for line in section.split('\n')[1:] if line and not line.startswith('#')]


def entry_call(name):
    """Entries whose type alone does not tell how to call them have a sweep of their own."""
    sweep = 'sweep'
    if name.endswith('TwoOut'):
        sweep = 'sweepTwoOutputs'
    elif 'Reduce' in name:
        sweep = 'sweepReduction'
    return '  %s("%s", half_ptr::%sPtr);' % (sweep, name, name)


def function_call(line):
    function, arguments = WITHOUT_ENTRY.fullmatch(line).groups()
    shown = '%s(%s)' % (function, arguments)
    return '  sweep("%s", static_cast<void (*)(%s)>(&%s));' % (shown, arguments, function)


def scalar_call(line):
    function, arguments = SCALAR.fullmatch(line).groups()
    shown = '%s(%s)' % (function.replace('half_scalar::', ''), arguments)
    return '  sweepScalar<%s>("%s", [](auto... x) { return %s(x...); });' % (arguments, shown, function)


def main(entries, exports, output):
    with open(exports) as text:
        lines = [line.strip() for line in text]
    parts = [HEAD, 'void sweepEntries() {']
    parts += [entry_call(name) for name in present_entries(entries)]
    parts += [function_call(line) for line in lines if WITHOUT_ENTRY.fullmatch(line)]
    parts += ['}', '', 'void sweepScalars() {']
    parts += [scalar_call(line) for line in lines if SCALAR.fullmatch(line)]
    parts += ['}', '', '}  // namespace zthalf::golden', '']
    with open(output, 'w') as text:
        text.write('\n'.join(parts))


if __name__ == '__main__':
    main(*sys.argv[1:4])
