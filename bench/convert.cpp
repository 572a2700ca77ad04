// Half to and from single and double.
#include "bench/peers/peers.h"
#include "bench/rows.h"
#include "zthalf/half_vector.h"

namespace bench {
namespace {

template <class In, class Out>
std::vector<unaryPeer<In, Out>> peersFor(unaryCall<In, Out> peerPasses::*pass) {
  std::vector<unaryPeer<In, Out>> found;
  for (peerPasses const& peer : peers()) found.push_back({peer.name, peer.*pass});
  return found;
}

template <class In, class Out>
void row(std::string const& name, unaryCall<In, Out> ours, unaryCall<In, Out> peerPasses::*pass) {
  unaryRow<In, Out>(name, ours, peersFor(pass));
  unaryHardships<In, Out>(name, ours);
}

const bool added = addRows([] {
  row<half_t, float>("half-to-single", half_vector::convertFromHalf, &peerPasses::halfToSingle);
  row<float, half_t>("single-to-half", half_vector::convertToHalf, &peerPasses::singleToHalf);
  row<half_t, double>("half-to-double", half_vector::convertFromHalf, &peerPasses::halfToDouble);
  row<double, half_t>("double-to-half", half_vector::convertToHalf, &peerPasses::doubleToHalf);
});

}  // namespace
}  // namespace bench
