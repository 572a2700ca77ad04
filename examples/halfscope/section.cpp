#include "section.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace halfscope {

namespace {

// std::to_chars and not printf, whose decimal point is a matter of locale.
std::string digits(double value, std::chars_format format, int precision) {
  char text[512];  // room for the longest fixed form of a double
  const auto end = std::to_chars(text, text + sizeof text, value, format, precision).ptr;
  return std::string(text, end);
}

std::string specialText(double value) { return std::isnan(value) ? "NaN" : value < 0 ? "-Inf" : "Inf"; }

}  // namespace

std::string countText(long long count) {
  std::string text = std::to_string(count);
  for (int i = static_cast<int>(text.size()) - 3; i > (count < 0 ? 1 : 0); i -= 3)
    text.insert(static_cast<std::size_t>(i), 1, ',');
  return text;
}

std::string decimalText(double value, int decimals) {
  return std::isfinite(value) ? digits(value, std::chars_format::fixed, decimals) : specialText(value);
}

// All and nothing are said only where they are meant: 99.96 percent is not 100.
std::string shareText(long long count, long long whole) {
  if (whole == 0) return "-";
  const double percent = 100.0 * static_cast<double>(count) / static_cast<double>(whole);
  if (count == whole || count == 0) return decimalText(percent, 0);
  return percent > 99.9 ? ">99.9" : percent < 0.1 ? "<0.1" : decimalText(percent, 1);
}

// The last doubles on either side stand for all numbers beyond them as well; what is said is true of both.
std::string endOfDoubleText(double value) {
  using limits = std::numeric_limits<double>;
  if (std::abs(value) == limits::max()) return value < 0 ? "<-1.79e+308" : ">1.79e+308";
  if (std::abs(value) == limits::denorm_min()) return value < 0 ? ">-4.95e-324" : "<4.95e-324";
  return "";
}

// Four significant digits, whole numbers in full; trailing zeros say nothing.
std::string valueText(double value) {
  if (!std::isfinite(value)) return specialText(value);
  const double magnitude = std::abs(value);
  if (const std::string end = endOfDoubleText(value); !end.empty()) return end;
  if (value == std::trunc(value) && magnitude < 1e9) return digits(value + 0.0, std::chars_format::fixed, 0);
  if (magnitude < 1e-4 || magnitude >= 1e6) return digits(value, std::chars_format::scientific, 2);
  const int power = static_cast<int>(std::floor(std::log10(magnitude)));
  std::string text = digits(value, std::chars_format::fixed, std::max(1, 3 - power));
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
  return text;
}

std::string ulpText(double ulps) {
  if (!std::isfinite(ulps)) return specialText(ulps);
  if (ulps == 0) return "0";
  if (ulps >= 1e9) return digits(ulps, std::chars_format::scientific, 1);
  if (ulps >= 100) return countText(std::llround(ulps));
  return ulps < 0.0005 ? "<0.001" : decimalText(ulps, ulps < 1 ? 3 : 1);
}

cell textCell(std::string const& text) { return {text, text}; }
cell countCell(long long count, bool remarkable) { return {count, countText(count), remarkable}; }
cell shareCell(long long count, long long whole) { return {count, shareText(count, whole)}; }
cell valueCell(double value) { return {value, valueText(value)}; }
cell ulpCell(double ulps, bool remarkable) { return {ulps, ulpText(ulps), remarkable}; }
cell decimalCell(double value, int decimals) { return {value, decimalText(value, decimals)}; }
cell noCell() { return {std::monostate{}, "-"}; }

}  // namespace halfscope
