#include <algorithm>
#include <utility>

#include "tests/host/second/second_host.h"
#include "tests/host/support/provider.h"

namespace zthalf::testing::provider {

using second::full;
using second::theState;

vqArray_tag* newNumeric(sizeList const& sizes, vqClassID id, vqComplexity complexity) {
  return second::newNumbers(sizes, id, complexity == vqComplex, 0);
}
vqArray_tag* newText(std::string const& text) {
  return second::newNumbers({1, text.size()}, vqCharacterClass, false, 0x20);
}
vqArray_tag* newOtherObject() {
  vqArray_tag* const object = omCreateKOBSBuiltinBasedMatrix(2, 2, "other");
  takeCalls();
  return object;
}
void release(vqArray_tag* array) {
  if (array != nullptr && --array->counts[1] == 0) delete full(array);
}

void hold(vqArray_tag* array, bool byFirstCount) { ++array->counts[byFirstCount ? 0 : 1]; }
void letGo(vqArray_tag* array, bool byFirstCount) { --array->counts[byFirstCount ? 0 : 1]; }

vqArray_tag* newSharing(vqArray_tag* array) {
  const auto sharing = [](vqArray_tag* from) {
    auto* const made = new second::fullArray;
    second::setSizes(made, second::sizesOf(from));
    vq_fields::setFlags(from, vq_flags::maybeShared);
    made->owned = full(from)->owned;
    made->elements = from->elements;
    made->bytes = full(from)->bytes;
    made->id = full(from)->id;
    made->kind = from->kind;
    made->className = full(from)->className;
    vq_fields::setFlags(made, vq_fields::flags(from) & ~(vq_flags::inlineDimensions | vq_flags::dataHeld));
    return made;
  };
  second::fullArray* const made = sharing(array);
  if (full(array)->inside != nullptr) made->inside = sharing(full(array)->inside);
  return made;
}

void deferDimensions(vqArray_tag* array) {
  second::fullArray* const numbers = second::numbersOf(array);
  numbers->deferred = std::exchange(numbers->sizes, {});
  numbers->shape = nullptr;
  numbers->shapeLength = ~0UL;
  vq_fields::clearFlags(numbers, vq_flags::inlineDimensions);
  vq_fields::setFlags(numbers, vq_flags::opaqueDimensions);
}
void derive(vqArray_tag* array) { array->kind = static_cast<std::uint16_t>(array->kind + 100); }

void setHalfAvailable(bool available) { theState().halfIsThere = available; }
void setOnError(void (*handler)(foundation::core::except::IUserException const&)) { theState().onError = handler; }
void setOnWarning(void (*sink)(resource_core::BaseMsgID const&, char const*)) { theState().onWarning = sink; }

std::string countErrorOf(void (*call)(void*), void* context) {
  try {
    call(context);
    return "";
  } catch (second::badCount const& error) {
    return error.name;
  }
}

long live() { return static_cast<long>(theState().all.size() + theState().loose.size()); }

callScope::callScope() : made_(new std::vector<second::fullArray*>(theState().all)) {}
callScope::~callScope() {
  auto* const before = static_cast<std::vector<second::fullArray*>*>(made_);
  auto& all = theState().all;
  // Objects free what is inside them.
  for (bool found = true; found;) {
    const auto made = std::find_if(all.begin(), all.end(), [&](second::fullArray* array) {
      return std::find(before->begin(), before->end(), array) == before->end() &&
             std::none_of(all.begin(), all.end(), [&](auto* other) { return other->inside == array; });
    });
    found = made != all.end();
    if (found) delete *made;
  }
  theState().loose.clear();
  delete before;
}

const bool notesCalls = true;
std::vector<std::string> takeCalls() { return std::exchange(theState().calls, {}); }
void failAt(std::string const& operation) { theState().failing = operation; }

}  // namespace zthalf::testing::provider
