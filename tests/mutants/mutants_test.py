#!/usr/bin/env python3
"""A test of the tests: plants small faults in a copy of the tree, one at a time, and demands that a test turns red.

usage: mutants_test.py [--list | --check] [--only TEXT] [--jobs N] [--work DIRECTORY]

  --list   print the faults and end
  --check  only see whether each fault still applies: quick, builds nothing
  --only   try the faults with TEXT in their names
  --work   where the copy and its builds go, and stay for the next run (default build/mutants)

A fault that no test notices, that no longer applies, or that does not compile is a failure, and so is a test that is
red before anything was planted.
"""
import argparse
import filecmp
import glob
import json
import os
import re
import shutil
import subprocess
import sys
import time

HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = os.path.dirname(os.path.dirname(HERE))
sys.path.insert(0, HERE)
sys.dont_write_bytecode = True
from faults import FAULTS  # noqa: E402

COPIED = ('CMakeLists.txt', 'CMakePresets.json', 'cmake', 'data', 'examples', 'include', 'src', 'tests', 'tools')
# A sweep that only repeats what a test shows at another level, and the build for another processor.
LEFT_OUT = {False: '@v[34]$|aarch64', True: 'aarch64'}
TIMEOUT = 600  # seconds for one test: a fault may make a loop endless


class Failure(Exception):
    pass


def run(*command):
    """(status, output)"""
    done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
    return done.returncode, done.stdout


def refresh_copy(tree):
    """Brings the copy up to date and touches nothing that is the same, so that builds go on from the last run."""
    wanted = set()
    for top in COPIED:
        origin = os.path.join(ROOT, top)
        files = [origin] if os.path.isfile(origin) else [
            os.path.join(parent, name) for parent, folders, names in os.walk(origin) for name in names
            if '__pycache__' not in parent]
        for file in files:
            copy = os.path.join(tree, os.path.relpath(file, ROOT))
            wanted.add(copy)
            if not os.path.exists(copy) or not filecmp.cmp(file, copy, shallow=False):
                os.makedirs(os.path.dirname(copy), exist_ok=True)
                shutil.copy(file, copy)
    for parent, _, names in os.walk(tree):
        for name in names:
            if os.path.join(parent, name) not in wanted:
                os.remove(os.path.join(parent, name))


class Build:
    """One build of the copy: as the release is, or with little optimisation."""

    def __init__(self, work, release, jobs):
        self.tree, self.release, self.jobs = os.path.join(work, 'tree'), release, str(jobs)
        self.folder = os.path.join(work, 'release' if release else 'plain')
        kind = ['-DCMAKE_BUILD_TYPE=Release'] if release else ['-DCMAKE_BUILD_TYPE=Debug', '-DCMAKE_CXX_FLAGS_DEBUG=-O1']
        status, output = run('cmake', '-G', 'Ninja', '-S', self.tree, '-B', self.folder, '-DCMAKE_CXX_COMPILER=g++',
                             '-DZTHALF_BUILD_EXAMPLES=OFF', *kind)
        if status != 0:
            raise Failure('cannot configure:\n' + output[-2000:])

    def ctest(self, tests, *options):
        return run('ctest', '--test-dir', self.folder, '-R', tests, '-E', LEFT_OUT[self.release], '-LE', 'long|mutants',
                   '--no-tests=error', *options)

    def targets_of(self, tests):
        """The files in the build folder that the tests are called with: ctest's own list leaves out the commands of
        programs that are not built yet."""
        status, output = self.ctest(tests, '--show-only=json-v1')
        if status != 0:
            raise Failure('no test is called ' + tests)
        names = {test['name'] for test in json.loads(output)['tests']}
        inside, targets = self.folder + os.sep, set()
        for file in glob.glob(os.path.join(self.folder, '**', 'CTestTestfile.cmake'), recursive=True):
            with open(file) as text:
                for name, call in re.findall(r'^add_test\(\[=*\[(.*?)\]=*\] (.*)\)$', text.read(), re.M):
                    words = re.findall(r'"([^"]*)"', call) if name in names else []
                    targets |= {os.path.normpath(word)[len(inside):] for word in words if word.startswith(inside)}
        return sorted(targets)

    def make(self, targets):
        if not targets:  # a test of the sources themselves
            return
        status, output = run('cmake', '--build', self.folder, '--parallel', self.jobs, '--target', *targets)
        if status != 0:
            errors = [line for line in output.split('\n') if 'error' in line]
            raise Failure('does not build:\n' + '\n'.join(errors[:5] or output.split('\n')[-10:]))

    def red(self, tests):
        """The names of the tests that fail."""
        status, output = self.ctest(tests, '--parallel', self.jobs, '--timeout', str(TIMEOUT))
        failed = re.findall(r'^\s*\d+ - (\S+) \((?:Failed|Timeout|SEGFAULT|Subprocess|Exit|Child|ILLEGAL|BUS|Not Run).*\)',
                            output, re.M)
        if (status != 0) != bool(failed):
            raise Failure('cannot read the result of ctest:\n' + output[-1000:])
        return failed


def text_for(tree, fault):
    """The text of the fault's file, in which its stretch stands once."""
    path = os.path.join(tree, fault.file)
    if not os.path.exists(path):
        raise Failure('no longer applies: there is no ' + fault.file)
    with open(path) as file:
        text = file.read()
    count = text.count(fault.old)
    if count != 1:
        raise Failure('no longer applies: its text occurs %d times in %s' % (count, fault.file))
    return text


def check(faults):
    """The number of faults that no longer apply, each of which is named."""
    stale = 0
    for fault in faults:
        try:
            text_for(ROOT, fault)
        except Failure as failure:
            print('FAILED: %s: %s' % (fault.name, failure))
            stale += 1
    print('%d faults, %d no longer apply' % (len(faults), stale))
    return stale


class planted:
    """The fault in its file, for as long as the block lasts."""

    def __init__(self, tree, fault):
        self.fault, self.path = fault, os.path.join(tree, fault.file)
        self.original = text_for(tree, fault)

    def __enter__(self):
        with open(self.path, 'w') as text:
            text.write(self.original.replace(self.fault.old, self.fault.new))

    def __exit__(self, *_):
        with open(self.path, 'w') as text:
            text.write(self.original)


def prepare(work, release, faults, jobs):
    """A build in which all tests of these faults are green, so that later whatever is red is red for the fault."""
    tests = '|'.join(sorted({fault.tests for fault in faults}))
    print('without a fault, %s: ' % ('as the release is' if release else 'little optimised'), end='', flush=True)
    build = Build(work, release, jobs)
    build.make(build.targets_of(tests))
    red = build.red(tests)
    if red:
        raise Failure('red before anything was planted: ' + ', '.join(red))
    print('green', flush=True)
    return build


def try_fault(build, fault):
    """What noticed the fault. The restored file is compiled again together with the next fault."""
    with planted(build.tree, fault):
        build.make(build.targets_of(fault.tests))
        red = build.red(fault.tests)
    if not red:
        raise Failure('NOT NOTICED by any of the tests ' + fault.tests)
    return red


def try_all(work, release, faults, jobs):
    """How many were caught."""
    if not faults:
        return 0
    try:
        build = prepare(work, release, faults, jobs)
    except Failure as failure:
        print('FAILED: %s' % failure)
        return 0
    caught = 0
    for number, fault in enumerate(faults, 1):
        start = time.monotonic()
        print('%2d/%d %-52s ' % (number, len(faults), fault.name), end='', flush=True)
        try:
            red = try_fault(build, fault)
            outcome = 'caught by ' + ', '.join(red[:4]) + (' and %d more' % (len(red) - 4) if len(red) > 4 else '')
            caught += 1
        except Failure as failure:
            outcome = 'FAILED: %s' % failure
        print('%s (%d s)' % (outcome, time.monotonic() - start), flush=True)
    return caught


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument('--list', action='store_true')
    parser.add_argument('--check', action='store_true')
    parser.add_argument('--only', default='')
    parser.add_argument('--jobs', type=int, default=os.cpu_count())
    parser.add_argument('--work', default=os.path.join(ROOT, 'build', 'mutants'))
    options = parser.parse_args()

    chosen = [fault for fault in FAULTS if options.only in fault.name]
    if options.list or not chosen:
        print('\n'.join('%-55s %s' % (fault.name, fault.file) for fault in chosen or FAULTS))
        sys.exit(0 if options.list else 'no fault has "%s" in its name' % options.only)

    if options.check:
        sys.exit(1 if check(chosen) else 0)

    work = os.path.abspath(options.work)
    refresh_copy(os.path.join(work, 'tree'))
    caught = sum(try_all(work, release, [fault for fault in chosen if fault.release == release], options.jobs)
                 for release in (False, True))
    print('%d faults planted, %d caught' % (len(chosen), caught))
    sys.exit(0 if caught == len(chosen) else 1)


if __name__ == '__main__':
    main()
