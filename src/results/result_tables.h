// Result tables: the results of a scalar function for all 65,536 patterns, written down when the library is built.
//
// A table is the outcome of our own scalar function and nothing else: tools/generate-tables.cpp is linked with the
// scalar functions, runs them over every pattern and writes the tables as a source file of the build. They are
// constant, so that all processes share them, and hidden. A function has one because it is a row of
// scalar/elementary_functions.h.
#pragma once

#include <cstddef>
#include <cstdint>

#include "scalar/elementary_functions.h"

#define ZTHALF_RESULT_TABLES(X) ZTHALF_ELEMENTARY_FUNCTIONS(X) ZTHALF_POWERS_OF_A_CONSTANT(X)

namespace zthalf::results {

inline constexpr std::size_t patternCount = 65536;

#define ZTHALF_DECLARE_TABLE(function, ...) alignas(64) extern const std::uint16_t function[patternCount];
ZTHALF_RESULT_TABLES(ZTHALF_DECLARE_TABLE)
#undef ZTHALF_DECLARE_TABLE

}  // namespace zthalf::results

#define ZTHALF_DECLARE_FUNCTOR(function, ...) struct function##Ftor;
namespace half::scalar::emulated {
ZTHALF_RESULT_TABLES(ZTHALF_DECLARE_FUNCTOR)
}
#undef ZTHALF_DECLARE_FUNCTOR

namespace zthalf::results {

// The table of a functor. Only the functors of the list have one.
template <class Ftor>
struct tableOf;

#define ZTHALF_NAME_TABLE(function, ...)                      \
  template <>                                                 \
  struct tableOf<half::scalar::emulated::function##Ftor> {    \
    static constexpr std::uint16_t const* results = function; \
  };
ZTHALF_RESULT_TABLES(ZTHALF_NAME_TABLE)
#undef ZTHALF_NAME_TABLE

}  // namespace zthalf::results
