"""The ways to install: without the tests and what they need, into absolute folders, as a static library, and back.

usage: install_test.py SOURCE_DIRECTORY CXX_COMPILER SHARED_LIBRARY STATIC_LIBRARY STATIC_HOST

Nothing is compiled twice: what the configured trees would build is lent to them by the tree under test, the static
libraries being its archives of the same objects.
"""
import glob
import os
import shutil
import sys
import tempfile

import library
from configured import Tree


def files_below(folder):
    return sorted(os.path.relpath(os.path.join(parent, name), folder)
                  for parent, _, names in os.walk(folder) for name in names)


def pkg_config(package, *wanted):
    """Asks as a user does who knows where the file lies."""
    os.environ['PKG_CONFIG_PATH'] = package
    return library.run('pkg-config', *wanted, 'zthalf').split()


class Consumer:
    """A user's program, compiled once and linked in several ways."""

    def __init__(self, source, work, compiler):
        self.folder = os.path.join(source, 'tests', 'consumer')
        self.work, self.compiler = work, compiler
        self.objects = []

    def compile(self, flags):
        for name, compiler in (('consumer.cpp', self.compiler), ('lifecycle_from_cpp.cpp', self.compiler),
                               ('lifecycle_from_c.c', 'cc')):
            result = os.path.join(self.work, name + '.o')
            library.run(compiler, *flags, '-c', os.path.join(self.folder, name), '-o', result)
            self.objects.append(result)

    def link_and_run(self, flags, **environment):
        program = os.path.join(self.work, 'program')
        library.run(self.compiler, *self.objects, '-o', program, *flags)
        os.environ.update(environment)
        library.run(program)
        return program


def check_preset(report, tree, work):
    """The preset for users asks for neither GoogleTest nor MPFR nor Python, and compiles the library alone."""
    status, output = tree.configure('--preset', 'install', '-DCMAKE_INSTALL_LIBDIR=' + os.path.join(work, 'opt', 'lib'),
                                    '-DCMAKE_INSTALL_PREFIX=' + os.path.join(work, 'prefix'),
                                    '-DZTHALF_HOMEPAGE=https://example.org/zthalf')
    if status != 0:
        sys.exit('FAILED: the preset install: ' + output)
    with open(os.path.join(tree.folder, 'CMakeCache.txt')) as cache:
        lines = cache.read()
    for word in ('GTest', 'MPFR', 'Python'):
        report.require(word not in lines, 'the preset install looks for ' + word)
    report.require('CMAKE_BUILD_TYPE:STRING=Release\n' in lines, 'the preset install is no release')
    root = os.path.realpath(tree.source)
    foreign = [file for file in tree.commands() if file.startswith(root) and
               not file.startswith((os.path.join(root, 'src'), os.path.join(root, 'tools', 'generate-tables')))]
    on_demand = ('/tools/accuracy/', '/tools/proof/')
    foreign = [file for file in foreign if not any(folder in file for folder in on_demand)]
    report.require(not foreign, 'the preset install compiles %s' % ', '.join(foreign))


def check_absolute_folders(report, tree, work, consumer):
    library.run('cmake', '--install', tree.folder)
    opt, prefix = os.path.join(work, 'opt', 'lib'), os.path.join(work, 'prefix')
    package = os.path.join(opt, 'pkgconfig')
    for wanted, folder in (('libdir', opt), ('includedir', os.path.join(prefix, 'include'))):
        told = pkg_config(package, '--variable=' + wanted)
        same = [os.path.normpath(path) for path in told] == [folder]
        report.require(same, '%s is %s, not %s' % (wanted, told, folder))
    with open(os.path.join(package, 'zthalf.pc')) as text:
        lines = text.read().splitlines()
    for line in ('URL: https://example.org/zthalf', 'License: Apache-2.0', 'Requires.private: tbb'):
        report.require(line in lines, 'zthalf.pc has no line "%s"' % line)
    consumer.compile(pkg_config(package, '--cflags'))
    consumer.link_and_run(pkg_config(package, '--libs'), LD_LIBRARY_PATH=opt)
    report.require(True, 'runs')
    report.require(files_below(prefix) and files_below(opt), 'nothing was installed')

    library.run('cmake', '--build', tree.folder, '--target', 'uninstall')
    for folder in (prefix, opt):
        report.require(not files_below(folder), 'left behind: %s' % files_below(folder))
    report.require(not glob.glob(os.path.join(prefix, '*', 'zthalf')), 'folders were left behind')


def check_static(report, tree, work, consumer, archive, host_archive):
    """The archive brings what it needs, by pkg-config and by CMake, and leaves no trace of the shared library."""
    prefix = os.path.join(work, 'static')
    status, output = tree.configure('-DBUILD_SHARED_LIBS=OFF', '-DCMAKE_INSTALL_LIBDIR=lib', '-DZTHALF_HOMEPAGE=',
                                    '-DCMAKE_INSTALL_PREFIX=' + prefix)
    report.require(status == 0, 'BUILD_SHARED_LIBS=OFF: ' + output)
    shutil.copy(archive, os.path.join(tree.folder, 'libzthalf.a'))
    shutil.copy(host_archive, os.path.join(tree.folder, 'libzthalf-host.a'))
    library.run('cmake', '--install', tree.folder)
    installed = files_below(prefix)
    both = {'lib/libzthalf.a', 'lib/libzthalf-host.a'}
    report.require(both <= set(installed) and not any('.so' in name for name in installed),
                   'installed as a static library: %s' % installed)
    package = os.path.join(prefix, 'lib', 'pkgconfig')
    with open(os.path.join(package, 'zthalf.pc')) as text:
        report.require('URL' not in text.read(), 'zthalf.pc has a URL that nobody gave')
    program = consumer.link_and_run(pkg_config(package, '--libs', '--static'))
    needed = library.run('readelf', '--dynamic', program)
    report.require('libtbb' in needed and 'libzthalf' not in needed, 'the program needs: ' + needed)

    user = Tree(consumer.folder, os.path.join(work, 'user'), tree.compiler)
    status, output = user.configure('-DCMAKE_PREFIX_PATH=' + prefix)
    report.require(status == 0, 'find_package of the static library: ' + output)
    library.run('cmake', '--build', user.folder, '--target', 'consumer')
    library.run(os.path.join(user.folder, 'consumer'))


def check_versions(report, tree, work):
    """Before 1.0 the CMake package serves requests for its own minor version."""
    script = os.path.join(work, 'versions.cmake')
    for wanted, served in {'0.1': True, '0.1.0': True, '0.0': False, '0.1.1': False, '0.2': False}.items():
        numbers = (wanted + '.0.0').split('.')
        with open(script, 'w') as text:
            text.write('set(CMAKE_SIZEOF_VOID_P 8)\nset(PACKAGE_FIND_VERSION %s)\n' % wanted)
            for name, number in zip(('MAJOR', 'MINOR', 'PATCH'), numbers):
                text.write('set(PACKAGE_FIND_VERSION_%s %s)\n' % (name, number))
            text.write('include(%s/zthalfConfigVersion.cmake)\n' % tree.folder)
            text.write('message(STATUS "served: ${PACKAGE_VERSION_COMPATIBLE}")\n')
        answer = 'served: TRUE' in library.run('cmake', '-P', script)
        report.require(answer == served, 'find_package(zthalf %s) is served: %s' % (wanted, answer))


def main(source, compiler, shared, archive, host_archive):
    report = library.Report('install')
    with tempfile.TemporaryDirectory() as work:
        tree = Tree(source, os.path.join(work, 'build'), compiler)
        check_preset(report, tree, work)
        for name in glob.glob(os.path.join(os.path.dirname(shared), 'libzthalf*.so*')):
            shutil.copy(name, tree.folder, follow_symlinks=False)
        consumer = Consumer(source, work, compiler)
        check_absolute_folders(report, tree, work, consumer)
        check_versions(report, tree, work)
        check_static(report, tree, work, consumer, archive, host_archive)
    report.finish()


if __name__ == '__main__':
    main(*sys.argv[1:6])
