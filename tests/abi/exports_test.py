"""The exported symbols are exactly those of the reviewed list.

usage: exports_test.py LIBRARY LIST        (exports.txt, host_exports.txt)
"""
import difflib
import os
import sys

import library


def exports(path):
    """One line for each exported symbol: what it is, and its demangled name. A name that stands twice is exported
    under its C name too."""
    word = {'FUNC': 'function', 'OBJECT': 'object'}
    # A vague symbol and a strong one are the same to who links it, and so are a type's two readings of "> >".
    return sorted('%-8s %s' % (word.get(s.kind, s.kind), s.demangled.replace('> >', '>>'))
                  for s in library.exported(path))


def main(path, name):
    report = library.Report(name)
    expected, actual = library.lines_of(os.path.join(library.HERE, name)), exports(path)
    report.require(actual, 'the library exports nothing')
    difference = [line for line in difflib.unified_diff(expected, actual, lineterm='', n=0)
                  if line[0] in '+-' and line[:3] not in ('+++', '---')]
    for line in difference:
        print(('exported, not in the list:  ' if line[0] == '+' else 'in the list, not exported:  ') + line[1:])
    report.require(not difference, 'exported symbols differ from tests/abi/%s in %d lines; if that is wanted, '
                   'run tools/refresh-exports.py and review the difference' % (name, len(difference)))
    report.finish()


if __name__ == '__main__':
    main(*sys.argv[1:3])
