#pragma once

#include <optional>
#include <string_view>

namespace sonalyx {

// The model numbers of the Data pages' "Mode:" list; 0 is the statistics summary.
enum FitModel : int {
  kStatistics = 0,
  kLinear = 1,
  kQuadratic = 2,
  kCubic = 3,
  kQuartic = 4,
  kExponential = 5,
  kLogarithmic = 6,
  kPower = 7,
  kHyperbolic = 8,
  kRational = 9,    // y = a / (b + x)
  kRationalX = 10,  // y = ax / (b + x)
  kLogistic = 11,
  kSinusoidal = 12,
};

inline constexpr int kFitModelCount = 13;

// Short lower-case names for typed commands: "stats", "linear", ... "sinusoidal".
// Empty for a number outside 0 to 12.
std::string_view fitModelName(int model);

// The model number for a short name, compared without regard to case.
std::optional<int> fitModelFromName(std::string_view name);

// The item text of the "Mode:" list: "Basic Statistical Information" for 0, the
// model's title line ("Linear: y = a + bx" ...) otherwise; empty outside 0 to 12.
// English; the caller translates.
std::string_view fitModelTitle(int model);

}  // namespace sonalyx
