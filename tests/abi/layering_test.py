"""Sources include only downwards, and internal headers say what they are.

usage: layering_test.py SOURCE_DIRECTORY
"""
import os
import re
import sys

import library

# The height of each folder: a file includes nothing of a higher one.
HEIGHT = {
    'src/core': 0,
    'src/scalar': 1,
    'src/results': 2,
    'src/frame/loops': 3,
    'src/frame/unary': 4,
    'src/elementwise': 4,
    'src/reduce': 4,
    'src/linalg': 4,
    'src/frame/table': 5,
    'src/host/api': 0,  # declares the host's own operations and includes nothing of ours
    'src/host': 6,
}
# Stands apart: uses values and the host's declarations, and nothing else uses it.
APART = {'src/codetext': {'src/codetext', 'src/core', 'src/host/api'}}

INCLUDE = re.compile(r'\s*#\s*include\s*([<"])([^>"]+)[>"]')


def place(path):
    """The longest prefix of the path that has a height or stands apart."""
    parts = path.split('/')
    for length in range(len(parts), 0, -1):
        prefix = '/'.join(parts[:length])
        if prefix in HEIGHT or prefix in APART:
            return prefix
    return None


def includes_of(path):
    with open(path) as text:
        for number, line in enumerate(text, 1):
            match = INCLUDE.match(line)
            if match:
                yield number, match.group(1), match.group(2)


def files_below(folder):
    return sorted(os.path.join(parent, name) for parent, _, names in os.walk(folder) for name in names
                  if name.endswith(('.h', '.cpp')))


def check_internal(report):
    for path in files_below('src'):
        own = place(path)
        report.require(own, '%s is in a folder that has no place among the layers' % path)
        if path.endswith('.h'):
            with open(path) as text:
                report.require(text.readline().startswith('// '), '%s does not begin with a line on what it is' % path)
        for number, bracket, name in includes_of(path):
            where = '%s:%d' % (path, number)
            if name.startswith('zthalf/'):
                report.require(os.path.exists('include/' + name), '%s includes %s, which is not there' % (where, name))
                continue
            if bracket == '<':
                continue
            target = 'src/' + name
            report.require(os.path.exists(target), '%s includes %s, which is not there' % (where, name))
            other = place(target)
            if own is None or other is None:
                continue
            if own in APART or other in APART:
                report.require(other in APART.get(own, ()), '%s: %s must not use %s' % (where, own, other))
            else:
                report.require(HEIGHT[other] <= HEIGHT[own], '%s includes upwards: %s' % (where, name))


def check_installed(report):
    for path in files_below('include'):
        for number, bracket, name in includes_of(path):
            if bracket == '"':
                report.require(os.path.exists('include/' + name),
                               '%s:%d includes %s, which is not installed' % (path, number, name))
            else:
                report.require('/' not in name or name.startswith('sys/'),
                               '%s:%d asks users for %s' % (path, number, name))


def main(source):
    os.chdir(source)
    report = library.Report('layering')
    check_internal(report)
    check_installed(report)
    report.finish()


if __name__ == '__main__':
    main(sys.argv[1])
