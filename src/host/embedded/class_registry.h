// The classes that the embedded host knows by name.
#pragma once

#include <atomic>
#include <cstddef>

#include "zthalf/host/class_objects.h"

namespace zthalf::embedded {

// A class of objects around numeric arrays, or one that is derived from a numeric class.
struct hostClass final : kobs::COSClass {
  hostClass(char const* ownName, vqClassID of, bool isAvailable)
      : name(ownName), elements(of), available(isAvailable) {}

  char const* name;    // interned
  vqClassID elements;  // the numeric class of the array inside
  std::atomic<bool> available;
};

// The class of objects with this name; null where there is none, or it is not available.
hostClass const* availableClass(char const* name);
// A class that is known by its name alone.
hostClass const* namedClass(char const* name);

// Of a built-in numeric class, of logicals and of characters: bytes of a real element, 0 for what is none of them.
std::size_t bytesOf(vqClassID id);
bool isNumericClass(vqClassID id);

}  // namespace zthalf::embedded
