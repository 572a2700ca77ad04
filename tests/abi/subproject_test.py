"""Among the folders of another project zthalf keeps to itself: its flags, its names, its warnings, what it installs.

usage: subproject_test.py SOURCE_DIRECTORY CXX_COMPILER
"""
import os
import sys
import tempfile

import library
from configured import Tree, optimisation

OURS_ALONE = ('-O3', '-ffp-contract=off', '-fno-strict-aliasing', '-fstack-protector-strong', '-Wmissing-declarations')


def targets(folder):
    """What the build system has by name, but for files and what CMake makes everywhere."""
    usual = {'all', 'clean', 'help', 'edit_cache', 'rebuild_cache', 'codegen', 'build.ninja', 'CMakeCache.txt'}
    names = set()
    for line in library.run('ninja', '-C', folder, '-t', 'targets', 'all').splitlines():
        name, _, rule = line.rpartition(': ')
        if rule == 'phony' and '/' not in name and not name.startswith('cmake_object_order') and name not in usual:
            names.add(name)
    return names


def has_install_rules(folder):
    with open(os.path.join(folder, 'zthalf', 'cmake_install.cmake')) as rules:
        return 'file(INSTALL' in rules.read()


def main(source, compiler):
    report = library.Report('subproject')
    with tempfile.TemporaryDirectory() as work:
        tree = Tree(os.path.join(source, 'tests', 'consumer', 'enclosing'), os.path.join(work, 'build'), compiler)
        status, output = tree.configure('-DZTHALF=' + source, '-DCMAKE_BUILD_TYPE=RelWithDebInfo',
                                        '-DCMAKE_INSTALL_PREFIX=' + os.path.join(work, 'prefix'))
        report.require(status == 0, 'configuring: ' + output)
        root = os.path.realpath(source)
        commands = tree.commands()
        library_sources = [file for file in commands if file.startswith(os.path.join(root, 'src') + os.sep)]
        report.require(len(library_sources) > 20, '%d sources of the library' % len(library_sources))
        levels = {optimisation(commands[file]) for file in library_sources}
        report.require(levels == {'-O3'}, 'in a RelWithDebInfo project the library is compiled with %s' % levels)

        own = [file for file in commands if '/tests/consumer/' in file and file.endswith('.cpp')]
        report.require(own, 'the enclosing project compiles nothing')
        include = os.path.join(root, 'include')
        for file in own:
            text = ' '.join(commands[file])
            report.require(optimisation(commands[file]) == '-O2', '%s is compiled with %s' % (file, text))
            for flag in OURS_ALONE:
                report.require(flag not in commands[file], '%s reaches the enclosing project: %s' % (flag, text))
            report.require('-isystem ' + include in text, 'headers are not a system\'s: ' + text)
        foreign = {name for name in targets(tree.folder) if 'zthalf' not in name} - {'consumer'}
        report.require(not foreign, 'targets without our name: %s' % ', '.join(sorted(foreign)))
        report.require('libzthalf.so' in targets(tree.folder), 'the targets were not read')

        report.require(not has_install_rules(tree.folder), 'the library is installed with the project')
        status, output = tree.configure('-DZTHALF_INSTALL=ON')
        report.require(status == 0 and has_install_rules(tree.folder), 'ZTHALF_INSTALL=ON has no effect')
    report.finish()


if __name__ == '__main__':
    main(*sys.argv[1:3])
