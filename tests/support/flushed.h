// The float environment of a program linked with -ffast-math, in which subnormal results become zero and subnormal
// operands count as zero; and a witness for subnormal numbers where nothing is flushed.
#pragma once

#include <cstdint>

#if defined(__x86_64__)
#include <xmmintrin.h>
#endif

namespace zthalf::testing {

using floatControl = std::uint64_t;

#if defined(__x86_64__)
inline constexpr bool canFlush = true;
inline constexpr floatControl flushingBits = 0x8040;  // FTZ and DAZ
inline floatControl currentFloatControl() { return _mm_getcsr(); }
inline void setFloatControl(floatControl control) { _mm_setcsr(static_cast<unsigned>(control)); }

// Set by a subnormal operand, and by a result that was rounded to a subnormal one.
inline constexpr floatControl subnormalBits = 0x12;
inline floatControl currentFloatStatus() { return _mm_getcsr(); }
inline void setFloatStatus(floatControl status) { _mm_setcsr(static_cast<unsigned>(status)); }
#elif defined(__aarch64__)
inline constexpr bool canFlush = true;
inline constexpr floatControl flushingBits = 1 << 24;  // FZ, which is for operands and results
inline floatControl currentFloatControl() {
  floatControl control;
  asm volatile("mrs %0, fpcr" : "=r"(control));
  return control;
}
inline void setFloatControl(floatControl control) { asm volatile("msr fpcr, %0" : : "r"(control) : "memory"); }

// Of these a subnormal operand sets none unless it is flushed, so results alone are seen.
inline constexpr floatControl subnormalBits = 1 << 7 | 1 << 3;
inline floatControl currentFloatStatus() {
  floatControl status;
  asm volatile("mrs %0, fpsr" : "=r"(status));
  return status;
}
inline void setFloatStatus(floatControl status) { asm volatile("msr fpsr, %0" : : "r"(status) : "memory"); }
#else
inline constexpr bool canFlush = false;
inline constexpr floatControl flushingBits = 0, subnormalBits = 0;
inline floatControl currentFloatControl() { return 0; }
inline void setFloatControl(floatControl) {}
inline floatControl currentFloatStatus() { return 0; }
inline void setFloatStatus(floatControl) {}
#endif

// Whether this thread's arithmetic flushes results and operands: asked of the arithmetic itself.
inline bool flushes() {
  const volatile float smallestNormal = 0x1p-126f;
  const volatile float subnormal = 0x1p-149f;
  const volatile float halved = smallestNormal * 0.5f;
  const volatile float raised = subnormal * 0x1p100f;
  return halved == 0.0f && raised == 0.0f;
}

// As long as the object lives this thread flushes, or does not.
class flushedScope {
 public:
  explicit flushedScope(bool flushed = true) : before_(currentFloatControl()) {
    const floatControl wanted = flushed ? before_ | flushingBits : before_ & ~flushingBits;
    if (wanted != before_) setFloatControl(wanted);
  }
  ~flushedScope() {
    if (currentFloatControl() != before_) setFloatControl(before_);
  }
  flushedScope(flushedScope const&) = delete;
  flushedScope& operator=(flushedScope const&) = delete;

 private:
  floatControl before_;
};

// Tells at its end whether this thread's arithmetic met a subnormal number in its time.
class subnormalWatch {
 public:
  explicit subnormalWatch(bool* met) : met_(met) {
    if (met_ != nullptr) setFloatStatus(currentFloatStatus() & ~subnormalBits);
  }
  ~subnormalWatch() {
    if (met_ != nullptr && (currentFloatStatus() & subnormalBits) != 0) *met_ = true;
  }
  subnormalWatch(subnormalWatch const&) = delete;
  subnormalWatch& operator=(subnormalWatch const&) = delete;

 private:
  bool* met_;
};

}  // namespace zthalf::testing
