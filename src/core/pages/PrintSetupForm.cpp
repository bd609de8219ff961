#include "core/pages/PrintSetupForm.h"

#include <cmath>

#include "core/graph/GraphTicks.h"
#include "core/pages/NumberEntry.h"
#include "core/speech/TranslationMarker.h"
#include "core/utility/NumberFormat.h"

namespace sonalyx {

namespace {

std::optional<double> fitting(const std::string& text, double most) {
  const auto inches = entry::realNumber(text);
  if (!inches || *inches < PrintSetupForm::kSmallestInches || *inches > most) return std::nullopt;
  return inches;
}

void replaceFirst(std::string& text, const std::string& marker, const std::string& value) {
  if (const auto at = text.find(marker); at != std::string::npos) text.replace(at, marker.size(), value);
}

// A refusal names the limits as they are typed into the field, with the point.
std::string inchesRange(const Translator& translate, const std::string& english, double most) {
  std::string text = translateWith(translate, english);
  replaceFirst(text, "%s", formatNumber(PrintSetupForm::kSmallestInches, "%.15g"));
  replaceFirst(text, "%s", formatNumber(most, "%.15g"));
  return text;
}

}  // namespace

double PrintSetupForm::widestInches() const {
  return std::floor(pageWidthInches() * 100.0 + 1e-9) / 100.0;
}

double PrintSetupForm::tallestInches() const {
  return std::floor(pageHeightInches() * 100.0 + 1e-9) / 100.0;
}

std::optional<double> PrintSetupForm::acceptedWidth() const {
  return fitting(width, widestInches());
}

std::optional<double> PrintSetupForm::acceptedHeight() const {
  return fitting(height, tallestInches());
}

std::optional<int> PrintSetupForm::acceptedCopies() const {
  const auto count = entry::wholeNumber(copies);
  if (!count || *count < 1 || *count > kMostCopies) return std::nullopt;
  return static_cast<int>(*count);
}

std::optional<FieldRefusal> PrintSetupForm::check(const Translator& translate) const {
  if (!acceptedWidth()) {
    return FieldRefusal{
        Width, inchesRange(translate, SLX_TR("The width must be from %s to %s inches, the page's width."),
                           widestInches())};
  }
  if (!acceptedHeight()) {
    return FieldRefusal{
        Height, inchesRange(translate, SLX_TR("The height must be from %s to %s inches, the page's height."),
                            tallestInches())};
  }
  if (!acceptedCopies()) {
    return FieldRefusal{
        Copies,
        entry::rangeText(translate, SLX_TR("The number of copies must be from %d to %d."), 1, kMostCopies)};
  }
  return std::nullopt;
}

std::string PrintSetupForm::sizeLine(const Translator& translate, double widthInches, double heightInches) {
  std::string text = translateWith(translate, SLX_TR("%.1f x %.1f inches"));
  replaceFirst(text, "%.1f", numberForPerson(formatNumber(widthInches, "%.1f"), translate));
  replaceFirst(text, "%.1f", numberForPerson(formatNumber(heightInches, "%.1f"), translate));
  return text;
}

std::string PrintSetupForm::yAxisLine(const Translator& translate, double labelFactor) {
  std::string text = translateWith(translate, SLX_TR("y-axis times %s"));
  replaceFirst(text, "%s", numberForPerson(formatNumber(yAxisMultiplier(labelFactor), "%.15g"), translate));
  return text;
}

}  // namespace sonalyx
