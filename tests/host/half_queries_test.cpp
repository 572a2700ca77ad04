// What half arrays say of themselves, and access to their data.
#include <gtest/gtest.h>

#include "tests/host/support/provider.h"
#include "zthalf/host.h"

namespace zthalf {
namespace {

using namespace testing::provider;

TEST(IsHalfClassname, IsTrueForThatNameAlone) {
  EXPECT_TRUE(half::isHalfClassname("half"));
  EXPECT_FALSE(half::isHalfClassname(nullptr));
  for (char const* other : {"", "hal", "halff", "Half", "half ", "single", "half\n"})
    EXPECT_FALSE(half::isHalfClassname(other)) << other;
}

TEST(IsVqArrayHalf, IsTrueForHalvesAndNothingElse) {
  for (const bool complex : {false, true})
    EXPECT_TRUE(half::isVqArrayHalf(held(half::createHalfMatrix(2, 3, complex))));
  EXPECT_TRUE(half::isVqArrayHalf(held(half::createHalfMatrix(0, 0, false))));
  for (const vqClassID id : {vqDoubleClass, vqSingleClass, vqUint16Class, vqLogicalClass, vqCharacterClass})
    EXPECT_FALSE(half::isVqArrayHalf(held(newNumeric({2, 3}, id)))) << id;
  EXPECT_FALSE(half::isVqArrayHalf(held(newOtherObject())));
  // The array inside is not the object.
  EXPECT_FALSE(half::isVqArrayHalf(held(half::createHalfMatrix(2, 3, false)).inside()));
}

TEST(IsVqArrayComplex, WantsBothBits) {
  const held real(half::createHalfMatrix(2, 2, false)), complex(half::createHalfMatrix(2, 2, true));
  EXPECT_FALSE(half::isVqArrayComplex(real));
  EXPECT_TRUE(half::isVqArrayComplex(complex));
  for (const std::uint32_t bit : {vq_flags::numeric, vq_flags::complex}) {
    vq_fields::clearFlags(complex.inside(), bit);
    EXPECT_FALSE(half::isVqArrayComplex(complex)) << std::hex << bit;
    vq_fields::setFlags(complex.inside(), bit);
  }
  EXPECT_TRUE(half::isVqArrayComplex(complex));

  EXPECT_TRUE(half::isVqArrayComplex(held(newNumeric({2, 2}, vqDoubleClass, vqComplex))));
  EXPECT_FALSE(half::isVqArrayComplex(held(newNumeric({2, 2}, vqDoubleClass, vqReal))));
  // The bit alone: an array that is not numeric.
  EXPECT_FALSE(half::isVqArrayComplex(held(newNumeric({2, 2}, vqLogicalClass, vqComplex))));
}

TEST(IsVqArrayComplex, OfAHalfLooksAtTheArrayInside) {
  const held array(half::createHalfMatrix(2, 2, false));
  vq_fields::setFlags(array, vq_flags::complexNumeric);
  EXPECT_FALSE(half::isVqArrayComplex(array));
}

TEST(SetComplexity, KeepsObjectAndArrayInStep) {
  const held array(half::createHalfMatrix(2, 2, false));
  const auto bitOf = [](vqArray_tag const* one) { return vq_fields::flags(one) & vq_flags::complex; };
  for (const bool complex : {true, true, false, false, true}) {
    const std::uint32_t others = vq_fields::flags(array.inside()) & ~vq_flags::complex;
    const std::uint32_t othersOutside = vq_fields::flags(array) & ~vq_flags::complex;
    half::setComplexity(array, complex);
    EXPECT_EQ(bitOf(array), complex ? 0x800u : 0u);
    EXPECT_EQ(bitOf(array.inside()), complex ? 0x800u : 0u);
    EXPECT_EQ(vq_fields::flags(array.inside()) & ~vq_flags::complex, others);
    EXPECT_EQ(vq_fields::flags(array) & ~vq_flags::complex, othersOutside);
  }
  const held plain(newNumeric({2, 2}, vqSingleClass));
  half::setComplexity(plain, true);
  EXPECT_EQ(bitOf(plain), 0x800u);
}

TEST(GetHalfPointer, IsTheBufferOfTheArrayInside) {
  const held array(half::createHalfMatrix(3, 1, false));
  fill<half_t>(array, {{0x3C00}, {0x4000}, {0xFE01}});
  EXPECT_EQ(half::getHalfPointer(array), vq_fields::data(array.inside()));
  EXPECT_EQ(half::getHalfPointer(array)[2].bits, 0xFE01);
}

}  // namespace
}  // namespace zthalf
