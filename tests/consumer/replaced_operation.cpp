// A program that has an operation of the host's itself: the library calls it in place of the one that it came with, and
// the other operations stay what they were.
#include <zthalf/codetext.h>
#include <zthalf/host.h>
#include <zthalf/host/embedded.h>
#include <zthalf/host/float_text.h>
#include <zthalf/host_errors.h>
#include <zthalf/host_functions.h>

#include <cstdio>
#include <cstring>

void getFloatValueStr(char* buffer, float value) { std::snprintf(buffer, 32, "<%g>", static_cast<double>(value)); }

int handed = 0;
void matrix::detail::do_legacy_vq_error(foundation::core::except::IUserException const&) { ++handed; }

int main() {
  const half::CompilerInfo c(false, false, false, false, false, std::make_shared<half::NativeTargetHalfType>(), false);
  if (half::to_string(half_t{0x3E00}, c, false) != "floatToHalf(<1.5>F)") return 1;
  const half::CompilerInfo data(false, false, true, false, false, std::make_shared<half::NativeTargetHalfType>(),
                                false);
  if (half::to_string(half_t{0x3E00}, data, true) != "{ 15872U } /* 1.5 */ ") return 2;

  const zthalf::host::array a(half::createHalfMatrix(2, 1, false)), b(half::createHalfMatrix(1, 2, false));
  try {
    zthalf::host::call(&ulpFcn, {a.get(), b.get()});
    return 3;
  } catch (half::error::exceptionOf<half::error::dimagree> const& error) {
    if (error.error_id() != "half:error:dimagree" || handed != 1) return 4;
  }
  return zthalf::host::call(&ulpFcn, {a.get(), a.get()}) != nullptr ? 0 : 5;
}
