// The functors of the comparisons, on pairs of single elements: against comparisons of exact numbers.
#include "scalar/functors/comparison_functors.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <type_traits>
#include <vector>

#include "scalar/functors/elementwise_functors.h"
#include "tests/support/comparison_rows.h"
#include "tests/support/expect_bits.h"
#include "tests/support/patterns.h"

namespace zthalf::testing {
namespace {

namespace ops = half::scalar::emulated::realOps;
using half::scalar::emulated::logicalElement;
using half::scalar::emulated::noImaginaryPart;

template <class Op, class Combiner>
using ftor = half::utils::ElementwiseBinaryOpFtor<Op, Combiner, 2048, 128>;
using eq = ftor<ops::eqFtor, half::utils::boolAndFtor>;
using ne = ftor<ops::neFtor, half::utils::boolOrFtor>;
using gt = ftor<ops::gtFtor, half::utils::getFirstArgFtor>;
using ge = ftor<ops::geFtor, half::utils::getFirstArgFtor>;
using lt = ftor<ops::ltFtor, half::utils::getFirstArgFtor>;
using le = ftor<ops::leFtor, half::utils::getFirstArgFtor>;

template <class T>
T asStored(T x) {
  return x;
}
logicalElement asStored(logicalByte x) { return {x.byte}; }
template <halfElement T>
fp16binary_t asStored(T x) {
  return {x.bits};
}
template <halfElement T>
std::complex<fp16binary_t> asStored(std::complex<T> z) {
  return {asStored(z.real()), asStored(z.imag())};
}

// The six answers as one word, in the order of the relations from bit 0 up.
template <class Left, class Right>
unsigned answersOf(Left x, Right y) {
  const auto a = asStored(x);
  const auto b = asStored(y);
  return static_cast<unsigned>(eq{}(a, b)) | static_cast<unsigned>(ne{}(a, b)) << 1 |
         static_cast<unsigned>(gt{}(a, b)) << 2 | static_cast<unsigned>(ge{}(a, b)) << 3 |
         static_cast<unsigned>(lt{}(a, b)) << 4 | static_cast<unsigned>(le{}(a, b)) << 5;
}

template <class Left, class Right>
unsigned expectedAnswers(Left x, Right y) {
  unsigned answers = 0;
  for (unsigned r = 0; r < 6; ++r) answers |= static_cast<unsigned>(holds(static_cast<relation>(r), x, y)) << r;
  return answers;
}

std::string shown(exactNumber x) { return std::to_string(x); }

// Counts the differences and shows the first ones.
class answerComparison {
 public:
  template <class Left, class Right>
  void check(Left x, Right y) {
    ++compared_;
    const unsigned found = answersOf(x, y), wanted = expectedAnswers(x, y);
    if (found == wanted || ++differences_ > 10) return;
    ADD_FAILURE() << shown(realNumber(x)) << " + " << shown(imaginaryNumber(x)) << "i with " << shown(realNumber(y))
                  << " + " << shown(imaginaryNumber(y)) << "i: " << hex(static_cast<std::uint16_t>(found))
                  << ", expected " << hex(static_cast<std::uint16_t>(wanted));
  }
  ~answerComparison() {
    EXPECT_GT(compared_, 0u);
    EXPECT_EQ(differences_, 0u);
  }

 private:
  unsigned long compared_ = 0, differences_ = 0;
};

TEST(ComparisonFunctors, OrderHalvesAsNumbersOnEveryCuratedPair) {
  std::vector<double> values;
  for (const std::uint16_t p : curatedPatterns()) values.push_back(reference::widenedToDouble(p));
  unsigned long differences = 0;
  for (std::size_t i = 0; i < values.size(); ++i) {
    for (std::size_t j = 0; j < values.size(); ++j) {
      const double a = values[i], b = values[j];
      const unsigned wanted = static_cast<unsigned>(a == b) | static_cast<unsigned>(a != b) << 1 |
                              static_cast<unsigned>(a > b) << 2 | static_cast<unsigned>(a >= b) << 3 |
                              static_cast<unsigned>(a < b) << 4 | static_cast<unsigned>(a <= b) << 5;
      const half_t x{curatedPatterns()[i]}, y{curatedPatterns()[j]};
      if (answersOf(x, y) == wanted) continue;
      if (++differences < 10) ADD_FAILURE() << hex(x) << " with " << hex(y) << ": " << answersOf(x, y);
    }
  }
  EXPECT_EQ(differences, 0u);
}

template <class T>
class OfFloating : public ::testing::Test {};
using floatingTypes = ::testing::Types<float, double>;
TYPED_TEST_SUITE(OfFloating, floatingTypes);

TYPED_TEST(OfFloating, MeetsHalvesAtAndNextToEveryValue) {
  constexpr TypeParam infinity = std::numeric_limits<TypeParam>::infinity();
  answerComparison compare;
  forEveryPattern([&](std::uint16_t p) {
    const half_t x{p};
    const auto same = static_cast<TypeParam>(reference::widenedToDouble(p));
    for (const TypeParam y : {same, -same, std::nextafter(same, infinity), std::nextafter(same, -infinity), infinity,
                              -infinity, TypeParam(0), -TypeParam(0), std::numeric_limits<TypeParam>::denorm_min(),
                              std::numeric_limits<TypeParam>::max(), std::numeric_limits<TypeParam>::quiet_NaN(),
                              std::numeric_limits<TypeParam>::signaling_NaN(), TypeParam(65520), TypeParam(2049)}) {
      compare.check(x, y);
    }
  });
}

template <class T>
class OfIntegers : public ::testing::Test {};
using integerTypes = ::testing::Types<signed char, unsigned char, short, unsigned short, int, unsigned int, long long,
                                      unsigned long long>;
TYPED_TEST_SUITE(OfIntegers, integerTypes);

// The integers up to two away from x, cut to the type's range.
template <class Integer>
std::vector<Integer> around(exactNumber x) {
  std::vector<Integer> near;
  for (int offset = -2; offset <= 2; ++offset) {
    const exactNumber y = std::floor(x) + offset;
    if (y < static_cast<exactNumber>(std::numeric_limits<Integer>::min())) continue;
    if (y > static_cast<exactNumber>(std::numeric_limits<Integer>::max())) continue;
    near.push_back(static_cast<Integer>(y));
  }
  return near;
}

TYPED_TEST(OfIntegers, MeetHalvesExactlyAroundEveryValueAndEveryLimit) {
  std::vector<TypeParam> limits;
  const auto addAround = [&](exactNumber x) {
    for (const TypeParam y : around<TypeParam>(x)) limits.push_back(y);
  };
  addAround(0);
  addAround(static_cast<exactNumber>(std::numeric_limits<TypeParam>::min()));
  addAround(static_cast<exactNumber>(std::numeric_limits<TypeParam>::max()));
  for (int bit = 3; bit < 64; ++bit) {
    addAround(std::ldexp(1.0L, bit));
    addAround(-std::ldexp(1.0L, bit));
  }
  answerComparison compare;
  forEveryPattern([&](std::uint16_t p) {
    const half_t x{p};
    const exactNumber number = realNumber(x);
    if (number - number == 0) {
      for (const TypeParam y : around<TypeParam>(number)) compare.check(x, y);
    }
    if (p % 16 == 0 || (p & 0x7FFF) >= 0x7BF0) {
      for (const TypeParam y : limits) compare.check(x, y);
    }
  });
}

TEST(ComparisonFunctors, TakeEveryByteButZeroForTrue) {
  answerComparison compare;
  forEveryPattern([&](std::uint16_t p) {
    const half_t x{p};
    for (const unsigned char byte : {0x00, 0x01, 0x02, 0x7F, 0x80, 0xFF}) {
      compare.check(x, logicalByte{byte});
      compare.check(logicalByte{byte}, x);
    }
  });
  for (unsigned byte = 0; byte < 256; ++byte) {
    for (const std::uint16_t p : {0x0000, 0x8000, 0x3C00, 0xBC00, 0x3800, 0x5BF8}) {
      compare.check(half_t{p}, logicalByte{static_cast<unsigned char>(byte)});
    }
  }
}

// Values that can be special in a part, for each part type.
template <class T>
std::vector<T> partsOf() {
  if constexpr (halfElement<T>) {
    std::vector<T> parts;
    for (const std::uint16_t p : {0x0000, 0x8000, 0x0001, 0x3C00, 0xBC00, 0x7BFF, 0x7C00, 0xFC00, 0x7E00, 0xFC01}) {
      parts.push_back({p});
    }
    return parts;
  } else if constexpr (std::is_same_v<T, logicalByte>) {
    return {{0}, {1}, {2}, {128}};
  } else if constexpr (std::is_integral_v<T>) {
    return {0, 1, static_cast<T>(-1), std::numeric_limits<T>::min(), std::numeric_limits<T>::max(), 2};
  } else {
    using limits = std::numeric_limits<T>;
    return {0,
            -T(0),
            limits::denorm_min(),
            1,
            -1,
            65504,
            limits::infinity(),
            -limits::infinity(),
            limits::quiet_NaN(),
            std::nextafter(T(1), T(2))};
  }
}

template <class T>
std::vector<std::complex<T>> complexOf() {
  std::vector<std::complex<T>> all;
  for (const T re : partsOf<T>()) {
    for (const T im : partsOf<T>()) all.push_back({re, im});
  }
  return all;
}

template <class Lefts, class Rights>
void compareAll(Lefts const& lefts, Rights const& rights) {
  answerComparison compare;
  for (const auto x : lefts) {
    for (const auto y : rights) compare.check(x, y);
  }
}

template <class T>
class OfParts : public ::testing::Test {};
using partTypes = ::testing::Types<half_t, float, double, signed char, unsigned char, short, unsigned short, int,
                                   unsigned int, long long, unsigned long long>;
TYPED_TEST_SUITE(OfParts, partTypes);

TYPED_TEST(OfParts, MeetHalvesInEveryMixtureOfRealAndComplex) {
  compareAll(partsOf<half_t>(), partsOf<TypeParam>());
  compareAll(complexOf<half_t>(), partsOf<TypeParam>());
  compareAll(partsOf<half_t>(), complexOf<TypeParam>());
  compareAll(complexOf<half_t>(), complexOf<TypeParam>());
}

TEST(ComparisonFunctors, MeetLogicalsAndComplexHalves) {
  compareAll(complexOf<half_t>(), partsOf<logicalByte>());
  compareAll(partsOf<logicalByte>(), complexOf<half_t>());
}

TEST(ComparisonFunctors, CompareExactlyWhereRoundingToHalfWouldNot) {
  EXPECT_EQ(answersOf(half_t{0x6800}, 2049LL), 0b110010u) << "2048 and 2049";
  EXPECT_EQ(answersOf(half_t{0x7C00}, std::numeric_limits<unsigned long long>::max()), 0b001110u);
  EXPECT_EQ(answersOf(half_t{0x7BFF}, 65505), 0b110010u);
}

TEST(ImaginaryParts, OfHalvesAreZeroByTheirMagnitudeAlone) {
  forEveryPattern([](std::uint16_t p) {
    ASSERT_EQ(ops::eqFtor{}(fp16binary_t{p}, noImaginaryPart{}), (p & 0x7FFF) == 0);
    ASSERT_EQ(ops::neFtor{}(fp16binary_t{p}, noImaginaryPart{}), (p & 0x7FFF) != 0);
  });
}

TEST(Combiners, PutTheTwoAnswersTogether) {
  for (const bool first : {false, true}) {
    for (const bool second : {false, true}) {
      EXPECT_EQ(half::utils::boolAndFtor{}(first, second), first && second);
      EXPECT_EQ(half::utils::boolOrFtor{}(first, second), first || second);
      EXPECT_EQ(half::utils::getFirstArgFtor{}(first, second), first);
    }
  }
}

}  // namespace
}  // namespace zthalf::testing
