// The array operations of the embedded host that look at elements.
#include <algorithm>
#include <cmath>
#include <complex>
#include <cstdint>
#include <limits>
#include <stdexcept>

#include "host/array_reading.h"
#include "host/embedded/host_array.h"
#include "zthalf/host/vq_array_api.h"

namespace matrix::detail::noninlined::vq_array_api {

using zthalf::embedded::hostArray;
using zthalf::embedded::numbersOf;

namespace {

// The class of the elements, which is not that of an object around them.
vqClassID elementsIn(hostArray const& numbers) { return zthalf::classOf(&numbers); }

// Calls f with a null pointer of the type of the elements.
template <class F>
auto onElements(vqClassID id, F f) {
  switch (id) {
    case vqDoubleClass:
      return f(static_cast<double*>(nullptr));
    case vqSingleClass:
      return f(static_cast<float*>(nullptr));
    case vqInt8Class:
      return f(static_cast<std::int8_t*>(nullptr));
    case vqInt16Class:
      return f(static_cast<std::int16_t*>(nullptr));
    case vqInt32Class:
      return f(static_cast<std::int32_t*>(nullptr));
    case vqInt64Class:
      return f(static_cast<std::int64_t*>(nullptr));
    case vqLogicalClass:
    case vqUint8Class:
      return f(static_cast<std::uint8_t*>(nullptr));
    case vqCharacterClass:
    case vqUint16Class:
      return f(static_cast<std::uint16_t*>(nullptr));
    case vqUint32Class:
      return f(static_cast<std::uint32_t*>(nullptr));
    case vqUint64Class:
      return f(static_cast<std::uint64_t*>(nullptr));
    default:
      throw std::invalid_argument("an array of this class has no elements that are numbers");
  }
}

}  // namespace

double vqGetScalar(vqArray_tag const* array) {
  hostArray const* const numbers = numbersOf(array);
  if (zthalf::elementCount(numbers) == 0) throw std::out_of_range("an empty array has no first element");
  return onElements(elementsIn(*numbers), [&]<class T>(T*) -> double { return *static_cast<T const*>(numbers->data); });
}

// Rounded towards zero; what no int holds becomes the nearest one, and a NaN 0.
int vqGetScalarInt(vqArray_tag const* array) {
  const double value = vqGetScalar(array);
  if (std::isnan(value)) return 0;
  return static_cast<int>(std::clamp<double>(value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

bool vqIsFiniteNumericArray(vqArray_tag const* array) {
  hostArray const* const numbers = numbersOf(array);
  if (!zthalf::hasFlags(numbers, vq_flags::numeric)) return false;
  const unsigned long parts = zthalf::elementCount(numbers) * (zthalf::isComplexArray(numbers) ? 2 : 1);
  return onElements(elementsIn(*numbers), [&]<class T>(T*) {
    T const* const first = static_cast<T const*>(numbers->data);
    return std::all_of(first, first + parts, [](T x) { return std::isfinite(static_cast<double>(x)); });
  });
}

void vqFreeImagIfZero(vqArray_tag* array) {
  hostArray* const numbers = numbersOf(array);
  if (!zthalf::isComplexArray(numbers)) return;
  const unsigned long n = zthalf::elementCount(numbers);
  onElements(elementsIn(*numbers), [&]<class T>(T*) {
    T const* const pairs = static_cast<T const*>(numbers->data);
    for (unsigned long i = 0; i < n; ++i)
      if (!(pairs[2 * i + 1] == T{})) return;
    vqUnshare(array);
    T* const parts = static_cast<T*>(numbers->data);
    for (unsigned long i = 0; i < n; ++i) parts[i] = parts[2 * i];
    vq_fields::clearFlags(numbers, vq_flags::complex);
  });
}

// An end that is missed by a few roundings of the class counts as reached.
double vqColonop_size(double start, double step, double stop, vqClassID id) {
  if (std::isnan(start) || std::isnan(step) || std::isnan(stop)) return std::numeric_limits<double>::quiet_NaN();
  if (step == 0 || (step < 0 ? start < stop : stop < start)) return 0.0;
  const double spacing = id == vqSingleClass ? 0x1p-21 : 0x1p-50;
  const double tolerance = spacing * std::max(std::fabs(start), std::fabs(stop)) / std::fabs(step);
  return std::floor((stop - start) / step + std::min(tolerance, 0.5)) + 1.0;
}

}  // namespace matrix::detail::noninlined::vq_array_api
