#include "text_table.h"

#include <algorithm>

#include "utf8.h"

namespace halfscope {

namespace {

constexpr std::size_t margin = 2, gap = 2, longestName = 28, shortestName = 16, longestLine = 110;

struct tableColumn {
  heading const* head;
  std::vector<cell const*> cells;
  std::vector<std::string> texts;  // of the cells, decimal points one below the other
  std::size_t width = 0;
  bool quiet = false;  // rare things that did not happen, which the column's absence tells as well
  bool shown = true;
};

std::size_t digitsBehindPoint(std::string const& number) {
  const std::size_t point = number.find('.');
  return point == std::string::npos ? 0 : number.size() - point;
}

void alignPoints(std::vector<std::string>& texts) {
  const auto isPlain = [](std::string const& text) {
    return text.find_first_of("0123456789") != std::string::npos &&
           text.find_first_not_of("<>-,.0123456789") == std::string::npos;
  };
  std::size_t most = 0;
  for (auto const& text : texts) {
    if (isPlain(text)) most = std::max(most, digitsBehindPoint(text));
  }
  for (auto& text : texts) {
    if (isPlain(text)) text.append(most - digitsBehindPoint(text), ' ');
  }
}

tableColumn columnOf(section const& s, std::size_t j) {
  tableColumn c{&s.headings[j], {}, {}};
  for (auto const& row : s.rows) {
    c.cells.push_back(&row[j]);
    c.texts.push_back(row[j].text);
  }
  c.quiet = c.head->rare && std::all_of(c.texts.begin(), c.texts.end(), [](auto const& text) { return text == "0"; });
  if (j > 0) alignPoints(c.texts);
  c.width = std::max(displayWidth(c.head->label), displayWidth(c.head->unit));
  for (auto const& text : c.texts) c.width = std::max(c.width, displayWidth(text));
  if (j == 0) c.width = std::min(c.width, longestName);
  return c;
}

std::size_t totalWidth(std::vector<tableColumn> const& columns) {
  std::size_t sum = margin - gap;
  for (auto const& c : columns) sum += c.shown ? gap + c.width : 0;
  return sum;
}

// Leaves out columns until the rest fit: quiet ones first, then by rank. Long names in the first column make room
// before that, and get back what is over.
void fit(std::vector<tableColumn>& columns, std::size_t width) {
  std::vector<tableColumn*> order;
  for (auto& c : columns) order.push_back(&c);
  const auto dispensability = [](tableColumn const* c) { return c->head->rank + (c->quiet ? 100 : 0); };
  std::stable_sort(order.begin(), order.end(),
                   [&](auto const* a, auto const* b) { return dispensability(a) > dispensability(b); });
  std::size_t& nameWidth = columns[0].width;
  const std::size_t wantedName = nameWidth;
  nameWidth = std::min(nameWidth, shortestName);
  for (tableColumn* c : order) {
    if (totalWidth(columns) > width && c->head->rank > 0) c->shown = false;
  }
  const std::size_t total = totalWidth(columns);
  if (total < width) nameWidth = std::min(wantedName, nameWidth + width - total);
}

std::string padded(std::string const& text, std::size_t width, bool left) {
  const std::string space(width - std::min(width, displayWidth(text)), ' ');
  return left ? text + space : space + text;
}

std::string withoutTrailingSpace(std::string line) {
  line.erase(line.find_last_not_of(' ') + 1);
  return line;
}

}  // namespace

std::string emphasised(std::string const& text, emphasis how, terminal const& out) {
  constexpr char const* codes[] = {"", "\x1b[1m", "\x1b[2m", "\x1b[33m"};
  if (!out.colour || how == emphasis::none || text.empty()) return text;
  return codes[static_cast<int>(how)] + text + "\x1b[0m";
}

std::string textTable(section const& s, terminal const& out, bool tellsOmissions) {
  std::vector<tableColumn> columns;
  for (std::size_t j = 0; j < s.headings.size(); ++j) columns.push_back(columnOf(s, j));
  fit(columns, out.width);

  std::string labels, units, rule, quiet, others;
  for (tableColumn& c : columns) {
    const bool first = &c == &columns[0];
    if (c.shown) {
      const std::string space(first ? margin : gap, ' ');
      labels += space + padded(c.head->label, c.width, first);
      units += space + padded(c.head->unit, c.width, first);
      rule += space + std::string(c.width, '-');
    } else {
      std::string& list = c.quiet ? quiet : others;
      list += (list.empty() ? "" : ", ") + c.head->label + (c.head->unit.empty() ? "" : " (" + c.head->unit + ")");
    }
  }
  std::string text;
  for (std::string const* line : {&labels, &units, &rule})
    text += emphasised(withoutTrailingSpace(*line), emphasis::faint, out) + '\n';
  for (std::size_t i = 0; i < s.rows.size(); ++i) {
    std::string line;
    for (tableColumn const& c : columns) {
      if (!c.shown) continue;
      const bool first = &c == &columns[0];
      const std::string content = padded(first ? shortened(c.texts[i], c.width) : c.texts[i], c.width, first);
      const std::size_t end = content.find_last_not_of(' ') + 1;  // colour would hide the space at a line's end
      line += std::string(first ? margin : gap, ' ') +
              emphasised(content.substr(0, end), c.cells[i]->remarkable ? emphasis::attention : emphasis::none, out) +
              content.substr(end);
    }
    text += withoutTrailingSpace(line) + '\n';
  }
  if (!tellsOmissions) return text;
  if (!quiet.empty()) text += emphasised(wrapped("all 0 and not shown: " + quiet, margin, out), emphasis::faint, out);
  if (!others.empty()) text += emphasised(wrapped("no room for: " + others, margin, out), emphasis::faint, out);
  return text;
}

std::string wrapped(std::string const& text, std::size_t indent, terminal const& out) {
  std::string lines, line;
  std::size_t begin = 0;
  while (begin < text.size()) {
    const std::size_t end = std::min(text.find(' ', begin), text.size());
    const std::string word = text.substr(begin, end - begin);
    begin = end + 1;
    if (!line.empty() && indent + displayWidth(line) + 1 + displayWidth(word) > std::min(out.width, longestLine)) {
      lines += std::string(indent, ' ') + line + '\n';
      line.clear();
    }
    line += (line.empty() ? "" : " ") + word;
  }
  return line.empty() ? lines : lines + std::string(indent, ' ') + line + '\n';
}

}  // namespace halfscope
