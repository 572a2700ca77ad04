#include "scalar/kernels/mod.h"

#include <cmath>

#include "core/bits.h"
#include "core/float_conversion.h"
#include "scalar/kernels/exact_remainder.h"

namespace qsl_scalar {

namespace {

// The cases in the order of their precedence; magnitudes are compared as patterns. For |x| < |y| and different signs
// the sum x + y is the result, rounded, and with an infinite y it is y.
template <class Wide>
Wide modOf(Wide x, Wide y) {
  using format = zthalf::formatOf<Wide>;
  using word = typename format::word;
  using zthalf::bitsOf;
  using zthalf::valueOf;
  constexpr word signBit = word{1} << (8 * sizeof(Wide) - 1);
  constexpr word infinity = static_cast<word>(2 * format::bias + 1) << format::fractionWidth;
  constexpr word negativeNaN = signBit | infinity | word{1} << (format::fractionWidth - 1);

  const word magnitudeX = bitsOf(x) & ~signBit;
  const word magnitudeY = bitsOf(y) & ~signBit;
  const word signOfX = bitsOf(x) & signBit;
  const Wide zero = valueOf(bitsOf(y) & signBit);
  const bool signsAgree = ((bitsOf(x) ^ bitsOf(y)) & signBit) == 0;

  if (magnitudeY == 0) return magnitudeX == 0 ? y : x;
  if (magnitudeX >= infinity || magnitudeY > infinity) return valueOf(negativeNaN);
  if (magnitudeX < magnitudeY) {
    if (signsAgree) return x;
    return magnitudeX == 0 ? zero : x + y;
  }
  if (magnitudeX == magnitudeY) return zero;

  const word remainder = bitsOf(exactRemainder(valueOf(magnitudeX), valueOf(magnitudeY)));
  if (remainder == 0) return zero;
  const Wide signedRemainder = valueOf(remainder | signOfX);
  // The sum is between zero and y; where subnormals are flushed it would lose the sign.
  return signsAgree ? signedRemainder : std::copysign(y + signedRemainder, y);
}

}  // namespace

float modSingle(float x, float y) { return modOf(x, y); }
double modDouble(double x, double y) { return modOf(x, y); }

}  // namespace qsl_scalar
