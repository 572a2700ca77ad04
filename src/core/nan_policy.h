// Which NaN an operation delivers. The one place that knows; no other code relies on what the processor chose.
// Internal: promises nothing to users of the library.
//
// The unit that defines the results gives the positive default NaN for an invalid operation, and for NaN operands the
// first operand's NaN made quiet, unless only the second one is signalling. x86-64 gives a negative default NaN and
// does not look at signalling, and a compiler may swap the operands of an addition or a multiplication. AArch64 has
// the defining unit, and still the compiler may swap.
#pragma once

#include <cstdint>
#include <limits>

#include "core/bits.h"
#include "core/float_conversion.h"
#include "core/patterns.h"

namespace zthalf {

// The half result of an operation on the half operands first and second, in the order of the defining unit, whose
// plain result was rounded. Integer work on 16-bit lanes, so that it costs little in a wide pass.
ZTHALF_INLINE std::uint16_t settled(std::uint16_t rounded, std::uint16_t first, std::uint16_t second) {
  using pattern::infinity;
  using pattern::magnitudeBits;
  using pattern::quietBit;
  // With the quiet bit flipped, exactly the signalling NaNs have a magnitude above 0x7E00.
  constexpr std::int16_t lastQuiet = infinity ^ quietBit;
  const auto firstMagnitude = static_cast<std::int16_t>(first & magnitudeBits);
  const auto secondMagnitude = static_cast<std::int16_t>(second & magnitudeBits);
  const auto firstNaN = maskOf<std::uint16_t>(firstMagnitude > std::int16_t{infinity});
  const auto secondNaN = maskOf<std::uint16_t>(secondMagnitude > std::int16_t{infinity});
  const auto firstSignals = maskOf<std::uint16_t>(static_cast<std::int16_t>(firstMagnitude ^ quietBit) > lastQuiet);
  const auto secondSignals = maskOf<std::uint16_t>(static_cast<std::int16_t>(secondMagnitude ^ quietBit) > lastQuiet);
  const auto secondWins = static_cast<std::uint16_t>(
      secondNaN & (static_cast<std::uint16_t>(~firstNaN) | static_cast<std::uint16_t>(secondSignals & ~firstSignals)));
  const auto operandSign = static_cast<std::uint16_t>(
      select<std::uint16_t>(secondWins, second, static_cast<std::uint16_t>(first & firstNaN)) & pattern::signBit);
  const auto resultNaN =
      maskOf<std::uint16_t>(static_cast<std::int16_t>(rounded & magnitudeBits) > std::int16_t{infinity});
  const auto unsignedNaN = static_cast<std::uint16_t>(rounded & ~(resultNaN & pattern::signBit));
  return static_cast<std::uint16_t>(unsignedNaN | operandSign);
}

// The same for an operation on one half operand that has no negative results: a sign can only be that of a NaN which
// came in.
ZTHALF_INLINE std::uint16_t settledUnsigned(std::uint16_t rounded, std::uint16_t operand) {
  const auto operandNaN = maskOf<std::uint16_t>(static_cast<std::int16_t>(pattern::magnitudeOf(operand)) >
                                                static_cast<std::int16_t>(pattern::infinity));
  return pattern::magnitudeOf(rounded) | (pattern::signOf(operand) & operandNaN);
}

// A NaN made quiet, its sign and the rest of its payload kept; what is not a NaN must not come here.
template <class Wide>
ZTHALF_INLINE Wide quieted(Wide nan) {
  using format = formatOf<Wide>;
  return valueOf(bitsOf(nan) | typename format::word{1} << (format::fractionWidth - 1));
}

template <class Wide>
ZTHALF_INLINE bool isSignalling(Wide x) {
  using format = formatOf<Wide>;
  return x != x && (bitsOf(x) & (typename format::word{1} << (format::fractionWidth - 1))) == 0;
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

// The same for an operation on one operand.
template <class Wide>
ZTHALF_INLINE Wide settled(Wide plain, Wide operand) {
  const Wide nan = operand != operand ? quieted(operand) : defaultNaN<Wide>;
  return plain != plain ? nan : plain;
}

}  // namespace zthalf
