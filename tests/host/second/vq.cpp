// The second host's arrays.
#include <algorithm>
#include <cstring>
#include <mutex>
#include <new>

#include "tests/host/second/second_host.h"
#include "zthalf/host/vq_array_api.h"

namespace second {

namespace {

// Notes and arrays may come from several threads.
std::mutex mutex;

constexpr std::uint16_t objectKind = 40, derivedKind = 100;

}  // namespace

state& theState() {
  static state& only = *new state;
  return only;
}

void noted(std::string_view operation) {
  const std::lock_guard lock(mutex);
  try {
    theState().calls.emplace_back(operation);
  } catch (std::bad_alloc const&) {  // a call that cannot be noted is made all the same
  }
  if (operation == theState().failing) throw failure(std::string(operation));
}

fullArray::fullArray() : vqArray_tag{} {
  counts[1] = 1;  // its maker is counted in the second
  const std::lock_guard lock(mutex);
  theState().all.push_back(this);
}

fullArray::~fullArray() {
  if (freeOthers != nullptr) freeOthers(elements);
  if (inside != nullptr && --inside->counts[1] == 0) delete inside;
  const std::lock_guard lock(mutex);
  auto& all = theState().all;
  all.erase(std::find(all.begin(), all.end(), this));
}

fullArray* full(vqArray_tag const* array) { return static_cast<fullArray*>(const_cast<vqArray_tag*>(array)); }
fullArray* numbersOf(vqArray_tag const* array) {
  return full(array)->inside != nullptr ? full(array)->inside : full(array);
}

std::size_t bytesOf(vqClassID id) {
  switch (id) {
    case vqDoubleClass:
      return 8;
    case vqSingleClass:
    case vqInt32Class:
    case vqUint32Class:
      return 4;
    case vqInt64Class:
    case vqUint64Class:
      return 8;
    case vqInt8Class:
    case vqUint8Class:
    case vqLogicalClass:
      return 1;
    default:
      return 2;
  }
}

std::shared_ptr<void> newMemory(std::size_t bytes) {
  if (bytes > std::size_t{1} << 40) throw std::bad_alloc();
  return {::operator new(bytes + 1), [](void* memory) { ::operator delete(memory); }};
}

void setSizes(fullArray* array, std::vector<unsigned long> const& sizes) {
  std::vector<unsigned long> copy(sizes);
  copy.reserve(1);
  array->sizes.swap(copy);
  array->deferred.clear();
  array->shape = array->sizes.data();
  array->shapeLength = array->sizes.size();
  vq_fields::clearFlags(array, vq_flags::opaqueDimensions | vq_flags::inlineDimensions);
  if (sizes.size() != 2) return;
  array->rowsAndColumns[0] = array->columnsAndRows[1] = sizes[0];
  array->rowsAndColumns[1] = array->columnsAndRows[0] = sizes[1];
  array->shape = nullptr;
  array->shapeLength = 77;
  vq_fields::setFlags(array, vq_flags::inlineDimensions);
}

std::vector<unsigned long> sizesOf(vqArray_tag const* array) {
  fullArray const* const one = numbersOf(array);
  return one->deferred.empty() ? one->sizes : one->deferred;
}

fullArray* newNumbers(std::vector<unsigned long> const& sizes, vqClassID id, bool complex, unsigned char fill) {
  std::unique_ptr<fullArray> array(new fullArray);
  array->id = id;
  array->kind = static_cast<std::uint16_t>(id);
  setSizes(array.get(), sizes);
  if (complex) vq_fields::setFlags(array.get(), vq_flags::complex);
  if (id >= vqDoubleClass && id <= vqUint64Class) vq_fields::setFlags(array.get(), vq_flags::numeric);
  std::size_t bytes = bytesOf(id) * (complex ? 2 : 1);
  for (const unsigned long size : sizes)
    if (__builtin_mul_overflow(bytes, size, &bytes)) throw std::bad_alloc();
  array->owned = newMemory(bytes);
  array->bytes = bytes;
  array->elements = array->owned.get();
  std::memset(array->elements, fill, bytes);
  return array.release();
}

}  // namespace second

using second::full;
using second::noted;
using second::numbersOf;

bool vqArray_tag::is_data_shared_impl() const {
  noted("is_data_shared_impl");
  return numbersOf(this)->owned.use_count() > 1;
}

vqClassID vqArray_tag::_get_class_id_non_trivial() const {
  noted("_get_class_id_non_trivial");
  return kind == second::objectKind ? vqObjectClass : static_cast<vqClassID>(kind - second::derivedKind);
}

void vqArray_tag::_complete_opaque_dimensions() const {
  noted("_complete_opaque_dimensions");
  const std::vector<unsigned long> sizes = full(this)->deferred;
  second::setSizes(full(this), sizes);
}

namespace matrix::detail::noninlined::vq_array_api {

namespace {

unsigned long countOf(vqArray_tag const* array) {
  unsigned long count = 1;
  for (const unsigned long size : second::sizesOf(array)) count *= size;
  return count;
}

}  // namespace

bool vqIsA(vqArray_tag const* array, char const* className) {
  noted("vqIsA " + std::string(className));
  return full(array)->className == className;
}
bool vqIsEmpty(vqArray_tag const* array) {
  noted("vqIsEmpty");
  return countOf(array) == 0;
}
bool vqIsScalar(vqArray_tag const* array) {
  noted("vqIsScalar");
  return countOf(array) == 1;
}
bool vqIsVector(vqArray_tag const* array) {
  noted("vqIsVector");
  const auto sizes = second::sizesOf(array);
  return sizes.size() == 2 && (sizes[0] == 1 || sizes[1] == 1);
}
bool vqIsRealScalar(vqArray_tag const* array) {
  noted("vqIsRealScalar");
  return countOf(array) == 1 && (vq_fields::flags(numbersOf(array)) & vq_flags::complex) == 0;
}
// Of plain arrays it knows doubles alone, and says so by its answer.
bool vqIsFiniteNumericArray(vqArray_tag const* array) {
  noted("vqIsFiniteNumericArray");
  auto const* const values = static_cast<double const*>(array->elements);
  return array->kind == vqDoubleClass &&
         std::all_of(values, values + countOf(array), [](double x) { return x - x == 0; });
}
unsigned long vqGetElementSize(vqArray_tag const* array) {
  noted("vqGetElementSize");
  auto const* const one = numbersOf(array);
  return second::bytesOf(one->id) * ((vq_fields::flags(one) & vq_flags::complex) != 0 ? 2 : 1);
}
unsigned long vqGetElementSizeofClassID(vqClassID id, bool complex) {
  noted("vqGetElementSizeofClassID");
  return second::bytesOf(id) * (complex ? 2 : 1);
}
double vqGetScalar(vqArray_tag const* array) {
  noted("vqGetScalar");
  return *static_cast<double const*>(array->elements);
}
int vqGetScalarInt(vqArray_tag const*) {
  noted("vqGetScalarInt");
  return 3;
}
unsigned long vqGetN(vqArray_tag const* array) {
  noted("vqGetN");
  const auto sizes = second::sizesOf(array);
  unsigned long n = 1;
  for (std::size_t i = 1; i < sizes.size(); ++i) n *= sizes[i];
  return n;
}
double vqColonop_size(double, double, double, vqClassID) {
  noted("vqColonop_size");
  return 12345;
}
vqClassID vqClassIDFromClassName(char const* className) {
  noted("vqClassIDFromClassName " + std::string(className));
  return std::string(className) == "double" ? vqDoubleClass : vqUnknownClass;
}
char const* vqArrayClassIDName(vqClassID) {
  noted("vqArrayClassIDName");
  return "a class of the second host";
}
void vqFreeImagIfZero(vqArray_tag* array) {
  noted("vqFreeImagIfZero");
  vq_fields::clearFlags(array, vq_flags::complex);
}

// An object gets another array inside, as a host may do it.
void vqUnshare(vqArray_tag* array) {
  noted("vqUnshare");
  auto* const old = numbersOf(array);
  const std::shared_ptr<void> copy = second::newMemory(old->bytes);
  std::memcpy(copy.get(), old->elements, old->bytes);
  auto* target = old;
  if (full(array)->inside != nullptr) {
    target = second::newNumbers(second::sizesOf(old), old->id, false, 0);
    target->marks = old->marks;
    target->bytes = old->bytes;
    full(array)->inside = target;
    if (--old->counts[1] == 0) delete old;
  }
  target->owned = copy;
  target->elements = copy.get();
}

void vqSetData(vqArray_tag* array, void* data, vqFreeFunction free) {
  noted(free == nullptr ? "vqSetData" : "vqSetData with a function");
  auto& loose = second::theState().loose;
  auto* const one = full(array);
  if (data == one->elements) return;
  if (one->freeOthers != nullptr) one->freeOthers(one->elements);
  one->freeOthers = free;
  const auto found = loose.find(data);
  one->owned = found != loose.end() ? found->second : nullptr;
  if (found != loose.end()) loose.erase(found);
  one->elements = data;
}
void vqSetM(vqArray_tag* array, unsigned long m) {
  noted("vqSetM " + std::to_string(m));
  auto sizes = second::sizesOf(array);
  sizes.at(0) = m;
  second::setSizes(full(array), sizes);
}
void vqSetN(vqArray_tag* array, unsigned long n) {
  noted("vqSetN " + std::to_string(n));
  second::setSizes(full(array), {second::sizesOf(array).at(0), n});
}
void vqSetDimensions(vqArray_tag* array, unsigned long const* dims, unsigned long ndims) {
  noted("vqSetDimensions " + std::to_string(ndims));
  second::setSizes(full(array), std::vector<unsigned long>(dims, dims + ndims));
}
void* vqMallocEx(unsigned long bytes) {
  noted("vqMallocEx " + std::to_string(bytes));
  const std::shared_ptr<void> memory = second::newMemory(bytes);
  second::theState().loose[memory.get()] = memory;
  return memory.get();
}

vqArray_tag* vqCreateNumericArray(unsigned long ndims, unsigned long const* dims, vqClassID id,
                                  vqComplexity complexity) {
  noted("vqCreateNumericArray");
  return second::newNumbers({dims, dims + ndims}, id, complexity == vqComplex, 0);
}
vqArray_tag* vqCreateNumericMatrix(unsigned long m, unsigned long n, vqClassID id, vqComplexity complexity) {
  noted("vqCreateNumericMatrix");
  return second::newNumbers({m, n}, id, complexity == vqComplex, 0);
}
vqArray_tag* vqCreateNumericScalar(vqClassID id, vqComplexity complexity) {
  noted("vqCreateNumericScalar");
  return second::newNumbers({1, 1}, id, complexity == vqComplex, 0);
}
// What was in memory: never zeros here.
vqArray_tag* vqCreateUninitNumericArray(unsigned long ndims, unsigned long const* dims, vqClassID id,
                                        vqComplexity complexity) {
  noted("vqCreateUninitNumericArray");
  return second::newNumbers({dims, dims + ndims}, id, complexity == vqComplex, 0xAB);
}

}  // namespace matrix::detail::noninlined::vq_array_api

namespace matrix::detail {

void error_maxlhs() { throw second::badCount{"maxlhs"}; }
void error_maxrhs() { throw second::badCount{"maxrhs"}; }
void error_minrhs() { throw second::badCount{"minrhs"}; }

void do_legacy_vq_error(foundation::core::except::IUserException const& error) {
  noted("do_legacy_vq_error");
  if (second::theState().onError != nullptr) second::theState().onError(error);
}

}  // namespace matrix::detail

void vqWarningMsgId(resource_core::BaseMsgID const& id) {
  noted("vqWarningMsgId");
  if (second::theState().onWarning != nullptr) second::theState().onWarning(id, "a warning of the second host");
}
