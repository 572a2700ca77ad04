#include "scalar/kernels/cplx_asin_acos_single.h"

#include "tests/scalar/kernels/complex_comparison.h"
#include "tests/scalar/kernels/complex_inverse_steps.h"

namespace zthalf::testing {
namespace {

using namespace qsl_scalar;

const float quiet = std::bit_cast<float>(0x7FC00000u);

TEST(CplxAsinSingle, EqualsItsSteps) {
  expectSteps<float>("cplxAsinSingle", quickComplex, cplxAsinSingle, complex_steps::asin);
}
TEST(CplxAcosSingle, EqualsItsSteps) {
  expectSteps<float>("cplxAcosSingle", quickComplex, cplxAcosSingle, complex_steps::acos);
}
TEST(CplxAcoshSingle, EqualsItsSteps) {
  expectSteps<float>("cplxAcoshSingle", quickComplex, cplxAcoshSingle, complex_steps::acosh);
}

TEST(CplxInverseFunctions, OnTheRealAxis) {
  expectComplexCases(cplxAsinSingle, {{1, 0, 0x3FC90FDB, 0x00000000, "within the domain the real function"},
                                      {quiet, 0, 0xFFC00000, 0x00000000, "a NaN as well"},
                                      {2, 0, 0x3FC90FDB, 0xBFA89214, "beyond: pi/2"},
                                      {-2, 0, 0xBFC90FDB, 0x3FA89214, "on the left -pi/2"}});
  expectComplexCases(cplxAcosSingle, {{1, 0, 0x00000000, 0x00000000, "one"},
                                      {quiet, -0.0f, 0xFFC00000, 0x00000000, "a NaN"},
                                      {-1, 0, 0x40490FDB, 0x00000000, "minus one"}});
  expectComplexCases(cplxAcoshSingle, {{1, 0, 0x00000000, 0x00000000, "one"},
                                       {0, 0, 0x00000000, 0x3FC90FDB, "zero"},
                                       {quiet, 0, 0x7FC00000, 0x00000000, "a NaN keeps its sign"}});
}

}  // namespace
}  // namespace zthalf::testing
