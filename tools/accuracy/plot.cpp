#include "tools/accuracy/plot.h"

#include <algorithm>
#include <cstdarg>
#include <cstdio>

namespace zthalf::accuracy {

namespace {

constexpr int left = 56, top = 40, columns = 640, height = 200;
constexpr int width = left + columns + 24, bottom = top + height;

std::string text(char const* format, ...) __attribute__((format(printf, 1, 2)));
std::string text(char const* format, ...) {
  char buffer[512];
  va_list arguments;
  va_start(arguments, format);
  std::vsnprintf(buffer, sizeof buffer, format, arguments);
  va_end(arguments);
  return buffer;
}

int firstPosition(int column) { return static_cast<int>(static_cast<long>(column) * lineLength / columns); }

// The largest error in a column; negative where the function has no value in all of it.
double worstIn(measurement const& m, int column) {
  return *std::max_element(m.error.begin() + firstPosition(column), m.error.begin() + firstPosition(column + 1));
}

// Columns that satisfy a condition, as boxes or bars, neighbours of the same height in one.
template <class HeightOf>
std::string boxes(char const* fill, HeightOf heightOf) {
  std::string svg;
  for (int column = 0; column < columns;) {
    const int h = heightOf(column);
    int end = column + 1;
    while (end < columns && heightOf(end) == h) ++end;
    if (h > 0) {
      svg += text("<rect x=\"%d\" y=\"%d\" width=\"%d\" height=\"%d\" fill=\"%s\"/>\n", left + column, bottom - h,
                  end - column, h, fill);
    }
    column = end;
  }
  return svg;
}

std::string tick(double x, char const* label) {
  return text("<line x1=\"%.1f\" y1=\"%d\" x2=\"%.1f\" y2=\"%d\" stroke=\"#888\"/>", x, bottom, x, bottom + 5) +
         text("<text x=\"%.1f\" y=\"%d\" text-anchor=\"middle\">%s</text>\n", x, bottom + 18, label);
}

double placeOf(std::uint16_t pattern) {
  const unsigned magnitude = pattern & 0x7FFF;
  const unsigned position = (pattern & 0x8000) != 0 ? finiteOfOneSign - 1 - magnitude : finiteOfOneSign + magnitude;
  return left + static_cast<double>(position) * columns / lineLength;
}

}  // namespace

std::string plotOf(char const* name, measurement const& m) {
  const double scale = m.worst > 0.55 ? 1.0 : 0.6;  // units at the top
  const auto pixels = [&](double units) { return static_cast<int>(std::min(units / scale, 1.0) * height + 0.5); };
  std::string svg = text(
      "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 %d %d\" font-family=\"sans-serif\" font-size=\"11\">\n",
      width, bottom + 44);
  svg += text("<rect width=\"%d\" height=\"%d\" fill=\"#fff\"/>\n", width, bottom + 44);
  svg += text("<text x=\"%d\" y=\"18\" font-size=\"15\" font-weight=\"bold\">%s</text>\n", left, name);
  svg += text(
      "<text x=\"%d\" y=\"18\" text-anchor=\"end\">largest error %.4f units at 0x%04X; %u of %u not nearest"
      "</text>\n",
      left + columns, m.worst, m.worstInput, m.notNearest, m.measured);
  svg += boxes("#eee", [&](int column) { return worstIn(m, column) < 0 ? height : 0; });
  svg += boxes("#4878a8", [&](int column) {
    const double worst = worstIn(m, column);
    return worst <= 0.5005 ? pixels(worst) : 0;
  });
  svg += boxes("#c44e52", [&](int column) {
    const double worst = worstIn(m, column);
    return worst > 0.5005 ? pixels(worst) : 0;
  });
  for (const double units : {0.0, 0.25, 0.5, 0.75, 1.0}) {
    if (units > scale) continue;
    const int y = bottom - pixels(units);
    svg += text("<line x1=\"%d\" y1=\"%d\" x2=\"%d\" y2=\"%d\" stroke=\"%s\"/>", left, y, left + columns, y,
                units == 0.5 ? "#333" : "#ccc");
    svg += text("<text x=\"%d\" y=\"%d\" text-anchor=\"end\">%.2f</text>\n", left - 6, y + 4, units);
  }
  svg += tick(placeOf(0xFBFF), "-65504") + tick(placeOf(0xD400), "-64") + tick(placeOf(0xBC00), "-1") +
         tick(placeOf(0xA400), "-2^-6") + tick(placeOf(0x8000), "0") + tick(placeOf(0x2400), "2^-6") +
         tick(placeOf(0x3C00), "1") + tick(placeOf(0x5400), "64") + tick(placeOf(0x7BFF), "65504");
  svg += text(
      "<text x=\"%d\" y=\"%d\" fill=\"#555\">all finite halves in order; grey: no real value; error in units in "
      "the last place of half</text>\n</svg>\n",
      left, bottom + 36);
  return svg;
}

}  // namespace zthalf::accuracy
