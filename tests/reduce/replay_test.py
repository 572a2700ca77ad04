"""tools/replay.py gives the library's bits.

usage: replay_test.py LIBRARY SOURCE_DIRECTORY
"""
import ctypes
import itertools
import math
import os
import random
import subprocess
import sys

SHAPES = [('whole', [1]), ('whole', [256]), ('whole', [257]), ('whole', [1000]), ('whole', [4111]),
          ('column', [4, 3]), ('column', [300, 5]), ('column', [3, 2, 4, 3]), ('column', [0, 2, 2]),
          ('row', [7]), ('row', [4, 3]), ('row', [3, 300]), ('row', [2, 3, 2, 3]), ('row', [3, 0])]
SPECIALS = [0x7C00, 0xFC00, 0x7E00, 0xFE00, 0x7C01, 0xFC01, 0x8000, 0x7BFF]
ENUM = {'half': 0, 'single': 1, 'double': 2}


def data(count, specials, generator):
    patterns = [0x3800 + generator.randrange(0x800) | generator.randrange(2) << 15 for _ in range(count)]
    for _ in range(min(specials, count)):
        patterns[generator.randrange(count)] = generator.choice(SPECIALS)
    return patterns


def by_library(library, op, patterns, dims, form, accumulator, omits_nan):
    function = getattr(library, '_ZN11half_vector%d%sEPvS0_mPmbbb13FloatTypeEnumS2_' % (len(op), op))
    outputs = math.prod(dims[1 if form != 'row' else 0::2])
    double = accumulator == 'double'
    source = (ctypes.c_uint16 * max(1, len(patterns)))(*patterns)
    results = ((ctypes.c_uint64 if double else ctypes.c_uint16) * outputs)()
    function(source, results, ctypes.c_ulong(len(dims)), (ctypes.c_ulong * len(dims))(*dims),
             ctypes.c_bool(form != 'row'), ctypes.c_bool(False), ctypes.c_bool(omits_nan), ENUM[accumulator],
             2 if double else 0)
    return ['0x%0*X' % (16 if double else 4, bits) for bits in results]


def by_model(replay, op, patterns, dims, form, accumulator, omits_nan):
    reduction = replay.Reduction(op, accumulator, omits_nan)
    results = replay.reduced(reduction, [replay.from_pattern(p) for p in patterns], dims, form, lambda line: None)
    return [replay.hexadecimal(x, 'd' if accumulator == 'double' else 'e') for x in results]


def main(library_path, source):
    library = ctypes.CDLL(library_path)
    tool = os.path.join(source, 'tools', 'replay.py')
    sys.path.insert(0, os.path.dirname(tool))
    sys.dont_write_bytecode = True
    replay = __import__('replay')
    generator = random.Random(1)
    checks = failures = 0
    for (form, dims), op, accumulator, omits_nan in itertools.product(SHAPES, ('sum', 'prod', 'mean'), ENUM, (0, 1)):
        specials = generator.choice([0, 1, 2, 5, 60])
        patterns = data(math.prod(dims), specials, generator)
        ours = by_library(library, op, patterns, dims, form, accumulator, omits_nan)
        model = by_model(replay, op, patterns, dims, form, accumulator, omits_nan)
        checks += 1
        if ours != model:
            failures += 1
            print('%s %s %s in %s, omitting NaNs: %d: library %s, model %s' %
                  (op, form, dims, accumulator, omits_nan, ours[:5], model[:5]))
    shown = subprocess.run([sys.executable, '-B', tool, '--shape', '300', '-'], input='1 ' * 300, capture_output=True,
                           text=True, check=True).stdout
    wanted = ['output 0', '[0, 150) chain = 0x58B0 150.0', '[150, 300) chain = 0x58B0 150.0',
              '[0, 300) left with right = 0x5CB0 300.0', 'result 0 = 0x5CB0 300.0']
    checks += 1
    if [line.strip() for line in shown.splitlines()] != wanted:
        failures += 1
        print('shown:\n' + shown)
    print('replay: %d checks, %d failed' % (checks, failures))
    return failures != 0


if __name__ == '__main__':
    sys.exit(main(*sys.argv[1:3]))
