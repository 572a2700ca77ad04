"""entries.txt is complete, and its first part is what the library has.

usage: entries_test.py LIBRARY
"""
import os
import sys

import library
sys.path.insert(0, os.path.join(library.HERE, '..', '..', 'tools'))
import entry_names  # noqa: E402

PRESENT, TO_COME = '# Present', '# Still to come'
TOTAL = 826


def listed(path, report):
    """Heading -> the names under it, whose number the heading tells."""
    found, told, heading = {PRESENT: [], TO_COME: []}, {}, None
    with open(path) as text:
        for line in map(str.strip, text):
            if line.split(':')[0] in found:
                heading, told[heading] = line.split(':')
            elif line and not line.startswith('#'):
                found[heading].append(line)
    for heading, names in found.items():
        report.require(int(told.get(heading, -1)) == len(names),
                       'the heading "%s:%s" stands above %d names' % (heading, told.get(heading), len(names)))
    return found


def main(path):
    report = library.Report('entries.txt')
    expected = entry_names.all_names()
    report.require(len(expected) == TOTAL, 'the naming rules give %d names, not %d' % (len(expected), TOTAL))
    report.require(len(set(expected)) == len(expected), 'the naming rules give a name twice')

    lists = listed(os.path.join(library.HERE, 'entries.txt'), report)
    names = lists[PRESENT] + lists[TO_COME]
    for name in sorted(set(expected) - set(names)):
        report.require(False, '%s is not in entries.txt' % name)
    for name in sorted(set(names) - set(expected)):
        report.require(False, '%s is in entries.txt, and by no naming rule a name' % name)
    for name in sorted(set(n for n in names if names.count(n) > 1)):
        report.require(False, '%s is in entries.txt more than once' % name)

    present = library.entries(path)
    for name in lists[PRESENT]:
        report.require(name in present, 'half_ptr::%sPtr is listed as present, and the library does not have it' % name)
    for name in lists[TO_COME]:
        report.require(name not in present, 'half_ptr::%sPtr is there: move it to the entries present' % name)
    for name in sorted(set(present) - set(names)):
        report.require(False, 'half_ptr::%sPtr is exported, and no entry of the table' % name)
    print('%d of %d entries present' % (len(present), TOTAL))
    report.finish()


if __name__ == '__main__':
    main(sys.argv[1])
