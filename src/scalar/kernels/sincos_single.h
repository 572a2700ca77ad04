// Sine and cosine of one angle in single precision.
#pragma once

namespace qsl_scalar {

template <class Wide>
struct sineAndCosine {
  Wide sine, cosine;
};

// The bits of sinSingle and cosSingle, from one reduction: each within 1 ulp. An infinity, or a NaN of either sign,
// gives the negative NaN 0xFFC00000 twice.
sineAndCosine<float> sincosSingle(float x);

}  // namespace qsl_scalar
