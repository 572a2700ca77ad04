#include "linalg/operand.h"

#include <cstring>

namespace zthalf::linalg {

template <class Base>
void operand<Base>::read(unsigned long i, unsigned long rows, unsigned long l, unsigned long columns, Base* re,
                         Base* im) const {
  if (im != nullptr && isReal_) std::memset(im, 0, rows * columns * sizeof(Base));
  if (rows == leading_) return readRun(at(i, l), rows * columns, re, im);
  for (unsigned long j = 0; j < columns; ++j) {
    readRun(at(i, l + j), rows, re + j * rows, im == nullptr ? nullptr : im + j * rows);
  }
}

template class operand<float>;
template class operand<double>;

}  // namespace zthalf::linalg
