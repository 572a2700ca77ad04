#include "linalg/settlement.h"

#include <algorithm>
#include <bit>
#include <type_traits>

#include "linalg/defined_tile.h"
#include "linalg/open_part.h"
#include "linalg/special_indices.h"

namespace zthalf::linalg {

namespace {

template <class Base, bool isComplex>
using working = std::conditional_t<isComplex, std::complex<Base>, Base>;

template <class Base>
void fill(Base* to, operand<Base> const& from, unsigned long i, unsigned long l) {
  Base re[chunkSize];
  from.read(i, 1, l, 1, re, nullptr);
  *to = re[0];
}
template <class Base>
void fill(std::complex<Base>* to, operand<Base> const& from, unsigned long i, unsigned long l) {
  Base re[chunkSize], im[chunkSize];
  from.read(i, 1, l, 1, re, im);
  *to = {re[0], im[0]};
}

// One output by its definition. Not merged into its caller, so that only who needs it has its tiles on the stack.
template <class W, class Base>
[[gnu::noinline]] W definedOutput(outputsOfProduct<Base> const& o, unsigned long i, unsigned long j) {
  W row[tileSize], column[tileSize], c{};
  for (unsigned long l0 = 0; l0 < o.k; l0 += tileSize) {
    const unsigned long depth = std::min(tileSize, o.k - l0);
    for (unsigned long l = 0; l < depth; ++l) {
      fill(&row[l], o.a, o.i0 + i, l0 + l);
      fill(&column[l], o.b, l0 + l, o.j0 + j);
    }
    std::fill(row + depth, row + tileSize, W{});
    std::fill(column + depth, column + tileSize, W{});
    half::impl::emulated::mtimesBlockParallel(row, column, &c, 1, depth, 1);
  }
  return c;
}

template <class Base>
bool isLarge(Base x) {
  return withoutSign(x) >= largeFrom<Base> && !isInfinite(x);
}
template <class Base>
bool isLarge(std::complex<Base> z) {
  return isLarge(z.real()) || isLarge(z.imag());
}

template <class Base>
Base elementAt(Base const* x, unsigned long, Base*) {
  return *x;
}
template <class Base>
std::complex<Base> elementAt(Base const* x, unsigned long plane, std::complex<Base>*) {
  return {x[0], x[plane]};
}

template <class Base>
Base& part(Base& x, unsigned) {
  return x;
}
template <class Base>
Base part(std::complex<Base> z, unsigned p) {
  return p == 0 ? z.real() : z.imag();
}

}  // namespace

template <class Base, bool isComplex, bool isOneChain>
bool settlement<Base, isComplex, isOneChain>::open() {
  using state = openPart<Base>;
  bool any = false;
  for (unsigned p = 0; p < parts; ++p) {
    for (unsigned long j = 0; j < outputs_.columns; ++j) {
      Base* const c = partsAt(0, j) + p * outputs_.plane;
      for (unsigned long i = 0; i < outputs_.rows; ++i) {
        if (c[i] == c[i]) continue;
        c[i] = state::opened();
        any = true;
        if constexpr (isOneChain) {
          const Base begin = outputs_.begins.at(outputs_.i0 + i, outputs_.j0 + j);
          if (begin != begin) {
            c[i] = state::decidedAs(begin);
          } else if (isInfinite(begin)) {
            c[i] = state::withMet(begin > 0 ? state::metPlus : state::metMinus);
          }
        }
      }
    }
  }
  return any;
}

template <class Base, bool isComplex, bool isOneChain>
bool settlement<Base, isComplex, isOneChain>::decide(stretch<Base> const& s) {
  leveled<specialsPass<Base, isComplex, isOneChain>, stretch<Base> const*, specialIndices const*>::chosen()(&s,
                                                                                                            &memory_);
  bool anyOpen = false;
  for (unsigned long j = 0; j < s.columns; ++j) {
    for (unsigned long i = 0; i < s.rows; ++i) {
      bool isOpen = false;
      for (unsigned p = 0; p < parts; ++p) isOpen |= openPart<Base>::isOpen(partsAt(i, j)[p * outputs_.plane]);
      if (!isOpen) continue;
      if constexpr (isOneChain) {
        anyOpen |= decideChain(s, i, j);
      } else {
        anyOpen |= decideLanes(s, i, j);
      }
    }
  }
  return anyOpen;
}

// The lanes of a stretch, the last one first; true while a part is open.
template <class Base, bool isComplex, bool isOneChain>
bool settlement<Base, isComplex, isOneChain>::decideLanes(stretch<Base> const& s, unsigned long i, unsigned long j) {
  using W = working<Base, isComplex>;
  using state = openPart<Base>;
  Base* const out = partsAt(i, j);
  for (unsigned lane = wordCount; lane-- > 0;) {
    std::uint32_t bits = memory_.ofRows[lane * s.rows + i] | memory_.ofColumns[j * wordCount + lane];
    if (bits == 0) continue;
    chainEnd<Base> end[parts];
    for (bool allNaN = false; bits != 0 && !allNaN; bits &= bits - 1) {
      const unsigned long l = placeOf<false>::index(lane, static_cast<unsigned long>(std::countr_zero(bits)));
      const W a = elementAt(s.a + i + l * s.rows, s.aPlane, static_cast<W*>(nullptr));
      const W b = elementAt(s.b + l + j * s.depth, s.bPlane, static_cast<W*>(nullptr));
      if (isLarge(a) || isLarge(b)) {
        const W c = definedOutput<W>(outputs_, i, j);
        for (unsigned p = 0; p < parts; ++p) {
          const Base x = part(c, p);
          out[p * outputs_.plane] = x != x ? state::decidedAs(x) : x;
        }
        return false;
      }
      const W product = half::impl::emulated::steps::product(a, b);
      allNaN = true;
      for (unsigned p = 0; p < parts; ++p) {
        end[p].add(part(product, p));
        allNaN = allNaN && end[p].isNaN();
      }
    }
    bool isOpen = false;
    for (unsigned p = 0; p < parts; ++p) {
      Base& x = out[p * outputs_.plane];
      if (!state::isOpen(x)) continue;
      if (end[p].isNaN()) {
        x = state::decidedAs(end[p].value);
      } else {
        x = state::withMet(state::met(x) | (end[p].value > 0 ? state::metPlus : state::metMinus));
        isOpen = true;
      }
    }
    if (!isOpen) return false;
  }
  return true;
}

// The next stretch of a chain of products of halves.
template <class Base, bool isComplex, bool isOneChain>
bool settlement<Base, isComplex, isOneChain>::decideChain(stretch<Base> const& s, unsigned long i, unsigned long j) {
  using state = openPart<Base>;
  Base& out = *partsAt(i, j);
  chainEnd<Base> end;
  if (state::met(out) != 0) end.add(state::closed(out));
  for (unsigned word = 0; word < wordCount; ++word) {
    std::uint32_t bits = memory_.ofRows[word * s.rows + i] | memory_.ofColumns[j * wordCount + word];
    for (; bits != 0; bits &= bits - 1) {
      const unsigned long l = placeOf<true>::index(word, static_cast<unsigned long>(std::countr_zero(bits)));
      end.add(definedUnit::product(s.a[i + l * s.rows], s.b[l + j * s.depth]));
      if (!end.isNaN()) continue;
      out = state::decidedAs(end.value);
      return false;
    }
  }
  if (end.value != 0) out = state::withMet(end.value > 0 ? state::metPlus : state::metMinus);
  return true;
}

template <class Base, bool isComplex, bool isOneChain>
void settlement<Base, isComplex, isOneChain>::close() {
  for (unsigned p = 0; p < parts; ++p) {
    for (unsigned long j = 0; j < outputs_.columns; ++j) {
      Base* const c = partsAt(0, j) + p * outputs_.plane;
      for (unsigned long i = 0; i < outputs_.rows; ++i) {
        if (openPart<Base>::isOpen(c[i])) c[i] = openPart<Base>::closed(c[i]);
      }
    }
  }
}

template class settlement<float, false, false>;
template class settlement<double, false, false>;
template class settlement<float, true, false>;
template class settlement<double, true, false>;
template class settlement<float, false, true>;

}  // namespace zthalf::linalg
