#include "scalar/kernels/square_root.h"

#include <gtest/gtest.h>

#include "tests/support/expect_bits.h"
#include "tests/support/sweep.h"

namespace zthalf::testing {
namespace {

using qsl_scalar::squareRoot;

TEST(SquareRoot, ANegativeNumberGivesThePositiveNaN) {
  for (const float x : {-1.0f, -0x1p-149f, -INFINITY}) EXPECT_EQ(hex(squareRoot(x)), "0x7FC00000");
  for (const double x : {-1.0, -0x1p-1074, -HUGE_VAL}) EXPECT_EQ(hex(squareRoot(x)), "0x7FF8000000000000");
}

TEST(SquareRoot, ANaNComesBackQuietWithItsSign) {
  EXPECT_EQ(hex(squareRoot(std::bit_cast<float>(0xFFC12345u))), "0xFFC12345");
  EXPECT_EQ(hex(squareRoot(std::bit_cast<float>(0x7F812345u))), "0x7FC12345");
  EXPECT_EQ(hex(squareRoot(std::bit_cast<double>(0xFFF0000000000001u))), "0xFFF8000000000001");
}

TEST(SquareRoot, ZerosKeepTheirSign) {
  EXPECT_EQ(hex(squareRoot(-0.0f)), "0x80000000");
  EXPECT_EQ(hex(squareRoot(-0.0)), "0x8000000000000000");
}

// A root is right if the exact squares of the midpoints to its neighbours enclose the operand: 24-bit numbers have
// exact 50-bit squares of their midpoints in double.
TEST(SquareRoot, IsCorrectlyRoundedOnAStrideOfFloats) {
  std::atomic<std::uint64_t> wrong{0};
  inBlocks(floatsAt(quickStride), [&](std::uint64_t first, std::uint64_t end) {
    for (std::uint64_t i = first; i < end; ++i) {
      const float x = floatAt(i, quickStride);
      if (!(x > 0.0f) || !(x < INFINITY)) continue;
      const float r = squareRoot(x);
      const double below = (double{r} + std::nextafter(r, 0.0f)) / 2;
      const double above = (double{r} + std::nextafter(r, INFINITY)) / 2;
      wrong += !(below * below < x && x < above * above);
    }
  });
  EXPECT_EQ(wrong, 0u);
}

}  // namespace
}  // namespace zthalf::testing
