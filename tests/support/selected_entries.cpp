#include "tests/support/selected_entries.h"

#include "tests/support/table_entries.h"

namespace zthalf::testing {

namespace {

// Stands in for an entry. Name is a callable type, one for each of them.
template <class Name, class Function>
struct noteTaker;
template <class Name, class Result, class... Args>
struct noteTaker<Name, Result(Args...)> {
  static Result call(Args... args) {
    allEntriesListen::reached.push_back({Name{}(), {wordOf(args)...}});
    return Result();
  }
};

}  // namespace

allEntriesListen::allEntriesListen() {
#define ZTHALF_ROW(entry, signature, ...) \
  half_ptr::entry##Ptr = &noteTaker<decltype([] { return #entry; }), signature>::call;
  ZTHALF_TABLE
#undef ZTHALF_ROW
}

allEntriesListen::~allEntriesListen() {
  namespace element = half::element;
#define ZTHALF_ROW(entry, signature, ...) half_ptr::entry##Ptr = &half::__VA_ARGS__;
  ZTHALF_TABLE
#undef ZTHALF_ROW
}

}  // namespace zthalf::testing
