// Arithmetic of halves on arrays: one half with all of them, against numbers worked in double or in integers and
// rounded once. A float holds more than two bits beyond twice a half's, so rounding to float first can give no other
// result.
#include <gtest/gtest.h>

#include <atomic>
#include <cmath>
#include <vector>

#include "tests/support/defined_number.h"
#include "tests/support/exact.h"
#include "tests/support/expect_bits.h"
#include "tests/support/patterns.h"
#include "tests/support/reference.h"
#include "tests/support/sweep.h"
#include "zthalf/half_vector.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;

constexpr unsigned long everyHalf = 0x10000;

// The half nearest to a number that is not a NaN, ties to even, by its value: so many steps of its binade.
std::uint16_t nearestHalf(double x) {
  const std::uint16_t sign = std::signbit(x) ? 0x8000 : 0x0000;
  const double magnitude = std::fabs(x);
  if (magnitude >= 65520.0) return sign | 0x7C00;
  const int binade = std::max(static_cast<int>(std::bit_cast<std::uint64_t>(magnitude) >> 52) - 1023, -14);
  const double stepsInOne = std::bit_cast<double>(static_cast<std::uint64_t>(1023 + 10 - binade) << 52);
  return static_cast<std::uint16_t>(sign + ((binade + 14) << 10) + std::lrint(magnitude * stepsInOne));
}

double valueOf(std::uint16_t p) { return static_cast<double>(exact::unitsOf(p)) / exact::unitsInOne; }
bool isNumber(std::uint16_t p) { return exact::isFinite(p) && (p & 0x7FFF) != 0; }

// Zeros, infinities and NaNs go by the operations of the defining unit.
using number = definedNumber<float>;
number widened(std::uint16_t p) { return reference::widenedToSingle(p); }
std::uint16_t narrowed(number x) {
  return x.isNaN() ? static_cast<std::uint16_t>(x.hasSign() ? 0xFE00 : 0x7E00) : nearestHalf(x.value());
}

using operation = void (*)(half_t*, half_t*, half_t*, unsigned long, unsigned long, unsigned long const*, unsigned long,
                           unsigned long, unsigned long const*, unsigned long, unsigned long, unsigned long const*);

struct arithmetic {
  char const* name;
  operation op;
  bool (*isRight)(std::uint16_t x, std::uint16_t y, std::uint16_t result);
};

bool isSum(std::uint16_t x, std::uint16_t y, std::uint16_t z) {
  const bool areNumbers = isNumber(x) && isNumber(y) && (x ^ 0x8000) != y;
  return z == (areNumbers ? nearestHalf(valueOf(x) + valueOf(y)) : narrowed(widened(y) + widened(x)));
}
bool isDifference(std::uint16_t x, std::uint16_t y, std::uint16_t z) {
  const bool areNumbers = isNumber(x) && isNumber(y) && x != y;
  return z == (areNumbers ? nearestHalf(valueOf(x) - valueOf(y)) : narrowed(widened(x) - widened(y)));
}
bool isProduct(std::uint16_t x, std::uint16_t y, std::uint16_t z) {
  const bool areNumbers = isNumber(x) && isNumber(y);
  return z == (areNumbers ? nearestHalf(valueOf(x) * valueOf(y)) : narrowed(widened(y) * widened(x)));
}
bool isQuotient(std::uint16_t x, std::uint16_t y, std::uint16_t z) {
  const bool areNumbers = isNumber(x) && isNumber(y);
  return z == (areNumbers ? nearestHalf(valueOf(x) / valueOf(y)) : narrowed(widened(x) / widened(y)));
}

// z is the root of the sum of squares if that sum lies between the squares of the middles on both sides of z, which are
// whole numbers of half units.
bool isHypot(std::uint16_t x, std::uint16_t y, std::uint16_t z) {
  if (exact::isNaN(x) || exact::isNaN(y)) return z == 0x7E00;
  if (!exact::isFinite(x) || !exact::isFinite(y)) return z == 0x7C00;
  if (z > 0x7C00) return false;
  const auto squared = [](std::int64_t units) {
    return static_cast<exact::wideInteger>(units) * static_cast<exact::wideInteger>(units);
  };
  const exact::wideInteger a = exact::magnitudeOf(x), b = exact::magnitudeOf(y), sum = 4 * (a * a + b * b);
  if (z == 0) return sum == 0;
  const exact::wideInteger low = squared(exact::unitsOf(z - 1) + exact::unitsOf(z));
  if (z == 0x7C00) return sum >= low;
  const exact::wideInteger high = squared(exact::unitsOf(z) + exact::unitsOf(z + 1));
  return z % 2 == 0 ? low <= sum && sum <= high : low < sum && sum < high;
}

std::vector<half_t> allHalves() {
  std::vector<half_t> all(everyHalf);
  forEveryPattern([&](std::uint16_t p) { all[p] = {p}; });
  return all;
}

// The pairs of x with every half, x on the left.
unsigned long wrongPairs(arithmetic const& a, std::uint16_t x, std::vector<half_t>& all, std::vector<half_t>& results) {
  half_t single{x};
  const unsigned long one = 1, count = everyHalf;
  a.op(&single, all.data(), results.data(), 1, 1, &one, count, 1, &count, count, 1, &count);
  unsigned long wrong = 0;
  for (unsigned long y = 0; y < count; ++y) wrong += !a.isRight(x, static_cast<std::uint16_t>(y), results[y].bits);
  return wrong;
}

class PairsOfHalves : public ::testing::TestWithParam<arithmetic> {};
class LongPairsOfHalves : public ::testing::TestWithParam<arithmetic> {};

void PrintTo(arithmetic const& a, std::ostream* out) { *out << a.name; }

TEST_P(PairsOfHalves, OfSelectedOnesWithAllAreRight) {
  std::vector<half_t> all = allHalves(), results(everyHalf);
  for (unsigned i = 0; i < curatedCount; i += 11) {
    const std::uint16_t x = curatedPatterns()[i];
    ASSERT_EQ(wrongPairs(GetParam(), x, all, results), 0u) << "of " << std::hex << x;
  }
}

TEST_P(LongPairsOfHalves, AreAllRight) {
  std::atomic<unsigned long> wrong{0};
  std::atomic<unsigned> example{0};
  std::atomic<std::uint32_t> next{0};
  const auto work = [&](std::uint64_t, std::uint64_t) {
    std::vector<half_t> all = allHalves(), results(everyHalf);
    for (std::uint32_t x = next++; x < everyHalf; x = next++) {
      const unsigned long here = wrongPairs(GetParam(), static_cast<std::uint16_t>(x), all, results);
      wrong += here;
      if (here != 0) example = x;
    }
  };
  inBlocks(std::uint64_t{64} << 16, work);  // a block for each thread; the first ones take all the work
  EXPECT_EQ(wrong, 0u) << "some of them with " << std::hex << example;
}

const auto operations = ::testing::Values(
    arithmetic{"plus", half_vector::plus, isSum}, arithmetic{"minus", half_vector::minus, isDifference},
    arithmetic{"times", half_vector::times, isProduct}, arithmetic{"rdivide", half_vector::rdivide, isQuotient},
    arithmetic{"hypot", half_vector::hypot, isHypot});
constexpr auto nameOf = [](auto const& info) { return std::string(info.param.name); };

INSTANTIATE_TEST_SUITE_P(Each, PairsOfHalves, operations, nameOf);
INSTANTIATE_TEST_SUITE_P(Each, LongPairsOfHalves, operations, nameOf);

}  // namespace
}  // namespace zthalf
