#pragma once

#include <cstdint>
#include <string>

// Number helpers of the calculator engine: decimal rounding that keeps results
// exact to the digits the display shows, trigonometry in the three angle units,
// and 64-bit integer arithmetic for the hexadecimal, octal and binary bases.
namespace sonalyx::calcnumerics {

// Decimal values are worked in the widest floating type, so that rounding errors
// of a chain of operations stay below the digits shown; they are shown as doubles.
using Real = long double;

// The digits the decimal display shows.
inline constexpr int kShownDigits = 15;

// The largest value the display can show.
inline constexpr Real kLargestShown = 1.7976931348623157e308L;

// 10^exponent, exact as far as the type allows.
Real powerOfTen(int exponent);

// floor(log10(|x|)) without the off-by-one of a rounded logarithm; x must be finite
// and not 0.
int decimalExponent(Real x);

// x rounded to a whole multiple of 10^exponent (halves away from zero): the value
// nearest to that decimal.
Real roundToDecimal(Real x, int exponent);

// x rounded to `digits` significant decimal digits.
Real roundSignificant(Real x, int digits = kShownDigits);

// a + b with the residue of cancellation removed: the sum is rounded to the shown
// digits of the larger operand, so 0.1 + 0.2 - 0.3 is 0, not 2.8e-17.
Real roundedSum(Real a, Real b);

// r with the digits below `noise` (the uncertainty it inherits from its argument)
// rounded off, when the display would show them; cancellation leaves no noise
// digits on screen.
Real roundAwayNoise(Real r, Real noise);

// The whole part of x as the display shows it: a value that shows as a whole
// number is that number (2.9999999999999996 shows 3), otherwise the fraction goes.
Real wholePart(Real x);

// Angle units as the engine numbers them.
inline constexpr int kDegrees = 0;
inline constexpr int kRadians = 1;
inline constexpr int kGrads = 2;

struct SineCosine {
  Real sine = 0.0L;
  Real cosine = 1.0L;
};

// Sine and cosine of an angle in the given unit. Whole quarter turns in degrees and
// grads are exact (sin 180° is 0, cos 400 grads is 1), as are 30°, 45°, 60° and
// 50 grads; in radians the digits below the angle's own rounding are dropped, so
// sin π is 0.
SineCosine angleSineCosine(Real angle, int unit);

// An angle in radians expressed in the given unit.
Real radiansToUnit(Real radians, int unit);

// 64-bit two's-complement arithmetic that wraps like a register.
std::int64_t wrappingAdd(std::int64_t a, std::int64_t b);
std::int64_t wrappingSubtract(std::int64_t a, std::int64_t b);
std::int64_t wrappingMultiply(std::int64_t a, std::int64_t b);
std::int64_t wrappingNegate(std::int64_t a);
// a to the power e (e >= 0), wrapping.
std::int64_t wrappingPower(std::int64_t a, std::int64_t e);

// The largest r with r^n <= x (n >= 1).
std::uint64_t integerRoot(std::uint64_t x, std::uint64_t n);

// The truncated value of x as a 64-bit integer; false when x is out of range or NaN.
bool truncateToInt64(Real x, std::int64_t& result);

// The bit pattern in base 2, 8 or 16: upper-case digits, no prefix, no leading zeros.
std::string toBaseDigits(std::uint64_t bits, int base);

}  // namespace sonalyx::calcnumerics
