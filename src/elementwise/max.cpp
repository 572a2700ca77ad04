#include "core/instantiate.h"
#include "core/shape_parameters.h"
#include "elementwise/binary_op.h"
#include "scalar/functors/extremum_functors.h"
#include "zthalf/half_extrema.h"

namespace half {

template <class Left, class Right, class Out>
void max(Left* a, Right* b, Out* c, ZTHALF_THREE_SHAPES) {
  half_utils::halfBinaryOp<scalar::emulated::maxFtor>(a, b, c, ZTHALF_THREE_SHAPE_NAMES);
}

template <class Left, class Right, class Out>
void maxOmitNaN(Left* a, Right* b, Out* c, ZTHALF_THREE_SHAPES) {
  half_utils::halfBinaryOp<scalar::emulated::maxOmitNaNFtor>(a, b, c, ZTHALF_THREE_SHAPE_NAMES);
}

ZTHALF_MAX_ENTRIES(ZTHALF_BINARY_ROW)

}  // namespace half
