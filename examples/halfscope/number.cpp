#include "number.h"

#include <charconv>
#include <cstdint>
#include <cstring>
#include <string>

namespace halfscope {

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

// A decimal number without its sign: digits with no zeros at either end, and the power of ten of the first one.
struct decimal {
  std::string digits;
  long exponent = 0;
};

// The exponent is counted with saturation, since it may have any number of digits.
decimal decimalOf(std::string_view text) {
  constexpr long limit = 1'000'000'000;
  decimal d;
  bool point = false;
  std::size_t i = 0;
  for (; i < text.size() && text[i] != 'e' && text[i] != 'E'; ++i) {
    if (text[i] == '.') point = true;
    if (!isDigit(text[i])) continue;
    const bool significant = !d.digits.empty() || text[i] != '0';
    if (significant) d.digits += text[i];
    if (!point && significant) ++d.exponent;
    if (point && !significant) --d.exponent;
  }
  d.digits.erase(d.digits.find_last_not_of('0') + 1);
  const bool negative = i + 1 < text.size() && text[i + 1] == '-';
  long exponent = 0;
  for (; i < text.size(); ++i) {
    if (isDigit(text[i]) && exponent < limit) exponent = exponent * 10 + (text[i] - '0');
  }
  d.exponent += (negative ? -exponent : exponent) - 1;
  return d;
}

bool isLess(decimal const& a, decimal const& b) {
  return a.exponent != b.exponent ? a.exponent < b.exponent : a.digits < b.digits;
}

// Whether a double has no more significant bits than a half. Few have, unless the data is of that kind.
bool isShort(double value) {
  std::uint64_t bits;
  std::memcpy(&bits, &value, sizeof bits);
  return (bits & ((std::uint64_t{1} << 42) - 1)) == 0;
}

// The double beside a short one, on the side where the number is that was rounded to it; itself where they are equal.
double besideRounded(std::string_view text, double value) {
  char digits[96];  // a half has 25 significant digits at most
  const auto end = std::to_chars(digits, digits + sizeof digits, value, std::chars_format::scientific, 60).ptr;
  const decimal number = decimalOf(text), nearest = decimalOf({digits, static_cast<std::size_t>(end - digits)});
  if (isLess(number, nearest)) return std::nextafter(value, 0.0);
  if (isLess(nearest, number)) return std::nextafter(value, std::copysign(HUGE_VAL, value));
  return value;
}

}  // namespace

reading readCell(std::string_view text) {
  constexpr std::size_t longEnoughToBeRounded = 16;
  reading r;
  if (text.empty() || text == "NA") {
    r.is = reading::kind::missing;
    return r;
  }
  if (text[0] == '+') {
    text.remove_prefix(1);
    if (text.empty() || text[0] == '-') return r;
  }
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (error == std::errc::invalid_argument || end != text.data() + text.size()) return r;
  if (error == std::errc::result_out_of_range) {
    using limits = std::numeric_limits<double>;
    value =
        std::copysign(decimalOf(text).exponent > 0 ? limits::max() : limits::denorm_min(), text[0] == '-' ? -1.0 : 1.0);
    r.beyond = true;
  } else if (text.size() >= longEnoughToBeRounded && isShort(value) && std::isfinite(value) && value != 0) {
    value = besideRounded(text, value);
  }
  r.is = std::isnan(value) ? reading::kind::missing : reading::kind::number;
  r.value = value;
  return r;
}

}  // namespace halfscope
