// Matrix products, solves and factorisations. A row is one size; its count is that of the multiplications with an
// addition, so that a nanosecond each is 2 GFLOP/s, of complex numbers 8.
#include <algorithm>
#include <memory>

#include "bench/peers/openblas.h"
#include "bench/peers/peers.h"
#include "bench/rows.h"
#include "zthalf/half_vector.h"

namespace bench {
namespace {

std::string sized(std::string const& name, unsigned long n) { return name + "-" + std::to_string(n); }

char plain[] = "N", transposed[] = "T", left[] = "L", right[] = "R", lower[] = "L", upper[] = "U";
constexpr half_t one{0x3C00}, zero{0x0000};

// NaNs and infinities at one place in a thousand.
template <class T>
void spoil(array<T>& x, unsigned long n) {
  auto* const patterns = reinterpret_cast<std::uint16_t*>(x.data());
  for (unsigned long i = 7; i < n * sizeof(T) / sizeof(half_t); i += 997) patterns[i] = i % 2 != 0 ? 0x7E00 : 0xFC00;
}

enum class special { none, rare, everywhere };

template <class Left, class Right, class Out>
auto multiplying(void (*call)(Left*, Right*, Out*, unsigned long, unsigned long, unsigned long), unsigned long m,
                 unsigned long k, unsigned long n, special kind = special::none) {
  return [=] {
    auto a = std::make_shared<array<Left>>(filled<Left>(m * k, content::plain));
    auto b = std::make_shared<array<Right>>(filled<Right>(k * n, content::plain));
    auto c = std::make_shared<array<Out>>(m * n);
    if (kind == special::rare) {
      spoil(*a, m * k);
      spoil(*b, k * n);
    } else if (kind == special::everywhere) {
      std::fill_n(reinterpret_cast<std::uint16_t*>(a->data()), m * k, 0x7E00);
    }
    return [=] { call(a->data(), b->data(), c->data(), m, k, n); };
  };
}

template <class T>
auto multiplyingByPeer(void (*call)(T*, T*, T*, unsigned long), unsigned long n, unsigned long columns) {
  return [=] {
    auto a = std::make_shared<array<T>>(filled<T>(n * n));
    auto b = std::make_shared<array<T>>(filled<T>(n * columns));
    auto c = std::make_shared<array<T>>(n * columns);
    return [=] { call(a->data(), b->data(), c->data(), n); };
  };
}

// The plain triple loop on floats, with the conversions around it.
void loops(half_t* a, half_t* b, half_t* c, unsigned long n) {
  float fa[256], fb[256], fc[256] = {};
  half_vector::convertFromHalf(a, fa, n * n);
  half_vector::convertFromHalf(b, fb, n * n);
  for (unsigned long j = 0; j < n; ++j)
    for (unsigned long l = 0; l < n; ++l)
      for (unsigned long i = 0; i < n; ++i) fc[i + j * n] += fa[i + l * n] * fb[l + j * n];
  half_vector::convertToHalf(fc, c, n * n);
}

void widening(half_t* a, half_t*, half_t*, unsigned long n) {
  static std::vector<float> wide;
  wide.resize(n * n);
  half_vector::convertFromHalf(a, wide.data(), n * n);
}

using halfProduct = void (*)(half_t*, half_t*, half_t*, unsigned long, unsigned long, unsigned long);
using complexHalf = std::complex<half_t>;
using complexProduct = void (*)(complexHalf*, complexHalf*, complexHalf*, unsigned long, unsigned long, unsigned long);
using doubleProduct = void (*)(double*, half_t*, half_t*, unsigned long, unsigned long, unsigned long);
constexpr halfProduct ofHalves = half_vector::mtimes;
constexpr complexProduct ofComplexHalves = half_vector::mtimes;
constexpr doubleProduct withDouble = half_vector::mtimes;

void products() {
  for (const unsigned long n : {2, 4, 8, 16, 64, 255, 256, 257, 513, 1024}) {
    const point p{sized("mtimes-half", n), "plain", n * n * n};
    measureOurs(p, multiplying(ofHalves, n, n, n));
    if (n <= 16) measure(p, "loops", multiplyingByPeer<half_t>(loops, n, n));
    if (n >= 16 && hasOpenBlas()) measure(p, "OpenBLAS", multiplyingByPeer<half_t>(openBlasProduct, n, n));
    for (auto const& peer : peers()) {
      if (peer.matrixTimes != nullptr && n <= 256) {
        measure(p, peer.name, multiplyingByPeer<half_t>(peer.matrixTimes, n, n));
      }
    }
  }
  for (const unsigned long n : {256, 1024}) {
    const unsigned long all = n * n * n;
    measureOurs({sized("mtimes-half", n), "rare-nans", all}, multiplying(ofHalves, n, n, n, special::rare));
    measureOurs({sized("mtimes-half", n), "all-nans", all}, multiplying(ofHalves, n, n, n, special::everywhere));
    const point p{sized("mtimes-complex", n), "plain", all};
    measureOurs(p, multiplying(ofComplexHalves, n, n, n));
    if (hasOpenBlas()) measure(p, "OpenBLAS", multiplyingByPeer<complexHalf>(openBlasProduct, n, n));
    measureOurs({sized("mtimes-double", n), "plain", all}, multiplying(withDouble, n, n, n));
  }
  for (const unsigned long n : {256, 1024, 4096}) {
    const point byVector{sized("mtimes-matrix-vector", n), "plain", n * n};
    measureOurs(byVector, multiplying(ofHalves, n, n, 1));
    measure(byVector, "widening", multiplyingByPeer<half_t>(widening, n, 1));
    if (hasOpenBlas()) measure(byVector, "OpenBLAS", multiplyingByPeer<half_t>(openBlasMatrixByVector, n, 1));
    measureOurs({sized("mtimes-vector-matrix", n), "plain", n * n}, multiplying(ofHalves, 1, n, n));
  }
}

void gemm(std::string const& name, char* transa, unsigned long n) {
  measureOurs({sized(name, n), "plain", n * n * n}, [=] {
    auto a = std::make_shared<array<half_t>>(filled<half_t>(n * n));
    auto b = std::make_shared<array<half_t>>(filled<half_t>(n * n));
    auto c = std::make_shared<array<half_t>>(filled<half_t>(n * n));
    return [=] { half_vector::hgemm(transa, plain, n, n, n, one, a->data(), n, b->data(), n, zero, c->data(), n); };
  });
}

// A diagonal of ones and small other elements, so that nothing overflows; solved again and again in place.
std::shared_ptr<array<half_t>> triangular(unsigned long n) {
  auto a = std::make_shared<array<half_t>>(n * n);
  for (unsigned long i = 0; i < n * n; ++i) {
    a->data()[i].bits = i % (n + 1) == 0 ? 0x3C00 : static_cast<std::uint16_t>(0x0C00 | (i * 40503 & 0x83FF));
  }
  return a;
}

void solves(unsigned long n) {
  for (char* const side : {left, right}) {
    for (char* const uplo : {upper, lower}) {
      for (char* const transa : {plain, transposed}) {
        const point p{sized(std::string("htrsm-") + side + uplo + transa, n), "plain", n * n * n / 2};
        measureOurs(p, [=] {
          auto a = triangular(n);
          auto b = std::make_shared<array<half_t>>(filled<half_t>(n * n));
          return [=] { half_vector::htrsm(side, uplo, transa, plain, n, n, one, a->data(), n, b->data(), n); };
        });
        if (side != left || uplo != lower || transa != plain || !hasOpenBlas()) continue;
        measure(p, "OpenBLAS", [=] {
          auto a = triangular(n);
          auto b = std::make_shared<array<half_t>>(filled<half_t>(n * n));
          return [=] { openBlasSolve(a->data(), b->data(), n); };
        });
      }
    }
  }
}

// The copy of the matrix belongs to the call.
template <class Factorise>
auto factorising(unsigned long n, Factorise factorise) {
  return [=] {
    auto a = std::make_shared<array<half_t>>(filled<half_t>(n * n));
    auto work = std::make_shared<array<half_t>>(n * n);
    auto ipiv = std::make_shared<std::vector<unsigned long>>(n);
    return [=] {
      std::copy_n(a->data(), n * n, work->data());
      factorise(work->data(), n, ipiv->data());
    };
  };
}

void factorisations(unsigned long n) {
  const point p{sized("hgetrf", n), "plain", n * n * n / 3};
  measureOurs(p, factorising(n, [](half_t* a, unsigned long order, unsigned long* ipiv) {
                int info;
                half_vector::hgetrf(order, order, a, order, ipiv, info);
              }));
  if (!hasOpenBlas()) return;
  measure(p, "OpenBLAS",
          factorising(n, [](half_t* a, unsigned long order, unsigned long*) { openBlasFactorisation(a, order); }));
}

const bool added = addRows([] {
  products();
  gemm("hgemm-N", plain, 256);
  gemm("hgemm-N", plain, 1024);
  gemm("hgemm-T", transposed, 256);
  solves(512);
  factorisations(64);
  factorisations(1024);
});

}  // namespace
}  // namespace bench
