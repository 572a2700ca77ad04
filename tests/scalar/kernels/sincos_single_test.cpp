#include "scalar/kernels/sincos_single.h"

#include "scalar/kernels/sin_cos_single.h"
#include "scalar/kernels/sinpi_cospi_single.h"
#include "tests/scalar/kernels/float_cases.h"
#include "tests/scalar/kernels/trigonometric_steps.h"
#include "tests/support/sweep.h"

namespace zthalf::testing {
namespace {

using namespace qsl_scalar;

TEST(SincosSingle, EqualsItsStepsOnAStrideOfFloats) {
  expectSameOnFloats(
      slowStride, [](float x) { return sincosSingle(x).sine; }, [](float x) { return steps::sin(x).value(); });
  expectSameOnFloats(
      slowStride, [](float x) { return sincosSingle(x).cosine; }, [](float x) { return steps::cos(x).value(); });
}

TEST(SincospiSingle, EqualsItsStepsOnAStrideOfFloats) {
  expectSameOnFloats(
      slowStride, [](float x) { return sincospiSingle(x).sine; }, [](float x) { return steps::sinpi(x).value(); });
  expectSameOnFloats(
      slowStride, [](float x) { return sincospiSingle(x).cosine; }, [](float x) { return steps::cospi(x).value(); });
}

TEST(SincosSingle, GivesTheBitsOfSineAndCosine) {
  expectSameOnFloats(
      quickStride, [](float x) { return sincosSingle(x).sine; }, sinSingle);
  expectSameOnFloats(
      quickStride, [](float x) { return sincosSingle(x).cosine; }, cosSingle);
  expectSameOnFloats(
      quickStride, [](float x) { return sincospiSingle(x).sine; }, sinpiSingle);
  expectSameOnFloats(
      quickStride, [](float x) { return sincospiSingle(x).cosine; }, cospiSingle);
}

TEST(SincospiSingle, IsExactAtTwelfths) {
  for (int k = -48; k <= 48; ++k) {
    const float x = static_cast<float>(k) / 12.0f;
    EXPECT_EQ(hex(sincospiSingle(x).sine), hex(steps::sinpi(x).value())) << k;
    EXPECT_EQ(hex(sincospiSingle(x).cosine), hex(steps::cospi(x).value())) << k;
  }
}

TEST(SincosSingle, OfNoNumberIsTheNegativeNaN) {
  for (const std::uint32_t word : {0x7F800000u, 0xFF800000u, 0x7FC00000u, 0xFFC00001u, 0x7F800001u}) {
    const float x = std::bit_cast<float>(word);
    EXPECT_EQ(hex(sincosSingle(x).sine), "0xFFC00000");
    EXPECT_EQ(hex(sincosSingle(x).cosine), "0xFFC00000");
    EXPECT_EQ(hex(sincospiSingle(x).sine), "0xFFC00000");
    EXPECT_EQ(hex(sincospiSingle(x).cosine), "0xFFC00000");
  }
}

}  // namespace
}  // namespace zthalf::testing
