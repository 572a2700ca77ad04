// Halves as source text: every pattern through every emitter and option.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <string>

#include "tests/support/reference.h"
#include "zthalf/codetext.h"
#include "zthalf/half_scalar.h"
#include "zthalf/host/float_text.h"

namespace {

using half::CompilerInfo;
using half::NativeTargetHalfType;

struct options {
  bool cpp = false, gpu = false, initializer = false, rgl = false, nonFinite = false;
  std::string identifier = {}, suffix = {};

  CompilerInfo info() const {
    return {cpp,  gpu,       initializer,
            rgl,  nonFinite, std::make_shared<NativeTargetHalfType>(identifier, suffix, "", true, false),
            false};
  }
};

half_t toHalf(double x) { return half_t{half_scalar::impl::convertDoubleToHalf(x)}; }
std::string textOf(double x, options const& how, bool comment = false) {
  return half::to_string(toHalf(x), how.info(), comment);
}

TEST(ToString, WritesTheExamples) {
  const double infinity = INFINITY;
  EXPECT_EQ(textOf(1.5, {.cpp = true}), "static_cast<real16_T>(1.5F)");
  EXPECT_EQ(textOf(1.5, {.cpp = true, .initializer = true}), "real16_T(1.5F)");
  EXPECT_EQ(textOf(2, {}), "floatToHalf(2.0F)");
  EXPECT_EQ(textOf(0, {.initializer = true}), "{ 0U }");
  EXPECT_EQ(textOf(-0.0, {.initializer = true}), "{ 32768U }");
  EXPECT_EQ(textOf(1, {.initializer = true}), "{ 15360U }");
  EXPECT_EQ(textOf(1, {.initializer = true}, true), "{ 15360U } /* 1.0 */ ");
  EXPECT_EQ(textOf(1, {.gpu = true}), "__float2half(1.0F)");
  EXPECT_EQ(textOf(1, {.cpp = true, .gpu = true}), "__float2half(1.0F)");
  EXPECT_EQ(textOf(1, {.gpu = true, .initializer = true}), "{ 15360U }");
  EXPECT_EQ(textOf(1, {.cpp = true, .gpu = true, .initializer = true}), "real16_T(1.0F)");
  EXPECT_EQ(textOf(1, {.gpu = true, .initializer = true, .identifier = "x", .suffix = "H"}), "1.0H");
  EXPECT_EQ(textOf(infinity, {.initializer = true}, true), "{ 31744U } /* rtInf */ ");
  EXPECT_EQ(textOf(-infinity, {.initializer = true}, true), "{ 64512U } /* rtMinusInf */ ");
  EXPECT_EQ(textOf(NAN, {}), "floatToHalf(rtNaNF)");
  EXPECT_EQ(textOf(infinity, {.rgl = true}),
            "floatToHalf(%<LibGetMathConstant(LibRealNonFinite(\"inf\"), FcnGetDataTypeIdFromName(\"single\"))>)");
  EXPECT_EQ(textOf(-infinity, {.cpp = true, .rgl = true, .nonFinite = true}),
            "static_cast<real16_T>(%<LibRealNonFinite(\"-inf\")>)");
  EXPECT_EQ(textOf(NAN, {.gpu = true, .rgl = true, .nonFinite = true}), "__float2half(%<LibRealNonFinite(\"nan\")>)");
  EXPECT_EQ(textOf(1.5, {.identifier = "x", .suffix = "F16"}), "1.5F16");
  EXPECT_EQ(textOf(2, {.identifier = "x", .suffix = "F16"}), "2.0F16");
  EXPECT_EQ(textOf(2, {.identifier = "x"}), "2.0");
  EXPECT_EQ(textOf(infinity, {.identifier = "x", .suffix = "F16"}), "(real16_T)(rtInfF)");
  EXPECT_EQ(textOf(-infinity, {.cpp = true, .identifier = "x"}), "static_cast<real16_T>(rtMinusInfF)");
  EXPECT_EQ(textOf(NAN, {.cpp = true, .initializer = true, .identifier = "x"}), "static_cast<real16_T>(rtNaNF)");
  EXPECT_EQ(textOf(NAN, {.rgl = true, .identifier = "x"}), "(real16_T)(rtNaNF)");  // no template in native text
  // Template-language text says nothing else of numbers, nor do non-finite literals of other text.
  EXPECT_EQ(textOf(1.5, {.rgl = true, .nonFinite = true}), "floatToHalf(1.5F)");
  EXPECT_EQ(textOf(infinity, {.nonFinite = true}), "floatToHalf(rtInfF)");
  EXPECT_EQ(textOf(infinity, {.initializer = true, .rgl = true, .nonFinite = true}, true), "{ 31744U } /* rtInf */ ");
}

// The comment is for initializers in C, and for nothing else.
TEST(ToString, PutsAComment) {
  for (const bool comment : {false, true}) {
    EXPECT_EQ(textOf(1.5, {}, comment), "floatToHalf(1.5F)");
    EXPECT_EQ(textOf(1.5, {.cpp = true, .initializer = true}, comment), "real16_T(1.5F)");
    EXPECT_EQ(textOf(1.5, {.gpu = true}, comment), "__float2half(1.5F)");
    EXPECT_EQ(textOf(1.5, {.identifier = "x"}, comment), "1.5");
  }
}

// The texts put together in another way: from templates with a mark for the literal.
std::string expectedText(std::uint16_t pattern, options const& how, bool comment) {
  const bool finite = (pattern & 0x7C00) != 0x7C00;
  const bool nan = (pattern & 0x7FFF) > 0x7C00, minus = pattern >> 15 != 0;
  const auto number = [&](auto write, auto value) {
    char text[32];
    write(text, value);
    std::string result(text);
    return result.find_first_of('.') < result.size() ? result : result.append(".0");
  };
  const std::string plain = nan     ? "rtNaN"
                            : minus ? "rtMinusInf"
                                    : "rtInf",
                    lower = nan     ? "nan"
                            : minus ? "-inf"
                                    : "inf";
  const std::string asDouble = finite ? number(getDoubleValueStr, zthalf::reference::widenedToDouble(pattern)) : plain;
  std::string asSingle =
      finite ? number(getFloatValueStr, zthalf::reference::widenedToSingle(pattern)) + 'F' : plain + 'F';
  if (!finite && how.rgl)
    asSingle = how.nonFinite
                   ? "%<LibRealNonFinite(\"" + lower + "\")>"
                   : "%<LibGetMathConstant(LibRealNonFinite(\"" + lower + "\"), FcnGetDataTypeIdFromName(\"single\"))>";
  std::string form;
  if (how.gpu && !how.initializer)
    form = "__float2half($)";
  else if (!how.identifier.empty())
    return finite ? asDouble + how.suffix : (how.cpp ? "static_cast<real16_T>(" : "(real16_T)(") + plain + "F)";
  else if (how.cpp)
    form = how.initializer ? "real16_T($)" : "static_cast<real16_T>($)";
  else if (!how.initializer)
    form = "floatToHalf($)";
  else
    return "{ " + std::to_string(pattern) + "U }" + (comment ? " /* " + asDouble + " */ " : "");
  return form.replace(form.find('$'), 1, asSingle);
}

template <class Check>
void onEveryOption(Check check) {
  for (unsigned bits = 0; bits < 128; ++bits) {
    const auto bit = [&](unsigned i) { return (bits >> i & 1) != 0; };
    check(options{bit(0), bit(1), bit(2), bit(3), bit(4), bit(5) ? "_Float16" : "", "F16"}, bit(6));
  }
}

// Numbers with every option that they depend on, which the template language is not among; all that is not a number
// with every option.
TEST(ToString, IsTheSameTextPutTogetherInAnotherWay) {
  long different = 0;
  onEveryOption([&](options const& how, bool comment) {
    const CompilerInfo info = how.info();
    const bool numbersToo = !how.rgl && !how.nonFinite;
    for (std::uint32_t p = 0; p <= 0xFFFF; p += numbersToo || (p & 0x7C00) == 0x7C00 ? 1 : 11) {
      const auto pattern = static_cast<std::uint16_t>(p);
      const std::string text = half::to_string(half_t{pattern}, info, comment);
      if (text != expectedText(pattern, how, comment) && ++different < 10)
        ADD_FAILURE() << std::hex << p << ": " << text << " is not " << expectedText(pattern, how, comment);
    }
  });
  EXPECT_EQ(different, 0);
}

// A sign or none, digits, a point, digits, and an exponent or none.
bool isLiteral(std::string const& text) {
  std::size_t at = text[0] == '-' ? 1 : 0;
  const auto digits = [&] {
    const std::size_t end = text.find_first_not_of("0123456789", at);
    const bool some = end != at && at < text.size();
    at = end < text.size() ? end : text.size();
    return some;
  };
  if (!digits() || text[at] != '.') return false;
  ++at;
  if (!digits()) return false;
  if (at == text.size()) return true;
  if (text[at++] != 'e') return false;
  if (text[at] == '-' || text[at] == '+') ++at;
  return digits() && at == text.size();
}

// Every pattern through each emitter by its own name, and what the text says read back.
TEST(Emitters, SayEveryPatternSoThatItReadsBack) {
  const auto valueIn = [](std::string const& text, std::string const& before, std::string const& after) {
    EXPECT_EQ(text.substr(0, before.size()), before);
    EXPECT_EQ(text.substr(text.size() - after.size()), after);
    return text.substr(before.size(), text.size() - before.size() - after.size());
  };
  const options plain{}, initializer{.initializer = true}, native{.identifier = "x", .suffix = "F16"};
  const CompilerInfo c = plain.info(), cInitializer = initializer.info(), nativeInfo = native.info(),
                     cppInitializer = options{.cpp = true, .initializer = true}.info();
  for (std::uint32_t p = 0; p <= 0xFFFF; ++p) {
    const auto pattern = static_cast<std::uint16_t>(p);
    const half_t h{pattern};
    const std::string number = valueIn(half::to_string_emulated_c(h, cInitializer, false), "{ ", "U }");
    ASSERT_EQ(std::stoul(number), p);
    const std::string commented = half::to_string_emulated_c(h, cInitializer, true);
    ASSERT_EQ(commented.substr(0, number.size() + 5), "{ " + number + "U }");
    const std::string inComment = valueIn(commented.substr(number.size() + 5), " /* ", " */ ");
    const std::string texts[] = {valueIn(half::to_string_emulated_c(h, c, false), "floatToHalf(", "F)"),
                                 valueIn(half::to_string_gpu(h, c), "__float2half(", "F)"),
                                 valueIn(half::to_string_emulated_cpp(h, c), "static_cast<real16_T>(", "F)"),
                                 valueIn(half::to_string_emulated_cpp(h, cppInitializer), "real16_T(", "F)")};
    if ((pattern & 0x7C00) == 0x7C00) {
      const bool nan = (pattern & 0x3FF) != 0;
      const std::string name = nan ? "rtNaN" : pattern == 0x7C00 ? "rtInf" : "rtMinusInf";
      for (std::string const& text : texts) ASSERT_EQ(text, name);
      ASSERT_EQ(inComment, name);
      ASSERT_EQ(half::to_string_native(h, nativeInfo), "(real16_T)(" + name + "F)");
      continue;
    }
    for (std::string const& text : texts) {
      ASSERT_TRUE(isLiteral(text)) << text;
      ASSERT_EQ(half_scalar::impl::convertSingleToHalf(std::strtof(text.c_str(), nullptr)), pattern) << text;
    }
    const std::string nativeText = valueIn(half::to_string_native(h, nativeInfo), "", "F16");
    for (std::string const& text : {nativeText, inComment}) {
      ASSERT_TRUE(isLiteral(text)) << text;
      ASSERT_EQ(half_scalar::impl::convertDoubleToHalf(std::strtod(text.c_str(), nullptr)), pattern) << text;
    }
  }
}

}  // namespace
