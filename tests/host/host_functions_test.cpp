// ulpFcn and useF16CforHalfFcn as a host calls them: counts, checks in their order, results.
#include "zthalf/host_functions.h"

#include <gtest/gtest.h>

#include <cstring>
#include <limits>

#include "tests/host/support/provider.h"
#include "zthalf/half_ptr.h"
#include "zthalf/half_scalar.h"
#include "zthalf/host.h"
#include "zthalf/host_errors.h"

// As a caller declares them that knows nothing of C linkage.
extern void ulpByCxxName(int, vqArray_tag**, int, vqArray_tag const**) __asm__("_Z6ulpFcniPP11vqArray_tagiPPKS_");
extern void useF16CByCxxName(int, vqArray_tag**, int,
                             vqArray_tag const**) __asm__("_Z17useF16CforHalfFcniPP11vqArray_tagiPPKS_");

namespace zthalf {
namespace {

using namespace testing::provider;
using half::error::exceptionOf;
using BadType = exceptionOf<half::error::PropInvalidDataType>;
using BadSize = exceptionOf<half::error::dimagree>;

vqArray_tag* newHalf(sizeList const& dims, bool complex = false) {
  return half::createHalfArray(dims.size(), dims.data(), complex);
}

struct hostCall {
  void (*function)(int, vqArray_tag**, int, vqArray_tag const**);
  int nlhs = 1;
  std::vector<vqArray_tag const*> inputs;
  int nrhs = static_cast<int>(inputs.size());
  vqArray_tag* output = nullptr;

  vqArray_tag* run() {
    function(nlhs, &output, nrhs, inputs.data());
    return output;
  }
};

std::string countErrorOf(hostCall call) {
  const callScope scope;
  return testing::provider::countErrorOf([](void* c) { static_cast<hostCall*>(c)->run(); }, &call);
}

TEST(UlpFcn, WantsTwoInputsAndAtMostOneOutput) {
  const held half(newHalf({2, 2})), logical(newNumeric({1, 1}, vqLogicalClass));
  EXPECT_EQ(countErrorOf({ulpFcn, 1, {half}}), "minrhs");
  EXPECT_EQ(countErrorOf({ulpFcn, 1, {}}), "minrhs");
  EXPECT_EQ(countErrorOf({ulpFcn, 1, {half, half}, -1}), "minrhs");
  EXPECT_EQ(countErrorOf({ulpFcn, 1, {half, half, half}}), "maxrhs");
  EXPECT_EQ(countErrorOf({ulpFcn, 2, {half, half}}), "maxlhs");
  // The first check that fails is heard of: outputs, then inputs, then types, then sizes.
  EXPECT_EQ(countErrorOf({ulpFcn, 2, {half, half, half}}), "maxlhs");
  EXPECT_EQ(countErrorOf({ulpFcn, 2, {logical}}), "maxlhs");
  EXPECT_EQ(countErrorOf({ulpFcn, 1, {logical, logical, logical}}), "maxrhs");
  EXPECT_EQ(countErrorOf({ulpFcn, 1, {logical}}), "minrhs");
  EXPECT_THROW((hostCall{ulpFcn, 1, {logical, half}}.run()), BadType);
  for (const int nlhs : {0, 1, -1}) EXPECT_NE(held(hostCall{ulpFcn, nlhs, {half, half}}.run()), nullptr);
}

TEST(UlpFcn, RefusesEveryOtherClassOnEitherSide) {
  const held half(newHalf({2, 2})), other(newOtherObject());
  for (const vqClassID id : {vqLogicalClass, vqCharacterClass, vqInt8Class, vqInt16Class, vqInt32Class, vqInt64Class,
                             vqUint8Class, vqUint16Class, vqUint32Class, vqUint64Class}) {
    const held array(newNumeric({2, 2}, id));
    EXPECT_THROW((hostCall{ulpFcn, 1, {array, half}}.run()), BadType) << id;
    EXPECT_THROW((hostCall{ulpFcn, 1, {half, array}}.run()), BadType) << id;
  }
  EXPECT_THROW((hostCall{ulpFcn, 1, {other, half}}.run()), BadType);
  EXPECT_THROW((hostCall{ulpFcn, 1, {half, other}}.run()), BadType);
  // An array inside a half array is none of the three classes.
  EXPECT_THROW((hostCall{ulpFcn, 1, {half.inside(), half}}.run()), BadType);
  try {
    hostCall{ulpFcn, 1, {other, half}}.run();
  } catch (BadType const& error) {
    EXPECT_EQ(error.error_id(), "half:error:PropInvalidDataType");
  }
}

TEST(UlpFcn, TakesClassesThatAreDerivedFromItsOwn) {
  const held a(newNumeric({1, 1}, vqDoubleClass)), b(newNumeric({1, 1}, vqSingleClass));
  fill<double>(a, {1.0});
  fill<float>(b, {1.0f + 0x1p-10f});
  derive(a);
  derive(b);
  const held out(hostCall{ulpFcn, 1, {a, b}}.run());
  EXPECT_EQ(*elementsOf<double>(out), 1.0);
}

TEST(UlpFcn, WantsEqualSizesInEveryDimension) {
  const std::vector<std::pair<sizeList, sizeList>> pairs{
      {{2, 2}, {1, 4}}, {{1, 1}, {2, 2}},       {{2, 2}, {1, 1}}, {{2, 3}, {3, 2}}, {{2, 3}, {2, 3, 1}},
      {{6}, {6, 1}},    {{2, 3, 4}, {2, 4, 3}}, {{0, 3}, {3, 0}}, {{0, 0}, {0, 1}}, {{2, 3, 4}, {2, 3}}};
  for (auto const& [first, second] : pairs) {
    const held a(newHalf(first)), b(newNumeric(second, vqDoubleClass));
    EXPECT_THROW((hostCall{ulpFcn, 1, {a, b}}.run()), BadSize);
    EXPECT_THROW((hostCall{ulpFcn, 1, {b, a}}.run()), BadSize);
    try {
      hostCall{ulpFcn, 1, {a, b}}.run();
    } catch (BadSize const& error) {
      EXPECT_EQ(error.error_id(), "half:error:dimagree");
    }
  }
}

TEST(UlpFcn, GivesADoubleArrayOfTheSameShape) {
  for (sizeList const& dims : {sizeList{2, 3}, {1, 1}, {5, 1}, {2, 3, 2}, {6}, {1, 2, 1, 3}}) {
    unsigned long n = 1;
    for (const unsigned long size : dims) n *= size;
    const held a(newHalf(dims)), b(newHalf(dims));
    for (unsigned long i = 0; i < n; ++i) half::getHalfPointer(b)[i] = {static_cast<std::uint16_t>(i)};
    const held out(hostCall{ulpFcn, 1, {a, b}}.run());
    EXPECT_EQ(vq_or_half::vqGetClassID(out), vqDoubleClass);
    EXPECT_FALSE(half::isVqArrayComplex(out));
    unsigned long const* const sizes = vq_or_half::vqGetDimensions(out);
    EXPECT_EQ(sizeList(sizes, sizes + vq_or_half::vqGetNumberOfDimensions(out)), dims);
    for (unsigned long i = 0; i < n; ++i) EXPECT_EQ(elementsOf<double>(out)[i], static_cast<double>(i));
  }
}

TEST(UlpFcn, OfEmptyArraysIsAnEmptyArray) {
  for (sizeList const& dims : {sizeList{0, 0}, {0, 3}, {3, 0}, {2, 0, 2}}) {
    const held a(newHalf(dims)), b(newNumeric(dims, vqSingleClass));
    const held out(hostCall{ulpFcn, 1, {a, b}}.run());
    EXPECT_EQ(vq_or_half::vqGetClassID(out), vqDoubleClass);
    unsigned long const* const sizes = vq_or_half::vqGetDimensions(out);
    EXPECT_EQ(sizeList(sizes, sizes + vq_or_half::vqGetNumberOfDimensions(out)), dims);
  }
}

TEST(UlpFcn, CompletesDimensionsOnBothSides) {
  const held a(newHalf({2, 3})), b(newNumeric({2, 3}, vqDoubleClass));
  deferDimensions(a);
  deferDimensions(b);
  const held out(hostCall{ulpFcn, 1, {a, b}}.run());
  EXPECT_EQ(vq_or_half::vqGetNumberOfElements(out), 6u);
}

TEST(UlpFcn, IsThereUnderBothNames) {
  const held a(newHalf({1, 1})), out(hostCall{ulpByCxxName, 1, {a, a}}.run());
  EXPECT_EQ(*elementsOf<double>(out), 0.0);
}

void expectZero(vqArray_tag const* answer) {
  ASSERT_NE(answer, nullptr);
  EXPECT_EQ(vq_or_half::vqGetClassID(answer), vqDoubleClass);
  EXPECT_TRUE(vq_or_half::vqIsScalar(answer));
  EXPECT_FALSE(half::isVqArrayComplex(answer));
  std::uint64_t bits;
  std::memcpy(&bits, elementsOf<double>(answer), sizeof bits);
  EXPECT_EQ(bits, 0u);
}

TEST(UseF16CforHalfFcn, AnswersZeroAndSaysThatItWasAsked) {
  for (auto* const function : {useF16CforHalfFcn, useF16CByCxxName})
    for (const int nlhs : {0, 1}) {
      half_ptr::initialized = 0;
      expectZero(held(hostCall{function, nlhs, {}}.run()));
      EXPECT_TRUE(half_ptr::isInitialized());
    }
  for (const double wish : {1.0, 0.0, -7.5, 1e300, std::numeric_limits<double>::quiet_NaN()}) {
    const held input(newNumeric({1, 1}, vqDoubleClass));
    fill<double>(input, {wish});
    half_ptr::initialized = 0;
    expectZero(held(hostCall{useF16CforHalfFcn, 1, {input}}.run()));
    EXPECT_TRUE(half_ptr::isInitialized());
  }
  expectZero(held(hostCall{useF16CforHalfFcn, 1, {held(newNumeric({1, 1, 1}, vqInt8Class))}}.run()));
}

TEST(UseF16CforHalfFcn, RefusesWhatIsNoRealNumericScalar) {
  const held text(newText("on")), letter(newText("1")), two(newNumeric({1, 2}, vqDoubleClass)),
      none(newNumeric({0, 0}, vqDoubleClass)), complex(newNumeric({1, 1}, vqDoubleClass, vqComplex)),
      logical(newNumeric({1, 1}, vqLogicalClass)), half(newHalf({1, 1})), other(newOtherObject());
  half_ptr::initialized = 0;
  for (held const* input : {&text, &letter, &two, &none, &complex, &logical, &half, &other}) {
    hostCall call{useF16CforHalfFcn, 1, {*input}};
    try {
      call.run();
      ADD_FAILURE() << "taken";
    } catch (BadType const& error) {
      EXPECT_EQ(error.error_id(), "half:error:PropInvalidDataType");
    }
    EXPECT_EQ(call.output, nullptr);
  }
  EXPECT_FALSE(half_ptr::isInitialized());
}

TEST(UseF16CforHalfFcn, WantsAtMostOneOfEach) {
  const held one(newNumeric({1, 1}, vqDoubleClass)), text(newText("on"));
  EXPECT_EQ(countErrorOf({useF16CforHalfFcn, 2, {}}), "maxlhs");
  EXPECT_EQ(countErrorOf({useF16CforHalfFcn, 1, {one, one}}), "maxrhs");
  EXPECT_EQ(countErrorOf({useF16CforHalfFcn, 1, {}, -1}), "minrhs");
  EXPECT_EQ(countErrorOf({useF16CforHalfFcn, 3, {text, text}}), "maxlhs");
  EXPECT_EQ(countErrorOf({useF16CforHalfFcn, 1, {text, text}}), "maxrhs");
}

TEST(HostFunctions, LeaveNothingBehindButTheirOutput) {
  const long before = live();
  {
    const held a(newHalf({2, 3})), b(newHalf({3, 2}));
    const long inputs = live();
    EXPECT_THROW((hostCall{ulpFcn, 1, {a, b}}.run()), BadSize);
    EXPECT_EQ(live(), inputs);
    const held out(hostCall{ulpFcn, 1, {a, a}}.run()), zero(hostCall{useF16CforHalfFcn, 1, {}}.run());
    EXPECT_GT(live(), inputs);
  }
  EXPECT_EQ(live(), before);
}

}  // namespace
}  // namespace zthalf
