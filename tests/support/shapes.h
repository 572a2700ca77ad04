// Shapes that meet by implicit expansion, and what the meeting means as plain index arithmetic.
#pragma once

#include <algorithm>
#include <ostream>
#include <random>
#include <string>
#include <vector>

namespace zthalf::testing {

using sizeList = std::vector<unsigned long>;

inline unsigned long countOf(sizeList const& dims) {
  unsigned long n = 1;
  for (const unsigned long size : dims) n *= size;
  return n;
}

// A dimension beyond the list counts as 1.
inline unsigned long sizeIn(sizeList const& dims, unsigned long d) { return d < dims.size() ? dims[d] : 1; }

// Where an operand's element for output element k stands in its array.
inline unsigned long offsetIn(sizeList const& operand, sizeList const& out, unsigned long k) {
  unsigned long offset = 0, step = 1;
  for (unsigned long d = 0; d < out.size(); ++d) {
    const unsigned long index = k % out[d];
    k /= out[d];
    if (sizeIn(operand, d) != 1) offset += index * step;
    step *= sizeIn(operand, d);
  }
  return offset;
}

struct meetingShapes {
  sizeList a, b, c;

  unsigned long offsetInA(unsigned long k) const { return offsetIn(a, c, k); }
  unsigned long offsetInB(unsigned long k) const { return offsetIn(b, c, k); }
};

inline std::ostream& operator<<(std::ostream& out, meetingShapes const& shapes) {
  const auto text = [](sizeList const& dims) {
    std::string line = "[";
    for (const unsigned long size : dims) line += std::to_string(size) + " ";
    return line + "]";
  };
  return out << text(shapes.a) << " with " << text(shapes.b) << " to " << text(shapes.c);
}

// The output of two operands: the larger size, but 0 where one of them has 0 elements in a dimension.
inline meetingShapes met(sizeList a, sizeList b) {
  sizeList c(std::max(a.size(), b.size()));
  for (unsigned long d = 0; d < c.size(); ++d) {
    const unsigned long left = sizeIn(a, d), right = sizeIn(b, d);
    c[d] = left == 0 || right == 0 ? 0 : std::max(left, right);
  }
  return {std::move(a), std::move(b), std::move(c)};
}

// Three operands and their output.
struct tripleShapes {
  sizeList a, b, c, out;
};

inline std::ostream& operator<<(std::ostream& out, tripleShapes const& shapes) {
  return out << meetingShapes{shapes.a, shapes.b, shapes.out} << ", third operand "
             << meetingShapes{shapes.c, {}, shapes.out};
}

inline tripleShapes met(sizeList a, sizeList b, sizeList c) {
  sizeList out = met(met(a, b).c, c).c;
  return {std::move(a), std::move(b), std::move(c), std::move(out)};
}

// Up to four dimensions of sizes 1 to 5 that each operand has or not.
inline tripleShapes randomTriple(std::mt19937_64& bits) {
  const auto below = [&](unsigned long limit) { return static_cast<unsigned long>(bits() % limit); };
  const unsigned long ndims = below(5);
  sizeList operands[3];
  for (unsigned long d = 0; d < ndims; ++d) {
    const unsigned long size = below(50) == 0 ? 0 : 1 + below(5);
    for (sizeList& dims : operands) dims.push_back(below(3) == 0 ? 1 : size);
  }
  for (sizeList& dims : operands) {
    if (below(6) == 0) std::fill(dims.begin(), dims.end(), 1);
    while (!dims.empty() && dims.back() == 1 && below(3) != 0) dims.pop_back();
  }
  return met(operands[0], operands[1], operands[2]);
}

// Up to six dimensions of sizes 1 to 6, now and then 0, each of them expanded in neither, one or both operands, with
// trailing dimensions left away or not.
inline meetingShapes randomMeeting(std::mt19937_64& bits) {
  const auto below = [&](unsigned long limit) { return static_cast<unsigned long>(bits() % limit); };
  const unsigned long ndims = below(7);
  sizeList a(ndims), b(ndims);
  for (unsigned long d = 0; d < ndims; ++d) {
    const unsigned long size = below(60) == 0 ? 0 : 1 + below(6);
    const unsigned long who = below(8);
    a[d] = who == 0 || who == 1 || who == 2 ? 1 : size;
    b[d] = who == 2 || who == 3 || who == 4 ? 1 : size;
  }
  const auto dropOnes = [&](sizeList& dims) {
    while (!dims.empty() && dims.back() == 1 && below(3) != 0) dims.pop_back();
  };
  dropOnes(a);
  dropOnes(b);
  return met(std::move(a), std::move(b));
}

}  // namespace zthalf::testing
