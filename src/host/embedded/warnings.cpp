// Warnings of the embedded host: to a sink that a program sets, or counted and printed once. An operation that warns
// for each element of a large array must not print a line for each.
#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <mutex>
#include <string>
#include <utility>

#include "host/embedded/messages.h"
#include "zthalf/host/embedded.h"
#include "zthalf/host/exceptions.h"

namespace zthalf::embedded {

namespace {

std::atomic<host::warningSink> sink{nullptr};

class warningCounts {
 public:
  // Never destroyed, since a warning may come from whatever is still running when the process ends.
  static warningCounts& only() {
    static warningCounts& counts = *[] {
      auto* const made = new warningCounts;
      std::atexit([] { only().print(); });
      return made;
    }();
    return counts;
  }

  void add(resource_core::BaseMsgID const& id) {
    const std::lock_guard lock(mutex_);
    if (last_ == nullptr || last_->first.first != id.catalogue() || last_->first.second != id.key())
      last_ = &*counts_.try_emplace(names(id.catalogue(), id.key()), 0).first;
    ++last_->second;
  }

  void print() {
    const std::lock_guard lock(mutex_);
    for (auto const& [name, times] : counts_) {
      const resource_core::BaseMsgID id(name.first.c_str(), name.second.c_str());
      char const* const text = messageOf(id);
      std::fprintf(stderr, "Warning: %s%s(%s, %lu %s)\n", text != nullptr ? text : "", text != nullptr ? " " : "",
                   identifierOf(id).c_str(), times, times == 1 ? "time" : "times");
    }
    counts_.clear();
    last_ = nullptr;
  }

 private:
  using names = std::pair<std::u16string, std::u16string>;

  std::mutex mutex_;
  std::map<names, unsigned long> counts_;
  std::pair<names const, unsigned long>* last_ = nullptr;  // most warnings are like the one before
};

}  // namespace

}  // namespace zthalf::embedded

namespace zthalf::host {

warningSink setWarningSink(warningSink sink) { return embedded::sink.exchange(sink); }

void printWarnings() { embedded::warningCounts::only().print(); }

}  // namespace zthalf::host

void vqWarningMsgId(resource_core::BaseMsgID const& id) {
  if (auto* const sink = zthalf::embedded::sink.load()) {
    char const* const text = zthalf::embedded::messageOf(id);
    sink(id, text != nullptr ? text : "");
  } else {
    zthalf::embedded::warningCounts::only().add(id);
  }
}
