// Trigonometric and hyperbolic functions. The peer is a loop that calls the C library's float function between two
// conversions, as a program without half functions would.
#include <cmath>

#include "bench/rows.h"
#include "core/float_conversion.h"
#include "zthalf/half_scalar.h"
#include "zthalf/half_vector.h"

namespace bench {
namespace {

using halfArrays = unaryCall<half_t, half_t>;

template <float (*function)(float)>
void byElement(half_t* src, half_t* dst, unsigned long n) {
  for (unsigned long i = 0; i < n; ++i) dst[i] = {zthalf::narrow(function(zthalf::widen<float>(src[i].bits)))};
}

template <half_t (*function)(half_t)>
void byScalarCall(half_t* src, half_t* dst, unsigned long n) {
  for (unsigned long i = 0; i < n; ++i) dst[i] = function(src[i]);
}

float sinpi(float x) { return std::sin(3.1415927f * x); }
float cospi(float x) { return std::cos(3.1415927f * x); }

// A plain number brought into the function's domain, or among the angles that take the longest reduction.
using change = half_t (*)(half_t);
half_t asItIs(half_t x) { return x; }
half_t belowOne(half_t x) { return {static_cast<std::uint16_t>((x.bits & 0x83FF) | 0x3800)}; }
half_t aboveOne(half_t x) { return {static_cast<std::uint16_t>((x.bits & 0x0FFF) | 0x3C00)}; }
half_t beyond256(half_t x) { return {static_cast<std::uint16_t>((x.bits & 0x9FFF) | 0x5C00)}; }

struct row {
  char const* name;
  halfArrays ours;
  halfArrays scalarCalls;
  halfArrays floatCalls;
  change domain;
};

const row rows[] = {
    {"sin", half_vector::sin, byScalarCall<half_scalar::sin>, byElement<sinf>, asItIs},
    {"cos", half_vector::cos, byScalarCall<half_scalar::cos>, byElement<cosf>, asItIs},
    {"tan", half_vector::tan, byScalarCall<half_scalar::tan>, byElement<tanf>, asItIs},
    {"sin-beyond-256", half_vector::sin, byScalarCall<half_scalar::sin>, byElement<sinf>, beyond256},
    {"sinpi", half_vector::sinpi, byScalarCall<half_scalar::sinpi>, byElement<sinpi>, asItIs},
    {"cospi", half_vector::cospi, byScalarCall<half_scalar::cospi>, byElement<cospi>, asItIs},
    {"asin", half_vector::asin, byScalarCall<half_scalar::asin>, byElement<asinf>, belowOne},
    {"acos", half_vector::acos, byScalarCall<half_scalar::acos>, byElement<acosf>, belowOne},
    {"atan", half_vector::atan, byScalarCall<half_scalar::atan>, byElement<atanf>, asItIs},
    {"sinh", half_vector::sinh, byScalarCall<half_scalar::sinh>, byElement<sinhf>, asItIs},
    {"cosh", half_vector::cosh, byScalarCall<half_scalar::cosh>, byElement<coshf>, asItIs},
    {"tanh", half_vector::tanh, byScalarCall<half_scalar::tanh>, byElement<tanhf>, asItIs},
    {"asinh", half_vector::asinh, byScalarCall<half_scalar::asinh>, byElement<asinhf>, asItIs},
    {"acosh", half_vector::acosh, byScalarCall<half_scalar::acosh>, byElement<acoshf>, aboveOne},
    {"atanh", half_vector::atanh, byScalarCall<half_scalar::atanh>, byElement<atanhf>, belowOne},
};

auto on(halfArrays call, unsigned long n, change domain) {
  return [=] {
    auto source = filled<half_t>(n);
    array<half_t> destination(n);
    for (unsigned long i = 0; i < n; ++i) source.data()[i] = domain(source.data()[i]);
    return [=] { call(source.data(), destination.data(), n); };
  };
}

const bool added = addRows([] {
  for (row const& r : rows) {
    for (const unsigned long n : {64ul, fitsFirstLevel, leavesNearCaches}) {
      const point p{r.name, "plain", n};
      measureOurs(p, on(r.ours, n, r.domain));
      measure(p, "scalar", on(r.scalarCalls, n, r.domain));
      measure(p, "libm-float", on(r.floatCalls, n, r.domain));
    }
    unaryHardships<half_t, half_t>(r.name, r.ours);
    unaryInPlace<half_t, half_t>(r.name, r.ours);
  }
});

}  // namespace
}  // namespace bench
