// sum, prod and mean choose an entry: with each combination of their arguments exactly one is called, with what it
// needs of the arguments as they came.
#include <gtest/gtest.h>

#include <limits>
#include <string>

#include "tests/support/selected_entries.h"
#include "zthalf/zthalf.h"

namespace zthalf {
namespace {

using testing::entriesReachedBy;
using testing::only;

struct selector {
  char const* name;
  decltype(half_vector::sum)* function;
};
constexpr selector selectors[] = {{"sum", half_vector::sum}, {"prod", half_vector::prod}, {"mean", half_vector::mean}};
constexpr bool flags[] = {false, true};
constexpr unsigned numbers[] = {FloatTypeHalf, FloatTypeSingle, FloatTypeDouble, 3, 7, 16, 0x40000000, ~0u};

// A double result is accumulated in double whatever is asked for; another one in float if that is asked for, else in
// half, a double accumulator included.
std::string precisionOf(unsigned accumulator, unsigned output) {
  if (output == FloatTypeDouble) return "Double";
  return accumulator == FloatTypeSingle ? "Single" : "Half";
}

TEST(ReductionSelectors, ReachTheEntryOfTheirFlagsAndTypes) {
  std::complex<double> src[4] = {}, dst[4];
  unsigned long one[] = {4}, two[] = {2, 2};
  for (const auto [name, select] : selectors) {
    for (const unsigned accumulator : numbers) {
      for (const unsigned output : numbers) {
        for (const bool omitNaN : flags) {
          for (const bool isComplex : flags) {
            const std::string ending =
                precisionOf(accumulator, output) + (omitNaN ? "OmitNaN" : "") + (isComplex ? "Cplx" : "");
            for (const unsigned long ndims : {1, 2}) {
              unsigned long* const dims = ndims == 1 ? one : two;
              for (const bool firstReduced : flags) {
                const auto expected = ndims == 1 && firstReduced
                                          ? only(name + ("SimpleReduce" + ending), src, dst, dims[0])
                                          : only(name + ("Reduce" + ending), src, dst, ndims, dims, firstReduced);
                EXPECT_EQ(entriesReachedBy([&, select = select] {
                            select(src, dst, ndims, dims, firstReduced, isComplex, omitNaN,
                                   static_cast<FloatTypeEnum>(accumulator), static_cast<FloatTypeEnum>(output));
                          }),
                          expected)
                    << "accumulator " << accumulator << ", output " << output;
              }
            }
          }
        }
      }
    }
  }
}

}  // namespace
}  // namespace zthalf
