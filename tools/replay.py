#!/usr/bin/env python3
"""Replays a sum, product or mean of halves, or an element of a matrix product or triangular solve: which values meet in
which order, and what each step rounds to.

  tools/replay.py --shape 1000 --form whole --accumulator half FILE
  tools/replay.py --shape 4x3 --form column --accumulator single --op mean --omit-nan FILE
  tools/replay.py --op mtimes ROW COLUMN
  tools/replay.py --op hgemm --options N --alpha -1 --beta 1 --c 0x3C00 ROW COLUMN
  tools/replay.py --op htrsm --options LLNU --alpha 1 A VECTOR

FILE ('-' for standard input) holds the elements in memory order, separated by white space: patterns such as 0x3C00, or
numbers, which are rounded to half. --shape gives the dimensions, the first one fastest in memory, reduced and kept ones
by turns: --form column reduces the first one, --form row keeps it, --form whole reduces the only one. Prints for each
output its tree or chain with the value of every part, and the result; with --results the results alone, as patterns.

mtimes: the output of a ROW of the left operand and a COLUMN of the right one, each a file of as many elements. --left and
--right say what they are made of (half, single, double); an element with a comma, such as 1,-2, is a complex number.
hgemm: the same with the element of c; options is transa, and for T the row is the stretch of a that hgemm takes for it.
htrsm: A is the triangular matrix by columns, VECTOR the column of B (side L) or the row of B (side R); options are side,
uplo, transa and diag.

The model is written to be read. docs/reductions.md and docs/linear-algebra.md tell the same in words.
"""
import argparse
import math
import struct
import sys
from collections import namedtuple

LEAF = 256

# A number is a Python float; a NaN is its sign and the ten bits of fraction it has, or would have, in half.
NaN = namedtuple('NaN', 'negative fraction')
QUIET = 0x200
DEFAULT_NAN = NaN(False, QUIET)


def is_nan(x):
    return isinstance(x, NaN)


def quieted(x):
    return NaN(x.negative, x.fraction | QUIET)


def from_pattern(p):
    if p & 0x7FFF > 0x7C00:
        return NaN(p >> 15 == 1, p & 0x3FF)
    return struct.unpack('<e', struct.pack('<H', p))[0]


def rounded(x, code):
    """x to nearest, ties to even, in the format that struct calls code: e is half, f single, d double."""
    if is_nan(x):
        return NaN(x.negative, QUIET) if code == 'e' else x  # a half forgets the rest of the fraction
    try:
        return struct.unpack('<' + code, struct.pack('<' + code, x))[0]
    except OverflowError:
        return math.copysign(math.inf, x)


def settled(operation, first, second):
    """An operation of the defining unit: a signalling NaN before a quiet one, the first operand's before the second's."""
    for x in (first, second):
        if is_nan(x) and not x.fraction & QUIET:
            return quieted(x)
    for x in (first, second):
        if is_nan(x):
            return x
    result = operation(first, second)
    return DEFAULT_NAN if math.isnan(result) else result


def divided(x, y):
    if y == 0:
        return math.nan if x == 0 else math.copysign(math.inf, x) * math.copysign(1, y)
    return x / y


class Reduction:
    """One kind of reduction. A folded value is a pair: what was folded, and how many elements went into it."""

    def __init__(self, op, accumulator, omits_nan):
        self.op, self.accumulator, self.omits_nan = op, accumulator, omits_nan
        self.identity = 1.0 if op == 'prod' else 0.0

    def step(self, first, second):
        """One addition or multiplication. Sums of halves fit a double, so rounding that to single is the one rounding of
        a single addition; half accumulators round the single to half."""
        operation = (lambda a, b: a * b) if self.op == 'prod' else (lambda a, b: a + b)
        result = settled(operation, first, second)
        if self.accumulator != 'double':
            result = rounded(result, 'f')
        return rounded(result, 'e') if self.accumulator == 'half' else result

    def met(self, first, second):
        """A step of a sum or product that omits NaNs looks at both operands; that of a mean does not."""
        if self.omits_nan and self.op != 'mean':
            if is_nan(first):
                return self.identity if is_nan(second) else second
            if is_nan(second):
                return first
        return self.step(first, second)

    def start(self):
        return self.identity, 0

    def element(self, folded, x):
        value, count = folded
        if self.omits_nan and self.op == 'mean' and is_nan(x):
            return folded
        return self.met(value, x), count + 1

    def chain(self, elements, folded):
        for x in elements:
            folded = self.element(folded, x)
        return folded

    def joined(self, left, right):
        return self.met(left[0], right[0]), left[1] + right[1]

    def finished(self, total, partial):
        """A tree's result joins its output. Of two NaNs half accumulators take the tree's."""
        first, second = (partial, total) if self.accumulator == 'half' else (total, partial)
        return self.met(first[0], second[0]), total[1] + partial[1]

    def result(self, folded):
        value, count = folded
        if self.op == 'mean':
            value = settled(divided, value, float(count))
            if self.accumulator == 'single':
                value = rounded(value, 'f')
        return value if self.accumulator == 'double' else rounded(value, 'e')


def tree(r, elements, begin, show, depth=1):
    """The tree over elements, of which the first is number `begin`: halves, the first one the shorter, down to 256."""
    n = len(elements)
    if n <= LEAF:
        folded = r.chain(elements, r.start())
        kind = 'chain'
    else:
        left = tree(r, elements[:n // 2], begin, show, depth + 1)
        right = tree(r, elements[n // 2:], begin + n // 2, show, depth + 1)
        folded = r.joined(left, right)
        kind = 'left with right'
    show('%s[%d, %d) %s = %s' % ('  ' * depth, begin, begin + n, kind, text(r, folded[0])))
    return folded


def reduced(r, elements, dims, form, show):
    """The results in the order of the outputs."""
    if form == 'whole':
        show('output 0')
        return [r.result(tree(r, elements, 0, show))]
    kept_from = 1 if form == 'column' else 0
    run = dims[0] if form == 'column' else 1
    outputs, combinations = 1, 1
    for position, size in enumerate(dims):
        if position % 2 == kept_from:
            outputs *= size
        elif position > 0:
            combinations *= size
    runs = [[] for _ in range(outputs)]  # where the runs of each output begin, in ascending order
    for offset in range(0, math.prod(dims), run) if run > 0 else []:
        rest, output, scale = offset, 0, 1
        for position, size in enumerate(dims):
            rest, index = divmod(rest, size)
            if position % 2 == kept_from:
                output, scale = output + index * scale, scale * size
        runs[output].append(offset)
    results = []
    for output in range(outputs):
        show('output %d' % output)
        folded = r.start()
        if form == 'row':
            folded = r.chain([elements[offset] for offset in runs[output]], folded)
            show('  chain of %d = %s' % (len(runs[output]), text(r, folded[0])))
        for offset in (runs[output] if run > 0 else [0] * combinations) if form == 'column' else []:
            folded = r.finished(folded, tree(r, elements[offset:offset + run], offset, show, 2))
            show('  so far = %s' % text(r, folded[0]))
        results.append(r.result(folded))
    return results


def pattern(x, code):
    """The bits of a value in the format that struct calls code."""
    integer, sign, infinity, shift = {'e': ('H', 15, 0x7C00, 0), 'f': ('I', 31, 0x7F800000, 13),
                                      'd': ('Q', 63, 0x7FF0000000000000, 42)}[code]
    if is_nan(x):
        return x.negative << sign | infinity | x.fraction << shift
    return struct.unpack('<' + integer, struct.pack('<' + code, x))[0]


def hexadecimal(x, code):
    return '0x%0*X' % ({'e': 4, 'f': 8, 'd': 16}[code], pattern(x, code))


def text(r, x):
    code = {'half': 'e', 'single': 'f', 'double': 'd'}[r.accumulator]
    return '%s %s' % (hexadecimal(x, code), ('-NaN' if x.negative else 'NaN') if is_nan(x) else repr(x))


def element(word):
    if word.lower().startswith('0x'):
        return from_pattern(int(word, 16))
    value = float(word)
    return DEFAULT_NAN if math.isnan(value) else rounded(value, 'e')


def number(word, code):
    """An element of the given type, in the working type's terms: a pair if it has a comma."""
    if ',' in word:
        return tuple(number(part, code) for part in word.split(','))
    if code == 'e':
        return element(word)
    return rounded(DEFAULT_NAN if math.isnan(float(word)) else float(word), code)


def numbers(path, code):
    with (sys.stdin if path == '-' else open(path)) as source:
        return [number(word, code) for word in source.read().split()]


def replayed_element(wanted, error, show):
    """The results of mtimes, hgemm and htrsm."""
    import replay_products as products
    codes = {'half': 'e', 'single': 'f', 'double': 'd'}
    first = numbers(wanted.file, codes[wanted.left])
    second = numbers(wanted.second, codes[wanted.right])
    alpha, beta, c = (element(word) for word in (wanted.alpha, wanted.beta, wanted.c))
    letters = [letter.lower() for letter in wanted.options]
    if wanted.op == 'htrsm':
        if len(letters) != 4 or len(first) != len(second) ** 2:
            error('htrsm takes four options, and a matrix of the vector\'s order')
        if alpha == 0:
            return [0.0] * len(second)
        left, upper, plain, diagonal = (letter == true for letter, true in zip(letters, 'lunn'))
        solved = products.triangular_vector(left, upper, plain, diagonal, alpha, first, len(second), second, show)
        return [rounded(x, 'e') for x in solved]
    if len(first) != len(second):
        error('row and column have different lengths')
    if wanted.op == 'hgemm':
        return [rounded(products.hgemm_element(letters[:1] != ['n'], first, second, alpha, beta, c, show), 'e')]
    code = 'd' if 'double' in (wanted.left, wanted.right) else 'f'
    if any(isinstance(x, tuple) and not is_nan(x) for x in first + second):
        zero = (0.0, 0.0)
        first, second = ([x if isinstance(x, tuple) and not is_nan(x) else (x, 0.0) for x in side]
                         for side in (first, second))
        return [rounded(x, 'e') for x in products.product_element(products.ComplexUnit(code), zero, first, second, show)]
    return [rounded(products.product_element(products.Unit(code), 0.0, first, second, show), 'e')]


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument('--shape', help='sizes joined by x, first dimension fastest: 4x3')
    parser.add_argument('--form', choices=('whole', 'column', 'row'), default='whole')
    parser.add_argument('--accumulator', choices=('half', 'single', 'double'), default='half')
    parser.add_argument('--op', choices=('sum', 'prod', 'mean', 'mtimes', 'hgemm', 'htrsm'), default='sum')
    parser.add_argument('--omit-nan', action='store_true')
    parser.add_argument('--results', action='store_true', help='print the results alone, as patterns')
    parser.add_argument('--left', choices=('half', 'single', 'double'), default='half')
    parser.add_argument('--right', choices=('half', 'single', 'double'), default='half')
    parser.add_argument('--options', default='N')
    parser.add_argument('--alpha', default='1')
    parser.add_argument('--beta', default='0')
    parser.add_argument('--c', default='0')
    parser.add_argument('file')
    parser.add_argument('second', nargs='?')
    wanted = parser.parse_args()
    show = (lambda line: None) if wanted.results else print
    if wanted.op in ('mtimes', 'hgemm', 'htrsm'):
        if wanted.second is None:
            parser.error('%s takes two files' % wanted.op)
        return tell(replayed_element(wanted, parser.error, show), 'e', wanted.results)
    if wanted.shape is None or wanted.second is not None:
        parser.error('a reduction takes a --shape and one file')
    dims = [int(size) for size in wanted.shape.split('x')]
    with (sys.stdin if wanted.file == '-' else open(wanted.file)) as source:
        elements = [element(word) for word in source.read().split()]
    if len(elements) != math.prod(dims):
        parser.error('%d elements do not have the shape %s' % (len(elements), wanted.shape))
    if wanted.form == 'whole' and len(dims) != 1 or wanted.form == 'column' and len(dims) < 2:
        parser.error('a whole array has one dimension, the column form two at least')
    r = Reduction(wanted.op, wanted.accumulator, wanted.omit_nan)
    tell(reduced(r, elements, dims, wanted.form, show), 'd' if wanted.accumulator == 'double' else 'e', wanted.results)


def tell(results, code, patterns_alone):
    for output, result in enumerate(results):
        if patterns_alone:
            print(hexadecimal(result, code))
        else:
            shown = ('-NaN' if result.negative else 'NaN') if is_nan(result) else repr(result)
            print('result %d = %s %s' % (output, hexadecimal(result, code), shown))


if __name__ == '__main__':
    sys.modules['replay'] = sys.modules['__main__']  # the models of products use this module's numbers
    main()
