#include "scalar/kernels/expm1_single.h"

#include <gtest/gtest.h>

#include "tests/scalar/kernels/steps_single.h"
#include "tests/support/expect_bits.h"
#include "tests/support/sweep.h"

namespace zthalf::testing {
namespace {

using qsl_scalar::expm1Single;

float reference(float x) { return steps::expm1(x).value(); }

struct Case {
  std::uint32_t x;
  std::uint32_t expected;
  char const* why;
};

void PrintTo(Case const& c, std::ostream* out) { *out << c.why; }

class Expm1SingleCase : public ::testing::TestWithParam<Case> {};

TEST_P(Expm1SingleCase, HasTheStatedBits) {
  const Case c = GetParam();
  EXPECT_EQ(hex(expm1Single(std::bit_cast<float>(c.x))), hex(std::bit_cast<float>(c.expected))) << c.why;
}

INSTANTIATE_TEST_SUITE_P(
    Special, Expm1SingleCase,
    ::testing::Values(Case{0x00000000, 0x00000000, "zero"}, Case{0x80000000, 0x80000000, "minus zero keeps its sign"},
                      Case{0x7F800000, 0x7F800000, "infinity"}, Case{0xFF800000, 0xBF800000, "minus infinity"},
                      Case{0x7F800001, 0x7F800001, "a NaN comes back as it is"},
                      Case{0xFFC12345, 0xFFC12345, "a negative one too"},
                      Case{0x42B17218, 0x7F800000, "the first overflow"},
                      Case{0xC2B17218, 0xBF800000, "its mirror image is minus one"},
                      Case{0xC195B844, 0xBF800000, "the first argument that is minus one by decision"},
                      Case{0x00000001, 0x00000001, "a subnormal is its own result"}));

TEST(Expm1Single, TheLastArgumentBeforeOverflowIsFinite) {
  EXPECT_EQ(hex(expm1Single(std::bit_cast<float>(0x42B17217u))), hex(reference(std::bit_cast<float>(0x42B17217u))));
  EXPECT_LT(expm1Single(std::bit_cast<float>(0x42B17217u)), INFINITY);
}

TEST(Expm1Single, EqualsItsStepsOnAStrideOfFloats) { expectSameOnFloats(quickStride, expm1Single, reference); }

TEST(Expm1Single, EqualsItsStepsAroundEveryBoundary) {
  bitComparison compare("expm1Single");
  for (const std::uint32_t boundary : {0x3EB17218u, 0x3F851591u, 0x4195B844u, 0x42B17218u}) {
    for (std::uint32_t distance = 0; distance <= 40; ++distance) {
      for (const std::uint32_t word : {boundary + distance, boundary - distance}) {
        const float x = std::bit_cast<float>(word);
        compare.check(expm1Single(x), reference(x), x);
        compare.check(expm1Single(-x), reference(-x), -x);
      }
    }
  }
}

// Each multiple k of ln 2 up to the overflow, where the order of the last additions changes with k.
TEST(Expm1Single, EqualsItsStepsForEveryMultiple) {
  bitComparison compare("expm1Single");
  for (int k = -40; k <= 130; ++k) {
    for (int part = -50; part <= 50; ++part) {
      const auto x = static_cast<float>((k + part / 100.0) * 0.693147180559945309);
      compare.check(expm1Single(x), reference(x), x);
    }
  }
}

// Every float on both sides of the multiples 22, 23 and 56, 57 of ln 2, where the order of the last additions changes.
TEST(Expm1Single, EqualsItsStepsWhereTheLastAdditionsChange) {
  bitComparison compare("expm1Single");
  for (const double change : {22.5, 56.5}) {
    const std::uint32_t first = bitsIn(static_cast<float>((change - 0.6) * 0.693147180559945309));
    const std::uint32_t last = bitsIn(static_cast<float>((change + 0.6) * 0.693147180559945309));
    for (std::uint32_t word = first; word <= last; ++word) {
      const float x = std::bit_cast<float>(word);
      compare.check(expm1Single(x), reference(x), x);
    }
  }
}

TEST(LongExpm1Single, EqualsItsStepsOnEveryFloat) { expectSameOnFloats(1, expm1Single, reference); }

}  // namespace
}  // namespace zthalf::testing
