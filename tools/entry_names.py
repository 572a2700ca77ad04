"""The names of all entries of the table, expanded from the rules by which they are named.

This is a second derivation, independent of include/zthalf/detail/entries.h: tests/abi/entries_test.py compares the two.
"""
from itertools import product

REAL = ['Half', 'Single', 'Double']
INTEGERS = ['Int64', 'Int32', 'Int16', 'Int8', 'UInt64', 'UInt32', 'UInt16', 'UInt8']

REAL_PAIRS = ['HalfHalf', 'HalfSingle', 'HalfDouble', 'SingleHalf', 'DoubleHalf']
CPLX_RIGHT = ['HalfCplxHalf', 'HalfCplxSingle', 'HalfCplxDouble', 'SingleCplxHalf', 'DoubleCplxHalf']
CPLX_LEFT = ['CplxHalfHalf', 'CplxHalfSingle', 'CplxHalfDouble', 'CplxSingleHalf', 'CplxDoubleHalf']
CPLX_BOTH = ['CplxHalfCplxHalf', 'CplxHalfCplxSingle', 'CplxHalfCplxDouble', 'CplxSingleCplxHalf',
             'CplxDoubleCplxHalf']
TWENTY_PAIRS = REAL_PAIRS + CPLX_RIGHT + CPLX_LEFT + CPLX_BOTH

COMPARISONS = ['eq', 'ne', 'gt', 'ge', 'lt', 'le']


def joined(*parts):
    """All concatenations of one element of each list, the last list varying fastest."""
    return [''.join(choice) for choice in product(*parts)]


def real_and_complex(names, complex_names=None):
    """Each real name followed by its complex sibling: exp, cplxExp."""
    irregular = complex_names or {}
    return [form for name in names for form in (name, irregular.get(name, 'cplx' + name[0].upper() + name[1:]))]


def limited_domain(name):
    """The four forms of a function whose real domain is limited."""
    return [name, name + 'RealToComplex', 'cplx' + name[0].upper() + name[1:], name + 'EarlyExit']


def families():
    """(family, its entries in order), the names without their ending Ptr."""
    tags = ['Single', 'Double', 'UInt8', 'Int8', 'UInt16', 'Int16', 'UInt32', 'Int32', 'UInt64', 'Int64', 'Logical']
    yield 'conversions to half', ['convert%sToHalf' % tag for tag in tags]
    yield 'conversions from half', ['convertHalfTo%s' % tag for tag in tags]

    yield 'simple unary operations', (
        real_and_complex(['uminus', 'abs', 'eps']) + ['isImagZero', 'cplxReal', 'cplxImag', 'cplxConj'] +
        joined(['realToComplex'], [''] + REAL_PAIRS) + real_and_complex(['isnan', 'isinf', 'isfinite']) +
        ['ceil', 'fix', 'floor', 'round'] + limited_domain('sqrt') + ['rsqrt', 'sign', 'cplxSign'])

    yield 'comparisons with numbers', [
        op + form % tag for op in COMPARISONS for tag in REAL + INTEGERS
        for form in ('Half%s', 'CplxHalf%s', 'HalfCplx%s', 'CplxHalfCplx%s')]
    yield 'comparisons with logical', joined(
        COMPARISONS, ['HalfLogical', 'LogicalHalf', 'RealToComplexLogicalHalf', 'ComplexToRealHalfLogical'])

    halves, numbers = ['Half', 'CplxHalf'], ['Single', 'CplxSingle', 'Double', 'CplxDouble']
    yield 'arithmetic', [
        op + pair for op in ('plus', 'minus', 'times', 'rdivide', 'ldivide')
        for pair in joined(halves, ['Half', 'CplxHalf'] + numbers) + joined(numbers, halves)]
    yield 'remainders and angle', joined(['mod', 'rem', 'atan2'], REAL_PAIRS)
    yield 'BLAS-like', ['hscalHalfHalf', 'laswpHalf', 'ihamax', 'htrsmHalfHalf', 'hgetrf2Half', 'hgetrfHalf',
                        'hgemmHalfHalf']
    yield 'fma', joined(['fma'], REAL, REAL, REAL)
    for op in ('hypot', 'mtimes', 'pow2', 'min', 'minOmitNaN', 'max', 'maxOmitNaN'):
        yield op + ' of two arrays', joined([op], TWENTY_PAIRS)
    yield 'power', (joined(['powerWithEarlyExit', 'power', 'powerRealToComplex'], REAL_PAIRS) +
                    joined(['cplxPower'], CPLX_RIGHT + CPLX_LEFT + CPLX_BOTH))

    yield 'sums, products and means', joined(['mean', 'sum', 'prod'], ['SimpleReduce', 'Reduce'], REAL,
                                             ['', 'OmitNaN', 'Cplx', 'OmitNaNCplx'])
    yield 'extrema', joined(['min', 'max'], ['', 'Cplx'], ['SimpleReduce', 'Reduce'], ['', 'WithIndex'],
                            ['', 'OmitNaN'])

    yield 'exponentials and logarithms', (
        real_and_complex(['exp', 'expm1', 'pow2', 'pow10']) + limited_domain('log') + limited_domain('log1p') +
        limited_domain('log2') + ['log2TwoOut', 'cplxLog2TwoOut'] + limited_domain('log10'))
    yield 'trigonometric and hyperbolic functions', (
        real_and_complex(['sin', 'sinpi', 'cos', 'cospi', 'tan'], {'sinpi': 'cplxSinPi', 'cospi': 'cplxCosPi'}) +
        limited_domain('asin') + limited_domain('acos') +
        real_and_complex(['atan', 'sinh', 'cosh', 'tanh', 'asinh', 'acosh']) + limited_domain('atanh'))


def all_names():
    return [name for _, names in families() for name in names]
