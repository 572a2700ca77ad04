// What the embedded host's arrays are made of beyond the fields that everybody sees.
#pragma once

#include <atomic>
#include <cstddef>
#include <memory>

#include "host/embedded/class_registry.h"
#include "zthalf/host/vq_fields.h"

namespace zthalf::embedded {

// A place in the list of what a call has made; in none where next is null.
struct link {
  link* next = nullptr;
  link* previous = nullptr;

  void insertBefore(link& head) {
    next = &head;
    previous = head.previous;
    previous->next = this;
    head.previous = this;
  }
  void remove() {
    if (next == nullptr) return;
    next->previous = previous;
    previous->next = next;
    next = previous = nullptr;
  }
};

// What stands before the data of a buffer of our own.
struct alignas(64) bufferHead : link {
  explicit bufferHead(std::size_t size) : bytes(size) {}

  std::atomic<unsigned> sharers{0};  // arrays that have it; 0 until the first one gets it
  std::size_t bytes;
};

// Data for an array; it counts as nobody's until an array takes it.
void* newBuffer(std::size_t bytes);
bufferHead* headOf(void* data);
void deleteBuffer(void* data);

struct hostArray : vqArray_tag, link {
  hostArray();
  ~hostArray();
  hostArray(hostArray const&) = delete;
  hostArray& operator=(hostArray const&) = delete;

  // Lets go of the old data. A null function: the buffer is one of ours.
  void takeData(void* buffer, vqFreeFunction freeFunction);
  void setDimensions(unsigned long const* dims, unsigned long ndims);

  vqFreeFunction freeData = nullptr;
  std::unique_ptr<unsigned long[]> sizes;     // where the list of dimensions stands
  std::unique_ptr<unsigned long[]> deferred;  // the dimensions that are not there yet
  unsigned long deferredCount = 0;
  hostArray* inside = nullptr;          // the array of an object
  hostClass const* ownClass = nullptr;  // of an object, or derived
};

inline hostArray* own(vqArray_tag* array) { return static_cast<hostArray*>(array); }
inline hostArray const* own(vqArray_tag const* array) { return static_cast<hostArray const*>(array); }

// The array that carries the numbers: the one inside an object, or this one.
inline hostArray* numbersOf(vqArray_tag const* array) {
  auto* const self = const_cast<hostArray*>(own(array));
  return self->inside != nullptr ? self->inside : self;
}

struct handleDeleter {
  void operator()(hostArray* array) const { delete array; }
};
using handle = std::unique_ptr<hostArray, handleDeleter>;

// A new array whose data nobody has written.
handle newNumbers(unsigned long ndims, unsigned long const* dims, vqClassID id, bool complex);
void clearData(hostArray& array);
// Gives an array its first holder, and a place among the temporaries of the thread.
vqArray_tag* handedOut(handle array);

std::size_t elementBytes(hostArray const& array);
unsigned long countOf(hostArray const& array);

}  // namespace zthalf::embedded
