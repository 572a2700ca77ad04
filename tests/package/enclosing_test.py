"""A project that has zthalf among its folders, builds it as a static library, and uses it.

usage: enclosing_test.py SOURCE_DIRECTORY WORK_DIRECTORY CXX_COMPILER
"""
import os
import shutil
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), '..', 'abi'))
import library  # noqa: E402
from configured import Tree  # noqa: E402


def main(source, work, compiler):
    report = library.Report('enclosing project')
    shutil.rmtree(work, ignore_errors=True)
    tree = Tree(os.path.join(source, 'tests', 'consumer', 'enclosing'), work, compiler)
    status, output = tree.configure('-DZTHALF=' + source, '-DCMAKE_BUILD_TYPE=RelWithDebInfo',
                                    '-DBUILD_SHARED_LIBS=OFF')
    if status != 0:
        sys.exit('FAILED: configuring: ' + output)
    library.run('cmake', '--build', work, '--parallel', str(len(os.sched_getaffinity(0))))
    program = os.path.join(work, 'consumer')
    library.run(program)
    report.require('libzthalf' not in library.run('readelf', '--dynamic', program), 'a shared library is used')
    report.require(os.path.exists(os.path.join(work, 'zthalf', 'libzthalf.a')), 'there is no static library')
    report.finish()


if __name__ == '__main__':
    main(*sys.argv[1:4])
