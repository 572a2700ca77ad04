#include "core/instantiate.h"
#include "core/shape_parameters.h"
#include "elementwise/ternary_op.h"
#include "scalar/functors/multiply_add_functor.h"
#include "zthalf/half_ops.h"

namespace half {

template <class A, class B, class C, class Out>
void fma(A* a, B* b, C* c, Out* d, ZTHALF_FOUR_SHAPES) {
  half_utils::halfTernaryOp<scalar::emulated::fmaFtor>(a, b, c, d, ZTHALF_FOUR_SHAPE_NAMES);
}

ZTHALF_FMA_ENTRIES(ZTHALF_TERNARY_ROW)

}  // namespace half
