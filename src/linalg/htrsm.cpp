// The triangular solve: which of its branches the options choose, and its matrices in float.
#include <algorithm>

#include "linalg/blas_impl.h"
#include "linalg/operand.h"
#include "linalg/options.h"
#include "linalg/result.h"
#include "linalg/scratch.h"
#include "linalg/triangular_solve.h"

namespace half::blas::impl {

namespace {

using namespace zthalf::linalg;

fp16binary_t const* halves(unsigned short const* patterns) { return reinterpret_cast<fp16binary_t const*>(patterns); }

static_assert(chunkSize <= stripWidth);  // a strip has room for a whole chunk

// B's vectors in strips: rows where A is on the left, columns where it is on the right. The last strip is filled up
// with zeros, which no solve turns into anything but zeros or NaNs that nobody looks at.
class strips {
 public:
  // columnMemory has room for a column of B and a chunk.
  strips(unsigned short* b, unsigned long ldb, unsigned long m, unsigned long n, bool areRows, float* memory,
         float* columnMemory)
      : b_(b),
        ldb_(ldb),
        source_(halves(b), ldb),
        order_(areRows ? m : n),
        across_(areRows ? n : m),
        areRows_(areRows),
        memory_(memory),
        column_(columnMemory) {}

  static unsigned long countFor(unsigned long across) { return (across + stripWidth - 1) / stripWidth; }

  float* strip(unsigned long s) const { return memory_ + s * order_ * stripWidth; }

  void read(unsigned long s) const {
    float* const x = strip(s);
    const unsigned long begin = s * stripWidth, used = usedOf(s);
    if (used < stripWidth) std::fill_n(x, order_ * stripWidth, 0.0f);
    if (areRows_) {
      for (unsigned long e = 0; e < used; ++e) {
        source_.read(0, order_, begin + e, 1, column_, nullptr);
        for (unsigned long v = 0; v < order_; ++v) x[e + v * stripWidth] = column_[v];
      }
    } else {
      for (unsigned long v = 0; v < order_; ++v) source_.read(begin, used, v, 1, x + v * stripWidth, nullptr);
    }
  }

  void write(unsigned long s) const {
    float* const x = strip(s);
    const unsigned long begin = s * stripWidth, used = usedOf(s);
    if (areRows_) {
      for (unsigned long e = 0; e < used; ++e) {
        for (unsigned long v = 0; v < order_; ++v) column_[v] = x[e + v * stripWidth];
        round({column_, 0, 0, order_, 1, b_ + (begin + e) * ldb_, ldb_});
      }
    } else {
      round({x, stripWidth, 0, used, order_, b_ + begin, ldb_});
    }
  }

 private:
  unsigned long usedOf(unsigned long s) const { return std::min(stripWidth, across_ - s * stripWidth); }

  static void round(finishedTile<float> const& tile) {
    bool anyNaN;
    zthalf::leveled<storePass<float, false>, finishedTile<float> const*, bool*>::chosen()(&tile, &anyNaN);
  }

  unsigned short* b_;
  unsigned long ldb_;
  operand<float> source_;
  unsigned long order_, across_;
  bool areRows_;
  float* memory_;
  float* column_;
};

// A, widened; transposed where coefficients of one vector lie in a row of it. In blocks that fit the first-level cache.
void readCoefficients(operand<float> const& a, unsigned long order, bool transposed, float* to, float* column) {
  if (!transposed) return a.read(0, order, 0, order, to, nullptr);
  constexpr unsigned long side = 32;
  for (unsigned long i0 = 0; i0 < order; i0 += side) {
    const unsigned long rows = std::min(side, order - i0);
    for (unsigned long j = 0; j < order; ++j) {
      a.read(i0, rows, j, 1, column, nullptr);
      for (unsigned long i = 0; i < rows; ++i) to[j + (i0 + i) * order] = column[i];
    }
  }
}

template <class Unit>
bool solve(triangularSystem const& system, float* strip, std::uint32_t* present) {
  bool anyNaN;
  zthalf::leveled<stripPass<Unit>, triangularSystem const*, float*, std::uint32_t*, bool*>::chosen()(&system, strip,
                                                                                                     present, &anyNaN);
  return anyNaN;
}

}  // namespace

// Everything is read before anything is written, as matrices may lie in each other.
void htrsm(char* side, char* uplo, char* transa, char* diag, unsigned long m, unsigned long n, unsigned short alpha,
           unsigned short* a, unsigned long lda, unsigned short* b, unsigned long ldb) {
  if (m == 0 || n == 0) return;
  const bool isLeft = isOption(side, 'l'), isUpper = isOption(uplo, 'u'), isPlain = isOption(transa, 'n');
  if (zthalf::pattern::isZero(alpha)) {
    for (unsigned long j = 0; j < n; ++j) std::fill_n(b + j * ldb, m, zthalf::pattern::zero);
    return;
  }
  const unsigned long order = isLeft ? m : n, across = isLeft ? n : m, count = strips::countFor(across);
  const unsigned long columnSize = std::max(order, stripWidth) + chunkSize, stripsSize = count * order * stripWidth;
  scratch memory(scratch::bytesFor<float>(order * order + chunkSize) + scratch::bytesFor<float>(stripsSize) +
                 scratch::bytesFor<float>(columnSize) + scratch::bytesFor<std::uint32_t>(order * stripWidth));
  float* const coefficients = memory.take<float>(order * order + chunkSize);
  float* const stripMemory = memory.take<float>(stripsSize);
  float* const column = memory.take<float>(columnSize);
  std::uint32_t* const present = memory.take<std::uint32_t>(order * stripWidth);
  const strips columns(b, ldb, m, n, isLeft, stripMemory, column);
  readCoefficients(operand<float>(halves(a), lda), order, isLeft == isPlain, coefficients, column);
  for (unsigned long s = 0; s < count; ++s) columns.read(s);

  const bool isScaled = alpha != zthalf::pattern::one;
  const bool isAlways = isLeft && !isPlain;  // there alpha is always a factor
  triangularSystem system;
  system.coefficients = coefficients;
  system.order = order;
  system.descending = isUpper == (isLeft == isPlain);
  system.termsAscend = isLeft != isPlain;
  system.hasDiagonal = isOption(diag, 'n');
  system.usesReciprocal = !isLeft;
  system.coefficientFirst = !(isLeft && isPlain);
  system.skips = !isLeft ? skipping::coefficients : isPlain ? skipping::elements : skipping::nothing;
  system.scales = !isScaled && !isAlways ? scaling::none : !isLeft && !isPlain ? scaling::last : scaling::first;
  system.alpha = zthalf::widen<float>(alpha);

  for (unsigned long s = 0; s < count; ++s) {
    if (solve<zthalf::plainUnit>(system, columns.strip(s), present)) {
      columns.read(s);
      solve<zthalf::definedUnit>(system, columns.strip(s), present);
    }
  }
  for (unsigned long s = 0; s < count; ++s) columns.write(s);
}

}  // namespace half::blas::impl
