#include "core/speech/CoordinatePhrase.h"

#include <algorithm>

#include "core/utility/NumberFormat.h"

namespace sonalyx {

namespace {

// Keeps the conversion well formed whatever the settings file holds.
int spokenPrecision(int numDec) {
  return std::clamp(numDec, 0, 99);
}

}  // namespace

std::string coordinatePhrase(double x, double y, int numDec) {
  // The same text as filling "x = %.Ng, y = %.Ng", one conversion at a time.
  return "x = " + spokenValue(x, numDec) + ", y = " + spokenValue(y, numDec);
}

std::string spokenValue(double value, int numDec) {
  return formatG(value, spokenPrecision(numDec));
}

}  // namespace sonalyx
