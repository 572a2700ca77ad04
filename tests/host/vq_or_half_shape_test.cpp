// Shape and data of half arrays and of others, by the host's array functions for both.
#include <gtest/gtest.h>

#include "tests/host/support/provider.h"
#include "zthalf/host.h"

namespace zthalf {
namespace {

using namespace testing::provider;

vqArray_tag* newHalf(sizeList const& dims, bool complex = false) {
  return half::createHalfArray(dims.size(), dims.data(), complex);
}

const std::vector<sizeList> shapes{{0, 0}, {1, 1},    {1, 5},    {5, 1}, {2, 3},
                                   {0, 3}, {2, 3, 4}, {1, 1, 2}, {7},    {2, 0, 4}};

unsigned long productOf(sizeList const& dims, std::size_t from = 0) {
  unsigned long product = 1;
  for (std::size_t i = from; i < dims.size(); ++i) product *= dims[i];
  return product;
}

// Half arrays, real and complex, and plain ones of the same shape.
template <class Check>
void onArraysOfEveryShape(Check check) {
  for (sizeList const& dims : shapes) {
    check(held(newHalf(dims)), dims);
    check(held(newHalf(dims, true)), dims);
    check(held(newNumeric(dims, vqDoubleClass)), dims);
    check(held(newNumeric(dims, vqSingleClass, vqComplex)), dims);
  }
}

TEST(Shape, IsThatOfTheArrayInside) {
  onArraysOfEveryShape([](held const& array, sizeList const& dims) {
    EXPECT_EQ(vq_or_half::vqGetNumberOfDimensions(array), dims.size());
    unsigned long const* const sizes = vq_or_half::vqGetDimensions(array);
    EXPECT_EQ(sizeList(sizes, sizes + dims.size()), dims);
    EXPECT_EQ(vq_or_half::vqGetM(array), dims[0]);
    EXPECT_EQ(vq_or_half::vqGetN(array), productOf(dims, 1));
    EXPECT_EQ(vq_or_half::vqGetNumberOfElements(array), productOf(dims));
    EXPECT_EQ(vq_or_half::vqIsEmpty(array), productOf(dims) == 0);
    EXPECT_EQ(vq_or_half::vqIsScalar(array), productOf(dims) == 1);
    EXPECT_EQ(vq_or_half::vqIsVector(array), dims.size() == 2 && (dims[0] == 1 || dims[1] == 1));
  });
}

TEST(Shape, IsCompletedBeforeItIsRead) {
  for (int query = 0; query < 4; ++query)
    onArraysOfEveryShape([&](held const& array, sizeList const& dims) {
      deferDimensions(array);
      ASSERT_NE(vq_fields::flags(array.inside()) & vq_flags::opaqueDimensions, 0u);
      if (query == 0) {
        EXPECT_EQ(vq_or_half::vqGetNumberOfDimensions(array), dims.size());
      }
      if (query == 1) {
        EXPECT_EQ(vq_or_half::vqGetDimensions(array)[0], dims[0]);
      }
      if (query == 2) {
        EXPECT_EQ(vq_or_half::vqGetM(array), dims[0]);
      }
      if (query == 3) {
        EXPECT_EQ(vq_or_half::vqGetNumberOfElements(array), productOf(dims));
      }
      EXPECT_EQ(vq_fields::flags(array.inside()) & vq_flags::opaqueDimensions, 0u);
    });
}

TEST(SetDimensions, ChangesTheShapeAndNotTheData) {
  for (const bool isHalf : {true, false}) {
    const held array(isHalf ? newHalf({2, 6}) : newNumeric({2, 6}, vqUint16Class));
    void* const data = vq_or_half::vqGetData(array);
    for (sizeList const& dims : {sizeList{3, 4}, {2, 2, 3}, {12}, {12, 1}}) {
      vq_or_half::vqSetDimensions(array, dims.data(), dims.size());
      unsigned long const* const sizes = vq_or_half::vqGetDimensions(array);
      EXPECT_EQ(sizeList(sizes, sizes + vq_or_half::vqGetNumberOfDimensions(array)), dims);
      EXPECT_EQ(vq_or_half::vqGetData(array), data);
    }
  }
}

int freed = 0;
void countFree(void* data) {
  ++freed;
  delete[] static_cast<std::uint16_t*>(data);
}

TEST(SetData, HandsTheFreeingFunctionOn) {
  for (const bool isHalf : {true, false}) {
    freed = 0;
    {
      const held array(isHalf ? newHalf({2, 2}) : newNumeric({2, 2}, vqUint16Class));
      auto* const data = new std::uint16_t[4]{1, 2, 3, 4};
      vq_or_half::vqSetData(array, data, countFree);
      EXPECT_EQ(vq_or_half::vqGetData(array), data);
      EXPECT_EQ(freed, 0);
    }
    EXPECT_EQ(freed, 1);
  }
}

}  // namespace
}  // namespace zthalf
