// Progress for people who wait: one line on standard error, rewritten in place, where that is a terminal and the
// program has run for more than a second. Elsewhere nothing at all.
#pragma once

#include <cstddef>
#include <string>

namespace halfscope::progress {

// What is going on, and how much of it is done; a whole of 0 is not known.
void show(std::string const& what, std::size_t done, std::size_t whole);

// Takes the line away, before anything else is written.
void clear();

}  // namespace halfscope::progress
