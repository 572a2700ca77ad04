// Sum, product and mean as plain recursion over elements.
#pragma once

#include <string>
#include <vector>

#include "tests/reduce/reference_steps.h"

namespace zthalf::reference {

enum class folding { sum, prod, mean };

struct reductionKind {
  folding op;
  bool omitsNaN;
  bool isComplex;
};

// The results as pairs of doubles or halves, by their bits; a real one has 0 as second.
struct resultBits {
  std::uint64_t re, im;
  bool operator==(resultBits const&) const = default;
};

// Part is half_t, float or double: the accumulator. A double accumulator gives double results, the others halves.
template <class Part>
class reduction {
 public:
  using value = number<Part>;

  // Two patterns for each element of a complex array, one otherwise.
  reduction(reductionKind kind, std::vector<std::uint16_t> const& patterns) : kind_(kind), patterns_(patterns) {}

  resultBits whole(unsigned long n) const { return output(tree(0, n)); }

  std::vector<resultBits> along(std::vector<unsigned long> const& dims, bool firstReduced) const {
    const std::size_t keptFrom = firstReduced ? 1 : 0;
    unsigned long outputs = 1, elements = 1, combinations = 1;
    for (std::size_t d = 0; d < dims.size(); ++d) {
      elements *= dims[d];
      if (d % 2 == keptFrom) outputs *= dims[d];
      if (d % 2 != keptFrom && d > 0) combinations *= dims[d];
    }
    const unsigned long run = firstReduced ? dims[0] : 1;
    std::vector<folded> totals(outputs, {identity(), 0});
    // In memory order each output meets its elements in ascending order.
    for (unsigned long e = 0; run > 0 && e < elements; e += run) {
      folded& total = totals[outputOf(e, dims, keptFrom)];
      total = firstReduced ? finished(total, tree(e, run)) : stepped(total, e);
    }
    // Without elements there are still the trees of none.
    for (unsigned long k = 0; run == 0 && k < combinations; ++k) {
      for (folded& total : totals) total = finished(total, tree(0, 0));
    }
    std::vector<resultBits> results;
    for (folded const& total : totals) results.push_back(output(total));
    return results;
  }

 private:
  struct folded {
    value v;
    unsigned long count;
  };

  static unsigned long outputOf(unsigned long e, std::vector<unsigned long> const& dims, std::size_t keptFrom) {
    unsigned long output = 0, scale = 1;
    for (std::size_t d = 0; d < dims.size(); ++d) {
      if (d % 2 == keptFrom) {
        output += e % dims[d] * scale;
        scale *= dims[d];
      }
      e /= dims[d];
    }
    return output;
  }

  value identity() const { return {partFrom<Part>(kind_.op == folding::prod ? 0x3C00 : 0), partFrom<Part>(0)}; }

  bool hasNaN(value x) const { return isNaN(x.re) || (kind_.isComplex && isNaN(x.im)); }

  value combined(value a, value b) const {
    if (kind_.op == folding::prod)
      return kind_.isComplex ? complexProductOf(a, b) : value{unitProduct(a.re, b.re), a.im};
    return {unitSum(a.re, b.re), kind_.isComplex ? unitSum(a.im, b.im) : a.im};
  }

  value met(value a, value b) const {
    if (kind_.op != folding::mean && kind_.omitsNaN) {
      if (hasNaN(a) && hasNaN(b)) return identity();
      if (hasNaN(a)) return b;
      if (hasNaN(b)) return a;
    }
    return combined(a, b);
  }

  value element(unsigned long e) const {
    if (!kind_.isComplex) return {partFrom<Part>(patterns_[e]), partFrom<Part>(0)};
    return {partFrom<Part>(patterns_[2 * e]), partFrom<Part>(patterns_[2 * e + 1])};
  }

  folded stepped(folded total, unsigned long e) const {
    const value x = element(e);
    if (kind_.op == folding::mean && kind_.omitsNaN && hasNaN(x)) return total;
    return {met(total.v, x), total.count + 1};
  }

  folded tree(unsigned long begin, unsigned long n) const {
    if (n > 256) {
      const folded left = tree(begin, n / 2), right = tree(begin + n / 2, n - n / 2);
      return {met(left.v, right.v), left.count + right.count};
    }
    folded total{identity(), 0};
    for (unsigned long i = 0; i < n; ++i) total = stepped(total, begin + i);
    return total;
  }

  // Half accumulators take the tree's result first, a complex product of them in its multiplications alone.
  folded finished(folded total, folded partial) const {
    const unsigned long count = total.count + partial.count;
    if constexpr (std::is_same_v<Part, half_t>) {
      if (kind_.op != folding::prod || !kind_.isComplex) return {met(partial.v, total.v), count};
      if (kind_.omitsNaN && (hasNaN(total.v) || hasNaN(partial.v))) return {met(total.v, partial.v), count};
      return {totalTimesRun(total.v, partial.v), count};
    }
    return {met(total.v, partial.v), count};
  }

  resultBits output(folded total) const {
    if (kind_.op != folding::mean) return {outputPart(total.v.re), kind_.isComplex ? outputPart(total.v.im) : 0};
    const double re = wide(total.v.re), im = wide(total.v.im);
    const auto divisor = static_cast<double>(total.count);
    if (!kind_.isComplex) return {quotientPart(divided(re, divisor)), 0};
    double realPart = divided(re, divisor), imaginaryPart = divided(im, divisor);
    if (divisor == 0 && im != 0 && re == 0) realPart = 0;
    if (divisor == 0 && im == 0) imaginaryPart = 0;
    return {quotientPart(realPart), quotientPart(imaginaryPart)};
  }

  static double wide(Part x) {
    if constexpr (std::is_same_v<Part, half_t>) {
      return widenedToDouble(x.bits);
    } else {
      return x;
    }
  }
  static double divided(double x, double divisor) {
    volatile double a = x, b = divisor;
    return onUnit<double>([&] { return a / b; }, {x, divisor});
  }

  static std::uint64_t outputPart(half_t x) { return isNaN(x) ? (x.bits & 0x8000) | 0x7E00 : x.bits; }
  static std::uint64_t outputPart(float x) { return narrowed(x); }
  static std::uint64_t outputPart(double x) { return std::bit_cast<std::uint64_t>(x); }

  static std::uint64_t quotientPart(double q) {
    if constexpr (std::is_same_v<Part, half_t>) return narrowed(q);
    if constexpr (std::is_same_v<Part, float>) {
      volatile float single = static_cast<float>(q);
      return narrowed(float{single});
    }
    return std::bit_cast<std::uint64_t>(q);
  }

  reductionKind kind_;
  std::vector<std::uint16_t> const& patterns_;
};

}  // namespace zthalf::reference
