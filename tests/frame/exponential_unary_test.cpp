#include <gtest/gtest.h>

#include "scalar/functors/exponential_functors.h"
#include "tests/support/array_form.h"
#include "zthalf/detail/entries.h"
#include "zthalf/half_scalar.h"
#include "zthalf/half_vector.h"

namespace zthalf::testing {
namespace {

#define ZTHALF_TEST_ARRAY_FORM(entry, facade, In, Out, ...) \
  TEST(ExponentialArrays, entry) { arrayForm(#entry, half_vector::facade, half_scalar::facade).expectAll(); }

ZTHALF_EXPONENTIAL_ENTRIES(ZTHALF_TEST_ARRAY_FORM)

// The parallel path cuts no finer.
static_assert(half::scalar::emulated::expFtor::grain == 256 && half::scalar::emulated::expm1Ftor::grain == 256 &&
              half::scalar::emulated::pow2Ftor::grain == 256 && half::scalar::emulated::pow10Ftor::grain == 256);

}  // namespace
}  // namespace zthalf::testing
