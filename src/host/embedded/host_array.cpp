// Arrays and their buffers: who has them, and when they go.
#include "host/embedded/host_array.h"

#include <algorithm>
#include <cstring>
#include <new>
#include <stdexcept>
#include <string>
#include <utility>

#include "host/array_reading.h"
#include "host/embedded/temporaries.h"
#include "zthalf/host/embedded.h"

namespace zthalf::embedded {

namespace {

std::atomic<long> arrays{0}, buffers{0};

constexpr std::uint32_t objectWord = 17;   // an object's class word
constexpr std::uint32_t derivedWord = 32;  // and a class identifier: of a class that is derived from that one

// At least one entry, so that a first dimension can be read of an array that has none.
std::unique_ptr<unsigned long[]> listOf(unsigned long const* dims, unsigned long ndims) {
  std::unique_ptr<unsigned long[]> list(new unsigned long[std::max(ndims, 1UL)]);
  list[0] = 1;
  std::copy(dims, dims + ndims, list.get());
  return list;
}

bool isDerived(hostArray const& array) { return array.classWord >= derivedWord; }

vqClassID classIn(hostArray const& array) {
  if (isDerived(array)) return static_cast<vqClassID>(array.classWord - derivedWord);
  return array.classWord == objectWord ? vqObjectClass : static_cast<vqClassID>(array.classWord);
}

}  // namespace

void* newBuffer(std::size_t bytes) {
  if (bytes > static_cast<std::size_t>(PTRDIFF_MAX) - sizeof(bufferHead)) throw std::bad_alloc();
  void* const memory = ::operator new(sizeof(bufferHead) + bytes, std::align_val_t(alignof(bufferHead)));
  auto* const head = ::new (memory) bufferHead(bytes);
  addTemporaryBuffer(*head);
  ++buffers;
  return head + 1;
}

bufferHead* headOf(void* data) { return static_cast<bufferHead*>(data) - 1; }

void deleteBuffer(void* data) {
  bufferHead* const head = headOf(data);
  head->remove();
  head->~bufferHead();
  ::operator delete(static_cast<void*>(head), std::align_val_t(alignof(bufferHead)));
  --buffers;
}

hostArray::hostArray() : vqArray_tag{} {
  flagWord = vq_flags::inlineDimensions;
  ++arrays;
}

hostArray::~hostArray() {
  remove();
  takeData(nullptr, nullptr);
  if (inside != nullptr && --inside->owners == 0 && inside->holders == 0) delete inside;
  --arrays;
}

void hostArray::takeData(void* buffer, vqFreeFunction freeFunction) {
  if (buffer == data) return;
  if (buffer != nullptr && freeFunction == nullptr) {
    headOf(buffer)->remove();
    ++headOf(buffer)->sharers;
  }
  void* const old = data;
  const vqFreeFunction freeOld = freeData;
  data = buffer;
  freeData = freeFunction;
  if (old == nullptr) return;
  if (freeOld != nullptr)
    freeOld(old);
  else if (--headOf(old)->sharers == 0)
    deleteBuffer(old);
}

void hostArray::setDimensions(unsigned long const* dims, unsigned long ndims) {
  if (ndims == 2) {
    const unsigned long m = dims[0], n = dims[1];  // perhaps from our own list
    sizes.reset();
    dimensions.inPlace[0] = m;
    dimensions.inPlace[1] = n;
    flagWord |= vq_flags::inlineDimensions;
  } else {
    sizes = listOf(dims, ndims);
    dimensions.list = sizes.get();
    dimensionCount = ndims;
    flagWord &= ~vq_flags::inlineDimensions;
  }
  flagWord &= ~vq_flags::opaqueDimensions;
  deferred.reset();
}

std::size_t elementBytes(hostArray const& array) {
  return bytesOf(classIn(array)) * ((array.flagWord & vq_flags::complex) != 0 ? 2 : 1);
}

unsigned long countOf(hostArray const& array) { return elementCount(&array); }

handle newNumbers(unsigned long ndims, unsigned long const* dims, vqClassID id, bool complex) {
  const std::size_t bytes = bytesOf(id) * (complex ? 2 : 1);
  if (bytes == 0) throw std::invalid_argument("arrays of this class cannot be made");
  handle array(new hostArray);
  array->classWord = static_cast<std::uint32_t>(id);
  if (isNumericClass(id)) array->flagWord |= vq_flags::numeric;
  if (complex) array->flagWord |= vq_flags::complex;
  array->setDimensions(dims, ndims);
  array->takeData(newBuffer(cappedProduct(elementCount({ndims, dims}), bytes)), nullptr);
  return array;
}

void clearData(hostArray& array) { std::memset(array.data, 0, headOf(array.data)->bytes); }

vqArray_tag* handedOut(handle array) {
  array->holders = 1;
  addTemporaryArray(*array);
  return array.release();
}

}  // namespace zthalf::embedded

using zthalf::embedded::hostArray;
using zthalf::embedded::numbersOf;
using zthalf::embedded::own;

bool vqArray_tag::is_data_shared_impl() const {
  hostArray const* const numbers = numbersOf(this);
  return numbers->data != nullptr && numbers->freeData == nullptr &&
         zthalf::embedded::headOf(numbers->data)->sharers > 1;
}

vqClassID vqArray_tag::_get_class_id_non_trivial() const { return zthalf::embedded::classIn(*own(this)); }

void vqArray_tag::_complete_opaque_dimensions() const {
  auto* const self = const_cast<hostArray*>(own(this));
  if (self->deferred == nullptr) return;
  const auto dims = std::move(self->deferred);
  self->setDimensions(dims.get(), self->deferredCount);
}

bool omIsKOBS(vqArray_tag const* array) { return own(array)->inside != nullptr; }

vqArray_tag* omGetUnderlyingArray(vqArray_tag const* array) { return numbersOf(array); }

vqArray_tag* omCreateKOBSBuiltinBasedMatrix(unsigned long m, unsigned long n, char const* className) {
  using namespace zthalf::embedded;
  hostClass const* const itsClass = availableClass(className);
  if (itsClass == nullptr) throw std::invalid_argument(std::string("there is no class ") + className);
  const unsigned long dims[] = {m, n};
  handle numbers = newNumbers(2, dims, itsClass->elements, false);
  clearData(*numbers);
  handle object(new hostArray);
  object->classWord = objectWord;
  object->dimensions.inPlace[0] = object->dimensions.inPlace[1] = 1;
  object->ownClass = itsClass;
  object->inside = numbers.release();
  object->inside->owners = 1;
  return handedOut(std::move(object));
}

namespace zthalf::host {

// What stands in the fields until then is no shape that an array could have had.
void deferDimensions(vqArray_tag* array) {
  hostArray* const numbers = numbersOf(array);
  const dimensionList dims = dimensionsOf(numbers);
  numbers->deferred = embedded::listOf(dims.sizes, dims.count);
  numbers->deferredCount = dims.count;
  numbers->sizes.reset();
  numbers->dimensions.list = nullptr;
  numbers->dimensionCount = ~0UL;
  numbers->flagWord = (numbers->flagWord & ~vq_flags::inlineDimensions) | vq_flags::opaqueDimensions;
}

void deriveClass(vqArray_tag* array, char const* name) {
  hostArray* const one = own(array);
  if (one->inside != nullptr || embedded::isDerived(*one))
    throw std::invalid_argument("only a built-in class can be derived from");
  one->ownClass = embedded::namedClass(name);
  one->classWord += embedded::derivedWord;
}

long liveArrays() { return embedded::arrays; }
long liveBuffers() { return embedded::buffers; }

}  // namespace zthalf::host
