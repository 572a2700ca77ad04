#include <gtest/gtest.h>

#include <fstream>
#include <limits>
#include <set>
#include <string>
#include <type_traits>
#include <vector>

#include "tests/support/table_entries.h"
#include "zthalf/half_ptr.h"
#include "zthalf/lifecycle.h"

namespace zthalf {
namespace {

using testing::forEachEntry;
using testing::replacedEntry;

std::vector<void*> contentOfTheTable() {
  std::vector<void*> content;
  forEachEntry([&](char const*, auto& entry, auto) { content.push_back(reinterpret_cast<void*>(entry)); });
  return content;
}

// The names under "# Present" in the reviewed list.
std::set<std::string> namesPresent() {
  std::ifstream list(ZTHALF_GOLDEN_DIRECTORY "/../abi/entries.txt");
  std::set<std::string> names;
  for (std::string line; std::getline(list, line) && line.rfind("# Still to come", 0) != 0;)
    if (!line.empty() && line[0] != '#') names.insert(line);
  return names;
}

TEST(Table, HasNoNullEntryAndEachLeadsToItsImplementation) {
  std::set<std::string> visited;
  forEachEntry([&](char const* name, auto& entry, auto implementation) {
    visited.insert(name);
    ASSERT_NE(entry, nullptr) << name;
    EXPECT_EQ(entry, implementation) << name;
  });
  EXPECT_EQ(visited, namesPresent());
}

TEST(Table, GivesEveryEntryAVariableAndANameOfItsOwn) {
  std::set<void const*> variables;
  std::set<std::string> names;
  unsigned long entries = 0;
  forEachEntry([&](char const* name, auto& entry, auto) {
    ++entries;
    variables.insert(&entry);
    names.insert(name);
  });
  EXPECT_EQ(variables.size(), entries);
  EXPECT_EQ(names.size(), entries);
}

// A function of the entry's signature that is nobody's implementation.
template <class Function>
struct standIn;
template <class Result, class... Args>
struct standIn<Result(Args...)> {
  static Result function(Args...) { return Result(); }
};

TEST(Table, StandsInMemoryThatAProgramCanWrite) {
  const std::vector<void*> before = contentOfTheTable();
  forEachEntry([&](char const* name, auto& entry, auto implementation) {
    auto* const other = &standIn<std::remove_pointer_t<decltype(implementation)>>::function;
    {
      const replacedEntry swap(entry, other);
      EXPECT_EQ(entry, other) << name;
      unsigned long changed = 0;
      const std::vector<void*> meanwhile = contentOfTheTable();
      for (unsigned long i = 0; i < before.size(); ++i) changed += before[i] != meanwhile[i];
      EXPECT_EQ(changed, 1u) << name << " is not alone in its variable";
    }
    EXPECT_EQ(entry, implementation) << name;
  });
  EXPECT_EQ(contentOfTheTable(), before);
}

TEST(CpuDispatch, ReturnsZeroAndChangesNoEntry) {
  const std::vector<void*> before = contentOfTheTable();
  for (const int n : {0, 1, -1, 2, 42, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
    EXPECT_EQ(half_ptr::CPU_Dispatch(n), 0) << n;
    EXPECT_EQ(contentOfTheTable(), before) << n;
  }
}

TEST(Table, IsNotChangedByInitialisingAndTerminating) {
  const std::vector<void*> before = contentOfTheTable();
  VLInitialize_half();
  EXPECT_EQ(contentOfTheTable(), before);
  VLTerminate_half();
  EXPECT_EQ(contentOfTheTable(), before);
}

}  // namespace
}  // namespace zthalf
