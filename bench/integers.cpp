// Half to and from the integers and bool.
#include "bench/peers/peers.h"
#include "bench/rows.h"
#include "zthalf/half_vector.h"

namespace bench {
namespace {

template <class T>
void bothWays(std::string const& type, unaryCall<T, half_t> peerPasses::*to = nullptr,
              unaryCall<half_t, T> peerPasses::*from = nullptr) {
  std::vector<unaryPeer<T, half_t>> toPeers;
  std::vector<unaryPeer<half_t, T>> fromPeers;
  if (to != nullptr) {
    for (peerPasses const& peer : peers()) {
      toPeers.push_back({peer.name, peer.*to});
      fromPeers.push_back({peer.name, peer.*from});
    }
  }
  unaryRow<T, half_t>(type + "-to-half", half_vector::convertToHalf, toPeers);
  unaryRow<half_t, T>("half-to-" + type, half_vector::convertFromHalf, fromPeers);
}

const bool added = addRows([] {
  bothWays<unsigned char>("uint8");
  bothWays<signed char>("int8");
  bothWays<unsigned short>("uint16");
  bothWays<short>("int16");
  bothWays<unsigned int>("uint32");
  bothWays<int>("int32", &peerPasses::int32ToHalf, &peerPasses::halfToInt32);
  bothWays<unsigned long long>("uint64");
  bothWays<long long>("int64");
  bothWays<bool>("logical");
  unaryInPlace<short, half_t>("int16-to-half", half_vector::convertToHalf);
  unaryHardships<half_t, int>("half-to-int32", half_vector::convertFromHalf);
});

}  // namespace
}  // namespace bench
