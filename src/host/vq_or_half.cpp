// The host's array functions for half and other arrays: a half array stands for the array inside it.
#include "host/array_reading.h"
#include "zthalf/half_ops.h"
#include "zthalf/half_scalar.h"
#include "zthalf/half_vector.h"
#include "zthalf/host.h"
#include "zthalf/host/class_objects.h"
#include "zthalf/host/vq_array_api.h"

namespace vq_or_half {

namespace api = matrix::detail::noninlined::vq_array_api;

namespace {

// Asked for once a call: what a half array is, the host has to look up.
vqArray_tag const* plain(vqArray_tag const* array) {
  return half::isVqArrayHalf(array) ? omGetUnderlyingArray(array) : array;
}
vqArray_tag* plain(vqArray_tag* array) { return half::isVqArrayHalf(array) ? omGetUnderlyingArray(array) : array; }

bool isComplex(vqComplexity complexity) { return complexity == vqComplex; }

}  // namespace

bool vqIsEmpty(vqArray_tag const* array) { return api::vqIsEmpty(plain(array)); }
bool vqIsScalar(vqArray_tag const* array) { return api::vqIsScalar(plain(array)); }
bool vqIsVector(vqArray_tag const* array) { return api::vqIsVector(plain(array)); }

bool vqIsNumeric(vqArray_tag const* array) {
  return zthalf::hasFlags(array, vq_flags::numeric) || half::isVqArrayHalf(array);
}
bool vqIsSparse(vqArray_tag const* array) { return zthalf::hasFlags(plain(array), vq_flags::sparse); }
bool vqIsComplex(vqArray_tag const* array) { return zthalf::isComplexArray(plain(array)); }
bool vqIsLogical(vqArray_tag const* array) { return vq_fields::classWord(plain(array)) == vqLogicalClass; }

bool vqIsFiniteNumericArray(vqArray_tag const* array) {
  if (!half::isVqArrayHalf(array)) return api::vqIsFiniteNumericArray(array);
  vqArray_tag const* const underlying = omGetUnderlyingArray(array);
  const unsigned long n = zthalf::elementCount(underlying);
  void* const data = vq_fields::data(underlying);
  if (zthalf::isComplexArray(underlying))
    return half::isWholeArrayFinite(static_cast<std::complex<fp16binary_t>*>(data), n);
  return half::isWholeArrayFinite(static_cast<fp16binary_t*>(data), n);
}

bool vqIsHalfVectorComplexWithZeroImag(vqArray_tag const* array) {
  vqArray_tag const* const one = plain(array);
  if (!zthalf::isComplexArray(one)) return false;
  const unsigned long n = zthalf::elementCount(one);
  return half_vector::isImagZero(static_cast<std::complex<half_t>*>(vq_fields::data(one)), n);
}

vqClassID vqGetClassID(vqArray_tag const* array) {
  return half::isVqArrayHalf(array) ? vqHalfClass : zthalf::classOf(array);
}
vqClassID vqClassIDFromClassName(char const* name) {
  if (half::isHalfClassname(name)) return vqHalfClass;
  return api::vqClassIDFromClassName(name != nullptr ? name : "");
}
char const* vqArrayClassIDName(vqClassID id) { return id == vqHalfClass ? "half" : api::vqArrayClassIDName(id); }

unsigned long vqGetElementSize(vqArray_tag const* array) { return api::vqGetElementSize(plain(array)); }
unsigned long vqGetElementSizeofClassID(vqClassID id, bool complex) {
  if (id != vqHalfClass) return api::vqGetElementSizeofClassID(id, complex);
  return complex ? 4 : 2;
}

unsigned long vqGetM(vqArray_tag const* array) { return zthalf::dimensionsOf(plain(array)).sizes[0]; }
unsigned long vqGetN(vqArray_tag const* array) { return api::vqGetN(plain(array)); }
unsigned long vqGetNumberOfDimensions(vqArray_tag const* array) { return zthalf::dimensionsOf(plain(array)).count; }
unsigned long const* vqGetDimensions(vqArray_tag const* array) { return zthalf::dimensionsOf(plain(array)).sizes; }
unsigned long vqGetNumberOfElements(vqArray_tag const* array) { return zthalf::elementCount(plain(array)); }
void vqSetDimensions(vqArray_tag* array, unsigned long const* dims, unsigned long ndims) {
  api::vqSetDimensions(plain(array), dims, ndims);
}

void* vqGetData(vqArray_tag const* array) { return vq_fields::data(plain(array)); }
void vqSetData(vqArray_tag* array, void* data, vqFreeFunction free) { api::vqSetData(plain(array), data, free); }

double vqGetScalar(vqArray_tag const* array) {
  if (!half::isVqArrayHalf(array)) return api::vqGetScalar(array);
  return half_scalar::impl::convertHalfToDouble(half::getHalfPointer(array)->bits);
}

double vqColonop_size(double start, double step, double stop, vqClassID id) {
  return id == vqHalfClass ? half::vqColonop_size(start, step, stop) : api::vqColonop_size(start, step, stop, id);
}

vqArray_tag* vqCreateNumericArray(unsigned long ndims, unsigned long const* dims, vqClassID id,
                                  vqComplexity complexity) {
  if (id == vqHalfClass) return half::createHalfArray(ndims, dims, isComplex(complexity));
  return api::vqCreateNumericArray(ndims, dims, id, complexity);
}
vqArray_tag* vqCreateNumericMatrix(unsigned long m, unsigned long n, vqClassID id, vqComplexity complexity) {
  if (id == vqHalfClass) return half::createHalfMatrix(m, n, isComplex(complexity));
  return api::vqCreateNumericMatrix(m, n, id, complexity);
}
vqArray_tag* vqCreateNumericScalar(vqClassID id, vqComplexity complexity) {
  if (id == vqHalfClass) return half::createHalfMatrix(1, 1, isComplex(complexity));
  return api::vqCreateNumericScalar(id, complexity);
}

void vqFreeImagIfZero(vqArray_tag* array) {
  if (half::isVqArrayHalf(array)) return half::freeImagIfZero(array);
  api::vqFreeImagIfZero(array);
}

}  // namespace vq_or_half
