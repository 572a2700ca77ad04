// THE list: every entry of the table, once. Declarations, the table, the facade, the template instances and the tests
// are all read from it; none of them names an entry on its own.
//
// A row holds tags and names only, and a reader expands it to one declaration or one forwarding line, never to a body.
// Tags are the aliases of element_types.h. The names an entry list expands to are kept in plain text, for searching and
// as a test's expected value, in tests/abi/entries.txt.
//
// A family lists its rows by the tags that its shape has. What only wants an entry, its signature and its function
// reads entry_rows.h, where every row of every family has one shape.
//
// An entry enters this list in the change that brings its body.
//
// The list may be included any number of times: whoever reads it includes it, and it is there. A public header wraps it
// in entries_begin.h and entries_end.h, which take it away again unless it was there before. A new macro of this file
// is named in entries_end.h as well.

// Unary rows: X(entry, facade name, input tag, output tag, template instance or function in namespace half)

#define ZTHALF_CONVERSION_ENTRY(X, Tag)                                                   \
  X(convert##Tag##ToHalf, convertToHalf, Tag, Half, convert<element::Tag, element::Half>) \
  X(convertHalfTo##Tag, convertFromHalf, Half, Tag, convert<element::Half, element::Tag>)

#define ZTHALF_CONVERSION_ENTRIES(X) \
  ZTHALF_CONVERSION_ENTRY(X, Single) \
  ZTHALF_CONVERSION_ENTRY(X, Double) \
  ZTHALF_CONVERSION_ENTRY(X, UInt8)  \
  ZTHALF_CONVERSION_ENTRY(X, Int8)   \
  ZTHALF_CONVERSION_ENTRY(X, UInt16) \
  ZTHALF_CONVERSION_ENTRY(X, Int16)  \
  ZTHALF_CONVERSION_ENTRY(X, UInt32) \
  ZTHALF_CONVERSION_ENTRY(X, Int32)  \
  ZTHALF_CONVERSION_ENTRY(X, UInt64) \
  ZTHALF_CONVERSION_ENTRY(X, Int64)  \
  ZTHALF_CONVERSION_ENTRY(X, Logical)

#define ZTHALF_BITWISE_ENTRIES(X)                                               \
  X(uminus, uminus, Half, Half, uminus<element::Half>)                          \
  X(cplxUminus, uminus, CplxHalf, CplxHalf, uminus<element::CplxHalf>)          \
  X(abs, abs, Half, Half, abs<element::Half>)                                   \
  X(cplxAbs, abs, CplxHalf, Half, abs<element::CplxHalf>)                       \
  X(cplxReal, real, CplxHalf, Half, cplxReal<element::Half>)                    \
  X(cplxImag, imag, CplxHalf, Half, cplxImag<element::Half>)                    \
  X(cplxConj, conj, CplxHalf, CplxHalf, cplxConj<element::Half>)                \
  X(realToComplex, realToComplex, Half, CplxHalf, realToComplex<element::Half>) \
  X(sign, sign, Half, Half, sign<element::Half>)                                \
  X(cplxSign, sign, CplxHalf, CplxHalf, sign<element::CplxHalf>)

#define ZTHALF_CLASSIFICATION_ENTRIES(X)                           \
  X(isnan, isnan, Half, Logical, isnan<element::Half>)             \
  X(cplxIsnan, isnan, CplxHalf, Logical, isnan<element::CplxHalf>) \
  X(isinf, isinf, Half, Logical, isinf<element::Half>)             \
  X(cplxIsinf, isinf, CplxHalf, Logical, isinf<element::CplxHalf>) \
  X(isfinite, isfinite, Half, Logical, isfinite<element::Half>)    \
  X(cplxIsfinite, isfinite, CplxHalf, Logical, isfinite<element::CplxHalf>)

#define ZTHALF_SPACING_ENTRIES(X)             \
  X(eps, eps, Half, Half, eps<element::Half>) \
  X(cplxEps, eps, CplxHalf, Half, eps<element::CplxHalf>)

// Plain functions, not templates.
#define ZTHALF_ROUNDING_ENTRIES(X)   \
  X(ceil, ceil, Half, Half, ceil)    \
  X(fix, fix, Half, Half, fix)       \
  X(floor, floor, Half, Half, floor) \
  X(round, round, Half, Half, round)

#define ZTHALF_ROOT_ENTRIES(X)    \
  X(sqrt, sqrt, Half, Half, sqrt) \
  X(rsqrt, rsqrt, Half, Half, rsqrt)

#define ZTHALF_EXPONENTIAL_ENTRIES(X)               \
  X(exp, exp, Half, Half, exp<element::Half>)       \
  X(expm1, expm1, Half, Half, expm1<element::Half>) \
  X(pow2, pow2, Half, Half, pow2<element::Half>)    \
  X(pow10, pow10, Half, Half, pow10<element::Half>)

// Plain functions, as the roots are.
#define ZTHALF_LOGARITHM_ENTRIES(X)  \
  X(log, log, Half, Half, log)       \
  X(log1p, log1p, Half, Half, log1p) \
  X(log2, log2, Half, Half, log2)    \
  X(log10, log10, Half, Half, log10)

#define ZTHALF_TRIGONOMETRIC_ENTRIES(X)             \
  X(sin, sin, Half, Half, sin<element::Half>)       \
  X(sinpi, sinpi, Half, Half, sinpi<element::Half>) \
  X(cos, cos, Half, Half, cos<element::Half>)       \
  X(cospi, cospi, Half, Half, cospi<element::Half>) \
  X(tan, tan, Half, Half, tan<element::Half>)

#define ZTHALF_ARC_TANGENT_ENTRIES(X) X(atan, atan, Half, Half, atan<element::Half>)

#define ZTHALF_HYPERBOLIC_ENTRIES(X)                \
  X(sinh, sinh, Half, Half, sinh<element::Half>)    \
  X(cosh, cosh, Half, Half, cosh<element::Half>)    \
  X(tanh, tanh, Half, Half, tanh<element::Half>)    \
  X(asinh, asinh, Half, Half, asinh<element::Half>) \
  X(acosh, acosh, Half, Half, acosh<element::Half>)

// Real on [-1, 1] alone: plain functions again.
#define ZTHALF_BOUNDED_DOMAIN_ENTRIES(X) \
  X(asin, asin, Half, Half, asin)        \
  X(acos, acos, Half, Half, acos)        \
  X(atanh, atanh, Half, Half, atanh)

// Complex forms. Those of the templates above are instances of theirs, the others functions of their own.
#define ZTHALF_COMPLEX_TEMPLATE_ENTRIES(X)                          \
  X(cplxExp, exp, CplxHalf, CplxHalf, exp<element::CplxHalf>)       \
  X(cplxExpm1, expm1, CplxHalf, CplxHalf, expm1<element::CplxHalf>) \
  X(cplxPow2, pow2, CplxHalf, CplxHalf, pow2<element::CplxHalf>)    \
  X(cplxPow10, pow10, CplxHalf, CplxHalf, pow10<element::CplxHalf>) \
  X(cplxSin, sin, CplxHalf, CplxHalf, sin<element::CplxHalf>)       \
  X(cplxSinPi, sinpi, CplxHalf, CplxHalf, sinpi<element::CplxHalf>) \
  X(cplxCos, cos, CplxHalf, CplxHalf, cos<element::CplxHalf>)       \
  X(cplxCosPi, cospi, CplxHalf, CplxHalf, cospi<element::CplxHalf>) \
  X(cplxTan, tan, CplxHalf, CplxHalf, tan<element::CplxHalf>)       \
  X(cplxAtan, atan, CplxHalf, CplxHalf, atan<element::CplxHalf>)    \
  X(cplxSinh, sinh, CplxHalf, CplxHalf, sinh<element::CplxHalf>)    \
  X(cplxCosh, cosh, CplxHalf, CplxHalf, cosh<element::CplxHalf>)    \
  X(cplxTanh, tanh, CplxHalf, CplxHalf, tanh<element::CplxHalf>)    \
  X(cplxAsinh, asinh, CplxHalf, CplxHalf, asinh<element::CplxHalf>) \
  X(cplxAcosh, acosh, CplxHalf, CplxHalf, acosh<element::CplxHalf>)

#define ZTHALF_COMPLEX_FUNCTION_ENTRIES(X)           \
  X(cplxSqrt, sqrt, CplxHalf, CplxHalf, cplxSqrt)    \
  X(cplxLog, log, CplxHalf, CplxHalf, cplxLog)       \
  X(cplxLog1p, log1p, CplxHalf, CplxHalf, cplxLog1p) \
  X(cplxLog2, log2, CplxHalf, CplxHalf, cplxLog2)    \
  X(cplxLog10, log10, CplxHalf, CplxHalf, cplxLog10) \
  X(cplxAsin, asin, CplxHalf, CplxHalf, cplxAsin)    \
  X(cplxAcos, acos, CplxHalf, CplxHalf, cplxAcos)    \
  X(cplxAtanh, atanh, CplxHalf, CplxHalf, cplxAtanh)

// Real elements with a complex result: overloads of the real functions.
#define ZTHALF_REAL_TO_COMPLEX_ENTRIES(X)             \
  X(sqrtRealToComplex, sqrt, Half, CplxHalf, sqrt)    \
  X(logRealToComplex, log, Half, CplxHalf, log)       \
  X(log1pRealToComplex, log1p, Half, CplxHalf, log1p) \
  X(log2RealToComplex, log2, Half, CplxHalf, log2)    \
  X(log10RealToComplex, log10, Half, CplxHalf, log10) \
  X(asinRealToComplex, asin, Half, CplxHalf, asin)    \
  X(acosRealToComplex, acos, Half, CplxHalf, acos)    \
  X(atanhRealToComplex, atanh, Half, CplxHalf, atanh)

#define ZTHALF_UNARY_ENTRIES(X)      \
  ZTHALF_CONVERSION_ENTRIES(X)       \
  ZTHALF_BITWISE_ENTRIES(X)          \
  ZTHALF_CLASSIFICATION_ENTRIES(X)   \
  ZTHALF_SPACING_ENTRIES(X)          \
  ZTHALF_ROUNDING_ENTRIES(X)         \
  ZTHALF_ROOT_ENTRIES(X)             \
  ZTHALF_EXPONENTIAL_ENTRIES(X)      \
  ZTHALF_LOGARITHM_ENTRIES(X)        \
  ZTHALF_TRIGONOMETRIC_ENTRIES(X)    \
  ZTHALF_ARC_TANGENT_ENTRIES(X)      \
  ZTHALF_HYPERBOLIC_ENTRIES(X)       \
  ZTHALF_BOUNDED_DOMAIN_ENTRIES(X)   \
  ZTHALF_COMPLEX_TEMPLATE_ENTRIES(X) \
  ZTHALF_COMPLEX_FUNCTION_ENTRIES(X) \
  ZTHALF_REAL_TO_COMPLEX_ENTRIES(X)

// Early-exit rows: X(entry, facade name, input tag, output tag, function in namespace half)

#define ZTHALF_ROOT_EARLY_EXIT_ENTRIES(X) X(sqrtEarlyExit, sqrtWithEarlyExit, Half, Half, sqrtEarlyExit)

#define ZTHALF_LOGARITHM_EARLY_EXIT_ENTRIES(X)                      \
  X(logEarlyExit, logWithEarlyExit, Half, Half, logEarlyExit)       \
  X(log1pEarlyExit, log1pWithEarlyExit, Half, Half, log1pEarlyExit) \
  X(log2EarlyExit, log2WithEarlyExit, Half, Half, log2EarlyExit)    \
  X(log10EarlyExit, log10WithEarlyExit, Half, Half, log10EarlyExit)

#define ZTHALF_BOUNDED_DOMAIN_EARLY_EXIT_ENTRIES(X)              \
  X(asinEarlyExit, asinWithEarlyExit, Half, Half, asinEarlyExit) \
  X(acosEarlyExit, acosWithEarlyExit, Half, Half, acosEarlyExit) \
  X(atanhEarlyExit, atanhWithEarlyExit, Half, Half, atanhEarlyExit)

#define ZTHALF_EARLY_EXIT_ENTRIES(X)     \
  ZTHALF_ROOT_EARLY_EXIT_ENTRIES(X)      \
  ZTHALF_LOGARITHM_EARLY_EXIT_ENTRIES(X) \
  ZTHALF_BOUNDED_DOMAIN_EARLY_EXIT_ENTRIES(X)

// Rows with two outputs: X(entry, facade name, input tag, tag of both outputs, function in namespace half)
#define ZTHALF_TWO_OUT_ENTRIES(X)             \
  X(log2TwoOut, log2, Half, Half, log2TwoOut) \
  X(cplxLog2TwoOut, log2, CplxHalf, Half, cplxLog2TwoOut)

// Query rows: X(entry, facade name, input tag, function in namespace half); the function takes bare patterns.
#define ZTHALF_QUERY_ENTRIES(X) X(isImagZero, isImagZero, CplxHalf, isImagZero)

// Binary rows with implicit expansion: X(operation, left tag, right tag, output tag). The entry is the operation with
// the two operand tags; the template instance has all three.

// The pairs of real operands, one of them a half at least.
#define ZTHALF_REAL_PAIRS(X, op, Out) \
  X(op, Half, Half, Out)              \
  X(op, Half, Single, Out)            \
  X(op, Half, Double, Out)            \
  X(op, Single, Half, Out)            \
  X(op, Double, Half, Out)

// The same with a complex operand on either side or on both.
#define ZTHALF_COMPLEX_PAIRS(X, op)     \
  X(op, Half, CplxHalf, CplxHalf)       \
  X(op, Half, CplxSingle, CplxHalf)     \
  X(op, Half, CplxDouble, CplxHalf)     \
  X(op, Single, CplxHalf, CplxHalf)     \
  X(op, Double, CplxHalf, CplxHalf)     \
  X(op, CplxHalf, Half, CplxHalf)       \
  X(op, CplxHalf, Single, CplxHalf)     \
  X(op, CplxHalf, Double, CplxHalf)     \
  X(op, CplxSingle, Half, CplxHalf)     \
  X(op, CplxDouble, Half, CplxHalf)     \
  X(op, CplxHalf, CplxHalf, CplxHalf)   \
  X(op, CplxHalf, CplxSingle, CplxHalf) \
  X(op, CplxHalf, CplxDouble, CplxHalf) \
  X(op, CplxSingle, CplxHalf, CplxHalf) \
  X(op, CplxDouble, CplxHalf, CplxHalf)

#define ZTHALF_TWENTY_PAIRS(X, op) ZTHALF_REAL_PAIRS(X, op, Half) ZTHALF_COMPLEX_PAIRS(X, op)

#define ZTHALF_ARITHMETIC_ENTRIES(X) \
  ZTHALF_TWENTY_PAIRS(X, plus)       \
  ZTHALF_TWENTY_PAIRS(X, minus)      \
  ZTHALF_TWENTY_PAIRS(X, times)      \
  ZTHALF_TWENTY_PAIRS(X, rdivide)    \
  ZTHALF_TWENTY_PAIRS(X, ldivide)

#define ZTHALF_HYPOT_ENTRIES(X) ZTHALF_TWENTY_PAIRS(X, hypot)
#define ZTHALF_ANGLE_ENTRIES(X) ZTHALF_REAL_PAIRS(X, atan2, Half)
#define ZTHALF_PAIRING_ENTRIES(X) ZTHALF_REAL_PAIRS(X, realToComplex, CplxHalf)
#define ZTHALF_POWER_ENTRIES(X) ZTHALF_REAL_PAIRS(X, power, Half)

#define ZTHALF_BINARY_ENTRIES(X) \
  ZTHALF_ARITHMETIC_ENTRIES(X)   \
  ZTHALF_HYPOT_ENTRIES(X)        \
  ZTHALF_ANGLE_ENTRIES(X)        \
  ZTHALF_PAIRING_ENTRIES(X)      \
  ZTHALF_POWER_ENTRIES(X)

// Powers whose facade is the real powers' name. Complex operands: as binary rows. Real operands with a complex result:
// the template instance has the two operands' types only.
#define ZTHALF_COMPLEX_POWER_ENTRIES(X) ZTHALF_COMPLEX_PAIRS(X, cplxPower)
#define ZTHALF_REAL_TO_COMPLEX_POWER_ENTRIES(X) ZTHALF_REAL_PAIRS(X, powerRealToComplex, CplxHalf)

// The power that stops: as binary rows, with an answer.
#define ZTHALF_POWER_EARLY_EXIT_ENTRIES(X) ZTHALF_REAL_PAIRS(X, powerWithEarlyExit, Half)

// Remainder rows: as binary rows, but the template instance has the two operands' types only, and a half is a bare
// pattern there.
#define ZTHALF_REMAINDER_ENTRIES(X) \
  ZTHALF_REAL_PAIRS(X, mod, Half)   \
  ZTHALF_REAL_PAIRS(X, rem, Half)

// Reductions: X(entry, facade name, template in namespace half, input tag, output tag, accumulator tag). Only the
// simple forms that keep NaNs have a facade of their own; the selectors of half_vector reach all entries.

#define ZTHALF_REDUCTION_PRECISIONS(X, reduction, function, options)                               \
  X(reduction##Half##options, reduction##Half, function, Half, Half, Half)                         \
  X(reduction##Single##options, reduction##Single, function, Half, Half, Single)                   \
  X(reduction##Double##options, reduction##Double, function, Half, Double, Double)                 \
  X(reduction##Half##options##Cplx, reduction##Half, function, CplxHalf, CplxHalf, CplxHalf)       \
  X(reduction##Single##options##Cplx, reduction##Single, function, CplxHalf, CplxHalf, CplxSingle) \
  X(reduction##Double##options##Cplx, reduction##Double, function, CplxHalf, CplxDouble, CplxDouble)

#define ZTHALF_SIMPLE_REDUCTIONS(X, op) ZTHALF_REDUCTION_PRECISIONS(X, op##SimpleReduce, op##SimpleReduce, )
#define ZTHALF_SIMPLE_REDUCTIONS_OMITNAN(X, op) \
  ZTHALF_REDUCTION_PRECISIONS(X, op##SimpleReduce, op##SimpleReduceOmitNaN, OmitNaN)
#define ZTHALF_REDUCTIONS_ALONG_DIMENSIONS(X, op)              \
  ZTHALF_REDUCTION_PRECISIONS(X, op##Reduce, op##ReduceFunc, ) \
  ZTHALF_REDUCTION_PRECISIONS(X, op##Reduce, op##ReduceFuncOmitNaN, OmitNaN)

#define ZTHALF_SIMPLE_REDUCTION_ENTRIES(X) \
  ZTHALF_SIMPLE_REDUCTIONS(X, sum)         \
  ZTHALF_SIMPLE_REDUCTIONS(X, prod)        \
  ZTHALF_SIMPLE_REDUCTIONS(X, mean)
#define ZTHALF_SIMPLE_OMITNAN_REDUCTION_ENTRIES(X) \
  ZTHALF_SIMPLE_REDUCTIONS_OMITNAN(X, sum)         \
  ZTHALF_SIMPLE_REDUCTIONS_OMITNAN(X, prod)        \
  ZTHALF_SIMPLE_REDUCTIONS_OMITNAN(X, mean)
#define ZTHALF_REDUCTION_ENTRIES(X)           \
  ZTHALF_REDUCTIONS_ALONG_DIMENSIONS(X, sum)  \
  ZTHALF_REDUCTIONS_ALONG_DIMENSIONS(X, prod) \
  ZTHALF_REDUCTIONS_ALONG_DIMENSIONS(X, mean)

// Scaling rows: as binary rows, but without shapes.
#define ZTHALF_SCALING_ENTRIES(X) ZTHALF_TWENTY_PAIRS(X, pow2)

// Comparison rows: X(entry, operation, left tag, right tag). The output is logical.

#define ZTHALF_COMPARED_WITH(X, op, Tag)    \
  X(op##Half##Tag, op, Half, Tag)           \
  X(op##CplxHalf##Tag, op, CplxHalf, Tag)   \
  X(op##HalfCplx##Tag, op, Half, Cplx##Tag) \
  X(op##CplxHalfCplx##Tag, op, CplxHalf, Cplx##Tag)

// Only a logical operand may stand on the left of a half, and those entries are named in a way of their own.
#define ZTHALF_COMPARED_WITH_LOGICAL(X, op)              \
  X(op##HalfLogical, op, Half, Logical)                  \
  X(op##LogicalHalf, op, Logical, Half)                  \
  X(op##RealToComplexLogicalHalf, op, Logical, CplxHalf) \
  X(op##ComplexToRealHalfLogical, op, CplxHalf, Logical)

#define ZTHALF_COMPARISON(X, op)      \
  ZTHALF_COMPARED_WITH(X, op, Half)   \
  ZTHALF_COMPARED_WITH(X, op, Single) \
  ZTHALF_COMPARED_WITH(X, op, Double) \
  ZTHALF_COMPARED_WITH(X, op, Int64)  \
  ZTHALF_COMPARED_WITH(X, op, Int32)  \
  ZTHALF_COMPARED_WITH(X, op, Int16)  \
  ZTHALF_COMPARED_WITH(X, op, Int8)   \
  ZTHALF_COMPARED_WITH(X, op, UInt64) \
  ZTHALF_COMPARED_WITH(X, op, UInt32) \
  ZTHALF_COMPARED_WITH(X, op, UInt16) \
  ZTHALF_COMPARED_WITH(X, op, UInt8)  \
  ZTHALF_COMPARED_WITH_LOGICAL(X, op)

#define ZTHALF_COMPARISON_ENTRIES(X) \
  ZTHALF_COMPARISON(X, eq)           \
  ZTHALF_COMPARISON(X, ne)           \
  ZTHALF_COMPARISON(X, gt)           \
  ZTHALF_COMPARISON(X, ge)           \
  ZTHALF_COMPARISON(X, lt)           \
  ZTHALF_COMPARISON(X, le)

// Ternary rows with implicit expansion: X(operation, first tag, second tag, third tag, output tag). The output has the
// narrowest of the three types.
#define ZTHALF_FMA_ENTRIES(X)            \
  X(fma, Half, Half, Half, Half)         \
  X(fma, Half, Half, Single, Half)       \
  X(fma, Half, Half, Double, Half)       \
  X(fma, Half, Single, Half, Half)       \
  X(fma, Half, Single, Single, Half)     \
  X(fma, Half, Single, Double, Half)     \
  X(fma, Half, Double, Half, Half)       \
  X(fma, Half, Double, Single, Half)     \
  X(fma, Half, Double, Double, Half)     \
  X(fma, Single, Half, Half, Half)       \
  X(fma, Single, Half, Single, Half)     \
  X(fma, Single, Half, Double, Half)     \
  X(fma, Single, Single, Half, Half)     \
  X(fma, Single, Single, Single, Single) \
  X(fma, Single, Single, Double, Single) \
  X(fma, Single, Double, Half, Half)     \
  X(fma, Single, Double, Single, Single) \
  X(fma, Single, Double, Double, Single) \
  X(fma, Double, Half, Half, Half)       \
  X(fma, Double, Half, Single, Half)     \
  X(fma, Double, Half, Double, Half)     \
  X(fma, Double, Single, Half, Half)     \
  X(fma, Double, Single, Single, Single) \
  X(fma, Double, Single, Double, Single) \
  X(fma, Double, Double, Half, Half)     \
  X(fma, Double, Double, Single, Single) \
  X(fma, Double, Double, Double, Double)

// Matrix products: as binary rows, without shapes.
#define ZTHALF_PRODUCT_ENTRIES(X) ZTHALF_TWENTY_PAIRS(X, mtimes)

// Routines after BLAS and LAPACK: X(entry, shape, template in namespace half::blas). The shape is an alias of
// entry_shapes.h without its ending; each has a facade function of its own.
#define ZTHALF_BLAS_ENTRIES(X)                                                                   \
  X(hgemmHalfHalf, hgemm, hgemm<half::storage::Half, half::storage::Half, half::storage::Half>) \
  X(hscalHalfHalf, hscal, hscal<half::storage::Half, half::storage::Half>)                      \
  X(ihamax, ihamax, ihamax<half::storage::Half>)                                                 \
  X(laswpHalf, hlaswp, hlaswp<half::storage::Half>)                                              \
  X(htrsmHalfHalf, htrsm, htrsm<half::storage::Half, half::storage::Half>)                      \
  X(hgetrf2Half, hgetrf, hgetrf2<half::storage::Half>)                                           \
  X(hgetrfHalf, hgetrf, hgetrf<half::storage::Half>)

// Binary rows that the table has and the facade has no function for: half_vector::minBinOp and maxBinOp choose among
// them.

#define ZTHALF_MIN_ENTRIES(X) ZTHALF_TWENTY_PAIRS(X, min) ZTHALF_TWENTY_PAIRS(X, minOmitNaN)
#define ZTHALF_MAX_ENTRIES(X) ZTHALF_TWENTY_PAIRS(X, max) ZTHALF_TWENTY_PAIRS(X, maxOmitNaN)

#define ZTHALF_CHOSEN_BINARY_ENTRIES(X) ZTHALF_MIN_ENTRIES(X) ZTHALF_MAX_ENTRIES(X)

// Reductions of min and max: X(entry, shape, element tag, accumulator tag, template in namespace half). The shape is an
// alias of entry_shapes.h without its ending.
#define ZTHALF_EXTREMUM_REDUCTIONS(X, prefix, op, Element, Accumulator)                                 \
  X(prefix##SimpleReduce, unary, Element, Accumulator, op##SimpleReduce)                                \
  X(prefix##SimpleReduceOmitNaN, unary, Element, Accumulator, op##SimpleReduceOmitNaN)                  \
  X(prefix##SimpleReduceWithIndex, indexed_whole, Element, Accumulator, op##SimpleReduce)               \
  X(prefix##SimpleReduceWithIndexOmitNaN, indexed_whole, Element, Accumulator, op##SimpleReduceOmitNaN) \
  X(prefix##Reduce, reduction, Element, Accumulator, op##ReduceFunc)                                    \
  X(prefix##ReduceOmitNaN, reduction, Element, Accumulator, op##ReduceFuncOmitNaN)                      \
  X(prefix##ReduceWithIndex, indexed_reduction, Element, Accumulator, op##ReduceFunc)                   \
  X(prefix##ReduceWithIndexOmitNaN, indexed_reduction, Element, Accumulator, op##ReduceFuncOmitNaN)

#define ZTHALF_MIN_REDUCTION_ENTRIES(X)                 \
  ZTHALF_EXTREMUM_REDUCTIONS(X, min, min, Half, Single) \
  ZTHALF_EXTREMUM_REDUCTIONS(X, minCplx, min, CplxHalf, CplxSingle)
#define ZTHALF_MAX_REDUCTION_ENTRIES(X)                 \
  ZTHALF_EXTREMUM_REDUCTIONS(X, max, max, Half, Single) \
  ZTHALF_EXTREMUM_REDUCTIONS(X, maxCplx, max, CplxHalf, CplxSingle)

#define ZTHALF_EXTREMUM_REDUCTION_ENTRIES(X) ZTHALF_MIN_REDUCTION_ENTRIES(X) ZTHALF_MAX_REDUCTION_ENTRIES(X)

#include "zthalf/detail/entry_rows.h"
