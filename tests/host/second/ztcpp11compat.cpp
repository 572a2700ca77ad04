// What a host keeps of the standard library for itself.
#include <string>

template class std::basic_string<char16_t>;
