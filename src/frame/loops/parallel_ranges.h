// oneTBB's loops over index ranges, behind one function each. A loop's instance hands over its body as a view, so that
// the scheduler's templates are compiled once and not for every pair of element types.
#pragma once

#include <memory>
#include <type_traits>

#include "frame/loops/cancellable_range.h"

namespace half_utils {

using cancellableIndices = half::cancellable_range<unsigned long>;

// A view of a callable void(Args...) that outlives the call it is passed to.
template <class... Args>
class bodyView {
 public:
  template <class Body>
  requires(!std::is_same_v<std::remove_cvref_t<Body>, bodyView>) bodyView(Body&& body)
      : object_(const_cast<void*>(static_cast<void const*>(std::addressof(body)))),
        call_([](void* object, Args... args) { (*static_cast<std::remove_reference_t<Body>*>(object))(args...); }) {}

  void operator()(Args... args) const { call_(object_, args...); }

 private:
  void* object_;
  void (*call_)(void*, Args...);
};

using rangeBody = bodyView<unsigned long, unsigned long>;  // begin, end
using cancellableBody = bodyView<cancellableIndices const&>;

// Runs the body on pieces of [0, n), none of them cut below the grain, under an affinity partitioner that lives for
// this call alone. An exception that leaves the body is rethrown here.
void forAffineRanges(unsigned long n, unsigned long grain, rangeBody body);

// The same under the automatic partitioner.
void forRanges(unsigned long n, unsigned long grain, rangeBody body);

// The same on pieces that a body can cancel. True when none did.
bool forRangesUntilCancelled(unsigned long n, unsigned long grain, cancellableBody body);

}  // namespace half_utils
