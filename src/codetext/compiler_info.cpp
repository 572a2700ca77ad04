#include <utility>

#include "zthalf/codetext.h"

namespace half {

NativeTargetHalfType::NativeTargetHalfType() = default;

NativeTargetHalfType::NativeTargetHalfType(std::string identifier, std::string literalSuffix, std::string customHeaders,
                                           bool halfToDoubleCast, bool nonFiniteLiterals)
    : nativeSupport_(!identifier.empty()),
      identifier_(std::move(identifier)),
      literalSuffix_(std::move(literalSuffix)),
      customHeaders_(std::move(customHeaders)),
      halfToDoubleCast_(halfToDoubleCast),
      nonFiniteLiterals_(nonFiniteLiterals) {}

bool NativeTargetHalfType::getNativeTargetHalfSupport() const { return nativeSupport_; }
bool NativeTargetHalfType::getNativeHalfToDoubleCastSupport() const { return halfToDoubleCast_; }
bool NativeTargetHalfType::getNativeHalfNonFiniteLiteralsSupport() const { return nonFiniteLiterals_; }
std::string NativeTargetHalfType::getNativeHalfIdentifier() const { return identifier_; }
std::string NativeTargetHalfType::getNativeHalfLiteralSuffix() const { return literalSuffix_; }
std::string NativeTargetHalfType::getNativeHalfCustomHeaders() const { return customHeaders_; }

void NativeTargetHalfType::setNativeHalfIdentifier(std::string identifier) {
  identifier_ = std::move(identifier);
  if (!identifier_.empty()) nativeSupport_ = true;
}
void NativeTargetHalfType::setNativeHalfLiteralSuffix(std::string suffix) { literalSuffix_ = std::move(suffix); }
void NativeTargetHalfType::setNativeHalfCustomHeaders(std::string headers) { customHeaders_ = std::move(headers); }
void NativeTargetHalfType::setNativeHalfToDoubleCast(bool supported) { halfToDoubleCast_ = supported; }

CompilerInfo::CompilerInfo(bool isCPP, bool isGPU, bool isInitializer, bool isRGL, bool supportNonFiniteLiterals,
                           std::shared_ptr<NativeTargetHalfType> target, bool isHBX)
    : isCPP_(isCPP),
      isGPU_(isGPU),
      isHBX_(isHBX),
      target_(std::move(target)),
      isInitializer_(isInitializer),
      isRGL_(isRGL),
      supportNonFiniteLiterals_(supportNonFiniteLiterals) {}

bool CompilerInfo::isCPP() const { return isCPP_; }
bool CompilerInfo::isGPU() const { return isGPU_; }
bool CompilerInfo::isHBX() const { return isHBX_; }
std::shared_ptr<NativeTargetHalfType> CompilerInfo::getHalfTargetInfo() const { return target_; }
bool CompilerInfo::isInitializer() const { return isInitializer_; }
void CompilerInfo::setInitializer(bool initializer) { isInitializer_ = initializer; }
bool CompilerInfo::isRGL() const { return isRGL_; }
bool CompilerInfo::supportNonFiniteLiterals() const { return supportNonFiniteLiterals_; }

// The order decides: GPU text wins over the target's own type, and that over the language.
int CompilerInfo::getCodeTargetForStringConversion() const {
  if (!isInitializer_ && isGPU_) return 2;
  if (target_->getNativeTargetHalfSupport()) return 3;
  return isCPP_ ? 1 : 0;
}

}  // namespace half
