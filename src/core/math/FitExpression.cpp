#include "core/math/FitExpression.h"

#include <algorithm>
#include <array>

#include "core/math/FitModel.h"
#include "core/utility/NumberFormat.h"

namespace sonalyx {

namespace {

constexpr std::array<std::string_view, kFitModelCount> kTemplates = {
    "",
    "a + (b * x)",
    "a * (x)^2 + b * (x) + c",
    "a * (x)^3 + b * (x)^2 + c * (x) + d",
    "a * (x)^4 + b * (x)^3 + c * (x)^2 + d * (x) + e",
    "a * (b^x)",
    "a + b * ln(x)",
    "a * x ^ (b)",
    "a + (b)/x",
    "a / (b + x)",
    "(a * x) / (b + x)",
    "c / (1 + (a) * exp(-b * x))",
    "a * sin((b)*x+c) + d",
};

bool isLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

}  // namespace

std::string_view fitExpressionTemplate(int model) {
  if (model < 0 || model >= kFitModelCount) return {};
  return kTemplates[static_cast<std::size_t>(model)];
}

std::string fitExpression(int model, const std::vector<double>& coefficients) {
  const std::string_view pattern = fitExpressionTemplate(model);
  if (pattern.empty() || coefficients.size() < 2) return {};
  const std::size_t letters = std::min<std::size_t>(coefficients.size(), 5);
  // One pass, each coefficient bracketed: a number's own exponent letter is never
  // taken for a coefficient, and a negative b keeps its sign under ^ and *.
  std::string text;
  text.reserve(pattern.size() + letters * 24);
  for (std::size_t i = 0; i < pattern.size(); ++i) {
    const char c = pattern[i];
    const std::size_t index = static_cast<std::size_t>(c - 'a');
    const bool standsAlone =
        (i == 0 || !isLetter(pattern[i - 1])) && (i + 1 == pattern.size() || !isLetter(pattern[i + 1]));
    if (c >= 'a' && index < letters && standsAlone) {
      text += '(';
      text += formatNumber(coefficients[index], "%.10g");
      text += ')';
    } else {
      text += c;
    }
  }
  return text;
}

}  // namespace sonalyx
