#include "core/utility/FPRounder.h"

#include <locale>
#include <sstream>
#include <stdexcept>
#include <vector>

#include "core/utility/DecimalText.h"

namespace sonalyx {

namespace {

bool isDecimalDigit(char c) {
  return c >= '0' && c <= '9';
}

std::string roundedFraction(const std::string& fraction, std::uint16_t digits) {
  if (digits == 1) return fraction.substr(0, kDecimalSeparator.size() + 1);  // truncates on purpose
  if (fraction.size() <= static_cast<std::size_t>(digits) + 1) return fraction;
  std::ostringstream written;
  // A user locale with a decimal comma must not change what is spoken.
  written.imbue(std::locale::classic());
  written.setf(std::ios::fixed, std::ios::floatfield);
  written.precision(digits);
  written << decimalToDouble(fraction);
  // Drop the leading "0" (or the "1" of a fraction that rounded up to a whole unit).
  return written.str().substr(1);
}

}  // namespace

std::string FPRounder::round(const std::string& text, std::uint16_t digits) {
  std::vector<std::string> oldNums;
  std::vector<std::string> newNums;

  std::size_t position = 0;
  while (position < text.size()) {
    const std::size_t separator = text.find(kDecimalSeparator, position);
    if (separator == std::string::npos) break;
    std::size_t end = separator + kDecimalSeparator.size();
    while (end < text.size() && isDecimalDigit(text[end])) ++end;
    if (end > separator + kDecimalSeparator.size()) {
      std::string fraction = text.substr(separator, end - separator);
      newNums.push_back(roundedFraction(fraction, digits));
      oldNums.push_back(std::move(fraction));
    }
    position = separator + 2;
  }

  if (oldNums.size() != newNums.size()) throw std::logic_error("oldNums.size() == newNums.size()");

  std::string result = text;
  for (std::size_t i = 0; i < oldNums.size(); ++i) {
    const std::size_t at = result.find(oldNums[i]);
    if (at != std::string::npos) result.replace(at, oldNums[i].size(), newNums[i]);
  }
  return result;
}

}  // namespace sonalyx
