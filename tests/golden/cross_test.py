"""The golden results and the proof on 64-bit ARM: builds both with the cross compiler and runs them under the emulator.

usage: cross_test.py SOURCE_DIRECTORY
"""
import os
import shutil
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(HERE, '..', 'abi'))
import library  # noqa: E402

NEEDED = ('aarch64-linux-gnu-g++', 'qemu-aarch64-static')
TBB = '/usr/lib/aarch64-linux-gnu/cmake/TBB'


def main(source):
    missing = [tool for tool in NEEDED if not shutil.which(tool)] + ([] if os.path.isdir(TBB) else [TBB])
    if missing:
        library.skip('no cross build here: missing %s' % ', '.join(missing))
    os.chdir(source)
    library.run('cmake', '--preset', 'aarch64')
    library.run('cmake', '--build', '--preset', 'aarch64', '--target', 'result_sweep', 'zthalf_proof')
    tests = '^(golden/(results|flushed)@base|proof/proof)$'
    print(library.run('ctest', '--test-dir', 'build/aarch64', '--verbose', '-R', tests, '--no-tests=error'))


if __name__ == '__main__':
    main(sys.argv[1])
