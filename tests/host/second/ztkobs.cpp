// The second host's objects.
#include "tests/host/second/second_host.h"
#include "zthalf/host/class_objects.h"

using second::full;
using second::noted;

bool omIsKOBS(vqArray_tag const* array) {
  noted("omIsKOBS");
  return full(array)->inside != nullptr;
}

vqArray_tag* omGetUnderlyingArray(vqArray_tag const* array) {
  noted("omGetUnderlyingArray");
  return second::numbersOf(array);
}

vqArray_tag* omCreateKOBSBuiltinBasedMatrix(unsigned long m, unsigned long n, char const* className) {
  noted("omCreateKOBSBuiltinBasedMatrix " + std::to_string(m) + " " + std::to_string(n) + " " + className);
  if (className == std::string("half") && !second::theState().halfIsThere) throw second::failure("no class half");
  std::unique_ptr<second::fullArray> object(new second::fullArray);
  object->inside = second::newNumbers({m, n}, vqInt16Class, false, 0);
  object->className = className;
  object->kind = 40;
  return object.release();
}

namespace {
struct secondClass : kobs::COSClass {
} theClass;
}  // namespace

kobs::internal::Interned kobs::internal::makeInterned(std::string const& name) {
  noted("makeInterned " + name);
  return {name == "half" ? "half" : ""};
}

kobs::COSClass const* kobs::COSClass::getClass(internal::Interned name) {
  noted("getClass " + std::string(name.name));
  return second::theState().halfIsThere ? &theClass : nullptr;
}
