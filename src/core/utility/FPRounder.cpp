#include "core/utility/FPRounder.h"

#include <cstddef>

namespace sonalyx {

namespace {

bool isDecimalDigit(char c) {
  return c >= '0' && c <= '9';
}

// Rounds the number `whole`.`fraction` to `digits` decimals; returns its new text.
std::string roundedNumber(std::string whole, std::string_view fraction, std::size_t digits) {
  std::string kept(fraction.substr(0, digits));
  if (fraction[digits] >= '5') {
    // Add one unit in the last kept place, carrying leftwards into the whole part.
    std::size_t i = kept.size();
    bool carry = true;
    while (carry && i > 0) {
      --i;
      if (kept[i] == '9') {
        kept[i] = '0';
      } else {
        ++kept[i];
        carry = false;
      }
    }
    i = whole.size();
    while (carry && i > 0) {
      --i;
      if (whole[i] == '9') {
        whole[i] = '0';
      } else {
        ++whole[i];
        carry = false;
      }
    }
    if (carry) whole.insert(0, 1, '1');
  }
  if (kept.empty()) return whole.empty() ? "0" : whole;
  return whole + std::string(kDecimalSeparator) + kept;
}

}  // namespace

std::string FPRounder::round(const std::string& text, std::uint16_t digits) {
  std::string result;
  result.reserve(text.size());
  std::size_t copied = 0;  // text before this index is in `result`
  std::size_t position = 0;
  while (position < text.size()) {
    const std::size_t separator = text.find(kDecimalSeparator, position);
    if (separator == std::string::npos) break;
    const std::size_t fractionStart = separator + kDecimalSeparator.size();
    std::size_t end = fractionStart;
    while (end < text.size() && isDecimalDigit(text[end])) ++end;
    const std::size_t fractionLength = end - fractionStart;
    if (fractionLength > digits) {
      std::size_t wholeStart = separator;
      while (wholeStart > copied && isDecimalDigit(text[wholeStart - 1])) --wholeStart;
      result.append(text, copied, wholeStart - copied);
      result += roundedNumber(text.substr(wholeStart, separator - wholeStart),
                              std::string_view(text).substr(fractionStart, fractionLength), digits);
      copied = end;
    }
    position = end > fractionStart ? end : fractionStart;
  }
  result.append(text, copied, std::string::npos);
  return result;
}

}  // namespace sonalyx
