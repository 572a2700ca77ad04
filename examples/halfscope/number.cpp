#include "number.h"

#include <charconv>
#include <cmath>
#include <limits>

namespace halfscope {

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

// Whether a decimal number, known to be outside the range of double, is huge rather than tiny: the sign of its decimal
// exponent. Counted with saturation, since the exponent may have any number of digits.
bool isHuge(std::string_view text) {
  constexpr long limit = 1'000'000'000;
  long leading = 0;  // the power of ten of the first digit that is not 0
  bool point = false;
  bool significant = false;
  std::size_t i = 0;
  for (; i < text.size() && text[i] != 'e' && text[i] != 'E'; ++i) {
    if (text[i] == '.') point = true;
    if (!isDigit(text[i])) continue;
    significant = significant || text[i] != '0';
    if (!point && significant) ++leading;
    if (point && !significant) --leading;
  }
  long exponent = 0;
  const bool negative = i + 1 < text.size() && text[i + 1] == '-';
  for (; i < text.size(); ++i) {
    if (isDigit(text[i]) && exponent < limit) exponent = exponent * 10 + (text[i] - '0');
  }
  return leading + (negative ? -exponent : exponent) > 0;
}

}  // namespace

std::optional<double> parseNumber(std::string_view text) {
  if (!text.empty() && text[0] == '+') {
    text.remove_prefix(1);
    if (!text.empty() && text[0] == '-') return std::nullopt;
  }
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error == std::errc::invalid_argument || end != text.data() + text.size()) return std::nullopt;
  if (error == std::errc::result_out_of_range) {
    const double magnitude = isHuge(text) ? std::numeric_limits<double>::infinity() : 0.0;
    return std::copysign(magnitude, text[0] == '-' ? -1.0 : 1.0);
  }
  return value;
}

bool isMissing(std::string_view text) {
  if (text.empty() || text == "NA") return true;
  const auto value = parseNumber(text);
  return value && std::isnan(*value);
}

}  // namespace halfscope
