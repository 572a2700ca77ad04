// Operations of two and three halves where subnormal floats are flushed: over every half beside those around underflow
// they give what they give otherwise, and they meet no subnormal float at all.
#include <gtest/gtest.h>

#include <atomic>
#include <cstring>
#include <vector>

#include "tests/golden/underflow_inputs.h"
#include "tests/support/expect_bits.h"
#include "tests/support/flushed.h"
#include "tests/support/patterns.h"
#include "tests/support/sweep.h"
#include "zthalf/half_scalar.h"
#include "zthalf/half_vector.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;

constexpr unsigned long everyHalf = 0x10000;
using sizes = unsigned long const*;
template <class T, class Out>
using arrayOperation = void (*)(T*, T*, Out*, unsigned long, unsigned long, sizes, unsigned long, unsigned long, sizes,
                                unsigned long, unsigned long, sizes);

// call() twice, flushed and not; whether it met subnormal floats when it was not.
template <class Call>
bool meetsSubnormals(Call call) {
  bool met = false;
  {
    const flushedScope flushed;
    call(true);
  }
  const subnormalWatch watch(&met);
  call(false);
  return met;
}

// x, on the right, with every half.
struct operation {
  char const* name;
  void (*withEvery)(std::vector<half_t>& all, half_t x, std::vector<half_t>& results);
};

void PrintTo(operation const& o, std::ostream* out) { *out << o.name; }

template <arrayOperation<half_t, half_t> Op>
void ofArrays(std::vector<half_t>& all, half_t x, std::vector<half_t>& results) {
  const unsigned long one = 1, count = all.size();
  Op(all.data(), &x, results.data(), count, 1, &count, 1, 1, &one, count, 1, &count);
}

template <half_t (*Op)(half_t, half_t)>
void ofValues(std::vector<half_t>& all, half_t x, std::vector<half_t>& results) {
  for (std::size_t i = 0; i < all.size(); ++i) results[i] = Op(all[i], x);
}

class pairsWithEvery {
 public:
  explicit pairsWithEvery(operation o) : operation_(o), all_(everyHalf), flushed_(everyHalf), ordinary_(everyHalf) {
    forEveryPattern([&](std::uint16_t p) { all_[p].bits = p; });
  }

  void expectSame(std::uint16_t x) {
    half_t value;
    value.bits = x;
    const bool met =
        meetsSubnormals([&](bool isFlushed) { operation_.withEvery(all_, value, isFlushed ? flushed_ : ordinary_); });
    if (met) ADD_FAILURE() << operation_.name << " with " << hex(x) << " meets subnormal floats";
    if (std::memcmp(flushed_.data(), ordinary_.data(), everyHalf * sizeof(half_t)) == 0) return;
    bitComparison compare(operation_.name);
    for (unsigned long p = 0; p < everyHalf; ++p) compare.check(flushed_[p], ordinary_[p], all_[p], value);
  }

 private:
  operation operation_;
  std::vector<half_t> all_, flushed_, ordinary_;
};

class FlushedHalves : public ::testing::TestWithParam<operation> {};
class LongFlushedHalves : public ::testing::TestWithParam<operation> {};

TEST_P(FlushedHalves, KeepTheirBitsBesideNotableOnes) {
  if (!canFlush) GTEST_SKIP();
  pairsWithEvery pairs(GetParam());
  for (const std::uint16_t x : golden::underflowPatterns()) pairs.expectSame(x);
}

TEST_P(LongFlushedHalves, KeepTheirBitsBesideAllAroundUnderflow) {
  if (!canFlush) GTEST_SKIP();
  const auto patterns = golden::underflowPatternSweep();
  std::atomic<std::size_t> next{0};
  inBlocks(std::uint64_t{64} << 16, [&](std::uint64_t, std::uint64_t) {  // a block for each thread
    pairsWithEvery pairs(GetParam());
    for (std::size_t i = next++; i < patterns.size(); i = next++) pairs.expectSame(patterns[i]);
  });
}

half_t modOf(half_t x, half_t y) { return half_scalar::mod(x, y); }
half_t remOf(half_t x, half_t y) { return half_scalar::rem(x, y); }
half_t powerOf(half_t x, half_t y) { return half_scalar::power(x, y); }
half_t pow2Of(half_t x, half_t y) { return half_scalar::pow2(x, y); }
half_t productAndSum(half_t x, half_t y) { return half_scalar::fma(x, y, y); }
half_t sumOfProduct(half_t x, half_t y) { return half_scalar::fma(y, y, x); }

const auto operations = ::testing::Values(
    operation{"plus", ofArrays<half_vector::plus>}, operation{"minus", ofArrays<half_vector::minus>},
    operation{"times", ofArrays<half_vector::times>}, operation{"rdivide", ofArrays<half_vector::rdivide>},
    operation{"ldivide", ofArrays<half_vector::ldivide>}, operation{"hypot", ofArrays<half_vector::hypot>},
    operation{"atan2", ofArrays<half_vector::atan2>}, operation{"mod", ofArrays<half_vector::mod>},
    operation{"rem", ofArrays<half_vector::rem>}, operation{"scalar_mod", ofValues<modOf>},
    operation{"scalar_rem", ofValues<remOf>}, operation{"power", ofValues<powerOf>},
    operation{"pow2", ofValues<pow2Of>}, operation{"fma_x_y_y", ofValues<productAndSum>},
    operation{"fma_y_y_x", ofValues<sumOfProduct>});
constexpr auto nameOf = [](auto const& info) { return std::string(info.param.name); };

INSTANTIATE_TEST_SUITE_P(Each, FlushedHalves, operations, nameOf);
INSTANTIATE_TEST_SUITE_P(Each, LongFlushedHalves, operations, nameOf);

// Complex halves, each of whose parts is small, large or special.
using complexHalfArray = std::vector<std::complex<half_t>>;

complexHalfArray drawnComplex(std::size_t count, std::uint64_t seed) {
  const auto patterns = golden::underflowPatternSweep();
  randomBits draws(seed);
  const auto part = [&] {
    half_t x;
    x.bits = patterns[draws.below(patterns.size())];
    return x;
  };
  complexHalfArray all(count);
  for (auto& z : all) {
    const half_t re = part();
    z = {re, part()};
  }
  return all;
}

struct complexOperation {
  char const* name;
  arrayOperation<std::complex<half_t>, std::complex<half_t>> op;
};

TEST(FlushedComplexHalves, KeepTheirBits) {
  if (!canFlush) GTEST_SKIP();
  constexpr unsigned long count = 1 << 19;
  auto a = drawnComplex(count, 1), b = drawnComplex(count, 2);
  complexHalfArray flushed(count), ordinary(count);
  for (const complexOperation o : {complexOperation{"plus", half_vector::plus},
                                   {"minus", half_vector::minus},
                                   {"times", half_vector::times},
                                   {"rdivide", half_vector::rdivide},
                                   {"ldivide", half_vector::ldivide},
                                   {"hypot", half_vector::hypot}}) {
    const bool met = meetsSubnormals([&](bool isFlushed) {
      o.op(a.data(), b.data(), (isFlushed ? flushed : ordinary).data(), count, 1, &count, count, 1, &count, count, 1,
           &count);
    });
    EXPECT_FALSE(met) << o.name << " meets subnormal floats";
    bitComparison compare(o.name);
    for (unsigned long i = 0; i < count; ++i) compare.check(flushed[i], ordinary[i], a[i], b[i]);
  }
}

// The witness itself: it sees a subnormal operand where the processor tells of one, and a rounded subnormal result.
TEST(SubnormalWatch, SeesSubnormals) {
  if (!canFlush) GTEST_SKIP();
  const volatile float small = 0x1.8p-126f, third = 1 / 3.0f;
  bool met = false;
  {
    const subnormalWatch watch(&met);
    const volatile float ordinary = small * 3;
    (void)ordinary;
  }
  EXPECT_FALSE(met);
  {
    const subnormalWatch watch(&met);
    const volatile float subnormal = small * third;
    (void)subnormal;
  }
  EXPECT_TRUE(met);
}

}  // namespace
}  // namespace zthalf
