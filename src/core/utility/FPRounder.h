#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace sonalyx {

// The decimal separator that display rounding looks for.
inline constexpr std::string_view kDecimalSeparator = ".";

// Shortens the decimal fractions inside a text before it is spoken, leaving the
// digits before each separator and every other character untouched. A fraction is
// the separator and the digits that follow it without a gap.
//
// With `digits` 1 a fraction is truncated to its first digit ("3.96" -> "3.9");
// otherwise a fraction with more than `digits` digits is rounded to `digits`
// ("3.969" with 2 -> "3.97"). Rounding never carries into the integer part:
// "2.9996" with 3 becomes "2.000". With 0 digits every fraction that has a digit
// disappears together with its separator ("3.5" -> "3").
//
// The scan resumes two characters after each separator, so a fraction right after
// a lone separator ("1..56") is skipped, and each rewritten fraction replaces its
// first occurrence in the text, in the order found.
class FPRounder {
 public:
  static std::string round(const std::string& text, std::uint16_t digits);
};

}  // namespace sonalyx
