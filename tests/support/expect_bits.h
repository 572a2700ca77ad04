// Comparison of results by their bits, since == on floats sees neither the sign of a zero nor a NaN.
#pragma once

#include <gtest/gtest.h>

#include <bit>
#include <concepts>
#include <cstdint>
#include <cstdio>
#include <string>

#include "zthalf/half_t.h"

namespace zthalf::testing {

inline std::uint16_t bitsIn(half_t x) { return x.bits; }
inline std::uint16_t bitsIn(fp16binary_t x) { return x.bits; }
inline std::uint32_t bitsIn(float x) { return std::bit_cast<std::uint32_t>(x); }
inline std::uint64_t bitsIn(double x) { return std::bit_cast<std::uint64_t>(x); }
template <std::integral T>
T bitsIn(T x) {
  return x;
}
inline std::uint32_t bitsIn(std::complex<fp16binary_t> z) { return z.real().bits | std::uint32_t{z.imag().bits} << 16; }
inline std::uint32_t bitsIn(std::complex<half_t> z) { return z.real().bits | std::uint32_t{z.imag().bits} << 16; }

template <class T>
std::string hex(T x) {
  char text[20];
  std::snprintf(text, sizeof text, "0x%0*llX", static_cast<int>(2 * sizeof(T)),
                static_cast<unsigned long long>(bitsIn(x)));
  return text;
}

// Counts differences and reports the first ten in full, so that a broken kernel does not print 65,536 lines.
class bitComparison {
 public:
  explicit bitComparison(std::string what) : what_(std::move(what)) {}
  bitComparison(bitComparison const&) = delete;
  bitComparison& operator=(bitComparison const&) = delete;

  template <class Result, class Expected, class... Operands>
  void check(Result result, Expected expected, Operands... operands) {
    static_assert(sizeof(Result) == sizeof(Expected));
    ++compared_;
    if (bitsIn(result) == bitsIn(expected)) return;
    if (++differences_ > 10) return;
    std::string text = what_ + "(";
    ((text += hex(operands) + ", "), ...);
    if (sizeof...(operands) > 0) text.resize(text.size() - 2);
    ADD_FAILURE() << text << ") = " << hex(result) << ", expected " << hex(expected);
  }

  ~bitComparison() {
    EXPECT_GT(compared_, 0u) << what_ << ": nothing was compared";
    EXPECT_EQ(differences_, 0u) << what_ << ": differences among " << compared_ << " results";
  }

 private:
  std::string what_;
  unsigned long compared_ = 0;
  unsigned long differences_ = 0;
};

}  // namespace zthalf::testing
