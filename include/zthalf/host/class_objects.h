// The operations of a host's class-object system that this library calls.
#pragma once

#include <string>

#include "zthalf/detail/export.h"
#include "zthalf/host/vq_array.h"

/// Whether the array is an object of a class.
ZTHALF_API bool omIsKOBS(vqArray_tag const* array);

/// The array that carries the numbers of an object; of any other array, that array.
ZTHALF_API vqArray_tag* omGetUnderlyingArray(vqArray_tag const* array);

/// A new object of the class around a new real array of m by n elements of the class's element size, zeros.
ZTHALF_API vqArray_tag* omCreateKOBSBuiltinBasedMatrix(unsigned long m, unsigned long n, char const* className);

namespace kobs {

namespace internal {

/// A name of which the process has one copy: equal names have equal pointers.
struct Interned {
  char const* name;
};
ZTHALF_API Interned makeInterned(std::string const& name);

}  // namespace internal

/// A class of the host's.
class COSClass {
 public:
  /// The class with this name; null where it is not available.
  ZTHALF_API static COSClass const* getClass(internal::Interned name);

 protected:
  ~COSClass() = default;
};

}  // namespace kobs
