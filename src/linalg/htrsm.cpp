// The triangular solve: which of its branches the options choose, and its matrices in float.
#include <algorithm>

#include "linalg/blas_impl.h"
#include "linalg/options.h"
#include "linalg/scratch.h"
#include "linalg/triangular_solve.h"

namespace half::blas::impl {

namespace {

using namespace zthalf::linalg;

// A matrix of patterns, and the rectangle of it that is meant.
struct patternMatrix {
  unsigned short* data;
  unsigned long leading;
  unsigned short& at(unsigned long i, unsigned long j) const { return data[i + j * leading]; }
};

// B's vectors in strips: rows where A is on the left, columns where it is on the right. The last strip is filled with
// copies of its last element.
class strips {
 public:
  strips(patternMatrix b, unsigned long m, unsigned long n, bool areRows, float* memory)
      : b_(b), order_(areRows ? m : n), across_(areRows ? n : m), areRows_(areRows), memory_(memory) {}

  static unsigned long countFor(unsigned long across) { return (across + stripWidth - 1) / stripWidth; }

  float* strip(unsigned long s) const { return memory_ + s * order_ * stripWidth; }

  void read(unsigned long s) const {
    visit(s, [](unsigned short const& pattern, float& x) { x = zthalf::widen<float>(pattern); });
    const unsigned long used = std::min(stripWidth, across_ - s * stripWidth);
    for (unsigned long v = 0; v < order_; ++v) {
      float* const x = strip(s) + v * stripWidth;
      std::fill(x + used, x + stripWidth, x[used - 1]);
    }
  }
  void write(unsigned long s) const {
    visit(s, [](unsigned short& pattern, float& x) { pattern = zthalf::narrow(x); });
  }

 private:
  // Along the columns of B, as they lie in memory.
  template <class Visit>
  void visit(unsigned long s, Visit move) const {
    float* const x = strip(s);
    const unsigned long begin = s * stripWidth, used = std::min(stripWidth, across_ - begin);
    if (areRows_) {
      for (unsigned long e = 0; e < used; ++e) {
        for (unsigned long v = 0; v < order_; ++v) move(b_.at(v, begin + e), x[e + v * stripWidth]);
      }
    } else {
      for (unsigned long v = 0; v < order_; ++v) {
        for (unsigned long e = 0; e < used; ++e) move(b_.at(begin + e, v), x[e + v * stripWidth]);
      }
    }
  }

  patternMatrix b_;
  unsigned long order_, across_;
  bool areRows_;
  float* memory_;
};

// A, widened; transposed where coefficients of one vector lie in a row of it.
void readCoefficients(patternMatrix a, unsigned long order, bool transposed, float* to) {
  constexpr unsigned long side = 32;
  for (unsigned long j0 = 0; j0 < order; j0 += side) {
    for (unsigned long i0 = 0; i0 < order; i0 += side) {
      for (unsigned long j = j0; j < std::min(j0 + side, order); ++j) {
        for (unsigned long i = i0; i < std::min(i0 + side, order); ++i) {
          to[transposed ? j + i * order : i + j * order] = zthalf::widen<float>(a.at(i, j));
        }
      }
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
  const patternMatrix matrixB{b, ldb};
  if (zthalf::pattern::isZero(alpha)) {
    for (unsigned long j = 0; j < n; ++j) std::fill_n(b + j * ldb, m, zthalf::pattern::zero);
    return;
  }
  const unsigned long order = isLeft ? m : n, across = isLeft ? n : m, count = strips::countFor(across);
  scratch memory(scratch::bytesFor<float>(order * order) + scratch::bytesFor<float>(count * order * stripWidth) +
                 scratch::bytesFor<std::uint32_t>(order * stripWidth));
  float* const coefficients = memory.take<float>(order * order);
  const strips columns(matrixB, m, n, isLeft, memory.take<float>(count * order * stripWidth));
  std::uint32_t* const present = memory.take<std::uint32_t>(order * stripWidth);
  readCoefficients({a, lda}, order, isLeft == isPlain, coefficients);
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
