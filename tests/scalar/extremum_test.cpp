// The rules of min and max on single elements, against their steps written out, and by name.
#include "scalar/extremum.h"

#include <gtest/gtest.h>

#include <array>
#include <limits>
#include <vector>

#include "scalar/functors/extremum_functors.h"
#include "tests/support/drawn_values.h"
#include "tests/support/expect_bits.h"
#include "tests/support/extremum_steps.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;
using namespace zthalf::testing::steps;
using namespace half::scalar::emulated;

// visit(form, functor, condition) for the four of them.
template <class Visit>
void onEachForm(Visit visit) {
  visit(extremumForm::min, minFtor{}, minCondition{});
  visit(extremumForm::max, maxFtor{}, maxCondition{});
  visit(extremumForm::minOmitNaN, minOmitNaNFtor{}, minOmitNaNCondition{});
  visit(extremumForm::maxOmitNaN, maxOmitNaNFtor{}, maxOmitNaNCondition{});
}

const std::uint16_t specialPatterns[] = {0x0000, 0x8000, 0x0001, 0x8001, 0x0002, 0x03FF, 0x0400, 0x8400,
                                         0x3BFF, 0x3C00, 0xBC00, 0x3C01, 0x7BFF, 0xFBFF, 0x7C00, 0xFC00,
                                         0x7C01, 0xFC01, 0x7E00, 0xFE00, 0x7FFF, 0xFFFF};

TEST(RealExtremum, OfEveryPatternBesideSpecialOnesIsByTheSteps) {
  onEachForm([](extremumForm form, auto ftor, auto condition) {
    bitComparison values(nameOf(form)), answers(std::string(nameOf(form)) + " condition");
    for (std::uint32_t p = 0; p <= 0xFFFF; ++p) {
      const half_t x{static_cast<std::uint16_t>(p)};
      for (const std::uint16_t q : specialPatterns) {
        for (const auto [a, b] : {std::array{x, half_t{q}}, std::array{half_t{q}, x}}) {
          values.check(ftor(fp16binary_t{a.bits}, fp16binary_t{b.bits}), extremumOfPair(form, a, b), a, b);
          answers.check(condition(wide<float>(a), wide<float>(b)), takesPlace(form, wide<float>(a), wide<float>(b)), a,
                        b);
        }
      }
    }
  });
}

template <class Other>
void expectSteps() {
  onEachForm([](extremumForm form, auto ftor, auto) {
    bitComparison compare(nameOf(form));
    bitSource bits(201);
    for (int i = 0; i < 400'000; ++i) {
      const half_t x = drawer<half_t>::draw(bits);
      Other y = drawer<Other>::draw(bits);
      if (bits() % 4 == 0) y = wide<Other>(half_t{static_cast<std::uint16_t>(x.bits ^ (bits() % 2 << 15))});
      compare.check(ftor(fp16binary_t{x.bits}, y), extremumOfPair(form, x, y), x, y);
      compare.check(ftor(y, fp16binary_t{x.bits}), extremumOfPair(form, y, x), y, x);
    }
  });
}

TEST(RealExtremum, BesideAFloatIsByTheSteps) { expectSteps<float>(); }
TEST(RealExtremum, BesideADoubleIsByTheSteps) { expectSteps<double>(); }

TEST(RealExtremum, ComparesInTheWiderTypeAndRoundsOnlyWhatItKeeps) {
  const fp16binary_t one{0x3C00}, nan{0x7C01};
  EXPECT_EQ(minFtor{}(one, 0.999999).bits, 0x3C00);  // chosen, and rounded up to 1
  EXPECT_EQ(maxFtor{}(one, 0.999999).bits, 0x3C00);
  EXPECT_EQ(maxFtor{}(fp16binary_t{0x7BFF}, 65520.0).bits, 0x7C00);
  EXPECT_EQ(minFtor{}(fp16binary_t{0x7BFF}, 65520.0f).bits, 0x7BFF);
  EXPECT_EQ(minFtor{}(nan, 1.0).bits, 0x7E00);
  EXPECT_EQ(minOmitNaNFtor{}(nan, 1.0).bits, 0x3C00);
  EXPECT_EQ(minOmitNaNFtor{}(nan, fp16binary_t{0xFC01}).bits, 0xFE00);  // of two NaNs the right one
  EXPECT_EQ(minFtor{}(nan, fp16binary_t{0xFC01}).bits, 0x7E00);         // the left one
  EXPECT_EQ(minFtor{}(fp16binary_t{0x0000}, fp16binary_t{0x8000}).bits, 0x0000);
  EXPECT_EQ(minFtor{}(fp16binary_t{0x8000}, fp16binary_t{0x0000}).bits, 0x8000);
}

template <class T>
std::vector<T> specialParts() {
  using limits = std::numeric_limits<T>;
  std::vector<T> parts;
  for (const T x : {T(0), limits::denorm_min(), limits::min(), T(0x1p-24), T(1), T(1) + limits::epsilon(), T(3), T(4),
                    T(5), T(65504), limits::max() / 2, limits::max(), limits::infinity(), limits::quiet_NaN()}) {
    parts.push_back(x);
    parts.push_back(-x);
  }
  return parts;
}

template <class T>
void expectComplexSteps() {
  const auto parts = specialParts<T>();
  onEachForm([&](extremumForm form, auto, auto condition) {
    bitComparison compare(nameOf(form));
    for (const T ar : parts) {
      for (const T ai : parts) {
        for (const T br : parts) {
          for (const T bi : parts) {
            const std::complex<T> a(ar, ai), b(br, bi);
            compare.check(condition(a, b), takesPlace(form, a, b), ar, ai, br, bi);
          }
        }
      }
    }
  });
}

TEST(ComplexExtremum, InFloatIsByTheStepsOverAGridOfSpecialParts) { expectComplexSteps<float>(); }
TEST(ComplexExtremum, InDoubleIsByTheStepsOverAGridOfSpecialParts) { expectComplexSteps<double>(); }

// Neighbours of one number: lengths and angles that rounding makes equal or not.
TEST(ComplexExtremum, OfNeighboursIsByTheSteps) {
  onEachForm([](extremumForm form, auto, auto condition) {
    bitComparison compare(nameOf(form));
    bitSource bits(202);
    unsigned long onOneRay = 0;
    for (int i = 0; i < 300'000; ++i) {
      const auto part = [&] { return (bits() % 2 ? 1 : -1) * std::ldexp(1 + float(bits() % 4096) / 4096, bits() % 3); };
      const std::complex<float> a(part(), part());
      const auto moved = [&](float x) {
        return std::bit_cast<float>(std::bit_cast<std::uint32_t>(x) + (int(bits() % 3) - 1));
      };
      const std::complex<float> b(moved(a.real()), moved(a.imag()));
      onOneRay += a != b && magnitude(a) == magnitude(b) && angle(a) == angle(b);
      compare.check(condition(a, b), takesPlace(form, a, b), a.real(), a.imag(), b.real(), b.imag());
    }
    EXPECT_GT(onOneRay, 1000u);
  });
}

using cplx = std::complex<fp16binary_t>;
cplx of(std::uint16_t re, std::uint16_t im) { return {fp16binary_t{re}, fp16binary_t{im}}; }

TEST(ComplexExtremum, IsByLengthThenAngle) {
  const cplx threeFour = of(0x4200, 0x4400), fiveNought = of(0x4500, 0x0000);
  EXPECT_EQ(bitsIn(minFtor{}(threeFour, fiveNought)), bitsIn(fiveNought));
  EXPECT_EQ(bitsIn(maxFtor{}(threeFour, fiveNought)), bitsIn(threeFour));
  EXPECT_EQ(bitsIn(minFtor{}(of(0xBC00, 0), of(0x3C00, 0))), bitsIn(of(0x3C00, 0)));
  EXPECT_EQ(bitsIn(minFtor{}(of(0x4200, 0), of(0xC000, 0))), bitsIn(of(0xC000, 0)));  // the shorter one, below zero
  EXPECT_EQ(bitsIn(minFtor{}(of(0x0000, 0x8000), of(0x8000, 0x0000))), bitsIn(of(0x0000, 0x8000)));
}

TEST(ComplexExtremum, KeepsHalfPartsBitForBit) {
  const cplx nan = of(0x7C01, 0x3C00), one = of(0x3C00, 0x8000);
  EXPECT_EQ(bitsIn(minFtor{}(nan, one)), bitsIn(nan));
  EXPECT_EQ(bitsIn(minFtor{}(one, nan)), bitsIn(nan));
  EXPECT_EQ(bitsIn(minOmitNaNFtor{}(nan, one)), bitsIn(one));
  EXPECT_EQ(bitsIn(minOmitNaNFtor{}(nan, of(0xFE01, 0))), bitsIn(nan));  // of two NaNs the left one
  EXPECT_EQ(bitsIn(minFtor{}(one, fp16binary_t{0xFC01})), bitsIn(of(0xFC01, 0x0000)));
  EXPECT_EQ(bitsIn(maxFtor{}(one, std::complex<float>(1.5f, std::numeric_limits<float>::quiet_NaN()))),
            bitsIn(of(0x3E00, 0x7E00)));
  EXPECT_EQ(bitsIn(minFtor{}(of(0x7C00, 0x7E00), one)), bitsIn(of(0x7C00, 0x7E00)));  // infinite and NaN is a NaN
}

}  // namespace
}  // namespace zthalf
