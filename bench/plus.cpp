// The sum of two arrays of one size, and of an array and one value.
#include "bench/peers/peers.h"
#include "bench/rows.h"
#include "zthalf/half_vector.h"

namespace bench {
namespace {

void plus(half_t* a, unsigned long na, half_t* b, unsigned long nb, half_t* c, unsigned long nc) {
  half_vector::plus(a, b, c, na, 1, &na, nb, 1, &nb, nc, 1, &nc);
}

template <class Call>
auto twoArrays(Call call, unsigned long n, content kind, placement place = aligned) {
  return [=] {
    auto left = filled<half_t>(n, kind, place.sourceShift);
    auto right = filled<half_t>(n, content::plain, place.sourceShift + (place.sourceShift != 0 ? 1 : 0));
    array<half_t> out(n, place.destinationShift);
    return [=] { call(left.data(), right.data(), out.data(), n); };
  };
}

void equalSizes(half_t* a, half_t* b, half_t* c, unsigned long n) { plus(a, n, b, n, c, n); }
void valueAndArray(half_t* a, half_t* b, half_t* c, unsigned long n) { plus(a, 1, b, n, c, n); }
void ontoTheLeft(half_t* a, half_t* b, half_t*, unsigned long n) { plus(a, n, b, n, a, n); }
void ontoTheRight(half_t* a, half_t* b, half_t*, unsigned long n) { plus(a, n, b, n, b, n); }

const bool added = addRows([] {
  for (const unsigned long n : {fitsFirstLevel, leavesNearCaches}) {
    const point p{"plus", "plain", n};
    measureOurs(p, twoArrays(equalSizes, n, content::plain));
    for (peerPasses const& peer : peers()) {
      if (peer.plus != nullptr) measure(p, peer.name, twoArrays(peer.plus, n, content::plain));
    }
    measureOurs({"plus-value", "plain", n}, twoArrays(valueAndArray, n, content::plain));
  }
  constexpr unsigned long n = fitsFirstLevel;
  measureOurs({"plus", "subnormals", n}, twoArrays(equalSizes, n, content::subnormals));
  measureOurs({"plus", "nans", n}, twoArrays(equalSizes, n, content::nans));
  measureOurs({"plus", "misaligned", n}, twoArrays(equalSizes, n, content::plain, misaligned));
  measureOurs({"plus", "onto-left", n}, twoArrays(ontoTheLeft, n, content::plain));
  measureOurs({"plus", "onto-right", n}, twoArrays(ontoTheRight, n, content::plain));
});

}  // namespace
}  // namespace bench
