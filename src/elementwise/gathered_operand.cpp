#include "elementwise/gathered_operand.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>

namespace half_utils {

namespace {

// An element is moved as a whole, whatever its type; a complex one is only aligned for its parts.
template <std::size_t size>
struct elementOfBytes {
  std::byte bytes[size];
};

// Calls use(pointer) with a pointer to elements of the size.
template <class Use>
void withElements(void* array, std::size_t size, Use use) {
  switch (size) {
    case 1:
      return use(static_cast<elementOfBytes<1>*>(array));
    case 2:
      return use(static_cast<elementOfBytes<2>*>(array));
    case 4:
      return use(static_cast<elementOfBytes<4>*>(array));
    case 8:
      return use(static_cast<elementOfBytes<8>*>(array));
    default:
      return use(static_cast<elementOfBytes<16>*>(array));
  }
}

// Eight bytes of the same element; of a larger one those from the given place on.
template <class Element>
std::uint64_t eightBytesOf(Element const& element, std::size_t from) {
  std::uint64_t word = 0;
  constexpr std::size_t size = std::min(sizeof(Element), sizeof word);
  std::memcpy(&word, element.bytes + from, size);  // the first bytes in memory are the lowest or the highest
  for (std::size_t filled = size; filled < sizeof word; filled *= 2)
    word |= std::endian::native == std::endian::little ? word << (8 * filled) : word >> (8 * filled);
  return word;
}

// n times the same element, in whole steps of 16 bytes: the last one may go beyond.
template <class Element>
void repeat(Element const& element, Element* to, unsigned long n) {
  const std::uint64_t step[2] = {eightBytesOf(element, 0), eightBytesOf(element, sizeof(Element) > 8 ? 8 : 0)};
  for (unsigned long i = 0; i < n; i += 16 / sizeof(Element)) std::memcpy(to + i, step, sizeof step);
}

}  // namespace

void repeatElement(void const* element, std::size_t size, unsigned long n, elementBlock& to) {
  withElements(to.bytes, size,
               [&]<class Element>(Element* elements) { repeat(*static_cast<Element const*>(element), elements, n); });
}

gatheredOperand::gatheredOperand(void const* array, std::size_t elementSize, shape operand, shape out)
    : array_(array), elementSize_(elementSize) {
  unsigned long elements = 1;
  for (unsigned long d = 0; d < out.ndims; ++d) {
    // By the output's sizes, which are the operand's where it varies: shapes that do not agree are then read in the
    // order of memory, as one long run of them would be.
    const bool varies = operand.size(d) != 1;
    const unsigned long step = varies ? elements : 0;
    if (varies) elements *= out.dims[d];
    if (out.dims[d] == 1) continue;
    if (!dimensions_.empty() && step == dimensions_.back().step * dimensions_.back().size) {
      dimensions_.back().size *= out.dims[d];
    } else {
      dimensions_.push_back({out.dims[d], step, 0});
    }
  }
  // Without a dimension the output is one element.
  if (dimensions_.empty()) dimensions_.push_back({1, 1, 0});
  // Nothing moves along the last dimension, so all before it comes again.
  if (dimensions_.back().step == 0) {
    const unsigned long period = out.n / dimensions_.back().size;
    if (period <= blockSize) period_ = period;
  }
}

void gatheredOperand::seek(unsigned long k) {
  if (period_ != 0) {
    phase_ = k % period_;
    return;
  }
  for (dimension& here : dimensions_) {
    here.index = k % here.size;
    k /= here.size;
    if (&here != &dimensions_.front()) offset_ += here.index * here.step;
  }
}

std::byte* gatheredOperand::elementOf(void const* array, unsigned long i) const {
  return static_cast<std::byte*>(const_cast<void*>(array)) + i * elementSize_;
}

void* gatheredOperand::read(unsigned long n, elementBlock& block) {
  if (period_ != 0) {
    if (!isFilled_) fetchInto(block, n + period_);
    isFilled_ = true;
    std::byte* const start = elementOf(block.bytes, phase_);
    phase_ = (phase_ + n) % period_;
    return start;
  }
  if (dimensions_.size() == 1) {  // it moves on evenly all the way
    std::byte* const start = elementOf(array_, dimensions_[0].index);
    dimensions_[0].index += n;
    return start;
  }
  fetchInto(block, n);
  return block.bytes;
}

void gatheredOperand::fetchInto(elementBlock& block, unsigned long n) {
  withElements(block.bytes, elementSize_, [&](auto* elements) { fetch(elements, n); });
}

// So many places further along dimension d, not beyond its end, and from there to the next place of the outer ones.
void gatheredOperand::moveAlong(std::size_t d, unsigned long places) {
  for (; d < dimensions_.size(); ++d, places = 1) {
    dimension& here = dimensions_[d];
    here.index += places;
    if (d > 0) offset_ += here.step * places;
    if (here.index != here.size) return;
    if (d > 0) offset_ -= here.step * here.size;
    here.index = 0;
  }
}

template <class Element>
void gatheredOperand::fetch(Element* to, unsigned long n) {
  auto* const array = static_cast<Element const*>(array_);
  const auto fetchRow = [&](Element const* from, unsigned long count) {
    if (dimensions_[0].step == 0) {
      repeat(*from, to, count);
    } else {
      for (unsigned long i = 0; i < count; ++i) to[i] = from[i];
    }
    to += count;
    n -= count;
  };
  const unsigned long row = dimensions_[0].size;
  while (n > 0) {
    const unsigned long place = dimensions_[0].index;
    Element const* const from = array + offset_ + place * dimensions_[0].step;
    if (place == 0 && n >= row && dimensions_.size() > 1) {  // whole rows: the usual case, and the quick one
      dimension const& outer = dimensions_[1];
      const unsigned long rows = std::min(n / row, outer.size - outer.index);
      for (unsigned long i = 0; i < rows; ++i) fetchRow(from + i * outer.step, row);
      moveAlong(1, rows);
    } else {
      const unsigned long count = std::min(n, row - place);
      fetchRow(from, count);
      moveAlong(0, count);
    }
  }
}

}  // namespace half_utils
