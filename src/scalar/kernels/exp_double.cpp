#include "scalar/kernels/exp_double.h"

#include "scalar/kernels/double_fields.h"

namespace qsl_scalar {

namespace {

using zthalf::doubleOf;

constexpr double log2E = doubleOf(0x3FF71547652B82FEu);  // 1.4426950408889634

// ln 2 with 32 significant bits, so that k times it is exact, and the rest.
constexpr double ln2Leading = doubleOf(0x3FE62E42FEE00000u);   // 0.6931471803691238
constexpr double ln2Trailing = doubleOf(0x3DEA39EF35793C76u);  // 1.9082149292705877e-10

// With c = r - r^2 (c1 + c2 r^2 + ...), near r - (r coth(r/2) - 2): exp(r) = 1 + r + r c / (2 - c). The coefficients
// are near 1/6, -1/360, 1/15120, ... and fitted.
double correction(double r) {
  constexpr double c1 = doubleOf(0x3FC555555555553Eu);  // 0.16666666666666602
  constexpr double c2 = doubleOf(0xBF66C16C16BEBD93u);  // -0.0027777777777015593
  constexpr double c3 = doubleOf(0x3F11566AAF25DE2Cu);  // 6.613756321437934e-05
  constexpr double c4 = doubleOf(0xBEBBBD41C5D26BF1u);  // -1.6533902205465252e-06
  constexpr double c5 = doubleOf(0x3E66376972BEA4D0u);  // 4.1381367970572385e-08
  const double square = r * r;
  return r - square * (square * (square * (square * (square * c5 + c4) + c3) + c2) + c1);
}

// y * 2^k for y near 1; below the normal range it is built 2^1000 times too large and rounded into place once.
double scaled(double y, std::int32_t k) {
  using doubles::exponentStep;
  using doubles::highWordRaised;
  if (k < -1021) return highWordRaised(y, (k + 1000) * exponentStep) * 0x1p-1000;
  if (k == 1024) return highWordRaised(y, 1023 * exponentStep) * 2.0;
  return highWordRaised(y, k * exponentStep);
}

}  // namespace

// As the exponential in single precision: x = k ln 2 + r with |r| up to about 0.3466, exp(r) by its rational form, k
// into the exponent, and the two parts of r once more where they enter to first order.
//
// In order: NaN; overflow and +infinity; underflow and -infinity; tiny, where the result is 1 + x; up to ln(2)/2, where
// nothing is reduced; all else.
double expDouble(double x) {
  constexpr double overflow = doubleOf(0x40862E42FEFA39EFu);   // 709.782712893384
  constexpr double underflow = doubleOf(0xC0874910D52D3051u);  // -745.1332191019411
  constexpr double halfLn2 = doubleOf(0x3FD62E42FEFA39EFu);    // 0.34657359027997264
  if (x != x) return doubles::domainNaN;
  if (x > overflow) return doubles::infinity;
  if (x < underflow) return 0.0;

  const double magnitude = doubles::magnitudeOf(x);
  if (magnitude < 0x1p-28) return x + 1.0;
  if (magnitude <= halfLn2) {
    const double c = correction(x);
    return (x - (x * c) / (c - 2.0)) + 1.0;
  }
  const auto k = static_cast<std::int32_t>(x * log2E + (doubles::hasSign(x) ? -0.5 : 0.5));
  const double leading = x - static_cast<double>(k) * ln2Leading;
  const double trailing = static_cast<double>(k) * ln2Trailing;
  const double r = leading - trailing;
  const double c = correction(r);
  return scaled((leading - (trailing - (r * c) / (2.0 - c))) + 1.0, k);
}

}  // namespace qsl_scalar
