#include "core/utility/DecimalText.h"

#include <charconv>
#include <limits>
#include <string>

namespace sonalyx {

namespace {

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}
bool isBlank(char c) {
  return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\v' || c == '\f';
}

}  // namespace

double decimalToDouble(std::string_view text, std::size_t* consumed) {
  if (consumed != nullptr) *consumed = 0;
  std::size_t i = 0;
  while (i < text.size() && isBlank(text[i])) ++i;
  bool negative = false;
  if (i < text.size() && (text[i] == '+' || text[i] == '-')) {
    negative = text[i] == '-';
    ++i;
  }
  const std::size_t start = i;
  std::size_t digits = 0;
  while (i < text.size() && isDigit(text[i])) ++i, ++digits;
  if (i < text.size() && text[i] == '.') {
    ++i;
    while (i < text.size() && isDigit(text[i])) ++i, ++digits;
  }
  if (digits == 0) return 0.0;
  bool negativeExponent = false;
  if (i < text.size() && (text[i] == 'e' || text[i] == 'E')) {
    std::size_t j = i + 1;
    bool expNegative = false;
    if (j < text.size() && (text[j] == '+' || text[j] == '-')) {
      expNegative = text[j] == '-';
      ++j;
    }
    if (j < text.size() && isDigit(text[j])) {
      while (j < text.size() && isDigit(text[j])) ++j;
      i = j;
      negativeExponent = expNegative;
    }
  }
  if (consumed != nullptr) *consumed = i;

  double value = 0.0;
  const auto result =
      std::from_chars(text.data() + start, text.data() + i, value, std::chars_format::general);
  if (result.ec == std::errc::result_out_of_range) {
    // from_chars leaves the value alone when out of range; the exponent's sign tells
    // an overflow from an underflow.
    value = negativeExponent ? 0.0 : std::numeric_limits<double>::infinity();
  }
  return negative ? -value : value;
}

}  // namespace sonalyx
