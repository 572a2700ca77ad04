#include "tools/accuracy/measure.h"

namespace zthalf::accuracy {

measurement measure(measuredFunction const& f) {
  measurement m;
  m.error.assign(lineLength, -1.0);
  for (unsigned position = 0; position < lineLength; ++position) {
    const half_t x{patternAt(position)};
    testing::precise truth = testing::exactly(f.exact, half_scalar::impl::convertHalfToDouble(x.bits));
    if (!truth.isFinite()) continue;
    const half_t result = f.function(x);
    const double value = half_scalar::impl::convertHalfToDouble(result.bits);
    const double error = truth.distanceTo(value, testing::halfFormat);
    m.error[position] = error;
    ++m.measured;
    if (value != truth.roundedTo(testing::halfFormat)) ++m.notNearest;
    if (error > m.worst) {
      m.worst = error;
      m.worstInput = x.bits;
      m.worstResult = result.bits;
    }
  }
  return m;
}

}  // namespace zthalf::accuracy
