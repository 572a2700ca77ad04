#include "progress.h"

#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <mutex>

#include "utf8.h"

namespace halfscope::progress {

namespace {

using steady = std::chrono::steady_clock;

constexpr std::chrono::milliseconds patience{1000}, pause{100};

struct line {
  bool wanted = isatty(STDERR_FILENO) != 0;
  steady::time_point next = steady::now() + patience;  // not before the program has run so long
  std::size_t width = 0;                               // of what is on the screen
};

line shown;
std::mutex one;  // thread at a time

// Spaces and not an escape sequence take the rest of an older text away: any terminal understands them.
void write(std::string const& text) {
  const std::size_t width = displayWidth(text);
  const std::string rest(shown.width - std::min(width, shown.width), ' ');
  std::fprintf(stderr, "\r%s%s%s", text.c_str(), rest.c_str(), text.empty() ? "\r" : "");
  std::fflush(stderr);
  shown.width = width;
}

}  // namespace

void show(std::string const& what, std::size_t done, std::size_t whole) {
  if (!shown.wanted) return;
  const std::lock_guard guard(one);
  if (steady::now() < shown.next) return;
  shown.next = steady::now() + pause;
  const std::string amount =
      whole == 0 ? std::to_string(done >> 20) + " MB" : std::to_string(100 * std::min(done, whole) / whole) + " %";
  write("halfscope: " + shortened(what, 50) + ", " + amount);
}

void clear() {
  if (shown.width > 0) write("");
}

}  // namespace halfscope::progress
