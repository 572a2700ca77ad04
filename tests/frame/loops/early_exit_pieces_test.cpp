// One piece of a parallel loop that stops, over a range whose end changes between any two questions: what a flag does
// that another thread sets.
#include <gtest/gtest.h>

#include <vector>

#include "frame/loops/early_exit_loop.h"

namespace zthalf {
namespace {

using namespace half::templates::emulated;

// Answers so many times where it ends, then that it ends where it begins.
class endingRange {
 public:
  endingRange(unsigned long begin, unsigned long end, int answers) : begin_(begin), end_(end), answers_(answers) {}
  unsigned long begin() const { return begin_; }
  unsigned long end() const { return answers_-- > 0 ? end_ : begin_; }
  void cancel() const { isCancelled_ = true; }
  bool isCancelled() const { return isCancelled_; }

 private:
  unsigned long begin_, end_;
  mutable int answers_;
  mutable bool isCancelled_ = false;
};

constexpr unsigned short bad = 0xBAD;

struct isBad {
  ZTHALF_INLINE bool operator()(unsigned short x) const { return x == bad; }
  bool operator()(unsigned short a, unsigned short b) const { return a == bad || b == bad; }
};

struct sumFtor {
  unsigned short operator()(unsigned short x) const { return static_cast<unsigned short>(x + 1); }
  unsigned short operator()(unsigned short a, unsigned short b) const { return static_cast<unsigned short>(a + b); }
};

// A piece in the middle of good elements, with bad ones right outside of it: whoever leaves it cancels.
constexpr unsigned long begin = 700;
constexpr unsigned long lengths[] = {1, 2, 511, 512, 513, 600, 1024, 1025, 1700};

std::vector<unsigned short> fenced(unsigned long length) {
  std::vector<unsigned short> x(begin + length + 2 * scanBlock, bad);
  std::fill_n(x.begin() + begin, length, static_cast<unsigned short>(7));
  return x;
}

TEST(ScanPiece, LooksAtNothingOutsideOfItWheneverTheLoopIsCancelled) {
  for (const unsigned long length : lengths) {
    auto x = fenced(length);
    for (int answers = 0; answers < 20; ++answers) {
      const endingRange piece(begin, begin + length, answers);
      scanPiece<isBad>(piece, x.data());
      EXPECT_FALSE(piece.isCancelled()) << length << " elements, cancelled after " << answers << " answers";
    }
  }
}

TEST(ScanPiece, FindsABadElementAnywhereInIt) {
  for (const unsigned long length : lengths) {
    auto x = fenced(length);
    for (unsigned long at = begin; at < begin + length; ++at) {
      x[at] = bad;
      const endingRange piece(begin, begin + length, 1000);
      scanPiece<isBad>(piece, x.data());
      EXPECT_TRUE(piece.isCancelled()) << "element " << at - begin << " of " << length;
      x[at] = 7;
    }
  }
}

TEST(UnaryEarlyExitPiece, LooksAtNothingOutsideOfItWheneverTheLoopIsCancelled) {
  auto x = fenced(20);
  for (int answers = 0; answers < 60; ++answers) {
    std::vector<unsigned short> result(x.size(), 9);
    const endingRange piece(begin, begin + 20, answers);
    unaryWithEarlyExitPiece(piece, x.data(), result.data(), sumFtor{}, isBad{});
    EXPECT_FALSE(piece.isCancelled());
    for (unsigned long i = 0; i < result.size(); ++i)
      ASSERT_TRUE(result[i] == 9 || (i >= begin && i < begin + 20 && result[i] == 8)) << "element " << i;
  }
}

TEST(BinaryEarlyExitPiece, LooksAtNothingOutsideOfItWheneverTheLoopIsCancelled) {
  auto x = fenced(20);
  std::vector<unsigned short> one = {1};
  for (int answers = 0; answers < 60; ++answers) {
    std::vector<unsigned short> result(x.size(), 9);
    const endingRange piece(begin, begin + 20, answers);
    binaryWithEarlyExitPiece(piece, x.data(), one.data(), result.data(), 1, sumFtor{}, isBad{});
    EXPECT_FALSE(piece.isCancelled());
    for (unsigned long i = 0; i < result.size(); ++i)
      ASSERT_TRUE(result[i] == 9 || (i >= begin && i < begin + 20 && result[i] == 8)) << "element " << i;
  }
}

}  // namespace
}  // namespace zthalf
