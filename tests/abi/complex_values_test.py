"""Complex halves of a program and those of the library are the same thing, whichever compiler made the program.

usage: complex_values_test.py SOURCE_DIRECTORY LIBRARY COMPILER...

A program of each compiler and standard runs against the library. And a complex half is passed, returned and named as
the general std::complex of a type of that layout: functions that hand them on have the same instructions.
"""
import os
import re
import shutil
import subprocess
import sys
import tempfile

import library

STANDARDS = ['c++17', 'c++20']

# The same functions of a type for which std::complex is the general template.
PASSING = '''
#include "zthalf/half_t.h"
struct other { std::uint16_t bits; };
template <class Half>
struct passing {
  using complexHalf = std::complex<Half>;
  [[gnu::noinline, gnu::used]] static complexHalf second(complexHalf, long, complexHalf w, Half) { return w; }
  [[gnu::noinline, gnu::used]] static complexHalf calls(complexHalf z, Half h) { return second(z, 7, z, h); }
  [[gnu::noinline, gnu::used]] static Half last(Half, complexHalf, Half y) { return y; }
};
template struct passing<half_t>;
template struct passing<other>;
void named(std::complex<half_t>, half_t*, std::complex<half_t>*) {}
'''


def functions_in(assembly):
    """Label -> instructions, with the labels' own names and directives left out."""
    found, name = {}, None
    for line in assembly.split('\n'):
        label = re.match(r'(_Z\w+):', line)
        if label:
            name = label.group(1)
            found[name] = []
        elif name and re.match(r'\s+[a-z]', line):
            found[name].append(line.split('#')[0].strip().replace('5other', '6half_t'))
        elif line.startswith('\t.size'):
            name = None
    return found


def check_passing(report, compiler, include):
    assembly = library.run(compiler, '-std=c++17', '-O2', '-S', '-fno-asynchronous-unwind-tables', '-I', include,
                           '-x', 'c++', '-', '-o', '-', input=PASSING)
    found = functions_in(assembly)
    report.require('_Z5namedSt7complexI6half_tEPS0_PS1_' in found, '%s names complex halves otherwise: %s' % (
        compiler, sorted(n for n in found if 'named' in n)))
    ours = {name: body for name, body in found.items() if '7passingI6half_tE' in name}
    report.require(len(ours) == 3, '%s: functions found: %s' % (compiler, sorted(found)))
    for name, body in ours.items():
        other = found.get(name.replace('6half_t', '5other'))
        report.require(body and body == other, '%s: %s has\n%s\nwhere the general template has\n%s' % (
            compiler, name, '\n'.join(body), '\n'.join(other or ['nothing'])))


def check_program(report, compiler, standard, source, shared, work):
    program = os.path.join(work, 'complex_values')
    library.run(compiler, '-std=' + standard, '-O2', '-Wall', '-Wextra', '-Werror',
                '-I', os.path.join(source, 'include'), os.path.join(source, 'tests', 'consumer', 'complex_values.cpp'),
                '-o', program, shared, '-Wl,-rpath,' + os.path.dirname(shared))
    done = subprocess.run([program], stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
    report.require(done.returncode == 0,
                   '%s as %s: %s (status %d)' % (compiler, standard, done.stdout, done.returncode))


def main(source, shared, *compilers):
    report = library.Report('complex values')
    present = [name for name in compilers if shutil.which(name)]
    if not present:
        library.skip('none of the compilers is here: %s' % ', '.join(compilers))
    with tempfile.TemporaryDirectory() as work:
        for compiler in present:
            check_passing(report, compiler, os.path.join(source, 'include'))
            for standard in STANDARDS:
                check_program(report, compiler, standard, source, shared, work)
    report.finish()


if __name__ == '__main__':
    main(*sys.argv[1:])
