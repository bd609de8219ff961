#include "core/math/FitModel.h"

#include <array>
#include <cctype>
#include "core/speech/TranslationMarker.h"

namespace sonalyx {

namespace {

struct ModelEntry {
  std::string_view name;
  std::string_view title;
};

constexpr std::array<ModelEntry, kFitModelCount> kModels = {{
    {"stats", SLX_TR("Basic Statistical Information")},
    {"linear", SLX_TR("Linear: y = a + bx")},
    {"quadratic", SLX_TR("Quadratic: y = ax^2 + bx + c")},
    {"cubic", SLX_TR("Cubic: y = ax^3 + bx^2 + cx + d")},
    {"quartic", SLX_TR("Quartic: y = ax^4 + bx^3 + cx^2 + dx + e")},
    {"exponential", SLX_TR("Exponential: y = a b^x")},
    {"logarithmic", SLX_TR("Logarithmic: y = a + b*ln(x)")},
    {"power", SLX_TR("Power: y = a x^b")},
    {"hyperbolic", SLX_TR("Hyperbolic: y = a + b/x")},
    {"rational", SLX_TR("Rational: y = a / (b + x)")},
    {"rational-x", SLX_TR("Rational: y = ax / (b + x)")},
    {"logistic", SLX_TR("Logistic: y = c / (1 + a*exp(-b*x))")},
    {"sinusoidal", SLX_TR("Sinusoidal: y = a sin(bx+c) + d")},
}};

bool sameIgnoringCase(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (std::tolower(static_cast<unsigned char>(a[i])) != std::tolower(static_cast<unsigned char>(b[i]))) {
      return false;
    }
  }
  return true;
}

}  // namespace

std::string_view fitModelName(int model) {
  if (model < 0 || model >= kFitModelCount) return {};
  return kModels[static_cast<std::size_t>(model)].name;
}

std::optional<int> fitModelFromName(std::string_view name) {
  for (int model = 0; model < kFitModelCount; ++model) {
    if (sameIgnoringCase(name, kModels[static_cast<std::size_t>(model)].name)) return model;
  }
  return std::nullopt;
}

std::string_view fitModelTitle(int model) {
  if (model < 0 || model >= kFitModelCount) return {};
  return kModels[static_cast<std::size_t>(model)].title;
}

}  // namespace sonalyx
