// The facade's element types and the templates' are the same storage under two names, or three where the templates take
// bare patterns.
#pragma once

#include <complex>

#include "zthalf/half_t.h"

namespace half_vector {

template <class T>
T* stored(T* p) {
  return p;
}
inline fp16binary_t* stored(half_t* p) { return reinterpret_cast<fp16binary_t*>(p); }
inline std::complex<fp16binary_t>* stored(std::complex<half_t>* p) {
  return reinterpret_cast<std::complex<fp16binary_t>*>(p);
}

template <class T>
T* bare(T* p) {
  return p;
}
inline unsigned short* bare(half_t* p) { return reinterpret_cast<unsigned short*>(p); }
inline std::complex<unsigned short>* bare(std::complex<half_t>* p) {
  return reinterpret_cast<std::complex<unsigned short>*>(p);
}

}  // namespace half_vector
