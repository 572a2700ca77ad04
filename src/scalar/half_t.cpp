#include "zthalf/half_t.h"

#include "scalar/half_arithmetic.h"
#include "scalar/sign_and_class.h"

half_t half_t::operator+() const { return *this; }
half_t half_t::operator-() const { return {zthalf::negated(bits)}; }

half_t half_t::operator+(half_t other) const { return {zthalf::sumOf(bits, other.bits)}; }
half_t half_t::operator-(half_t other) const { return {zthalf::differenceOf(bits, other.bits)}; }
half_t half_t::operator*(half_t other) const { return {zthalf::productOf(bits, other.bits)}; }
half_t half_t::operator/(half_t other) const { return {zthalf::quotientOf(bits, other.bits)}; }

half_t& half_t::operator+=(half_t other) { return *this = *this + other; }
half_t& half_t::operator-=(half_t other) { return *this = *this - other; }
half_t& half_t::operator*=(half_t other) { return *this = *this * other; }
half_t& half_t::operator/=(half_t other) { return *this = *this / other; }

// Both steps are additions, of 1.0 and of -1.0. One operand can be a NaN, so the order does not matter.
half_t& half_t::operator++() { return *this += half_t{zthalf::pattern::one}; }
half_t& half_t::operator--() { return *this += half_t{zthalf::negated(zthalf::pattern::one)}; }

half_t half_t::operator++(int) {
  const half_t old = *this;
  ++*this;
  return old;
}

half_t half_t::operator--(int) {
  const half_t old = *this;
  --*this;
  return old;
}

bool half_t::operator==(half_t other) const { return zthalf::isEqual(bits, other.bits); }
bool half_t::operator!=(half_t other) const { return zthalf::isUnequal(bits, other.bits); }
bool half_t::operator>(half_t other) const { return zthalf::isGreater(bits, other.bits); }
bool half_t::operator>=(half_t other) const { return zthalf::isGreaterOrEqual(bits, other.bits); }
bool half_t::operator<(half_t other) const { return zthalf::isLess(bits, other.bits); }
bool half_t::operator<=(half_t other) const { return zthalf::isLessOrEqual(bits, other.bits); }
