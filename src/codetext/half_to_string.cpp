// A half as source text. The text of a number is the host's; what is put around it is decided here.
#include <cmath>
#include <initializer_list>
#include <string_view>

#include "zthalf/codetext.h"
#include "zthalf/half_scalar.h"
#include "zthalf/host/float_text.h"

namespace half {

namespace {

// The host writes at most 31 characters and a terminating zero.
char singleText[32];
char doubleText[32];

// One place for all texts, so that each of them costs a few words of code.
[[gnu::noinline]] std::string joined(std::initializer_list<std::string_view> parts) {
  std::string text;
  for (const std::string_view part : parts) text.append(part);
  return text;
}

// Without a point the literal would be an integer's, and a suffix of it not C.
std::string_view pointFor(std::string_view number) { return number.find('.') == std::string_view::npos ? ".0" : ""; }

// Which of the three a value that is not finite is called.
std::string_view oneOf(double x, std::string_view minusInfinity, std::string_view infinity, std::string_view nan) {
  if (std::isinf(x)) return x < 0 ? minusInfinity : infinity;
  return nan;
}

std::string_view nonFiniteName(double x) { return oneOf(x, "rtMinusInf", "rtInf", "rtNaN"); }

// Template-language text leaves the name of the value to whoever expands the template.
std::string nonFiniteTemplate(double x, bool asLiteral) {
  const std::string_view name = oneOf(x, "-inf", "inf", "nan");
  if (asLiteral) return joined({"%<LibRealNonFinite(\"", name, "\")>"});
  return joined({"%<LibGetMathConstant(LibRealNonFinite(\"", name, "\"), FcnGetDataTypeIdFromName(\"single\"))>"});
}

std::string singleLiteral(half_t value, CompilerInfo const& info) {
  const float x = half_scalar::impl::convertHalfToSingle(value.bits);
  if (std::isfinite(x)) {
    getFloatValueStr(singleText, x);
    return joined({singleText, pointFor(singleText), "F"});
  }
  if (info.isRGL()) return nonFiniteTemplate(x, info.supportNonFiniteLiterals());
  return joined({nonFiniteName(x), "F"});
}

std::string doubleLiteral(half_t value) {
  const double x = half_scalar::impl::convertHalfToDouble(value.bits);
  if (!std::isfinite(x)) return joined({nonFiniteName(x)});
  getDoubleValueStr(doubleText, x);
  return joined({doubleText, pointFor(doubleText)});
}

}  // namespace

std::string to_string(half_t value, CompilerInfo info, bool comment) {
  switch (info.getCodeTargetForStringConversion()) {
    case 2:
      return to_string_gpu(value, info);
    case 3:
      return to_string_native(value, info);
    case 1:
      return to_string_emulated_cpp(value, info);
    default:
      return to_string_emulated_c(value, info, comment);
  }
}

std::string to_string_gpu(half_t value, CompilerInfo const& info) {
  return joined({"__float2half(", singleLiteral(value, info), ")"});
}

// What is not finite is cast to the emulated type, whatever the target's own is called: rtInfF and its like are only
// known beside that type.
std::string to_string_native(half_t value, CompilerInfo const& info) {
  if (half_scalar::isfinite(value))
    return joined({doubleLiteral(value), info.getHalfTargetInfo()->getNativeHalfLiteralSuffix()});
  const std::string_view name = nonFiniteName(half_scalar::impl::convertHalfToDouble(value.bits));
  return joined({info.isCPP() ? "static_cast<real16_T>(" : "(real16_T)(", name, "F)"});
}

std::string to_string_emulated_c(half_t value, CompilerInfo const& info, bool comment) {
  if (!info.isInitializer()) return joined({"floatToHalf(", singleLiteral(value, info), ")"});
  const std::string pattern = std::to_string(static_cast<unsigned>(value.bits));
  if (!comment) return joined({"{ ", pattern, "U }"});
  return joined({"{ ", pattern, "U } /* ", doubleLiteral(value), " */ "});
}

std::string to_string_emulated_cpp(half_t value, CompilerInfo const& info) {
  return joined({info.isInitializer() ? "real16_T(" : "static_cast<real16_T>(", singleLiteral(value, info), ")"});
}

}  // namespace half
