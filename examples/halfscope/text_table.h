// Sections as text: aligned columns that fit a width, and wrapped sentences.
#pragma once

#include <string>
#include <vector>

#include "section.h"
#include "terminal.h"

namespace halfscope {

enum class emphasis { none, title, faint, attention };

// The text as the terminal shows it with emphasis, or plain where it takes no colour.
std::string emphasised(std::string const& text, emphasis how, terminal const& out);

// The rows with their headings, as many columns of them as fit, and which ones did not if that is to be told.
std::string textTable(section const& s, terminal const& out, bool tellsOmissions = true);

// The text in lines no wider than the terminal, each indented by so many spaces.
std::string wrapped(std::string const& text, std::size_t indent, terminal const& out);

}  // namespace halfscope
