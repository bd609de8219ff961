#pragma once

#include <string>
#include <string_view>

namespace sonalyx {

// Formats one double with a printf conversion ("%.10g", "%-10.10g", "%.2f" ...).
// Exponents always carry a sign and at least three digits (1e-007,
// 1.23456789e+011) whatever the platform's C library does, so files, clipboard
// text and spoken numbers are the same everywhere. -0 is written as 0, NaN "Error" and an
// infinity "Infinity" or "-Infinity", padded to the conversion's width like a number.
// Supported: flags "-+ 0#", an optional width and precision, conversions g G e E f F.
// Throws std::invalid_argument for any other conversion text.
std::string formatNumber(double value, std::string_view conversion);

// A number as formatNumber writes it with its decimal point replaced by `sign`
// (the user's language's, "," in French): for what a person reads or hears only.
std::string withDecimalSign(std::string number, std::string_view sign);

// "%.<precision>g", the conversion used for spoken numbers and results.
std::string formatG(double value, int precision);

}  // namespace sonalyx
