// What a cell says: a number, a missing value, or neither. The same in every locale.
#pragma once

#include <optional>
#include <string_view>

namespace halfscope {

// Decimal numbers with an optional sign and exponent, and the words inf, infinity and nan in any case. Numbers beyond
// the range of double become infinities or zeros, as they would in any double arithmetic.
std::optional<double> parseNumber(std::string_view text);

// Whether a cell stands for a value that is not there: nothing in it, NA, or a NaN.
bool isMissing(std::string_view text);

}  // namespace halfscope
