// The option letters of the routines after BLAS: only the first character counts, in either case.
#pragma once

namespace zthalf::linalg {

// Whether an option is the letter, given in lower case. Any other character is the other choice.
inline bool isOption(char const* option, char letter) { return (option[0] | 0x20) == letter; }

}  // namespace zthalf::linalg
