// The real functions of one half, each beside the exact function it approximates.
#pragma once

#include "tests/support/multiple_precision.h"
#include "zthalf/half_scalar.h"

namespace zthalf::accuracy {

struct measuredFunction {
  char const* name;
  half_t (*function)(half_t);
  testing::preciseFunction exact;
};

inline const measuredFunction functions[] = {
    {"exp", half_scalar::exp, mpfr_exp},       {"expm1", half_scalar::expm1, mpfr_expm1},
    {"pow2", half_scalar::pow2, mpfr_exp2},    {"pow10", half_scalar::pow10, mpfr_exp10},
    {"log", half_scalar::log, mpfr_log},       {"log1p", half_scalar::log1p, mpfr_log1p},
    {"log2", half_scalar::log2, mpfr_log2},    {"log10", half_scalar::log10, mpfr_log10},
    {"sqrt", half_scalar::sqrt, mpfr_sqrt},    {"rsqrt", half_scalar::rsqrt, mpfr_rec_sqrt},
    {"sin", half_scalar::sin, mpfr_sin},       {"cos", half_scalar::cos, mpfr_cos},
    {"tan", half_scalar::tan, mpfr_tan},       {"sinpi", half_scalar::sinpi, mpfr_sinpi},
    {"cospi", half_scalar::cospi, mpfr_cospi}, {"asin", half_scalar::asin, mpfr_asin},
    {"acos", half_scalar::acos, mpfr_acos},    {"atan", half_scalar::atan, mpfr_atan},
    {"sinh", half_scalar::sinh, mpfr_sinh},    {"cosh", half_scalar::cosh, mpfr_cosh},
    {"tanh", half_scalar::tanh, mpfr_tanh},    {"asinh", half_scalar::asinh, mpfr_asinh},
    {"acosh", half_scalar::acosh, mpfr_acosh}, {"atanh", half_scalar::atanh, mpfr_atanh},
};

}  // namespace zthalf::accuracy
