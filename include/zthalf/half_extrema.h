// min and max: of two arrays, of whole arrays, and along dimensions, with and without the position of the winner.
#pragma once

#include <complex>

#include "zthalf/detail/export.h"
#include "zthalf/float_type.h"
#include "zthalf/half_t.h"

/// What the entries of half_ptr.h for min and max point to, instantiated for the element types of the table only.
/// Arguments and results are those of the half_vector functions below, with the types in the place of the flags.
namespace half {

/// The smaller or larger of two elements each, with implicit expansion, over the pairs of element types of the rows in
/// detail/entries.h.
#define ZTHALF_DECLARE_EXPANDING(op)                                                                                \
  template <class Left, class Right, class Out>                                                                     \
  ZTHALF_API void op(Left* a, Right* b, Out* c, unsigned long na, unsigned long ndimsA, unsigned long const* dimsA, \
                     unsigned long nb, unsigned long ndimsB, unsigned long const* dimsB, unsigned long nc,          \
                     unsigned long ndimsC, unsigned long const* dimsC);
ZTHALF_DECLARE_EXPANDING(min)
ZTHALF_DECLARE_EXPANDING(max)
ZTHALF_DECLARE_EXPANDING(minOmitNaN)
ZTHALF_DECLARE_EXPANDING(maxOmitNaN)
#undef ZTHALF_DECLARE_EXPANDING

}  // namespace half

/// min and max. What holds for all of them:
///
/// Real elements. Where NaN wins, the first NaN is the result, otherwise the first of the smallest or largest elements.
/// Where NaNs are omitted, the result is the first of the smallest or largest numbers, and the last NaN if there is
/// nothing else. -0 and +0 are equal, so the first of them is kept. A NaN result is the quiet NaN with its sign.
///
/// Complex elements are ordered by length, then by angle from -pi to pi, and where rounding makes those equal, by their
/// parts. One whose length is a NaN counts as a NaN; (infinity, NaN) is one. Of equal elements the first is kept, and
/// of nothing but NaNs the first, omitted or not.
namespace half_vector {

/// c = the smaller (minBinOp) or larger (maxBinOp) element of a and b, with implicit expansion; shapes, overlap and
/// errors are those of plus in half_vector.h. typeA, complexA and typeB, complexB tell the element types: at least one
/// operand is a half or complex half. A typeA of FloatTypeSingle or FloatTypeDouble says that b is half, and typeB is
/// not looked at. c is half, or complex half where an operand is complex. Another number in typeA, or in typeB where it
/// is looked at, does nothing at all.
///
/// The operands are compared in the wider of their types, a real one beside a complex one with an imaginary part of +0,
/// and only the one that is kept is rounded to half. Equal elements give the one of a. Of two omitted real NaNs b's is
/// kept. In complex results half parts are kept bit for bit, those of NaNs too.
ZTHALF_API void minBinOp(void* a, void* b, void* c, unsigned long na, unsigned long ndimsA, unsigned long const* dimsA,
                         unsigned long nb, unsigned long ndimsB, unsigned long const* dimsB, unsigned long nc,
                         unsigned long ndimsC, unsigned long const* dimsC, FloatTypeEnum typeA, FloatTypeEnum typeB,
                         bool complexA, bool complexB, bool omitNaN);
ZTHALF_API void maxBinOp(void* a, void* b, void* c, unsigned long na, unsigned long ndimsA, unsigned long const* dimsA,
                         unsigned long nb, unsigned long ndimsB, unsigned long const* dimsB, unsigned long nc,
                         unsigned long ndimsC, unsigned long const* dimsC, FloatTypeEnum typeA, FloatTypeEnum typeB,
                         bool complexA, bool complexB, bool omitNaN);

}  // namespace half_vector
