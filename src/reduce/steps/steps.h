// One step of a chain: a combination of what was folded so far and the next value.
//
// A step has
//
//   accumulator, wide, parts, number          the accumulator's type in the interface and what stands for it here
//   number identity()
//   number settled(number folded, number next)
//                                             the result, NaNs as on the defined unit, `folded` being the first
//                                             operand
//   number plain(number folded, number next)  the same but for a NaN, which may be another one
//   plainIsEnough                             the two are the same function
//   number finished(number total, number partial)
//                                             a run's tree joins the total of its column: as settled(), but where the
//                                             chain rounds to half the partial is the first operand
//
// and, if it likes,
//
//   void admit(next)                          changes the next value's patterns before they are widened for plain()
//   neutral                                   a half that leaves what was folded as it is, in plain()
//
// A NaN never leaves a plain chain: if its end is no NaN, none occurred.
#pragma once

#include "core/patterns.h"
#include "reduce/steps/rounded_to_half.h"
#include "reduce/steps/value.h"

namespace half_utils {

struct addition {
  static constexpr float identity = 0;
  static constexpr std::uint16_t neutral = 0x8000;  // minus zero, which leaves both zeros as they are
  template <class Wide>
  ZTHALF_INLINE static Wide apply(Wide a, Wide b) {
    return a + b;
  }
};

struct multiplication {
  static constexpr float identity = 1;
  static constexpr std::uint16_t neutral = zthalf::pattern::one;
  template <class Wide>
  ZTHALF_INLINE static Wide apply(Wide a, Wide b) {
    return a * b;
  }
};

template <class Accumulator>
struct stepOn {
  using accumulator = Accumulator;
  using wide = typename chainOf<Accumulator>::wide;
  static constexpr int parts = chainOf<Accumulator>::parts;
  using number = value<wide, parts>;
};

// An operation on each part by itself: the sum of real and of complex numbers, the product of real ones.
template <class Operation, class Accumulator>
struct partwiseStep : stepOn<Accumulator> {
  using typename stepOn<Accumulator>::number;
  static constexpr bool plainIsEnough = false;
  static constexpr std::uint16_t neutral = Operation::neutral;

  static number identity() { return {{Operation::identity}}; }

  ZTHALF_INLINE static number plain(number folded, number next) {
    for (int p = 0; p < stepOn<Accumulator>::parts; ++p)
      folded.part[p] = rounded(Operation::apply(folded.part[p], next.part[p]));
    return folded;
  }
  ZTHALF_INLINE static number settled(number folded, number next) {
    for (int p = 0; p < stepOn<Accumulator>::parts; ++p) {
      const auto result = Operation::apply(folded.part[p], next.part[p]);
      folded.part[p] = rounded(zthalf::settledAfterResult(result, folded.part[p], next.part[p]));
    }
    return folded;
  }
  static number finished(number total, number partial) {
    return chainOf<Accumulator>::roundsToHalf ? settled(partial, total) : settled(total, partial);
  }

 private:
  template <class Wide>
  ZTHALF_INLINE static Wide rounded(Wide x) {
    if constexpr (chainOf<Accumulator>::roundsToHalf) {
      return roundedToHalf(x);
    } else {
      return x;
    }
  }
};

// Steps that leave NaNs out. A choice among lanes of 64 bits is dear, and the base level has none: for chains in double
// NaNs are replaced before they are widened, among lanes of 16 bits, by a half that leaves every chain as it is. Among
// lanes of 32 bits that gains nothing.

template <class Step>
inline constexpr bool takesNeutral = requires {
  Step::neutral;
  requires sizeof(typename Step::wide) == sizeof(double);
};

template <class Step>
struct omittingNaN : Step {
  using typename Step::number;
  static constexpr bool plainIsEnough = false;

  ZTHALF_INLINE static void admit(std::uint16_t (&next)[Step::parts]) {
    if constexpr (takesNeutral<Step>) {
      std::uint16_t isNaN = 0;
      for (const std::uint16_t part : next) isNaN |= zthalf::pattern::nanMask(part);
      for (std::uint16_t& part : next) part = zthalf::select(isNaN, Step::neutral, part);
    }
  }
  ZTHALF_INLINE static number plain(number folded, number next) {
    if constexpr (takesNeutral<Step>) {
      return Step::plain(folded, next);
    } else {
      return chosen(isNaN(next), folded, Step::plain(folded, next));
    }
  }
};

// A NaN neither enters the chain nor survives in it: one that the operation itself made is thrown away at the next step
// with all that was folded before, and the next value takes its place. A chain that made none need not look for it.
template <class Step>
struct replacingNaN : omittingNaN<Step> {
  using typename Step::number;

  ZTHALF_INLINE static number settled(number folded, number next) {
    return met(folded, next, Step::settled(folded, next));
  }
  static number finished(number total, number partial) { return met(total, partial, Step::finished(total, partial)); }

 private:
  ZTHALF_INLINE static number met(number folded, number next, number result) {
    const number numbers = chosen(isNaN(next), folded, result);
    return chosen(isNaN(folded), chosen(isNaN(next), Step::identity(), next), numbers);
  }
};

// A NaN does not enter the chain; one that the operation made stays.
template <class Step>
struct skippingNaN : omittingNaN<Step> {
  using typename Step::number;

  ZTHALF_INLINE static number settled(number folded, number next) {
    return chosen(isNaN(next), folded, Step::settled(folded, next));
  }
};

}  // namespace half_utils
