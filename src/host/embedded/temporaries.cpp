#include "host/embedded/temporaries.h"

#include <memory>

#include "zthalf/host/embedded.h"

namespace zthalf::embedded {

namespace {

// Two rings, each through its head. Entering and leaving them allocates nothing, so it cannot fail.
struct lists {
  lists() {
    arrays.next = arrays.previous = &arrays;
    buffers.next = buffers.previous = &buffers;
  }
  link arrays, buffers;
};

thread_local zthalf::host::temporaries* innermost = nullptr;
thread_local lists* innermostLists = nullptr;

}  // namespace

void addTemporaryArray(hostArray& array) {
  if (innermostLists != nullptr) array.insertBefore(innermostLists->arrays);
}

void addTemporaryBuffer(bufferHead& buffer) {
  if (innermostLists != nullptr) buffer.insertBefore(innermostLists->buffers);
}

}  // namespace zthalf::embedded

namespace zthalf::host {

using embedded::lists;

temporaries::temporaries() : list_(new lists), outer_(embedded::innermost) {
  embedded::innermost = this;
  embedded::innermostLists = static_cast<lists*>(list_);
}

temporaries::~temporaries() {
  const std::unique_ptr<lists> made(static_cast<lists*>(list_));
  while (made->arrays.next != &made->arrays) {
    auto* const array = static_cast<embedded::hostArray*>(made->arrays.next);
    array->remove();
    release(array);
  }
  while (made->buffers.next != &made->buffers)
    embedded::deleteBuffer(static_cast<embedded::bufferHead*>(made->buffers.next) + 1);
  embedded::innermost = outer_;
  embedded::innermostLists = outer_ != nullptr ? static_cast<lists*>(outer_->list_) : nullptr;
}

array temporaries::keep(vqArray_tag* kept) {
  embedded::own(kept)->remove();
  return array(kept);
}

}  // namespace zthalf::host
