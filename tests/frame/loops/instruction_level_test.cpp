// Passes at every instruction level of this processor, side by side in one program.
#include "core/instruction_level.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

#include "elementwise/binary_op.h"
#include "frame/loops/simple_loop.h"
#include "scalar/functors/sign_and_class_functors.h"
#include "scalar/functors/spacing_functors.h"
#include "tests/support/loops.h"
#include "tests/support/unary_rows.h"

namespace zthalf {
namespace {

using namespace zthalf::testing;

class Levels : public ::testing::Test {
 protected:
  void TearDown() override { forceLevel(before_); }

  static std::vector<instructionLevel> supported() {
    std::vector<instructionLevel> levels;
    for (const auto level : {instructionLevel::base, instructionLevel::v3, instructionLevel::v4}) {
      if (level <= supportedLevel()) levels.push_back(level);
    }
    return levels;
  }

 private:
  const instructionLevel before_ = currentLevel();
};

template <class Pass, class... Args>
std::set<void (*)(Args...)> functionsOf(std::vector<instructionLevel> const& levels) {
  std::set<void (*)(Args...)> functions;
  for (const auto level : levels) {
    forceLevel(level);
    functions.insert(leveled<Pass, Args...>::chosen());
  }
  return functions;
}

TEST_F(Levels, GiveAWidePassAFunctionEach) {
  using pass = half_utils::unaryPass<half::scalar::emulated::uminusFtor, fp16binary_t, fp16binary_t>;
  const auto functions = functionsOf<pass, fp16binary_t*, fp16binary_t*, unsigned long>(supported());
  EXPECT_EQ(functions.size(), supported().size());
  forceLevel(instructionLevel::base);
  EXPECT_EQ((leveled<pass, fp16binary_t*, fp16binary_t*, unsigned long>::chosen()),
            (&leveled<pass, fp16binary_t*, fp16binary_t*, unsigned long>::base));
}

TEST_F(Levels, ShareTheFunctionOfAPassThatGainsNothingFromWidth) {
  using pass = half_utils::binaryPass<half::scalar::emulated::ulpFtor, fp16binary_t*, fp16binary_t*, double>;
  static_assert(half::scalar::emulated::ulpFtor::baseOnly && !pass::isWide);
  const auto functions = functionsOf<pass, fp16binary_t*, fp16binary_t*, double*, unsigned long>(supported());
  EXPECT_EQ(functions.size(), 1u);
}

TEST_F(Levels, GiveTheSameBitsForEveryUnaryRow) {
  constexpr unsigned long n = 10'007;
  bitSource bits(51);
  forEachUnaryRow([&](auto row) {
    using In = typename decltype(row)::input;
    using Out = typename decltype(row)::output;
    std::vector<std::byte> source(n * sizeof(In)), base(n * sizeof(Out)), wide(n * sizeof(Out));
    drawInto<In>(source.data(), n, bits);
    forceLevel(instructionLevel::base);
    row.facade(arrayAt<In>(source.data()), arrayAt<Out>(base.data()), n);
    for (const auto level : supported()) {
      forceLevel(level);
      std::fill(wide.begin(), wide.end(), std::byte{0xA5});
      row.facade(arrayAt<In>(source.data()), arrayAt<Out>(wide.data()), n);
      EXPECT_TRUE(wide == base) << row.name << " at level " << static_cast<int>(level);
    }
  });
}

}  // namespace
}  // namespace zthalf
