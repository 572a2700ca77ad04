#include "scalar/kernels/rem_pio2_double.h"

#include <bit>
#include <cmath>

#include "scalar/kernels/double_fields.h"
#include "scalar/kernels/two_over_pi_digits.h"

namespace qsl_scalar {

namespace {

using wide = unsigned __int128;

// 64 bits of 2/pi after the first `skipped` ones; before the first there are zeros.
std::uint64_t twoOverPiBits(std::int32_t skipped) {
  const std::int32_t digit = (skipped + 64) / 8 - 8;
  const auto shift = static_cast<std::uint32_t>(skipped + 64) % 8;
  wide window = 0;
  for (std::int32_t i = digit; i < digit + 9; ++i) window = window << 8 | (i < 0 ? 0u : twoOverPiDigits[i]);
  return static_cast<std::uint64_t>(window >> (8 - shift));
}

}  // namespace

// x = M 2^e with an integer M of 53 bits, and x 2/pi = M (2^e 2/pi). Digits of 2/pi that give multiples of 4 are left
// out; of the next ones 192 are taken, so that with P those as an integer, M P modulo 2^192 holds two bits of n and 190
// of the fraction. What was cut off is below 2^53 of its last place, and no double comes nearer to a multiple of pi/2
// than 2^-62 of one: 2^-75 of the fraction at most is wrong.
//
// The fraction is brought to [-1/2, 1/2), normalised to 64 bits, and multiplied by 64 bits of pi/2. The leading 53 bits
// of the product are the upper part.
reducedAngleDouble remPio2Double(double x) {
  constexpr std::uint64_t halfPi = 0xC90FDAA22168C235u;  // pi/2 in units of 2^-63
  const std::uint64_t magnitude = zthalf::bitsOf(x) & doubles::magnitudeBits;
  const auto field = static_cast<std::int32_t>(magnitude >> 52);
  const std::uint64_t m = (magnitude & 0x000FFFFFFFFFFFFFu) | 0x0010000000000000u;
  const std::int32_t skipped = field - 1075 - 2;  // bits of 2/pi with a weight of 4 and more after the scaling

  // The words of P from the highest on, and M P modulo 2^192.
  const std::uint64_t first = twoOverPiBits(skipped);
  const std::uint64_t second = twoOverPiBits(skipped + 64);
  const std::uint64_t third = twoOverPiBits(skipped + 128);
  const wide low = wide{m} * third;
  const wide middle = wide{m} * second + (low >> 64);
  const std::uint64_t high = m * first + static_cast<std::uint64_t>(middle >> 64);

  // Two bits of the whole part, and 126 of the fraction.
  wide turned = wide{high} << 64 | static_cast<std::uint64_t>(middle);
  std::uint32_t n = static_cast<std::uint32_t>(turned >> 126);
  wide fraction = turned << 2 | static_cast<std::uint64_t>(low) >> 62;
  const bool isAbove = (fraction >> 127) != 0;
  if (isAbove) {
    n += 1;
    fraction = -fraction;
  }
  const auto upperWord = static_cast<std::uint64_t>(fraction >> 64);
  const int zeros =
      upperWord != 0 ? std::countl_zero(upperWord) : 64 + std::countl_zero(static_cast<std::uint64_t>(fraction) | 1);
  const auto normalised = static_cast<std::uint64_t>((fraction << zeros) >> 64);
  const wide angle = wide{normalised} * halfPi;  // in units of 2^(-127 - zeros)

  // The 53 leading bits, of 128 or 127, are exact as a double, and so is what is left of the next 64.
  const int places = (angle >> 127) != 0 ? 75 : 74;
  const auto leading = static_cast<double>(static_cast<std::uint64_t>(angle >> places));
  const auto rest = static_cast<double>(static_cast<std::uint64_t>((angle << (128 - places)) >> 64));
  const double upper = std::ldexp(leading, places - 127 - zeros);
  const double lower = std::ldexp(rest, places - 127 - zeros - 64);
  const bool isNegative = doubles::hasSign(x) != isAbove;
  return {doubles::hasSign(x) ? 0u - n : n, isNegative ? -upper : upper, isNegative ? -lower : lower};
}

}  // namespace qsl_scalar
