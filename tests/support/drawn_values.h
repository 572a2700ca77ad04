// Element values for loop tests: half of them curated, half of them random, the same in every run.
#pragma once

#include <complex>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <limits>
#include <random>
#include <type_traits>

#include "zthalf/half_scalar.h"
#include "zthalf/half_t.h"

namespace zthalf::testing {

using bitSource = std::mt19937_64;  // the standard fixes its sequence

// Any byte may stand in a logical array, so its elements are read as bytes: a bool other than 0 and 1 is undefined.
struct logicalByte {
  unsigned char byte;
};

template <class T>
struct loadedAs {
  using type = T;
};
template <>
struct loadedAs<bool> {
  using type = logicalByte;
};
template <class T>
using loaded = typename loadedAs<T>::type;

template <class T>
loaded<T> load(std::byte const* from) {
  loaded<T> value;
  static_assert(sizeof value == sizeof(T));
  std::memcpy(static_cast<void*>(&value), from, sizeof value);
  return value;
}

template <class T>
void store(std::byte* to, T value) {
  std::memcpy(to, &value, sizeof value);
}

template <class T>
T oneOf(std::initializer_list<T> choice, bitSource& bits) {
  return choice.begin()[bits() % choice.size()];
}

template <class T>
concept halfElement = std::same_as<T, half_t> || std::same_as<T, fp16binary_t>;

template <class T>
struct drawer;

template <halfElement T>
struct drawer<T> {
  static T draw(bitSource& bits) {
    static constexpr std::initializer_list<std::uint16_t> corners = {
        0x0000, 0x8000, 0x0001, 0x8001, 0x03FF, 0x0400, 0x83FF, 0x37FF, 0x3800, 0xB800, 0x3BFF, 0x3C00, 0xBC00, 0xBC01,
        0x63FF, 0x6400, 0x7800, 0x7BFF, 0xFBFF, 0x7C00, 0xFC00, 0x7C01, 0xFC01, 0x7DFF, 0x7E00, 0xFE00, 0x7E01, 0xFFFF};
    return {bits() % 2 != 0 ? static_cast<std::uint16_t>(bits() >> 48) : oneOf(corners, bits)};
  }
};

// Integers of every length of either sign, and those around the limits of half.
template <std::integral T>
struct drawer<T> {
  static T draw(bitSource& bits) {
    static constexpr std::initializer_list<long long> corners = {
        0,     1,     2,     127,   128,   255,   256,   2047,  2048,  2049,  2051,
        32767, 32768, 65503, 65504, 65505, 65519, 65520, 65535, 65536, 65537, 1LL << 31};
    const auto edges = {std::numeric_limits<T>::min(), std::numeric_limits<T>::max()};
    const auto sign = bits() % 2 != 0 ? ~0ULL : 0ULL;
    switch (bits() % 4) {
      case 0:
        return oneOf(edges, bits);
      case 1:
        return static_cast<T>((static_cast<unsigned long long>(oneOf(corners, bits)) ^ sign) - sign);
      default:
        return static_cast<T>(((bits() >> bits() % 64) ^ sign) - sign);
    }
  }
};

template <>
struct drawer<bool> {
  static logicalByte draw(bitSource& bits) { return {drawer<unsigned char>::draw(bits)}; }
};

// Any bits, or a half, or a value next to a half or next to the middle of two halves.
template <std::floating_point T>
struct drawer<T> {
  using word = std::conditional_t<sizeof(T) == 4, std::uint32_t, std::uint64_t>;

  static T draw(bitSource& bits) {
    if (bits() % 4 == 0) return ofBits(static_cast<word>(bits()));
    const std::uint16_t pattern = drawer<half_t>::draw(bits).bits;
    const T value = half_scalar::impl::convertHalfToSingle(pattern);
    const T next = half_scalar::impl::convertHalfToSingle(static_cast<std::uint16_t>(pattern ^ 1));
    const T between = bits() % 2 != 0 ? value : (value + next) / 2;
    return ofBits(bitsIn(between) + static_cast<word>(bits() % 5) - 2);
  }

 private:
  static word bitsIn(T value) {
    word bits;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
  }
  static T ofBits(word bits) {
    T value;
    std::memcpy(&value, &bits, sizeof value);
    return value;
  }
};

template <class T>
struct drawer<std::complex<T>> {
  static std::complex<T> draw(bitSource& bits) {
    const T real = drawer<T>::draw(bits);
    return {real, drawer<T>::draw(bits)};
  }
};

// Writes n drawn elements of type T from an address on.
template <class T>
void drawInto(std::byte* to, unsigned long n, bitSource& bits) {
  for (unsigned long i = 0; i < n; ++i) {
    const loaded<T> value = drawer<T>::draw(bits);
    std::memcpy(to + i * sizeof(T), &value, sizeof value);
  }
}

}  // namespace zthalf::testing
