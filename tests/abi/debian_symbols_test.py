"""The Debian packages' lists of symbols are the libraries': every name, under its SONAME, with the version it came in.

usage: debian_symbols_test.py SOURCE_DIRECTORY LIBRARY...
"""
import os
import re
import sys

import library

LINE = re.compile(r' (\S+)@Base (\S+)$')


def version(source):
    """The version that the headers tell."""
    with open(os.path.join(source, 'include', 'zthalf', 'version.h')) as header:
        numbers = re.findall(r'^#define ZTHALF_VERSION_(?:MAJOR|MINOR|PATCH) (\d+)$', header.read(), re.M)
    return '.'.join(numbers)


def soname(path):
    return re.search(r'\(SONAME\).*\[(.*)\]', library.run('readelf', '--wide', '--dynamic', path)).group(1)


def package(path):
    """The package that has the library, and whose list it is."""
    return re.sub(r'\.so\.', '', soname(path))


def list_of(path):
    return os.path.join('debian', package(path) + '.symbols')


def head(path):
    """The first two lines: which library, which package has it, which one a program is built with."""
    return ['%s %s #MINVER#' % (soname(path), package(path)), '* Build-Depends-Package: libzthalf-dev']


def listed(source, name):
    """(head, {mangled name: since which version}); nothing where there is no list yet"""
    path = os.path.join(source, name)
    if not os.path.exists(path):
        return [], {}
    with open(path) as text:
        lines = text.read().splitlines()
    rows = [LINE.match(line) for line in lines[2:]]
    if not all(rows):
        sys.exit('FAILED: cannot read %s: %s' % (name, lines[2 + rows.index(None)]))
    return lines[:2], {row.group(1): row.group(2) for row in rows}


def refreshed(source, path):
    """The list as it should be: names that stand in it keep their version, new ones get the present one."""
    since, now = listed(source, list_of(path))[1], version(source)
    yield from head(path)
    for name in sorted({s.name for s in library.exported(path)}):
        yield ' %s@Base %s' % (name, since.get(name, now))


def numbers(text):
    return [int(n) for n in text.split('.')]


def check(report, source, path):
    listing = list_of(path)
    first, since = listed(source, listing)
    report.require(first == head(path), '%s begins with %s, not %s' % (listing, first, head(path)))
    exported = {s.name for s in library.exported(path)}
    report.require(exported, '%s exports nothing' % path)
    for name in sorted(exported - since.keys()):
        report.require(False, '%s is exported and not in %s: run tools/refresh-exports.py' % (name, listing))
    for name in sorted(since.keys() - exported):
        report.require(False, '%s is in %s and not exported' % (name, listing))
    now = version(source)
    for name, began in sorted(since.items()):
        report.require(numbers(began) <= numbers(now), '%s is said to have come in %s: this is %s' % (name, began, now))


def main(source, *paths):
    report = library.Report('debian symbols')
    for path in paths:
        check(report, source, path)
    now = version(source)
    with open(os.path.join(source, 'debian', 'changelog')) as changelog:
        latest = changelog.readline()
    report.require(re.match(r'zthalf \(%s[)~+-]' % re.escape(now), latest),
                   'debian/changelog speaks of another version than %s: %s' % (now, latest))
    report.finish()


if __name__ == '__main__':
    main(*sys.argv[1:])
