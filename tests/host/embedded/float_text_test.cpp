// The text that the embedded host writes for a number.
#include "zthalf/host/float_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <random>
#include <string>

#include "tests/support/patterns.h"
#include "tests/support/reference.h"

namespace {

std::string textOf(float x) {
  char buffer[40];
  std::memset(buffer, 'x', sizeof buffer);
  getFloatValueStr(buffer, x);
  EXPECT_EQ(std::string(buffer + 32, 8), "xxxxxxxx") << "more than 32 bytes were written";
  return buffer;
}
std::string textOf(double x) {
  char buffer[40];
  std::memset(buffer, 'x', sizeof buffer);
  getDoubleValueStr(buffer, x);
  EXPECT_EQ(std::string(buffer + 32, 8), "xxxxxxxx") << "more than 32 bytes were written";
  return buffer;
}

TEST(FloatText, OfKnownNumbers) {
  EXPECT_EQ(textOf(1.5f), "1.5");
  EXPECT_EQ(textOf(2.0f), "2");
  EXPECT_EQ(textOf(0.0f), "0");
  EXPECT_EQ(textOf(-0.0f), "-0");
  EXPECT_EQ(textOf(-0.25f), "-0.25");
  EXPECT_EQ(textOf(0.1f), "0.1");
  EXPECT_EQ(textOf(0.1), "0.1");
  EXPECT_EQ(textOf(65504.0f), "65504");
  EXPECT_EQ(textOf(100000.0f), "100000");
  EXPECT_EQ(textOf(1e20), "100000000000000000000");
  EXPECT_EQ(textOf(1e21), "1.0e+21");
  EXPECT_EQ(textOf(1.25e300), "1.25e+300");
  EXPECT_EQ(textOf(0.00001f), "0.00001");
  EXPECT_EQ(textOf(0x1p-24f), "5.9604645e-8");
  EXPECT_EQ(textOf(0x1p-24), "5.960464477539063e-8");
  EXPECT_EQ(textOf(1e-7), "1.0e-7");
  EXPECT_EQ(textOf(-1e-310), "-1.0e-310");
  EXPECT_EQ(textOf(std::numeric_limits<double>::infinity()), "inf");
  EXPECT_EQ(textOf(-std::numeric_limits<float>::infinity()), "-inf");
  EXPECT_EQ(textOf(-std::numeric_limits<double>::quiet_NaN()), "nan");
  EXPECT_EQ(textOf(-std::numeric_limits<double>::max()).size(), 24u);
}

template <class Float>
void expectRightText(Float x, Float (*read)(char const*, char**)) {
  const std::string text = textOf(x);
  ASSERT_LE(text.size(), 31u) << text;
  const Float back = read(text.c_str(), nullptr);
  ASSERT_EQ(std::memcmp(&back, &x, sizeof x), 0) << text;
  if (text.find('e') != std::string::npos) {
    ASSERT_NE(text.find('.'), std::string::npos) << text;
  }
  if (text.find('.') == std::string::npos) {
    ASSERT_EQ(x, std::floor(x)) << text;
  }
  ASSERT_TRUE(x != std::floor(x) || std::fabs(x) >= Float(1e21) || text.find('.') == std::string::npos) << text;
  // No text with fewer digits reads back.
  const long digits = [&] {
    std::string all;
    for (const char c : text.substr(0, text.find('e')))
      if (c >= '0' && c <= '9') all += c;
    const auto first = all.find_first_not_of('0'), last = all.find_last_not_of('0');
    return first == std::string::npos ? 1L : static_cast<long>(last - first + 1);
  }();
  if (digits > 1) {
    char shorter[40];
    std::snprintf(shorter, sizeof shorter, "%.*e", static_cast<int>(digits - 2), static_cast<double>(x));
    ASSERT_NE(read(shorter, nullptr), x) << text << " could be " << shorter;
  }
}

TEST(FloatText, OfEveryHalfReadsBackByTheFewestDigits) {
  for (std::uint32_t p = 0; p <= 0xFFFF; ++p) {
    if ((p & 0x7C00) == 0x7C00) continue;
    expectRightText(zthalf::reference::widenedToSingle(static_cast<std::uint16_t>(p)), std::strtof);
    expectRightText(zthalf::reference::widenedToDouble(static_cast<std::uint16_t>(p)), std::strtod);
  }
}

TEST(FloatText, OfAnyNumberReadsBackByTheFewestDigits) {
  std::mt19937_64 draw(7);
  for (int i = 0; i < 100000; ++i) {
    const auto single = std::bit_cast<float>(static_cast<std::uint32_t>(draw()));
    const auto wide = std::bit_cast<double>(draw());
    if (std::isfinite(single)) expectRightText(single, std::strtof);
    if (std::isfinite(wide)) expectRightText(wide, std::strtod);
    expectRightText(std::floor(static_cast<double>(draw() >> (i % 60))), std::strtod);
  }
}

}  // namespace
