// Sentences of halfscope that would be easy to get wrong: what is lost is not called exact, near or unchanged.
#include <gtest/gtest.h>

#include "tests/examples/halfscope_support.h"

namespace {

using namespace examples;

// Line breaks are where the width wants them.
std::string onOneLine(std::string text) {
  for (std::size_t i = 0; (i = text.find("\n  ", i)) != std::string::npos;) text.erase(i, 2);
  return text;
}

std::string alone(std::string const& number) { return std::string("a\n").append(number).append("\n"); }
std::string withOne(std::string const& number) { return alone(number).append("1\n"); }

bool has(std::string const& text, std::string const& part) { return text.find(part) != std::string::npos; }

TEST(Truth, ADeviationThatIsLostIsNotNear) {
  for (std::string const csv : {"a\n1\n3\ninf\n", "a\n1\n3\n1e400\n", "a\n1\n1\n-inf\n"}) {
    const auto text = onOneLine(look(csv).out);
    EXPECT_TRUE(has(text, "a loses 1 deviation: ")) << text;
    EXPECT_TRUE(has(text, " All others are the nearest halves to the true ones.")) << text;
    EXPECT_FALSE(has(text, "Every deviation")) << text;
    EXPECT_FALSE(has(onOneLine(look(csv, {}).out), "of the values.")) << text;
  }
  const auto one = onOneLine(look("a\n1\ninf\n").out);
  EXPECT_TRUE(has(one, " The other one is the nearest half to the true one.")) << one;
  const auto none = onOneLine(look("a\n1\n3\n").out);
  EXPECT_TRUE(has(none, " Every deviation is the nearest half to the true one.")) << none;
}

TEST(Truth, ANumberBeyondDoubleIsNotExact) {
  const std::string many(400, '0');
  for (auto const& number : std::vector<std::string>{"1e400", "-1e400", "1e999999999999", std::string("1").append(many),
                                                     std::string("-1").append(many).append(".5")}) {
    const auto text = onOneLine(look(withOne(number)).out);
    EXPECT_FALSE(has(text, "unchanged")) << text;
    EXPECT_TRUE(has(text, "a does not fit: 1 of 2 values become infinity")) << text;
    EXPECT_TRUE(has(text, "1 number is out of the range of double.")) << text;
    const auto summary = onOneLine(look(withOne(number), {}).out);
    EXPECT_TRUE(has(summary, "a loses values: 1 of 2 values becomes infinite.")) << summary;
    EXPECT_TRUE(has(summary, "1 number is beyond double.")) << summary;
    EXPECT_FALSE(has(summary, "is exact")) << summary;
  }
}

TEST(Truth, ANumberTooSmallForDoubleIsNotZero) {
  for (auto const& number :
       std::vector<std::string>{"1e-400", "-1e-400", std::string("0.").append(400, '0').append("1")}) {
    const auto text = onOneLine(look(withOne(number)).out);
    EXPECT_FALSE(has(text, "unchanged")) << text;
    EXPECT_TRUE(has(text, "1 of 2 values are too small for half and become zero.")) << text;
    const auto summary = onOneLine(look(withOne(number), {}).out);
    EXPECT_TRUE(has(summary, "a loses values: 1 of 2 values becomes zero.")) << summary;
  }
}

TEST(Truth, TwentyMillionDigitsAreReadAndLost) {
  const auto text = onOneLine(look(withOne(std::string(20000000, '7')), {}).out);
  EXPECT_TRUE(has(text, "1 of 2 values becomes infinite.")) << text;
}

TEST(Truth, ANumberBesideAHalfIsNotExact) {
  for (std::string const number : {"0.50000000000000000000001", "-0.4999999999999999999999999", "2048.0000000000000001",
                                   "5.9604644775390624e-8", "65504000000000000000000001e-21"}) {
    const auto text = onOneLine(look(alone(number), {}).out);
    EXPECT_FALSE(has(text, "a is exact")) << number << text;
    EXPECT_TRUE(has(text, "a is rounded only.")) << number << text;
  }
  for (std::string const number :
       {"0.50000000000000000000000", "-5.0000000000000000000000E-1", "0000000000000000002048", "5.9604644775390625e-8",
        "65504000000000000000000000e-21"}) {
    const auto text = onOneLine(look(alone(number), {}).out);
    EXPECT_TRUE(has(text, "a is exact")) << number << text;
  }
}

TEST(Truth, AnExactResultIsCalledExact) {
  const auto text = onOneLine(look("a\n1\n2\n3\n").out);
  EXPECT_TRUE(has(text, "With sums in single the mean that fits is exact.")) << text;
  EXPECT_FALSE(has(text, " 0 ulp")) << text;
  const auto rounded = onOneLine(look("a\n1\n2\n2\n").out);
  EXPECT_TRUE(has(rounded, "the mean that fits is within 0.333 ulp of the true one.")) << rounded;
}

}  // namespace
