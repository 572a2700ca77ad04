// The host's array functions for half arrays and for others.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>

#include "tests/host/support/provider.h"
#include "tests/support/expect_bits.h"
#include "tests/support/reference.h"
#include "zthalf/host.h"
#include "zthalf/host/vq_array_api.h"

namespace zthalf {
namespace {

using namespace testing::provider;
namespace api = matrix::detail::noninlined::vq_array_api;

vqArray_tag* newHalf(sizeList const& dims, bool complex = false) {
  return half::createHalfArray(dims.size(), dims.data(), complex);
}

TEST(ClassOf, AHalfArrayIsTheLibrarysOwnNumber) {
  EXPECT_EQ(static_cast<int>(vq_or_half::vqGetClassID(held(newHalf({2, 2})))), -2357);
  EXPECT_EQ(static_cast<int>(vq_or_half::vqGetClassID(held(newHalf({2, 2}, true)))), -2357);
  for (const vqClassID id :
       {vqLogicalClass, vqDoubleClass, vqSingleClass, vqInt8Class, vqUint64Class, vqCharacterClass})
    EXPECT_EQ(vq_or_half::vqGetClassID(held(newNumeric({2, 2}, id))), id);
}

TEST(ClassOf, AWordOfTheHostsOwnIsTranslated) {
  for (const vqClassID id : {vqDoubleClass, vqSingleClass, vqInt32Class}) {
    const held array(newNumeric({2, 2}, id));
    derive(array);
    EXPECT_GE(vq_fields::classWord(array), 17u);
    EXPECT_EQ(vq_or_half::vqGetClassID(array), id);
  }
  EXPECT_EQ(vq_or_half::vqGetClassID(held(newOtherObject())), vqObjectClass);
}

TEST(ClassNames, KnowHalf) {
  EXPECT_STREQ(vq_or_half::vqArrayClassIDName(static_cast<vqClassID>(-2357)), "half");
  EXPECT_STREQ(vq_or_half::vqArrayClassIDName(vqDoubleClass), api::vqArrayClassIDName(vqDoubleClass));
  EXPECT_EQ(vq_or_half::vqClassIDFromClassName("half"), vqHalfClass);
  EXPECT_EQ(vq_or_half::vqClassIDFromClassName("double"), vqDoubleClass);
  EXPECT_EQ(vq_or_half::vqClassIDFromClassName(nullptr), api::vqClassIDFromClassName(""));
  EXPECT_EQ(vq_or_half::vqClassIDFromClassName("Half"), api::vqClassIDFromClassName("Half"));
}

TEST(ElementSize, OfHalvesIsTwoAndFour) {
  EXPECT_EQ(vq_or_half::vqGetElementSizeofClassID(vqHalfClass, false), 2u);
  EXPECT_EQ(vq_or_half::vqGetElementSizeofClassID(vqHalfClass, true), 4u);
  EXPECT_EQ(vq_or_half::vqGetElementSize(held(newHalf({2, 2}))), 2u);
  EXPECT_EQ(vq_or_half::vqGetElementSize(held(newHalf({2, 2}, true))), 4u);
  for (const vqClassID id : {vqDoubleClass, vqSingleClass, vqInt8Class})
    for (const bool complex : {false, true}) {
      EXPECT_EQ(vq_or_half::vqGetElementSizeofClassID(id, complex), api::vqGetElementSizeofClassID(id, complex));
      const held array(newNumeric({2, 2}, id, complex ? vqComplex : vqReal));
      EXPECT_EQ(vq_or_half::vqGetElementSize(array), api::vqGetElementSizeofClassID(id, complex));
    }
}

TEST(IsNumeric, IsTheBitOfTheArgumentOrAHalf) {
  EXPECT_TRUE(vq_or_half::vqIsNumeric(held(newHalf({2, 2}))));
  EXPECT_TRUE(vq_or_half::vqIsNumeric(held(newHalf({2, 2}, true))));
  for (const vqClassID id : {vqDoubleClass, vqSingleClass, vqInt16Class})
    EXPECT_TRUE(vq_or_half::vqIsNumeric(held(newNumeric({1, 1}, id))));
  for (const vqClassID id : {vqLogicalClass, vqCharacterClass})
    EXPECT_FALSE(vq_or_half::vqIsNumeric(held(newNumeric({1, 1}, id))));
  const held other(newOtherObject());  // around a numeric array, which is not looked at
  EXPECT_FALSE(vq_or_half::vqIsNumeric(other));
  vq_fields::setFlags(other, vq_flags::numeric);
  EXPECT_TRUE(vq_or_half::vqIsNumeric(other));
}

TEST(IsSparseIsComplexIsLogical, AreFieldsOfTheArrayInside) {
  const held half(newHalf({2, 2})), plain(newNumeric({2, 2}, vqDoubleClass)),
      logical(newNumeric({2, 2}, vqLogicalClass));
  for (held const* array : {&half, &plain, &logical}) {
    EXPECT_FALSE(vq_or_half::vqIsSparse(*array));
    EXPECT_EQ(vq_or_half::vqIsLogical(*array), array == &logical);
    vq_fields::setFlags(array->inside(), vq_flags::sparse);
    EXPECT_TRUE(vq_or_half::vqIsSparse(*array));
  }
  EXPECT_FALSE(vq_or_half::vqIsComplex(half));
  EXPECT_TRUE(vq_or_half::vqIsComplex(held(newHalf({2, 2}, true))));
  EXPECT_TRUE(vq_or_half::vqIsComplex(held(newNumeric({2, 2}, vqSingleClass, vqComplex))));
  EXPECT_FALSE(vq_or_half::vqIsComplex(held(newNumeric({2, 2}, vqLogicalClass, vqComplex))));
}

TEST(GetScalar, IsTheFirstRealPart) {
  testing::bitComparison compare("vqGetScalar");
  const held real(newHalf({2, 1})), complex(newHalf({1, 1}, true));
  for (std::uint32_t p = 0; p <= 0xFFFF; p += 7) {
    const auto pattern = static_cast<std::uint16_t>(p);
    const double expected = reference::widenedToDouble(pattern);
    fill<half_t>(real, {{pattern}, {0x3C00}});
    compare.check(vq_or_half::vqGetScalar(real), expected, pattern);
    fill<half_t>(complex, {{pattern}, {0x7C00}});
    compare.check(vq_or_half::vqGetScalar(complex), expected, pattern);
  }
  const held plain(newNumeric({1, 2}, vqDoubleClass));
  fill<double>(plain, {-2.5, 1});
  EXPECT_EQ(vq_or_half::vqGetScalar(plain), -2.5);
}

TEST(IsFiniteNumericArray, LooksAtEveryPart) {
  for (const bool complex : {false, true}) {
    EXPECT_TRUE(vq_or_half::vqIsFiniteNumericArray(held(newHalf({0, 3}, complex))));
    for (const unsigned long n : {1UL, 5UL, 3000UL}) {
      const held array(newHalf({n, 1}, complex));
      const unsigned long parts = n * (complex ? 2 : 1);
      EXPECT_TRUE(vq_or_half::vqIsFiniteNumericArray(array));
      for (const unsigned long at : {0UL, parts / 2, parts - 1})
        for (const std::uint16_t other : {0x7C00, 0xFC00, 0x7E00, 0xFC01}) {
          half::getHalfPointer(array)[at] = {other};
          EXPECT_FALSE(vq_or_half::vqIsFiniteNumericArray(array)) << at;
          half::getHalfPointer(array)[at] = {0xFBFF};
          EXPECT_TRUE(vq_or_half::vqIsFiniteNumericArray(array));
        }
    }
  }
  const held plain(newNumeric({1, 2}, vqDoubleClass));
  EXPECT_TRUE(vq_or_half::vqIsFiniteNumericArray(plain));
  fill<double>(plain, {1, std::numeric_limits<double>::infinity()});
  EXPECT_FALSE(vq_or_half::vqIsFiniteNumericArray(plain));
}

TEST(IsHalfVectorComplexWithZeroImag, LooksAtHalvesWhateverTheClass) {
  const held real(newHalf({2, 2})), complex(newHalf({2, 2}, true));
  EXPECT_FALSE(vq_or_half::vqIsHalfVectorComplexWithZeroImag(real));
  EXPECT_TRUE(vq_or_half::vqIsHalfVectorComplexWithZeroImag(complex));
  EXPECT_TRUE(vq_or_half::vqIsHalfVectorComplexWithZeroImag(held(newHalf({0, 2}, true))));
  half::getHalfPointer(complex)[7] = {0x8000};
  EXPECT_TRUE(vq_or_half::vqIsHalfVectorComplexWithZeroImag(complex));
  half::getHalfPointer(complex)[7] = {0x0001};
  EXPECT_FALSE(vq_or_half::vqIsHalfVectorComplexWithZeroImag(complex));

  const held plain(newNumeric({1, 2}, vqSingleClass, vqComplex));
  EXPECT_TRUE(vq_or_half::vqIsHalfVectorComplexWithZeroImag(plain));
  // Two elements are two pairs of 16 bits: the second pair is the real part's upper half, the others are not reached.
  auto* const bits = elementsOf<std::uint16_t>(plain);
  bits[0] = bits[2] = bits[4] = bits[5] = bits[7] = 0x1234;
  EXPECT_TRUE(vq_or_half::vqIsHalfVectorComplexWithZeroImag(plain));
  bits[3] = 1;
  EXPECT_FALSE(vq_or_half::vqIsHalfVectorComplexWithZeroImag(plain));
  EXPECT_FALSE(vq_or_half::vqIsHalfVectorComplexWithZeroImag(held(newNumeric({1, 2}, vqSingleClass))));
}

TEST(FreeImagIfZero, IsTheLibrarysForHalvesAndTheHostsForOthers) {
  const held array(newHalf({2, 1}, true)), plain(newNumeric({2, 1}, vqDoubleClass, vqComplex));
  takeCalls();
  vq_or_half::vqFreeImagIfZero(array);
  EXPECT_FALSE(half::isVqArrayComplex(array));
  vq_or_half::vqFreeImagIfZero(plain);
  EXPECT_FALSE(half::isVqArrayComplex(plain));
  long ofHost = 0;
  for (std::string const& call : takeCalls()) ofHost += call == "vqFreeImagIfZero";
  if (notesCalls) {
    EXPECT_EQ(ofHost, 1);
  }
}

TEST(Creation, MakesHalvesForTheHalfClass) {
  const sizeList dims{2, 3, 2};
  for (const vqComplexity complexity : {vqReal, vqComplex}) {
    const held a(vq_or_half::vqCreateNumericArray(3, dims.data(), vqHalfClass, complexity)),
        m(vq_or_half::vqCreateNumericMatrix(4, 5, vqHalfClass, complexity)),
        s(vq_or_half::vqCreateNumericScalar(vqHalfClass, complexity));
    for (held const* array : {&a, &m, &s}) {
      EXPECT_TRUE(half::isVqArrayHalf(*array));
      EXPECT_EQ(half::isVqArrayComplex(*array), complexity == vqComplex);
    }
    EXPECT_EQ(vq_or_half::vqGetNumberOfElements(a), 12u);
    EXPECT_EQ(vq_or_half::vqGetNumberOfDimensions(a), 3u);
    EXPECT_EQ(vq_or_half::vqGetM(m), 4u);
    EXPECT_EQ(vq_or_half::vqGetN(m), 5u);
    EXPECT_TRUE(vq_or_half::vqIsScalar(s));
  }
  // Complex is 1 and nothing else.
  const held real(vq_or_half::vqCreateNumericScalar(vqHalfClass, static_cast<vqComplexity>(2)));
  EXPECT_FALSE(half::isVqArrayComplex(real));
}

TEST(Creation, LeavesOtherClassesToTheHost) {
  const sizeList dims{2, 3, 2};
  for (const vqComplexity complexity : {vqReal, vqComplex}) {
    const held a(vq_or_half::vqCreateNumericArray(3, dims.data(), vqSingleClass, complexity)),
        m(vq_or_half::vqCreateNumericMatrix(4, 5, vqDoubleClass, complexity)),
        s(vq_or_half::vqCreateNumericScalar(vqInt8Class, complexity));
    EXPECT_EQ(vq_or_half::vqGetClassID(a), vqSingleClass);
    EXPECT_EQ(vq_or_half::vqGetClassID(m), vqDoubleClass);
    EXPECT_EQ(vq_or_half::vqGetClassID(s), vqInt8Class);
    EXPECT_EQ(half::isVqArrayComplex(m), complexity == vqComplex);
    EXPECT_EQ(vq_or_half::vqGetNumberOfElements(a), 12u);
  }
}

TEST(ColonopSize, IsTheLibrarysForHalvesAndTheHostsForOthers) {
  EXPECT_EQ(vq_or_half::vqColonop_size(0, 0.1, 0.9995, vqHalfClass), 11);
  EXPECT_EQ(vq_or_half::vqColonop_size(0, 0.1, 0.9995, vqDoubleClass),
            api::vqColonop_size(0, 0.1, 0.9995, vqDoubleClass));
  EXPECT_NE(vq_or_half::vqColonop_size(0, 0.1, 0.9995, vqDoubleClass), 11);
}

}  // namespace
}  // namespace zthalf
