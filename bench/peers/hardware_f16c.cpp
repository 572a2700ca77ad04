// Loops over the processor's own conversion instructions, as a program without the library would write them. Counts are
// multiples of the vector's width.
#include <immintrin.h>

#include "bench/peers/peers.h"

namespace bench {

namespace {

#if defined(__AVX512F__)
constexpr unsigned long width = 16;
using singles = __m512;
using halves = __m256i;
singles widened(half_t* p) { return _mm512_cvtph_ps(_mm256_loadu_si256(reinterpret_cast<halves*>(p))); }
void storeNarrowed(half_t* p, singles x) {
  _mm256_storeu_si256(reinterpret_cast<halves*>(p), _mm512_cvtps_ph(x, _MM_FROUND_TO_NEAREST_INT));
}
singles loaded(float* p) { return _mm512_loadu_ps(p); }
void store(float* p, singles x) { _mm512_storeu_ps(p, x); }
singles sum(singles a, singles b) { return _mm512_add_ps(a, b); }
#else
constexpr unsigned long width = 8;
using singles = __m256;
using halves = __m128i;
singles widened(half_t* p) { return _mm256_cvtph_ps(_mm_loadu_si128(reinterpret_cast<halves*>(p))); }
void storeNarrowed(half_t* p, singles x) {
  _mm_storeu_si128(reinterpret_cast<halves*>(p), _mm256_cvtps_ph(x, _MM_FROUND_TO_NEAREST_INT));
}
singles loaded(float* p) { return _mm256_loadu_ps(p); }
void store(float* p, singles x) { _mm256_storeu_ps(p, x); }
singles sum(singles a, singles b) { return _mm256_add_ps(a, b); }
#endif

void halfToSingle(half_t* src, float* dst, unsigned long n) {
  for (unsigned long i = 0; i < n; i += width) store(dst + i, widened(src + i));
}

void singleToHalf(float* src, half_t* dst, unsigned long n) {
  for (unsigned long i = 0; i < n; i += width) storeNarrowed(dst + i, loaded(src + i));
}

void plus(half_t* a, half_t* b, half_t* c, unsigned long n) {
  for (unsigned long i = 0; i < n; i += width) storeNarrowed(c + i, sum(widened(a + i), widened(b + i)));
}

}  // namespace

ZTHALF_PEER_EXPORT peerPasses ZTHALF_PEER(hardware_)() {
  peerPasses passes{};
  passes.name = "hardware-" ZTHALF_PEER_TEXT(ZTHALF_PEER_SET);
  passes.halfToSingle = halfToSingle;
  passes.singleToHalf = singleToHalf;
  passes.plus = plus;
  return passes;
}

}  // namespace bench
