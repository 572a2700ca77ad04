#include "tests/host/support/provider.h"
#include "zthalf/host/embedded.h"

namespace zthalf::testing::provider {

vqArray_tag* newNumeric(sizeList const& sizes, vqClassID id, vqComplexity complexity) {
  return host::newArray(sizes, id, complexity).release();
}
vqArray_tag* newText(std::string const& text) { return host::newText(text.c_str()).release(); }
vqArray_tag* newOtherObject() {
  static const bool added = (host::addClass("other", vqDoubleClass), true);
  static_cast<void>(added);
  return omCreateKOBSBuiltinBasedMatrix(2, 2, "other");
}
void release(vqArray_tag* array) { host::release(array); }

void hold(vqArray_tag* array, bool byFirstCount) { ++(byFirstCount ? array->holders : array->owners); }
void letGo(vqArray_tag* array, bool byFirstCount) { --(byFirstCount ? array->holders : array->owners); }
vqArray_tag* newSharing(vqArray_tag* array) { return host::sharedCopy(array).release(); }
void deferDimensions(vqArray_tag* array) { host::deferDimensions(array); }
void derive(vqArray_tag* array) { host::deriveClass(array, "derived"); }

void setHalfAvailable(bool available) { host::setClassAvailable("half", available); }
void setOnError(void (*handler)(foundation::core::except::IUserException const&)) { host::setErrorHandler(handler); }
void setOnWarning(void (*sink)(resource_core::BaseMsgID const&, char const*)) { host::setWarningSink(sink); }

std::string countErrorOf(void (*call)(void*), void* context) {
  try {
    call(context);
    return "";
  } catch (host::argumentCountError const& error) {
    switch (error.what_is_wrong()) {
      case host::argumentCount::tooManyOutputs:
        return "maxlhs";
      case host::argumentCount::tooManyInputs:
        return "maxrhs";
      default:
        return "minrhs";
    }
  }
}

long live() { return host::liveArrays() + host::liveBuffers(); }

callScope::callScope() : made_(new host::temporaries) {}
callScope::~callScope() { delete static_cast<host::temporaries*>(made_); }

const bool notesCalls = false;
std::vector<std::string> takeCalls() { return {}; }
void failAt(std::string const&) {}

}  // namespace zthalf::testing::provider
