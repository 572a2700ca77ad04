// Functions of single half values.
#pragma once

#include "zthalf/detail/export.h"
#include "zthalf/half_t.h"

/// None of these functions has a failure path, throws, keeps state or touches the floating-point environment; all may
/// be called from any thread.
namespace half_scalar {

/// |x|: the sign bit cleared, of a NaN too.
ZTHALF_API half_t abs(half_t x);
/// -1, +0 or +1; a zero of either sign gives +0 and a NaN gives itself, unchanged.
ZTHALF_API half_t sign(half_t x);

ZTHALF_API bool isnan(half_t x);
ZTHALF_API bool isinf(half_t x);
/// Whether x is neither an infinity nor a NaN.
ZTHALF_API bool isfinite(half_t x);

/// Rounding to an integer: ceil upwards, floor downwards, fix towards zero, round to nearest with ties away from zero.
/// A zero result has the sign of x. From 1024 on, and for infinities and NaNs, the result is x, a signalling NaN
/// included.
ZTHALF_API half_t ceil(half_t x);
ZTHALF_API half_t floor(half_t x);
ZTHALF_API half_t fix(half_t x);
ZTHALF_API half_t round(half_t x);

/// The distance from |x| to the next larger half: 2^-10 at 1.0, 2^-24 at zero and at subnormals. Infinities and NaNs
/// of either sign give the NaN 0x7E00.
ZTHALF_API half_t eps(half_t x);

/// The neighbour of x in the direction of y. A NaN x comes back, else a NaN y, both unchanged. Where x equals y the
/// result is y, so that the sign of a zero comes from y. From a zero the step leads to the smallest subnormal with the
/// sign of y, from 65504 towards infinity to infinity, from infinity to 65504.
ZTHALF_API half_t nextafter(half_t x, half_t y);

/// Exponentials, logarithms and roots. Each is computed in single precision and rounded to half once, so that but for a
/// few results next to a tie it is the correctly rounded one. exp alone is coarser: within 0.873 units in the last
/// place, and about one result in seven is not the nearest half.
///
/// NaN results are 0x7E00 with the sign stated for each group.

/// exp(x), exp(x) - 1. A NaN keeps its sign; expm1 of a zero is that zero.
ZTHALF_API half_t exp(half_t x);
ZTHALF_API half_t expm1(half_t x);
/// 10 and 2 to the power x. Every NaN gives the negative NaN.
ZTHALF_API half_t pow10(half_t x);
ZTHALF_API half_t pow2(half_t x);
/// The logarithms to base e, 2 and 10, and ln(1 + x). A zero (for log1p: -1) gives -infinity and +infinity gives
/// itself. A negative number (for log1p: one below -1) gives the negative NaN. A NaN keeps its sign; log1p of a zero is
/// that zero. log2 of a power of two is exact.
ZTHALF_API half_t log(half_t x);
ZTHALF_API half_t log1p(half_t x);
ZTHALF_API half_t log2(half_t x);
ZTHALF_API half_t log10(half_t x);
/// The square root and its reciprocal. -0 counts as +0, so that sqrt gives +0 and rsqrt +infinity. A negative number
/// gives the positive NaN; a NaN keeps its sign.
ZTHALF_API half_t sqrt(half_t x);
ZTHALF_API half_t rsqrt(half_t x);

/// Trigonometric and hyperbolic functions and their inverses, computed and rounded in the same way. Angles are in
/// radians, and every finite half is reduced to full accuracy, however large.

/// A zero is its own sine and tangent. Infinities and NaNs of either sign give the negative NaN.
ZTHALF_API half_t sin(half_t x);
ZTHALF_API half_t cos(half_t x);
ZTHALF_API half_t tan(half_t x);
/// sin(pi x) and cos(pi x), exact at every multiple of 1/2: sinpi of an integer is a zero with the sign of x, or of x's
/// remainder by 2, taken in [-1, 1]; cospi of an odd multiple of 1/2 is +0. Infinities and NaNs of either sign give the
/// negative NaN.
ZTHALF_API half_t sinpi(half_t x);
ZTHALF_API half_t cospi(half_t x);
/// Outside [-1, 1], and for a NaN of either sign, the negative NaN. acos of 1 is +0.
ZTHALF_API half_t asin(half_t x);
ZTHALF_API half_t acos(half_t x);
/// Half pi, rounded, with the sign of an infinite x. A NaN of either sign gives the negative NaN.
ZTHALF_API half_t atan(half_t x);
/// Infinite for an infinite x. A NaN keeps its sign.
ZTHALF_API half_t sinh(half_t x);
ZTHALF_API half_t cosh(half_t x);
/// 1 with the sign of an infinite x. A NaN of either sign gives the positive NaN.
ZTHALF_API half_t tanh(half_t x);
/// A zero, an infinity or a NaN gives itself, the NaN made quiet.
ZTHALF_API half_t asinh(half_t x);
/// Below 1, and for a NaN with its sign set, the negative NaN; the other NaNs give the positive one. acosh of 1 is +0.
ZTHALF_API half_t acosh(half_t x);
/// An infinity with the sign of x at 1 and -1. Beyond, and for a NaN of either sign, the negative NaN.
ZTHALF_API half_t atanh(half_t x);

/// The remainder of x by y with the sign of x (rem) or of y (mod). The remainder itself is exact.
///
/// When y has a fraction, x is taken for a multiple of y if x/y lies within half a unit in the last place, as a half,
/// of an integer, and the remainder is a zero then: mod(1.0, 0.1) is 0. From a quotient of 1024 on that is always so.
/// For an integral y there is no tolerance.
///
/// A zero result has the sign of x (rem) or of y (mod). By an infinity: rem is x; mod is x if the signs agree or x is a
/// zero, which takes the sign of y, and otherwise y. By zero: rem is the NaN 0x7E00 with the sign of x; mod is x, and
/// mod of two zeros is y. For an infinite x: the NaN 0x7E00 with the sign of x (rem) or of y (mod), but mod by zero is
/// x. Where the signs differ and |x| is below |y|, mod is x + y, rounded; all other results are exact. A NaN x comes
/// back unchanged. With a NaN y rem is its payload with the sign of x, and mod is y unchanged, but mod of a NaN or by
/// zero is decided before.
ZTHALF_API half_t mod(half_t x, half_t y);
ZTHALF_API half_t rem(half_t x, half_t y);

/// sqrt(x^2 + y^2). Signs are not read, those of NaNs neither: with a NaN the result is 0x7E00, also beside an
/// infinity. From 65520 on the result is infinity. Two halves, and a half and a float, give the correctly rounded half
/// wherever that is a normal number; a half and a double round the root to double before.
ZTHALF_API half_t hypot(half_t x, half_t y);
ZTHALF_API half_t hypot(half_t x, float y);
ZTHALF_API half_t hypot(half_t x, double y);
ZTHALF_API half_t hypot(float x, half_t y);
ZTHALF_API half_t hypot(double x, half_t y);

/// The angle of the point (x, y), from -pi to pi; the ordinate comes first. Two zeros give +0 whatever their signs; a
/// zero y beside a negative x gives pi with the sign of y, beside a positive x it gives y. Two infinities give an odd
/// multiple of pi/4. A NaN gives 0xFE00. Computed in float, in double beside a double, and rounded once.
ZTHALF_API half_t atan2(half_t y, half_t x);
ZTHALF_API half_t atan2(half_t y, float x);
ZTHALF_API half_t atan2(half_t y, double x);
ZTHALF_API half_t atan2(float y, half_t x);
ZTHALF_API half_t atan2(double y, half_t x);

/// x to the power y. Computed in float, in double beside a double, and rounded once; the powers 2, 1, 0, -1 and 0.5
/// are a square, x itself, 1, a reciprocal and a square root.
///
/// A NaN gives 0xFE00, and so do NaN to the power 0 and 1 to the power NaN; only the powers 1, 2, -1 and 0.5 of a NaN
/// keep its sign. A finite negative x to a power that is not an integer is 0xFE00, but 0x7E00 to the power 0.5; so is
/// -infinity to a positive such power, while to a negative one it is +0. -0 to a power that is not an integer is +0 or
/// +infinity. 1 and -1 to an infinite power are 1. Odd integer powers keep the sign of x.
ZTHALF_API half_t power(half_t x, half_t y);
ZTHALF_API half_t power(half_t x, float y);
ZTHALF_API half_t power(half_t x, double y);
ZTHALF_API half_t power(float x, half_t y);
ZTHALF_API half_t power(double x, half_t y);

/// x times 2^n, with n the integer part of y towards zero: pow2(x, 0.9) is x. Rounded once. Zeros and infinities stay
/// as they are for every n, a NaN x gives 0x7E00 with its sign, and a NaN y 0x7E00 for every x. Beside a float, a zero
/// or subnormal float result of the scaling is what is rounded.
ZTHALF_API half_t pow2(half_t x, half_t y);
ZTHALF_API half_t pow2(half_t x, float y);
ZTHALF_API half_t pow2(half_t x, double y);
ZTHALF_API half_t pow2(float x, half_t y);
ZTHALF_API half_t pow2(double x, half_t y);

/// x * y + z in one effective rounding: the correctly rounded half wherever that is a normal number. An exact zero is
/// +0 unless both addends are -0. NaN: the product goes by the rules of half_t's operators with x as its first operand,
/// and the sum likewise with the product as its first operand; infinity times zero and infinity minus infinity give
/// 0x7E00.
ZTHALF_API half_t fma(half_t x, half_t y, half_t z);

/// The distance of a and b in units in the last place of half at the smaller exponent of the two.
///
/// A float or double operand takes part with its full width, and with the half it rounds to where exponents are
/// compared. Two NaNs are 0 apart, one NaN is infinitely far from anything else. +0 and -0 are 0.5 apart, and so are
/// 65504 and infinity of the same sign. An infinity is 0 from what rounds to the same infinity and otherwise infinitely
/// far away.
ZTHALF_API double ulp(half_t a, half_t b);
ZTHALF_API double ulp(half_t a, float b);
ZTHALF_API double ulp(half_t a, double b);
ZTHALF_API double ulp(float a, half_t b);
ZTHALF_API double ulp(double a, half_t b);

/// Complex values.
///
/// uminus: both signs changed, conj: that of the imaginary part; an imaginary part is never -0 in either.
/// ceil, floor, fix, round: the real function on each part.
/// abs: sqrt(re^2 + im^2), the exact sum's root rounded once; with a NaN it is 0x7E00 with the sign of the real part's
/// NaN, or else of the imaginary part's, beside an infinity too.
/// eps: eps of the magnitude. sign: z / |z| with each part rounded once; with an imaginary part of zero -1, +0, +1 or a
/// quiet NaN, and +0.
/// isnan, isinf: whether either part is one; isfinite: whether both parts are.
/// hypot: hypot of the two magnitudes, each of which is rounded to half before.
ZTHALF_API std::complex<half_t> uminus(std::complex<half_t> z);
ZTHALF_API std::complex<half_t> conj(std::complex<half_t> z);
ZTHALF_API std::complex<half_t> ceil(std::complex<half_t> z);
ZTHALF_API std::complex<half_t> floor(std::complex<half_t> z);
ZTHALF_API std::complex<half_t> fix(std::complex<half_t> z);
ZTHALF_API std::complex<half_t> round(std::complex<half_t> z);
ZTHALF_API std::complex<half_t> sign(std::complex<half_t> z);
ZTHALF_API half_t abs(std::complex<half_t> z);
ZTHALF_API half_t eps(std::complex<half_t> z);
ZTHALF_API bool isnan(std::complex<half_t> z);
ZTHALF_API bool isinf(std::complex<half_t> z);
ZTHALF_API bool isfinite(std::complex<half_t> z);
ZTHALF_API half_t hypot(std::complex<half_t> x, std::complex<half_t> y);

/// Exponentials, logarithms, roots and powers of complex values, computed in single precision, each part rounded to
/// half once. On the real axis, where the imaginary part is a zero of either sign, a function that is real there gives
/// the real function's result and an imaginary part of +0. NaN results are 0x7E00 and 0xFE00; where nothing else is
/// told a NaN in either part gives NaNs in both.

/// The root with a real part that is not negative; an imaginary part of -0 counts as +0, so that sqrt of (-4, -0) is
/// (+0, 2). An infinite imaginary part beside a number gives infinity and that part. A real NaN keeps its sign beside
/// +0; any other NaN gives 0x7E00 twice. Here the modulus is computed in double.
ZTHALF_API std::complex<half_t> sqrt(std::complex<half_t> z);
/// exp(z) and exp(z) - 1. A real part of -infinity gives two zeros, or -1 and +0, for every imaginary part that is no
/// NaN; elsewhere an infinite imaginary part gives 0xFE00 twice. Unlike exp of a half, exp is not coarser than the
/// others. expm1 keeps the digits of small arguments.
ZTHALF_API std::complex<half_t> exp(std::complex<half_t> z);
ZTHALF_API std::complex<half_t> expm1(std::complex<half_t> z);
/// 10 and 2 to the power z: power of (10, 0) and (2, 0).
ZTHALF_API std::complex<half_t> pow10(std::complex<half_t> z);
ZTHALF_API std::complex<half_t> pow2(std::complex<half_t> z);
/// The principal logarithms to base e, 2 and 10, and ln(1 + z). On the real axis a negative number (for log1p: one
/// below -1) has an imaginary part of pi over the logarithm of the base, positive for either sign of the zero; all else
/// has the real logarithm and +0, so that a zero (for log1p: -1) gives (-infinity, +0). On the imaginary axis, for
/// log1p where the real part is -1, the imaginary part is half of that with the sign of the imaginary part. Elsewhere a
/// NaN gives a NaN and 0xFE00.
ZTHALF_API std::complex<half_t> log(std::complex<half_t> z);
ZTHALF_API std::complex<half_t> log1p(std::complex<half_t> z);
ZTHALF_API std::complex<half_t> log2(std::complex<half_t> z);
ZTHALF_API std::complex<half_t> log10(std::complex<half_t> z);
/// z to the power w. The first case that holds decides:
///   w is 2                              z times z
///   z and w real                        power of the real parts and +0, unless z is negative and w a finite number
///                                       that is not an integer (for -infinity: a positive one)
///   w not real, infinite or a NaN       exp(w log z)
///   w is 0                              (1, +0), for a NaN 0xFE00 twice; (NaN, 0) has had the real power before
///   w real                              z to the integer part by repeated squaring, times z to the fractional part;
///                                       one over that for a negative w
/// A product whose parts overflow or meet as infinity minus infinity is formed again from scaled factors. A zero to an
/// infinitely imaginary power, without a real part of +infinity, is 0xFE00 twice.
ZTHALF_API std::complex<half_t> power(std::complex<half_t> z, std::complex<half_t> w);

/// Trigonometric and hyperbolic functions of complex values and their inverses, computed and rounded in the same way.
/// Where one part of z is zero and one part of the result is so by symmetry, that part is +0.

/// By the addition theorems. An infinite or NaN angle gives 0xFE00 as sine and cosine, and the products then go by the
/// rules of NaN operands, so that signs of NaNs may differ. sinpi and cospi are those of pi z: where sine or cosine of
/// the real part is an exact zero that part of the result stays a zero, beside an infinite factor too.
ZTHALF_API std::complex<half_t> sin(std::complex<half_t> z);
ZTHALF_API std::complex<half_t> cos(std::complex<half_t> z);
ZTHALF_API std::complex<half_t> sinpi(std::complex<half_t> z);
ZTHALF_API std::complex<half_t> cospi(std::complex<half_t> z);
ZTHALF_API std::complex<half_t> sinh(std::complex<half_t> z);
ZTHALF_API std::complex<half_t> cosh(std::complex<half_t> z);
/// Far from the real axis (for tanh: from the imaginary one) 1 or -1 remains, and a part next to zero.
ZTHALF_API std::complex<half_t> tan(std::complex<half_t> z);
ZTHALF_API std::complex<half_t> tanh(std::complex<half_t> z);
/// The principal values. On the real axis within the real function's domain, or for a real NaN, that function and +0.
/// Beyond, on the cuts, the sign of a zero imaginary part is not seen: asin(2) is (pi/2, -1.317), acos(2) is
/// (+0, 1.317), asin(-2) is (-pi/2, 1.317), acos(-2) is (pi, -1.317); atanh has an imaginary part of pi/2 with the sign
/// of the real part. Any other NaN gives NaNs in both parts.
ZTHALF_API std::complex<half_t> asin(std::complex<half_t> z);
ZTHALF_API std::complex<half_t> acos(std::complex<half_t> z);
ZTHALF_API std::complex<half_t> acosh(std::complex<half_t> z);
ZTHALF_API std::complex<half_t> atanh(std::complex<half_t> z);
/// atan(z) = -i atanh(i z), asinh(z) = -i asin(i z).
ZTHALF_API std::complex<half_t> atan(std::complex<half_t> z);
ZTHALF_API std::complex<half_t> asinh(std::complex<half_t> z);

/// Conversions between numbers and half patterns.
///
/// To half: to nearest, ties to even, in one rounding from every type, a double included; from 65520 on an infinity.
/// A NaN gives 0x7E00 with its sign.
/// From half: float and double hold every half exactly, and a NaN keeps its sign and payload. An integer is the nearest
/// one, ties away from zero, held in its type's range; infinities give the range's ends and a NaN gives 0. To an
/// unsigned type every pattern with the sign bit set gives 0. Logical is false for the two zeros and true for all else,
/// a NaN included.
namespace impl {

ZTHALF_API unsigned short convertSingleToHalf(float value);
ZTHALF_API unsigned short convertDoubleToHalf(double value);
ZTHALF_API unsigned short convertUint8ToHalf(unsigned char value);
ZTHALF_API unsigned short convertInt8ToHalf(signed char value);
ZTHALF_API unsigned short convertUint16ToHalf(unsigned short value);
ZTHALF_API unsigned short convertInt16ToHalf(short value);
ZTHALF_API unsigned short convertUint32ToHalf(unsigned int value);
ZTHALF_API unsigned short convertInt32ToHalf(int value);
ZTHALF_API unsigned short convertUint64ToHalf(unsigned long long value);
ZTHALF_API unsigned short convertInt64ToHalf(long long value);
ZTHALF_API unsigned short convertLogicalToHalf(bool value);

ZTHALF_API float convertHalfToSingle(unsigned short pattern);
ZTHALF_API double convertHalfToDouble(unsigned short pattern);
ZTHALF_API unsigned char convertHalfToUint8(unsigned short pattern);
ZTHALF_API signed char convertHalfToInt8(unsigned short pattern);
ZTHALF_API unsigned short convertHalfToUint16(unsigned short pattern);
ZTHALF_API short convertHalfToInt16(unsigned short pattern);
ZTHALF_API unsigned int convertHalfToUint32(unsigned short pattern);
ZTHALF_API int convertHalfToInt32(unsigned short pattern);
ZTHALF_API unsigned long long convertHalfToUint64(unsigned short pattern);
ZTHALF_API long long convertHalfToInt64(unsigned short pattern);
ZTHALF_API bool convertHalfToLogical(unsigned short pattern);

}  // namespace impl

}  // namespace half_scalar
