// The arrays of the embedded host: who holds them, what they share, what of a call is left.
#include <gtest/gtest.h>

#include <cmath>
#include <complex>
#include <limits>
#include <stdexcept>
#include <thread>

#include "zthalf/half_vector.h"
#include "zthalf/host.h"
#include "zthalf/host/class_objects.h"
#include "zthalf/host/embedded.h"
#include "zthalf/host/vq_array_api.h"
#include "zthalf/host/vq_fields.h"
#include "zthalf/host_functions.h"

namespace zthalf::host {
namespace {

namespace api = matrix::detail::noninlined::vq_array_api;

long live() { return liveArrays() + liveBuffers(); }

class HostArray : public ::testing::Test {
 protected:
  long before_ = live();
  void TearDown() override { EXPECT_EQ(live(), before_); }
};

TEST_F(HostArray, HasTheFieldsOfItsClass) {
  struct row {
    vqClassID id;
    unsigned long bytes;
    bool numeric;
    char const* name;
  };
  for (auto const& [id, bytes, numeric, name] : {row{vqDoubleClass, 8, true, "double"},
                                                 {vqSingleClass, 4, true, "single"},
                                                 {vqInt8Class, 1, true, "int8"},
                                                 {vqInt16Class, 2, true, "int16"},
                                                 {vqInt32Class, 4, true, "int32"},
                                                 {vqInt64Class, 8, true, "int64"},
                                                 {vqUint8Class, 1, true, "uint8"},
                                                 {vqUint16Class, 2, true, "uint16"},
                                                 {vqUint32Class, 4, true, "uint32"},
                                                 {vqUint64Class, 8, true, "uint64"},
                                                 {vqLogicalClass, 1, false, "logical"},
                                                 {vqCharacterClass, 2, false, "char"}}) {
    const array one = newArray({2, 3}, id);
    EXPECT_EQ(vq_fields::classWord(one.get()), static_cast<unsigned>(id));
    EXPECT_EQ(vq_fields::flags(one.get()), vq_flags::inlineDimensions | (numeric ? vq_flags::numeric : 0));
    EXPECT_EQ(api::vqGetElementSize(one.get()), bytes);
    EXPECT_EQ(api::vqGetElementSizeofClassID(id, false), bytes);
    EXPECT_EQ(api::vqGetElementSizeofClassID(id, true), 2 * bytes);
    EXPECT_EQ(api::vqGetElementSize(newArray({2, 3}, id, vqComplex).get()), 2 * bytes);
    EXPECT_STREQ(api::vqArrayClassIDName(id), name);
    EXPECT_EQ(api::vqClassIDFromClassName(name), id);
    EXPECT_TRUE(api::vqIsA(one.get(), name));
    EXPECT_FALSE(api::vqIsA(one.get(), "half"));
    EXPECT_EQ(api::vqIsFiniteNumericArray(one.get()), numeric);
    EXPECT_FALSE(omIsKOBS(one.get()));
    EXPECT_EQ(omGetUnderlyingArray(one.get()), one.get());
    for (unsigned long i = 0; i < 6 * bytes; ++i) EXPECT_EQ(elementsOf<char>(one.get())[i], 0);
  }
  EXPECT_EQ(api::vqClassIDFromClassName("half"), vqUnknownClass);
  EXPECT_THROW(newArray({1, 1}, vqObjectClass), std::invalid_argument);
  EXPECT_THROW(newArray({1, 1}, vqHalfClass), std::invalid_argument);
  EXPECT_THROW(newArray({1, 1}, static_cast<vqClassID>(1)), std::invalid_argument);
}

TEST_F(HostArray, GoesWithItsLastHolder) {
  vqArray_tag* const one = newArray({2, 2}, vqDoubleClass).release();
  EXPECT_EQ(vq_fields::references(one), 1u);
  EXPECT_EQ(retain(one), one);
  EXPECT_EQ(vq_fields::references(one), 2u);
  release(one);
  EXPECT_EQ(live(), before_ + 2);
  release(one);
  EXPECT_EQ(live(), before_);
  release(nullptr);

  // An array that was taken out of its object stays.
  vqArray_tag* const object = half::createHalfMatrix(2, 2, false);
  vqArray_tag* const inside = retain(omGetUnderlyingArray(object));
  release(object);
  EXPECT_EQ(vq_fields::references(inside), 1u);
  elementsOf<std::uint16_t>(inside)[3] = 1;
  release(inside);
}

TEST_F(HostArray, SharesItsDataUntilItIsUnshared) {
  for (const bool isHalf : {false, true}) {
    const array first(isHalf ? half::createHalfMatrix(2, 2, true) : newArray({2, 2}, vqUint16Class).release());
    EXPECT_FALSE(first->is_data_shared_impl());
    elementsOf<std::uint16_t>(first.get())[1] = 77;
    array second = sharedCopy(first.get());
    EXPECT_EQ(dataOf(first.get()), dataOf(second.get()));
    for (vqArray_tag const* one : {first.get(), second.get()}) {
      EXPECT_TRUE(one->is_data_shared_impl());
      EXPECT_NE(vq_fields::flags(one) & vq_flags::maybeShared, 0u);
    }
    EXPECT_EQ(half::isVqArrayHalf(second.get()), isHalf);
    EXPECT_EQ(half::isVqArrayComplex(second.get()), isHalf);
    void* const data = dataOf(first.get());
    api::vqUnshare(second.get());
    EXPECT_EQ(dataOf(first.get()), data);
    EXPECT_NE(dataOf(second.get()), data);
    EXPECT_EQ(elementsOf<std::uint16_t>(second.get())[1], 77);
    EXPECT_FALSE(first->is_data_shared_impl());
    EXPECT_FALSE(second->is_data_shared_impl());
    api::vqUnshare(first.get());  // alone already
    EXPECT_EQ(dataOf(first.get()), data);
    const array third = sharedCopy(first.get());
    second = nullptr;
    EXPECT_TRUE(first->is_data_shared_impl());
  }
}

TEST_F(HostArray, TakesDataOfOthers) {
  static int freed;
  freed = 0;
  const auto free = [](void* p) {
    ++freed;
    delete[] static_cast<double*>(p);
  };
  {
    const array one = newArray({3, 1}, vqDoubleClass);
    api::vqSetData(one.get(), new double[3]{1, 2, 3}, free);
    EXPECT_EQ(api::vqGetScalar(one.get()), 1);
    EXPECT_FALSE(one->is_data_shared_impl());
    EXPECT_THROW(sharedCopy(one.get()), std::invalid_argument);
    api::vqSetData(one.get(), new double[3]{4, 5, 6}, free);
    EXPECT_EQ(freed, 1);
    api::vqSetData(one.get(), api::vqMallocEx(24), nullptr);
    EXPECT_EQ(freed, 2);
    api::vqSetData(one.get(), new double[3]{7, 8, 9}, free);
  }
  EXPECT_EQ(freed, 3);
}

TEST_F(HostArray, ChangesItsShapeAndKeepsItsData) {
  const array one = newArray({2, 3, 4}, vqInt16Class);
  void* const data = dataOf(one.get());
  const auto shape = [&] {
    unsigned long const* const dims = vq_or_half::vqGetDimensions(one.get());
    return std::vector<unsigned long>(dims, dims + vq_or_half::vqGetNumberOfDimensions(one.get()));
  };
  using sizes = std::vector<unsigned long>;
  api::vqSetM(one.get(), 5);
  EXPECT_EQ(shape(), (sizes{5, 3, 4}));
  api::vqSetN(one.get(), 7);
  EXPECT_EQ(shape(), (sizes{5, 7}));
  api::vqSetM(one.get(), 6);
  EXPECT_EQ(shape(), (sizes{6, 7}));
  deferDimensions(one.get());
  api::vqSetM(one.get(), 8);
  EXPECT_EQ(shape(), (sizes{8, 7}));
  deferDimensions(one.get());
  deferDimensions(one.get());
  EXPECT_EQ(shape(), (sizes{8, 7}));
  const unsigned long own[] = {1, 2, 3, 4, 5};
  api::vqSetDimensions(one.get(), own, 5);
  api::vqSetDimensions(one.get(), vq_or_half::vqGetDimensions(one.get()), 4);  // by its own list
  EXPECT_EQ(shape(), (sizes{1, 2, 3, 4}));
  api::vqSetDimensions(one.get(), vq_or_half::vqGetDimensions(one.get()) + 2, 2);
  EXPECT_EQ(shape(), (sizes{3, 4}));
  api::vqSetDimensions(one.get(), nullptr, 0);
  EXPECT_EQ(shape(), sizes{});
  EXPECT_EQ(api::vqGetN(one.get()), 1u);
  EXPECT_EQ(dataOf(one.get()), data);
}

TEST_F(HostArray, ReadsScalarsOfEveryClass) {
  const auto scalarOf = [](auto value, vqClassID id) {
    const array one = newArray({1, 1}, id);
    *elementsOf<decltype(value)>(one.get()) = value;
    return api::vqGetScalar(one.get());
  };
  EXPECT_EQ(scalarOf(-2.5, vqDoubleClass), -2.5);
  EXPECT_EQ(scalarOf(0.5f, vqSingleClass), 0.5);
  EXPECT_EQ(scalarOf(std::int8_t{-7}, vqInt8Class), -7);
  EXPECT_EQ(scalarOf(std::uint8_t{200}, vqUint8Class), 200);
  EXPECT_EQ(scalarOf(std::int16_t{-300}, vqInt16Class), -300);
  EXPECT_EQ(scalarOf(std::uint16_t{65535}, vqUint16Class), 65535);
  EXPECT_EQ(scalarOf(std::int32_t{-70000}, vqInt32Class), -70000);
  EXPECT_EQ(scalarOf(std::uint32_t{4000000000}, vqUint32Class), 4e9);
  EXPECT_EQ(scalarOf(std::int64_t{-1} << 40, vqInt64Class), -0x1p40);
  EXPECT_EQ(scalarOf(std::uint64_t{1} << 63, vqUint64Class), 0x1p63);
  EXPECT_EQ(scalarOf(std::uint8_t{1}, vqLogicalClass), 1);
  EXPECT_EQ(api::vqGetScalar(newText("A").get()), 65);
  EXPECT_THROW(api::vqGetScalar(newArray({0, 1}, vqDoubleClass).get()), std::out_of_range);

  const array wide = newArray({1, 1}, vqDoubleClass);
  for (auto const& [value, expected] : {std::pair{3.9, 3},
                                        {-3.9, -3},
                                        {1e300, std::numeric_limits<int>::max()},
                                        {-1e300, std::numeric_limits<int>::min()},
                                        {std::nan(""), 0}}) {
    *elementsOf<double>(wide.get()) = value;
    EXPECT_EQ(api::vqGetScalarInt(wide.get()), expected);
  }
}

TEST_F(HostArray, FreesZeroImaginaryPartsOfItsOwnClasses) {
  const array one = newArray({2, 1}, vqSingleClass, vqComplex);
  auto* const z = elementsOf<std::complex<float>>(one.get());
  z[0] = {1, -0.0f};
  z[1] = {2, 3};
  api::vqFreeImagIfZero(one.get());
  EXPECT_TRUE(half::isVqArrayComplex(one.get()));
  z[1] = {2, 0};
  const array other = sharedCopy(one.get());
  api::vqFreeImagIfZero(one.get());
  EXPECT_FALSE(half::isVqArrayComplex(one.get()));
  EXPECT_EQ(elementsOf<float>(one.get())[1], 2);
  EXPECT_TRUE(half::isVqArrayComplex(other.get()));
  EXPECT_EQ(elementsOf<float>(other.get())[2], 2);
  api::vqFreeImagIfZero(one.get());
}

TEST_F(HostArray, KnowsDerivedClassesAndObjectsOfOthers) {
  const array one = newArray({1, 1}, vqSingleClass);
  deriveClass(one.get(), "measured");
  EXPECT_GE(vq_fields::classWord(one.get()), 17u);
  EXPECT_EQ(one->_get_class_id_non_trivial(), vqSingleClass);
  EXPECT_TRUE(api::vqIsA(one.get(), "measured"));
  EXPECT_EQ(api::vqGetElementSize(one.get()), 4u);
  EXPECT_THROW(deriveClass(one.get(), "again"), std::invalid_argument);

  addClass("box", vqInt32Class);
  const array box(omCreateKOBSBuiltinBasedMatrix(2, 3, "box"));
  EXPECT_TRUE(omIsKOBS(box.get()));
  EXPECT_TRUE(api::vqIsA(box.get(), "box"));
  EXPECT_FALSE(half::isVqArrayHalf(box.get()));
  EXPECT_EQ(api::vqGetN(box.get()), 3u);
  EXPECT_EQ(vq_fields::classWord(omGetUnderlyingArray(box.get())), static_cast<unsigned>(vqInt32Class));
  setClassAvailable("box", false);
  EXPECT_EQ(kobs::COSClass::getClass(kobs::internal::makeInterned("box")), nullptr);
  EXPECT_THROW(omCreateKOBSBuiltinBasedMatrix(1, 1, "box"), std::invalid_argument);
  EXPECT_THROW(addClass("box", vqInt32Class), std::invalid_argument);
  EXPECT_THROW(addClass("text", vqCharacterClass), std::invalid_argument);
  EXPECT_THROW(setClassAvailable("nobody", true), std::invalid_argument);
  EXPECT_EQ(kobs::internal::makeInterned("box").name, kobs::internal::makeInterned(std::string("b") + "ox").name);
}

TEST_F(HostArray, IsFreedWithTheCallThatMadeItUnlessItIsKept) {
  array kept, retained;
  {
    temporaries call;
    newArray({2, 2}, vqDoubleClass).release();
    half::createHalfMatrix(2, 2, true);
    api::vqMallocEx(100);
    retained.reset(retain(omCreateKOBSBuiltinBasedMatrix(1, 1, "half")));
    {
      temporaries inner;
      newArray({1, 1}, vqDoubleClass).release();
      kept = inner.keep(newArray({1, 1}, vqSingleClass).release());
    }
    EXPECT_EQ(live(), before_ + 2 + 3 + 1 + 3 + 2);
    const array own = newArray({1, 1}, vqDoubleClass);  // let go of before the call ends
  }
  EXPECT_EQ(live(), before_ + 3 + 2);
  EXPECT_EQ(vq_fields::references(retained.get()), 1u);
}

TEST_F(HostArray, ComesOutOfACall) {
  const array a(half::createHalfMatrix(2, 1, false)), b = newArray({2, 1}, vqDoubleClass),
                                                      c = newArray({1, 2}, vqDoubleClass);
  elementsOf<double>(b.get())[1] = 0x1p-24;
  const long inputs = live();
  {
    const array out = call(&ulpFcn, {a.get(), b.get()});
    EXPECT_EQ(live(), inputs + 2);
    EXPECT_EQ(elementsOf<double>(out.get())[0], 0);
    EXPECT_EQ(elementsOf<double>(out.get())[1], 1);
    EXPECT_EQ(elementsOf<double>(call(&useF16CforHalfFcn, {}).get())[0], 0);
  }
  EXPECT_ANY_THROW(call(&ulpFcn, {a.get(), c.get()}));
  EXPECT_THROW(call(&ulpFcn, {a.get()}), argumentCountError);
  EXPECT_EQ(live(), inputs);
}

TEST_F(HostArray, RefusesMoreThanThereIs) {
  EXPECT_THROW(newArray({1UL << 62, 4}, vqDoubleClass), std::bad_alloc);
  EXPECT_THROW(api::vqMallocEx(~0UL), std::bad_alloc);
  EXPECT_THROW(newArray({~0UL}, vqInt8Class, vqComplex), std::bad_alloc);
}

TEST(EmbeddedColonopSize, ForgivesAFewRoundingsOfItsClass) {
  EXPECT_EQ(api::vqColonop_size(0, 0.1, 1, vqDoubleClass), 11);
  EXPECT_EQ(api::vqColonop_size(0, 0.1, 0.9995, vqDoubleClass), 10);
  EXPECT_EQ(api::vqColonop_size(0, 0.1, 0.9999999, vqSingleClass), 11);
  EXPECT_EQ(api::vqColonop_size(0, 0.1, 0.9999999, vqDoubleClass), 10);
  EXPECT_EQ(api::vqColonop_size(5, -1, 1, vqDoubleClass), 5);
  EXPECT_EQ(api::vqColonop_size(1, -1, 5, vqDoubleClass), 0);
  EXPECT_EQ(api::vqColonop_size(1, 0, 5, vqDoubleClass), 0);
  EXPECT_TRUE(std::isnan(api::vqColonop_size(1, std::nan(""), 5, vqDoubleClass)));
}

}  // namespace
}  // namespace zthalf::host
