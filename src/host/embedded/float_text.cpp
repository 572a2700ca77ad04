// The shortest decimal text that reads back to a number.
//
// The digits d1 d2 ... and the exponent e of d1.d2... * 10^e come from the standard library. Numbers from 10^-5 to
// below 10^21 are written out, so that a whole number has no point; others get an exponent, and a point before it,
// since a suffix is put behind the text. The longest is a double of 17 digits with a sign, a point and four zeros: 25.
#include "zthalf/host/float_text.h"

#include <charconv>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

constexpr int leastWrittenOut = -5, mostWrittenOut = 20;

struct decimal {
  std::string digits;
  int exponent;
};

template <class Float>
decimal shortest(Float magnitude) {
  char text[32];
  char* const end = std::to_chars(text, text + sizeof text, magnitude, std::chars_format::scientific).ptr;
  char* const mark = static_cast<char*>(std::memchr(text, 'e', end - text));
  *end = 0;
  decimal result{std::string(1, text[0]), std::atoi(mark + 1)};
  if (text[1] == '.') result.digits.append(text + 2, mark);
  return result;
}

std::string writtenOut(decimal const& number) {
  const int digits = static_cast<int>(number.digits.size());
  if (number.exponent < 0) return "0." + std::string(-1 - number.exponent, '0') + number.digits;
  if (digits <= number.exponent + 1) return number.digits + std::string(number.exponent + 1 - digits, '0');
  return number.digits.substr(0, number.exponent + 1) + "." + number.digits.substr(number.exponent + 1);
}

std::string withExponent(decimal const& number) {
  const std::string fraction = number.digits.size() > 1 ? number.digits.substr(1) : "0";
  return number.digits.substr(0, 1) + "." + fraction + "e" + (number.exponent < 0 ? "-" : "+") +
         std::to_string(std::abs(number.exponent));
}

template <class Float>
void write(char* buffer, Float value) {
  std::string text = std::signbit(value) ? "-" : "";
  if (std::isnan(value)) {
    text = "nan";
  } else if (std::isinf(value)) {
    text += "inf";
  } else {
    const decimal number = shortest(std::fabs(value));
    const bool plain = number.exponent >= leastWrittenOut && number.exponent <= mostWrittenOut;
    text += plain ? writtenOut(number) : withExponent(number);
  }
  std::memcpy(buffer, text.c_str(), text.size() + 1);
}

}  // namespace

void getFloatValueStr(char* buffer, float value) { write(buffer, value); }
void getDoubleValueStr(char* buffer, double value) { write(buffer, value); }
