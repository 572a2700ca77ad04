#include "text_report.h"

#include <algorithm>

#include "text_table.h"
#include "utf8.h"

namespace halfscope {

namespace {

std::string sectionText(section const& s, terminal const& out) {
  return emphasised(wrapped(s.title, 0, out), emphasis::title, out) + textTable(s, out) + '\n' +
         wrapped(s.notice, 2, out) + '\n';
}

std::string skippedText(std::vector<skippedColumn> const& skipped) {
  std::string text;
  for (skippedColumn const& s : skipped)
    text += (text.empty() ? "skipped: " : ", ") + shortened(s.name, 24) + " (" + s.reason + ")";
  return text;
}

std::string counted(std::size_t count, std::string const& noun) {
  return countText(static_cast<long long>(count)) + ' ' + noun + (count == 1 ? "" : "s");
}

}  // namespace

std::string textReport(report const& r, terminal const& out) {
  std::string text;
  for (fileReport const& file : r.files) {
    const std::string title =
        file.name + ": " + counted(file.rows, "row") + ", " + counted(file.columns, "numeric column");
    text += emphasised(wrapped(title, 0, out), emphasis::title, out);
    text += std::string(std::min(displayWidth(title), out.width), '=') + '\n';
    if (!file.skipped.empty()) text += wrapped(skippedText(file.skipped), 0, out);
    text += '\n';
    for (section const& s : file.sections) text += sectionText(s, out);
  }
  if (r.speed) text += sectionText(*r.speed, out);
  text.pop_back();  // the blank line after the last section
  return text;
}

}  // namespace halfscope
