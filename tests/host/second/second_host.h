// A second host, as unlike the embedded one as the same declarations allow: it notes every call, fails where it is told
// to, gives an object a new array inside when that is unshared, and frees what a failed call has left behind.
#pragma once

#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "zthalf/host/exceptions.h"
#include "zthalf/host/vq_fields.h"

namespace second {

struct failure : std::runtime_error {
  explicit failure(std::string const& where) : std::runtime_error(where) {}
};

// Errors of counts are of its own type.
struct badCount {
  char const* name;
};

struct fullArray : vqArray_tag {
  std::shared_ptr<void> owned;  // the data; null for data that others free
  std::size_t bytes = 0;
  vqFreeFunction freeOthers = nullptr;
  std::vector<unsigned long> sizes, deferred;
  fullArray* inside = nullptr;
  std::string className;
  vqClassID id{};

  fullArray();
  ~fullArray();
};

// Notes the call of an operation, and fails if it is the one to fail.
void noted(std::string_view operation);

fullArray* full(vqArray_tag const* array);
fullArray* numbersOf(vqArray_tag const* array);
fullArray* newNumbers(std::vector<unsigned long> const& sizes, vqClassID id, bool complex, unsigned char fill);
std::shared_ptr<void> newMemory(std::size_t bytes);
void setSizes(fullArray* array, std::vector<unsigned long> const& sizes);
std::vector<unsigned long> sizesOf(vqArray_tag const* array);
std::size_t bytesOf(vqClassID id);

struct state {
  std::vector<std::string> calls;
  std::string failing;
  bool halfIsThere = true;
  void (*onError)(foundation::core::except::IUserException const&) = nullptr;
  void (*onWarning)(resource_core::BaseMsgID const&, char const*) = nullptr;
  std::map<void*, std::shared_ptr<void>> loose;  // buffers that no array has yet
  std::vector<fullArray*> all;
};
state& theState();

}  // namespace second
