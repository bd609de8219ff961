#pragma once

#include <cstddef>
#include <functional>
#include <string>

namespace sonalyx {

// The wording shared by the statistics and the fit results.
class FitText {
 public:
  using Translate = std::function<std::string(const std::string&)>;

  // Magnitudes below this are written, and kept as coefficients, as 0.
  static constexpr double kZeroBelow = 1e-11;

  // An empty `translate` leaves the English texts as they are.
  explicit FitText(Translate translate);

  std::string translate(const std::string& english) const;
  // "Number of points: 12"
  std::string countLine(std::size_t count) const;
  // The translated label, a blank and the value with "%.10g" (numbers in the
  // language's decimal sign).
  std::string valueLine(const std::string& label, double value) const;
  // "a: 1.5" and the like; the letter is not translated.
  std::string coefficientLine(char letter, double value) const;
  // 0 for a magnitude below 1e-11, a NaN or any other value as it is.
  static double zeroed(double value);

 private:
  Translate m_translate;
};

}  // namespace sonalyx
