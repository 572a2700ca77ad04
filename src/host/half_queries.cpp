// What a half array is, and access to its data.
#include <string_view>

#include "host/array_reading.h"
#include "zthalf/host.h"
#include "zthalf/host/class_objects.h"
#include "zthalf/host/vq_array_api.h"

namespace half {

namespace api = matrix::detail::noninlined::vq_array_api;

bool isVqArrayHalf(vqArray_tag const* array) { return omIsKOBS(array) && api::vqIsA(array, "half"); }

bool isHalfClassname(char const* name) { return name != nullptr && std::string_view(name) == "half"; }

bool isVqArrayComplex(vqArray_tag const* array) {
  return zthalf::isComplexArray(isVqArrayHalf(array) ? omGetUnderlyingArray(array) : array);
}

void setComplexity(vqArray_tag* array, bool complex) {
  vqArray_tag* const underlying = omGetUnderlyingArray(array);
  for (vqArray_tag* one : {underlying, array}) {
    if (complex)
      vq_fields::setFlags(one, vq_flags::complex);
    else
      vq_fields::clearFlags(one, vq_flags::complex);
  }
}

half_t* getHalfPointer(vqArray_tag const* array) {
  return static_cast<half_t*>(vq_fields::data(omGetUnderlyingArray(array)));
}

void setHalfData(vqArray_tag* array, half_t* data) { api::vqSetData(omGetUnderlyingArray(array), data, nullptr); }

}  // namespace half
