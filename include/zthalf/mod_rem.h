// mod and rem on bare half patterns, alone and beside floats and doubles.
#pragma once

#include "zthalf/detail/export.h"

/// The element operations of half_vector::mod and half_vector::rem. An unsigned short is a binary16 pattern. The
/// results are stated at half_scalar::mod and half_scalar::rem; beside a float or double operand the remainder is taken
/// in that type, exactly, and rounded to half once, and the tolerance for a divisor with a fraction is one epsilon of
/// that type relative to the quotient.
///
/// In the mixed forms rem of an infinity, and rem by zero, is 0x7E00; a NaN operand gives 0x7E00 with its sign. mod of
/// an infinity or a NaN, or by a NaN, is 0xFE00.
namespace half::impl::emulated {

ZTHALF_API unsigned short mod(unsigned short x, unsigned short y);
ZTHALF_API unsigned short rem(unsigned short x, unsigned short y);

/// mod as a stateless function object.
struct ZTHALF_API modFtor {
  unsigned short operator()(unsigned short x, unsigned short y) const;
  unsigned short operator()(unsigned short x, float y) const;
  unsigned short operator()(float x, unsigned short y) const;
  unsigned short operator()(unsigned short x, double y) const;
  unsigned short operator()(double x, unsigned short y) const;
};

/// rem as a stateless function object.
struct ZTHALF_API remFtor {
  unsigned short operator()(unsigned short x, unsigned short y) const;
  unsigned short operator()(unsigned short x, float y) const;
  unsigned short operator()(float x, unsigned short y) const;
  unsigned short operator()(unsigned short x, double y) const;
  unsigned short operator()(double x, unsigned short y) const;
};

}  // namespace half::impl::emulated
