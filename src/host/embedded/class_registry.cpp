#include "host/embedded/class_registry.h"

#include <cstdint>
#include <forward_list>
#include <mutex>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>

#include "zthalf/host/embedded.h"
#include "zthalf/host/vq_array_api.h"

namespace zthalf::embedded {

namespace {

struct builtIn {
  vqClassID id;
  char const* name;
  std::size_t bytes;
  bool numeric;
};
constexpr builtIn builtIns[] = {
    {vqCharacterClass, "char", 2, false}, {vqLogicalClass, "logical", 1, false}, {vqDoubleClass, "double", 8, true},
    {vqSingleClass, "single", 4, true},   {vqInt8Class, "int8", 1, true},        {vqInt16Class, "int16", 2, true},
    {vqInt32Class, "int32", 4, true},     {vqInt64Class, "int64", 8, true},      {vqUint8Class, "uint8", 1, true},
    {vqUint16Class, "uint16", 2, true},   {vqUint32Class, "uint32", 4, true},    {vqUint64Class, "uint64", 8, true},
    {vqObjectClass, "object", 0, false},  {vqUnknownClass, "unknown", 0, false}};

builtIn const* find(vqClassID id) {
  for (builtIn const& one : builtIns)
    if (one.id == id) return &one;
  return nullptr;
}

// Never destroyed: arrays may outlive whatever order the process ends in.
struct registry {
  std::mutex mutex;
  std::set<std::string, std::less<>> names;
  std::forward_list<hostClass> classes;

  char const* interned(std::string_view name) {
    auto const found = names.find(name);
    return (found != names.end() ? found : names.emplace(name).first)->c_str();
  }
  hostClass* find(std::string_view name) {
    for (hostClass& one : classes)
      if (one.name == name) return &one;
    return nullptr;
  }
  hostClass& add(std::string_view name, vqClassID elements, bool available) {
    return classes.emplace_front(interned(name), elements, available);
  }
};

registry& theRegistry() {
  static registry& only = [&]() -> registry& {
    auto* const made = new registry;
    made->add("half", vqUint16Class, true);
    return *made;
  }();
  return only;
}

}  // namespace

hostClass const* availableClass(char const* name) {
  registry& all = theRegistry();
  const std::lock_guard lock(all.mutex);
  hostClass const* const found = all.find(name);
  return found != nullptr && found->available ? found : nullptr;
}

hostClass const* namedClass(char const* name) {
  registry& all = theRegistry();
  const std::lock_guard lock(all.mutex);
  hostClass const* const found = all.find(name);
  return found != nullptr ? found : &all.add(name, vqUnknownClass, false);
}

std::size_t bytesOf(vqClassID id) {
  builtIn const* const one = find(id);
  return one != nullptr ? one->bytes : 0;
}

bool isNumericClass(vqClassID id) {
  builtIn const* const one = find(id);
  return one != nullptr && one->numeric;
}

}  // namespace zthalf::embedded

namespace zthalf::host {

using embedded::theRegistry;

void addClass(char const* name, vqClassID elements) {
  if (!embedded::isNumericClass(elements)) throw std::invalid_argument("objects are made around numeric arrays");
  auto& all = theRegistry();
  const std::lock_guard lock(all.mutex);
  if (all.find(name) != nullptr) throw std::invalid_argument("there is a class with this name");
  all.add(name, elements, true);
}

void setClassAvailable(char const* name, bool available) {
  auto& all = theRegistry();
  const std::lock_guard lock(all.mutex);
  auto* const found = all.find(name);
  if (found == nullptr) throw std::invalid_argument("there is no class with this name");
  found->available = available;
}

}  // namespace zthalf::host

namespace kobs {

internal::Interned internal::makeInterned(std::string const& name) {
  auto& all = zthalf::embedded::theRegistry();
  const std::lock_guard lock(all.mutex);
  return {all.interned(name)};
}

COSClass const* COSClass::getClass(internal::Interned name) { return zthalf::embedded::availableClass(name.name); }

}  // namespace kobs

namespace matrix::detail::noninlined::vq_array_api {

vqClassID vqClassIDFromClassName(char const* className) {
  for (auto const& one : zthalf::embedded::builtIns)
    if (one.name == std::string_view(className)) return one.id;
  return vqUnknownClass;
}

char const* vqArrayClassIDName(vqClassID id) {
  auto const* const one = zthalf::embedded::find(id);
  return one != nullptr ? one->name : "unknown";
}

unsigned long vqGetElementSizeofClassID(vqClassID id, bool complex) {
  return zthalf::embedded::bytesOf(id) * (complex ? 2 : 1);
}

}  // namespace matrix::detail::noninlined::vq_array_api
