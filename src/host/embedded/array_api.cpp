// The array operations of the embedded host: shapes, data, new arrays.
#include <cstring>
#include <string_view>
#include <utility>

#include "host/array_reading.h"
#include "host/embedded/host_array.h"
#include "zthalf/host/vq_array_api.h"

namespace matrix::detail::noninlined::vq_array_api {

using zthalf::dimensionList;
using zthalf::dimensionsOf;
using zthalf::embedded::handedOut;
using zthalf::embedded::handle;
using zthalf::embedded::hostArray;
using zthalf::embedded::newNumbers;
using zthalf::embedded::numbersOf;
using zthalf::embedded::own;

bool vqIsA(vqArray_tag const* array, char const* className) {
  auto const* const itsClass = own(array)->ownClass;
  return std::string_view(className) ==
         (itsClass != nullptr ? itsClass->name : vqArrayClassIDName(zthalf::classOf(array)));
}

bool vqIsEmpty(vqArray_tag const* array) { return zthalf::elementCount(numbersOf(array)) == 0; }
bool vqIsScalar(vqArray_tag const* array) { return zthalf::elementCount(numbersOf(array)) == 1; }
bool vqIsVector(vqArray_tag const* array) {
  const dimensionList dims = dimensionsOf(numbersOf(array));
  return dims.count == 2 && (dims.sizes[0] == 1 || dims.sizes[1] == 1);
}
bool vqIsRealScalar(vqArray_tag const* array) { return vqIsScalar(array) && !zthalf::isComplexArray(numbersOf(array)); }

unsigned long vqGetElementSize(vqArray_tag const* array) { return zthalf::embedded::elementBytes(*numbersOf(array)); }

unsigned long vqGetN(vqArray_tag const* array) {
  const dimensionList dims = dimensionsOf(numbersOf(array));
  return dims.count == 0 ? 1 : zthalf::elementCount({dims.count - 1, dims.sizes + 1});
}

void vqSetM(vqArray_tag* array, unsigned long m) {
  hostArray* const numbers = numbersOf(array);
  dimensionsOf(numbers);
  if (zthalf::hasFlags(numbers, vq_flags::inlineDimensions))
    numbers->dimensions.inPlace[0] = m;
  else
    numbers->sizes[0] = m;
}

void vqSetN(vqArray_tag* array, unsigned long n) {
  hostArray* const numbers = numbersOf(array);
  const unsigned long dims[] = {dimensionsOf(numbers).sizes[0], n};
  numbers->setDimensions(dims, 2);
}

void vqSetDimensions(vqArray_tag* array, unsigned long const* dims, unsigned long ndims) {
  numbersOf(array)->setDimensions(dims, ndims);
}

void vqSetData(vqArray_tag* array, void* data, vqFreeFunction free) { numbersOf(array)->takeData(data, free); }

void* vqMallocEx(unsigned long bytes) { return zthalf::embedded::newBuffer(bytes); }

void vqUnshare(vqArray_tag* array) {
  if (!array->is_data_shared_impl()) return;
  hostArray* const numbers = numbersOf(array);
  const std::size_t bytes = zthalf::embedded::headOf(numbers->data)->bytes;
  void* const copy = zthalf::embedded::newBuffer(bytes);
  std::memcpy(copy, numbers->data, bytes);
  numbers->takeData(copy, nullptr);
}

vqArray_tag* vqCreateUninitNumericArray(unsigned long ndims, unsigned long const* dims, vqClassID id,
                                        vqComplexity complexity) {
  return handedOut(newNumbers(ndims, dims, id, complexity == vqComplex));
}

vqArray_tag* vqCreateNumericArray(unsigned long ndims, unsigned long const* dims, vqClassID id,
                                  vqComplexity complexity) {
  handle made = newNumbers(ndims, dims, id, complexity == vqComplex);
  zthalf::embedded::clearData(*made);
  return handedOut(std::move(made));
}

vqArray_tag* vqCreateNumericMatrix(unsigned long m, unsigned long n, vqClassID id, vqComplexity complexity) {
  const unsigned long dims[] = {m, n};
  return vqCreateNumericArray(2, dims, id, complexity);
}

vqArray_tag* vqCreateNumericScalar(vqClassID id, vqComplexity complexity) {
  return vqCreateNumericMatrix(1, 1, id, complexity);
}

}  // namespace matrix::detail::noninlined::vq_array_api
