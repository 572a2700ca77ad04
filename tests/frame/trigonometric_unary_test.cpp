#include <gtest/gtest.h>

#include "scalar/functors/trigonometric_functors.h"
#include "tests/support/array_form.h"
#include "zthalf/detail/entries.h"
#include "zthalf/half_scalar.h"
#include "zthalf/half_vector.h"

namespace zthalf::testing {
namespace {

#define ZTHALF_TEST_ARRAY_FORM(entry, facade, In, Out, ...) \
  TEST(TrigonometricArrays, entry) { arrayForm(#entry, half_vector::facade, half_scalar::facade).expectAll(); }

ZTHALF_TRIGONOMETRIC_ENTRIES(ZTHALF_TEST_ARRAY_FORM)

TEST(TrigonometricArrays, AnEmptyArrayMayComeWithNullPointers) {
#define ZTHALF_TEST_EMPTY(entry, facade, In, Out, ...) \
  half_vector::facade(static_cast<half_t*>(nullptr), static_cast<half_t*>(nullptr), 0);
  ZTHALF_TRIGONOMETRIC_ENTRIES(ZTHALF_TEST_EMPTY)
#undef ZTHALF_TEST_EMPTY
}

namespace functor = half::scalar::emulated;
static_assert(functor::sinFtor::grain == 256 && functor::cosFtor::grain == 256 && functor::tanFtor::grain == 256 &&
              functor::sinpiFtor::grain == 256 && functor::cospiFtor::grain == 256);

}  // namespace
}  // namespace zthalf::testing
