// The sweeps of linear algebra.
#pragma once

#include "tests/golden/sweep.h"
#include "zthalf/half_scalar.h"

namespace zthalf::golden {

// What is multiplied: moderate halves in T, and at every so many places anything; with 1 there is nothing else.
template <class T>
std::vector<storage<T>> factors(std::size_t count, std::size_t every) {
  static const auto anything = inputs<T>::sweep();
  static const auto numbers = inputsOf<half_t>(isModerate);
  const auto part = [&](std::size_t i) {
    const half_t x = numbers[i * 25173 % numbers.size()];
    using piece = typename pieceOf<T>::type;
    if constexpr (std::is_floating_point_v<piece>) {
      return static_cast<piece>(half_scalar::impl::convertHalfToSingle(x.bits));
    } else {
      return piece{x.bits};
    }
  };
  std::vector<storage<T>> some(count);
  for (std::size_t i = 0; i < count; ++i) {
    if (every != 0 && i % every == every - 1) {
      some[i] = anything[(i * 40503 + i / anything.size()) % anything.size()];
    } else if constexpr (std::is_same_v<T, typename pieceOf<T>::type>) {
      some[i] = part(i);
    } else {
      some[i] = {part(i), part(i + 7)};
    }
  }
  return some;
}

// A matrix product: all pairs of notable values alone in their outputs, as a single product and as the first one of
// two; nothing; and sizes around the tiles, with numbers, with NaNs and infinities here and there, and with anything.
template <class Left, class Right, class Out>
void sweep(std::string_view name, void (*entry)(Left*, Right*, Out*, unsigned long, unsigned long, unsigned long)) {
  resultHash hash;
  const auto multiply = [&](std::vector<storage<Left>> a, std::vector<storage<Right>> b, unsigned long m,
                            unsigned long k, unsigned long n) {
    std::vector<storage<Out>> c(m * n);
    called(entry, as<Left>(a.data()), as<Right>(b.data()), as<Out>(c.data()), m, k, n);
    hash.add(c.data(), c.size());
  };
  const auto left = gridOf<Left>();
  const auto right = gridOf<Right>();
  multiply(left, right, left.size(), 1, right.size());

  std::vector<storage<Left>> besideZero = left;
  besideZero.resize(2 * left.size());
  std::vector<storage<Right>> aboveZero;
  for (auto const& x : right) aboveZero.insert(aboveZero.end(), {x, storage<Right>{}});
  multiply(besideZero, aboveZero, left.size(), 2, right.size());

  multiply({}, {}, 3, 0, 2);
  struct sizesOfProduct {
    unsigned long m, k, n;
  };
  for (const auto [m, k, n] : {sizesOfProduct{3, 7, 5}, {17, 300, 23}, {70, 9, 66}, {5, 520, 1}, {1, 31, 9}}) {
    for (const std::size_t every : densities) {
      multiply(factors<Left>(m * k, every), factors<Right>(k * n, every), m, k, n);
    }
  }
  hash.print(name);
}

}  // namespace zthalf::golden
