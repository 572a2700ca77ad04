// A complex half array without imaginary parts becomes a real one, in its own buffer.
#include "host/array_reading.h"
#include "zthalf/half_vector.h"
#include "zthalf/host.h"
#include "zthalf/host/class_objects.h"
#include "zthalf/host/vq_array_api.h"

namespace half {

namespace api = matrix::detail::noninlined::vq_array_api;

void freeImagIfZero(vqArray_tag* array) {
  vqArray_tag* underlying = omGetUnderlyingArray(array);
  // Whoever else holds the array, or has its data held, sees it as it is.
  if (!zthalf::isComplexArray(underlying) || vq_fields::references(array) >= 2 ||
      zthalf::hasFlags(array, vq_flags::dataHeld))
    return;

  if (!api::vqIsEmpty(underlying)) {
    const unsigned long n = zthalf::elementCount(underlying);
    if (!half_vector::isImagZero(static_cast<std::complex<half_t>*>(vq_fields::data(underlying)), n)) return;
    if (zthalf::hasFlags(array, vq_flags::maybeShared) && array->is_data_shared_impl()) {
      api::vqUnshare(array);
      underlying = omGetUnderlyingArray(array);  // its own now: perhaps another array, in any case another buffer
    }
    // Ascending: a pair is read before its place is written.
    half_t* const parts = static_cast<half_t*>(vq_fields::data(underlying));
    for (unsigned long i = 0; i < n; ++i) parts[i] = parts[2 * i];
  }
  vq_fields::clearFlags(array, vq_flags::complex);
  vq_fields::clearFlags(underlying, vq_flags::complex);
}

}  // namespace half
