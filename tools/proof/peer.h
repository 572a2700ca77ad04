// How a peer's rows come about. The work is divided as programs divide it: each thread takes a piece of the same
// length, and sums are those of the pieces, added from first to last.
#pragma once

#include <thread>
#include <vector>

#include "tools/proof/inputs.h"
#include "tools/proof/row.h"

namespace proof {

// Calls body(piece, begin, end) for each of so many pieces of [0, n), each on a thread of its own.
template <class Body>
void onThreads(unsigned threads, unsigned long n, Body body) {
  std::vector<std::thread> running;
  for (unsigned piece = 0; piece < threads; ++piece)
    running.emplace_back(body, piece, n * piece / threads, n * (piece + 1) / threads);
  for (std::thread& thread : running) thread.join();
}

// A peer is a class with static members: half, a type of 2 bytes; sum<Accumulator>(x, n); times(x, y, out, n);
// exp(x, out, n); complexTimes(z, w, out, n).
template <class Peer>
class peerRun {
  using half = typename Peer::half;
  static half* halves(std::vector<std::uint16_t>& patterns) { return reinterpret_cast<half*>(patterns.data()); }

 public:
  peerRun(inputs& in, unsigned threads) : in_(in), threads_(threads) {}

  results compute() {
    results found{};
    found.sums[0] = sum<half>();
    found.sums[1] = sum<float>();
    found.sums[2] = sum<double>();
    half *x = halves(in_.left), *y = halves(in_.right), *every = halves(in_.every);
    elementwise(found.products, pairCount,
                [=](half* out, auto begin, auto n) { Peer::times(x + begin, y + begin, out + begin, n); });
    elementwise(found.exponentials, patternCount,
                [=](half* out, auto begin, auto n) { Peer::exp(every + begin, out + begin, n); });
    half *z = halves(in_.z), *w = halves(in_.w);
    found.complexProducts.resize(2 * pairCount);
    half* const out = halves(found.complexProducts);
    onThreads(threads_, pairCount, [=](unsigned, unsigned long begin, unsigned long end) {
      Peer::complexTimes(z + 2 * begin, w + 2 * begin, out + 2 * begin, end - begin);
    });
    return found;
  }

 private:
  template <class Accumulator>
  std::uint16_t sum() {
    std::vector<Accumulator> parts(threads_);
    half* const x = halves(in_.addends);
    onThreads(threads_, sumCount, [&](unsigned piece, unsigned long begin, unsigned long end) {
      parts[piece] = Peer::template sum<Accumulator>(x + begin, end - begin);
    });
    Accumulator total = parts[0];
    for (unsigned piece = 1; piece < threads_; ++piece) total += parts[piece];
    std::vector<std::uint16_t> result(1);
    *halves(result) = static_cast<half>(total);
    return result[0];
  }

  template <class Body>
  void elementwise(std::vector<std::uint16_t>& results, unsigned long n, Body body) {
    results.resize(n);
    half* const out = halves(results);
    onThreads(threads_, n,
              [=](unsigned, unsigned long begin, unsigned long end) { body(out, begin, end - begin); });
  }

  inputs& in_;
  unsigned threads_;
};

template <class Peer>
int printPeerRows(char const* name, char const* set) {
  inputs in = makeInputs();
  for (const unsigned threads : threadCounts) report(name, set, threads, peerRun<Peer>(in, threads).compute());
  return 0;
}

}  // namespace proof
