// The arrays of the embedded host as programs make, share and free them.
#include <algorithm>
#include <cstring>
#include <stdexcept>
#include <utility>

#include "host/array_reading.h"
#include "host/embedded/host_array.h"
#include "zthalf/host/embedded.h"

namespace zthalf::host {

using embedded::hostArray;
using embedded::numbersOf;
using embedded::own;

vqArray_tag* retain(vqArray_tag* array) {
  ++array->holders;
  return array;
}

void release(vqArray_tag* array) {
  if (array != nullptr && --array->holders == 0 && array->owners == 0) delete own(array);
}

array newArray(std::vector<unsigned long> const& dims, vqClassID id, vqComplexity complexity) {
  embedded::handle made = embedded::newNumbers(dims.size(), dims.data(), id, complexity == vqComplex);
  embedded::clearData(*made);
  return array(embedded::handedOut(std::move(made)));
}

array newText(char const* text) {
  const std::size_t length = std::strlen(text);
  array made = newArray({1, length}, vqCharacterClass);
  std::copy(text, text + length, elementsOf<char16_t>(made.get()));
  return made;
}

namespace {

embedded::handle sharing(hostArray& from) {
  if (from.freeData != nullptr) throw std::invalid_argument("a buffer that others free cannot be shared");
  embedded::handle made(new hostArray);
  const dimensionList dims = dimensionsOf(&from);
  made->setDimensions(dims.sizes, dims.count);
  made->takeData(from.data, nullptr);
  const std::uint32_t shape = vq_flags::inlineDimensions;
  from.flagWord |= vq_flags::maybeShared;
  made->flagWord = (made->flagWord & shape) | (from.flagWord & ~(shape | vq_flags::dataHeld));
  made->classWord = from.classWord;
  made->ownClass = from.ownClass;
  return made;
}

}  // namespace

array sharedCopy(vqArray_tag const* original) {
  auto* const from = const_cast<hostArray*>(own(original));
  embedded::handle made = sharing(*from);
  if (from->inside != nullptr) {
    made->inside = sharing(*from->inside).release();
    made->inside->owners = 1;
  }
  return array(embedded::handedOut(std::move(made)));
}

void* dataOf(vqArray_tag const* array) { return numbersOf(array)->data; }

void markSparse(vqArray_tag* array) { numbersOf(array)->flagWord |= vq_flags::sparse; }

void holdData(vqArray_tag* array, bool held) {
  if (held)
    array->flagWord |= vq_flags::dataHeld;
  else
    array->flagWord &= ~vq_flags::dataHeld;
}

}  // namespace zthalf::host
