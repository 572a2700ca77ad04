#include "linalg/half_chains.h"

#include <algorithm>

#include "core/instruction_level.h"
#include "core/nan_policy.h"
#include "linalg/rounded_chain.h"

namespace zthalf::linalg {

namespace {

// One chain on the defining unit; it ends with its first NaN.
std::uint16_t definedChain(float const* left, unsigned long step, float const* right, unsigned long k) {
  float temp = 0;
  for (unsigned long l = 0; l < k && temp == temp; ++l) {
    temp = definedUnit::sum(temp, definedUnit::product(left[l * step], right[l]));
    temp = widen<float>(narrow(temp));
  }
  return narrow(temp);
}

}  // namespace

halfChains::halfChains(unsigned long m, unsigned long n, unsigned long k, halfMatrix a, halfMatrix b)
    : m_(m),
      n_(n),
      k_(k),
      a_(a),
      b_(b),
      memory_(scratch::bytesFor<float>(m * k) + scratch::bytesFor<float>(k) + scratch::bytesFor<float>(m) +
              scratch::bytesFor<std::uint16_t>(m * k) + scratch::bytesFor<std::uint16_t>(m * n)),
      left_(memory_.take<float>(m * k)),
      right_(memory_.take<float>(k)),
      sums_(memory_.take<float>(m)),
      dense_(memory_.take<std::uint16_t>(m * k)),
      out_(memory_.take<std::uint16_t>(m * n)) {}

void halfChains::rearrange() {
  for (unsigned long l = 0; l < k_; ++l) std::copy_n(a_.data + l * a_.leading, m_, dense_ + l * m_);
  // Blocks that fit the first-level cache in both arrangements.
  constexpr unsigned long side = 32;
  for (unsigned long l0 = 0; l0 < k_; l0 += side) {
    for (unsigned long i0 = 0; i0 < m_; i0 += side) {
      for (unsigned long l = l0; l < std::min(l0 + side, k_); ++l) {
        for (unsigned long i = i0; i < std::min(i0 + side, m_); ++i) {
          left_[i + l * m_] = widen<float>(dense_[l + i * k_]);
        }
      }
    }
  }
}

void halfChains::run(std::uint16_t alpha, chainBegins const& begins) {
  rearrange();
  const auto chains = leveled<roundedChainsPass, roundedChains const*>::chosen();
  const float factor = widen<float>(alpha);
  for (unsigned long j = 0; j < n_; ++j) {
    for (unsigned long l = 0; l < k_; ++l) right_[l] = widen<float>(b_.data[l + j * b_.leading]);
    const roundedChains column{left_, right_, sums_, m_, k_};
    chains(&column);
    for (unsigned long i = 0; i < m_; ++i) {
      const float temp = sums_[i] == sums_[i] ? sums_[i] : widen<float>(definedChain(left_ + i, m_, right_, k_));
      const float scaled = definedUnit::product(factor, temp);
      out_[i + j * m_] = narrow(pattern::isZero(begins.beta) ? scaled : definedUnit::sum(scaled, begins.at(i, j)));
    }
  }
}

}  // namespace zthalf::linalg
