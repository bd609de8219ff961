#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <sstream>
#include <string>

namespace sonalyx::test {

// The one way tests compare doubles: equal to `significantDigits` significant
// digits, or both within `absoluteFloor` of zero (a computed 1e-17 where 0 is
// expected). NaN equals NaN and infinities must match in sign.
inline ::testing::AssertionResult agreesTo(double actual, double expected, int significantDigits,
                                           double absoluteFloor = 0.0) {
  if (std::isnan(expected) || std::isnan(actual)) {
    if (std::isnan(expected) && std::isnan(actual)) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "actual " << actual << ", expected " << expected;
  }
  if (std::isinf(expected) || std::isinf(actual)) {
    if (actual == expected) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "actual " << actual << ", expected " << expected;
  }
  const double difference = std::fabs(actual - expected);
  if (difference <= absoluteFloor) return ::testing::AssertionSuccess();
  const double tolerance = std::fabs(expected) * 0.5 * std::pow(10.0, 1 - significantDigits);
  if (difference <= tolerance) return ::testing::AssertionSuccess();
  std::ostringstream m;
  m.precision(17);
  m << "actual " << actual << ", expected " << expected << " (to " << significantDigits << " digits)";
  return ::testing::AssertionFailure() << m.str();
}

}  // namespace sonalyx::test
