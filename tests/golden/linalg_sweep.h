// The sweeps of linear algebra.
#pragma once

#include "tests/golden/sweep.h"
#include "zthalf/detail/entry_shapes.h"
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

struct sizesOfProduct {
  unsigned long m, k, n;
};

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
  for (const auto [m, k, n] : {sizesOfProduct{3, 7, 5}, {17, 300, 23}, {70, 9, 66}, {5, 520, 1}, {1, 31, 9}}) {
    for (const std::size_t every : densities) {
      multiply(factors<Left>(m * k, every), factors<Right>(k * n, every), m, k, n);
    }
  }
  hash.print(name);
}

// The routines after BLAS and LAPACK: sizes around their blocks, every option, numbers alone and with others among
// them.

using pattern16 = unsigned short;
using patternArray = std::vector<pattern16>;

inline patternArray patternsOf(std::size_t count, std::size_t every) {
  patternArray array(count);
  const auto halves = factors<half_t>(count, every);
  for (std::size_t i = 0; i < count; ++i) array[i] = halves[i].bits;
  return array;
}

inline constexpr pattern16 scalesOfRoutines[] = {0x3C00, 0xBC00, 0x4100, 0x7E00, 0x0000};

inline void sweep(std::string_view name, half_ptr::hgemm_entry<pattern16>* entry) {
  resultHash hash;
  for (char transa : {'N', 'T'}) {
    for (const auto [m, k, n] : {sizesOfProduct{1, 1, 1}, {7, 5, 9}, {70, 9, 40}, {20, 3, 300}, {4, 3, 0}}) {
      for (const std::size_t every : densities) {
        for (const pattern16 alpha : scalesOfRoutines) {
          for (const pattern16 beta : scalesOfRoutines) {
            patternArray a = patternsOf((m + 1) * k, every), b = patternsOf(k * n, every), c = patternsOf(m * n, every);
            called(entry, &transa, &transa, m, n, k, alpha, a.data(), m + 1, b.data(), k, beta, c.data(), m);
            hash.add(c.data(), c.size());
          }
        }
      }
    }
  }
  hash.print(name);
}

inline void sweep(std::string_view name, half_ptr::hscal_entry<pattern16>* entry) {
  resultHash hash;
  for (const pattern16 alpha : scalesOfRoutines) {
    for (const unsigned long stride : {1, 3}) {
      patternArray x = patternsOf(4096, 1);
      called(entry, x.size() / stride, alpha, x.data(), stride);
      hash.add(x.data(), x.size());
    }
  }
  hash.print(name);
}

inline void sweep(std::string_view name, half_ptr::ihamax_entry<pattern16>* entry) {
  resultHash hash;
  for (const std::size_t every : densities) {
    patternArray x = patternsOf(3000, every);
    for (unsigned long from = 0; from < 1000; from += 13) {
      for (const unsigned long stride : {1, 2}) hash.add(called(entry, 2000 / stride, x.data() + from, stride));
    }
  }
  hash.print(name);
}

inline void sweep(std::string_view name, half_ptr::hlaswp_entry<pattern16>* entry) {
  resultHash hash;
  for (const int stride : {1, -1, 2}) {
    patternArray a = patternsOf(40 * 70, 1);
    std::vector<unsigned long> ipiv(80);
    for (std::size_t i = 0; i < ipiv.size(); ++i) ipiv[i] = i * 29 % 40 + 1;
    called(entry, 70, a.data(), 40, 3, 37, ipiv.data(), stride);
    hash.add(a.data(), a.size());
  }
  hash.print(name);
}

inline void sweep(std::string_view name, half_ptr::htrsm_entry<pattern16>* entry) {
  resultHash hash;
  for (unsigned branch = 0; branch < 16; ++branch) {
    char side = branch & 1 ? 'L' : 'R', uplo = branch & 2 ? 'U' : 'L', transa = branch & 4 ? 'N' : 'T';
    char diag = branch & 8 ? 'N' : 'U';
    for (const auto& [m, n] : {std::pair{5ul, 7ul}, {20ul, 40ul}}) {
      for (const std::size_t every : densities) {
        for (const pattern16 alpha : scalesOfRoutines) {
          patternArray a = patternsOf(41 * 41, every), b = patternsOf(m * n, every);
          called(entry, &side, &uplo, &transa, &diag, m, n, alpha, a.data(), 41, b.data(), m);
          hash.add(b.data(), b.size());
        }
      }
    }
  }
  hash.print(name);
}

inline void sweep(std::string_view name, half_ptr::hgetrf_entry<pattern16>* entry) {
  resultHash hash;
  for (const auto& [m, n] : {std::pair{1ul, 1ul}, {9ul, 1ul}, {7ul, 7ul}, {30ul, 20ul}, {20ul, 30ul}, {130ul, 129ul}}) {
    for (const std::size_t every : densities) {
      patternArray a = patternsOf(m * n, every);
      std::vector<unsigned long> ipiv(std::min(m, n));
      int info = 0;
      const auto factorise = [&, m = m, n = n] { entry(m, n, a.data(), m, ipiv.data(), info); };
      called(factorise);
      hash.add(a.data(), a.size());
      hash.add(ipiv.data(), ipiv.size());
      hash.add(info);
    }
  }
  hash.print(name);
}

}  // namespace zthalf::golden
