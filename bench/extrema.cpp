// min and max: of two arrays, of a whole array with and without index, along columns and rows, and of complex elements.
#include <tbb/global_control.h>

#include <cmath>

#include "bench/peers/peers.h"
#include "bench/rows.h"
#include "zthalf/half_vector.h"

namespace bench {
namespace {

using complexHalf = std::complex<half_t>;

template <class T>
auto pairing(bool omitNaN, unsigned long n, content kind) {
  return [=] {
    auto a = filled<T>(n, kind), b = filled<T>(n + 1, content::plain, 1);
    array<T> out(n);
    constexpr bool isComplex = std::is_same_v<T, complexHalf>;
    return [=] {
      half_vector::minBinOp(a.data(), b.data() + 1, out.data(), n, 1, &n, n, 1, &n, n, 1, &n, FloatTypeHalf,
                            FloatTypeHalf, isComplex, isComplex, omitNaN);
    };
  };
}

enum class form { whole, columns, rows };

template <class T>
auto searching(form over, bool withIndex, bool omitNaN, unsigned long n, content kind, std::size_t threads) {
  return [=] {
    const auto side = static_cast<unsigned long>(std::sqrt(static_cast<double>(n)));
    auto source = filled<T>(n, kind);
    array<T> results(side);
    array<double> index(side);
    auto limit = std::make_shared<tbb::global_control>(tbb::global_control::max_allowed_parallelism, threads);
    return [=] {
      unsigned long dims[2] = {over == form::whole ? n : side, n / side};
      const unsigned long ndims = over == form::whole ? 1 : 2;
      constexpr bool isComplex = std::is_same_v<T, complexHalf>;
      if (withIndex) {
        half_vector::minUnaryOpWithIndex(source.data(), results.data(), index.data(), ndims, dims, over != form::rows,
                                         omitNaN, isComplex, true);
      } else {
        half_vector::minUnaryOp(source.data(), results.data(), ndims, dims, over != form::rows, omitNaN, isComplex);
      }
      static_cast<void>(limit);
    };
  };
}

template <class T>
void rowsOf(std::string const& name, form over) {
  for (const unsigned long n : {fitsFirstLevel, leavesNearCaches}) {
    measureOurs({name, "plain", n}, searching<T>(over, false, false, n, content::plain, 1));
    measureOurs({name + "-index", "plain", n}, searching<T>(over, true, false, n, content::plain, 1));
    measureOurs({name + "-omitnan", "plain", n}, searching<T>(over, false, true, n, content::plain, 1));
    measureOurs({name + "-omitnan", "nans", n}, searching<T>(over, false, true, n, content::nans, 1));
  }
}

void rowsOfPeers(peerPasses const& peer, unsigned long n) {
  if (peer.smaller != nullptr) {
    measure({"min-pairs", "plain", n}, peer.name, [call = peer.smaller, n] {
      auto a = filled<half_t>(n), b = filled<half_t>(n + 1, content::plain, 1);
      array<half_t> out(n);
      return [=] { call(a.data(), b.data() + 1, out.data(), n); };
    });
  }
  if (peer.smallest != nullptr) {
    measure({"min", "plain", n}, peer.name, unaryOn(peer.smallest, n, content::plain));
    measure({"min-index", "plain", n}, peer.name, unaryOn(peer.positionOfSmallest, n, content::plain));
    measure({"min-complex", "plain", n}, peer.name, unaryOn(peer.shortest, n, content::plain));
  }
}

const bool added = addRows([] {
  for (const unsigned long n : {fitsFirstLevel, leavesNearCaches}) {
    measureOurs({"min-pairs", "plain", n}, pairing<half_t>(false, n, content::plain));
    measureOurs({"min-pairs-omitnan", "plain", n}, pairing<half_t>(true, n, content::plain));
    measureOurs({"min-pairs", "nans", n}, pairing<half_t>(false, n, content::nans));
    measureOurs({"min-pairs-complex", "plain", n}, pairing<complexHalf>(false, n, content::plain));
    for (peerPasses const& peer : peers()) rowsOfPeers(peer, n);
  }
  rowsOf<half_t>("min", form::whole);
  rowsOf<half_t>("min-columns", form::columns);
  rowsOf<half_t>("min-rows", form::rows);
  rowsOf<complexHalf>("min-complex", form::whole);
  rowsOf<complexHalf>("min-complex-columns", form::columns);
  rowsOf<complexHalf>("min-complex-rows", form::rows);
  constexpr unsigned long fillsMemory = 16777216;
  for (const std::size_t threads : {1, 2}) {
    const std::string ending = threads == 1 ? "" : "-2threads";
    measureOurs({"min" + ending, "plain", fillsMemory, true},
                searching<half_t>(form::whole, false, false, fillsMemory, content::plain, threads));
    measureOurs({"min-complex" + ending, "plain", fillsMemory, true},
                searching<complexHalf>(form::whole, false, false, fillsMemory, content::plain, threads));
  }
});

}  // namespace
}  // namespace bench
