#include "core/shape_parameters.h"
#include "elementwise/comparison.h"

namespace half {

template <class Left, class Right>
void eq(Left* a, Right* b, bool* c, ZTHALF_THREE_SHAPES) {
  compare<scalar::emulated::realOps::eqFtor, utils::boolAndFtor>(a, b, c, ZTHALF_THREE_SHAPE_NAMES);
}

ZTHALF_COMPARISON(ZTHALF_COMPARISON_ROW, eq)

}  // namespace half
