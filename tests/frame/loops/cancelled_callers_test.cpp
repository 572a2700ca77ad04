// Scans of whole arrays, and the parallel branches of elementwise loops, in task groups that are cancelled around them.
#include <gtest/gtest.h>

#include <numeric>
#include <vector>

#include "elementwise/binary_op.h"
#include "frame/loops/early_exit_loop.h"
#include "tests/support/caller_groups.h"
#include "tests/support/shapes.h"
#include "tests/support/unary_rows.h"
#include "zthalf/half_ops.h"
#include "zthalf/half_vector.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;

// Nothing to find, and something to find at the end: the answer must be that of the whole array.
TEST(CancelledCallers, GetTheAnswersOfWholeScans) {
  for (const unsigned long n : {2049UL, 20'000UL, 400'000UL}) {
    for (const bool isGood : {true, false}) {
      std::vector<std::complex<half_t>> z(n, {half_t{0x3C00}, half_t{0x8000}});
      std::vector<half_t> x(n, half_t{0x3C00});
      if (!isGood) z.back() = {half_t{0x7C00}, half_t{0x7C00}};
      if (!isGood) x.back() = {0xFC00};
      const auto ask = [&](char const* name, auto question) {
        expectUndisturbed(
            name, [&] { return question() == isGood; }, 200);
        EXPECT_EQ(question(), isGood) << name;
      };
      ask("isImagZero", [&] { return half_vector::isImagZero(z.data(), n); });
      ask("isWholeArrayFinite", [&] { return half::isWholeArrayFinite(stored(x.data()), n); });
      ask("isWholeArrayFinite of complex", [&] { return half::isWholeArrayFinite(stored(z.data()), n); });
    }
  }
}

struct incrementFtor {
  static constexpr unsigned long grain = 256;
  ZTHALF_INLINE unsigned int operator()(unsigned int x) const { return x + 1; }
  ZTHALF_INLINE void operator()(unsigned int x, unsigned int& first, unsigned int& second) const {
    first = x + 1;
    second = x + 2;
  }
};

struct isNever {
  ZTHALF_INLINE bool operator()(unsigned int) const { return false; }
  bool operator()(unsigned int, unsigned int) const { return false; }
};

struct pairFtor {
  static constexpr unsigned long grain = 64;
  ZTHALF_INLINE unsigned long long operator()(unsigned int a, unsigned int b) const {
    return static_cast<unsigned long long>(a) << 32 | b;
  }
};

constexpr unsigned long many = 100'000;

std::vector<unsigned int> numbered(unsigned long n) {
  std::vector<unsigned int> x(n);
  std::iota(x.begin(), x.end(), 1u);
  return x;
}

TEST(CancelledCallers, GetEveryElementOfUnaryLoops) {
  auto x = numbered(many);
  using results = std::vector<unsigned int>;
  expectUndisturbed("unary", [&] {
    results y(many);
    half_utils::unaryOpParallel(x.data(), y.data(), many, incrementFtor{});
    return y;
  });
  expectUndisturbed("two outputs", [&] {
    results y(2 * many);
    half_utils::twoOutParallel(x.data(), y.data(), y.data() + many, many, incrementFtor{});
    return y;
  });
  expectUndisturbed("stopping", [&] {
    results y(many);
    using half::templates::emulated::unaryWithEarlyExitParallel;
    EXPECT_TRUE(unaryWithEarlyExitParallel(x.data(), y.data(), many, incrementFtor{}, isNever{}));
    return y;
  });
}

TEST(CancelledCallers, GetEveryElementOfLoopsOverTwoOperands) {
  auto a = numbered(many), b = numbered(many);
  using results = std::vector<unsigned long long>;
  expectUndisturbed("flat", [&] {
    results c(many);
    half_utils::binaryOpParallel(a.data(), b.data(), c.data(), many, pairFtor{});
    return c;
  });
  expectUndisturbed("stopping pairs", [&] {
    results c(many);
    using half::templates::emulated::binaryWithEarlyExitParallel;
    EXPECT_TRUE(binaryWithEarlyExitParallel(a.data(), b.data(), c.data(), 100UL, many, pairFtor{}, isNever{}));
    return c;
  });
  // Long runs, and short ones that are gathered.
  for (auto const& [left, right, out] : {met({1000, 1}, {1000, 100}), met({3, 1}, {1, 30000})}) {
    const half_utils::shape shapes[] = {{countOf(left), left.size(), left.data()},
                                        {countOf(right), right.size(), right.data()},
                                        {countOf(out), out.size(), out.data()}};
    const half_utils::expansionPlan plan(shapes[0], shapes[1], shapes[2]);
    expectUndisturbed("expansion", [&, out = out] {
      results c(countOf(out));
      half_utils::expandOp<pairFtor>(a.data(), b.data(), c.data(), plan, true);
      return c;
    });
  }
}

}  // namespace
}  // namespace zthalf
