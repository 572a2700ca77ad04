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
  from.read(i, 1, l, 1, to, nullptr);
}
template <class Base>
void fill(std::complex<Base>* to, operand<Base> const& from, unsigned long i, unsigned long l) {
  Base re, im;
  from.read(i, 1, l, 1, &re, &im);
  *to = {re, im};
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

template <class Base, bool isComplex>
bool settlement<Base, isComplex>::open() {
  bool any = false;
  for (unsigned p = 0; p < (isComplex ? 2 : 1); ++p) {
    for (unsigned long j = 0; j < outputs_.columns; ++j) {
      Base* const c = outputs_.c + p * outputs_.plane + j * outputs_.column;
      for (unsigned long i = 0; i < outputs_.rows; ++i) {
        if (c[i] == c[i]) continue;
        c[i] = openPart<Base>::opened();
        any = true;
      }
    }
  }
  return any;
}

template <class Base, bool isComplex>
bool settlement<Base, isComplex>::decide(stretch<Base> const& s) {
  using W = working<Base, isComplex>;
  using state = openPart<Base>;
  constexpr unsigned parts = isComplex ? 2 : 1;
  leveled<specialsPass<Base, isComplex, false>, stretch<Base> const*, specialIndices const*>::chosen()(&s, &memory_);

  bool anyOpen = false;
  for (unsigned long j = 0; j < s.columns; ++j) {
    std::uint32_t const* const ofColumn = memory_.ofColumns + j * wordCount;
    for (unsigned long i = 0; i < s.rows; ++i) {
      Base* out[parts];
      bool isOpen = false;
      for (unsigned p = 0; p < parts; ++p) {
        out[p] = outputs_.c + p * outputs_.plane + i + j * outputs_.column;
        isOpen |= state::isOpen(*out[p]);
      }
      if (!isOpen) continue;
      for (unsigned lane = wordCount; isOpen && lane-- > 0;) {
        std::uint32_t bits = memory_.ofRows[lane * s.rows + i] | ofColumn[lane];
        if (bits == 0) continue;
        chainEnd<Base> end[parts];
        for (; bits != 0; bits &= bits - 1) {
          const unsigned long l = placeOf<false>::index(lane, static_cast<unsigned long>(std::countr_zero(bits)));
          const W a = elementAt(s.a + i + l * s.rows, s.aPlane, static_cast<W*>(nullptr));
          const W b = elementAt(s.b + l + j * s.depth, s.bPlane, static_cast<W*>(nullptr));
          if (isLarge(a) || isLarge(b)) {
            const W c = definedOutput<W>(outputs_, i, j);
            for (unsigned p = 0; p < parts; ++p) {
              const Base x = part(c, p);
              *out[p] = x != x ? state::decidedAs(x) : x;
            }
            isOpen = false;
            break;
          }
          const W product = half::impl::emulated::steps::product(a, b);
          bool allNaN = true;
          for (unsigned p = 0; p < parts; ++p) {
            end[p].add(part(product, p));
            allNaN = allNaN && end[p].isNaN();
          }
          if (allNaN) break;
        }
        if (!isOpen) break;
        isOpen = false;
        for (unsigned p = 0; p < parts; ++p) {
          if (!state::isOpen(*out[p])) continue;
          if (end[p].isNaN()) {
            *out[p] = state::decidedAs(end[p].value);
            continue;
          }
          isOpen = true;
          *out[p] = state::withMet(state::met(*out[p]) | (end[p].value > 0 ? state::metPlus : state::metMinus));
        }
      }
      anyOpen |= isOpen;
    }
  }
  return anyOpen;
}

template <class Base, bool isComplex>
void settlement<Base, isComplex>::close() {
  for (unsigned p = 0; p < (isComplex ? 2 : 1); ++p) {
    for (unsigned long j = 0; j < outputs_.columns; ++j) {
      Base* const c = outputs_.c + p * outputs_.plane + j * outputs_.column;
      for (unsigned long i = 0; i < outputs_.rows; ++i) {
        if (openPart<Base>::isOpen(c[i])) c[i] = openPart<Base>::closed(c[i]);
      }
    }
  }
}

template class settlement<float, false>;
template class settlement<double, false>;
template class settlement<float, true>;
template class settlement<double, true>;

}  // namespace zthalf::linalg
