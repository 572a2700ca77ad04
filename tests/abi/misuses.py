"""What must not compile: numbers where a pattern is meant, and functions of complex halves that are not ours.

DIRECT misuses are reported in the line in which they stand, so that all of them are compiled at once. DEEP ones are
reported somewhere inside a header, and are compiled one by one. Each comes with a control, its neighbour
that must compile.
"""

PRELUDE = r'''
#include <array>
#include <complex>
#include <ostream>
#include <vector>
#include "zthalf/half_scalar.h"
using complexHalf = std::complex<half_t>;
template <class T> T zeroOf() { return T{}; }
template <class T> T oneOf() { return T(1); }
void take(half_t);
void takeBare(fp16binary_t);
void takeComplex(complexHalf);
// What a user may write for generic code. The standard templates for complex numbers find these.
half_t abs(half_t);
half_t sqrt(half_t);
half_t exp(half_t);
half_t log(half_t);
half_t sin(half_t);
half_t cos(half_t);
half_t sinh(half_t);
half_t cosh(half_t);
half_t tan(half_t);
half_t pow(half_t, half_t);
half_t atan2(half_t, half_t);
'''

# Each stands in a function with these parameters.
PARAMETERS = ('half_t h, fp16binary_t b, complexHalf z, complexHalf w, float x, double d, bool t, std::uint16_t p, '
              'std::ostream& out')

DIRECT = [  # (control, misuse)
    ('take(half_t{0x3C00})', 'take(half_t(0x3C00))'),
    ('take(half_t{p})', 'take(half_t(p))'),
    ('take(half_t(h))', 'take(half_t(1.5f))'),
    ('take(half_t{h})', 'take(half_t(x))'),
    ('take(half_t{})', 'take(half_t(true))'),
    ('static_cast<half_t>(h)', 'static_cast<half_t>(d)'),
    ('(half_t)h', '(half_t)x'),
    ('half_t{0x7C00}', 'half_t{1.5f}'),
    ('half_t{p}', 'half_t{x}'),
    ('half_t{p}', 'half_t{d}'),
    ('half_t{p}', 'half_t{t}'),
    ('half_t{0xFFFF}', 'half_t{0x10000}'),
    ('half_t{0}', 'half_t{-1}'),
    ('half_t y = {0x3C00}', 'half_t y = 1.5f'),
    ('half_t y = h', 'half_t y = 1'),
    ('half_t y[] = {{1}, {2}}', 'half_t y[] = {1, 2}'),
    ('half_t y[] = {h, {2}}', 'half_t y[] = {1.5f, x}'),
    ('std::array<half_t, 2> y{{{1}, {2}}}', 'std::array<half_t, 2> y{{1, 2}}'),
    ('h = half_t{1}', 'h = x'),
    ('h = {p}', 'h = {x}'),
    ('h += half_t{1}', 'h += x'),
    ('h * h', 'h * 2'),
    ('h < h', 'h < 1.0f'),
    ('take({p})', 'take(p)'),
    ('take(h)', 'take(1.5)'),
    ('take({0x3C00})', 'take({1.5})'),
    ('takeBare(fp16binary_t{0x3C00})', 'takeBare(fp16binary_t(0x3C00))'),
    ('takeBare(fp16binary_t(b))', 'takeBare(fp16binary_t(x))'),
    ('takeBare({p})', 'takeBare({x})'),
    ('fp16binary_t y = {p}', 'fp16binary_t y = x'),
    ('takeComplex(complexHalf(h))', 'takeComplex(complexHalf(1.5f))'),
    ('takeComplex(complexHalf(h, h))', 'takeComplex(complexHalf(1.5f, x))'),
    ('takeComplex({{1}, {2}})', 'takeComplex({1, 2})'),
    ('takeComplex(complexHalf(z))', 'takeComplex(complexHalf(std::complex<float>(x)))'),
    ('takeComplex(h)', 'takeComplex(x)'),
    ('z = h', 'z = x'),
    ('z *= h', 'z *= x'),
    ('z / h', 'z / 2'),
    ('h * z', '2.0f * z'),
    ('z + h', 'z + std::complex<float>(x)'),
    ('std::abs(z)', 'std::norm(z)'),
    ('std::arg(z)', 'std::proj(z)'),
    ('std::conj(z)', 'std::polar(h, h)'),
    ('std::real(z)', 'std::polar(h)'),
    ('std::imag(z)', 'std::pow(z, w)'),
    ('abs(z)', 'std::pow(z, h)'),
    ('conj(z)', 'std::pow(h, z)'),
] + [('half_scalar::abs(h)', 'std::%s(z)' % function) for function in (
    'exp log log10 sqrt sin cos tan asin acos atan sinh cosh tanh asinh acosh atanh').split()]

DEEP = [
    ('constexpr half_t y{0x3C00}', 'constexpr half_t y{0x3C00, 0x4000}'),
    ('constexpr fp16binary_t y{1}', 'constexpr fp16binary_t y{1, 2}'),
    ('out << x', 'out << z'),
    ('std::pow(x, 2)', 'std::pow(z, 2)'),
    ('zeroOf<half_t>()', 'oneOf<half_t>()'),
    ('std::vector<half_t> y(&h, &h)', 'std::vector<half_t> y(&x, &x)'),
    ('std::vector<half_t> y; y.assign(&h, &h)', 'std::vector<half_t> y; y.assign(&d, &d)'),
    ('std::vector<half_t> y; y.emplace_back(h)', 'std::vector<half_t> y; y.emplace_back(7.25)'),
    ('std::vector<half_t> y; y.emplace_back()', 'std::vector<half_t> y; y.emplace_back(p)'),
    ('std::vector<half_t> y{{1}, {2}}', 'std::vector<half_t> y{1.5f, 2.5f}'),
    ('std::vector<complexHalf> y(&z, &z)', 'std::complex<float> c; std::vector<complexHalf> y(&c, &c)'),
    ('std::complex<fp16binary_t> y(b)', 'std::complex<fp16binary_t> y{std::complex<float>(x)}'),
]

# Reported by the optimiser, for the length of a list in braces is no part of its type.
OPTIMISED = [
    ('half_t y{p}; take(y)', 'half_t y{p, p}; take(y)'),
    ('complexHalf y{{p}, {p}}; takeComplex(y)', 'complexHalf y{{p, p}, {p}}; takeComplex(y)'),
]
