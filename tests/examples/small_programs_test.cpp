// The programs that a newcomer reads first say what their comments promise.
#include <gtest/gtest.h>

#include "tests/examples/run_program.h"

namespace {

using examples::run;

TEST(SmallPrograms, ConvertShowsValuesPatternsAndWhatTheyBecame) {
  const auto result = run("convert");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out,
            "     double   pattern       as half\n"
            "          1    0x3C00             1\n"
            "        0.1    0x2E66   0.0999755859\n"
            "       2049    0x6800          2048\n"
            "      65519    0x7BFF         65504\n"
            "      65520    0x7C00           inf\n"
            "      1e-08    0x0000             0\n");
}

TEST(SmallPrograms, HalfValuesCountsUntilItStops) {
  const auto result = run("half_values");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out,
            "1/3 is 0.3332519531, 0.333 units in the last place away\n"
            "its neighbours are 0.0002441406 apart\n"
            "2046 and five times one more is 2048\n"
            "65504 + 65504 is infinity, and that minus itself is not a number\n");
}

TEST(SmallPrograms, PlusTwoArraysMakesAMatrix) {
  const auto result = run("plus_two_arrays");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out,
            "  -0.90625     297.25\n"
            "   1.29688      299.5\n"
            "  0.703125        299\n");
}

TEST(SmallPrograms, SolveFindsTheSolutionAndAZeroPivot) {
  const auto result = run("solve");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.out,
            "info 0, solution 1 -2 2.99805 0.500488\n"
            "largest residual 0.0122\n"
            "with a column of zeros: info 3\n");
}

TEST(SmallPrograms, HostArraysDoesWhatAHostDoes) {
  if (!EXAMPLES_HOST) GTEST_SKIP() << "the program is for the embedded host, and another one is linked";
  const auto result = run("host_arrays");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.out,
            "a column plus a row, 3 by 4:\n"
            " 0.0999756  10.1016  20.0938  30.0938\n"
            " 0.199951  10.2031  20.2031  30.2031\n"
            " 0.300049  10.2969  20.2969  30.2969\n"
            "complex: 1, then: 0\n"
            "its real parts, 2 by 1:\n"
            "        1\n"
            "        2\n"
            "distances: 0.400 0.400 0.200\n"
            "half:error:dimagree: The two inputs must have the same size.\n"
            "__float2half(0.33325195F)\n"
            "0.333251953125F16\n"
            "static_cast<real16_T>(0.33325195F)\n"
            "floatToHalf(0.33325195F)\n"
            "{ 13653U } /* 0.333251953125 */ \n");
}

}  // namespace
