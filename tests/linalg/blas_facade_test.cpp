// The facade of the routines after BLAS and LAPACK hands every argument and result to its entry.
#include <gtest/gtest.h>

#include <string>

#include "tests/support/selected_entries.h"
#include "zthalf/half_vector.h"

namespace zthalf {
namespace {

using testing::entriesReachedBy;
using testing::only;

char first[] = "1", second[] = "2", third[] = "3", fourth[] = "4";
half_t a[1], b[1], c[1];
unsigned long rows[1];
constexpr std::uint16_t alpha = 0x8765, beta = 0x4321;

TEST(BlasFacade, HandsEveryArgumentToItsEntry) {
  EXPECT_EQ(
      entriesReachedBy([] { half_vector::hgemm(first, second, 11, 12, 13, {alpha}, a, 14, b, 15, {beta}, c, 16); }),
      only("hgemmHalfHalf", first, second, 11ul, 12ul, 13ul, alpha, a, 14ul, b, 15ul, beta, c, 16ul));
  EXPECT_EQ(entriesReachedBy([] { half_vector::hscal(11, {alpha}, a, 12); }),
            only("hscalHalfHalf", 11ul, alpha, a, 12ul));
  EXPECT_EQ(entriesReachedBy([] { half_vector::ihamax(11, a, 12); }), only("ihamax", 11ul, a, 12ul));
  EXPECT_EQ(entriesReachedBy([] { half_vector::hlaswp(11, a, 12, 13, 14, rows, -15); }),
            only("laswpHalf", 11ul, a, 12ul, 13ul, 14ul, rows, -15));
  EXPECT_EQ(entriesReachedBy([] { half_vector::htrsm(first, second, third, fourth, 11, 12, {alpha}, a, 13, b, 14); }),
            only("htrsmHalfHalf", first, second, third, fourth, 11ul, 12ul, alpha, a, 13ul, b, 14ul));
  int info = 99;
  EXPECT_EQ(entriesReachedBy([&] { half_vector::hgetrf2(11, 12, a, 13, rows, info); }),
            only("hgetrf2Half", 11ul, 12ul, a, 13ul, rows, 99));
  EXPECT_EQ(entriesReachedBy([&] { half_vector::hgetrf(11, 12, a, 13, rows, info); }),
            only("hgetrfHalf", 11ul, 12ul, a, 13ul, rows, 99));
}

}  // namespace
}  // namespace zthalf
