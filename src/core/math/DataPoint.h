#pragma once

#include <cstdint>
#include <limits>

namespace sonalyx {

// An absent double is the largest finite double, an absent trend the largest
// 32-bit integer: every field is always present, never missing.
inline constexpr double kAbsent = std::numeric_limits<double>::max();
inline constexpr std::int32_t kAbsentTrend = std::numeric_limits<std::int32_t>::max();

struct DataPoint {
  double x = 0.0;  // for a polar set, the angle in radians
  double y = 0.0;  // for a polar set, the radius
  double derivative = kAbsent;
  double integral = kAbsent;          // from the first point's x to this x
  std::int32_t trend = kAbsentTrend;  // +1, -1 or 0: change of the derivative
  double cartX = kAbsent;
  double cartY = kAbsent;
};

}  // namespace sonalyx
