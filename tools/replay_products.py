"""Models of single outputs of matrix products and triangular solves, for tools/replay.py.

A number is what it is there: a float or a NaN. A complex number is a pair of them. docs/linear-algebra.md tells the same
in words.
"""
import math

import replay

LANES, STRETCH = 8, 256


class Unit:
    """The defining unit in single ('f') or double ('d'). Products and sums of singles fit a double so far that rounding
    to single is the one rounding of the operation."""

    def __init__(self, code):
        self.code = code

    def operation(self, function, first, second):
        return replay.rounded(replay.settled(function, first, second), self.code)

    def product(self, a, b):
        return self.operation(lambda x, y: x * y, a, b)

    def sum(self, a, b):
        return self.operation(lambda x, y: x + y, a, b)

    def difference(self, a, b):
        return self.operation(lambda x, y: x - y, a, b)

    def quotient(self, a, b):
        return self.operation(replay.divided, a, b)


def negative(x):
    return x.negative if replay.is_nan(x) else math.copysign(1, x) < 0


def infinite(x):
    return not replay.is_nan(x) and math.isinf(x)


class ComplexUnit:
    """Pairs, with the product of the C standard's Annex G."""

    def __init__(self, code):
        self.unit = Unit(code)

    def sum(self, a, b):
        return self.unit.sum(a[0], b[0]), self.unit.sum(a[1], b[1])

    def product(self, a, b):
        u = self.unit
        (p, q), (r, s) = a, b
        ac, bd, ad, bc = u.product(p, r), u.product(q, s), u.product(p, s), u.product(q, r)
        x, y = u.difference(ac, bd), u.sum(bc, ad)
        if not (replay.is_nan(x) and replay.is_nan(y)):
            return x, y

        def boxed(z):
            return math.copysign(1.0 if infinite(z) else 0.0, -1 if negative(z) else 1)

        def without_nan(z):
            return math.copysign(0.0, -1 if negative(z) else 1) if replay.is_nan(z) else z

        again = False
        if infinite(p) or infinite(q):
            p, q, r, s, again = boxed(p), boxed(q), without_nan(r), without_nan(s), True
        if infinite(r) or infinite(s):
            r, s, p, q, again = boxed(r), boxed(s), without_nan(p), without_nan(q), True
        if not again and any(infinite(z) for z in (ac, bd, ad, bc)):
            p, q, r, s, again = without_nan(p), without_nan(q), without_nan(r), without_nan(s), True
        if not again:
            return x, y
        return (u.product(math.inf, u.difference(u.product(p, r), u.product(q, s))),
                u.product(math.inf, u.sum(u.product(p, s), u.product(q, r))))


def product_element(unit, zero, row, column, show):
    """An output of mtimes before its rounding to half; row and column have the inner dimension's elements."""
    output = zero
    for begin in range(0, len(row), STRETCH):
        depth = min(STRETCH, len(row) - begin)
        for t in range(LANES):
            lane = zero
            for l in range(begin + t, begin + depth, LANES):
                lane = unit.sum(lane, unit.product(row[l], column[l]))
            output = unit.sum(lane, output)
            if t < depth:
                show('[%d, %d) lane %d = %s, output = %s' % (begin, begin + depth, t, shown(lane), shown(output)))
    return output


def hgemm_element(transposed, row, column, alpha, beta, c, show):
    """c(i, j) before its rounding to half, as hgemm computes it where alpha is not zero."""
    u = Unit('f')
    if transposed:
        total = 0.0
        for l, (x, y) in enumerate(zip(row, column)):
            total = replay.rounded(u.sum(total, u.product(x, y)), 'e')
            show('index %d: half = %s' % (l, shown(total)))
        total = u.product(alpha, total)
        return total if beta == 0 else u.sum(total, u.product(beta, c))
    chain = 0.0 if beta == 0 else c if beta == 1 else u.product(beta, c)
    for l, (x, y) in enumerate(zip(row, column)):
        t = replay.rounded(u.product(alpha, y), 'e')
        chain = u.sum(chain, u.product(x, t))
        show('index %d: t = %s, chain = %s' % (l, shown(t), shown(chain)))
    return chain


def triangular_vector(left, upper, plain, diagonal, alpha, a, order, b, show):
    """The vector b, a column of B where A is on the left and a row of it where A is on the right, solved in single; a is
    A's elements by columns."""
    u = Unit('f')
    x = list(b)
    present = {}  # left and plain: which elements were no zeros before their division

    def element(r, c):
        return a[r + c * order]

    def scaled(v):
        return v if alpha == 1 else u.product(alpha, v)

    forward = upper != (left == plain)
    for i in range(order) if forward else reversed(range(order)):
        before = range(i) if forward else range(i + 1, order)
        if left and not plain:
            x[i] = u.product(alpha, x[i])
        elif left or plain:
            x[i] = scaled(x[i])
        if left == plain:
            before = before if forward else reversed(before)
        for k in before:
            if left and plain:
                if present[k]:
                    x[i] = u.difference(x[i], u.product(x[k], element(i, k)))
            elif left:
                x[i] = u.difference(x[i], u.product(element(k, i), x[k]))
            else:
                s = element(k, i) if plain else element(i, k)
                if replay.is_nan(s) or s != 0:
                    x[i] = u.difference(x[i], u.product(s, x[k]))
        if left and plain:
            present[i] = replay.is_nan(x[i]) or x[i] != 0
            if diagonal and present[i]:
                x[i] = u.quotient(x[i], element(i, i))
        elif left:
            x[i] = u.quotient(x[i], element(i, i)) if diagonal else x[i]
        elif diagonal:
            x[i] = u.product(x[i], u.quotient(1.0, element(i, i)))
        show('element %d = %s' % (i, shown(x[i])))
    if not left and not plain:
        x = [scaled(v) for v in x]
    return x


def shown(x):
    if isinstance(x, tuple) and not replay.is_nan(x):
        return '(%s, %s)' % (shown(x[0]), shown(x[1]))
    return ('-NaN' if x.negative else 'NaN') if replay.is_nan(x) else repr(x)
