// A stage for passes over memory: a pass acts on one copy of a block of bytes, a plain simulation of it on another, and
// afterwards every byte must be the same, those around and between the arrays too.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>

#include "tests/support/drawn_values.h"

namespace zthalf::testing {

class stage {
 public:
  static constexpr std::size_t alignment = 64;

  // Of at least this many bytes, all of them random: a byte that a pass touches without need is bound to show.
  stage(std::size_t size, std::uint64_t seed)
      : size_((size + alignment - 1) / alignment * alignment),
        initial_(allocate()),
        actual_(allocate()),
        expected_(allocate()) {
    bitSource bits(seed);
    drawInto<unsigned char>(initial_.get(), size_, bits);
  }

  std::size_t size() const { return size_; }
  std::byte* initial() { return initial_.get(); }

  // Whether pass(bytes) and simulation(bytes) leave the same bytes and return the same.
  template <class Pass, class Simulation>
  ::testing::AssertionResult agrees(Pass pass, Simulation simulation) {
    std::memcpy(actual_.get(), initial_.get(), size_);
    std::memcpy(expected_.get(), initial_.get(), size_);
    const bool wanted = simulation(expected_.get());
    const bool returned = pass(actual_.get());
    if (returned != wanted) {
      return ::testing::AssertionFailure() << "the pass returned " << returned << ", expected " << wanted;
    }
    if (std::memcmp(actual_.get(), expected_.get(), size_) == 0) return ::testing::AssertionSuccess();
    std::size_t at = 0;
    while (actual_[at] == expected_[at]) ++at;
    return ::testing::AssertionFailure() << "byte " << at << " is " << std::to_integer<int>(actual_[at])
                                         << ", expected " << std::to_integer<int>(expected_[at]) << ", before the pass "
                                         << std::to_integer<int>(initial_[at]);
  }

 private:
  struct release {
    void operator()(std::byte* block) const { std::free(block); }
  };
  using block = std::unique_ptr<std::byte[], release>;

  block allocate() const { return block(static_cast<std::byte*>(std::aligned_alloc(alignment, size_))); }

  std::size_t size_;
  block initial_, actual_, expected_;
};

template <class T>
T* arrayAt(std::byte* address) {
  return reinterpret_cast<T*>(address);
}

constexpr std::size_t roundedUp(std::size_t size) {
  return (size + stage::alignment - 1) / stage::alignment * stage::alignment;
}

}  // namespace zthalf::testing
