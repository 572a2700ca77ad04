// Conversions of arrays: values by name. All values, counts and overlaps are in unary_entries_test.cpp.
#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <limits>
#include <vector>

#include "tests/support/one_value.h"
#include "zthalf/half_scalar.h"
#include "zthalf/half_vector.h"

namespace zthalf {
namespace {

template <class T>
void expectToHalf(T input, std::uint16_t expected) {
  testing::expectEverywhere<T, half_t>(&half_vector::convertToHalf, input, half_t{expected});
}

template <class T>
void expectFromHalf(std::uint16_t input, T expected) {
  testing::expectEverywhere<half_t, T>(&half_vector::convertFromHalf, half_t{input}, expected);
}

TEST(ConvertToHalf, RoundsToNearestWithTiesToEven) {
  expectToHalf(65504.0f, 0x7BFF);
  expectToHalf(65519.996f, 0x7BFF);
  expectToHalf(65520.0f, 0x7C00);
  expectToHalf(-65520.0, 0xFC00);
  expectToHalf(0.1f, 0x2E66);
  expectToHalf(-0.0, 0x8000);
  expectToHalf(0x1p-25f, 0x0000);
  expectToHalf(0x3p-25, 0x0002);
  expectToHalf(std::nextafter(0x1p-25f, 1.0f), 0x0001);
  expectToHalf(0x1p-14f - 0x1p-25f, 0x0400);
}

TEST(ConvertToHalf, RoundsADoubleOnce) {
  const double aboveTie = 1.0 + 0x1p-11 + 0x1p-40;
  expectToHalf(aboveTie, 0x3C01);
  expectToHalf(static_cast<float>(aboveTie), 0x3C00);
}

TEST(ConvertToHalf, GivesTheLibrarysNaNWithTheSignOfAnyNaN) {
  expectToHalf(std::bit_cast<float>(0x7F800001u), 0x7E00);
  expectToHalf(std::bit_cast<float>(0xFFFFFFFFu), 0xFE00);
  expectToHalf(std::bit_cast<double>(0x7FF0000000000001u), 0x7E00);
  expectToHalf(std::bit_cast<double>(0xFFF8000000000000u), 0xFE00);
}

TEST(ConvertToHalf, IsExactForEightBits) {
  expectToHalf<unsigned char>(0, 0x0000);
  expectToHalf<unsigned char>(255, 0x5BF8);
  expectToHalf<signed char>(-128, 0xD800);
  expectToHalf<signed char>(-1, 0xBC00);
  expectToHalf<signed char>(127, 0x57F0);
}

TEST(ConvertToHalf, RoundsIntegersOnceAndSaturatesToInfinity) {
  expectToHalf<unsigned short>(65504, 0x7BFF);
  expectToHalf<unsigned short>(65519, 0x7BFF);
  expectToHalf<unsigned short>(65520, 0x7C00);
  expectToHalf<unsigned short>(65535, 0x7C00);
  expectToHalf<short>(-32768, 0xF800);
  expectToHalf<short>(2049, 0x6800);
  expectToHalf<short>(2051, 0x6802);
  expectToHalf<int>(65536, 0x7C00);
  expectToHalf<int>(-65536, 0xFC00);
  expectToHalf<int>(-65519, 0xFBFF);
  expectToHalf<int>(-65520, 0xFC00);
  expectToHalf(std::numeric_limits<int>::min(), 0xFC00);
  expectToHalf<unsigned int>(0xFFFFFFFF, 0x7C00);
  expectToHalf(std::numeric_limits<long long>::min(), 0xFC00);
  expectToHalf(std::numeric_limits<unsigned long long>::max(), 0x7C00);
  expectToHalf<long long>((1LL << 40) + 1, 0x7C00);
}

TEST(ConvertToHalf, TakesEveryNonzeroByteOfALogicalArrayForTrue) {
  std::vector<unsigned char> bytes(256);
  for (unsigned i = 0; i < 256; ++i) bytes[i] = static_cast<unsigned char>(i);
  std::vector<half_t> result(256);
  half_vector::convertToHalf(reinterpret_cast<bool*>(bytes.data()), result.data(), 256);
  for (unsigned i = 0; i < 256; ++i) EXPECT_EQ(result[i].bits, i == 0 ? 0x0000 : 0x3C00) << i;
}

TEST(ConvertFromHalf, WidensExactlyAndKeepsNaNsAsTheyAre) {
  expectFromHalf(0xFC00, -std::numeric_limits<float>::infinity());
  expectFromHalf(0x7C01, std::bit_cast<float>(0x7F802000u));
  expectFromHalf(0xFE01, std::bit_cast<float>(0xFFC02000u));
  expectFromHalf(0x0001, 0x1p-24f);
  expectFromHalf(0x03FF, 1023 * 0x1p-24);
  expectFromHalf(0x8000, -0.0);
}

TEST(ConvertFromHalf, RoundsTiesAwayFromZeroAndSaturates) {
  expectFromHalf<unsigned char>(0x3800, 1);    // 0.5
  expectFromHalf<unsigned char>(0x4100, 3);    // 2.5
  expectFromHalf<unsigned char>(0x5BFC, 255);  // 255.5
  expectFromHalf<unsigned char>(0x7C00, 255);
  expectFromHalf<unsigned char>(0xBC00, 0);
  expectFromHalf<unsigned char>(0xFE00, 0);
  expectFromHalf<signed char>(0xB800, -1);    // -0.5
  expectFromHalf<signed char>(0xD7F8, -128);  // -127.5
  expectFromHalf<signed char>(0x57F8, 127);   // 127.5
  expectFromHalf<short>(0x7800, 32767);
  expectFromHalf<short>(0xF800, -32768);
  expectFromHalf<unsigned short>(0x7C00, 65535);
  expectFromHalf<int>(0x7BFF, 65504);
  expectFromHalf<int>(0x7C00, std::numeric_limits<int>::max());
  expectFromHalf<int>(0xFC00, std::numeric_limits<int>::min());
  expectFromHalf<int>(0x7E00, 0);
  expectFromHalf<unsigned int>(0x7C00, 0xFFFFFFFFu);
  expectFromHalf<long long>(0xFC00, std::numeric_limits<long long>::min());
  expectFromHalf<unsigned long long>(0x7C00, std::numeric_limits<unsigned long long>::max());
}

TEST(ConvertFromHalf, IsTrueForEverythingButZeros) {
  expectFromHalf(0x0000, false);
  expectFromHalf(0x8000, false);
  expectFromHalf(0x0001, true);
  expectFromHalf(0x7E00, true);
}

}  // namespace
}  // namespace zthalf
