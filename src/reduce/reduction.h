// From a fold to the functions of the table, and how a chain's end becomes an element of the output.
#pragma once

#include <complex>

#include "core/float_conversion.h"
#include "reduce/dimensional_forms.h"
#include "reduce/folds/lane_fold.h"
#include "reduce/steps/value.h"

namespace half_utils {

// One part of an output: the only rounding of a chain that does not run in halves.
template <class Out>
struct outputPart {
  template <class Wide>
  static Out of(Wide x) {
    return {zthalf::narrow(x)};
  }
};
template <>
struct outputPart<double> {
  static double of(double x) { return x; }
};

template <class Out, class Wide>
void store(Out& out, value<Wide, 1> x) {
  out = outputPart<Out>::of(x.part[0]);
}
template <class Out, class Wide>
void store(std::complex<Out>& out, value<Wide, 2> z) {
  out = {outputPart<Out>::of(z.part[0]), outputPart<Out>::of(z.part[1])};
}

// write(output, accumulator, divisor) gets beside each result how many elements went into it, NaNs included.
template <class Fold, class Source, class Write>
void reduceWhole(Source* src, unsigned long n, Write write) {
  write(0, reducedTree<Fold>(src, n), n);
}

template <class Fold, class Rows, class Source, class Write>
void reduceAlong(Source* src, unsigned long ndims, unsigned long const* dims, bool firstReduced, Write write) {
  const alternatingShape shape(ndims, dims, firstReduced);
  const unsigned long elements = shape.combinations() * (firstReduced ? shape.runLength() : 1);
  const auto writeOne = [write, elements](unsigned long output, auto const& result) {
    write(output, result, elements);
  };
  if (firstReduced) {
    reduceColumns<Fold>(src, shape, writeOne);
  } else {
    reduceRows<Rows>(src, shape, writeOne);
  }
}

// The folds whose result is the chain's end itself.
template <class Step, class Source, class Out>
void foldWhole(Source* src, Out* dst, unsigned long n) {
  reduceWhole<laneFold<Step>>(src, n, [dst](unsigned long, auto const& x, unsigned long) { store(*dst, x); });
}

template <class Step, class Source, class Out>
void foldAlong(Source* src, Out* dst, unsigned long ndims, unsigned long const* dims, bool firstReduced) {
  reduceAlong<laneFold<Step>, laneRows<Step>>(
      src, ndims, dims, firstReduced,
      [dst](unsigned long output, auto const& x, unsigned long) { store(dst[output], x); });
}

}  // namespace half_utils

// The four functions of a reduction that is a fold of one step, and their instances.
#define ZTHALF_FOLDS(op, step, stepOmitNaN)                                                                       \
  template <class In, class Out, class Accumulator>                                                               \
  void op##SimpleReduce(In* src, Out* dst, unsigned long n) {                                                     \
    half_utils::foldWhole<step<Accumulator>>(src, dst, n);                                                        \
  }                                                                                                               \
  template <class In, class Out, class Accumulator>                                                               \
  void op##SimpleReduceOmitNaN(In* src, Out* dst, unsigned long n) {                                              \
    half_utils::foldWhole<stepOmitNaN<Accumulator>>(src, dst, n);                                                 \
  }                                                                                                               \
  template <class In, class Out, class Accumulator>                                                               \
  void op##ReduceFunc(In* src, Out* dst, unsigned long ndims, unsigned long* dims, bool firstDimReduced) {        \
    half_utils::foldAlong<step<Accumulator>>(src, dst, ndims, dims, firstDimReduced);                             \
  }                                                                                                               \
  template <class In, class Out, class Accumulator>                                                               \
  void op##ReduceFuncOmitNaN(In* src, Out* dst, unsigned long ndims, unsigned long* dims, bool firstDimReduced) { \
    half_utils::foldAlong<stepOmitNaN<Accumulator>>(src, dst, ndims, dims, firstDimReduced);                      \
  }                                                                                                               \
  ZTHALF_SIMPLE_REDUCTIONS(ZTHALF_SIMPLE_REDUCTION_ROW, op)                                                       \
  ZTHALF_SIMPLE_REDUCTIONS_OMITNAN(ZTHALF_SIMPLE_REDUCTION_ROW, op)                                               \
  ZTHALF_REDUCTIONS_ALONG_DIMENSIONS(ZTHALF_REDUCTION_ROW, op)
