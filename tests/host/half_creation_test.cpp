// New half arrays: shape, flags, data, and that they leave nothing behind.
#include <gtest/gtest.h>

#include <limits>

#include "tests/host/support/provider.h"
#include "zthalf/host.h"
#include "zthalf/host/vq_array_api.h"

namespace zthalf {
namespace {

using namespace testing::provider;
namespace api = matrix::detail::noninlined::vq_array_api;

sizeList sizesOf(vqArray_tag const* array) {
  unsigned long const* const dims = vq_or_half::vqGetDimensions(array);
  return sizeList(dims, dims + vq_or_half::vqGetNumberOfDimensions(array));
}

bool isComplexInBoth(held const& array) {
  const bool outside = (vq_fields::flags(array) & vq_flags::complex) != 0;
  EXPECT_EQ((vq_fields::flags(array.inside()) & vq_flags::complex) != 0, outside);
  return outside;
}

void expectZeros(vqArray_tag const* array, unsigned long parts) {
  for (unsigned long i = 0; i < parts; ++i) EXPECT_EQ(half::getHalfPointer(array)[i].bits, 0) << i;
}

TEST(CreateHalfMatrix, HasItsShapeItsFlagsAndZeros) {
  for (const bool complex : {false, true})
    for (const unsigned long m : {0UL, 1UL, 2UL, 7UL})
      for (const unsigned long n : {0UL, 1UL, 3UL}) {
        const held array(half::createHalfMatrix(m, n, complex));
        EXPECT_TRUE(half::isVqArrayHalf(array));
        EXPECT_EQ(sizesOf(array), (sizeList{m, n}));
        EXPECT_EQ(isComplexInBoth(array), complex);
        expectZeros(array, m * n * (complex ? 2 : 1));
      }
}

TEST(CreateHalfArray, TakesAnyNumberOfDimensions) {
  for (const bool complex : {false, true})
    for (const sizeList& dims : {sizeList{5}, {2, 3}, {2, 3, 4}, {2, 0, 4}, {1, 1, 1, 2}, {0}}) {
      const held array(half::createHalfArray(dims.size(), dims.data(), complex));
      EXPECT_EQ(sizesOf(array), dims);
      EXPECT_EQ(isComplexInBoth(array), complex);
      unsigned long count = 1;
      for (const unsigned long size : dims) count *= size;
      EXPECT_EQ(vq_or_half::vqGetNumberOfElements(array), count);
      expectZeros(array, count * (complex ? 2 : 1));
    }
}

TEST(CreateHalfArray, WithoutDimensionsMakesOneElement) {
  const held array(half::createHalfArray(0, nullptr, false));
  EXPECT_EQ(vq_or_half::vqGetNumberOfElements(array), 1u);
  EXPECT_EQ(vq_or_half::vqGetNumberOfDimensions(array), 0u);
  expectZeros(array, 1);
  const held complex(half::createHalfArray(0, nullptr, true));
  EXPECT_EQ(vq_or_half::vqGetNumberOfElements(complex), 1u);
  expectZeros(complex, 2);
}

TEST(CreateUninitHalfArray, HasRoomForEveryElement) {
  for (const bool complex : {false, true})
    for (const sizeList& dims : {sizeList{5}, {2, 3}, {2, 3, 4}, {0, 3}, {}}) {
      unsigned long count = 1;
      for (const unsigned long size : dims) count *= size;
      const held array(half::createUninitHalfArray(count, dims.size(), dims.data(), complex));
      EXPECT_TRUE(half::isVqArrayHalf(array));
      EXPECT_EQ(sizesOf(array), dims);
      EXPECT_EQ(isComplexInBoth(array), complex);
      const unsigned long parts = count * (complex ? 2 : 1);
      for (unsigned long i = 0; i < parts; ++i) half::getHalfPointer(array)[i] = {0x7BFF};  // sanitizers watch the end
    }
}

TEST(CreateUninitHalfMatrix, HasRoomForEveryElement) {
  for (const bool complex : {false, true})
    for (const unsigned long m : {0UL, 1UL, 6UL})
      for (const unsigned long n : {0UL, 1UL, 5UL}) {
        const held array(half::createUninitHalfMatrix(m, n, complex));
        EXPECT_EQ(sizesOf(array), (sizeList{m, n}));
        EXPECT_EQ(isComplexInBoth(array), complex);
        const unsigned long parts = m * n * (complex ? 2 : 1);
        for (unsigned long i = 0; i < parts; ++i) half::getHalfPointer(array)[i] = {0x7BFF};
      }
}

TEST(SetHalfData, GivesTheBufferToTheArray) {
  const long before = live();
  {
    const held array(half::createHalfMatrix(2, 2, false));
    auto* const buffer = static_cast<half_t*>(api::vqMallocEx(4 * sizeof(half_t)));
    for (int i = 0; i < 4; ++i) buffer[i] = {static_cast<std::uint16_t>(0x3C00 + i)};
    half::setHalfData(array, buffer);
    EXPECT_EQ(half::getHalfPointer(array), buffer);
    EXPECT_EQ(sizesOf(array), (sizeList{2, 2}));
    half::setHalfData(array, buffer);  // which it has already
    EXPECT_EQ(half::getHalfPointer(array)[3].bits, 0x3C03);
  }
  EXPECT_EQ(live(), before);
}

TEST(Creation, LeavesNothingWhenTheArraysAreGone) {
  const long before = live();
  for (const bool complex : {false, true}) {
    const sizeList dims{2, 3, 4};
    const held a(half::createHalfMatrix(2, 3, complex)), b(half::createHalfArray(3, dims.data(), complex)),
        c(half::createUninitHalfArray(24, 3, dims.data(), complex)), d(half::createUninitHalfMatrix(4, 5, complex));
    EXPECT_GT(live(), before);
  }
  EXPECT_EQ(live(), before);
}

// A product that wraps round would be an array smaller than its own dimensions.
TEST(Creation, RefusesMoreElementsThanCanBeCounted) {
  constexpr unsigned long root = 1UL << 32;
  const long before = live();
  for (const bool complex : {false, true}) {
    const callScope call;
    const sizeList huge{root, root}, deep{root, root / 2, 4};
    EXPECT_ANY_THROW(half::createHalfMatrix(root, root, complex));
    EXPECT_ANY_THROW(half::createHalfMatrix(root, root / 2, complex));
    EXPECT_ANY_THROW(half::createHalfArray(2, huge.data(), complex));
    EXPECT_ANY_THROW(half::createHalfArray(3, deep.data(), complex));
    EXPECT_ANY_THROW(half::createUninitHalfMatrix(root, root, complex));
    EXPECT_ANY_THROW(
        half::createUninitHalfArray(std::numeric_limits<unsigned long>::max() / 2, 2, huge.data(), complex));
  }
  EXPECT_EQ(live(), before);
  // With a zero among them there is nothing to count.
  const sizeList none{root, root, 0};
  EXPECT_EQ(vq_or_half::vqGetNumberOfElements(held(half::createHalfArray(3, none.data(), false))), 0u);
}

}  // namespace
}  // namespace zthalf
