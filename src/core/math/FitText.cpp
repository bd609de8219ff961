#include "core/math/FitText.h"

#include <cmath>
#include <utility>

#include "core/speech/TranslationMarker.h"
#include "core/speech/Translator.h"
#include "core/utility/NumberFormat.h"

namespace sonalyx {

FitText::FitText(Translate translate) : m_translate(std::move(translate)) {}

std::string FitText::translate(const std::string& english) const {
  return m_translate ? m_translate(english) : english;
}

std::string FitText::countLine(std::size_t count) const {
  return translate(SLX_TR("Number of points:")) + ' ' + std::to_string(count);
}

std::string FitText::valueLine(const std::string& label, double value) const {
  return translate(label) + ' ' + numberForPerson(formatNumber(zeroed(value), "%.10g"), m_translate);
}

std::string FitText::coefficientLine(char letter, double value) const {
  return std::string(1, letter) + ": " + numberForPerson(formatNumber(zeroed(value), "%.10g"), m_translate);
}

double FitText::zeroed(double value) {
  return std::fabs(value) < kZeroBelow ? 0.0 : value;
}

}  // namespace sonalyx
