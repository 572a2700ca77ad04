// hypot, atan2, mod and rem of two arrays, and power as a plain loop over its functor.
#include "bench/rows.h"
#include "core/instruction_level.h"
#include "elementwise/binary_op.h"
#include "scalar/functors/hypot_functors.h"
#include "scalar/functors/power_functors.h"
#include "zthalf/half_vector.h"

namespace bench {
namespace {

void power(half_t* a, half_t* b, half_t* c, unsigned long n, unsigned long, unsigned long const*, unsigned long,
           unsigned long, unsigned long const*, unsigned long, unsigned long, unsigned long const*) {
  using element = fp16binary_t;
  half_utils::halfBinaryOpParallelLoop(reinterpret_cast<element*>(a), reinterpret_cast<element*>(b),
                                       reinterpret_cast<element*>(c), n, half::scalar::emulated::powerFtor{});
}

const bool added = addRows([] {
  pairRow<half_t, half_t, half_t>("hypot", half_vector::hypot);
  pairRow<half_t, float, half_t>("hypot-half-single", half_vector::hypot);
  pairRow<half_t, double, half_t>("hypot-half-double", half_vector::hypot);
  pairRow<half_t, half_t, half_t>("atan2", half_vector::atan2);
  pairRow<half_t, double, half_t>("atan2-half-double", half_vector::atan2);
  pairRow<half_t, half_t, half_t>("mod", half_vector::mod);
  pairRow<half_t, half_t, half_t>("rem", half_vector::rem);
  pairRow<half_t, float, half_t>("rem-half-single", half_vector::rem);
  pairRow<half_t, half_t, half_t>("power", power);
});

}  // namespace
}  // namespace bench
