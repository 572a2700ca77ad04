// Half arrays as a host has them: objects with a shape, flags and data of their own. The host here is the small one
// that comes with the library, libzthalf-host; a real one takes its place without a change in what follows but the
// parts that name zthalf::host.
#include <zthalf/codetext.h>
#include <zthalf/half_vector.h>
#include <zthalf/host.h>
#include <zthalf/host/embedded.h>
#include <zthalf/host_errors.h>
#include <zthalf/host_functions.h>

#include <cstdio>
#include <initializer_list>
#include <vector>

namespace {

using zthalf::host::array;

// A half matrix of these numbers, column by column.
array matrixOf(unsigned long m, unsigned long n, std::vector<double> numbers) {
  array made(half::createUninitHalfMatrix(m, n, false));
  half_vector::convertToHalf(numbers.data(), half::getHalfPointer(made.get()), numbers.size());
  return made;
}

void print(char const* what, vqArray_tag const* matrix) {
  const unsigned long m = vq_or_half::vqGetM(matrix), n = vq_or_half::vqGetN(matrix);
  std::vector<double> numbers(m * n);
  half_vector::convertFromHalf(half::getHalfPointer(matrix), numbers.data(), m * n);
  std::printf("%s, %lu by %lu:\n", what, m, n);
  for (unsigned long i = 0; i < m; ++i) {
    for (unsigned long j = 0; j < n; ++j) std::printf(" %8g", numbers[i + j * m]);
    std::printf("\n");
  }
}

// What a host does for a + b: it takes data and sizes, makes the output, and calls.
array sumOf(vqArray_tag const* a, vqArray_tag const* b) {
  const unsigned long m = vq_or_half::vqGetM(a), n = vq_or_half::vqGetN(b), dims[] = {m, n};
  array c(half::createUninitHalfArray(m * n, 2, dims, false));
  half_vector::plus(half::getHalfPointer(a), half::getHalfPointer(b), half::getHalfPointer(c.get()),
                    vq_or_half::vqGetNumberOfElements(a), 2, vq_or_half::vqGetDimensions(a),
                    vq_or_half::vqGetNumberOfElements(b), 2, vq_or_half::vqGetDimensions(b), m * n, 2, dims);
  return c;
}

}  // namespace

int main() {
  const array column = matrixOf(3, 1, {0.1, 0.2, 0.3}), row = matrixOf(1, 4, {0, 10, 20, 30});
  const array sum = sumOf(column.get(), row.get());
  print("a column plus a row", sum.get());

  // A complex array without imaginary parts becomes a real one where it stands.
  const array z(half::createHalfMatrix(2, 1, true));
  half::getHalfPointer(z.get())[0] = {0x3C00};
  half::getHalfPointer(z.get())[2] = {0x4000};
  std::printf("complex: %d", half::isVqArrayComplex(z.get()));
  half::freeImagIfZero(z.get());
  std::printf(", then: %d\n", half::isVqArrayComplex(z.get()));
  print("its real parts", z.get());

  // How far halves are from the doubles they came from, in units in the last place.
  const array exact = zthalf::host::newArray({3, 1}, vqDoubleClass);
  for (int i = 0; i < 3; ++i) zthalf::host::elementsOf<double>(exact.get())[i] = (i + 1) / 10.0;
  const array distance = zthalf::host::call(&ulpFcn, {column.get(), exact.get()});
  std::printf("distances:");
  for (int i = 0; i < 3; ++i) std::printf(" %.3f", zthalf::host::elementsOf<double>(distance.get())[i]);
  std::printf("\n");

  try {
    zthalf::host::call(&ulpFcn, {column.get(), row.get()});
  } catch (half::error::exceptionOf<half::error::dimagree> const& error) {
    std::printf("%s: %s\n", error.error_id().c_str(), error.what());
  }

  // A constant in generated code: for the GPU, a target with a half type of its own, C++, C, and C data.
  const half_t third{0x3555};
  const auto none = std::make_shared<half::NativeTargetHalfType>();
  const auto native = std::make_shared<half::NativeTargetHalfType>("_Float16", "F16", "", true, false);
  for (half::CompilerInfo const& target : {half::CompilerInfo(true, true, false, false, false, none, false),
                                           half::CompilerInfo(false, false, false, false, false, native, false),
                                           half::CompilerInfo(true, false, false, false, false, none, false),
                                           half::CompilerInfo(false, false, false, false, false, none, false),
                                           half::CompilerInfo(false, false, true, false, false, none, false)})
    std::printf("%s\n", half::to_string(third, target, true).c_str());
}
