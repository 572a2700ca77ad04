// Uses a little of everything that is installed; the exit status is the number of wrong answers.
#include <zthalf/zthalf.h>

#include <complex>
#include <cstdio>

extern "C" void initialize_from_c();
extern "C" void terminate_from_c();
extern "C" int version_from_c();
void initializeFromCpp();
void terminateFromCpp();

namespace {

int wrong = 0;

void expect(bool right, char const* what) {
  if (right) return;
  std::printf("wrong: %s\n", what);
  ++wrong;
}

// A value, an array through the facade, and the same array through the table.
bool arraysWork() {
  float celsius[] = {24.125f, -0.5f, 65519.996f};
  half_t halves[3], negated[3], twice[3];
  unsigned long const dims[] = {3, 1};
  half_vector::convertToHalf(celsius, halves, 3);
  half_vector::uminus(halves, negated, 3);
  half_vector::plus(halves, halves, twice, 3, 2, dims, 3, 2, dims, 3, 2, dims);
  float back[3];
  half_vector::convertFromHalf(twice, back, 3);
  half_ptr::convertDoubleToHalfPtr(nullptr, nullptr, 0);
  return halves[0].bits == 0x4E08 && halves[2].bits == 0x7BFF && negated[1].bits == 0x3800 && back[0] == 48.25f &&
         back[1] == -1.0f && twice[2].bits == 0x7C00;
}

}  // namespace

int main() {
  expect(!half_ptr::isInitialized(), "isInitialized() before anything was called");
  expect(arraysWork(), "arrays before initialisation");

  auto* const entry = half_ptr::uminusPtr;
  terminate_from_c();
  expect(!half_ptr::isInitialized(), "isInitialized() after termination alone");
  initialize_from_c();
  expect(half_ptr::isInitialized(), "isInitialized() after initialisation from C");
  initializeFromCpp();
  terminateFromCpp();
  terminate_from_c();
  expect(half_ptr::isInitialized(), "isInitialized() after termination");
  for (int choice : {0, 1, -1, 1 << 30}) expect(half_ptr::CPU_Dispatch(choice) == 0, "the result of CPU_Dispatch");
  expect(half_ptr::uminusPtr == entry, "CPU_Dispatch changed an entry");
  expect(arraysWork(), "arrays after all of it");

  half_ptr::initialized = 0;
  half_ptr::CPU_Dispatch(7);
  expect(half_ptr::isInitialized(), "isInitialized() after CPU_Dispatch");
  half_ptr::initialized = 0;
  initializeFromCpp();
  expect(half_ptr::isInitialized(), "isInitialized() after initialisation from C++");

  expect(zthalf_version() == ZTHALF_VERSION && version_from_c() == ZTHALF_VERSION, "the version");
  half_t x{0x3C00};
  expect((++x).bits == 0x4000 && half_scalar::eps(x).bits == 0x1800, "scalar functions");
  expect(half_scalar::impl::convertSingleToHalf(1.0009765f) == 0x3C01, "scalar conversion");
  std::complex<half_t> z{half_t{0x3C00}, half_t{0x0000}};
  expect(half_vector::isImagZero(&z, 1), "a query");
  return wrong;
}
