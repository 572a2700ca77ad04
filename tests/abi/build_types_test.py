"""The library is as wide and as exact in every build type as in a release, and with a distribution's flags.

usage: build_types_test.py SOURCE_DIRECTORY CXX_COMPILER        (GCC on x86-64)
"""
import os
import sys
import tempfile

import library
import vectorised_test
from configured import Tree, optimisation

DISTRIBUTION = '-O2 -g'
# Compiled in seconds, with vector passes and nothing else.
SAMPLES = ('src/frame/unary/rounding.cpp', 'src/frame/unary/sign_and_class.cpp')

CHANGES_BITS = ('-ffast-math', '-Ofast', '-O2 -funsafe-math-optimizations', '-mfpmath=387', '-ffp-model=fast')
CHANGES_NOTHING = '-mtune=generic -ffp-contract=fast -fno-fast-math -fno-plt -ffunction-sections'
NAMES_PROCESSOR = ('-march=nocona -mtune=haswell', '-march=x86-64-v2', '-O2 -mfma')


def flags_of_library(tree, source):
    """The commands of what goes into the library."""
    inside = os.path.join(os.path.realpath(source), 'src') + os.sep
    return {file: command for file, command in tree.commands().items() if file.startswith(inside)}


def check_levels(report, tree, source, wanted, what):
    commands = flags_of_library(tree, source)
    report.require(len(commands) > 20, '%s: %d sources of the library' % (what, len(commands)))
    levels = sorted({str(optimisation(command)) for command in commands.values()})
    report.require(levels == [wanted], '%s: compiled with %s, not %s' % (what, ' and '.join(levels), wanted))
    report.require(all('-ffp-contract=off' in command for command in commands.values()), what + ': may be fused')
    fortified = sorted({'-D_FORTIFY_SOURCE=2' in command for command in commands.values()})
    report.require(fortified == [wanted == '-O3'], '%s: checks of the C library: %s' % (what, fortified))


def check_passes(report, tree, source, work):
    """The passes of a few sources, judged as those of the whole library are."""
    scalar = vectorised_test.expectations()[1]
    for sample in SAMPLES:
        result = os.path.join(work, 'sample.o')
        done = tree.compile(os.path.join(source, sample), result)
        if done.returncode != 0:
            report.require(False, '%s does not compile:\n%s' % (sample, done.stdout))
            continue
        found = {}
        for function, body in library.functions(result):
            match = vectorised_test.PASS.match(function)
            if match:
                wide = vectorised_test.works_packed(body, match.group(2))
                found.setdefault(vectorised_test.shortened(match.group(1)), {})[match.group(2)] = wide
        report.require(found, 'there is no pass in ' + sample)
        for name, levels in found.items():
            for level, wide in levels.items():
                report.require(wide or level in scalar.get(name, ()) or len(levels) == 1,
                               '%s, compiled as by a distribution, is scalar at level %s: %s' % (sample, level, name))


def main(source, compiler):
    report = library.Report('build types')
    with tempfile.TemporaryDirectory() as work:
        tree = Tree(source, os.path.join(work, 'build'), compiler)
        status, output = tree.configure('-DCMAKE_BUILD_TYPE=None', '-DZTHALF_BUILD_TESTS=OFF',
                                        '-DZTHALF_BUILD_EXAMPLES=OFF', CXXFLAGS=DISTRIBUTION)
        report.require(status == 0 and 'Warning' not in output, 'as a distribution configures: ' + output)
        if status == 0:
            report.require(any('-g' in command for command in tree.commands().values()), 'the flags were not used')
            check_levels(report, tree, source, '-O3', 'None with ' + DISTRIBUTION)
            check_passes(report, tree, source, work)

        levels = {'RelWithDebInfo': '-O3', 'MinSizeRel': '-O3', 'Release': '-O3', 'Debug': '-O2'}
        for build_type, level in levels.items():
            status, output = tree.configure('-DCMAKE_BUILD_TYPE=' + build_type)
            report.require(status == 0, build_type + ': ' + output)
            check_levels(report, tree, source, level, build_type)
        status, output = tree.configure('-DCMAKE_BUILD_TYPE=Release', '-DCMAKE_CXX_FLAGS=-D_FORTIFY_SOURCE=3')
        kept = all('-U_FORTIFY_SOURCE' not in c for c in flags_of_library(tree, source).values())
        report.require(status == 0 and kept, 'a distribution\'s own level of checks is lowered')

        # Foreign flags: by the variable of all build types, by that of one, and from the environment at first.
        for flags in CHANGES_BITS:
            status, output = tree.configure('-DCMAKE_CXX_FLAGS=' + flags)
            report.require(status != 0 and "'%s' would change results" % flags.split()[-1] in output,
                           '%s was taken: %s' % (flags, output))
        status, output = tree.configure('-DCMAKE_CXX_FLAGS=', '-DCMAKE_CXX_FLAGS_RELEASE=-O2 -ffast-math')
        report.require(status != 0 and "'-ffast-math' would" in output, 'taken for one build type: ' + output)
        status, output = tree.configure('-DCMAKE_CXX_FLAGS=', '-DCMAKE_CXX_FLAGS_RELEASE=-O2',
                                        '-DCMAKE_EXE_LINKER_FLAGS=-ffast-math')
        report.require(status != 0 and "'-ffast-math' would" in output, 'taken for linking: ' + output)
        status, output = tree.configure('-DCMAKE_EXE_LINKER_FLAGS=')
        report.require(status == 0, 'flags of the build type: ' + output)
        fresh = Tree(source, os.path.join(work, 'fresh'), compiler)
        status, output = fresh.configure('-DZTHALF_BUILD_TESTS=OFF', CXXFLAGS='-O2 -ffast-math')
        report.require(status != 0 and "'-ffast-math' would" in output, 'taken from the environment: ' + output)
        for flags in (CHANGES_NOTHING,) + NAMES_PROCESSOR:
            status, output = tree.configure('-DCMAKE_CXX_FLAGS=' + flags)
            warned = 'changes no result' in output
            report.require(status == 0, '%s was refused: %s' % (flags, output))
            report.require(warned == (flags in NAMES_PROCESSOR), '%s: warned: %s' % (flags, warned))
    report.finish()


if __name__ == '__main__':
    main(*sys.argv[1:3])
