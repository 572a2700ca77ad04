#include "host/embedded/messages.h"

#include <string_view>

namespace zthalf::embedded {

namespace {

struct message {
  std::u16string_view key;
  char const* text;
};
constexpr message messages[] = {
    {u"HalfPrecisionNotAvailable", "The class half is not available here."},
    {u"PropInvalidDataType", "An input has a data type that this function does not take."},
    {u"dimagree", "The two inputs must have the same size."},
    {u"ignoredImagPart", "The imaginary part of the second operand is ignored."},
};

// Identifiers are plain ASCII; anything else is shown as a question mark.
void append(std::string& text, std::u16string const& part) {
  for (const char16_t c : part) text += c < 0x80 ? static_cast<char>(c) : '?';
}

}  // namespace

char const* messageOf(resource_core::BaseMsgID const& id) noexcept {
  if (id.catalogue() != u"half:error") return nullptr;
  for (message const& one : messages)
    if (one.key == id.key()) return one.text;
  return nullptr;
}

std::string identifierOf(resource_core::BaseMsgID const& id) {
  std::string text;
  append(text, id.catalogue());
  text += ':';
  append(text, id.key());
  return text;
}

}  // namespace zthalf::embedded
