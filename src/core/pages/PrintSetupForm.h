#pragma once

#include <optional>
#include <string>

#include "core/pages/FieldRefusal.h"
#include "core/speech/Translator.h"

namespace sonalyx {

// The print setup's typed fields without their window: the graph's width and
// height in inches and the number of copies, checked against the paper as the
// chosen orientation turns it, so that no part of the graph falls off the page.
struct PrintSetupForm {
  enum Field : int { Width, Height, Copies };

  static constexpr double kSmallestInches = 1.0;
  static constexpr long long kMostCopies = 99;

  std::string width = "6";
  std::string height = "8";
  std::string copies = "1";
  bool landscape = false;
  // The paper upright, in inches (letter until the printer says otherwise).
  double paperWidthInches = 8.5;
  double paperHeightInches = 11.0;

  double pageWidthInches() const { return landscape ? paperHeightInches : paperWidthInches; }
  double pageHeightInches() const { return landscape ? paperWidthInches : paperHeightInches; }
  // The largest size allowed: the page's, in hundredths of an inch rounded down, so
  // that the number said is one that fits (8.26 on A4, not 8.27).
  double widestInches() const;
  double tallestInches() const;

  std::optional<FieldRefusal> check(const Translator& translate = {}) const;

  // The size typed, when both fit the page; the copies, when within 1 to 99.
  std::optional<double> acceptedWidth() const;
  std::optional<double> acceptedHeight() const;
  std::optional<int> acceptedCopies() const;

  // "6.0 x 8.0 inches", as the preview names the size.
  static std::string sizeLine(const Translator& translate, double widthInches, double heightInches);
  // "y-axis times 1000": what the printed y labels are to be multiplied by.
  static std::string yAxisLine(const Translator& translate, double labelFactor);
};

}  // namespace sonalyx
