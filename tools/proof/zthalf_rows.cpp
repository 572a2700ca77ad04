// Our rows of the proof: every instruction level of this processor, on 1, 2 and 8 threads.
//
// usage: zthalf_proof              the rows
//        zthalf_proof --inputs     the inputs, for peers in other languages: patterns in the machine's byte order
#include <tbb/global_control.h>
#include <tbb/task_arena.h>

#include <cstring>

#include "core/instruction_level.h"
#include "tools/proof/inputs.h"
#include "tools/proof/row.h"
#include "zthalf/zthalf.h"

namespace {

half_t* halves(std::vector<std::uint16_t> const& patterns) {
  return reinterpret_cast<half_t*>(const_cast<std::uint16_t*>(patterns.data()));
}

std::complex<half_t>* complexHalves(std::vector<std::uint16_t> const& patterns) {
  return reinterpret_cast<std::complex<half_t>*>(halves(patterns));
}

std::uint16_t sumOf(std::vector<std::uint16_t> const& addends, FloatTypeEnum accumulator, FloatTypeEnum output) {
  unsigned long dims[] = {addends.size()};
  double wide = 0;
  half_t sum{};
  void* const to = output == FloatTypeDouble ? static_cast<void*>(&wide) : &sum;
  half_vector::sum(halves(addends), to, 1, dims, true, false, false, accumulator, output);
  return output == FloatTypeDouble ? half_scalar::impl::convertDoubleToHalf(wide) : sum.bits;
}

proof::results compute(proof::inputs const& in) {
  proof::results found{};
  found.sums[0] = sumOf(in.addends, FloatTypeHalf, FloatTypeHalf);
  found.sums[1] = sumOf(in.addends, FloatTypeSingle, FloatTypeHalf);
  found.sums[2] = sumOf(in.addends, FloatTypeDouble, FloatTypeDouble);

  unsigned long const count[] = {proof::pairCount};
  found.products.resize(proof::pairCount);
  half_vector::times(halves(in.left), halves(in.right), halves(found.products), count[0], 1, count, count[0], 1, count,
                     count[0], 1, count);
  found.exponentials.resize(proof::patternCount);
  half_vector::exp(halves(in.every), halves(found.exponentials), proof::patternCount);
  found.complexProducts.resize(2 * proof::pairCount);
  half_vector::times(complexHalves(in.z), complexHalves(in.w), complexHalves(found.complexProducts), count[0], 1, count,
                     count[0], 1, count, count[0], 1, count);
  return found;
}

void printRows() {
  using zthalf::instructionLevel;
  char const* const names[] = {"", "base", "v3", "v4"};
  const proof::inputs in = proof::makeInputs();
  for (auto level = instructionLevel::base; level <= zthalf::supportedLevel();
       level = static_cast<instructionLevel>(static_cast<int>(level) + 1)) {
    zthalf::forceLevel(level);
    for (const unsigned threads : proof::threadCounts) {
      const tbb::global_control limit(tbb::global_control::max_allowed_parallelism, threads);
      tbb::task_arena arena(static_cast<int>(threads));
      arena.execute([&] { proof::report("zthalf", names[static_cast<int>(level)], threads, compute(in)); });
    }
  }
}

void writeInputs() {
  const proof::inputs in = proof::makeInputs();
  for (auto* column : {&in.addends, &in.left, &in.right, &in.every, &in.z, &in.w})
    std::fwrite(column->data(), sizeof(std::uint16_t), column->size(), stdout);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc == 2 && std::strcmp(argv[1], "--inputs") == 0) {
    writeInputs();
  } else if (argc == 1) {
    printRows();
  } else {
    std::fprintf(stderr, "usage: zthalf_proof [--inputs]\n");
    return 2;
  }
  return 0;
}
