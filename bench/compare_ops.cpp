// Comparisons of two arrays, of an array and one value, and expanded; and fma.
#include <complex>
#include <string>

#include "bench/peers/peers.h"
#include "bench/rows.h"
#include "zthalf/half_vector.h"

namespace bench {
namespace {

template <class Right>
using comparison = void (*)(half_t*, Right*, bool*, unsigned long, unsigned long, unsigned long const*, unsigned long,
                            unsigned long, unsigned long const*, unsigned long, unsigned long, unsigned long const*);

struct matrix {
  unsigned long rows, columns;
  unsigned long n() const { return rows * columns; }
};

template <class Right>
auto compared(comparison<Right> compare, matrix a, matrix b, matrix c, content kind = content::plain) {
  return [=] {
    auto left = filled<half_t>(a.n(), kind);
    auto right = filled<Right>(b.n());
    array<bool> out(c.n());
    return [=] {
      compare(left.data(), right.data(), out.data(), a.n(), 2, &a.rows, b.n(), 2, &b.rows, c.n(), 2, &c.rows);
    };
  };
}

template <class Right>
void flatRows(std::string const& row, comparison<Right> compare) {
  for (const unsigned long n : {fitsFirstLevel, leavesNearCaches}) {
    const matrix all{n, 1}, one{1, 1};
    measureOurs({row, "plain", n}, compared<Right>(compare, all, all, all));
    measureOurs({row + "-value", "plain", n}, compared<Right>(compare, all, one, all));
  }
}

auto peerCompared(void (*compare)(half_t*, half_t*, bool*, unsigned long), unsigned long n) {
  return [=] {
    auto left = filled<half_t>(n);
    auto right = filled<half_t>(n);
    array<bool> out(n);
    return [=] { compare(left.data(), right.data(), out.data(), n); };
  };
}

template <class A, class B, class C, class Out>
auto multipliedAndAdded(unsigned long n, unsigned long nb) {
  return [=] {
    auto a = filled<A>(n);
    auto b = filled<B>(n);
    auto c = filled<C>(n);
    array<Out> out(n);
    return
        [=] { half_vector::fma(a.data(), b.data(), c.data(), out.data(), n, 1, &n, nb, 1, &nb, n, 1, &n, n, 1, &n); };
  };
}

template <class A, class B, class C, class Out>
void fmaRows(std::string const& row) {
  for (const unsigned long n : {fitsFirstLevel, leavesNearCaches}) {
    measureOurs({row, "plain", n}, multipliedAndAdded<A, B, C, Out>(n, n));
    measureOurs({row + "-value", "plain", n}, multipliedAndAdded<A, B, C, Out>(n, 1));
  }
}

const bool added = addRows([] {
  flatRows<half_t>("eq", &half_vector::eq);
  flatRows<half_t>("lt", &half_vector::lt);
  for (const unsigned long n : {fitsFirstLevel, leavesNearCaches}) {
    for (peerPasses const& peer : peers()) {
      if (peer.equal != nullptr) measure({"eq", "plain", n}, peer.name, peerCompared(peer.equal, n));
      if (peer.less != nullptr) measure({"lt", "plain", n}, peer.name, peerCompared(peer.less, n));
    }
  }
  flatRows<float>("lt-single", &half_vector::lt);
  flatRows<double>("lt-double", &half_vector::lt);
  flatRows<int>("lt-int32", &half_vector::lt);
  flatRows<unsigned char>("lt-uint8", &half_vector::lt);
  flatRows<long long>("lt-int64", &half_vector::lt);
  flatRows<bool>("lt-logical", &half_vector::lt);
  flatRows<std::complex<half_t>>("eq-complex-half", &half_vector::eq);
  const matrix all{fitsFirstLevel, 1};
  measureOurs({"lt", "nans", all.n()}, compared<half_t>(&half_vector::lt, all, all, all, content::nans));

  constexpr matrix full{1000, 1000}, column{1000, 1}, row{1, 1000}, low{3, 100000};
  measureOurs({"lt-1000x1-with-1000x1000", "plain", full.n()}, compared<half_t>(&half_vector::lt, column, full, full));
  measureOurs({"lt-1x1000-with-1000x1000", "plain", full.n()}, compared<half_t>(&half_vector::lt, row, full, full));
  measureOurs({"lt-3x1-with-3x100000", "plain", low.n()}, compared<half_t>(&half_vector::lt, {3, 1}, low, low));
  measureOurs({"lt-3x1-with-1x100000", "plain", low.n()}, compared<half_t>(&half_vector::lt, {3, 1}, {1, 100000}, low));

  fmaRows<half_t, half_t, half_t, half_t>("fma");
  fmaRows<half_t, half_t, float, half_t>("fma-half-half-single");
  fmaRows<half_t, float, half_t, half_t>("fma-half-single-half");
  fmaRows<float, float, float, float>("fma-singles");
  fmaRows<half_t, double, half_t, half_t>("fma-half-double-half");
});

}  // namespace
}  // namespace bench
