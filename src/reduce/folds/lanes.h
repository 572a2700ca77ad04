// Chains that run side by side in vector lanes. Each lane does what a chain alone would do, in the same order.
#pragma once

#include <cstdint>

#include "core/float_conversion.h"
#include "core/instruction_level.h"
#include "reduce/steps/steps.h"

namespace half_utils {

inline constexpr unsigned tileLanes = 16;

using patternVector = std::uint16_t __attribute__((vector_size(16)));
using pairVector = std::uint32_t __attribute__((vector_size(16)));
using quadVector = std::uint64_t __attribute__((vector_size(16)));

// Eight patterns of each of eight arrays, from one array after the other to one index after the other. The results lie
// tileLanes apart.
ZTHALF_INLINE void transposeEight(std::uint16_t const* const* arrays, unsigned long at, std::uint16_t* out) {
  patternVector a[8], b[8];
  for (int i = 0; i < 8; ++i) __builtin_memcpy(&a[i], arrays[i] + at, sizeof a[i]);
  for (int i = 0; i < 4; ++i) {
    b[2 * i] = __builtin_shufflevector(a[2 * i], a[2 * i + 1], 0, 8, 1, 9, 2, 10, 3, 11);
    b[2 * i + 1] = __builtin_shufflevector(a[2 * i], a[2 * i + 1], 4, 12, 5, 13, 6, 14, 7, 15);
  }
  for (int i = 0; i < 2; ++i) {
    for (int half = 0; half < 2; ++half) {
      const auto first = reinterpret_cast<pairVector>(b[4 * i + half]);
      const auto second = reinterpret_cast<pairVector>(b[4 * i + half + 2]);
      a[4 * i + 2 * half] = reinterpret_cast<patternVector>(__builtin_shufflevector(first, second, 0, 4, 1, 5));
      a[4 * i + 2 * half + 1] = reinterpret_cast<patternVector>(__builtin_shufflevector(first, second, 2, 6, 3, 7));
    }
  }
  for (int i = 0; i < 4; ++i) {
    const auto first = reinterpret_cast<quadVector>(a[i]);
    const auto second = reinterpret_cast<quadVector>(a[i + 4]);
    const auto even = reinterpret_cast<patternVector>(__builtin_shufflevector(first, second, 0, 2));
    const auto odd = reinterpret_cast<patternVector>(__builtin_shufflevector(first, second, 1, 3));
    __builtin_memcpy(out + 2 * i * tileLanes, &even, sizeof even);
    __builtin_memcpy(out + (2 * i + 1) * tileLanes, &odd, sizeof odd);
  }
}

template <class Step, bool settles>
ZTHALF_INLINE typename Step::number advanced(typename Step::number folded, typename Step::number next) {
  if constexpr (settles) {
    return Step::settled(folded, next);
  } else {
    return Step::plain(folded, next);
  }
}

// The next value of a chain, whose parts stand so far apart.
template <class Step, bool settles>
ZTHALF_INLINE typename Step::number nextNumber(std::uint16_t const* element, unsigned distance) {
  std::uint16_t patterns[Step::parts];
  for (int p = 0; p < Step::parts; ++p) patterns[p] = element[p * distance];
  if constexpr (!settles && requires { Step::admit(patterns); }) Step::admit(patterns);
  typename Step::number x;
  for (int p = 0; p < Step::parts; ++p) x.part[p] = zthalf::widen<typename Step::wide>(patterns[p]);
  return x;
}

// The chains of a tile, over `n` elements of each of tileLanes arrays, going on from numbers[part][lane].
template <class Step, bool settles>
struct tilePass {
  static constexpr bool isWide = zthalf::earnsLevels<Step>;
  using wide = typename Step::wide;
  static constexpr int parts = Step::parts;

  ZTHALF_INLINE static void run(std::uint16_t const* const* arrays, unsigned long n, wide* numbers) {
    const unsigned long patterns = n * parts;
    std::uint16_t block[8 * tileLanes];
    unsigned long at = 0;
    for (; at + 8 <= patterns; at += 8) {
      transposeEight(arrays, at, block);
      transposeEight(arrays + 8, at, block + 8);
      for (int row = 0; row < 8; row += parts) step(block + row * tileLanes, numbers);
    }
    for (; at < patterns; at += parts) {
      for (int p = 0; p < parts; ++p) {
        for (unsigned lane = 0; lane < tileLanes; ++lane) block[p * tileLanes + lane] = arrays[lane][at + p];
      }
      step(block, numbers);
    }
  }

 private:
  ZTHALF_INLINE static void step(std::uint16_t const* next, wide* numbers) {
    for (unsigned lane = 0; lane < tileLanes; ++lane) {
      typename Step::number folded;
      for (int p = 0; p < parts; ++p) folded.part[p] = numbers[p * tileLanes + lane];
      folded = advanced<Step, settles>(folded, nextNumber<Step, settles>(next + lane, tileLanes));
      for (int p = 0; p < parts; ++p) numbers[p * tileLanes + lane] = folded.part[p];
    }
  }
};

// 1 for an element without a NaN in any part, otherwise 0.
template <int parts>
ZTHALF_INLINE std::uint16_t isNumber(std::uint16_t const* element) {
  std::uint16_t anyNaN = 0;
  for (int p = 0; p < parts; ++p) anyNaN |= zthalf::pattern::nanMask(element[p]);
  return (~anyNaN) & 1u;
}

// One step of each of n neighbouring chains: chain j goes from folded[part * stride + j] and the j-th of the given
// elements to out at the same place. *becameNaN is set to whether any of the results is a NaN.
template <class Step, bool settles>
struct rowPass {
  static constexpr bool isWide = zthalf::earnsLevels<Step>;
  using wide = typename Step::wide;
  static constexpr int parts = Step::parts;

  ZTHALF_INLINE static void run(std::uint16_t const* elements, unsigned long n, wide const* folded, wide* out,
                                unsigned long stride, bool* becameNaN) {
    using word = typename zthalf::formatOf<wide>::word;
    word anyNaN = 0;
    for (unsigned long j = 0; j < n; ++j) {
      typename Step::number number;
      for (int p = 0; p < parts; ++p) number.part[p] = folded[p * stride + j];
      number = advanced<Step, settles>(number, nextNumber<Step, settles>(elements + j * parts, 1));
      for (int p = 0; p < parts; ++p) {
        out[p * stride + j] = number.part[p];
        anyNaN |= zthalf::maskOf<word>(number.part[p] != number.part[p]);
      }
    }
    *becameNaN = anyNaN != 0;
  }
};

// How many of n elements are numbers, at most 256 of them: no NaN in any part.
template <int parts>
struct numbersPass {
  static constexpr bool isWide = true;
  ZTHALF_INLINE static void run(std::uint16_t const* elements, unsigned long n, unsigned long* count) {
    std::uint16_t numbers = 0;
    for (unsigned long i = 0; i < n; ++i) numbers += isNumber<parts>(elements + i * parts);
    *count += numbers;
  }
};

// The same for each of n places: counts[j] goes up by one for a number.
template <int parts>
struct numbersRowPass {
  static constexpr bool isWide = true;
  ZTHALF_INLINE static void run(std::uint16_t const* elements, unsigned long n, std::uint16_t* counts) {
    for (unsigned long j = 0; j < n; ++j) counts[j] += isNumber<parts>(elements + j * parts);
  }
};

}  // namespace half_utils
