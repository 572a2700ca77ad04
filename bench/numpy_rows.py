"""Measures NumPy's float16 on the rows that it has; run by compare.py, which writes the wanted points to its input.

The destination exists beforehand and is written in place, so that no allocation is timed.
"""
import json
import random
import re
import sys
import time

import numpy as np

INTEGERS = {'uint8': np.uint8, 'int8': np.int8, 'uint16': np.uint16, 'int16': np.int16, 'uint32': np.uint32,
            'int32': np.int32, 'uint64': np.uint64, 'int64': np.int64, 'logical': np.bool_}
FLOATS = {'single': np.float32, 'double': np.float64}
UNARY = {'uminus': np.negative, 'abs': np.abs, 'sign': np.sign, 'isnan': np.isnan, 'isinf': np.isinf,
         'isfinite': np.isfinite, 'floor': np.floor, 'ceil': np.ceil, 'fix': np.trunc, 'round': np.rint,
         'eps': np.spacing, 'exp': np.exp, 'expm1': np.expm1, 'pow2': np.exp2,
         'sin': np.sin, 'cos': np.cos, 'tan': np.tan, 'atan': np.arctan, 'sinh': np.sinh, 'cosh': np.cosh,
         'tanh': np.tanh, 'asinh': np.arcsinh}
# Of positive numbers only, as for the other subjects.
POSITIVE = {'log': np.log, 'log1p': np.log1p, 'log2': np.log2, 'log10': np.log10, 'sqrt': np.sqrt}
BINARY = {'minus': np.subtract, 'times': np.multiply, 'rdivide': np.divide, 'hypot': np.hypot, 'atan2': np.arctan2,
          'mod': np.mod, 'rem': np.fmod}
COMPARED = {'eq': np.equal, 'lt': np.less}
EXPANDED = {'expand-none-1000x1000': ((1000, 1000), (1000, 1000)),
            'expand-1000x1-with-1000x1000': ((1000, 1), (1000, 1000)),
            'expand-1x1000-with-1000x1000': ((1, 1000), (1000, 1000)),
            'expand-1000x1-with-1x1000': ((1000, 1), (1, 1000)),
            'expand-3x1-with-3x100000': ((3, 1), (3, 100000)),
            'expand-3x1-with-1x100000': ((3, 1), (1, 100000)),
            'expand-20x1-with-20x20000': ((20, 1), (20, 20000))}
REDUCTIONS = {'sum': (np.sum, np.nansum), 'mean': (np.mean, np.nanmean), 'prod': (np.prod, np.nanprod)}
ACCUMULATORS = {'half': np.float16, 'single': np.float32, 'double': np.float64}
REDUCTION = re.compile('(sum|mean|prod)(-columns|-rows)?-(half|single|double)(-omitnan)?')
PRODUCT = re.compile(r'mtimes-half-(\d+)')
EXTREMUM = re.compile('min(-columns|-rows)?(-index|-omitnan)?')

COMPARED_EXPANDED = {name.partition('-')[2]: shapes for name, shapes in EXPANDED.items()}


def halves(shape):
    size = int(np.prod(shape))
    generator = np.random.default_rng(1)
    values = np.ldexp(1 + generator.random(size), generator.integers(-4, 4, size)) * generator.choice([-1, 1], size)
    return np.asfortranarray(values.astype(np.float16).reshape(shape, order='F'))


def call_for(row, n):
    """A function that does the row once, or None where NumPy has no such row."""
    types = dict(INTEGERS, **FLOATS)
    matched = PRODUCT.fullmatch(row)
    if matched:
        order = int(matched.group(1))
        if order > 256:  # minutes
            return None
        a, b, target = halves((order, order)), halves((order, order)), np.empty((order, order), np.float16, 'F')
        return lambda: np.matmul(a, b, out=target)
    left, middle, right = row.partition('-to-')
    if middle and right == 'half' and left in types:
        low = 0 if left.startswith('u') else -2000
        source = halves(n).astype(types[left]) if left in FLOATS else \
            np.random.default_rng(1).integers(low, 2000, n).astype(types[left])
        target = np.empty(n, np.float16)
        return lambda: np.copyto(target, source, casting='unsafe')
    if middle and left == 'half' and right in types:
        source, target = halves(n), np.empty(n, types[right])
        return lambda: np.copyto(target, source, casting='unsafe')
    if row in UNARY:
        source = halves(n)
        target = np.empty(n, np.bool_ if row.startswith('is') else np.float16)
        return lambda: UNARY[row](source, out=target)
    if row in POSITIVE:
        source, target = np.abs(halves(n)), np.empty(n, np.float16)
        return lambda: POSITIVE[row](source, out=target)
    if row in BINARY:
        a, b, c = halves(n), halves(n)[::-1].copy(), np.empty(n, np.float16)
        return lambda: BINARY[row](a, b, out=c)
    if row in ('plus', 'plus-value'):
        a, b, c = halves(1 if row == 'plus-value' else n), halves(n), np.empty(n, np.float16)
        return lambda: np.add(a, b, out=c)
    if row == 'min-pairs':
        a, b, c = halves(n), halves(n), np.empty(n, np.float16)
        return lambda: np.minimum(a, b, out=c)
    extremum = EXTREMUM.fullmatch(row)
    if extremum:
        form, ending = extremum.groups()
        side = int(n ** 0.5)
        source = halves((side, n // side) if form else n)
        axis = {None: None, '-columns': 0, '-rows': 1}[form]
        function = {None: np.min, '-index': np.argmin, '-omitnan': np.nanmin}[ending]
        return lambda: function(source, axis=axis)
    reduction = REDUCTION.fullmatch(row)
    if reduction:
        op, form, accumulator, omits = reduction.groups()
        function, dtype = REDUCTIONS[op][bool(omits)], ACCUMULATORS[accumulator]
        side = int(n ** 0.5)
        source = halves((side, n // side) if form else n)
        axis = {None: None, '-columns': 0, '-rows': 1}[form]
        return lambda: function(source, axis=axis, dtype=dtype)
    operation, _, operand = row.partition('-')
    if operation in COMPARED and operand in ('', 'value', *COMPARED_EXPANDED):
        shapes = COMPARED_EXPANDED.get(operand, ((n,), (1,) if operand == 'value' else (n,)))
        a, b = (halves(shape) for shape in shapes)
        c = np.empty(np.broadcast_shapes(a.shape, b.shape), np.bool_, order='F')
        return lambda: COMPARED[operation](a, b, out=c)
    if row in EXPANDED:
        a, b = (halves(shape) for shape in EXPANDED[row])
        c = np.empty(np.broadcast_shapes(a.shape, b.shape), np.float16, order='F')
        return lambda: np.add(a, b, out=c)
    return None


def nanoseconds(call, n, seconds):
    call()
    calls, elapsed = 1, 0.0
    while True:
        start = time.perf_counter()
        for _ in range(calls):
            call()
        elapsed = time.perf_counter() - start
        if elapsed >= seconds:
            return elapsed / calls / n * 1e9
        calls *= 2


def main():
    asked = json.load(sys.stdin)
    jobs = []
    for row, data, n in asked['points']:
        call = call_for(row, n) if data == 'plain' else None
        if call:
            jobs.append((row, data, n, call, []))
    for _ in range(asked['repetitions']):
        random.shuffle(jobs)
        for _, _, n, call, times in jobs:
            times.append(nanoseconds(call, n, asked['seconds']))
    json.dump([[row, data, n, times] for row, data, n, _, times in jobs], sys.stdout)


if __name__ == '__main__':
    main()
