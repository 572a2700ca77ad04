#!/usr/bin/env python3
"""Measures how far a half LU is from the matrix that it factorises, and draws it: docs/linear-algebra/lu-errors.svg.

usage: tools/lu-errors.py [LIBRARY [OUTPUT]]        (default build/release/libzthalf.so)

For each kind of matrix and each order, several matrices: the largest element of A - P L U, A being the matrix in half,
relative to the largest element of A and in units of 2^-11, which is what one rounding to half may do. The products L U
are summed in double.
"""
import ctypes
import math
import os
import random
import struct
import sys

ROOT = os.path.join(os.path.dirname(os.path.abspath(__file__)), '..')
ORDERS = [2, 4, 8, 16, 32, 64, 96, 128]
SAMPLES = 5
KINDS = {'random': '#1f77b4', 'graded': '#d62728', 'Hilbert-like': '#2ca02c'}
generator = random.Random(7)


def to_half(x):
    return struct.unpack('<H', struct.pack('<e', x))[0]


def from_half(p):
    return struct.unpack('<e', struct.pack('<H', p))[0]


def matrix(kind, n):
    """By columns. Graded: row i is about 2^(-12 i / n). Hilbert-like: 1 / (i + j + 1), a little off."""
    def value(i, j):
        x = generator.uniform(-1, 1)
        if kind == 'graded':
            return x * 2 ** (-12 * i / n)
        if kind == 'Hilbert-like':
            return (1 + x / 64) / (i + j + 1)
        return x
    return [to_half(value(i, j)) for j in range(n) for i in range(n)]


def backward_error(library, a, n):
    factors = (ctypes.c_uint16 * len(a))(*a)
    pivots, info = (ctypes.c_ulong * n)(), ctypes.c_int()
    size = ctypes.c_ulong
    library._ZN11half_vector6hgetrfEmmP6half_tmPmRi(size(n), size(n), factors, size(n), pivots, ctypes.byref(info))
    lu = [from_half(p) for p in factors]
    rows = list(range(n))
    for i, pivot in enumerate(pivots):
        rows[i], rows[pivot - 1] = rows[pivot - 1], rows[i]
    worst = 0.0
    for i in range(n):
        left = [lu[i + k * n] for k in range(i)]
        for j in range(n):
            column = lu[j * n:j * n + n]
            total = sum(x * y for x, y in zip(left[:min(i, j + 1)], column)) + (column[i] if i <= j else 0.0)
            worst = max(worst, abs(from_half(a[rows[i] + j * n]) - total))
    return worst / max(abs(from_half(p)) for p in a) * 2 ** 11


def measured(library):
    return {kind: [(n, max(backward_error(library, matrix(kind, n), n) for _ in range(SAMPLES))) for n in ORDERS]
            for kind in KINDS}


def drawn(results):
    """A plot with the order along a logarithmic axis."""
    width, height, left, bottom, top = 640, 340, 60, 300, 20
    highest = max(error for points in results.values() for _, error in points) * 1.1

    def place(n, error):
        x = left + (width - left - 20) * (math.log2(n) - 1) / 6
        return x, bottom - (bottom - top) * error / highest

    lines = ['<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 %d %d" font-family="sans-serif" font-size="12">' %
             (width, height), '<rect width="100%" height="100%" fill="white"/>',
             '<path d="M%d %dV%dH%d" fill="none" stroke="black"/>' % (left, top, bottom, width - 20),
             '<text x="%d" y="%d" text-anchor="middle">order of the matrix</text>' % (width // 2, height - 6),
             '<text x="14" y="%d" transform="rotate(-90 14 %d)" text-anchor="middle">largest error, units of 2^-11</text>'
             % (height // 2, height // 2)]
    for n in ORDERS:
        lines.append('<text x="%.1f" y="%d" text-anchor="middle">%d</text>' % (place(n, 0)[0], bottom + 16, n))
    for step in range(0, int(highest) + 1, max(1, int(highest / 5))):
        lines.append('<text x="%d" y="%.1f" text-anchor="end">%d</text>' % (left - 6, place(2, step)[1] + 4, step))
    for row, (kind, points) in enumerate(results.items()):
        path = ' '.join('%.1f,%.1f' % place(n, error) for n, error in points)
        lines.append('<polyline points="%s" fill="none" stroke="%s" stroke-width="2"/>' % (path, KINDS[kind]))
        lines.append('<text x="%d" y="%d" fill="%s">%s</text>' % (left + 20, top + 16 + 16 * row, KINDS[kind], kind))
    return '\n'.join(lines + ['</svg>', ''])


def main(path, output):
    results = measured(ctypes.CDLL(path))
    print('| order | ' + ' | '.join(KINDS) + ' |\n|--:|' + '--:|' * len(KINDS))
    for i, n in enumerate(ORDERS):
        print('| %d | ' % n + ' | '.join('%.2f' % results[kind][i][1] for kind in KINDS) + ' |')
    os.makedirs(os.path.dirname(output), exist_ok=True)
    with open(output, 'w') as file:
        file.write(drawn(results))


if __name__ == '__main__':
    arguments = sys.argv[1:] + [os.path.join(ROOT, 'build', 'release', 'libzthalf.so'),
                                os.path.join(ROOT, 'docs', 'linear-algebra', 'lu-errors.svg')][len(sys.argv[1:]):]
    main(*arguments)
