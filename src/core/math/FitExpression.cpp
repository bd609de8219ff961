#include "core/math/FitExpression.h"

#include <algorithm>
#include <array>
#include <utility>

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

void replaceEvery(std::string& text, char letter, const std::string& with) {
  std::string result;
  result.reserve(text.size() + with.size() * 4);
  for (char ch : text) {
    if (ch == letter) {
      result += with;
    } else {
      result += ch;
    }
  }
  text = std::move(result);
}

}  // namespace

std::string_view fitExpressionTemplate(int model) {
  if (model < 0 || model >= kFitModelCount) return {};
  return kTemplates[static_cast<std::size_t>(model)];
}

std::string fitExpression(int model, const std::vector<double>& coefficients) {
  const std::string_view pattern = fitExpressionTemplate(model);
  if (pattern.empty() || coefficients.size() < 2) return {};
  std::string text(pattern);
  const std::size_t letters = std::min<std::size_t>(coefficients.size(), 5);
  for (std::size_t i = 0; i < letters; ++i) {
    replaceEvery(text, static_cast<char>('a' + i), formatNumber(coefficients[i], "%.10g"));
  }
  return text;
}

}  // namespace sonalyx
