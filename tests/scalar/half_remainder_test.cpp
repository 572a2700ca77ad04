// mod and rem of two halves, by the scalar functions.
#include "scalar/half_remainder.h"

#include <gtest/gtest.h>

#include <atomic>

#include "tests/scalar/remainder_rules.h"
#include "tests/support/expect_bits.h"
#include "tests/support/known.h"
#include "tests/support/patterns.h"
#include "tests/support/sweep.h"
#include "zthalf/half_scalar.h"
#include "zthalf/mod_rem.h"

namespace zthalf::testing {
namespace {

using reference::remainderKind;
using pair = knownPair<std::uint16_t, std::uint16_t, std::uint16_t>;

class ModOfHalves : public ::testing::TestWithParam<pair> {};
class RemOfHalves : public ::testing::TestWithParam<pair> {};

TEST_P(ModOfHalves, IsTheKnownResult) {
  const pair p = GetParam();
  EXPECT_EQ(hex(half_scalar::mod(half_t{p.first}, half_t{p.second})), hex(p.expected)) << p.why;
  EXPECT_EQ(hex(half::impl::emulated::mod(p.first, p.second)), hex(p.expected)) << p.why;
  EXPECT_EQ(hex(half::impl::emulated::modFtor{}(p.first, p.second)), hex(p.expected)) << p.why;
}

TEST_P(RemOfHalves, IsTheKnownResult) {
  const pair p = GetParam();
  EXPECT_EQ(hex(half_scalar::rem(half_t{p.first}, half_t{p.second})), hex(p.expected)) << p.why;
  EXPECT_EQ(hex(half::impl::emulated::rem(p.first, p.second)), hex(p.expected)) << p.why;
  EXPECT_EQ(hex(half::impl::emulated::remFtor{}(p.first, p.second)), hex(p.expected)) << p.why;
}

INSTANTIATE_TEST_SUITE_P(
    Numbers, ModOfHalves,
    ::testing::Values(pair{0x4500, 0x4200, 0x4000, "5 by 3 is 2"}, pair{0xC500, 0x4200, 0x3C00, "-5 by 3 is 1"},
                      pair{0x4500, 0xC200, 0xBC00, "5 by -3 is -1"}, pair{0xC500, 0xC200, 0xC000, "-5 by -3 is -2"},
                      pair{0x4600, 0x4200, 0x0000, "6 by 3"}, pair{0x4600, 0xC200, 0x8000, "6 by -3: the sign of y"},
                      pair{0x4200, 0xC200, 0x8000, "3 by -3"},
                      pair{0x3C00, 0x2E66, 0x0000, "1 by 0.1 within tolerance"},
                      pair{0xBC00, 0x2E66, 0x0000, "-1 by 0.1 too"},
                      pair{0x7BFF, 0x2E66, 0x0000, "65504 by 0.1: no quotient that large has a remainder"},
                      pair{0x0001, 0xBC00, 0xBC00, "-1 + 2^-24 rounds to -1: the one inexact case"},
                      pair{0x3400, 0xBC00, 0xBA00, "0.25 by -1 is -0.75, exactly"},
                      pair{0x1402, 0xC400, 0xC3FF, "below a power of two, just beyond the tie"},
                      pair{0x8001, 0x7BFF, 0x7BFF, "65504 less 2^-24"},
                      pair{0x0003, 0x8002, 0x8001, "subnormals: 3 by -2 is -1"}));

INSTANTIATE_TEST_SUITE_P(SpecialValues, ModOfHalves,
                         ::testing::Values(pair{0x4200, 0x0000, 0x4200, "3 by zero is 3"},
                                           pair{0x4200, 0x8000, 0x4200, "3 by minus zero"},
                                           pair{0x0000, 0x8000, 0x8000, "zero by minus zero is minus zero"},
                                           pair{0x8000, 0x0000, 0x0000, "minus zero by zero is zero"},
                                           pair{0x0000, 0xC200, 0x8000, "zero by -3 has the sign of -3"},
                                           pair{0x4000, 0xFC00, 0xFC00, "2 by minus infinity"},
                                           pair{0xC000, 0xFC00, 0xC000, "-2 by minus infinity"},
                                           pair{0x0000, 0xFC00, 0x8000, "zero by minus infinity is a zero"},
                                           pair{0x7C00, 0xC000, 0xFE00, "infinity: the sign of y"},
                                           pair{0x7C00, 0x7C00, 0x7E00, "infinity by infinity"},
                                           pair{0xFC00, 0x0000, 0xFC00, "minus infinity by zero is itself"}));

INSTANTIATE_TEST_SUITE_P(NaNs, ModOfHalves,
                         ::testing::Values(pair{0x7C01, 0x4000, 0x7C01, "a signalling x is not made quiet"},
                                           pair{0xFD55, 0x0000, 0xFD55, "nor by zero"},
                                           pair{0xFD55, 0x7E00, 0xFD55, "nor by a NaN"},
                                           pair{0x4000, 0xFC01, 0xFC01, "a signalling y comes back as it is"},
                                           pair{0x7C00, 0x7D23, 0x7D23, "infinity by a NaN"},
                                           pair{0x8000, 0x7D23, 0x7D23, "zero by a NaN"}));

INSTANTIATE_TEST_SUITE_P(
    Numbers, RemOfHalves,
    ::testing::Values(pair{0x4500, 0x4200, 0x4000, "5 by 3 is 2"}, pair{0xC500, 0x4200, 0xC000, "-5 by 3 is -2"},
                      pair{0x4500, 0xC200, 0x4000, "5 by -3 is 2"},
                      pair{0xC600, 0x4200, 0x8000, "-6 by 3 is minus zero"}, pair{0x4200, 0xC200, 0x0000, "3 by -3"},
                      pair{0x3C00, 0x2E66, 0x0000, "1 by 0.1 within tolerance"},
                      pair{0xBC00, 0x2E66, 0x8000, "-1 by 0.1: a zero with its sign"},
                      pair{0x3C00, 0x3555, 0x0000, "1 by a third"}, pair{0x0001, 0xBC00, 0x0001, "smaller than y"},
                      pair{0x7BFF, 0x4200, 0x4000, "65504 by 3 is 2: an integer divisor has no tolerance"},
                      pair{0x03FF, 0x0002, 0x0001, "1023 by 2 in units of 2^-24 stands"},
                      pair{0x0A01, 0x0003, 0x0000, "3074 by 3 of them: from a quotient of 1024 on nothing stands"},
                      pair{0x0003, 0x8002, 0x0001, "subnormals: 3 by -2 is 1"}));

INSTANTIATE_TEST_SUITE_P(
    SpecialValues, RemOfHalves,
    ::testing::Values(pair{0x4200, 0x0000, 0x7E00, "3 by zero"}, pair{0xC200, 0x0000, 0xFE00, "-3 by zero"},
                      pair{0x4200, 0x8000, 0x7E00, "3 by minus zero: the sign of x"},
                      pair{0x8000, 0x0000, 0xFE00, "minus zero by zero"}, pair{0x7C00, 0x4000, 0x7E00, "infinity by 2"},
                      pair{0xFC00, 0x7C00, 0xFE00, "by infinity"}, pair{0x4000, 0x7C00, 0x4000, "2 by infinity"},
                      pair{0x8000, 0xC000, 0x8000, "minus zero by -2"}));

INSTANTIATE_TEST_SUITE_P(NaNs, RemOfHalves,
                         ::testing::Values(pair{0x7C01, 0x4000, 0x7C01, "a signalling x is not made quiet"},
                                           pair{0xFD55, 0x7E00, 0xFD55, "two NaNs: x"},
                                           pair{0xC000, 0x7D23, 0xFD23, "a NaN y: its payload, and the sign of x"},
                                           pair{0x4000, 0xFD23, 0x7D23, "the sign of y is dropped"},
                                           pair{0xFC00, 0x7C01, 0xFC01, "before the infinity is looked at"},
                                           pair{0x8000, 0x7E00, 0xFE00, "before the zero is looked at"}));

TEST(HalfRemainder, ModEqualsBothRulesOnCuratedPairs) {
  bitComparison division("mod by long division"), units("mod in units");
  forEveryCuratedPair([&](std::uint16_t x, std::uint16_t y) {
    const std::uint16_t result = modOfHalves(x, y);
    division.check(result, reference::byLongDivision(remainderKind::mod, x, y), x, y);
    units.check(result, reference::inUnits(remainderKind::mod, x, y), x, y);
  });
}

TEST(HalfRemainder, RemEqualsBothRulesOnCuratedPairs) {
  bitComparison division("rem by long division"), units("rem in units");
  forEveryCuratedPair([&](std::uint16_t x, std::uint16_t y) {
    const std::uint16_t result = remOfHalves(x, y);
    division.check(result, reference::byLongDivision(remainderKind::rem, x, y), x, y);
    units.check(result, reference::inUnits(remainderKind::rem, x, y), x, y);
  });
}

std::uint64_t differencesOnAllPairs(remainderKind kind) {
  std::atomic<std::uint64_t> differences{0};
  inBlocks(std::uint64_t{1} << 32, [&](std::uint64_t first, std::uint64_t end) {
    std::uint64_t different = 0;
    for (std::uint64_t i = first; i < end; ++i) {
      const auto x = static_cast<std::uint16_t>(i >> 16);
      const auto y = static_cast<std::uint16_t>(i);
      const std::uint16_t result = kind == remainderKind::mod ? modOfHalves(x, y) : remOfHalves(x, y);
      different += result != reference::inUnits(kind, x, y);
    }
    differences += different;
  });
  return differences;
}

TEST(LongHalfRemainder, ModEqualsTheRuleOnEveryPair) { EXPECT_EQ(differencesOnAllPairs(remainderKind::mod), 0u); }
TEST(LongHalfRemainder, RemEqualsTheRuleOnEveryPair) { EXPECT_EQ(differencesOnAllPairs(remainderKind::rem), 0u); }

}  // namespace
}  // namespace zthalf::testing
