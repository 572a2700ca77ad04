// When an elementwise loop forks.
#pragma once

namespace half_utils {

// A simple loop forks only for a count whose top bit is set, which no array has: every real call runs on the calling
// thread, by definition. The parallel path behind the gate is built and tested all the same. How finely it cuts is the
// functor's own number, its member grain.
inline constexpr bool forks(unsigned long n) { return static_cast<long>(n) < 0; }

}  // namespace half_utils
