#include "core/shape_parameters.h"
#include "elementwise/comparison.h"

namespace half {

template <class Left, class Right>
void ge(Left* a, Right* b, bool* c, ZTHALF_THREE_SHAPES) {
  compare<scalar::emulated::realOps::geFtor, utils::getFirstArgFtor>(a, b, c, ZTHALF_THREE_SHAPE_NAMES);
}

ZTHALF_COMPARISON(ZTHALF_COMPARISON_ROW, ge)

}  // namespace half
