// The distance in units in the last place of two arrays of any of the six kinds of elements that a host has.
#pragma once

namespace zthalf {

// In the order of the table's rows and columns.
enum elementKind : unsigned { halves, singles, doubles, complexHalves, complexSingles, complexDoubles };
inline constexpr unsigned elementKinds = 6;

// out[i] = the distance of element i of a and of b, for i from 0 to n - 1.
using ulpLoop = void (*)(void* a, void* b, double* out, unsigned long n);
ulpLoop ulpLoopFor(elementKind a, elementKind b);

}  // namespace zthalf
