#include "core/instantiate.h"
#include "core/shape_parameters.h"
#include "elementwise/binary_op.h"
#include "scalar/functors/extremum_functors.h"
#include "zthalf/half_extrema.h"

namespace half {

template <class Left, class Right, class Out>
void min(Left* a, Right* b, Out* c, ZTHALF_THREE_SHAPES) {
  half_utils::halfBinaryOp<scalar::emulated::minFtor>(a, b, c, ZTHALF_THREE_SHAPE_NAMES);
}

template <class Left, class Right, class Out>
void minOmitNaN(Left* a, Right* b, Out* c, ZTHALF_THREE_SHAPES) {
  half_utils::halfBinaryOp<scalar::emulated::minOmitNaNFtor>(a, b, c, ZTHALF_THREE_SHAPE_NAMES);
}

ZTHALF_MIN_ENTRIES(ZTHALF_BINARY_ROW)

}  // namespace half
