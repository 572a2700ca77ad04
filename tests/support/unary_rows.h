// The unary rows of the entry list as data: the three roads to each operation, and its rule for one element.
#pragma once

#include "tests/support/drawn_values.h"
#include "tests/support/scalar_rules.h"
#include "zthalf/detail/entries.h"
#include "zthalf/half_ops.h"
#include "zthalf/half_ptr.h"
#include "zthalf/half_vector.h"

namespace zthalf::testing {

// An array under the name that the operation templates use.
template <class T>
T* stored(T* array) {
  return array;
}
inline fp16binary_t* stored(half_t* array) { return reinterpret_cast<fp16binary_t*>(array); }
inline std::complex<fp16binary_t>* stored(std::complex<half_t>* array) {
  return reinterpret_cast<std::complex<fp16binary_t>*>(array);
}

template <class In, class Out>
struct unaryRow {
  using input = In;
  using output = Out;
  using pass = void (*)(In* src, Out* dst, unsigned long n);

  char const* name;
  pass facade;     // half_vector::...
  pass entry;      // through half_ptr::...Ptr
  pass operation;  // half::...
  Out (*rule)(loaded<In>);
};

namespace element = half_vector::element;

// The rows name their template instances relative to namespace half.
#define ZTHALF_ROW_OPERATION(entryName, facadeName, In, Out, ...)                                         \
  namespace operations {                                                                                  \
  inline void entryName(half_vector::element::In* src, half_vector::element::Out* dst, unsigned long n) { \
    namespace element = half::element;                                                                    \
    half::__VA_ARGS__(stored(src), stored(dst), n);                                                       \
  }                                                                                                       \
  }
ZTHALF_UNARY_ENTRIES(ZTHALF_ROW_OPERATION)
#undef ZTHALF_ROW_OPERATION

#define ZTHALF_VISIT_ROW(entryName, facadeName, In, Out, ...)                                           \
  visit(unaryRow<element::In, element::Out>{#entryName, &half_vector::facadeName,                       \
                                            [](element::In* src, element::Out* dst, unsigned long n) {  \
                                              half_ptr::entryName##Ptr(stored(src), stored(dst), n);    \
                                            },                                                          \
                                            &operations::entryName,                                     \
                                            [](loaded<element::In> x) {                                 \
                                              return rule::exactly<element::Out>(                       \
                                                  rule::facadeName(rule::operandFor<element::Out>(x))); \
                                            }});

// visit(row) for every unary row.
template <class Visit>
void forEachUnaryRow(Visit visit) {
  ZTHALF_UNARY_ENTRIES(ZTHALF_VISIT_ROW)
}

template <class Visit>
void forEachRowOfConversions(Visit visit) {
  ZTHALF_CONVERSION_ENTRIES(ZTHALF_VISIT_ROW)
}

#undef ZTHALF_VISIT_ROW

}  // namespace zthalf::testing
