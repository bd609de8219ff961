#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace sonalyx {

// The decimal separator that display rounding looks for.
inline constexpr std::string_view kDecimalSeparator = ".";

// Shortens the decimal fractions inside a text before it is spoken, leaving every
// other character untouched. A fraction is the separator and the digits that follow
// it without a gap; one with more than `digits` digits is rounded to `digits`, half
// away from zero, on the decimal digits themselves (no binary detour), and the
// carry runs into the whole part: "2.9996" with 3 is "3.000", "3.96" with 1 is
// "4.0". With 0 digits the separator goes too ("3.5" -> "4"). Fractions with
// `digits` digits or fewer are kept as written; the mantissa of "1.23456e+011" is
// rounded and its exponent kept.
class FPRounder {
 public:
  static std::string round(const std::string& text, std::uint16_t digits);
};

}  // namespace sonalyx
