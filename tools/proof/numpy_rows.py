"""NumPy's rows of the proof, as lines for proof.py.

usage: numpy_rows.py INPUTS SET      INPUTS is what `zthalf_proof --inputs` wrote; SET names the instructions in use
       numpy_rows.py --features      the instruction sets that this NumPy chooses from at run time, one a line
"""
import concurrent.futures
import sys

import numpy as np

SUMS, PAIRS, PATTERNS = 1000003, 1 << 20, 1 << 16
THREADS = (1, 2, 8)


def hash_of(array):
    """As hashOf in row.h: a polynomial in the patterns, modulo 2^64."""
    powers = np.full(array.size, 0x9E3779B97F4A7C15, np.uint64)
    powers[0] = 1
    patterns = array.view(np.uint16)[::-1].astype(np.uint64)
    return int(((patterns + np.uint64(1)) * np.cumprod(powers)).sum(dtype=np.uint64))


def pieces(n, threads):
    return [slice(n * piece // threads, n * (piece + 1) // threads) for piece in range(threads)]


def compute(columns, threads):
    addends, left, right, every, z, w = columns
    a, b, c, d = z[0::2], z[1::2], w[0::2], w[1::2]
    with concurrent.futures.ThreadPoolExecutor(threads) as pool:
        def elementwise(n, function):
            return np.concatenate(list(pool.map(function, pieces(n, threads))))

        sums = []
        for kind in (np.float16, np.float32, np.float64):
            parts = list(pool.map(lambda piece: addends[piece].sum(dtype=kind), pieces(SUMS, threads)))
            total = parts[0]
            for part in parts[1:]:
                total = kind(total + part)
            sums.append(np.float16(total))
        products = elementwise(PAIRS, lambda s: left[s] * right[s])
        exponentials = elementwise(PATTERNS, lambda s: np.exp(every[s]))
        complex_products = np.empty(2 * PAIRS, np.float16)
        complex_products[0::2] = elementwise(PAIRS, lambda s: a[s] * c[s] - b[s] * d[s])
        complex_products[1::2] = elementwise(PAIRS, lambda s: a[s] * d[s] + b[s] * c[s])
    return sums, (products, exponentials, complex_products)


def main(path, name):
    numbers = np.fromfile(path, np.float16)
    ends = np.cumsum([SUMS, PAIRS, PAIRS, PATTERNS, 2 * PAIRS, 2 * PAIRS])
    assert ends[-1] == numbers.size, 'the inputs have another length'
    columns = np.split(numbers, ends[:-1])
    for threads in THREADS:
        with np.errstate(all='ignore'):
            sums, arrays = compute(columns, threads)
        fields = ['%04X' % sum_.view(np.uint16) for sum_ in sums] + ['%016x' % hash_of(array) for array in arrays]
        print('\t'.join(['NumPy ' + np.__version__, name, str(threads)] + fields))


if __name__ == '__main__':
    if sys.argv[1:] == ['--features']:
        from numpy.core import _multiarray_umath as umath
        print('\n'.join(name for name in umath.__cpu_dispatch__ if umath.__cpu_features__.get(name)))
    else:
        main(*sys.argv[1:])
