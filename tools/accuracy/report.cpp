// Writes docs/accuracy.md and a picture for each function: accuracy-report FOLDER
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>

#include "tools/accuracy/plot.h"

namespace {

using namespace zthalf::accuracy;

// The inputs of the special-value table.
constexpr struct {
  char const* name;
  std::uint16_t pattern;
} specials[] = {{"+0", 0x0000},    {"-0", 0x8000},   {"2^-24", 0x0001}, {"1", 0x3C00},    {"-1", 0xBC00},
                {"65504", 0x7BFF}, {"+Inf", 0x7C00}, {"-Inf", 0xFC00},  {"+NaN", 0x7E00}, {"-NaN", 0xFE00}};

std::string hex(std::uint16_t pattern) {
  char buffer[8];
  std::snprintf(buffer, sizeof buffer, "%04X", pattern);
  return buffer;
}

std::string number(std::uint16_t pattern) {
  char buffer[32];
  std::snprintf(buffer, sizeof buffer, "%.6g", half_scalar::impl::convertHalfToDouble(pattern));
  return buffer;
}

std::string row(measuredFunction const& f, measurement const& m) {
  char buffer[256];
  std::snprintf(buffer, sizeof buffer, "| [`%s`](accuracy/%s.svg) | %.4f | 0x%s (%s) | 0x%s | %u | %u |\n", f.name,
                f.name, m.worst, hex(m.worstInput).c_str(), number(m.worstInput).c_str(), hex(m.worstResult).c_str(),
                m.notNearest, m.measured);
  return buffer;
}

void write(std::filesystem::path const& path, std::string const& content) {
  std::ofstream out(path, std::ios::binary);
  out << content;
  out.close();
  if (!out) {
    std::cerr << "accuracy-report: cannot write " << path.string() << "\n";
    std::exit(1);
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: accuracy-report FOLDER\n\nWrites FOLDER/accuracy.md and FOLDER/accuracy/NAME.svg.\n";
    return 2;
  }
  const std::filesystem::path folder = argv[1];
  std::filesystem::create_directories(folder / "accuracy");

  std::string errors, values, pictures;
  for (measuredFunction const& f : functions) {
    std::cerr << f.name << std::endl;
    const measurement m = measure(f);
    errors += row(f, m);
    write(folder / "accuracy" / (std::string(f.name) + ".svg"), plotOf(f.name, m));
    values += "| `" + std::string(f.name) + "` |";
    for (auto const& special : specials) values += " " + hex(f.function({special.pattern}).bits) + " |";
    values += "\n";
    pictures += "![Error of " + std::string(f.name) + " over all halves](accuracy/" + f.name + ".svg)\n\n";
  }

  std::string head = "| function |", rule = "|---|";
  for (auto const& special : specials) head += std::string(" ") + special.name + " |", rule += "---|";
  write(
      folder / "accuracy.md",
      "# Accuracy\n\n"
      "Every real function of one half over every finite input, beside the exact value by MPFR with 160 bits. Written\n"
      "by `./demo accuracy`; running it again gives the same file.\n\n"
      "An error is the distance of a result from the exact value in units in the last place of half at that value. A\n"
      "correctly rounded result is at most 0.5 away. Infinity counts as 65536, and is right beyond. Inputs without a\n"
      "real value are not counted. `exp` is a short quadratic by design; the others round a single-precision result,\n"
      "and miss the nearest half only where the exact value lies almost half-way between two.\n\n"
      "| function | largest error | at | result | not nearest | inputs |\n|---|---|---|---|---|---|\n" +
          errors + "\n## Special values\n\nResults as patterns, NaN signs included.\n\n" + head + "\n" + rule + "\n" +
          values + "\n## Pictures\n\n" + pictures);
  std::cerr << "written: " << (folder / "accuracy.md").string() << "\n";
  return 0;
}
