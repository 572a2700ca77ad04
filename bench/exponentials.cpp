// Exponentials, logarithms and roots. The peer is a loop that calls the C library's float function between two
// conversions, as a program without half functions would.
#include <cmath>

#include "bench/rows.h"
#include "core/float_conversion.h"
#include "results/result_tables.h"
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

// Numbers of both signs, or their magnitudes where only these have a logarithm or a root.
auto on(halfArrays call, unsigned long n, bool onlyPositive) {
  return [=] {
    auto source = filled<half_t>(n);
    array<half_t> destination(n);
    if (onlyPositive) half_vector::abs(source.data(), source.data(), n);
    return [=] { call(source.data(), destination.data(), n); };
  };
}

struct row {
  char const* name;
  halfArrays ours;
  halfArrays scalarCalls;
  halfArrays floatCalls;
  bool onlyPositive;
};

float tenToThe(float x) { return std::pow(10.0f, x); }
float rootReciprocal(float x) { return 1.0f / std::sqrt(x); }

const row rows[] = {
    {"exp", half_vector::exp, byScalarCall<half_scalar::exp>, byElement<expf>, false},
    {"expm1", half_vector::expm1, byScalarCall<half_scalar::expm1>, byElement<expm1f>, false},
    {"pow2", half_vector::pow2, byScalarCall<half_scalar::pow2>, byElement<exp2f>, false},
    {"pow10", half_vector::pow10, byScalarCall<half_scalar::pow10>, byElement<tenToThe>, false},
    {"log", half_vector::log, byScalarCall<half_scalar::log>, byElement<logf>, true},
    {"log1p", half_vector::log1p, byScalarCall<half_scalar::log1p>, byElement<log1pf>, true},
    {"log2", half_vector::log2, byScalarCall<half_scalar::log2>, byElement<log2f>, true},
    {"log10", half_vector::log10, byScalarCall<half_scalar::log10>, byElement<log10f>, true},
    {"sqrt", half_vector::sqrt, byScalarCall<half_scalar::sqrt>, byElement<sqrtf>, true},
    {"rsqrt", half_vector::rsqrt, byScalarCall<half_scalar::rsqrt>, byElement<rootReciprocal>, true},
};

const bool added = addRows([] {
  for (row const& r : rows) {
    for (const unsigned long n : {64ul, fitsFirstLevel, leavesNearCaches}) {
      const point p{r.name, "plain", n};
      measureOurs(p, on(r.ours, n, r.onlyPositive));
      measure(p, "scalar", on(r.scalarCalls, n, r.onlyPositive));
      measure(p, "libm-float", on(r.floatCalls, n, r.onlyPositive));
    }
    unaryHardships<half_t, half_t>(r.name, r.ours);
    unaryInPlace<half_t, half_t>(r.name, r.ours);
  }
});

}  // namespace
}  // namespace bench
