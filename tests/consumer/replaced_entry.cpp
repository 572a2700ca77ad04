// Entries can be replaced: by a store while the program runs, and by a definition in the program, which the loader
// prefers to the library's. Both change what the facade does.
#include <zthalf/zthalf.h>

#include <cstdio>

namespace {

void fillWithOnes(fp16binary_t*, fp16binary_t* dst, unsigned long n) {
  for (unsigned long i = 0; i < n; ++i) dst[i].bits = 0x3C00;
}

void fillWithTwos(fp16binary_t*, fp16binary_t* dst, unsigned long n) {
  for (unsigned long i = 0; i < n; ++i) dst[i].bits = 0x4000;
}

}  // namespace

half_ptr::unary_entry<fp16binary_t, fp16binary_t>* half_ptr::absPtr = &fillWithOnes;

int main() {
  half_t x{0xC500}, result{};
  half_vector::abs(&x, &result, 1);
  const bool defined = result.bits == 0x3C00;

  half_vector::uminus(&x, &result, 1);
  const bool original = result.bits == 0x4500;
  auto* const before = half_ptr::uminusPtr;
  half_ptr::uminusPtr = &fillWithTwos;
  half_vector::uminus(&x, &result, 1);
  const bool stored = result.bits == 0x4000;
  half_ptr::uminusPtr = before;
  half_vector::uminus(&x, &result, 1);
  const bool restored = result.bits == 0x4500;

  if (!defined) std::printf("wrong: an entry defined in the program was not used\n");
  if (!original || !restored) std::printf("wrong: the library's own entry\n");
  if (!stored) std::printf("wrong: a stored entry was not used\n");
  return defined && original && stored && restored ? 0 : 1;
}
