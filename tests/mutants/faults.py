"""Small faults, each of which some test must notice.

A fault replaces one stretch of one file, which must occur there exactly once. The tests are those that should see it, as
a regular expression on their names; the hashed results are left out where a test with a reference of its own exists,
since they would notice anything. A fault of the build itself, or one that only wide code shows, is built as the release
is; all others are built with little optimisation, which is quicker.
"""
from collections import namedtuple

Fault = namedtuple('Fault', 'name file old new tests release', defaults=(False,))

FLOAT = 'src/core/float_conversion.h'
INTEGER = 'src/core/integer_conversion.h'
NAN = 'src/core/nan_policy.h'
EARLY_EXIT = 'src/frame/loops/early_exit_loop.h'
FORK = 'src/frame/loops/fork.h'
EXPANSION = 'src/elementwise/expansion.cpp'
CONTRACT = 'cmake/CompileContract.cmake'

FAULTS = [
    # Conversions
    Fault('ties are rounded away from zero', FLOAT,
          'bitsOf(floatOf(x) + power)', 'bitsOf(floatOf(x | 1) + power)', '^core/float'),
    Fault('from 65520 on comes 65504', FLOAT,
          'smallerOf(magnitude, overflowing);  // a', 'smallerOf(magnitude, overflowing - 0x1100);  // a', '^core/float'),
    Fault('the lower word of a double does not count', FLOAT,
          'static_cast<std::uint32_t>(lower != 0)', '(lower & 0)', '^core/float'),
    Fault('a narrowed NaN loses its sign', FLOAT,
          '(parts.magnitude | parts.sign) >> 16', '(parts.magnitude | (parts.sign & ~parts.isNaN)) >> 16', '^core/float'),
    Fault('infinity widens to 65536', FLOAT,
          'magnitude > firstSpecial - 1', 'magnitude > firstSpecial', '^core/float'),
    Fault('integers from 65505 on are infinite', INTEGER,
          'magnitude > 0xFFFF;', 'magnitude > 65504;', '^core/integer'),
    Fault('0.5 is rounded to the integer 0', INTEGER,
          'widen<float>(finite) + 0.5f', 'widen<float>(finite) + 0.49999997f', '^core/integer'),

    # Flushed subnormals
    Fault('small halves widen by way of subnormal floats', FLOAT,
          'floatOf(magnitude + smallestNormal) - floatOf(smallestNormal)', 'floatOf(magnitude) * 0x1p112f',
          '^elementwise/flushed_halves'),
    Fault('a subnormal divisor counts as zero where it is flushed', 'src/scalar/mixed_remainder.h',
          'bitsOf(magnitudeY) == 0', 'y == 0', '^elementwise/flushed_examples'),
    Fault('a flushed remainder loses its sign', 'src/scalar/kernels/mod.cpp',
          'std::copysign(y + signedRemainder, y)', 'y + signedRemainder', '^elementwise/flushed_examples'),

    # NaNs
    Fault('an invalid operation gives the processor\'s NaN', FLOAT,
          'parts.sign & ~parts.isNaN', 'parts.sign', '^(core/nan|scalar/half)'),
    Fault('a signalling second operand does not win', NAN,
          '(first & ~second) << 6', '(first & ~second & 0) << 6', '^(core/nan|scalar/half)'),
    Fault('the left NaN of a sum wins', 'src/scalar/half_arithmetic.h',
          'widen<float>(b) + widen<float>(a), b, a)', 'widen<float>(b) + widen<float>(a), a, b)', '^scalar/half'),
    Fault('a signalling single still signals as a double', NAN,
          'const double wide = x;',
          'const double wide = isSignalling(x) ? valueOf(bitsOf(double{x}) ^ 0x8000000000000) : x;',
          '^(core/single_to_double|scalar/multiply_add|elementwise/arithmetic)'),
    Fault('what makes every NaN quiet leaves it alone', NAN,
          'bitsOf(x) | (maskOf<word>(x != x) & ', 'bitsOf(x) | (maskOf<word>(x < x) & ', '^core/nan_policy'),

    # Scalar functions
    Fault('minus zero is less than zero', 'src/core/patterns.h',
          '(magnitudeOf(x) ^ flip) - flip', '(magnitudeOf(x) ^ flip)', '^(core/patterns|scalar/order)'),
    Fault('round goes down from halfway', 'src/scalar/rounding.h',
          '(below + 1) >> 1', 'below >> 1', '^scalar/rounding'),
    Fault('nextafter leaves infinity in the wrong direction', 'src/scalar/spacing.h',
          'up == positive ? x + 1 : x - 1', 'up ? x + 1 : x - 1', '^scalar/spacing'),

    # Complex kernels and functions
    Fault('the logarithm of a huge number is that of its half', 'src/scalar/kernels/cplx_log.cpp',
          '+ kernels::ln2', '+ 0', '^scalar/kernels/cplx_log$'),
    Fault('an infinity on the imaginary axis is repaired to a NaN', 'src/scalar/kernels/cplx_multiply.cpp',
          '((d == 0 || c == 0) && m1 > most)', '(d == 0 && m1 > most)', '^scalar/kernels/cplx_multiply$'),
    Fault('expm1 is corrected beyond half a turn', 'src/scalar/kernels/cplx_expm1_single.cpp',
          ' || magnitudeOf(y) > halfPiUpper', '', '^scalar/kernels/cplx_expm1'),
    Fault('-infinity to a negative power is complex', 'src/scalar/kernels/cplx_pow.cpp',
          '(w.re < 0 && !isFiniteNumber(z.re))', 'false', '^scalar/kernels/cplx_pow$'),
    Fault('an exact zero of sinpi meets an infinity', 'src/scalar/complex/trigonometric.cpp',
          'trigonometric == 0.0f ? trigonometric : ', '', '^scalar/complex/elementary_functions$'),
    Fault('log1p is exact near zero only', 'src/scalar/complex/logarithm.cpp',
          'if (qsl_scalar::magnitudeOf(x) < 0.5f) {', 'if (qsl_scalar::magnitudeOf(x) < 0.25f) {',
          '^scalar/complex/elementary_functions$'),
    Fault('a NaN power does not stop', 'src/scalar/complex/power.h',
          '!(std::trunc(y) == y)', '(std::trunc(y) < y || std::trunc(y) > y)', '^elementwise/power'),

    # Trigonometric and hyperbolic kernels
    Fault('the product with 2/pi has one term less', 'src/scalar/kernels/kernel_rem_pio2.cpp',
          'constexpr int lastTerm = 9;', 'constexpr int lastTerm = 8;', '^scalar/kernels/rem_pio2_single$'),
    Fault('a digit of 2/pi is wrong', 'src/scalar/kernels/two_over_pi_digits.h',
          '0x97, 0xFF, 0xDE', '0x97, 0xFE, 0xDE', '^scalar/kernels/rem_pio2_single_accuracy'),
    Fault('the sine of infinity is the positive NaN', 'src/scalar/kernels/rem_pio2_single.cpp',
          'return {0, domainNaN, domainNaN};', 'return {0, -domainNaN, -domainNaN};', '^scalar/(trig|kernels/sin_cos)'),
    Fault('the cosine goes through arithmetic with a NaN', 'src/scalar/kernels/sin_cos_single.cpp',
          'y.upper != y.upper ? y.upper : cosQuadrant(y)', 'cosQuadrant(y)', '^scalar/(trig|kernels/sin_cos)'),
    Fault('the lower part of an angle is lost in the sine', 'src/scalar/kernels/sine_cosine_series.h',
          '(z * (b * 0.5f - v * r) - b)', '(z * (b * 0.5f - v * r))', '^scalar/kernels/sin_cos'),
    Fault('floats next to a twelfth are computed', 'src/scalar/kernels/sinpi_cospi_single.cpp',
          'const float twelfths = r * 12.0f;', 'const double twelfths = r * 12.0;', '^scalar/kernels/sinpi_cospi'),
    Fault('a third is a product in tanh', 'src/scalar/kernels/tanh_single.cpp',
          'z * middle / 3.0f', 'z * middle * (1.0f / 3.0f)', '^scalar/kernels/tanh'),
    Fault('tanh of a NaN is the negative NaN', 'src/scalar/kernels/tanh_single.cpp',
          'floatOf(0x7FC00000u)', 'floatOf(0xFFC00000u)', '^scalar/(hyperbolic|kernels/tanh)'),
    Fault('asin near one loses its second part', 'src/scalar/kernels/asin_acos_single.cpp',
          'halfPiUpper - ((angle + angle) + halfPiExcess)', 'halfPiUpper - (angle + angle)',
          '^scalar/kernels/asin_acos'),
    Fault('a stopping loop goes on at minus infinity', 'src/frame/unary/stop_conditions.h',
          'zthalf::pattern::magnitudeOf(x.bits) - 0x3C01) <= 0x7C00 - 0x3C01',
          'x.bits - 0x3C01) <= 0x7C00 - 0x3C01', '^frame/unary/elementary'),

    # Loops
    Fault('a loop with early exit writes one element too many', EARLY_EXIT,
          '''    if (stop(src[i])) return false;
    dst[i] = f(src[i]);
  }
  return true;
}

// The same result by blocks''', '''    dst[i] = f(src[i]);
    if (stop(src[i])) return false;
  }
  return true;
}

// The same result by blocks''', '^frame/'),
    Fault('a scan leaves out the last element', EARLY_EXIT,
          'pass(src + i, std::min(scanBlock, n - i), &met)', 'pass(src + i, std::min(scanBlock, n - i - 1), &met)',
          '^frame/'),
    Fault('a loop runs backwards', 'src/frame/loops/simple_loop.h',
          'for (unsigned long i = 0; i < n; ++i) dst[i] = Ftor{}(src[i]);',
          'for (unsigned long i = n; i-- > 0;) dst[i] = Ftor{}(src[i]);', '^frame/'),
    Fault('a piece of a scan asks twice where it ends', EARLY_EXIT,
          'std::min(scanBlock, end - i)', 'std::min(scanBlock, r.end() - i)', '^frame/loops/early_exit_pieces'),
    Fault('a fork is cancelled with the group of its caller', FORK, 'group::isolated', 'group::bound', '^frame/loops/fork'),
    Fault('tasks run in the floating-point environment of their arena', FORK,
          'group::fp_settings', 'group::default_traits', '^frame/loops/fork'),
    Fault('a waiting thread takes tasks of the caller', FORK,
          'tbb::this_task_arena::isolate(loop);', 'loop();', '^frame/loops/fork'),
    Fault('a copied process gives work to threads that it does not have', 'src/frame/loops/lost_threads.cpp',
          'return lost.load(std::memory_order_relaxed);', 'return false;', '^frame/loops/forked_process'),
    Fault('a dimension does not go back to its start', EXPANSION,
          'here.moves[o] * (here.size - 1);', 'here.moves[o] * (here.size - 1 - (here.size > 2));', '^elementwise/'),
    Fault('an operand of size 1 moves', EXPANSION,
          'plan.in[o].size(d) < 2 ? 0 : step', 'plan.in[o].size(d) < 1 ? 0 : step', '^elementwise/'),
    Fault('a parallel run starts in the wrong place', EXPANSION,
          'here.moves[o] * here.index;', 'here.moves[o] * (o == 1 ? 0 : here.index);', '^elementwise/'),
    Fault('an operand that comes again loses its place', 'src/elementwise/gathered_operand.cpp',
          '(phase_ + n) % period_', '(phase_ + n + 1) % period_', '^elementwise/'),
    Fault('whole rows are fetched from the wrong place', 'src/elementwise/gathered_operand.cpp',
          'fetchRow(from + i * outer.step, row)', 'fetchRow(from + i * row, row)', '^elementwise/'),
    Fault('a repeated single element fills too little of its block', 'src/elementwise/elementwise_op.cpp',
          'std::min(n, blockSize), blocks[o]', 'std::min(n, blockSize / 2), blocks[o]', '^elementwise/'),
    Fault('sizes of the third operand do not count', 'src/elementwise/ternary_op.cpp',
          ' || differ(shapeB, shapeC)', '', '^elementwise/'),

    # Comparisons and fma
    Fault('eq leaves the imaginary parts out', 'src/elementwise/eq.cpp',
          'boolAndFtor', 'getFirstArgFtor', '^elementwise/comparison'),
    Fault('integers are held at 65536 less one', 'src/scalar/functors/comparison_functors.h',
          'Integer{1} << 17', 'Integer{65503}', '^(scalar|elementwise)/comparison'),
    Fault('a NaN imaginary part is a zero', 'src/scalar/functors/comparison_functors.h',
          'pattern::isZero(imaginary.bits)', 'pattern::isZero(imaginary.bits) || zthalf::pattern::isNaN(imaginary.bits)',
          '^(scalar|elementwise)/comparison'),
    Fault('a signalling single is a quiet one in fma', 'src/scalar/multiply_add.h',
          '(bits >> 13) & pattern::quietBit', 'pattern::quietBit', '^scalar/multiply_add'),

    # The table and what is exported
    Fault('an entry is null', 'src/frame/table/table.cpp',
          '* entry##Ptr = &half::__VA_ARGS__;', '* entry##Ptr = nullptr;', '^abi/symbols'),
    Fault('an entry has another entry\'s function', 'include/zthalf/detail/entries.h',
          'X(ceil, ceil, Half, Half, ceil)', 'X(ceil, ceil, Half, Half, floor)', '^(frame|golden)/'),
    Fault('code runs when the library is loaded', 'src/frame/table/lifecycle.cpp',
          'unsigned char terminated = 0;', 'unsigned char terminated = half_ptr::isInitialized();', '^abi/symbols'),
    Fault('a function is not exported', 'include/zthalf/half_scalar.h',
          'ZTHALF_API half_t eps(half_t x);', 'half_t eps(half_t x);', '^abi/exports'),
    Fault('core looks upwards', 'src/core/scalar_conversions.cpp',
          '#include "core/integer_conversion.h"', '#include "core/integer_conversion.h"\n#include "scalar/rounding.h"',
          '^abi/layering'),
    Fault('the facade goes round the table', 'src/frame/table/facade.cpp',
          'return half_ptr::entry##Ptr(bare(src), n);', 'half_ptr::initialized = 1; return half_ptr::entry##Ptr(bare(src), n);',
          '^abi/facade', True),

    # Compile flags
    Fault('multiplications and additions are fused', CONTRACT,
          '-ffp-contract=off ', '-ffp-contract=fast ', '^abi/instructions', True),
    Fault('element types are taken for distinct memory', CONTRACT,
          '-fno-strict-aliasing ', '-fstrict-aliasing ', '^frame/', True),
    Fault('loops with comparisons are not vectorised', CONTRACT,
          '-fno-trapping-math ', '-ftrapping-math ', '^abi/vectorised', True),

    # min and max
    Fault('an omitted NaN does not give way to another', 'src/scalar/extremum.h',
          'smallerOf(place, static_cast<std::int16_t>(lastPlace - 1)) < placeOf<Kind>(held)',
          'place < placeOf<Kind>(held)', '^scalar/extremum'),
    Fault('on one ray of the left half plane the order is that of the right one', 'src/scalar/complex_extremum.h',
          'return held.real() < 0 ?', 'return false ?', '^scalar/extremum'),
    Fault('squares tell lengths apart among subnormals too', 'src/scalar/complex_extremum.h',
          'square + squareOfCandidate > 0x1p-200', 'true', '^scalar/extremum'),
    Fault('an empty run is searched', 'src/reduce/alternating_shape.h',
          'return combinations_ == 0 || (leading_ == 1 && runLength() == 0);', 'return combinations_ == 0;',
          '^reduce/extrema_of_nothing'),
    Fault('a column stays on one thread however tall', 'src/reduce/folds/real_extremum_along.h',
          'search.amongMany(run, n)', 'search.among(run, n)', '^reduce/calling_thread'),
    Fault('of nothing but NaNs the first is found', 'src/reduce/folds/real_extremum.h',
          'if (smallest == zthalf::lastPlace) return {smallest, n - 1};', '', '^reduce/extrema_whole'),
    Fault('steps are counted from the last settling on', 'src/reduce/folds/real_extremum_along.h',
          'base_ = at.combination - step;', 'base_ = 0;', '^reduce/extrema_along'),
    Fault('complex elements of nearly one length are passed over', 'src/reduce/folds/held_complex.h',
          'isSmallest ? 1 + margin : 1 - margin', 'isSmallest ? 1 - margin : 1 + margin', '^reduce/extrema'),
    Fault('the index of a chain that keeps its beginning is left out', 'src/reduce/folds/complex_extremum_folds.h',
          'chain.index = leaf.begin + 1;', '', '^reduce/extrema_whole'),
    Fault('complex columns with an index begin as those without', 'src/reduce/folds/complex_extremum_folds.h',
          'at.combination == 0 ? partial :', '', '^reduce/extrema'),
    Fault('positions in the whole array go by the fastest dimension alone', 'src/reduce/folds/extremum_position.h',
          'combination % shape.size(p) * shape.stride(p)', 'combination * shape.stride(p)', '^reduce/extrema_along'),

    # Complex halves and mixed operands
    Fault('a zero part of a factor makes a NaN beside an infinity', 'src/scalar/complex/product.h',
          'return {z.re == 0 ? 0 : re, im};', 'return {re, im};', '^(scalar/complex|elementwise/arithmetic)'),
    Fault('the sum of two products is not moved off a tie', 'src/scalar/complex/product.h',
          'using exactInDouble = exactProducts<42>;', 'using exactInDouble = exactProducts<41>;',
          '^elementwise/arithmetic'),
    Fault('a product in doubt is kept', 'src/scalar/functors/complex_product_blocks.h',
          'if (doubt != 0) {', 'if (false) {', '^elementwise/arithmetic'),
    Fault('a real number by an imaginary one has no signed zero', 'src/scalar/complex/quotient.h',
          'std::copysign(Wide(0), d)', 'Wide(0)', '^elementwise/arithmetic'),
    Fault('a quotient by infinity is left to lanes', 'src/scalar/complex/quotient_lanes.h',
          'infinityMask(y.re) | infinityMask(y.im) | ((way', '((way', '^elementwise/(arithmetic|complex_quotients)'),
    Fault('NaNs among quotients keep the signs that lanes gave them', 'src/scalar/functors/complex_quotient_blocks.h',
          'if (anyNaN != 0) {', 'if (false) {', '^elementwise/(arithmetic|complex_quotients)'),
    Fault('on opposite diagonals the imaginary part has its terms changed over', 'src/scalar/complex/quotient_nan_signs.h',
          '& ~equalMask(c, d) &', '& equalMask(c, d) &', '^elementwise/(arithmetic|complex_quotients)'),
    Fault('a factor of zero makes zeros positive', 'src/scalar/complex/quotient_lanes.h',
          'pattern::signOf(~x.im) & way.isReal', 'pattern::signOf(x.im) & way.isReal',
          '^elementwise/(arithmetic|complex_quotients)'),
    Fault('an absent imaginary part is added as minus zero', 'src/scalar/mixed_arithmetic.h',
          'sumOf(x.im, B{0})', 'asHalf(x.im)', '^elementwise/arithmetic'),

    # Sums, products and means
    Fault('the left half of an odd range is the longer one', 'src/reduce/tree.h',
          'return begin + (end - begin) / 2;', 'return begin + (end - begin + 1) / 2;', '^reduce/'),
    Fault('a mean in single skips a rounding', 'src/reduce/division.h',
          'outputPart<Out>::of(static_cast<float>(q))', 'outputPart<Out>::of(q)', '^reduce/'),
    Fault('a NaN left out of a product in double counts as zero', 'src/reduce/steps/steps.h',
          'neutral = zthalf::pattern::one', 'neutral = zthalf::pattern::zero', '^reduce/'),
    Fault('a column keeps the NaN of its total first', 'src/reduce/steps/steps.h',
          '? settled(partial, total) :', '? settled(total, partial) :', '^reduce/'),
    Fault('a column of complex halves exchanges the factors of its products', 'src/reduce/steps/complex_half_product.h',
          'zthalf::factorsExchanged<decltype(unit)>{}, x, y', 'unit, y, x', '^reduce/'),

    # The host
    Fault('zero imaginary parts go though two hold the array', 'src/host/imaginary_parts.cpp',
          'vq_fields::references(array) >= 2', 'vq_fields::references(array) >= 3', '^host/imaginary_parts'),
    Fault('data that is shared is packed where it is', 'src/host/imaginary_parts.cpp',
          'api::vqUnshare(array);', '', '^host/imaginary_parts'),
    Fault('the array inside is not asked for again', 'src/host/imaginary_parts.cpp',
          'underlying = omGetUnderlyingArray(array);  //', '//', '^host/second/imaginary_parts'),
    Fault('dimensions are read before they are there', 'src/host/array_reading.h',
          'if (hasFlags(array, vq_flags::opaqueDimensions))', 'if (false)', '^host/vq_or_half_shape'),
    Fault('one of the two bits makes an array complex', 'src/host/array_reading.h',
          '(vq_fields::flags(array) & bits) == bits', '(vq_fields::flags(array) & bits) != 0', '^host/half_queries'),
    Fault('the class is looked for in every call', 'src/host/half_creation.cpp',
          'classWasFound.store(1, std::memory_order_relaxed);', '', '^host/second/availability'),
    Fault('a product of sizes wraps round', 'src/host/array_reading.h',
          '? std::numeric_limits<unsigned long>::max() : product', '? product : product', '^host/half_creation'),
    Fault('the tolerance of a sequence is half of what it is', 'src/host/colon_size.cpp',
          'std::fabs(stop)) * 0x1p-10;', 'std::fabs(stop)) * 0x1p-11;', '^host/colon_size'),
    Fault('a sequence of huge numbers overflows', 'src/host/colon_size.cpp',
          'halfStep != 0 && (stop == 0 || halfStop != 0)', 'halfStep != 0 && std::fabs(stop - start) < 1e300',
          '^host/colon_size'),
    Fault('the error is thrown and the host not told', 'src/host/errors.h',
          'matrix::detail::do_legacy_vq_error(error);', '', '^host/errors'),
    Fault('sizes are compared by their product', 'src/host/host_functions.cpp',
          'return a.count == b.count && std::equal(a.sizes, a.sizes + a.count, b.sizes);',
          'return zthalf::elementCount(a) == zthalf::elementCount(b);', '^host/host_functions'),
    Fault('rows and columns of the table of distances change places', 'src/host/ulp_loops.cpp',
          'loops[a * elementKinds + b]', 'loops[b * elementKinds + a]', '^host/ulp_inputs'),
    Fault('the target\'s own type wins over GPU text', 'src/codetext/compiler_info.cpp',
          'if (!isInitializer_ && isGPU_) return 2;',
          'if (!isInitializer_ && isGPU_ && !target_->getNativeTargetHalfSupport()) return 2;', '^codetext'),
    Fault('a finite literal has no point', 'src/codetext/half_to_string.cpp',
          '? ".0" : ""', '? "." : ""', '^codetext'),
    Fault('a failed call leaves its arrays', 'src/host/embedded/temporaries.cpp',
          'if (innermostLists != nullptr) array.insertBefore(innermostLists->arrays);', 'static_cast<void>(array);',
          '^host/(allocation|embedded/host_array)'),
    Fault('an exact text has a digit too few', 'src/host/embedded/float_text.cpp',
          'result.digits.append(text + 2, mark);', 'result.digits.append(text + 2, mark - (mark - text > 17));',
          '^host/embedded/float_text'),
]
