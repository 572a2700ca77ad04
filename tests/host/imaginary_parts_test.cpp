// freeImagIfZero: when a complex half array becomes a real one, and that nobody else's data changes by it.
#include <gtest/gtest.h>

#include "tests/host/support/provider.h"
#include "zthalf/host.h"

namespace zthalf {
namespace {

using namespace testing::provider;

// A column of complex halves: parts in the order of memory.
vqArray_tag* newComplex(std::vector<std::uint16_t> const& parts) {
  vqArray_tag* const array = half::createHalfMatrix(parts.size() / 2, 1, true);
  std::copy(parts.begin(), parts.end(), elementsOf<std::uint16_t>(array));
  return array;
}

std::vector<std::uint16_t> partsOf(vqArray_tag const* array, std::size_t count) {
  auto const* const first = elementsOf<std::uint16_t>(array);
  return {first, first + count};
}

bool isComplex(held const& array) {
  const bool outside = (vq_fields::flags(array) & vq_flags::complex) != 0;
  EXPECT_EQ((vq_fields::flags(array.inside()) & vq_flags::complex) != 0, outside);
  return outside;
}

const std::vector<std::uint16_t> removable{0x3C00, 0x0000, 0x7E01, 0x8000, 0xFC00, 0x0000, 0x8000, 0x8000, 0x0001, 0};
const std::vector<std::uint16_t> realParts{0x3C00, 0x7E01, 0xFC00, 0x8000, 0x0001};

TEST(FreeImagIfZero, PacksRealPartsInTheSameBuffer) {
  const held array(newComplex(removable));
  half_t* const buffer = half::getHalfPointer(array);
  half::freeImagIfZero(array);
  EXPECT_FALSE(isComplex(array));
  EXPECT_EQ(half::getHalfPointer(array), buffer);
  EXPECT_EQ(partsOf(array, 5), realParts);
  EXPECT_EQ(vq_or_half::vqGetM(array), 5u);
  EXPECT_EQ(vq_or_half::vqGetN(array), 1u);
  half::freeImagIfZero(array);  // a real one stays
  EXPECT_EQ(partsOf(array, 5), realParts);
}

TEST(FreeImagIfZero, TakesMinusZeroForZero) {
  const held array(newComplex({0x3C00, 0x8000, 0x4000, 0x8000}));
  half::freeImagIfZero(array);
  EXPECT_FALSE(isComplex(array));
  EXPECT_EQ(partsOf(array, 2), (std::vector<std::uint16_t>{0x3C00, 0x4000}));
}

TEST(FreeImagIfZero, LeavesAnyOtherImaginaryPart) {
  for (const std::uint16_t other : {0x0001, 0x8001, 0x3C00, 0x7C00, 0x7E00, 0xFE00, 0x7C01})
    for (const std::size_t where : {1, 5, 9}) {
      std::vector<std::uint16_t> parts = removable;
      parts[where] = other;
      const held array(newComplex(parts));
      half::freeImagIfZero(array);
      EXPECT_TRUE(isComplex(array)) << std::hex << other;
      EXPECT_EQ(partsOf(array, parts.size()), parts);
    }
}

TEST(FreeImagIfZero, OfAnEmptyArrayClearsTheFlag) {
  for (const sizeList& dims : {sizeList{0, 0}, {0, 3}, {3, 0}, {2, 0, 2}}) {
    const held array(half::createHalfArray(dims.size(), dims.data(), true));
    half::freeImagIfZero(array);
    EXPECT_FALSE(isComplex(array));
  }
}

TEST(FreeImagIfZero, OfARealArrayDoesNothing) {
  const held array(half::createHalfMatrix(2, 1, false));
  fill<half_t>(array, {{0x3C00}, {0x0000}});
  vq_fields::setFlags(array, vq_flags::complex);  // the array inside decides
  half::freeImagIfZero(array);
  EXPECT_EQ(partsOf(array, 2), (std::vector<std::uint16_t>{0x3C00, 0x0000}));
  EXPECT_NE(vq_fields::flags(array) & vq_flags::complex, 0u);
  vq_fields::clearFlags(array, vq_flags::complex);
}

TEST(FreeImagIfZero, LeavesAnArrayThatTwoHold) {
  for (const bool byFirstCount : {false, true}) {
    const held array(newComplex(removable));
    hold(array, byFirstCount);
    half::freeImagIfZero(array);
    EXPECT_TRUE(isComplex(array));
    EXPECT_EQ(partsOf(array, removable.size()), removable);
    letGo(array, byFirstCount);
    half::freeImagIfZero(array);
    EXPECT_FALSE(isComplex(array));
  }
}

// The counts of the array inside do not matter.
TEST(FreeImagIfZero, AsksHowManyHoldTheObject) {
  const held array(newComplex(removable));
  hold(array.inside(), true);
  half::freeImagIfZero(array);
  EXPECT_FALSE(isComplex(array));
  letGo(array.inside(), true);
}

TEST(FreeImagIfZero, LeavesHeldDataOfTheObjectAlone) {
  const held array(newComplex(removable));
  vq_fields::setFlags(array.inside(), vq_flags::dataHeld);
  vq_fields::setFlags(array, vq_flags::dataHeld);
  half::freeImagIfZero(array);
  EXPECT_TRUE(isComplex(array));
  EXPECT_EQ(partsOf(array, removable.size()), removable);
  vq_fields::clearFlags(array, vq_flags::dataHeld);  // of the array inside it does not matter
  half::freeImagIfZero(array);
  EXPECT_FALSE(isComplex(array));
}

TEST(FreeImagIfZero, LeavesTheOtherHolderOfTheDataAsItWas) {
  const long before = live();
  {
    const held array(newComplex(removable));
    const held other(newSharing(array));
    ASSERT_EQ(half::getHalfPointer(array), half::getHalfPointer(other));
    half::freeImagIfZero(array);
    EXPECT_FALSE(isComplex(array));
    EXPECT_EQ(partsOf(array, 5), realParts);
    EXPECT_TRUE(isComplex(other));
    EXPECT_EQ(partsOf(other, removable.size()), removable);
    // Now the other one has the data for itself, whatever its bit says.
    half_t* const buffer = half::getHalfPointer(other);
    half::freeImagIfZero(other);
    EXPECT_EQ(half::getHalfPointer(other), buffer);
    EXPECT_EQ(partsOf(other, 5), realParts);
  }
  EXPECT_EQ(live(), before);
}

TEST(FreeImagIfZero, WithoutItsBitDoesNotAskWhoSharesTheData) {
  const held array(newComplex(removable));
  const held other(newSharing(array));
  vq_fields::clearFlags(array, vq_flags::maybeShared);
  half_t* const buffer = half::getHalfPointer(array);
  half::freeImagIfZero(array);
  EXPECT_EQ(half::getHalfPointer(array), buffer);
  EXPECT_EQ(partsOf(other, 5), realParts);
}

TEST(FreeImagIfZero, CompletesDimensionsBeforeItCounts) {
  const held array(newComplex(removable));
  deferDimensions(array);
  half::freeImagIfZero(array);
  EXPECT_FALSE(isComplex(array));
  EXPECT_EQ(partsOf(array, 5), realParts);
}

// Beyond the count from which the scan is parallel.
TEST(FreeImagIfZero, SeesOneImaginaryPartAmongMany) {
  constexpr unsigned long n = 5000;
  std::vector<std::uint16_t> parts(2 * n);
  for (unsigned long i = 0; i < n; ++i) parts[2 * i] = static_cast<std::uint16_t>(i);
  for (const unsigned long at : {0UL, 1234UL, n - 1}) {
    std::vector<std::uint16_t> disturbed = parts;
    disturbed[2 * at + 1] = 0x0001;
    const held array(newComplex(disturbed));
    half::freeImagIfZero(array);
    EXPECT_TRUE(isComplex(array));
    EXPECT_EQ(partsOf(array, 2 * n), disturbed);
  }
  const held array(newComplex(parts));
  half::freeImagIfZero(array);
  EXPECT_FALSE(isComplex(array));
  for (unsigned long i = 0; i < n; ++i) ASSERT_EQ(half::getHalfPointer(array)[i].bits, i);
}

}  // namespace
}  // namespace zthalf
