// The floating-point element types by number, for the functions that choose an operation from them.
#pragma once

/// A floating-point element type, or the type of the parts of a complex one. The underlying type is fixed, so that a
/// function can be handed any number: what it does with one that is not named here, it says.
enum FloatTypeEnum : unsigned int { FloatTypeHalf = 0, FloatTypeSingle = 1, FloatTypeDouble = 2 };
