#include "elementwise/comparison.h"

namespace half {

template <class Left, class Right>
void lt(Left* a, Right* b, bool* c, unsigned long na, unsigned long ndimsA, unsigned long const* dimsA,
        unsigned long nb, unsigned long ndimsB, unsigned long const* dimsB, unsigned long nc, unsigned long ndimsC,
        unsigned long const* dimsC) {
  compare<scalar::emulated::realOps::ltFtor, utils::getFirstArgFtor>(a, b, c, na, ndimsA, dimsA, nb, ndimsB, dimsB, nc,
                                                                     ndimsC, dimsC);
}

ZTHALF_COMPARISON(ZTHALF_INSTANTIATE_COMPARISON, lt)

}  // namespace half
