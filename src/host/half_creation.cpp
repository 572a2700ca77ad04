// New half arrays. The host knows no complex array of two bytes an element, so a complex one is a real one of twice the
// elements that gets its flags and its shape afterwards.
#include <atomic>

#include "host/array_reading.h"
#include "host/errors.h"
#include "zthalf/host.h"
#include "zthalf/host/class_objects.h"
#include "zthalf/host/vq_array_api.h"
#include "zthalf/host_errors.h"

namespace half {

namespace api = matrix::detail::noninlined::vq_array_api;

namespace {

constexpr char className[] = "half";

// Once the class was there it is not looked for again. Whoever stores stores the same.
std::atomic<unsigned char> classWasFound{0};

void requireClass() {
  if (classWasFound.load(std::memory_order_relaxed) != 0) return;
  if (kobs::COSClass::getClass(kobs::internal::makeInterned(className)) == nullptr)
    zthalf::raise<error::HalfPrecisionNotAvailable>(u"HalfPrecisionNotAvailable");
  classWasFound.store(1, std::memory_order_relaxed);
}

// A column of count elements, complex ones as pairs.
vqArray_tag* newColumn(unsigned long count, bool complex) {
  if (!complex) return omCreateKOBSBuiltinBasedMatrix(count, 1, className);
  vqArray_tag* const array = omCreateKOBSBuiltinBasedMatrix(zthalf::cappedProduct(count, 2), 1, className);
  setComplexity(array, true);
  return array;
}

// An array without elements that is given a buffer for count of them. What the host does with both where it has no more
// memory is its affair, as it is with everything that was made in a call that failed.
vqArray_tag* newWithBuffer(unsigned long count, bool complex) {
  vqArray_tag* const array = omCreateKOBSBuiltinBasedMatrix(1, 0, className);
  void* const data = api::vqMallocEx(zthalf::cappedProduct(count, complex ? 4 : 2));
  if (complex) setComplexity(array, true);
  api::vqSetData(omGetUnderlyingArray(array), data, nullptr);
  return array;
}

void setSizes(vqArray_tag* array, unsigned long m, unsigned long n) {
  vqArray_tag* const underlying = omGetUnderlyingArray(array);
  api::vqSetM(underlying, m);
  api::vqSetN(underlying, n);
}

}  // namespace

vqArray_tag* createHalfMatrix(unsigned long m, unsigned long n, bool complex) {
  requireClass();
  if (!complex) return omCreateKOBSBuiltinBasedMatrix(m, n, className);
  vqArray_tag* const array = newColumn(zthalf::cappedProduct(m, n), true);
  setSizes(array, m, n);
  return array;
}

vqArray_tag* createHalfArray(unsigned long ndims, unsigned long const* dims, bool complex) {
  vqArray_tag* const array = newColumn(zthalf::elementCount({ndims, dims}), complex);
  api::vqSetDimensions(omGetUnderlyingArray(array), dims, ndims);
  return array;
}

vqArray_tag* createUninitHalfArray(unsigned long count, unsigned long ndims, unsigned long const* dims, bool complex) {
  vqArray_tag* const array = newWithBuffer(count, complex);
  api::vqSetDimensions(omGetUnderlyingArray(array), dims, ndims);
  return array;
}

vqArray_tag* createUninitHalfMatrix(unsigned long m, unsigned long n, bool complex) {
  vqArray_tag* const array = newWithBuffer(zthalf::cappedProduct(m, n), complex);
  setSizes(array, m, n);
  return array;
}

}  // namespace half
