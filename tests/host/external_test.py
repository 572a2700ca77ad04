"""ZTHALF_HOST=external: the library with another host's libraries behind it and that host's layout of arrays. The same
names are exported; a program runs with it.

usage: external_test.py SOURCE_DIRECTORY BUILD_DIRECTORY BUILD_TYPE CXX_COMPILER HOST_LIBRARIES

Only what looks into arrays is compiled again: the other objects are lent by the tree under test.
"""
import os
import re
import shutil
import subprocess
import sys
import tempfile

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), '..', 'abi'))
import exports_test  # noqa: E402
import library  # noqa: E402
from configured import Tree  # noqa: E402

LIBRARIES = ('vq', 'ztkobs', 'ztfl', 'ztfloat2str', 'ztcpp11compat')
LENT = ('zthalf_objects.dir', 'zthalf_tables.dir')
AGAIN = 'zthalf_objects.dir/src/host/'


def build(report, tree, lender):
    """The library, by the tree's own commands; those whose results are lent are left out."""
    for folder in LENT:
        shutil.copytree(os.path.join(lender, 'CMakeFiles', folder), os.path.join(tree.folder, 'CMakeFiles', folder),
                        dirs_exist_ok=True)
    commands = library.run('ninja', '-C', tree.folder, '-t', 'commands', 'zthalf').splitlines()
    mine = [c for c in commands if AGAIN in c and ' -c ' in c]
    linking = [c for c in commands if ' -shared ' in c]
    report.require(len(mine) > 5, '%d sources look into arrays' % len(mine))
    report.require(len(linking) == 1, 'commands that link: %s' % linking)
    names = [c for c in commands if 'cmake_symlink_library' in c]
    for command in mine + linking + names:
        done = subprocess.run(command, shell=True, cwd=tree.folder, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                              text=True)
        if done.returncode != 0:
            sys.exit('FAILED: %s\n%s' % (command, done.stdout))
    return os.path.join(tree.folder, 'libzthalf.so')


def check_library(report, path):
    dynamic = library.run('readelf', '--wide', '--dynamic', path)
    needed = set(re.findall(r'\(NEEDED\).*\[(.*)\]', dynamic))
    for name in LIBRARIES[:-1]:  # of the last, a piece of the standard library, the linker may find nothing missing
        report.require('lib%s.so' % name in needed, 'lib%s is not among the dependencies: %s' % (name, sorted(needed)))
    report.require(not any('zthalf' in name for name in needed), 'our own host is a dependency: %s' % sorted(needed))
    report.require('(RUNPATH)' not in dynamic and '(RPATH)' not in dynamic, 'the library carries a search path')
    listed = library.lines_of(os.path.join(library.HERE, 'exports.txt'))
    report.require(exports_test.exports(path) == listed, 'other names are exported than with our own host')


def check_refusals(report, tree, libraries, work):
    for name in LIBRARIES:
        lacking = os.path.join(work, 'without_' + name)
        os.mkdir(lacking)
        for other in LIBRARIES:
            if other != name:
                shutil.copy(os.path.join(libraries, 'lib%s.so' % other), lacking)
        status, output = tree.configure('-DZTHALF_HOST_LIBRARY_DIR=' + lacking)
        report.require(status != 0 and 'There is no lib%s in' % name in output, 'without lib%s: %s' % (name, output))
    status, output = tree.configure('-DZTHALF_HOST=other')
    report.require(status != 0 and "embedded or external, not 'other'" in output, 'another word: ' + output)


def main(source, lender, build_type, compiler, libraries):
    report = library.Report('external host')
    layout = os.path.join(source, 'tests', 'host', 'second', 'include')
    with tempfile.TemporaryDirectory() as work:
        tree = Tree(source, os.path.join(work, 'build'), compiler)
        status, output = tree.configure(
            '-DZTHALF_HOST=external', '-DZTHALF_HOST_LIBRARY_DIR=' + libraries, '-DZTHALF_HOST_INCLUDE_DIR=' + layout,
            '-DCMAKE_BUILD_TYPE=' + build_type, '-DZTHALF_BUILD_TESTS=OFF', '-DZTHALF_BUILD_EXAMPLES=OFF')
        if status != 0:
            sys.exit('FAILED: configuring: ' + output)
        path = build(report, tree, lender)
        check_library(report, path)

        # As installed: the headers are the host's where it has its own.
        prefix = os.path.join(work, 'prefix')
        library.run('cmake', '--install', tree.folder, '--prefix', prefix)
        program = os.path.join(work, 'program')
        folder = os.path.dirname(path)
        library.run(compiler, '-std=c++17', '-Wall', '-Wextra', '-I', os.path.join(prefix, 'include'),
                    os.path.join(source, 'tests', 'host', 'external_program.cpp'), '-o', program, '-L', folder,
                    '-lzthalf', '-L', libraries, *('-l' + name for name in LIBRARIES))
        os.environ['LD_LIBRARY_PATH'] = folder + ':' + libraries
        report.require('all is right' in library.run(program), 'the program')
        check_refusals(report, tree, libraries, work)
    report.finish()


if __name__ == '__main__':
    main(*sys.argv[1:6])
