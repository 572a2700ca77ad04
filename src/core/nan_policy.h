// Which NaN an operation delivers. The one place that knows; no other code relies on what the processor chose.
//
// The unit that defines the results (docs/numerics.md) gives the positive default NaN for an invalid operation, and for
// NaN operands the first operand's NaN made quiet, unless only the second one is signalling. x86-64 gives a negative
// default NaN and does not look at signalling, and a compiler may swap the operands of an addition or a multiplication.
// AArch64 has the defining unit, and still the compiler may swap.
#pragma once

#include <cstdint>
#include <limits>

#include "core/bits.h"
#include "core/float_conversion.h"
#include "core/patterns.h"

namespace zthalf {

// The sign bit of the NaN that two half operands give, first and second in the order of the defining unit: 0 where
// neither is a NaN. Integer work on 16-bit lanes, so that it costs little in a wide pass. Only bit 15 of each word
// counts: the truth value of a mask, the sign of an operand.
ZTHALF_INLINE std::uint16_t signOfNaN(std::uint16_t first, std::uint16_t second) {
  // Adding 0x03FF to the magnitude carries into bit 15 exactly for a NaN.
  constexpr std::uint16_t step = 0x8000 - (pattern::infinity + 1);
  const auto firstNaN = static_cast<std::uint16_t>((first + step) ^ first);
  const auto secondNaN = static_cast<std::uint16_t>((second + step) ^ second);
  const auto onlySecondSignals = static_cast<std::uint16_t>((first & ~second) << 6);  // the quiet bits; for two NaNs
  const auto firstWins = static_cast<std::uint16_t>(firstNaN & ~(secondNaN & onlySecondSignals));
  const auto otherwise = static_cast<std::uint16_t>(second & secondNaN);
  return static_cast<std::uint16_t>(((first & firstWins) | (otherwise & ~firstWins)) & pattern::signBit);
}

// The half result of an operation on the half operands first and second, in the order of the defining unit, whose plain
// result in single, or rounded to half, is given. A NaN operand makes the plain result a NaN.
ZTHALF_INLINE std::uint16_t settled(float plain, std::uint16_t first, std::uint16_t second) {
  return static_cast<std::uint16_t>(narrowWithoutNaNSign(plain) | signOfNaN(first, second));
}

ZTHALF_INLINE std::uint16_t settled(std::uint16_t rounded, std::uint16_t first, std::uint16_t second) {
  const auto signOfOwn = static_cast<std::uint16_t>(pattern::nanMask(rounded) & pattern::signBit);
  return static_cast<std::uint16_t>((rounded & ~signOfOwn) | signOfNaN(first, second));
}

// The same for an operation on one half operand that has no negative results: a sign can only be that of a NaN which
// came in.
ZTHALF_INLINE std::uint16_t settledUnsigned(std::uint16_t rounded, std::uint16_t operand) {
  return pattern::magnitudeOf(rounded) | (pattern::signOf(operand) & pattern::nanMask(operand));
}

// A NaN made quiet, its sign and the rest of its payload kept; what is not a NaN must not come here.
template <class Wide>
ZTHALF_INLINE Wide quieted(Wide nan) {
  using format = formatOf<Wide>;
  return valueOf(bitsOf(nan) | typename format::word{1} << (format::fractionWidth - 1));
}

// The same for any x: a number stays as it is. By masks, for vector lanes.
template <class Wide>
ZTHALF_INLINE Wide withQuietNaN(Wide x) {
  using format = formatOf<Wide>;
  using word = typename format::word;
  return valueOf(bitsOf(x) | (maskOf<word>(x != x) & (word{1} << (format::fractionWidth - 1))));
}

template <class Wide>
ZTHALF_INLINE bool isSignalling(Wide x) {
  using format = formatOf<Wide>;
  return x != x && (bitsOf(x) & (typename format::word{1} << (format::fractionWidth - 1))) == 0;
}

// Whether a signalling single is quiet once it is a double, whatever did the widening. On x86-64 and 64-bit ARM it is:
// every instruction that widens makes it so, in vector lanes too, and compilers do where they know the value. They may
// leave the widening out only where nobody looks at the double's bits. On POWER it depends: vector instructions do it,
// but a single is loaded as a double with its bits as they were.
#if defined(__x86_64__) || defined(__aarch64__)
inline constexpr bool wideningQuiets = true;
#else
inline constexpr bool wideningQuiets = false;
#endif

// A single as a double, exactly; a NaN has become quiet, its sign and payload kept. Where it matters afterwards which
// kind of NaN it is, a single becomes a double here and nowhere else.
ZTHALF_INLINE double asDouble(float x) {
  const double wide = x;
  return wideningQuiets ? wide : withQuietNaN(wide);
}

// The default NaN of an invalid operation: positive.
template <class Wide>
inline constexpr Wide defaultNaN = std::numeric_limits<Wide>::quiet_NaN();

// The single or double result of an operation on (first, second), in the order of the defining unit, whose plain
// result was plain.
template <class Wide>
ZTHALF_INLINE Wide settled(Wide plain, Wide first, Wide second) {
  const bool firstNaN = first != first;
  const bool secondNaN = second != second;
  const bool secondWins = secondNaN && (!firstNaN || (!isSignalling(first) && isSignalling(second)));
  const Wide operand = quieted(secondWins ? second : first);
  const Wide nan = firstNaN || secondNaN ? operand : defaultNaN<Wide>;
  return plain != plain ? nan : plain;
}

// The same where the first operand is no signalling NaN, as the result of an earlier operation; by masks, for chains in
// vector lanes.
template <class Wide>
ZTHALF_INLINE Wide settledAfterResult(Wide plain, Wide first, Wide second) {
  using word = typename formatOf<Wide>::word;
  constexpr word quiet = word{1} << (formatOf<Wide>::fractionWidth - 1);
  const word firstNaN = maskOf<word>(first != first);
  const word secondNaN = maskOf<word>(second != second);
  const word signalling = maskOf<word>((bitsOf(second) & quiet) == 0);
  const word nan = select(firstNaN, bitsOf(first), bitsOf(defaultNaN<Wide>));
  const word settledNaN = select(secondNaN & (signalling | ~firstNaN), bitsOf(second) | quiet, nan);
  return valueOf(select(maskOf<word>(plain != plain), settledNaN, bitsOf(plain)));
}

// The same for an operation on one operand.
template <class Wide>
ZTHALF_INLINE Wide settled(Wide plain, Wide operand) {
  const Wide nan = operand != operand ? quieted(operand) : defaultNaN<Wide>;
  return plain != plain ? nan : plain;
}

}  // namespace zthalf
