#include "core/float_conversion.h"

#include <gtest/gtest.h>

#include "tests/support/expect_bits.h"

namespace zthalf {
namespace {

TEST(Widen, RoundTripIsTheIdentityOnEveryPattern) {
  testing::bitComparison compare("narrow of widen");
  for (std::uint32_t p = 0; p <= 0xFFFF; ++p) {
    const auto x = static_cast<std::uint16_t>(p);
    const auto expected = static_cast<std::uint16_t>((p & 0x7FFF) > 0x7C00 ? (p & 0x8000) | 0x7E00 : p);
    compare.check(narrow(widen<float>(x)), expected, x);
    compare.check(narrow(widen<double>(x)), expected, x);
  }
}

}  // namespace
}  // namespace zthalf
