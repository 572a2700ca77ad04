// Exponentials, logarithms, roots, powers, trigonometric and hyperbolic functions of single complex halves.
#include "scalar/complex/exponential.h"
#include "scalar/complex/inverse_functions.h"
#include "scalar/complex/logarithm.h"
#include "scalar/complex/power.h"
#include "scalar/complex/root.h"
#include "scalar/complex/trigonometric.h"
#include "zthalf/half_scalar.h"

namespace half_scalar {

namespace {

using complexHalf = std::complex<half_t>;

zthalf::complexHalf bare(complexHalf z) { return {z.real().bits, z.imag().bits}; }
complexHalf dressed(zthalf::complexHalf z) { return {half_t{z.re}, half_t{z.im}}; }

}  // namespace

complexHalf sqrt(complexHalf z) { return dressed(zthalf::sqrtOf(bare(z))); }
complexHalf exp(complexHalf z) { return dressed(zthalf::expOf(bare(z))); }
complexHalf expm1(complexHalf z) { return dressed(zthalf::expm1Of(bare(z))); }
complexHalf pow10(complexHalf z) { return dressed(zthalf::pow10Of(bare(z))); }
complexHalf pow2(complexHalf z) { return dressed(zthalf::pow2Of(bare(z))); }
complexHalf log(complexHalf z) { return dressed(zthalf::logOf(bare(z))); }
complexHalf log1p(complexHalf z) { return dressed(zthalf::log1pOf(bare(z))); }
complexHalf log2(complexHalf z) { return dressed(zthalf::log2Of(bare(z))); }
complexHalf log10(complexHalf z) { return dressed(zthalf::log10Of(bare(z))); }
complexHalf power(complexHalf z, complexHalf w) { return dressed(zthalf::complexPowerOf(bare(z), bare(w))); }

complexHalf sin(complexHalf z) { return dressed(zthalf::sinOf(bare(z))); }
complexHalf cos(complexHalf z) { return dressed(zthalf::cosOf(bare(z))); }
complexHalf tan(complexHalf z) { return dressed(zthalf::tanOf(bare(z))); }
complexHalf sinpi(complexHalf z) { return dressed(zthalf::sinpiOf(bare(z))); }
complexHalf cospi(complexHalf z) { return dressed(zthalf::cospiOf(bare(z))); }
complexHalf asin(complexHalf z) { return dressed(zthalf::asinOf(bare(z))); }
complexHalf acos(complexHalf z) { return dressed(zthalf::acosOf(bare(z))); }
complexHalf atan(complexHalf z) { return dressed(zthalf::atanOf(bare(z))); }
complexHalf sinh(complexHalf z) { return dressed(zthalf::sinhOf(bare(z))); }
complexHalf cosh(complexHalf z) { return dressed(zthalf::coshOf(bare(z))); }
complexHalf tanh(complexHalf z) { return dressed(zthalf::tanhOf(bare(z))); }
complexHalf asinh(complexHalf z) { return dressed(zthalf::asinhOf(bare(z))); }
complexHalf acosh(complexHalf z) { return dressed(zthalf::acoshOf(bare(z))); }
complexHalf atanh(complexHalf z) { return dressed(zthalf::atanhOf(bare(z))); }

}  // namespace half_scalar
