#include "core/shape_parameters.h"
#include "elementwise/comparison.h"

namespace half {

template <class Left, class Right>
void ne(Left* a, Right* b, bool* c, ZTHALF_THREE_SHAPES) {
  compare<scalar::emulated::realOps::neFtor, utils::boolOrFtor>(a, b, c, ZTHALF_THREE_SHAPE_NAMES);
}

ZTHALF_COMPARISON(ZTHALF_COMPARISON_ROW, ne)

}  // namespace half
