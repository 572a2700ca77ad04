"""No number becomes a half pattern by accident, and no standard template works on complex halves: none of it compiles.

usage: misuse_test.py SOURCE_DIRECTORY COMPILER...        the first compiler must be here

In C++17 and C++20, with each compiler. The controls compile together; every misuse is an error of its own.
"""
import concurrent.futures
import os
import re
import shutil
import subprocess
import sys

import library
import misuses

FLAGS = ['-Wno-unused', '-x', 'c++', '-']
UNLIMITED = {'g++': ['-fmax-errors=0'], 'clang++': ['-ferror-limit=0']}
STANDARDS = ['c++17', 'c++20']


def functions_of(statements):
    return ['void f%d(%s) { %s; }' % (i, misuses.PARAMETERS, s) for i, s in enumerate(statements)]


class Compiler:
    def __init__(self, name, standard, source):
        self.name = '%s as %s' % (name, standard)
        unlimited = UNLIMITED['clang++' if 'clang' in name else 'g++']
        self.command = [name, '-std=' + standard, '-I', os.path.join(source, 'include')] + unlimited

    def compile(self, statements, *mode):
        """Whether it compiles, and what the compiler said."""
        text = '#line 1 "prelude"\n' + misuses.PRELUDE + '#line 1 "statements"\n' + '\n'.join(functions_of(statements))
        done = subprocess.run(self.command + list(mode) + FLAGS, input=text + '\n', stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT, text=True, env=dict(os.environ, LC_ALL='C'))
        return done.returncode == 0, done.stdout

    def check_controls(self):
        controls = [control for control, _ in misuses.DIRECT + misuses.DEEP]
        compiled, said = self.compile(controls, '-fsyntax-only', '-Werror')
        yield compiled, '%s: a control does not compile:\n%s' % (self.name, said)
        compiled, said = self.compile([control for control, _ in misuses.OPTIMISED], '-O2', '-S', '-o', os.devnull)
        yield compiled, '%s: a control does not compile when optimised:\n%s' % (self.name, said)

    def check_direct(self):
        said = self.compile([misuse for _, misuse in misuses.DIRECT], '-fsyntax-only')[1]
        lines = {int(line) for line in re.findall(r'^statements:(\d+):\d+: error: ', said, re.MULTILINE)}
        for line, (_, misuse) in enumerate(misuses.DIRECT, start=1):
            yield line in lines, '%s: this compiles: %s' % (self.name, misuse)

    def check_alone(self, misuse, *mode):
        compiled, said = self.compile([misuse], *mode)
        yield not compiled, '%s: this compiles: %s' % (self.name, misuse)
        # The same headers compile for the controls, so another error would be one of ours.
        about_halves = re.search('half_t|fp16binary_t|one pattern', said)
        yield compiled or about_halves, '%s: %s is refused for another reason:\n%s' % (self.name, misuse, said)

    def checks(self):
        yield self.check_controls
        yield self.check_direct
        for _, misuse in misuses.DEEP:
            yield lambda misuse=misuse: self.check_alone(misuse, '-fsyntax-only')
        for _, misuse in misuses.OPTIMISED:
            yield lambda misuse=misuse: self.check_alone(misuse, '-O2', '-S', '-o', os.devnull)


def main(source, *compilers):
    report = library.Report('misuse')
    report.require(shutil.which(compilers[0]), '%s is not here' % compilers[0])
    present = [name for name in compilers if shutil.which(name)]
    for name in set(compilers) - set(present):
        print('note: %s is not here; only %s was used' % (name, ' and '.join(present)))

    checks = [check for name in present for standard in STANDARDS
              for check in Compiler(name, standard, source).checks()]
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for results in pool.map(lambda check: list(check()), checks):
            for right, complaint in results:
                report.require(right, complaint)
    report.finish()


if __name__ == '__main__':
    main(*sys.argv[1:])
