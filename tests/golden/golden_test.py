"""The results of every function have the bits whose hashes are committed beside this script.

usage: golden_test.py PROGRAM [EMULATOR...]        PROGRAM is the built result_sweep
"""
import os
import subprocess
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(HERE, '..', 'abi'))
import library  # noqa: E402

GROUPS = ('entries', 'scalars', 'operators')


def sweep(command, group, *options):
    """The program's lines for a group."""
    done = subprocess.run(command + [group, *options], stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
    if done.returncode == library.SKIPPED:
        library.skip(done.stdout.strip())
    if done.returncode != 0:
        sys.exit('FAILED: %s %s ended with status %d\n%s' % (' '.join(command), group, done.returncode, done.stderr))
    return done.stdout.splitlines()


def by_name(lines):
    """name -> (count, hash)"""
    return {line.rsplit(None, 2)[0]: tuple(line.rsplit(None, 2)[1:]) for line in lines}


def path_of(group):
    return os.path.join(HERE, group + '.hash')


def main(command):
    report = library.Report('golden results')
    for group in GROUPS:
        actual = by_name(sweep(command, group))
        expected = by_name(library.lines_of(path_of(group)))
        for name in sorted(set(actual) | set(expected)):
            if name not in expected:
                complaint = 'is new and has no hash; tools/refresh-golden.py adds it'
            elif name not in actual:
                complaint = 'has a hash, and the program does not have it'
            elif actual[name][0] != expected[name][0]:
                complaint = 'gave %s results instead of %s: other inputs?' % (actual[name][0], expected[name][0])
            else:
                complaint = 'has other bits: hash %s instead of %s' % (actual[name][1], expected[name][1])
            report.require(actual.get(name) == expected.get(name), '%s: %s %s' % (group, name, complaint))
    report.finish()


if __name__ == '__main__':
    program, emulator = sys.argv[1], sys.argv[2:]
    main(emulator + [program])
