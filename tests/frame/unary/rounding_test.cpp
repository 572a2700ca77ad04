// Rounding and spacing of arrays: values by name. All values, counts and overlaps are in unary_entries_test.cpp.
#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

#include "tests/support/one_value.h"
#include "zthalf/half_vector.h"

namespace zthalf {
namespace {

using operation = void (*)(half_t*, half_t*, unsigned long);

struct roundings {
  std::uint16_t x, ceil, floor, fix, round;
};

const roundings table[] = {{0x0001, 0x3C00, 0x0000, 0x0000, 0x0000}, {0x8001, 0x8000, 0xBC00, 0x8000, 0x8000},
                           {0x8000, 0x8000, 0x8000, 0x8000, 0x8000}, {0x3800, 0x3C00, 0x0000, 0x0000, 0x3C00},  // 0.5
                           {0x37FF, 0x3C00, 0x0000, 0x0000, 0x0000}, {0xB7FF, 0x8000, 0xBC00, 0x8000, 0x8000},
                           {0xB800, 0x8000, 0xBC00, 0x8000, 0xBC00},  // -0.5
                           {0x3E00, 0x4000, 0x3C00, 0x3C00, 0x4000},  // 1.5
                           {0x4100, 0x4200, 0x4000, 0x4000, 0x4200},  // 2.5, away from zero
                           {0xBFFF, 0xBC00, 0xC000, 0xBC00, 0xC000},  // just above -2
                           {0x63FF, 0x6400, 0x63FE, 0x63FE, 0x6400},  // 1023.5: into the next binade
                           {0x6400, 0x6400, 0x6400, 0x6400, 0x6400}, {0x7D00, 0x7D00, 0x7D00, 0x7D00, 0x7D00},
                           {0xFC00, 0xFC00, 0xFC00, 0xFC00, 0xFC00}, {0xFE01, 0xFE01, 0xFE01, 0xFE01, 0xFE01}};

TEST(RoundingUnary, GivesTheValuesOfTheTable) {
  for (const auto [x, ceil, floor, fix, round] : table) {
    testing::expectEverywhere<half_t, half_t>(&half_vector::ceil, {x}, {ceil});
    testing::expectEverywhere<half_t, half_t>(&half_vector::floor, {x}, {floor});
    testing::expectEverywhere<half_t, half_t>(&half_vector::fix, {x}, {fix});
    testing::expectEverywhere<half_t, half_t>(&half_vector::round, {x}, {round});
  }
}

TEST(Eps, IsTheSpacingOfTheBinadeAndAQuietNaNBeyond) {
  const operation eps = &half_vector::eps;
  for (const std::uint16_t special : {0x7C00, 0xFC00, 0x7C01, 0xFE00}) {
    testing::expectEverywhere<half_t, half_t>(eps, {special}, {0x7E00});
  }
  for (const std::uint16_t small : {0x0000, 0x8000, 0x0001, 0x83FF, 0x0400, 0x87FF}) {
    testing::expectEverywhere<half_t, half_t>(eps, {small}, {0x0001});
  }
  testing::expectEverywhere<half_t, half_t>(eps, {0x0800}, {0x0002});
  testing::expectEverywhere<half_t, half_t>(eps, {0x3C00}, {0x1400});
  testing::expectEverywhere<half_t, half_t>(eps, {0xBC01}, {0x1400});
  testing::expectEverywhere<half_t, half_t>(eps, {0x7BFF}, {0x5000});
}

TEST(RoundingUnary, WorksInPlace) {
  for (const operation op :
       {operation{&half_vector::ceil}, operation{&half_vector::floor}, operation{&half_vector::fix},
        operation{&half_vector::round}, operation{&half_vector::eps}}) {
    std::vector<half_t> data(1000);
    for (unsigned long i = 0; i < data.size(); ++i) data[i] = {static_cast<std::uint16_t>(i * 65)};
    std::vector<half_t> apart(data.size());
    op(data.data(), apart.data(), data.size());
    op(data.data(), data.data(), data.size());
    for (unsigned long i = 0; i < data.size(); ++i) EXPECT_EQ(data[i].bits, apart[i].bits) << i;
  }
}

}  // namespace
}  // namespace zthalf
