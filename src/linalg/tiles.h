// The sizes that the order of a matrix product's additions depends on.
#pragma once

namespace zthalf::linalg {

// The inner dimension is cut into stretches of so many indices. Each stretch adds eight sums to an output, one after
// the other: sum t is over the stretch's indices t, t + 8, t + 16, ...
inline constexpr unsigned long tileSize = 256;
inline constexpr unsigned long laneCount = 8;

}  // namespace zthalf::linalg
