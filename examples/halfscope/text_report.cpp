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

// The first word of a finding stands beside its lines, the longest one being "accumulators".
std::string findingText(finding const& f, terminal const& out) {
  constexpr std::size_t margin = 2, indent = 16;
  std::string lines = wrapped(f.text, indent, out);
  return lines.replace(margin, f.key.size(), f.key);
}

std::string summaryText(summary const& s, terminal const& out) {
  std::string text = '\n' + emphasised(wrapped(s.verdict, 2, out), emphasis::attention, out) + '\n' +
                     textTable(s.columns, out, false) +
                     emphasised(wrapped(s.columns.notice, 2, out), emphasis::faint, out) + '\n';
  for (finding const& f : s.findings) text += findingText(f, out);
  return text + '\n';
}

}  // namespace

std::string textReport(report const& r, terminal const& out) {
  std::string text;
  bool onlySummaries = true;
  for (fileReport const& file : r.files) {
    const bool isSummary = file.sections.empty();
    const bool namesSkipped = !isSummary || file.skipped.size() <= 2;  // more of them take the room of other things
    std::string title = file.name + ": " + counted(file.rows, "row") + ", " + counted(file.columns, "numeric column");
    if (!namesSkipped) title += ", " + std::to_string(file.skipped.size()) + " skipped";
    text += emphasised(wrapped(title, 0, out), emphasis::title, out);
    text += std::string(std::min(displayWidth(title), out.width), '=') + '\n';
    if (namesSkipped && !file.skipped.empty()) text += wrapped(skippedText(file.skipped), 0, out);
    if (isSummary)
      text += summaryText(file.inShort, out);
    else
      text += '\n';
    for (section const& s : file.sections) text += sectionText(s, out);
    onlySummaries = onlySummaries && isSummary;
  }
  if (r.speed) text += sectionText(*r.speed, out);
  if (onlySummaries)
    text += emphasised(wrapped("--all shows every column and step; --help explains the words.", 0, out),
                       emphasis::faint, out) +
            '\n';
  text.pop_back();  // the blank line after the last section
  return text;
}

}  // namespace halfscope
