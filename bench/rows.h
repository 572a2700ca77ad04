// The rows of the benchmark table that are one input and one output array.
#pragma once

#include <cstring>
#include <utility>
#include <vector>

#include "bench/arrays.h"
#include "bench/harness.h"

namespace bench {

// Functions that register rows; main calls them all. A file of rows adds its own with
// const bool added = addRows([] { ... });
std::vector<void (*)()>& rowMakers();

inline bool addRows(void (*make)()) {
  rowMakers().push_back(make);
  return true;
}

template <class In, class Out>
using unaryCall = void (*)(In*, Out*, unsigned long);

template <class In, class Out>
struct unaryPeer {
  std::string name;
  unaryCall<In, Out> call;  // null where the peer does not have the operation
};

// How the two arrays lie.
struct placement {
  unsigned long sourceShift = 0;
  unsigned long destinationShift = 0;
};
inline constexpr placement aligned{0, 0};
inline constexpr placement misaligned{1, 3};

template <class In, class Out>
auto unaryOn(unaryCall<In, Out> call, unsigned long n, content kind, placement place = aligned) {
  return [=] {
    auto source = filled<In>(n, kind, place.sourceShift);
    array<Out> destination(n, place.destinationShift);
    return [=] { call(source.data(), destination.data(), n); };
  };
}

// Moving as many bytes as the operation reads and writes: the floor under every pass.
template <class In, class Out>
auto copyOf(unsigned long n) {
  return [=] {
    const unsigned long bytes = (sizeof(In) + sizeof(Out)) * n / 2;
    array<unsigned char> source(bytes);
    array<unsigned char> destination(bytes);
    return [=] { std::memcpy(destination.data(), source.data(), bytes); };
  };
}

// Plain data at both sizes, ours at each level, the peers and the copy.
template <class In, class Out>
void unaryRow(std::string const& row, unaryCall<In, Out> ours, std::vector<unaryPeer<In, Out>> const& peers = {}) {
  for (const unsigned long n : {fitsFirstLevel, leavesNearCaches}) {
    const point p{row, "plain", n};
    measureOurs(p, unaryOn(ours, n, content::plain));
    for (auto const& peer : peers) {
      if (peer.call != nullptr) measure(p, peer.name, unaryOn(peer.call, n, content::plain));
    }
    measure(p, "copy", copyOf<In, Out>(n));
  }
}

// Ours alone on data or places that tend to be slow, at the size where arithmetic counts.
template <class In, class Out>
void unaryHardships(std::string const& row, unaryCall<In, Out> ours) {
  constexpr unsigned long n = fitsFirstLevel;
  for (const content kind : {content::subnormals, content::nans}) {
    measureOurs({row, nameOf(kind), n}, unaryOn(ours, n, kind));
  }
  measureOurs({row, "misaligned", n}, unaryOn(ours, n, content::plain, misaligned));
}

// The destination is the source. Element types of one size only.
template <class T, class Out>
void unaryInPlace(std::string const& row, unaryCall<T, Out> ours) {
  static_assert(sizeof(T) == sizeof(Out));
  constexpr unsigned long n = fitsFirstLevel;
  measureOurs({row, "in-place", n}, [=] {
    auto both = filled<T>(n);
    return [=] { ours(both.data(), reinterpret_cast<Out*>(both.data()), n); };
  });
}

// Two arrays of one size met element by element, as a facade function does it.
template <class Left, class Right, class Out>
using expandingCall = void (*)(Left*, Right*, Out*, unsigned long, unsigned long, unsigned long const*, unsigned long,
                               unsigned long, unsigned long const*, unsigned long, unsigned long, unsigned long const*);

template <class Left, class Right, class Out>
auto pairsOn(expandingCall<Left, Right, Out> call, unsigned long n, content kind) {
  return [=] {
    auto left = filled<Left>(n, kind);
    auto right = filled<Right>(n);
    array<Out> out(n);
    return [=] { call(left.data(), right.data(), out.data(), n, 1, &n, n, 1, &n, n, 1, &n); };
  };
}

template <class T>
using pairPeer = void (*)(T*, T*, T*, unsigned long);

template <class T>
auto peerPairsOn(pairPeer<T> call, unsigned long n) {
  return [=] {
    auto left = filled<T>(n);
    auto right = filled<T>(n);
    array<T> out(n);
    return [=] { call(left.data(), right.data(), out.data(), n); };
  };
}

template <class Left, class Right, class Out>
void pairRow(std::string const& row, expandingCall<Left, Right, Out> ours) {
  for (const unsigned long n : {fitsFirstLevel, leavesNearCaches}) {
    measureOurs({row, "plain", n}, pairsOn<Left, Right, Out>(ours, n, content::plain));
  }
  measureOurs({row, "nans", fitsFirstLevel}, pairsOn<Left, Right, Out>(ours, fitsFirstLevel, content::nans));
}

}  // namespace bench
