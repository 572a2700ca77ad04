// The conversions between half and the other numeric types, on arrays.
#include "core/instantiate.h"
#include "frame/loops/simple_loop.h"
#include "scalar/functors/cast_functor.h"
#include "zthalf/half_ops.h"

namespace half {

// Any byte may stand in a logical array, so it is read as bytes and not as bools.
template <class T>
struct storageOf {
  using type = T;
};
template <>
struct storageOf<bool> {
  using type = unsigned char;
};

template <class From, class To>
void convert(From* src, To* dst, unsigned long n) {
  auto* stored = reinterpret_cast<typename storageOf<From>::type*>(src);
  half_utils::unaryOpSimpleLoop(stored, dst, n, scalar::emulated::castToFtor<From, To, void>{});
}

ZTHALF_CONVERSION_ENTRIES(ZTHALF_UNARY_ROW)

}  // namespace half
