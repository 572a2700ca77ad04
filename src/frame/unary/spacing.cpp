// The spacing of halves at the elements of an array.
#include "core/instantiate.h"
#include "frame/loops/simple_loop.h"
#include "scalar/functors/spacing_functors.h"
#include "zthalf/half_ops.h"

namespace half {

template <class T>
void eps(T* src, typename realType<T>::type* dst, unsigned long n) {
  half_utils::unaryOpSimpleLoop(src, dst, n, scalar::emulated::epsFtor{});
}

ZTHALF_SPACING_ENTRIES(ZTHALF_UNARY_ROW)

}  // namespace half
