#include "core/nan_policy.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "tests/support/expect_bits.h"
#include "tests/support/patterns.h"
#include "tests/support/reference.h"

namespace zthalf {
namespace {

using testing::bitComparison;

TEST(SettledHalf, TakesTheSignOfTheDecidingNaNWhateverTheProcessorChose) {
  bitComparison compare("settled");
  testing::forEveryCuratedPair([&](std::uint16_t first, std::uint16_t second) {
    if (!reference::isNaN(first) && !reference::isNaN(second)) return;
    const auto expected = static_cast<std::uint16_t>(0x7E00 | (reference::decidingNaN(first, second) & 0x8000));
    for (const std::uint16_t rounded : {0x7E00, 0xFE00})
      compare.check(settled(rounded, first, second), expected, first, second);
  });
}

TEST(SettledHalf, MakesTheNaNOfAnInvalidOperationPositive) {
  bitComparison compare("settled");
  testing::forEveryPattern([&](std::uint16_t operand) {
    if (reference::isNaN(operand)) return;
    for (const std::uint16_t other : {0x0000, 0x8000, 0x7C00, 0xFC00}) {
      for (const std::uint16_t rounded : {0x7E00, 0xFE00}) {
        compare.check(settled(rounded, operand, other), std::uint16_t{0x7E00}, operand, other);
        compare.check(settled(rounded, other, operand), std::uint16_t{0x7E00}, other, operand);
      }
    }
  });
}

TEST(SettledHalf, LeavesEveryNumberAlone) {
  bitComparison compare("settled");
  testing::forEveryPattern([&](std::uint16_t rounded) {
    if (reference::isNaN(rounded)) return;
    for (const std::uint16_t first : {0x0000, 0x8000, 0x3C00, 0xBC00, 0x7BFF, 0x7C00, 0xFC00}) {
      for (const std::uint16_t second : {0x0001, 0x8001, 0x7C00, 0xFC00}) {
        compare.check(settled(rounded, first, second), rounded, rounded, first, second);
      }
    }
  });
}

// The same for the working formats. The words of interest: NaNs of every kind, and numbers.
template <class Wide>
class SettledWide : public ::testing::Test {
 protected:
  using word = typename formatOf<Wide>::word;
  static constexpr word quiet = word{1} << (formatOf<Wide>::fractionWidth - 1);
  static constexpr word sign = word{1} << (8 * sizeof(Wide) - 1);
  static constexpr word infinite = sign - 2 * quiet;

  static std::vector<word> nans() {
    std::vector<word> words;
    for (const word s : {word{0}, sign}) {
      for (const word q : {word{0}, quiet}) {
        for (const word payload : {word{1}, quiet - 1, quiet >> 1, word{0x155}})
          words.push_back(s | infinite | q | payload);
      }
      words.push_back(s | infinite | quiet);
    }
    return words;
  }

  static std::vector<word> numbers() {
    std::vector<word> words;
    for (const word s : {word{0}, sign}) {
      for (const Wide x : {Wide(0), Wide(1), Wide(0.1), std::numeric_limits<Wide>::denorm_min(),
                           std::numeric_limits<Wide>::max(), std::numeric_limits<Wide>::infinity()}) {
        words.push_back(bitsOf(x) | s);
      }
    }
    return words;
  }

  static std::vector<word> all() {
    std::vector<word> words = nans();
    for (const word w : numbers()) words.push_back(w);
    return words;
  }

  static bool isNaNWord(word w) { return (w & ~sign) > infinite; }
  static bool isSignallingWord(word w) { return isNaNWord(w) && (w & quiet) == 0; }

  // The rule on words: the result of an operation on first and second that came out NaN.
  static word rule(word first, word second) {
    if (!isNaNWord(first) && !isNaNWord(second)) return infinite | quiet;
    if (!isNaNWord(second)) return first | quiet;
    if (!isNaNWord(first)) return second | quiet;
    return (!isSignallingWord(first) && isSignallingWord(second) ? second : first) | quiet;
  }
};
using workingFormats = ::testing::Types<float, double>;
TYPED_TEST_SUITE(SettledWide, workingFormats);

TYPED_TEST(SettledWide, TheDefaultNaNIsPositive) {
  EXPECT_EQ(bitsOf(defaultNaN<TypeParam>), this->infinite | this->quiet);
}

TYPED_TEST(SettledWide, SignallingIsToldByTheQuietBit) {
  bitComparison compare("isSignalling");
  for (const auto w : this->all()) compare.check(isSignalling(valueOf(w)), this->isSignallingWord(w), w);
}

TYPED_TEST(SettledWide, QuietingKeepsSignAndPayload) {
  bitComparison compare("quieted");
  for (const auto w : this->nans()) compare.check(bitsOf(quieted(valueOf(w))), w | this->quiet, w);
}

TYPED_TEST(SettledWide, QuietingOfAnythingLeavesNumbersAlone) {
  bitComparison compare("withQuietNaN");
  for (const auto w : this->nans()) compare.check(bitsOf(withQuietNaN(valueOf(w))), w | this->quiet, w);
  for (const auto w : this->numbers()) compare.check(bitsOf(withQuietNaN(valueOf(w))), w, w);
}

TYPED_TEST(SettledWide, TakesTheDecidingNaNMadeQuietWhateverTheProcessorChose) {
  bitComparison compare("settled");
  for (const auto first : this->all()) {
    for (const auto second : this->all()) {
      const auto expected = this->rule(first, second);
      for (const auto plain : this->nans()) {
        compare.check(bitsOf(settled(valueOf(plain), valueOf(first), valueOf(second))), expected, plain, first, second);
      }
    }
  }
}

TYPED_TEST(SettledWide, LeavesEveryNumberAlone) {
  bitComparison compare("settled");
  for (const auto plain : this->numbers()) {
    for (const auto first : this->all()) {
      compare.check(bitsOf(settled(valueOf(plain), valueOf(first))), plain, plain, first);
      for (const auto second : this->all()) {
        compare.check(bitsOf(settled(valueOf(plain), valueOf(first), valueOf(second))), plain, plain, first, second);
      }
    }
  }
}

TYPED_TEST(SettledWide, OneOperandGivesItsNaNOrTheDefault) {
  bitComparison compare("settled");
  for (const auto operand : this->all()) {
    for (const auto plain : this->nans()) {
      compare.check(bitsOf(settled(valueOf(plain), valueOf(operand))), this->rule(operand, 0), plain, operand);
    }
  }
}

// What the policy is for: the processor's own operations, corrected.
TYPED_TEST(SettledWide, CorrectsTheOperationsOfTheProcessor) {
  bitComparison compare("settled operation");
  for (const auto a : this->all()) {
    for (const auto b : this->all()) {
      volatile TypeParam first = valueOf(a);
      volatile TypeParam second = valueOf(b);
      for (const TypeParam plain : {first + second, first - second, first * second, first / second}) {
        if (!std::isnan(plain)) continue;
        compare.check(bitsOf(settled(plain, valueOf(a), valueOf(b))), this->rule(a, b), a, b);
      }
    }
  }
}

TYPED_TEST(SettledWide, CorrectsTheSquareRootOfTheProcessor) {
  bitComparison compare("settled square root");
  for (const auto w : this->all()) {
    volatile TypeParam operand = valueOf(w);
    const TypeParam plain = std::sqrt(operand);
    if (std::isnan(plain)) compare.check(bitsOf(settled(plain, valueOf(w))), this->rule(w, 0), w);
  }
}

}  // namespace
}  // namespace zthalf
