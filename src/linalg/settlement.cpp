#include "linalg/settlement.h"

#include <algorithm>
#include <type_traits>

#include "linalg/defined_tile.h"

namespace zthalf::linalg {

namespace {

template <class Base, bool isComplex>
using working = std::conditional_t<isComplex, std::complex<Base>, Base>;

template <class Base>
void fill(Base* to, operand<Base> const& from, unsigned long i, unsigned long l) {
  from.read(i, 1, l, 1, to, nullptr);
}
template <class Base>
void fill(std::complex<Base>* to, operand<Base> const& from, unsigned long i, unsigned long l) {
  Base re, im;
  from.read(i, 1, l, 1, &re, &im);
  *to = {re, im};
}

// One output by its definition.
template <class W, class Base>
W definedOutput(operand<Base> const& a, operand<Base> const& b, unsigned long i, unsigned long j, unsigned long k) {
  W row[tileSize], column[tileSize], c{};
  for (unsigned long l0 = 0; l0 < k; l0 += tileSize) {
    const unsigned long depth = std::min(tileSize, k - l0);
    for (unsigned long l = 0; l < depth; ++l) {
      fill(&row[l], a, i, l0 + l);
      fill(&column[l], b, l0 + l, j);
    }
    std::fill(row + depth, row + tileSize, W{});
    std::fill(column + depth, column + tileSize, W{});
    half::impl::emulated::mtimesBlockParallel(row, column, &c, 1, depth, 1);
  }
  return c;
}

}  // namespace

template <class Base, bool isComplex>
void settleNaNs(operand<Base> const& a, operand<Base> const& b, unsigned long k, unsigned long i0, unsigned long j0,
                finishedTile<Base> const& tile) {
  for (unsigned long j = 0; j < tile.columns; ++j) {
    for (unsigned long i = 0; i < tile.rows; ++i) {
      if constexpr (isComplex) {
        std::uint16_t* const out = tile.out + 2 * (i + j * tile.leading);
        if (!pattern::isNaN(out[0]) && !pattern::isNaN(out[1])) continue;
        const auto z = definedOutput<std::complex<Base>>(a, b, i0 + i, j0 + j, k);
        out[0] = narrow(z.real());
        out[1] = narrow(z.imag());
      } else {
        std::uint16_t* const out = tile.out + i + j * tile.leading;
        if (pattern::isNaN(*out)) *out = narrow(definedOutput<Base>(a, b, i0 + i, j0 + j, k));
      }
    }
  }
}

template void settleNaNs<float, false>(operand<float> const&, operand<float> const&, unsigned long, unsigned long,
                                       unsigned long, finishedTile<float> const&);
template void settleNaNs<double, false>(operand<double> const&, operand<double> const&, unsigned long, unsigned long,
                                        unsigned long, finishedTile<double> const&);
template void settleNaNs<float, true>(operand<float> const&, operand<float> const&, unsigned long, unsigned long,
                                      unsigned long, finishedTile<float> const&);
template void settleNaNs<double, true>(operand<double> const&, operand<double> const&, unsigned long, unsigned long,
                                       unsigned long, finishedTile<double> const&);

}  // namespace zthalf::linalg
