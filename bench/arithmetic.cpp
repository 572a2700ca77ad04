// The other arithmetic of two arrays: halves, and halves beside floats and doubles.
#include "bench/peers/peers.h"
#include "bench/rows.h"
#include "zthalf/half_vector.h"

namespace bench {
namespace {

using halfCall = expandingCall<half_t, half_t, half_t>;

void row(std::string const& name, halfCall ours, pairPeer<half_t> peerPasses::*peerPass) {
  pairRow<half_t, half_t, half_t>(name, ours);
  for (const unsigned long n : {fitsFirstLevel, leavesNearCaches}) {
    for (peerPasses const& peer : peers()) {
      if (peer.*peerPass != nullptr) measure({name, "plain", n}, peer.name, peerPairsOn<half_t>(peer.*peerPass, n));
    }
  }
}

const bool added = addRows([] {
  row("minus", half_vector::minus, &peerPasses::minus);
  row("times", half_vector::times, &peerPasses::times);
  row("rdivide", half_vector::rdivide, &peerPasses::rdivide);
  pairRow<half_t, float, half_t>("plus-half-single", half_vector::plus);
  pairRow<half_t, double, half_t>("plus-half-double", half_vector::plus);
  pairRow<half_t, float, half_t>("times-half-single", half_vector::times);
  pairRow<half_t, float, half_t>("rdivide-half-single", half_vector::rdivide);
});

}  // namespace
}  // namespace bench
