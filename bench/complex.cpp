// Arithmetic of complex halves.
#include "bench/peers/peers.h"
#include "bench/rows.h"
#include "zthalf/half_vector.h"

namespace bench {
namespace {

using complexHalf = std::complex<half_t>;
using complexCall = expandingCall<complexHalf, complexHalf, complexHalf>;

void row(std::string const& name, complexCall ours, pairPeer<complexHalf> peerPasses::*peerPass) {
  pairRow<complexHalf, complexHalf, complexHalf>(name, ours);
  if (peerPass == nullptr) return;
  for (const unsigned long n : {fitsFirstLevel, leavesNearCaches}) {
    for (peerPasses const& peer : peers()) {
      if (peer.*peerPass != nullptr)
        measure({name, "plain", n}, peer.name, peerPairsOn<complexHalf>(peer.*peerPass, n));
    }
  }
}

const bool added = addRows([] {
  row("complex-plus", half_vector::plus, &peerPasses::complexPlus);
  row("complex-times", half_vector::times, &peerPasses::complexTimes);
  pairRow<half_t, complexHalf, complexHalf>("complex-times-real", half_vector::times);
  row("complex-rdivide", half_vector::rdivide, nullptr);
  pairRow<complexHalf, half_t, complexHalf>("complex-rdivide-real", half_vector::rdivide);
  pairRow<half_t, complexHalf, complexHalf>("real-rdivide-complex", half_vector::rdivide);
  unaryRow<complexHalf, half_t>("complex-abs", half_vector::abs);
  unaryRow<complexHalf, complexHalf>("complex-sign", half_vector::sign);
});

}  // namespace
}  // namespace bench
