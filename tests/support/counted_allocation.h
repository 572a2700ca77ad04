// Counts what operator new hands out in this program and lets a chosen call of it fail. Defines the operators: for one
// source of a test program only.
#pragma once

#include <atomic>
#include <cstdlib>
#include <new>

namespace zthalf::testing {

class allocations {
 public:
  static long live() { return live_; }
  static long made() { return made_; }

  // The allocation after this many more fails, once; a negative number lets all succeed.
  static void failAfter(long successes) { untilFailure_ = successes; }
  static bool stillToFail() { return untilFailure_ >= 0; }

  static void* allocate(std::size_t size) {
    if (untilFailure_.load() >= 0 && untilFailure_.fetch_sub(1) == 0) throw std::bad_alloc();
    void* const block = std::malloc(size == 0 ? 1 : size);
    if (block == nullptr) throw std::bad_alloc();
    ++live_;
    ++made_;
    return block;
  }

  static void release(void* block) {
    if (block == nullptr) return;
    --live_;
    std::free(block);
  }

 private:
  static inline std::atomic<long> live_ = 0, made_ = 0, untilFailure_ = -1;
};

}  // namespace zthalf::testing

void* operator new(std::size_t size) { return zthalf::testing::allocations::allocate(size); }
void* operator new[](std::size_t size) { return zthalf::testing::allocations::allocate(size); }
void operator delete(void* block) noexcept { zthalf::testing::allocations::release(block); }
void operator delete[](void* block) noexcept { zthalf::testing::allocations::release(block); }
void operator delete(void* block, std::size_t) noexcept { zthalf::testing::allocations::release(block); }
void operator delete[](void* block, std::size_t) noexcept { zthalf::testing::allocations::release(block); }
