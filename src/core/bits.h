// Bit views of the machine's floats, and the word that keeps helpers inside the pass that uses them.
#pragma once

#include <bit>
#include <cstdint>

// A wide pass is compiled for an instruction level of its own. Whatever it calls must be merged into it, or the call
// would run baseline code one element at a time; the compilers' own judgement is not enough for that.
#define ZTHALF_INLINE inline __attribute__((always_inline))

namespace zthalf {

ZTHALF_INLINE constexpr std::uint32_t bitsOf(float value) { return std::bit_cast<std::uint32_t>(value); }
ZTHALF_INLINE constexpr std::uint64_t bitsOf(double value) { return std::bit_cast<std::uint64_t>(value); }
ZTHALF_INLINE constexpr float floatOf(std::uint32_t word) { return std::bit_cast<float>(word); }
ZTHALF_INLINE constexpr double doubleOf(std::uint64_t word) { return std::bit_cast<double>(word); }

ZTHALF_INLINE constexpr float valueOf(std::uint32_t word) { return floatOf(word); }
ZTHALF_INLINE constexpr double valueOf(std::uint64_t word) { return doubleOf(word); }

// All ones where the condition holds: the form of a selection that every vector unit has.
template <class Word>
ZTHALF_INLINE constexpr Word maskOf(bool condition) {
  return static_cast<Word>(-static_cast<Word>(condition));
}

// first where the mask is all ones, second where it is zero.
template <class Word>
ZTHALF_INLINE constexpr Word select(Word mask, Word first, Word second) {
  return static_cast<Word>((first & mask) | (second & ~mask));
}

// Clamps. Each is a function of its own, so that the compiler has made a minimum or maximum of it before it is merged
// into a pass. Written in place it stays a branch at first, which GCC threads through the steps that follow and ends up
// computing them twice.
template <class Integer>
ZTHALF_INLINE constexpr Integer smallerOf(Integer a, Integer b) {
  return a < b ? a : b;
}
template <class Integer>
ZTHALF_INLINE constexpr Integer largerOf(Integer a, Integer b) {
  return a > b ? a : b;
}

}  // namespace zthalf
