#include "core/speech/CoordinatePhrase.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <string_view>

#include "core/speech/TranslationMarker.h"
#include "core/utility/FPRounder.h"
#include "core/utility/NumberFormat.h"

namespace sonalyx {

namespace {

// Numbers this large or this small are read with a power of ten.
constexpr double kLargestInWords = 1e15;
constexpr double kSmallestInWords = 1e-15;

// The shortest text that reads back as the value, in the given notation.
std::string shortest(double value, std::chars_format format) {
  char buffer[400];
  const auto result = std::to_chars(buffer, buffer + sizeof buffer, value, format);
  return std::string(buffer, result.ptr);
}

// Rounded to `decimals` on its decimal digits, half away from zero, as a person
// rounds what is written, then without trailing zeros.
std::string roundedText(const std::string& text, int decimals) {
  std::string rounded = FPRounder::round(text, static_cast<std::uint16_t>(decimals));
  if (rounded.find('.') != std::string::npos) {
    while (rounded.back() == '0') rounded.pop_back();
    if (rounded.back() == '.') rounded.pop_back();
  }
  if (rounded == "-0") rounded = "0";
  return rounded;
}

bool isZeroText(std::string_view text) {
  return text.find_first_not_of("-0.") == std::string_view::npos;
}

}  // namespace

std::string coordinatePhrase(double x, double y, int numDec, const Translator& translate) {
  return fillPlaceholders(translateWith(translate, SLX_TR("x = %1, y = %2")),
                          {spokenValue(x, numDec, translate), spokenValue(y, numDec, translate)});
}

std::string powerOfTenWords(const std::string& mantissa, int exponent, const Translator& translate) {
  std::string words = mantissa + ' ' + translateWith(translate, SLX_TR("times ten to the")) + ' ';
  if (exponent < 0) words += translateWith(translate, SLX_TR("minus")) + ' ';
  return words + std::to_string(exponent < 0 ? -exponent : exponent);
}

std::string spokenValue(double value, int numDec, const Translator& translate) {
  if (std::isnan(value)) return translateWith(translate, SLX_TR("Error"));
  if (std::isinf(value)) return (value < 0 ? "-" : "") + translateWith(translate, SLX_TR("Infinity"));
  if (value == 0.0) return "0";
  const int decimals = std::clamp(numDec, 0, kMostSpokenDecimals);
  const double magnitude = std::fabs(value);
  if (magnitude >= kLargestInWords || magnitude < kSmallestInWords) {
    const std::string text = shortest(value, std::chars_format::scientific);
    const std::size_t e = text.find('e');
    int exponent = std::stoi(text.substr(e + 1));
    std::string mantissa = roundedText(text.substr(0, e), decimals);
    // 9.99 rounded may become 10: one more power of ten.
    if (mantissa == "10" || mantissa == "-10") {
      mantissa.resize(mantissa.size() - 1);
      ++exponent;
    }
    return powerOfTenWords(numberForPerson(mantissa, translate), exponent, translate);
  }
  const std::string text = shortest(value, std::chars_format::fixed);
  std::string spoken = roundedText(text, decimals);
  if (isZeroText(spoken)) {
    // Too small for the decimals asked for: keep that many significant digits.
    const int leadingZeros = -static_cast<int>(std::floor(std::log10(magnitude))) - 1;
    spoken = roundedText(text, leadingZeros + std::max(decimals, 1));
  }
  return numberForPerson(spoken, translate);
}

std::string pointPhrase(const DataPoint& point, std::uint32_t plotType, int numDec,
                        const Translator& translate) {
  double y = point.y;
  if (plotType == 1) y = point.derivative;
  if (plotType == 2) y = point.integral;
  return coordinatePhrase(point.x, y, numDec, translate);
}

}  // namespace sonalyx
