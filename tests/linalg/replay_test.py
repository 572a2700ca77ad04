"""tools/replay.py gives the library's bits for elements of mtimes, hgemm and htrsm.

usage: replay_test.py LIBRARY SOURCE_DIRECTORY
"""
import ctypes
import itertools
import os
import random
import struct
import subprocess
import sys

SPECIALS = [0x7C00, 0xFC00, 0x7E00, 0xFE00, 0x7C01, 0xFC01, 0x8000, 0x0000, 0x7BFF, 0x0001]
NUMBER = {'half': (ctypes.c_uint16, 'e'), 'single': (ctypes.c_float, 'f'), 'double': (ctypes.c_double, 'd')}
SIZE = ctypes.c_ulong
generator = random.Random(3)


def patterns(count, specials):
    some = [0x3000 + generator.randrange(0x1400) | generator.randrange(2) << 15 for _ in range(count)]
    for _ in range(min(specials, count)):
        some[generator.randrange(count)] = generator.choice(SPECIALS)
    return some


def array(values, ctype=ctypes.c_uint16):
    return (ctype * max(1, len(values)))(*values)


class Checks:
    def __init__(self):
        self.made = self.failed = 0

    def require(self, ours, model, what):
        self.made += 1
        if ours != model:
            self.failed += 1
            print('%s: library %s, model %s' % (what, ours, model))


def value_of(replay, pattern, kind):
    """An element of the given kind that a pattern stands for."""
    x = replay.from_pattern(pattern)
    return x if kind == 'half' or replay.is_nan(x) else x * (1 + 2 ** -20)


def stored(replay, x, kind):
    """An element as ctypes takes it; NaNs of floats are quiet ones here."""
    if kind == 'half':
        return replay.pattern(x, 'e')
    return struct.unpack('<d', struct.pack('<Q', replay.pattern(replay.quieted(x), 'd')))[0] if replay.is_nan(x) else x


def check_real_products(library, replay, products, checks):
    for left, right in (('half', 'half'), ('half', 'single'), ('single', 'half'), ('half', 'double'), ('double', 'half')):
        (a_type, a_code), (b_type, b_code) = NUMBER[left], NUMBER[right]
        name = {('half', 'half'): 'P6half_tS1_S1_mmm', ('half', 'single'): 'P6half_tPfS1_mmm',
                ('single', 'half'): 'PfP6half_tS2_mmm', ('half', 'double'): 'P6half_tPdS1_mmm',
                ('double', 'half'): 'PdP6half_tS2_mmm'}[left, right]
        function = getattr(library, '_ZN11half_vector6mtimesE' + name)
        code = 'd' if 'double' in (left, right) else 'f'
        for k, specials in itertools.product((2, 7, 8, 9, 255, 257, 600), (0, 1, 4)):
            row = [replay.rounded(value_of(replay, p, left), a_code) for p in patterns(k, specials)]
            column = [replay.rounded(value_of(replay, p, right), b_code) for p in patterns(k, specials)]
            if left != 'half':
                row = [replay.quieted(x) if replay.is_nan(x) else x for x in row]
            if right != 'half':
                column = [replay.quieted(x) if replay.is_nan(x) else x for x in column]
            out = array([0])
            function(array([stored(replay, x, left) for x in row], a_type),
                     array([stored(replay, x, right) for x in column], b_type), out, SIZE(1), SIZE(k), SIZE(1))
            model = products.product_element(products.Unit(code), 0.0, row, column, lambda line: None)
            checks.require(out[0], replay.pattern(replay.rounded(model, 'e'), 'e'), 'mtimes %s %s %d' % (left, right, k))


def check_complex_products(library, replay, products, checks):
    function = library._ZN11half_vector6mtimesEPSt7complexI6half_tES3_S3_mmm
    for k, specials in itertools.product((2, 9, 40, 300), (0, 1, 3, 40)):
        row, column = patterns(2 * k, specials), patterns(2 * k, specials)
        out = array([0, 0])
        function(array(row), array(column), out, SIZE(1), SIZE(k), SIZE(1))
        pairs = [[(replay.from_pattern(x[2 * l]), replay.from_pattern(x[2 * l + 1])) for l in range(k)]
                 for x in (row, column)]
        model = products.product_element(products.ComplexUnit('f'), (0.0, 0.0), *pairs, lambda line: None)
        checks.require(list(out), [replay.pattern(replay.rounded(x, 'e'), 'e') for x in model], 'complex mtimes %d' % k)


def check_hgemm(library, replay, products, checks):
    function = library._ZN11half_vector5hgemmEPcS0_mmm6half_tPS1_mS2_mS1_S2_m
    half = ctypes.c_uint16
    for transa, k, specials in itertools.product('NT', (1, 8, 100, 300), (0, 1, 4)):
        for alpha, beta in itertools.product((0x3C00, 0xBC00, 0x4123, 0x7E00), (0x0000, 0x3C00, 0x4000)):
            row, column, c = patterns(k, specials), patterns(k, specials), patterns(1, specials // 4)
            out = array(c)
            option = ctypes.create_string_buffer(transa.encode())
            function(option, option, SIZE(1), SIZE(1), SIZE(k), half(alpha), array(row), SIZE(1), array(column), SIZE(k),
                     half(beta), out, SIZE(1))
            numbers = [[replay.from_pattern(p) for p in x] for x in (row, column, [alpha, beta] + c)]
            model = products.hgemm_element(transa != 'N', numbers[0], numbers[1], *numbers[2], lambda line: None)
            checks.require(out[0], replay.pattern(replay.rounded(model, 'e'), 'e'), 'hgemm %s %d' % (transa, k))


def check_htrsm(library, replay, products, checks):
    function = library._ZN11half_vector5htrsmEPcS0_S0_S0_mm6half_tPS1_mS2_m
    for side, uplo, transa, diag in itertools.product('LR', 'UL', 'NT', 'NU'):
        for order, specials, alpha in itertools.product((1, 2, 9, 40), (0, 2), (0x3C00, 0x4123)):
            a, b = patterns(order * order, specials), patterns(order, specials)
            out = array(b)
            options = [ctypes.create_string_buffer(x.encode()) for x in (side, uplo, transa, diag)]
            m, n = (order, 1) if side == 'L' else (1, order)
            function(*options, SIZE(m), SIZE(n), ctypes.c_uint16(alpha), array(a), SIZE(order), out, SIZE(m))
            numbers = [[replay.from_pattern(p) for p in x] for x in (a, b)]
            model = products.triangular_vector(side == 'L', uplo == 'U', transa == 'N', diag == 'N',
                                               replay.from_pattern(alpha), numbers[0], order, numbers[1],
                                               lambda line: None)
            checks.require(list(out), [replay.pattern(replay.rounded(x, 'e'), 'e') for x in model],
                           'htrsm %s%s%s%s %d' % (side, uplo, transa, diag, order))


def check_command(tool, checks):
    with open('replay-row.txt', 'w') as file:
        file.write('1 2 3')
    shown = subprocess.run([sys.executable, '-B', tool, '--op', 'mtimes', 'replay-row.txt', '-'], input='1 1 0x4000',
                           capture_output=True, text=True, check=True).stdout.splitlines()
    os.remove('replay-row.txt')
    checks.require(shown, ['[0, 3) lane 0 = 1.0, output = 1.0', '[0, 3) lane 1 = 2.0, output = 3.0',
                           '[0, 3) lane 2 = 6.0, output = 9.0', 'result 0 = 0x4880 9.0'], 'shown')


def main(library_path, source):
    library = ctypes.CDLL(library_path)
    tool = os.path.join(source, 'tools', 'replay.py')
    sys.path.insert(0, os.path.dirname(tool))
    sys.dont_write_bytecode = True
    replay, products = __import__('replay'), __import__('replay_products')
    checks = Checks()
    check_real_products(library, replay, products, checks)
    check_complex_products(library, replay, products, checks)
    check_hgemm(library, replay, products, checks)
    check_htrsm(library, replay, products, checks)
    check_command(tool, checks)
    print('replay: %d checks, %d failed' % (checks.made, checks.failed))
    return checks.failed != 0


if __name__ == '__main__':
    sys.exit(main(*sys.argv[1:3]))
