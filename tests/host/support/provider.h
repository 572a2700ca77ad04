// What the tests ask of the host that they run with, whichever it is.
#pragma once

#include <string>
#include <vector>

#include "zthalf/half_t.h"
#include "zthalf/host/class_objects.h"
#include "zthalf/host/exceptions.h"
#include "zthalf/host/vq_fields.h"

namespace zthalf::testing::provider {

using sizeList = std::vector<unsigned long>;

vqArray_tag* newNumeric(sizeList const& sizes, vqClassID id, vqComplexity complexity = vqReal);
vqArray_tag* newText(std::string const& text);
// An object of another class than half.
vqArray_tag* newOtherObject();
void release(vqArray_tag* array);

// One more holder, counted by the one or the other of the two counts, and one less.
void hold(vqArray_tag* array, bool byFirstCount);
void letGo(vqArray_tag* array, bool byFirstCount);
vqArray_tag* newSharing(vqArray_tag* array);
void deferDimensions(vqArray_tag* array);
// Gives it a class word of 17 or more.
void derive(vqArray_tag* array);

void setHalfAvailable(bool available);
void setOnError(void (*handler)(foundation::core::except::IUserException const&));
void setOnWarning(void (*sink)(resource_core::BaseMsgID const&, char const*));

// Which error of counts a call ended with: "maxlhs", "maxrhs", "minrhs"; empty if with none.
std::string countErrorOf(void (*call)(void*), void* context);

// What is there, of arrays and buffers.
long live();
// Frees what was made since and has not been kept.
class callScope {
 public:
  callScope();
  ~callScope();
  callScope(callScope const&) = delete;
  callScope& operator=(callScope const&) = delete;

 private:
  void* made_;
};

// A host that notes its calls: those since the last time; and which one is to fail.
extern const bool notesCalls;
std::vector<std::string> takeCalls();
void failAt(std::string const& operation);

// An array that is freed when the test is done with it.
class held {
 public:
  held(vqArray_tag* array) : array_(array) {}
  held(held const&) = delete;
  held& operator=(held const&) = delete;
  ~held() { release(array_); }
  operator vqArray_tag*() const { return array_; }
  vqArray_tag* get() const { return array_; }
  vqArray_tag* inside() const { return omGetUnderlyingArray(array_); }

 private:
  vqArray_tag* array_;
};

template <class T>
T* elementsOf(vqArray_tag const* array) {
  return static_cast<T*>(vq_fields::data(omGetUnderlyingArray(array)));
}

template <class T>
void fill(vqArray_tag* array, std::vector<T> const& values) {
  T* to = elementsOf<T>(array);
  for (T const& value : values) *to++ = value;
}

}  // namespace zthalf::testing::provider
