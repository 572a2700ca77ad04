// The functors in the loop that runs them, at every instruction level, against the scalar functions.
#include <gtest/gtest.h>

#include <vector>

#include "elementwise/binary_op.h"
#include "scalar/functors/hypot_functors.h"
#include "scalar/functors/multiply_add_functor.h"
#include "scalar/functors/power_functors.h"
#include "scalar/functors/remainder_functors.h"
#include "tests/scalar/mixed_operands_at.h"
#include "tests/support/patterns.h"
#include "zthalf/half_scalar.h"
#include "zthalf/mod_rem.h"

namespace zthalf::testing {
namespace {

using half::impl::emulated::modFtor;
using half::impl::emulated::modInLoopFtor;
using half::impl::emulated::remFtor;
using half::impl::emulated::remInLoopFtor;
using half::scalar::emulated::atan2Ftor;
using half::scalar::emulated::fmaFtor;
using half::scalar::emulated::hypotFtor;
using half::scalar::emulated::pow2Ftor;
using half::scalar::emulated::powerFtor;

// About 250,000 pairs of halves: every 13th curated pattern with every other, and random ones.
struct halfPairs {
  std::vector<fp16binary_t> first;
  std::vector<fp16binary_t> second;
};

halfPairs const& pairsOfHalves() {
  static const halfPairs pairs = [] {
    halfPairs list;
    const auto add = [&](std::uint16_t x, std::uint16_t y) {
      list.first.push_back({x});
      list.second.push_back({y});
    };
    std::vector<std::uint16_t> const& patterns = curatedPatterns();
    for (std::size_t i = 0; i < patterns.size(); i += 13) {
      for (std::size_t j = i % 7; j < patterns.size(); j += 7) add(patterns[i], patterns[j]);
    }
    for (const std::uint16_t x : randomPatterns(100000, 5)) add(x, static_cast<std::uint16_t>(scrambled(x) >> 48));
    return list;
  }();
  return pairs;
}

template <class Wide>
struct mixedPairs {
  std::vector<fp16binary_t> halves;
  std::vector<Wide> wide;
};

template <class Wide>
mixedPairs<Wide> const& pairsWith() {
  static const mixedPairs<Wide> pairs = [] {
    mixedPairs<Wide> list;
    for (std::uint64_t i = 0; i < 50000; ++i) {
      const mixedPair<Wide> p = mixedPairAt<Wide>(i);
      list.halves.push_back({p.half});
      list.wide.push_back(p.wide);
    }
    return list;
  }();
  return pairs;
}

template <class Ftor, class A, class B, class Expected>
void expectLoop(std::vector<A> x, std::vector<B> y, Expected expected) {
  std::vector<fp16binary_t> results(x.size());
  half_utils::halfBinaryOpParallelLoop(x.data(), y.data(), results.data(), x.size(), Ftor{});
  bitComparison compare("loop");
  for (std::size_t i = 0; i < x.size(); ++i) compare.check(results[i], expected(x[i], y[i]), x[i], y[i]);
}

half_t scalar(fp16binary_t x) { return {x.bits}; }
float scalar(float x) { return x; }
double scalar(double x) { return x; }

template <class Ftor, class Function>
void expectFivePairsOfTypes(Function function) {
  const auto expected = [=](auto x, auto y) { return function(scalar(x), scalar(y)); };
  expectLoop<Ftor>(pairsOfHalves().first, pairsOfHalves().second, expected);
  expectLoop<Ftor>(pairsWith<float>().halves, pairsWith<float>().wide, expected);
  expectLoop<Ftor>(pairsWith<float>().wide, pairsWith<float>().halves, expected);
  expectLoop<Ftor>(pairsWith<double>().halves, pairsWith<double>().wide, expected);
  expectLoop<Ftor>(pairsWith<double>().wide, pairsWith<double>().halves, expected);
}

TEST(Functors, HypotInALoop) {
  expectFivePairsOfTypes<hypotFtor>([](auto x, auto y) { return half_scalar::hypot(x, y); });
}
TEST(Functors, Atan2InALoop) {
  expectFivePairsOfTypes<atan2Ftor>([](auto y, auto x) { return half_scalar::atan2(y, x); });
}
TEST(Functors, PowerInALoop) {
  expectFivePairsOfTypes<powerFtor>([](auto x, auto y) { return half_scalar::power(x, y); });
}
TEST(Functors, Pow2InALoop) {
  expectFivePairsOfTypes<pow2Ftor>([](auto x, auto y) { return half_scalar::pow2(x, y); });
}

// mod and rem run on bare patterns.

std::vector<unsigned short> patternsOf(std::vector<fp16binary_t> const& elements) {
  std::vector<unsigned short> patterns;
  for (const fp16binary_t e : elements) patterns.push_back(e.bits);
  return patterns;
}

template <class Ftor, class A, class B, class Expected>
void expectPatternLoop(std::vector<A> x, std::vector<B> y, Expected expected) {
  std::vector<unsigned short> results(x.size());
  half_utils::halfBinaryOpParallelLoop(x.data(), y.data(), results.data(), x.size(), Ftor{});
  bitComparison compare("loop");
  for (std::size_t i = 0; i < x.size(); ++i) compare.check(results[i], expected(x[i], y[i]), x[i], y[i]);
}

template <class Ftor, class Exported>
void expectFivePairsOfPatterns() {
  const auto expected = [](auto x, auto y) { return Exported{}(x, y); };
  expectPatternLoop<Ftor>(patternsOf(pairsOfHalves().first), patternsOf(pairsOfHalves().second), expected);
  expectPatternLoop<Ftor>(patternsOf(pairsWith<float>().halves), pairsWith<float>().wide, expected);
  expectPatternLoop<Ftor>(pairsWith<float>().wide, patternsOf(pairsWith<float>().halves), expected);
  expectPatternLoop<Ftor>(patternsOf(pairsWith<double>().halves), pairsWith<double>().wide, expected);
  expectPatternLoop<Ftor>(pairsWith<double>().wide, patternsOf(pairsWith<double>().halves), expected);
}

TEST(Functors, ModInALoop) { expectFivePairsOfPatterns<modInLoopFtor, modFtor>(); }
TEST(Functors, RemInALoop) { expectFivePairsOfPatterns<remInLoopFtor, remFtor>(); }

struct fmaPass {
  static constexpr bool isWide = true;
  ZTHALF_INLINE static void run(fp16binary_t const* x, fp16binary_t const* y, fp16binary_t* result, unsigned long n) {
    for (unsigned long i = 0; i < n; ++i) result[i] = fmaFtor{}(x[i], y[i], x[n - 1 - i]);
  }
};

TEST(Functors, FmaInALoop) {
  std::vector<fp16binary_t> const& x = pairsOfHalves().first;
  std::vector<fp16binary_t> const& y = pairsOfHalves().second;
  const unsigned long n = x.size();
  std::vector<fp16binary_t> results(n);
  leveled<fmaPass, fp16binary_t const*, fp16binary_t const*, fp16binary_t*, unsigned long>::chosen()(x.data(), y.data(),
                                                                                                     results.data(), n);
  bitComparison compare("fma in a loop");
  for (unsigned long i = 0; i < n; ++i) {
    const fp16binary_t z = x[n - 1 - i];
    compare.check(results[i], half_scalar::fma(scalar(x[i]), scalar(y[i]), scalar(z)), x[i], y[i], z);
  }
}

}  // namespace
}  // namespace zthalf::testing
