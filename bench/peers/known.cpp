#include "bench/peers/peers.h"

namespace bench {

peerPasses float16_plain();
peerPasses eigen_plain();
peerPasses float16_avx2();
peerPasses eigen_avx2();
peerPasses hardware_avx2();
peerPasses float16_avx512();
peerPasses eigen_avx512();
peerPasses hardware_avx512();

std::vector<peerPasses> const& peers() {
  static const std::vector<peerPasses> found = [] {
    std::vector<peerPasses> made = {float16_plain(), eigen_plain()};
#if defined(ZTHALF_PEERS_F16C)
    if (__builtin_cpu_supports("avx2")) {  // no processor has it without the half conversions
      made.insert(made.end(), {float16_avx2(), eigen_avx2(), hardware_avx2()});
      if (__builtin_cpu_supports("avx512bw") && __builtin_cpu_supports("avx512dq") &&
          __builtin_cpu_supports("avx512vl")) {
        made.insert(made.end(), {float16_avx512(), eigen_avx512(), hardware_avx512()});
      }
    }
#endif
    std::erase_if(made, [](peerPasses const& passes) { return passes.name == nullptr; });
    return made;
  }();
  return found;
}

}  // namespace bench
