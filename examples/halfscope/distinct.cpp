#include "distinct.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace halfscope {

namespace {

constexpr std::uint64_t empty = ~std::uint64_t{0};  // a NaN's pattern
constexpr int fewestBits = 12;

}  // namespace

bool distinctCounter::insert(std::uint64_t pattern) {
  // Neighbouring numbers differ in their low bits and round ones in their high bits: the product brings both together
  // in its highest bits.
  std::size_t place = static_cast<std::size_t>(((pattern ^ (pattern >> 32)) * 0x9E3779B97F4A7C15u) >> shift_);
  while (slots_[place] != empty) {
    if (slots_[place] == pattern) return false;
    place = (place + 1) & (slots_.size() - 1);
  }
  slots_[place] = pattern;
  return true;
}

void distinctCounter::grow() {
  std::vector<std::uint64_t> old(2 * slots_.size(), empty);
  old.swap(slots_);
  --shift_;
  for (const std::uint64_t pattern : old) {
    if (pattern != empty) insert(pattern);
  }
}

long long distinctCounter::count(std::vector<double> const& values) {
  slots_.assign(std::max(slots_.size() >> 4, std::size_t{1} << fewestBits), empty);
  shift_ = 64;
  for (std::size_t bits = slots_.size(); bits > 1; bits >>= 1) --shift_;
  std::size_t found = 0;
  for (const double given : values) {
    if (std::isnan(given)) continue;
    const double value = given + 0.0;  // makes a positive zero of a negative one
    std::uint64_t pattern;
    std::memcpy(&pattern, &value, sizeof pattern);
    if (!insert(pattern)) continue;
    if (2 * ++found > slots_.size()) grow();
  }
  return static_cast<long long>(found);
}

}  // namespace halfscope
