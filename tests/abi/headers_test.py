"""Each installed header compiles by itself as C++17 without a warning, with GCC and with clang; all together as C++20.

usage: headers_test.py SOURCE_DIRECTORY COMPILER...
"""
import os
import shutil
import subprocess
import sys

import library

FLAGS = ['-Wall', '-Wextra', '-pedantic', '-Werror', '-fsyntax-only', '-x', 'c++']


def main(source, compilers):
    include = os.path.join(source, 'include')
    headers = sorted(os.path.relpath(os.path.join(parent, name), include)
                     for parent, _, names in os.walk(include) for name in names)
    present = [c for c in compilers if shutil.which(c)]
    for compiler in set(compilers) - set(present):
        print('note: %s is not here; only %s was used' % (compiler, ' and '.join(present)))
    if not present:
        library.skip('none of the compilers is here: %s' % ', '.join(compilers))

    report = library.Report('headers')
    for compiler in present:
        for standard, header in [('c++17', header) for header in headers] + [('c++20', 'zthalf/zthalf.h')]:
            text = '#include "%s"\n' % header * 2  # the second time must add nothing
            done = subprocess.run([compiler, '-std=' + standard, '-I', include] + FLAGS + ['-'], input=text,
                                  stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
            report.require(done.returncode == 0, '%s alone, %s as %s:\n%s' % (header, compiler, standard, done.stdout))
    report.require(headers, 'there are no headers in ' + include)
    report.finish()


if __name__ == '__main__':
    main(sys.argv[1], sys.argv[2:])
