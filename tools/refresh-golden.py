#!/usr/bin/env python3
"""Rewrites the hashes in tests/golden/ from a build.

usage: tools/refresh-golden.py [BUILD_DIRECTORY]        (default build/release)

A changed line says that results have changed, which is a breaking change of the library: a new function adds lines and
changes none. Look at the difference before committing it.
"""
import os
import sys

ROOT = os.path.abspath(os.path.join(os.path.dirname(os.path.abspath(__file__)), '..'))
sys.path.insert(0, os.path.join(ROOT, 'tests', 'golden'))
sys.dont_write_bytecode = True
import golden_test  # noqa: E402

HEAD = ['# A hash of the bits of all results over fixed inputs: name, number of results, hash. Written by',
        '# tools/refresh-golden.py. A changed line is a changed result.']


def main(build):
    golden_test.library.run('cmake', '--build', build, '--target', 'result_sweep')
    program = os.path.join(build, 'tests', 'golden', 'result_sweep')
    for group in golden_test.GROUPS:
        path = golden_test.path_of(group)
        before = golden_test.by_name(golden_test.library.lines_of(path)) if os.path.exists(path) else {}
        lines = golden_test.sweep([program], group)
        after = golden_test.by_name(lines)
        with open(path, 'w') as text:
            text.write('\n'.join(HEAD + lines) + '\n')
        changed = [name for name in after if name in before and before[name] != after[name]]
        print('%-10s %d lines, %d new, %d gone, %d CHANGED' % (
            group, len(after), len(set(after) - set(before)), len(set(before) - set(after)), len(changed)))
        for name in changed:
            print('    changed: ' + name)


if __name__ == '__main__':
    if len(sys.argv) > 2 or any(a.startswith('-') for a in sys.argv[1:]):
        sys.exit(__doc__)
    main(os.path.abspath(sys.argv[1]) if len(sys.argv) > 1 else os.path.join(ROOT, 'build', 'release'))
