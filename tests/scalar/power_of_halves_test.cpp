// The short ways to a power of two halves against the kernel that has all steps: in vector lanes at every instruction
// level, one pair alone, and with a constant base.
#include "scalar/power_of_halves.h"

#include <gtest/gtest.h>

#include <vector>

#include "elementwise/binary_op.h"
#include "scalar/functors/power_functors.h"
#include "scalar/kernels/pow_single.h"
#include "tests/support/expect_bits.h"
#include "tests/support/patterns.h"
#include "tests/support/sweep.h"

namespace zthalf::testing {
namespace {

std::uint16_t byKernel(std::uint16_t x, std::uint16_t y) {
  return narrow(qsl_scalar::powSingle(widen<float>(x), widen<float>(y)));
}

std::vector<fp16binary_t> everyPattern() {
  std::vector<fp16binary_t> all(65536);
  for (unsigned bits = 0; bits < 65536; ++bits) all[bits].bits = static_cast<std::uint16_t>(bits);
  return all;
}

// The pairs of x with every y, or of every x with y, both as an array and one by one.
class PowerOfHalvesPairs : public ::testing::Test {
 protected:
  std::vector<fp16binary_t> all = everyPattern();
  std::vector<fp16binary_t> results = std::vector<fp16binary_t>(65536);
  bitComparison compare{"power of halves"};

  void checkEveryPower(std::uint16_t x) {
    half_utils::halfBinaryOpParallelLoop(fp16binary_t{x}, all.data(), results.data(), all.size(),
                                         half::scalar::emulated::powerFtor{});
    for (unsigned i = 0; i < 65536; ++i) check(x, static_cast<std::uint16_t>(i), results[i].bits);
  }
  void checkEveryBase(std::uint16_t y) {
    half_utils::halfBinaryOpParallelLoop(all.data(), fp16binary_t{y}, results.data(), all.size(),
                                         half::scalar::emulated::powerFtor{});
    for (unsigned i = 0; i < 65536; ++i) check(static_cast<std::uint16_t>(i), y, results[i].bits);
  }

 private:
  void check(std::uint16_t x, std::uint16_t y, std::uint16_t inLoop) {
    const std::uint16_t expected = byKernel(x, y);
    compare.check(inLoop, expected, x, y);
    compare.check(powerOfTwoHalves(x, y), expected, x, y);
  }
};

// The powers with ways of their own, their neighbours, and ones at the edges of every case.
TEST_F(PowerOfHalvesPairs, EveryBaseToSpecialPowers) {
  for (const std::uint16_t y :
       {0x0000, 0x0001, 0x03FF, 0x0400, 0x3555, 0x37FF, 0x3800, 0x3801, 0x3BFF, 0x3C00, 0x3C01,
        0x3FFF, 0x4000, 0x4001, 0x4200, 0x63FF, 0x6401, 0x67FF, 0x7BFF, 0x7C00, 0x7E00, 0x7C01}) {
    checkEveryBase(y);
    checkEveryBase(y | pattern::signBit);
  }
}

TEST_F(PowerOfHalvesPairs, EveryPowerOfSpecialBases) {
  for (const std::uint16_t x : {0x0000, 0x0001, 0x03FF, 0x0400, 0x3800, 0x3BFE, 0x3BFF, 0x3C00, 0x3C01, 0x3CE6,
                                0x3CE7, 0x3EED, 0x3EEE, 0x4000, 0x4900, 0x43FF, 0x7BFF, 0x7C00, 0x7C01, 0x7E00}) {
    checkEveryPower(x);
    checkEveryPower(x | pattern::signBit);
  }
}

// The steps have no factor in common with the number of patterns.
TEST_F(PowerOfHalvesPairs, EveryPowerOfEveryFewHundredthBase) {
  for (unsigned x = 101; x < 65536; x += 1499) checkEveryPower(static_cast<std::uint16_t>(x));
}

TEST_F(PowerOfHalvesPairs, EveryBaseToEveryFewHundredthPower) {
  for (unsigned y = 57; y < 65536; y += 1511) checkEveryBase(static_cast<std::uint16_t>(y));
}

using LongPowerOfHalvesPairs = PowerOfHalvesPairs;
TEST_F(LongPowerOfHalvesPairs, AllOfThem) {
  for (unsigned x = 0; x < 65536; ++x) checkEveryPower(static_cast<std::uint16_t>(x));
}

// Roots of numbers just below a power of four lie next to a tie.
TEST(PowerOfHalves, RootsNextToATieAreThoseOfTheSquareRoot) {
  for (unsigned x = 0x0BFF; x < pattern::infinity; x += 0x0800) {
    const auto base = static_cast<std::uint16_t>(x);
    EXPECT_EQ(hex(powerOfHalves(base, 0x3800)), hex(byKernel(base, 0x3800)));
    EXPECT_EQ(hex(powerOfTwoHalves(base, 0x3800)), hex(byKernel(base, 0x3800)));
  }
}

TEST(ConstantBase, TheLogarithmsAreThoseOfTheGeneralSteps) {
  volatile float two = 2.0f, ten = 10.0f;
  constexpr qsl_scalar::powers::split constant = qsl_scalar::powers::logarithmOfNormal(bitsOf(10.0f));
  const qsl_scalar::powers::split ofTen = qsl_scalar::powers::logarithm(ten);
  EXPECT_EQ(hex(constant.upper), hex(ofTen.upper));
  EXPECT_EQ(hex(constant.lower), hex(ofTen.lower));
  const qsl_scalar::powers::split ofTwo = qsl_scalar::powers::logarithm(two);
  EXPECT_EQ(hex(ofTwo.upper), hex(1.0f));
  EXPECT_EQ(hex(ofTwo.lower), hex(0.0f));
}

// Both ways of cutting a float.
TEST(ConstantBase, EveryPowerIsThatOfTheKernel) {
  bitComparison compare("constant base");
  for (unsigned bits = 0; bits < 65536; ++bits) {
    const auto y = static_cast<std::uint16_t>(bits);
    compare.check(pow2Of(y), byKernel(0x4000, y), std::uint16_t{0x4000}, y);
    compare.check(pow10Of(y), byKernel(0x4900, y), std::uint16_t{0x4900}, y);
    compare.check(pow2Of<qsl_scalar::singleFloatParts>(y), byKernel(0x4000, y), std::uint16_t{0x4000}, y);
    compare.check(pow10Of<qsl_scalar::singleFloatParts>(y), byKernel(0x4900, y), std::uint16_t{0x4900}, y);
  }
}

TEST(FloatParts, AreTheSameInBothWays) {
  using oneByOne = qsl_scalar::singleFloatParts;
  for (std::uint64_t bits = 0; bits <= 0xFFFFFFFFu; bits += 9973) {
    const float v = std::bit_cast<float>(static_cast<std::uint32_t>(bits));
    ASSERT_EQ(bitsOf(oneByOne::upperHalf(v)), bits & 0xFFFFF000u);
    ASSERT_EQ(bitsOf(oneByOne::magnitudeOf(v)), bits & 0x7FFFFFFFu);
  }
}

}  // namespace
}  // namespace zthalf::testing
