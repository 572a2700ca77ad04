// Reductions by min and max as they are stated: the tree cut in halves, each right half beginning with the array's
// first element, and chains along dimensions. By recursion on a list of values, over all dimensions at once.
#pragma once

#include <vector>

#include "tests/support/extremum_steps.h"

namespace zthalf::testing::steps {

inline float accumulated(half_t x) { return wide<float>(x); }
inline std::complex<float> accumulated(std::complex<half_t> z) { return wideComplex<float>(z); }
inline half_t castOut(float x) { return rounded(x); }
inline std::complex<half_t> castOut(std::complex<float> z) { return {rounded(z.real()), rounded(z.imag())}; }

template <class Acc>
struct found {
  Acc value;
  double index;
};

// The body of the index form over [lo, hi).
template <class Acc>
void runTree(extremumForm form, std::vector<Acc> const& x, unsigned long lo, unsigned long hi, found<Acc>& body) {
  if (hi - lo > 256) {
    const unsigned long mid = lo + (hi - lo) / 2;
    runTree(form, x, lo, mid, body);
    found<Acc> right{x[0], 0.0};
    runTree(form, x, mid, hi, right);
    if (takesPlace(form, body.value, right.value)) body = right;
    return;
  }
  body.index = static_cast<double>(lo + 1);
  for (unsigned long i = lo; i < hi; ++i) {
    if (!takesPlace(form, body.value, x[i])) continue;
    body.value = x[i];
    body.index = static_cast<double>(i + 1);
  }
}

template <class Acc>
found<Acc> indexedTree(extremumForm form, std::vector<Acc> const& x) {
  found<Acc> body{x[0], 0.0};
  runTree(form, x, 0, x.size(), body);
  return body;
}

// The value form: every step delivers one of its two operands.
template <class Acc>
Acc step(extremumForm form, Acc acc, Acc x) {
  return takesPlace(form, acc, x) ? x : acc;
}
template <class Acc>
Acc valueTree(extremumForm form, std::vector<Acc> const& x, unsigned long lo, unsigned long hi, Acc acc) {
  if (hi - lo > 256) {
    const unsigned long mid = lo + (hi - lo) / 2;
    const Acc left = valueTree(form, x, lo, mid, acc);
    return step(form, left, valueTree(form, x, mid, hi, x[0]));
  }
  for (unsigned long i = lo; i < hi; ++i) acc = step(form, acc, x[i]);
  return acc;
}

// The elements of one output, in memory order.
template <class Acc>
struct slice {
  std::vector<Acc> values;
  std::vector<unsigned long> positions;
};

// Every element goes to the output that its kept coordinates name.
template <class T>
auto slicesOf(std::vector<T> const& src, std::vector<unsigned long> const& dims, bool firstReduced) {
  using Acc = decltype(accumulated(T{}));
  unsigned long outputs = 1;
  for (unsigned long d = firstReduced ? 1 : 0; d < dims.size(); d += 2) outputs *= dims[d];
  std::vector<slice<Acc>> slices(outputs);
  for (unsigned long p = 0; p < src.size(); ++p) {
    unsigned long rest = p, output = 0, step = 1;
    for (unsigned long d = 0; d < dims.size(); ++d) {
      const unsigned long coordinate = rest % dims[d];
      rest /= dims[d];
      if ((d % 2 == 0) == firstReduced) continue;
      output += coordinate * step;
      step *= dims[d];
    }
    slices[output].values.push_back(accumulated(src[p]));
    slices[output].positions.push_back(p);
  }
  return slices;
}

template <class Acc>
Acc valueOfRows(extremumForm form, slice<Acc> const& s) {
  Acc acc = s.values[0];
  for (Acc const& x : s.values) acc = step(form, acc, x);
  return acc;
}

template <class Acc>
found<Acc> indexedRows(extremumForm form, slice<Acc> const& s, bool linear) {
  found<Acc> acc{};
  for (unsigned long k = 0; k < s.values.size(); ++k) {
    if (k == 0 || takesPlace(form, acc.value, s.values[k]))
      acc = {s.values[k], static_cast<double>((linear ? s.positions[k] : k) + 1)};
  }
  return acc;
}

template <class Acc>
std::vector<Acc> runOf(slice<Acc> const& s, unsigned long k, unsigned long length) {
  return {s.values.begin() + static_cast<long>(k * length), s.values.begin() + static_cast<long>((k + 1) * length)};
}

template <class Acc>
Acc valueOfColumns(extremumForm form, slice<Acc> const& s, unsigned long length) {
  Acc acc = s.values[0];
  for (unsigned long k = 0; k < s.values.size() / length; ++k) {
    const auto run = runOf(s, k, length);
    acc = step(form, acc, valueTree(form, run, 0, length, run[0]));
  }
  return acc;
}

template <class Acc>
found<Acc> indexedColumns(extremumForm form, slice<Acc> const& s, unsigned long length, bool linear) {
  found<Acc> acc{};
  for (unsigned long k = 0; k < s.values.size() / length; ++k) {
    const auto [value, i] = indexedTree(form, runOf(s, k, length));
    if (k == 0 || takesPlace(form, acc.value, value))
      acc = {value, i + static_cast<double>(linear ? s.positions[k * length] : length * k)};
  }
  return acc;
}

}  // namespace zthalf::testing::steps
