// Halves as text in generated source code: what a target is like, and what a value is called there.
#pragma once

#include <memory>
#include <string>

#include "zthalf/detail/export.h"
#include "zthalf/half_t.h"

namespace half {

/// What a target's own half type is like, if it has one. Not protected against use by several threads.
class NativeTargetHalfType {
 public:
  /// A target without one: nothing is supported but the cast to double, and all texts are empty.
  ZTHALF_API NativeTargetHalfType();
  /// A target that has one exactly if the identifier is not empty.
  ZTHALF_API NativeTargetHalfType(std::string identifier, std::string literalSuffix, std::string customHeaders,
                                  bool halfToDoubleCast, bool nonFiniteLiterals);

  ZTHALF_API bool getNativeTargetHalfSupport() const;
  ZTHALF_API bool getNativeHalfToDoubleCastSupport() const;
  ZTHALF_API bool getNativeHalfNonFiniteLiteralsSupport() const;
  /// The name of the type, the suffix of its literals, the headers that code with it includes.
  ZTHALF_API std::string getNativeHalfIdentifier() const;
  ZTHALF_API std::string getNativeHalfLiteralSuffix() const;
  ZTHALF_API std::string getNativeHalfCustomHeaders() const;

  /// A name that is not empty says that the target has the type; an empty one does not take that back.
  ZTHALF_API void setNativeHalfIdentifier(std::string identifier);
  ZTHALF_API void setNativeHalfLiteralSuffix(std::string suffix);
  ZTHALF_API void setNativeHalfCustomHeaders(std::string headers);
  ZTHALF_API void setNativeHalfToDoubleCast(bool supported);

 private:
  bool nativeSupport_ = false;
  std::string identifier_, literalSuffix_, customHeaders_;
  bool halfToDoubleCast_ = true;
  bool nonFiniteLiterals_ = false;
};

/// Which kind of text is written. A copy shares the target. Not protected against use by several threads.
class CompilerInfo {
 public:
  /// The target must not be null. supportNonFiniteLiterals counts for template-language text (isRGL) alone.
  ZTHALF_API CompilerInfo(bool isCPP, bool isGPU, bool isInitializer, bool isRGL, bool supportNonFiniteLiterals,
                          std::shared_ptr<NativeTargetHalfType> target, bool isHBX);

  ZTHALF_API bool isCPP() const;
  ZTHALF_API bool isGPU() const;
  ZTHALF_API bool isHBX() const;
  ZTHALF_API std::shared_ptr<NativeTargetHalfType> getHalfTargetInfo() const;
  /// Whether the text initializes a constant.
  ZTHALF_API bool isInitializer() const;
  ZTHALF_API void setInitializer(bool initializer);
  ZTHALF_API bool isRGL() const;
  ZTHALF_API bool supportNonFiniteLiterals() const;

  /// Which emitter to_string takes, by the first condition that holds: 2 for GPU text that is no initializer, 3 where
  /// the target has a half type, 1 for C++ text, 0 otherwise.
  ZTHALF_API int getCodeTargetForStringConversion() const;

 private:
  bool isCPP_, isGPU_, isHBX_;
  std::shared_ptr<NativeTargetHalfType> target_;
  bool isInitializer_, isRGL_, supportNonFiniteLiterals_;
};

/// The text that denotes the value, by the emitter below that getCodeTargetForStringConversion names. comment adds the
/// value to an initializer in C. Every value has a text; all NaNs have the same one, but in an initializer in C.
///
/// The digits are those of the host's getFloatValueStr and getDoubleValueStr, written into buffers that all calls
/// share: two threads must not be in these functions at the same time.
ZTHALF_API std::string to_string(half_t value, CompilerInfo info, bool comment);

/// `__float2half(1.5F)`
ZTHALF_API std::string to_string_gpu(half_t value, CompilerInfo const& info);
/// `1.5F16`, with the target's suffix; `(real16_T)(rtInfF)` or, in C++, `static_cast<real16_T>(rtInfF)`
ZTHALF_API std::string to_string_native(half_t value, CompilerInfo const& info);
/// `floatToHalf(1.5F)`; as an initializer the pattern, `{ 15872U }`, with a comment `{ 15872U } /* 1.5 */ `
ZTHALF_API std::string to_string_emulated_c(half_t value, CompilerInfo const& info, bool comment);
/// `static_cast<real16_T>(1.5F)`; as an initializer `real16_T(1.5F)`
ZTHALF_API std::string to_string_emulated_cpp(half_t value, CompilerInfo const& info);

}  // namespace half
