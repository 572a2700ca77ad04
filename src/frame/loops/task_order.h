// What the thread sanitizer must be told of oneTBB: a task begins after its fork and ends before the join.
//
// The system's oneTBB is built without the sanitizer, which therefore sees neither of the two and would report every
// array that a caller filled and a task reads. The sources that instantiate oneTBB's templates are left uninstrumented
// for the same reason (cmake/CompileContract.cmake), and state the order themselves. In any other build a taskOrder is
// empty and does nothing.
#pragma once

#include <utility>

#if defined(ZTHALF_WATCHES_THREADS)
extern "C" void __tsan_acquire(void* address);
extern "C" void __tsan_release(void* address);
#endif

namespace half_utils {

// One for each fork, on the stack of the forking call: made before it, gone after the join.
class taskOrder {
 public:
  taskOrder() { release(&forked_); }
  ~taskOrder() { acquire(&finished_); }
  taskOrder(taskOrder const&) = delete;
  taskOrder& operator=(taskOrder const&) = delete;

  // The body as a task runs it.
  template <class Body>
  auto inTask(Body body) {
#if defined(ZTHALF_WATCHES_THREADS)
    return [this, body](auto&&... args) {
      const taskSpan span(*this);
      body(std::forward<decltype(args)>(args)...);
    };
#else
    return body;
#endif
  }

 private:
  // A task's time in the body, which an exception may end.
  struct taskSpan {
    explicit taskSpan(taskOrder& o) : order(o) { acquire(&order.forked_); }
    ~taskSpan() { release(&order.finished_); }
    taskOrder& order;
  };

#if defined(ZTHALF_WATCHES_THREADS)
  static void acquire(char* event) { __tsan_acquire(event); }
  static void release(char* event) { __tsan_release(event); }
#else
  static void acquire(char*) {}
  static void release(char*) {}
#endif

  char forked_ = 0, finished_ = 0;  // only their addresses matter
};

}  // namespace half_utils
