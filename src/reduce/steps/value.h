// What a chain of a reduction holds: a number or two parts, in the type in which the chain runs.
#pragma once

#include <complex>
#include <cstdint>

#include "core/bits.h"
#include "core/nan_policy.h"
#include "zthalf/half_t.h"

namespace half_utils {

template <class Wide, int parts>
struct value {
  Wide part[parts];
};

template <class Wide>
ZTHALF_INLINE bool isNaN(value<Wide, 1> x) {
  return x.part[0] != x.part[0];
}
template <class Wide>
ZTHALF_INLINE bool isNaN(value<Wide, 2> z) {
  return (z.part[0] != z.part[0]) | (z.part[1] != z.part[1]);
}

// first where the condition holds, second elsewhere, by masks: in vector lanes there is nothing to branch on.
template <class Wide, int parts>
ZTHALF_INLINE value<Wide, parts> chosen(bool condition, value<Wide, parts> first, value<Wide, parts> second) {
  using word = typename zthalf::formatOf<Wide>::word;
  const auto mask = zthalf::maskOf<word>(condition);
  for (int p = 0; p < parts; ++p) {
    second.part[p] =
        zthalf::valueOf(zthalf::select(mask, zthalf::bitsOf(first.part[p]), zthalf::bitsOf(second.part[p])));
  }
  return second;
}

// A chain of this accumulator type: what it runs in, and whether each step is rounded to half.
template <class Accumulator>
struct chainOf;

template <>
struct chainOf<fp16binary_t> {
  using wide = float;
  static constexpr int parts = 1;
  static constexpr bool roundsToHalf = true;
};
template <>
struct chainOf<float> {
  using wide = float;
  static constexpr int parts = 1;
  static constexpr bool roundsToHalf = false;
};
template <>
struct chainOf<double> {
  using wide = double;
  static constexpr int parts = 1;
  static constexpr bool roundsToHalf = false;
};
template <class Part>
struct chainOf<std::complex<Part>> {
  using wide = typename chainOf<Part>::wide;
  static constexpr int parts = 2;
  static constexpr bool roundsToHalf = chainOf<Part>::roundsToHalf;
};

}  // namespace half_utils
