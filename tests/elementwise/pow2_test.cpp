// x 2^y of two arrays: every pair of element types against the scalar function of the real parts, and the warnings that
// the host gets.
#include <gtest/gtest.h>

#include <complex>
#include <cstring>
#include <stdexcept>
#include <vector>

#include "tests/support/complex_operands.h"
#include "tests/support/expect_bits.h"
#include "zthalf/detail/entries.h"
#include "zthalf/half_scalar.h"
#include "zthalf/half_vector.h"
#include "zthalf/host/embedded.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;
using complexHalf = std::complex<half_t>;

unsigned long warnings = 0;
unsigned long lastWarning = 0;  // throws at this one; 0 for never
void countWarning(resource_core::BaseMsgID const& id, char const*) {
  EXPECT_EQ(id.catalogue(), u"half:error");
  EXPECT_EQ(id.key(), u"ignoredImagPart");
  if (++warnings == lastWarning) throw std::runtime_error("enough");
}

class Pow2 : public ::testing::Test {
 protected:
  Pow2() : before_(host::setWarningSink(&countWarning)) { warnings = lastWarning = 0; }
  ~Pow2() override { host::setWarningSink(before_); }

 private:
  host::warningSink before_;
};

template <class T>
constexpr bool isComplex = false;
template <class T>
constexpr bool isComplex<std::complex<T>> = true;

template <class T>
T realPart(T x) {
  return x;
}
template <class T>
T realPart(std::complex<T> z) {
  return z.real();
}

template <class Out, class Left, class Right>
Out expected(Left x, Right y) {
  const half_t scaled = half_scalar::pow2(realPart(x), realPart(y));
  if constexpr (isComplex<Out>) {
    return {scaled, half_t{0}};
  } else {
    return scaled;
  }
}

template <class Left, class Right, class Out>
void checkPair(char const* name, void (*pow2)(Left*, Right*, Out*, unsigned long)) {
  constexpr bool warns = isComplex<Left> || isComplex<Right>;
  std::vector<Left> x;
  std::vector<Right> y;
  forPairsOf<Left, Right>(3'000, [&](Left a, Right b) {
    x.push_back(a);
    y.push_back(b);
  });
  bitComparison compare(name);
  for (const unsigned long n : {0ul, 1ul, 2ul, 15ul, 16ul, 17ul, 31ul, 33ul, 64ul, 67ul, x.size()}) {
    std::vector<unsigned char> out((n + 2) * sizeof(Out), 0xA5);
    warnings = 0;
    pow2(x.data(), y.data(), reinterpret_cast<Out*>(out.data() + sizeof(Out)), n);
    EXPECT_EQ(warnings, warns ? n : 0) << name;
    for (unsigned long i = 0; i < n; ++i) {
      Out result;
      std::memcpy(static_cast<void*>(&result), out.data() + (i + 1) * sizeof(Out), sizeof(Out));
      compare.check(result, expected<Out>(x[i], y[i]), static_cast<std::uint32_t>(i));
    }
    for (unsigned long i = 0; i < sizeof(Out); ++i) {
      ASSERT_EQ(out[i], 0xA5) << name;
      ASSERT_EQ(out[out.size() - 1 - i], 0xA5) << name;
    }
  }
}

TEST_F(Pow2, ScalesOnEveryPairAndWarnsForEachElementBesideAComplexOperand) {
  namespace element = half_vector::element;
  unsigned pairs = 0;
#define ZTHALF_CHECK_PAIR(op, Left, Right, Out) \
  ++pairs, checkPair<element::Left, element::Right, element::Out>(#op #Left #Right, &half_vector::op);
  ZTHALF_SCALING_ENTRIES(ZTHALF_CHECK_PAIR)
#undef ZTHALF_CHECK_PAIR
  EXPECT_EQ(pairs, 20u);
}

TEST_F(Pow2, TakesTheExponentsIntegerPart) {
  half_t x[] = {{0x3C00}, {0x0000}, {0x3C00}, {0x4200}, {0x4000}};
  float y[] = {100000.0f, 100000.0f, std::nanf(""), 2.5f, 0.9f};
  half_t out[5];
  half_vector::pow2(x, y, out, 5);
  EXPECT_EQ(out[0].bits, 0x7C00);
  EXPECT_EQ(out[1].bits, 0x0000);
  EXPECT_EQ(out[2].bits, 0x7E00);
  EXPECT_EQ(out[3].bits, 0x4A00);  // 3 * 2^2
  EXPECT_EQ(out[4].bits, 0x4000);
}

TEST_F(Pow2, WorksInPlace) {
  std::vector<complexHalf> z(100, complexHalf{half_t{0x3C00}, half_t{0x4000}}), w(100, {half_t{0x4000}, half_t{0}});
  half_vector::pow2(z.data(), w.data(), z.data(), 100);
  for (complexHalf const& each : z) {
    EXPECT_EQ(each.real().bits, 0x4400);
    EXPECT_EQ(each.imag().bits, 0x0000);
  }
}

// What the warning throws passes out of the loop; the elements before are finished, the others as they were.
TEST_F(Pow2, LetsAnExceptionOfTheWarningPass) {
  constexpr unsigned long n = 20, last = 8;
  std::vector<half_t> x(n, half_t{0x3C00});
  std::vector<complexHalf> y(n, complexHalf{half_t{0x3C00}, half_t{0}}), out(n, complexHalf{half_t{0x1234}, half_t{1}});
  lastWarning = last;
  EXPECT_THROW(half_vector::pow2(x.data(), y.data(), out.data(), n), std::runtime_error);
  EXPECT_EQ(warnings, last);
  for (unsigned long i = 0; i < n; ++i) EXPECT_EQ(out[i].real().bits, i < last - 1 ? 0x4000 : 0x1234) << i;
}

TEST_F(Pow2, OfTwoComplexValuesWarnsOnceACall) {
  const complexHalf z{half_t{0x4200}, half_t{0x7E00}}, w{half_t{0x4000}, half_t{0x3C00}};
  const complexHalf scaled = half_scalar::pow2(z, w);
  EXPECT_EQ(scaled.real().bits, 0x4A00);
  EXPECT_EQ(scaled.imag().bits, 0x0000);
  EXPECT_EQ(warnings, 1u);
}

}  // namespace
}  // namespace zthalf
