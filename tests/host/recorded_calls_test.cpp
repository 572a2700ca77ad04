// Which operations of the host each function calls, and that it calls no others: a field is read without a call.
#include <gtest/gtest.h>

#include <functional>

#include "tests/host/support/provider.h"
#include "zthalf/host.h"
#include "zthalf/host_functions.h"

namespace zthalf {
namespace {

using namespace testing::provider;
using calls = std::vector<std::string>;

class RecordedCalls : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(notesCalls);
    takeCalls();
  }
};

calls callsOf(std::function<void()> const& action) {
  takeCalls();
  action();
  return takeCalls();
}

calls operator+(calls a, calls const& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

// How it is found out that an array is a half one, or a plain one, and what is inside then.
const calls isHalf{"omIsKOBS", "vqIsA half"}, isPlain{"omIsKOBS"}, inside{"omGetUnderlyingArray"};

struct Row {
  char const* name;
  std::function<void(vqArray_tag*)> call;
  calls host;  // what is called on the array in the end
};

TEST_F(RecordedCalls, OfFunctionsThatAskTheHost) {
  using namespace vq_or_half;
  const std::vector<Row> rows{
      {"vqIsEmpty", [](auto* a) { vqIsEmpty(a); }, {"vqIsEmpty"}},
      {"vqIsScalar", [](auto* a) { vqIsScalar(a); }, {"vqIsScalar"}},
      {"vqIsVector", [](auto* a) { vqIsVector(a); }, {"vqIsVector"}},
      {"vqGetElementSize", [](auto* a) { vqGetElementSize(a); }, {"vqGetElementSize"}},
      {"vqGetN", [](auto* a) { vqGetN(a); }, {"vqGetN"}},
      {"vqSetDimensions",
       [](auto* a) {
         const unsigned long d[] = {2, 1};
         vqSetDimensions(a, d, 2);
       },
       {"vqSetDimensions 2"}},
      {"vqGetNumberOfDimensions", [](auto* a) { vqGetNumberOfDimensions(a); }, {}},
      {"vqGetDimensions", [](auto* a) { vqGetDimensions(a); }, {}},
      {"vqGetM", [](auto* a) { vqGetM(a); }, {}},
      {"vqIsSparse", [](auto* a) { vqIsSparse(a); }, {}},
      {"vqIsComplex", [](auto* a) { vqIsComplex(a); }, {}},
      {"vqIsLogical", [](auto* a) { vqIsLogical(a); }, {}},
      {"vqGetData", [](auto* a) { vqGetData(a); }, {}},
      {"vqGetNumberOfElements", [](auto* a) { vqGetNumberOfElements(a); }, {}},
      {"vqIsHalfVectorComplexWithZeroImag", [](auto* a) { vqIsHalfVectorComplexWithZeroImag(a); }, {}},
  };
  for (const bool complex : {false, true}) {
    const held array(half::createHalfMatrix(2, 1, complex)),
        plain(newNumeric({2, 1}, vqDoubleClass, complex ? vqComplex : vqReal));
    for (Row const& row : rows) {
      EXPECT_EQ(callsOf([&] { row.call(array); }), isHalf + inside + row.host) << row.name;
      EXPECT_EQ(callsOf([&] { row.call(plain); }), isPlain + row.host) << row.name;
    }
    void* const data = vq_fields::data(array.inside());
    EXPECT_EQ(callsOf([&] { vqSetData(array, data, nullptr); }), isHalf + inside + calls{"vqSetData"});
    EXPECT_EQ(callsOf([&] { vqSetData(plain, vq_fields::data(plain), nullptr); }), isPlain + calls{"vqSetData"});
  }
}

TEST_F(RecordedCalls, OfFunctionsWithAnAnswerOfTheirOwnForHalves) {
  using namespace vq_or_half;
  const held array(half::createHalfMatrix(2, 1, false)), plain(newNumeric({2, 1}, vqDoubleClass)),
      logical(newNumeric({1, 1}, vqLogicalClass)), derived(newNumeric({1, 1}, vqDoubleClass));
  derive(derived);
  EXPECT_EQ(callsOf([&] { vqIsNumeric(plain); }), calls{});
  EXPECT_EQ(callsOf([&] { vqIsNumeric(logical); }), isPlain);
  EXPECT_EQ(callsOf([&] { vqIsNumeric(array); }), isHalf);
  EXPECT_EQ(callsOf([&] { vqGetClassID(array); }), isHalf);
  EXPECT_EQ(callsOf([&] { vqGetClassID(plain); }), isPlain);
  EXPECT_EQ(callsOf([&] { vqGetClassID(derived); }), isPlain + calls{"_get_class_id_non_trivial"});
  EXPECT_EQ(callsOf([&] { vqGetScalar(array); }), isHalf + inside);
  EXPECT_EQ(callsOf([&] { vqGetScalar(plain); }), isPlain + calls{"vqGetScalar"});
  EXPECT_EQ(callsOf([&] { vqIsFiniteNumericArray(array); }), isHalf + inside);
  EXPECT_EQ(callsOf([&] { vqIsFiniteNumericArray(plain); }), isPlain + calls{"vqIsFiniteNumericArray"});
  EXPECT_EQ(callsOf([&] { vqFreeImagIfZero(plain); }), isPlain + calls{"vqFreeImagIfZero"});
  EXPECT_EQ(callsOf([&] { vqClassIDFromClassName("half"); }), calls{});
  EXPECT_EQ(callsOf([&] { vqClassIDFromClassName("double"); }), calls{"vqClassIDFromClassName double"});
  EXPECT_EQ(callsOf([&] { vqClassIDFromClassName(nullptr); }), calls{"vqClassIDFromClassName "});
  EXPECT_EQ(callsOf([&] { vqArrayClassIDName(vqHalfClass); }), calls{});
  EXPECT_EQ(callsOf([&] { vqArrayClassIDName(vqDoubleClass); }), calls{"vqArrayClassIDName"});
  EXPECT_EQ(callsOf([&] { vqGetElementSizeofClassID(vqHalfClass, true); }), calls{});
  EXPECT_EQ(callsOf([&] { vqGetElementSizeofClassID(vqDoubleClass, true); }), calls{"vqGetElementSizeofClassID"});
  EXPECT_EQ(callsOf([&] { vqColonop_size(0, 1, 2, vqHalfClass); }), calls{});
  EXPECT_EQ(callsOf([&] { vqColonop_size(0, 1, 2, vqDoubleClass); }), calls{"vqColonop_size"});
}

TEST_F(RecordedCalls, OfCreation) {
  release(half::createHalfMatrix(1, 1, false));  // the first call of the process looks for the class
  const unsigned long dims[] = {2, 3, 4};
  const calls setSizes{"vqSetM 3", "vqSetN 5"};
  const auto made = [](std::string const& sizes) { return calls{"omCreateKOBSBuiltinBasedMatrix " + sizes + " half"}; };
  EXPECT_EQ(callsOf([] { release(half::createHalfMatrix(3, 5, false)); }), made("3 5"));
  EXPECT_EQ(callsOf([] { release(half::createHalfMatrix(3, 5, true)); }), made("30 1") + inside + inside + setSizes);
  EXPECT_EQ(callsOf([&] { release(half::createHalfArray(3, dims, false)); }),
            made("24 1") + inside + calls{"vqSetDimensions 3"});
  EXPECT_EQ(callsOf([&] { release(half::createHalfArray(3, dims, true)); }),
            made("48 1") + inside + inside + calls{"vqSetDimensions 3"});
  EXPECT_EQ(callsOf([&] { release(half::createHalfArray(0, dims, false)); }),
            made("1 1") + inside + calls{"vqSetDimensions 0"});
  EXPECT_EQ(callsOf([&] { release(half::createUninitHalfArray(24, 3, dims, false)); }),
            made("1 0") + calls{"vqMallocEx 48"} + inside + calls{"vqSetData"} + inside + calls{"vqSetDimensions 3"});
  EXPECT_EQ(callsOf([&] { release(half::createUninitHalfArray(24, 3, dims, true)); }),
            made("1 0") + calls{"vqMallocEx 96"} + inside + inside + calls{"vqSetData"} + inside +
                calls{"vqSetDimensions 3"});
  EXPECT_EQ(callsOf([] { release(half::createUninitHalfMatrix(3, 5, true)); }),
            made("1 0") + calls{"vqMallocEx 60"} + inside + inside + calls{"vqSetData"} + inside + setSizes);
}

TEST_F(RecordedCalls, OfFreeImagIfZero) {
  const held real(half::createHalfMatrix(2, 1, false)), complex(half::createHalfMatrix(2, 1, true)),
      empty(half::createHalfMatrix(0, 1, true)), imaginary(half::createHalfMatrix(2, 1, true));
  half::getHalfPointer(imaginary)[3] = {0x3C00};
  EXPECT_EQ(callsOf([&] { half::freeImagIfZero(real); }), inside);
  EXPECT_EQ(callsOf([&] { half::freeImagIfZero(imaginary); }), inside + calls{"vqIsEmpty"});
  EXPECT_EQ(callsOf([&] { half::freeImagIfZero(empty); }), inside + calls{"vqIsEmpty"});
  const held sharing(newSharing(complex));
  const calls asks{"vqIsEmpty", "is_data_shared_impl"}, unshares{"vqUnshare"};
  EXPECT_EQ(callsOf([&] { half::freeImagIfZero(complex); }), inside + asks + unshares + inside);
  EXPECT_EQ(callsOf([&] { half::freeImagIfZero(sharing); }), inside + asks);
  const held unshared(half::createHalfMatrix(2, 1, true));
  EXPECT_EQ(callsOf([&] { half::freeImagIfZero(unshared); }), inside + calls{"vqIsEmpty"});
}

TEST_F(RecordedCalls, OfTheHostFunctions) {
  const held half(half::createHalfMatrix(2, 1, false)), plain(newNumeric({2, 1}, vqDoubleClass)),
      wish(newNumeric({1, 1}, vqDoubleClass)), text(newText("x"));
  vqArray_tag* output = nullptr;
  const auto run = [&](auto function, auto... arrays) {
    std::vector<vqArray_tag const*> inputs{arrays...};
    return callsOf([&] { function(1, &output, static_cast<int>(inputs.size()), inputs.data()); });
  };
  const calls ofHalf = calls{"_get_class_id_non_trivial"} + isHalf + isHalf + inside, ofPlain = isPlain + isPlain;
  EXPECT_EQ(run(ulpFcn, half.get(), plain.get()),
            ofHalf + ofPlain + inside + inside + calls{"vqCreateUninitNumericArray"});
  release(output);
  EXPECT_EQ(run(ulpFcn, plain.get(), plain.get()),
            ofPlain + ofPlain + inside + inside + calls{"vqCreateUninitNumericArray"});
  release(output);
  EXPECT_EQ(run(useF16CforHalfFcn), calls{"vqCreateNumericScalar"});
  release(output);
  EXPECT_EQ(run(useF16CforHalfFcn, wish.get()), (calls{"vqIsRealScalar", "vqGetScalarInt", "vqCreateNumericScalar"}));
  release(output);
  takeCalls();
  vqArray_tag const* const inputs[] = {text};
  EXPECT_ANY_THROW(useF16CforHalfFcn(1, &output, 1, const_cast<vqArray_tag const**>(inputs)));
  EXPECT_EQ(takeCalls(), calls{"do_legacy_vq_error"});  // what is not numeric is not asked whether it is a scalar
}

// Whichever operation fails, its exception comes out as it is, and the host can clear up.
TEST_F(RecordedCalls, ThatFailLeaveNothing) {
  const held a(half::createHalfMatrix(2, 2, true));
  const unsigned long dims[] = {2, 2, 2};
  struct action {
    char const* fails;
    std::function<void()> run;
  };
  vqArray_tag* output = nullptr;
  vqArray_tag const* inputs[] = {a, a};
  const std::vector<action> actions{
      {"omCreateKOBSBuiltinBasedMatrix 8 1 half", [&] { half::createHalfMatrix(2, 2, true); }},
      {"omGetUnderlyingArray", [&] { half::createHalfMatrix(2, 2, true); }},
      {"vqSetM 2", [&] { half::createHalfMatrix(2, 2, true); }},
      {"vqSetN 2", [&] { half::createHalfMatrix(2, 2, true); }},
      {"vqSetDimensions 3", [&] { half::createHalfArray(3, dims, true); }},
      {"vqMallocEx 32", [&] { half::createUninitHalfArray(8, 3, dims, true); }},
      {"vqSetData", [&] { half::createUninitHalfArray(8, 3, dims, true); }},
      {"vqSetDimensions 3", [&] { half::createUninitHalfArray(8, 3, dims, true); }},
      {"vqMallocEx 16", [&] { half::createUninitHalfMatrix(2, 2, true); }},
      {"vqSetN 2", [&] { half::createUninitHalfMatrix(2, 2, true); }},
      {"vqCreateUninitNumericArray", [&] { ulpFcn(1, &output, 2, inputs); }},
      {"vqIsA half", [&] { ulpFcn(1, &output, 2, inputs); }},
      {"vqCreateNumericScalar", [&] { useF16CforHalfFcn(1, &output, 0, inputs); }},
      {"vqIsEmpty", [&] { half::freeImagIfZero(a); }},
  };
  for (action const& one : actions) {
    const long before = live();
    {
      const callScope call;
      failAt(one.fails);
      try {
        one.run();
        ADD_FAILURE() << one.fails << " did not fail";
      } catch (std::runtime_error const& error) {
        EXPECT_STREQ(error.what(), one.fails);
      }
      failAt("");
    }
    EXPECT_EQ(live(), before) << one.fails;
    EXPECT_EQ(output, nullptr);
  }
  EXPECT_TRUE(half::isVqArrayComplex(a));
}

}  // namespace
}  // namespace zthalf
