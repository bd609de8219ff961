#pragma once

#include <string>

namespace sonalyx {

// How a point is spoken: "x = %.Ng, y = %.Ng" filled with x and y, where N is the
// user's `numDec` setting. It counts significant digits, not decimals: with 5,
// (3.14159265, -2) is "x = 3.1416, y = -2". Exponents have three digits
// ("1e+002"), NaN is "Error" and an infinity "Infinity".
//
// `numDec` 0 speaks one significant digit, as "%.0g" does; a negative value
// counts as 0, and anything above 99 as 99, since more digits than a double holds
// only add noise.
std::string coordinatePhrase(double x, double y, int numDec);

// One value of a data set as it is spoken: "%.Ng" with the same N.
std::string spokenValue(double value, int numDec);

}  // namespace sonalyx
