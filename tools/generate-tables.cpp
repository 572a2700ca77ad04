// Writes the result tables as a C++ source to standard output. Linked with the scalar functions, whose results for
// every pattern the tables are.
#include <cstdint>
#include <cstdio>

#include "results/result_tables.h"
#include "zthalf/half_scalar.h"

namespace {

void writeTable(char const* name, half_t (*function)(half_t)) {
  std::printf("alignas(64) const std::uint16_t %s[patternCount] = {", name);
  for (std::uint32_t p = 0; p <= 0xFFFF; ++p) {
    std::printf("%s0x%04X,", p % 16 == 0 ? "\n" : "", function({static_cast<std::uint16_t>(p)}).bits);
  }
  std::printf("};\n");
}

}  // namespace

int main() {
  std::printf(
      "// Made by tools/generate-tables.cpp; not to be edited.\n"
      "#include \"results/result_tables.h\"\n"
      "namespace zthalf::results {\n");
#define ZTHALF_WRITE_TABLE(function, ...) writeTable(#function, half_scalar::function);
  ZTHALF_RESULT_TABLES(ZTHALF_WRITE_TABLE)
  std::printf("}  // namespace zthalf::results\n");
  return std::fflush(stdout) == 0 && std::ferror(stdout) == 0 ? 0 : 1;
}
