// Implicit expansion: what the walk over runs adds to the flat pass of the same length.
#include "bench/rows.h"
#include "zthalf/half_vector.h"

namespace bench {
namespace {

struct matrix {
  unsigned long rows, columns;
  unsigned long n() const { return rows * columns; }
};

auto expanded(matrix a, matrix b, matrix c) {
  return [=] {
    auto left = filled<half_t>(a.n());
    auto right = filled<half_t>(b.n());
    array<half_t> out(c.n());
    return [=] {
      half_vector::plus(left.data(), right.data(), out.data(), a.n(), 2, &a.rows, b.n(), 2, &b.rows, c.n(), 2, &c.rows);
    };
  };
}

const bool added = addRows([] {
  constexpr matrix full{1000, 1000};
  measureOurs({"expand-none-1000x1000", "plain", full.n()}, expanded(full, full, full));
  measureOurs({"expand-1000x1-with-1000x1000", "plain", full.n()}, expanded({1000, 1}, full, full));
  measureOurs({"expand-1x1000-with-1000x1000", "plain", full.n()}, expanded({1, 1000}, full, full));
  measureOurs({"expand-1000x1-with-1x1000", "plain", full.n()}, expanded({1000, 1}, {1, 1000}, full));
  constexpr matrix low{3, 100000};
  measureOurs({"expand-3x1-with-3x100000", "plain", low.n()}, expanded({3, 1}, low, low));
  measureOurs({"expand-3x1-with-1x100000", "plain", low.n()}, expanded({3, 1}, {1, 100000}, low));
  constexpr matrix medium{20, 20000};
  measureOurs({"expand-20x1-with-20x20000", "plain", medium.n()}, expanded({20, 1}, medium, medium));
});

}  // namespace
}  // namespace bench
