// Single calls: every elementary function of one and of two halves. The peer is the C library's float function between
// two conversions, as a program without half functions would call it. Both are called as a user's program calls them,
// through a shared library, one element after the other; the peer's conversions are ours, inlined.
#include <cmath>

#include "bench/rows.h"
#include "core/float_conversion.h"
#include "zthalf/half_scalar.h"

namespace bench {
namespace {

// Plain numbers, brought into the function's domain where it needs that.
using change = half_t (*)(half_t);
half_t asItIs(half_t x) { return x; }
half_t positive(half_t x) { return {static_cast<std::uint16_t>(x.bits & 0x7FFF)}; }
half_t belowOne(half_t x) { return {static_cast<std::uint16_t>((x.bits & 0x83FF) | 0x3800)}; }
half_t aboveOne(half_t x) { return {static_cast<std::uint16_t>((x.bits & 0x0FFF) | 0x3C00)}; }
half_t beyond256(half_t x) { return {static_cast<std::uint16_t>((x.bits & 0x9FFF) | 0x5C00)}; }

using arrays = void (*)(half_t const*, half_t const*, half_t*, unsigned long);

template <half_t (*function)(half_t)>
void ours(half_t const* x, half_t const*, half_t* out, unsigned long n) {
  for (unsigned long i = 0; i < n; ++i) out[i] = function(x[i]);
}
template <half_t (*function)(half_t, half_t)>
void ours(half_t const* x, half_t const* y, half_t* out, unsigned long n) {
  for (unsigned long i = 0; i < n; ++i) out[i] = function(x[i], y[i]);
}
template <half_t (*function)(half_t, half_t, half_t)>
void ours(half_t const* x, half_t const* y, half_t* out, unsigned long n) {
  for (unsigned long i = 0; i < n; ++i) out[i] = function(x[i], y[i], x[n - 1 - i]);
}

// One element at a time: a barrier keeps the compiler from making vector code of a loop over its own instructions.
float wide(half_t x) { return zthalf::widen<float>(x.bits); }
half_t rounded(float x) { return {zthalf::narrow(x)}; }

template <float (*function)(float)>
void theirs(half_t const* x, half_t const*, half_t* out, unsigned long n) {
  for (unsigned long i = 0; i < n; ++i) {
    out[i] = rounded(function(wide(x[i])));
    benchmark::ClobberMemory();
  }
}
template <float (*function)(float, float)>
void theirs(half_t const* x, half_t const* y, half_t* out, unsigned long n) {
  for (unsigned long i = 0; i < n; ++i) {
    out[i] = rounded(function(wide(x[i]), wide(y[i])));
    benchmark::ClobberMemory();
  }
}
template <float (*function)(float, float, float)>
void theirs(half_t const* x, half_t const* y, half_t* out, unsigned long n) {
  for (unsigned long i = 0; i < n; ++i) {
    out[i] = rounded(function(wide(x[i]), wide(y[i]), wide(x[n - 1 - i])));
    benchmark::ClobberMemory();
  }
}

// What the C library lacks, in the shortest form that a program would write.
float tenToThe(float x) { return ::exp10f(x); }
float rootReciprocal(float x) { return 1.0f / std::sqrt(x); }
float sineOfPi(float x) { return ::sinf(3.1415927f * x); }
float cosineOfPi(float x) { return ::cosf(3.1415927f * x); }
float flooredRemainder(float x, float y) {
  const float r = ::fmodf(x, y);
  return r != 0.0f && (r < 0.0f) != (y < 0.0f) ? r + y : r;
}
float scaled(float x, float y) { return ::scalbnf(x, static_cast<int>(y)); }

struct row {
  char const* name;
  arrays ours;
  arrays libm;
  change domain;
};

#define ZTHALF_CALL(name, peer, domain) \
  { "call-" #name, ours<half_scalar::name>, theirs<peer>, domain }

const row rows[] = {
    ZTHALF_CALL(ceil, ceilf, asItIs),
    ZTHALF_CALL(floor, floorf, asItIs),
    ZTHALF_CALL(fix, truncf, asItIs),
    ZTHALF_CALL(round, roundf, asItIs),
    ZTHALF_CALL(exp, expf, asItIs),
    ZTHALF_CALL(expm1, expm1f, asItIs),
    ZTHALF_CALL(pow10, tenToThe, asItIs),
    {"call-pow2", ours<static_cast<half_t (*)(half_t)>(half_scalar::pow2)>, theirs<exp2f>, asItIs},
    ZTHALF_CALL(log, logf, positive),
    ZTHALF_CALL(log1p, log1pf, positive),
    ZTHALF_CALL(log2, log2f, positive),
    ZTHALF_CALL(log10, log10f, positive),
    ZTHALF_CALL(sqrt, sqrtf, positive),
    ZTHALF_CALL(rsqrt, rootReciprocal, positive),
    ZTHALF_CALL(sin, sinf, asItIs),
    ZTHALF_CALL(cos, cosf, asItIs),
    ZTHALF_CALL(tan, tanf, asItIs),
    {"call-sin-beyond-256", ours<half_scalar::sin>, theirs<sinf>, beyond256},
    {"call-tan-beyond-256", ours<half_scalar::tan>, theirs<tanf>, beyond256},
    ZTHALF_CALL(sinpi, sineOfPi, asItIs),
    ZTHALF_CALL(cospi, cosineOfPi, asItIs),
    ZTHALF_CALL(asin, asinf, belowOne),
    ZTHALF_CALL(acos, acosf, belowOne),
    ZTHALF_CALL(atan, atanf, asItIs),
    ZTHALF_CALL(sinh, sinhf, asItIs),
    ZTHALF_CALL(cosh, coshf, asItIs),
    ZTHALF_CALL(tanh, tanhf, asItIs),
    ZTHALF_CALL(asinh, asinhf, asItIs),
    ZTHALF_CALL(acosh, acoshf, aboveOne),
    ZTHALF_CALL(atanh, atanhf, belowOne),
    ZTHALF_CALL(nextafter, nextafterf, asItIs),
    {"call-hypot", ours<static_cast<half_t (*)(half_t, half_t)>(half_scalar::hypot)>, theirs<hypotf>, asItIs},
    {"call-atan2", ours<static_cast<half_t (*)(half_t, half_t)>(half_scalar::atan2)>, theirs<atan2f>, asItIs},
    {"call-power", ours<static_cast<half_t (*)(half_t, half_t)>(half_scalar::power)>, theirs<powf>, positive},
    {"call-scale", ours<static_cast<half_t (*)(half_t, half_t)>(half_scalar::pow2)>, theirs<scaled>, asItIs},
    ZTHALF_CALL(mod, flooredRemainder, asItIs),
    ZTHALF_CALL(rem, fmodf, asItIs),
    ZTHALF_CALL(fma, fmaf, asItIs),
};

#undef ZTHALF_CALL

// The second operand is the first one's array shifted, so that the two of a pair have nothing to do with each other.
auto on(arrays call, change domain) {
  constexpr unsigned long n = fitsFirstLevel;
  return [=] {
    auto x = filled<half_t>(2 * n);
    array<half_t> out(n);
    for (unsigned long i = 0; i < n; ++i) x.data()[i] = domain(x.data()[i]);
    return [=] { call(x.data(), x.data() + n, out.data(), n); };
  };
}

const bool added = addRows([] {
  for (row const& r : rows) {
    const point p{r.name, "plain", fitsFirstLevel};
    measureOurs(p, on(r.ours, r.domain));
    measure(p, "libm", on(r.libm, r.domain));
  }
});

}  // namespace
}  // namespace bench
