#include "terminal.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <string_view>

namespace halfscope {

namespace {

std::size_t outputWidth() {
  constexpr std::size_t narrowest = 40, widest = 1000;
  if (char const* columns = std::getenv("COLUMNS")) {
    const std::string_view text = columns;
    std::size_t width = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), width);
    if (error == std::errc{} && end == text.data() + text.size() && width > 0)
      return std::clamp(width, narrowest, widest);
  }
  winsize size{};
  if (isatty(STDOUT_FILENO) && ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0)
    return std::clamp<std::size_t>(size.ws_col, narrowest, widest);
  return 100;
}

bool outputTakesColour() {
  char const* none = std::getenv("NO_COLOR");
  char const* kind = std::getenv("TERM");
  return isatty(STDOUT_FILENO) && (none == nullptr || *none == '\0') && kind != nullptr &&
         std::string_view(kind) != "dumb";
}

}  // namespace

terminal standardOutput() { return {outputWidth(), outputTakesColour()}; }

}  // namespace halfscope
