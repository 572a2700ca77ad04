"""Shows that our results do not depend on the machine. The same numbers are summed with three accumulators, multiplied,
sent through exp and through a complex product: by this library on 1, 2 and 8 threads, at every instruction level and,
where such a build exists, for other processors under emulation; and by what else one could use.

usage: proof.py PROGRAMS [--emulated COMMAND]... [--without-numpy] [--markdown]

  PROGRAMS             the folder of zthalf_proof and of the peers' programs beside it
  --emulated COMMAND   another command that prints rows, such as zthalf_proof built for another processor
  --without-numpy      leaves NumPy out, which is otherwise asked if an interpreter has it
  --markdown           the summary as README has it

Exit status: 0 when all our rows are one, 1 when they are not, 2 when a program could not be run.
"""
import argparse
import glob
import hashlib
import os
import platform
import shlex
import struct
import subprocess
import sys
import tempfile

HERE = os.path.dirname(os.path.abspath(__file__))
OURS = 'zthalf'
COLUMNS = ('half', 'single', 'double', 'x * y', 'exp(x)', 'z * w')
# What a processor without a level lacks, as NumPy names it.
BEYOND_BASE = ('AVX', 'F16C', 'FMA3', 'AVX2')
BEYOND_V3 = ('AVX512',)


def fail(why):
    print('proof: ' + why, file=sys.stderr)
    raise SystemExit(2)


class Row:
    """A line of one of the programs: the values of COLUMNS from one run."""

    def __init__(self, line):
        fields = line.split('\t')
        if len(fields) != 9:
            fail('not a row: %r' % line)
        self.who, self.compiled_for, self.threads = fields[:3]
        self.values = tuple(fields[3:])

    def all_bits(self):
        return hashlib.sha256('\t'.join(self.values).encode()).hexdigest()[:12]

    def cells(self):
        sums = ['%g' % struct.unpack('<e', struct.pack('<H', int(pattern, 16))) for pattern in self.values[:3]]
        return [self.who, self.compiled_for, self.threads] + sums + [value[:8] for value in self.values[3:]]


def output_of(command, **options):
    try:
        done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.PIPE, **options)
    except OSError as error:
        fail('%s: %s' % (command[0], error.strerror))
    if done.returncode != 0:
        fail('%s: status %d\n%s' % (' '.join(command), done.returncode, done.stderr.decode(errors='replace')))
    return done.stdout


def rows_of(command, **options):
    return [Row(line) for line in output_of(command, **options).decode().splitlines()]


def numpy_rows(inputs):
    """NumPy's rows at each level, for an interpreter that has it. It chooses its loops when it starts, and takes from
    its environment which instructions it must do without."""
    script = os.path.join(HERE, 'numpy_rows.py')
    for python in (sys.executable, '/usr/bin/python3'):
        if subprocess.run([python, '-c', 'import numpy'], stderr=subprocess.DEVNULL).returncode == 0:
            break
    else:
        return []
    machine = platform.machine().replace('_', '-').replace('aarch64', 'ARM64')
    features = output_of([python, script, '--features']).decode().split()
    rows, done = [], set()
    for level, beyond in (('base', BEYOND_BASE + BEYOND_V3), ('v3', BEYOND_V3), ('v4', ())):
        without = tuple(name for name in features if name.startswith(beyond)) if beyond else ()
        if machine == 'x86-64' and without not in done:
            rows += rows_of([python, script, inputs, '%s %s' % (machine, level)],
                            env=dict(os.environ, NPY_DISABLE_CPU_FEATURES=' '.join(without)))
            done.add(without)
    return rows or rows_of([python, script, inputs, machine])


def peer_programs(folder):
    """The peers' programs that this processor can run, by name: levels of the same peer in order."""
    with open('/proc/cpuinfo') as info:
        flags = set(info.read().split())
    needed = {'base': set(), 'v3': {'avx2', 'fma', 'f16c', 'bmi2'}, 'v4': {'avx512bw', 'avx512vl', 'avx512dq', 'avx512cd'}}
    return [path for path in sorted(glob.glob(os.path.join(folder, 'zthalf_proof_*_*')))
            if needed[path.rsplit('_', 1)[1]] <= flags]


def table(rows):
    lines = [('', 'compiled for', 'threads') + COLUMNS] + [row.cells() for row in rows]
    widths = [max(len(line[i]) for line in lines) for i in range(len(lines[0]))]
    print(' ' * (sum(widths[:3]) + 6) + 'sum, accumulated in'.ljust(sum(widths[3:6]) + 6) + 'hashes')
    before = None
    for line in lines:
        if before not in (None, line[0]):
            print()
        before = line[0]
        left = [cell.ljust(width) for cell, width in zip(line[:2], widths)]
        right = [cell.rjust(width) for cell, width in zip(line[2:], widths[2:])]
        print('  '.join(left + right).rstrip())


def summary(rows, markdown):
    """One line for each library: how many runs, and how many different results in each column and in all of them."""
    print('| | runs | different results | sum, half | sum, single | sum, double | x * y | exp(x) | z * w |\n|---|--:|--:|--:|--:|--:|--:|--:|--:|'
          if markdown else 'Different results:')
    for who in dict.fromkeys(row.who for row in rows):
        own = [row for row in rows if row.who == who]
        per_column = [len({row.values[i] for row in own}) for i in range(len(COLUMNS))]
        in_all = len({row.values for row in own})
        if markdown:
            note = ' (`%s`)' % own[0].all_bits() if in_all == 1 else ''
            print('| %s | %d | **%d**%s | %s |' % (who, len(own), in_all, note, ' | '.join(map(str, per_column))))
        else:
            details = ', '.join('%d of %s' % (count, name) for count, name in zip(per_column, ('half sums', 'single sums', 'double sums') + COLUMNS[3:]) if count > 1)
            print('  %-16s %2d from %2d runs   %s' % (who, in_all, len(own), details or 'the one hash is ' + own[0].all_bits()))


def main():
    parser = argparse.ArgumentParser(usage=__doc__.split('usage: ')[1])
    parser.add_argument('programs')
    parser.add_argument('--emulated', action='append', default=[], type=shlex.split)
    parser.add_argument('--without-numpy', action='store_true')
    parser.add_argument('--markdown', action='store_true')
    options = parser.parse_args()

    ours = os.path.join(options.programs, 'zthalf_proof')
    rows = rows_of([ours])
    for command in options.emulated:
        rows += rows_of(command)
    if not any(row.who == OURS for row in rows):
        fail('%s prints no row of ours' % ours)
    if not options.without_numpy:
        with tempfile.NamedTemporaryFile() as inputs:
            inputs.write(output_of([ours, '--inputs']))
            inputs.flush()
            rows += numpy_rows(inputs.name)
    for program in peer_programs(options.programs):
        rows += rows_of([program])
    order = list(dict.fromkeys(row.who for row in rows))
    rows.sort(key=lambda row: order.index(row.who))

    if not options.markdown:
        table(rows)
        print()
    summary(rows, options.markdown)
    return 0 if len({row.values for row in rows if row.who == OURS}) == 1 else 1


if __name__ == '__main__':
    sys.exit(main())
