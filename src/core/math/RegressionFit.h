#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/math/DataSet.h"

namespace sonalyx {

struct FitResult {
  // False when the set has no data or fewer than 2 points: nothing was computed
  // and the caller says why. True whatever the fit's own outcome.
  bool ran = false;
  // The result lines as the Data page lists them; a failed fit's message is one of them.
  std::vector<std::string> lines;
  // a, b, c, d, e as far as the model has them, magnitudes below 1e-11 as 0. Empty
  // after a failed fit, for the statistics and for an unknown model number.
  std::vector<double> coefficients;
};

// Receives the English text and returns the text to show; empty means English.
using FitTranslate = std::function<std::string(const std::string&)>;
// The sinusoid's period dialog: receives b's start value estimated from the data
// and returns the start value to use (the same value to keep it).
using SineStartChooser = std::function<double(double estimatedB)>;

// Fits model `model` (see FitModel.h; 0 is the statistics summary) to every point
// of `set`. Any other model number computes nothing. Straight-line models report a
// flat y as a = mean y, b = 0 (the exponential's b = 1) and "r: undefined", and
// x values that do not spread as one line saying no line can be fitted.
FitResult runFit(int model, const DataSet& set, const SineStartChooser& chooseSineB = {},
                 const FitTranslate& translate = {});

// The same with b's start value for the sinusoid given directly.
FitResult runFit(int model, const DataSet& set, double sineB, const FitTranslate& translate = {});

}  // namespace sonalyx
