// Short arrays: what a call costs beside its elements. The peer is a loop over the scalar function.
#include "bench/rows.h"
#include "zthalf/half_vector.h"

namespace bench {
namespace {

constexpr unsigned long counts[] = {1, 2, 3, 4, 7, 8, 15, 16, 24, 31, 32, 48, 63, 64};

template <class In, class Out>
void unaryShort(std::string const& row, unaryCall<In, Out> ours, unaryCall<In, Out> byElement) {
  for (const unsigned long n : counts) {
    const point p{row, "plain", n};
    measureOurs(p, unaryOn(ours, n, content::plain));
    measure(p, "scalar", unaryOn(byElement, n, content::plain));
  }
}

auto sums(void (*call)(half_t*, half_t*, half_t*, unsigned long), unsigned long n) {
  return [=] {
    auto left = filled<half_t>(n);
    auto right = filled<half_t>(n);
    array<half_t> out(n);
    return [=] { call(left.data(), right.data(), out.data(), n); };
  };
}

const bool added = addRows([] {
  unaryShort<half_t, float>("short-half-to-single", half_vector::convertFromHalf,
                            [](half_t* src, float* dst, unsigned long n) {
                              for (unsigned long i = 0; i < n; ++i) {
                                dst[i] = half_scalar::impl::convertHalfToSingle(src[i].bits);
                              }
                            });
  unaryShort<float, half_t>("short-single-to-half", half_vector::convertToHalf,
                            [](float* src, half_t* dst, unsigned long n) {
                              for (unsigned long i = 0; i < n; ++i) {
                                dst[i].bits = half_scalar::impl::convertSingleToHalf(src[i]);
                              }
                            });
  unaryShort<half_t, half_t>("short-uminus", half_vector::uminus, [](half_t* src, half_t* dst, unsigned long n) {
    for (unsigned long i = 0; i < n; ++i) dst[i] = -src[i];
  });
  unaryShort<half_t, half_t>("short-floor", half_vector::floor, [](half_t* src, half_t* dst, unsigned long n) {
    for (unsigned long i = 0; i < n; ++i) dst[i] = half_scalar::floor(src[i]);
  });
  for (const unsigned long n : counts) {
    const point p{"short-plus", "plain", n};
    measureOurs(p, sums(
                       [](half_t* a, half_t* b, half_t* c, unsigned long count) {
                         half_vector::plus(a, b, c, count, 1, &count, count, 1, &count, count, 1, &count);
                       },
                       n));
    measure(p, "scalar",
            sums(
                [](half_t* a, half_t* b, half_t* c, unsigned long count) {
                  for (unsigned long i = 0; i < count; ++i) c[i] = a[i] + b[i];
                },
                n));
  }
});

}  // namespace
}  // namespace bench
