// Working memory of a product: on the stack where it is small, since fetching memory would take longer than a small
// product does, and otherwise from the allocator, whose exception passes to the caller.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>

namespace zthalf::linalg {

class scratch {
 public:
  explicit scratch(std::size_t bytes) {
    if (bytes + alignment > sizeof near_) far_.reset(new std::byte[bytes + alignment]);
    std::byte* const begin = far_ ? far_.get() : near_;
    next_ = begin + (alignment - reinterpret_cast<std::uintptr_t>(begin) % alignment) % alignment;
  }
  scratch(scratch const&) = delete;
  scratch& operator=(scratch const&) = delete;

  // The next n elements, on a line of the cache of their own. What they hold is not set.
  template <class T>
  T* take(std::size_t n) {
    std::byte* const here = next_;
    next_ += bytesFor<T>(n);
    return reinterpret_cast<T*>(here);
  }

  template <class T>
  static std::size_t bytesFor(std::size_t n) {
    return (n * sizeof(T) + alignment - 1) / alignment * alignment;
  }

 private:
  static constexpr std::size_t alignment = 64;

  std::unique_ptr<std::byte[]> far_;
  std::byte* next_;
  std::byte near_[16 << 10];
};

}  // namespace zthalf::linalg
