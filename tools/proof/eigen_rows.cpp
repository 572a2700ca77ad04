// Rows of Eigen's arrays of half.
#include <Eigen/Core>

#include "tools/proof/peer.h"

namespace {

struct eigenArrays {
  using half = Eigen::half;
  using array = Eigen::Map<Eigen::Array<half, Eigen::Dynamic, 1>>;
  using parts = Eigen::Map<Eigen::Array<half, Eigen::Dynamic, 1>, 0, Eigen::InnerStride<2>>;

  template <class Accumulator>
  static Accumulator sum(half* x, unsigned long n) {
    return array(x, static_cast<long>(n)).cast<Accumulator>().sum();
  }

  static void times(half* x, half* y, half* out, unsigned long n) {
    const auto count = static_cast<long>(n);
    array(out, count) = array(x, count) * array(y, count);
  }

  static void exp(half* x, half* out, unsigned long n) {
    const auto count = static_cast<long>(n);
    array(out, count) = array(x, count).exp();
  }

  static void complexTimes(half* z, half* w, half* out, unsigned long n) {
    const auto count = static_cast<long>(n);
    const parts a(z, count), b(z + 1, count), c(w, count), d(w + 1, count);
    parts(out, count) = a * c - b * d;
    parts(out + 1, count) = a * d + b * c;
  }
};

}  // namespace

int main() { return proof::printPeerRows<eigenArrays>("Eigen arrays", PROOF_SET); }
