// Every instruction level that this processor has.
#include "bench/harness.h"
#include "core/instruction_level.h"

namespace bench {

std::vector<ownSubject> const& ownSubjects() {
  using zthalf::instructionLevel;
  static const std::vector<ownSubject> subjects = [] {
    std::vector<ownSubject> found = {{"base", [] { zthalf::forceLevel(instructionLevel::base); }}};
    if (zthalf::supportedLevel() >= instructionLevel::v3) {
      found.push_back({"v3", [] { zthalf::forceLevel(instructionLevel::v3); }});
    }
    if (zthalf::supportedLevel() >= instructionLevel::v4) {
      found.push_back({"v4", [] { zthalf::forceLevel(instructionLevel::v4); }});
    }
    return found;
  }();
  return subjects;
}

}  // namespace bench
