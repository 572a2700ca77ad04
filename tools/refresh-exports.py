#!/usr/bin/env python3
"""Rewrites tests/abi/exports.txt, tests/abi/entries.txt and the Debian package's list of symbols from a built library,
and of the host library beside it tests/abi/host_exports.txt and its package's list.

usage: tools/refresh-exports.py [LIBRARY]        (default build/release/libzthalf.so)

They are reviewed lists: look at the difference before committing it.
"""
import os
import sys

ROOT = os.path.join(os.path.dirname(os.path.abspath(__file__)), '..')
sys.path.insert(0, os.path.join(ROOT, 'tests', 'abi'))
sys.dont_write_bytecode = True
import debian_symbols_test  # noqa: E402
import entries_test  # noqa: E402
import entry_names  # noqa: E402
import exports_test  # noqa: E402
import library  # noqa: E402


def entries_text(present):
    """All entries under two headings, by family, each in the order of its naming rule."""
    yield '# The entries of the table, half_ptr::<name>Ptr, and how far the library has got.'
    for heading, wanted in ((entries_test.PRESENT, True), (entries_test.TO_COME, False)):
        chosen = [(family, [n for n in names if (n in present) == wanted]) for family, names in entry_names.families()]
        yield ''
        yield '%s: %d' % (heading, sum(len(names) for _, names in chosen))
        for family, names in chosen:
            if names:
                yield '\n# %s\n%s' % (family, '\n'.join(names))


def exports_text(path, what):
    yield '# Every symbol that ' + what + ' exports, without its version. Reviewed: a change here is a change of the'
    yield '# interface. Written by tools/refresh-exports.py.'
    yield from exports_test.exports(path)


def write(name, lines):
    text = '\n'.join(lines) + '\n'
    with open(os.path.join(ROOT, name), 'w') as file:
        file.write(text)


def main(path):
    host = os.path.join(os.path.dirname(path), 'libzthalf-host.so')
    write('tests/abi/exports.txt', exports_text(path, 'the library'))
    write('tests/abi/host_exports.txt', exports_text(host, 'the embedded host'))
    write('tests/abi/entries.txt', entries_text(library.entries(path)))
    for one in (path, host):
        write(debian_symbols_test.list_of(one), debian_symbols_test.refreshed(ROOT, one))
    library.run('git', '-C', ROOT, 'rev-parse')
    print(library.run('git', '-C', ROOT, 'diff', '--stat', '--', 'tests/abi', 'debian') or 'no change')


if __name__ == '__main__':
    if len(sys.argv) > 2 or any(a.startswith('-') for a in sys.argv[1:]):
        sys.exit(__doc__)
    main(sys.argv[1] if len(sys.argv) > 1 else os.path.join(ROOT, 'build', 'release', 'libzthalf.so'))
