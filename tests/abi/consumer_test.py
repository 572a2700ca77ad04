"""The installed tree serves a program that knows nothing else: through find_package and through pkg-config. So it does
the README's example, which prints what the README says.

usage: consumer_test.py SOURCE_DIRECTORY BUILD_DIRECTORY CXX_COMPILER
"""
import glob
import os
import sys
import tempfile

import library


def main(source, build, compiler):
    report = library.Report('consumer')
    consumer = os.path.join(source, 'tests', 'consumer')
    # The C compiler that belongs to the C++ compiler.
    c_compiler = compiler.replace('clang++', 'clang').replace('g++', 'gcc')
    with tempfile.TemporaryDirectory() as work:
        prefix, tree = os.path.join(work, 'prefix'), os.path.join(work, 'build')
        library.run('cmake', '--install', build, '--prefix', prefix)
        library.run('cmake', '-S', consumer, '-B', tree, '-G', 'Ninja', '-DCMAKE_PREFIX_PATH=' + prefix,
                    '-DCMAKE_CXX_COMPILER=' + compiler, '-DCMAKE_C_COMPILER=' + c_compiler)
        library.run('cmake', '--build', tree)
        for program in ('consumer', 'replaced_entry', 'replaced_operation'):
            library.run(os.path.join(tree, program))
            report.require(True, program)
        configured = library.run('grep', 'zthalf_DIR', os.path.join(tree, 'CMakeCache.txt'))
        report.require(prefix in configured, 'find_package found another zthalf: ' + configured)

        package = glob.glob(os.path.join(prefix, 'lib*', '**', 'pkgconfig'), recursive=True)
        report.require(len(package) == 1, 'installed pkg-config files: %s' % package)
        os.environ['PKG_CONFIG_PATH'] = package[0]
        flags = library.run('pkg-config', '--cflags', '--libs', 'zthalf').split()
        library.run('pkg-config', '--atleast-version=0.1', 'zthalf')
        program, c_object = os.path.join(work, 'by_pkg_config'), os.path.join(work, 'lifecycle_from_c.o')
        library.run(c_compiler, '-std=c99', '-pedantic-errors', *flags, '-c', os.path.join(consumer, 'lifecycle_from_c.c'), '-o', c_object)
        library.run(compiler, '-std=c++17', os.path.join(consumer, 'consumer.cpp'),
                    os.path.join(consumer, 'lifecycle_from_cpp.cpp'), c_object, '-o', program, *flags)
        os.environ['LD_LIBRARY_PATH'] = os.path.dirname(package[0])
        library.run(program)
        report.require(True, 'by pkg-config')
        os.environ.update(CMAKE_PREFIX_PATH=prefix, CMAKE_GENERATOR='Ninja', CXX=compiler)
        library.run('sh', os.path.join(source, 'debian', 'tests', 'readme-example'))
        report.require(True, 'the README\'s example')

        installed = [os.path.relpath(os.path.join(parent, name), prefix)
                     for parent, _, names in os.walk(prefix) for name in names]
        public = [os.path.relpath(os.path.join(parent, name), source)
                  for parent, _, names in os.walk(os.path.join(source, 'include')) for name in names]
        for name in public:
            report.require(name in installed, '%s was not installed' % name)
        for name in installed:
            report.require('libzthalf' in name or 'cmake/zthalf' in name or name.endswith('zthalf.pc') or name in public or
                           name == os.path.join('share', 'doc', 'zthalf', 'LICENSE'),
                           '%s was installed, and should not be' % name)
    report.finish()


if __name__ == '__main__':
    main(*sys.argv[1:4])
