#pragma once

#include <cstdint>
#include <string>

#include "core/math/DataPoint.h"
#include "core/speech/Translator.h"

namespace sonalyx {

// The most decimals a spoken number is given; a double holds no more.
inline constexpr int kMostSpokenDecimals = 15;

// How a point is spoken: "x = 3.14159, y = -2", each value as spokenValue says.
std::string coordinatePhrase(double x, double y, int numDec, const Translator& translate = {});

// How a point of the graph is spoken: its stored x and the value drawn for it,
// the y, the derivative (plotType 1) or the integral (plotType 2).
std::string pointPhrase(const DataPoint& point, std::uint32_t plotType, int numDec,
                        const Translator& translate = {});

// One value as it is spoken, with `numDec` decimal places (0 to 15; outside that
// the nearest): rounded, trailing zeros dropped, so 123.4 with 1 is "123.4" and 2
// with 5 is "2". A value that is not 0 but would round to 0 keeps `numDec`
// significant digits instead (0.0000123 with 3 is "0.0000123"). Magnitudes from
// 1e15 up and below 1e-15 are read in words: "1.5 times ten to the minus 20". NaN
// is "Error", an infinity "Infinity"; -0 is "0".
std::string spokenValue(double value, int numDec, const Translator& translate = {});

// A mantissa and a power of ten in words: "1.5 times ten to the minus 5".
std::string powerOfTenWords(const std::string& mantissa, int exponent, const Translator& translate = {});

}  // namespace sonalyx
