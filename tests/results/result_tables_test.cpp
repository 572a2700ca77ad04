#include "results/result_tables.h"

#include <gtest/gtest.h>

#include "tests/support/expect_bits.h"
#include "zthalf/half_scalar.h"

namespace zthalf::testing {
namespace {

struct Table {
  char const* name;
  std::uint16_t const* results;
  half_t (*function)(half_t);
};

#define ZTHALF_TEST_TABLE(function, ...) {#function, zthalf::results::function, half_scalar::function},
constexpr Table tables[] = {ZTHALF_RESULT_TABLES(ZTHALF_TEST_TABLE)};
#undef ZTHALF_TEST_TABLE

TEST(ResultTables, HoldTheResultsOfTheScalarFunctions) {
  for (Table const& table : tables) {
    bitComparison compare(table.name);
    for (std::uint32_t p = 0; p <= 0xFFFF; ++p) {
      const half_t x{static_cast<std::uint16_t>(p)};
      compare.check(table.results[p], table.function(x), x);
    }
  }
}

// A table that begins with a cache line does not touch one line more than it fills.
TEST(ResultTables, BeginWithACacheLine) {
  for (Table const& table : tables) EXPECT_EQ(reinterpret_cast<std::uintptr_t>(table.results) % 64, 0u) << table.name;
}

}  // namespace
}  // namespace zthalf::testing
