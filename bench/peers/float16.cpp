// The compiler's own half type, where it has one for this set of instructions.
#include <complex>
#include <functional>

#include "bench/peers/peers.h"

namespace bench {

#if defined(__FLT16_MAX__)
namespace {

template <class From, class To, class FromStored, class ToStored>
void convert(FromStored* src, ToStored* dst, unsigned long n) {
  auto* from = reinterpret_cast<From*>(src);
  auto* to = reinterpret_cast<To*>(dst);
  for (unsigned long i = 0; i < n; ++i) to[i] = static_cast<To>(from[i]);
}

template <class Operation>
void combine(half_t* a, half_t* b, half_t* c, unsigned long n) {
  auto* left = reinterpret_cast<_Float16*>(a);
  auto* right = reinterpret_cast<_Float16*>(b);
  auto* out = reinterpret_cast<_Float16*>(c);
  for (unsigned long i = 0; i < n; ++i) out[i] = Operation{}(left[i], right[i]);
}

using complexHalf = std::complex<half_t>;

void complexPlus(complexHalf* a, complexHalf* b, complexHalf* c, unsigned long n) {
  auto* left = reinterpret_cast<_Float16*>(a);
  auto* right = reinterpret_cast<_Float16*>(b);
  auto* out = reinterpret_cast<_Float16*>(c);
  for (unsigned long i = 0; i < 2 * n; ++i) out[i] = left[i] + right[i];
}

void complexTimes(complexHalf* a, complexHalf* b, complexHalf* c, unsigned long n) {
  auto* left = reinterpret_cast<_Float16*>(a);
  auto* right = reinterpret_cast<_Float16*>(b);
  auto* out = reinterpret_cast<_Float16*>(c);
  for (unsigned long i = 0; i < 2 * n; i += 2) {
    const float x = left[i], y = left[i + 1], u = right[i], v = right[i + 1];
    out[i] = static_cast<_Float16>(x * u - y * v);
    out[i + 1] = static_cast<_Float16>(x * v + y * u);
  }
}

template <class Test>
void compare(half_t* a, half_t* b, bool* c, unsigned long n) {
  auto* left = reinterpret_cast<_Float16*>(a);
  auto* right = reinterpret_cast<_Float16*>(b);
  for (unsigned long i = 0; i < n; ++i) c[i] = Test{}(left[i], right[i]);
}

void smaller(half_t* a, half_t* b, half_t* c, unsigned long n) {
  auto* left = reinterpret_cast<_Float16*>(a);
  auto* right = reinterpret_cast<_Float16*>(b);
  auto* out = reinterpret_cast<_Float16*>(c);
  for (unsigned long i = 0; i < n; ++i) out[i] = left[i] > right[i] ? right[i] : left[i];
}

void smallest(half_t* src, half_t* dst, unsigned long n) {
  auto* x = reinterpret_cast<_Float16*>(src);
  _Float16 least = x[0];
  for (unsigned long i = 1; i < n; ++i) least = x[i] < least ? x[i] : least;
  *reinterpret_cast<_Float16*>(dst) = least;
}

void positionOfSmallest(half_t* src, double* index, unsigned long n) {
  auto* x = reinterpret_cast<_Float16*>(src);
  unsigned long at = 0;
  for (unsigned long i = 1; i < n; ++i) at = x[i] < x[at] ? i : at;
  *index = static_cast<double>(at + 1);
}

void shortest(std::complex<half_t>* src, std::complex<half_t>* dst, unsigned long n) {
  auto* x = reinterpret_cast<_Float16*>(src);
  unsigned long at = 0;
  float least = std::abs(std::complex<float>(x[0], x[1]));
  for (unsigned long i = 1; i < n; ++i) {
    const float length = std::abs(std::complex<float>(x[2 * i], x[2 * i + 1]));
    if (length < least) least = length, at = i;
  }
  *dst = src[at];
}

}  // namespace
#endif

ZTHALF_PEER_EXPORT peerPasses ZTHALF_PEER(float16_)() {
  peerPasses passes{};
#if defined(__FLT16_MAX__)
  passes.name = "_Float16-" ZTHALF_PEER_TEXT(ZTHALF_PEER_SET);
  passes.halfToSingle = convert<_Float16, float>;
  passes.singleToHalf = convert<float, _Float16>;
  passes.halfToDouble = convert<_Float16, double>;
  passes.doubleToHalf = convert<double, _Float16>;
  passes.int32ToHalf = convert<int, _Float16>;
  passes.halfToInt32 = convert<_Float16, int>;
  passes.plus = combine<std::plus<>>;
  passes.minus = combine<std::minus<>>;
  passes.times = combine<std::multiplies<>>;
  passes.rdivide = combine<std::divides<>>;
  passes.complexPlus = complexPlus;
  passes.complexTimes = complexTimes;
  passes.equal = compare<std::equal_to<_Float16>>;
  passes.less = compare<std::less<_Float16>>;
  passes.smaller = smaller;
  passes.smallest = smallest;
  passes.positionOfSmallest = positionOfSmallest;
  passes.shortest = shortest;
#endif
  return passes;
}

}  // namespace bench
