// Rounding to integers, and spacing.
#include "bench/peers/peers.h"
#include "bench/rows.h"
#include "zthalf/half_vector.h"

namespace bench {
namespace {

const bool added = addRows([] {
  std::vector<unaryPeer<half_t, half_t>> floors;
  for (peerPasses const& peer : peers()) floors.push_back({peer.name, peer.floor});
  unaryRow<half_t, half_t>("floor", half_vector::floor, floors);
  unaryHardships<half_t, half_t>("floor", half_vector::floor);
  unaryInPlace<half_t, half_t>("floor", half_vector::floor);
  unaryRow<half_t, half_t>("ceil", half_vector::ceil);
  unaryRow<half_t, half_t>("fix", half_vector::fix);
  unaryRow<half_t, half_t>("round", half_vector::round);
  unaryRow<half_t, half_t>("eps", half_vector::eps);
  unaryHardships<half_t, half_t>("eps", half_vector::eps);
});

}  // namespace
}  // namespace bench
