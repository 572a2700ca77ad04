// A program of a host's own: the library with the second host behind it, by its installed interface alone.
#include <zthalf/codetext.h>
#include <zthalf/host.h>
#include <zthalf/host/vq_array_api.h>
#include <zthalf/host/vq_fields.h>
#include <zthalf/host_errors.h>
#include <zthalf/host_functions.h>

#include <cstdio>
#include <cstring>

namespace api = matrix::detail::noninlined::vq_array_api;

namespace {

int wrong = 0;
void expect(bool condition, char const* what) {
  if (!condition) std::printf("wrong: %s\n", what), ++wrong;
}

}  // namespace

int main() {
  vqArray_tag* const z = half::createHalfMatrix(2, 3, true);
  expect(half::isVqArrayHalf(z) && half::isVqArrayComplex(z), "a complex half array");
  expect(vq_or_half::vqGetM(z) == 2 && vq_or_half::vqGetN(z) == 3, "its shape");
  for (int i = 0; i < 6; ++i) half::getHalfPointer(z)[2 * i] = {static_cast<unsigned short>(0x3C00 + i)};
  half::freeImagIfZero(z);
  expect(!half::isVqArrayComplex(z), "a real one");
  expect(half::getHalfPointer(z)[5].bits == 0x3C05, "its elements");

  vqArray_tag* const row = half::createHalfMatrix(1, 6, false);
  vqArray_tag const* inputs[] = {z, row};
  vqArray_tag* output = nullptr;
  try {
    ulpFcn(1, &output, 2, inputs);
    expect(false, "an error of sizes");
  } catch (half::error::exceptionOf<half::error::dimagree> const& error) {
    expect(error.error_id() == "half:error:dimagree", "its identifier");
    expect(std::strcmp(static_cast<std::exception const&>(error).what(), "an error of the second host") == 0,
           "the host's text");
  }
  inputs[1] = z;
  ulpFcn(1, &output, 2, inputs);
  expect(vq_or_half::vqGetClassID(output) == vqDoubleClass, "a double array");
  expect(*static_cast<double*>(vq_fields::data(output)) == 0.0, "no distance");

  const half::CompilerInfo c(false, false, false, false, false, std::make_shared<half::NativeTargetHalfType>(), false);
  expect(half::to_string(half_t{0x2E66}, c, false) == "floatToHalf(0.0999755859F)", "the host's digits");
  if (wrong == 0) std::printf("all is right\n");
  return wrong == 0 ? 0 : 1;
}
