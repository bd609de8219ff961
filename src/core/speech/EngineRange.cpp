#include "core/speech/EngineRange.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace sonalyx {

int EngineRange::fromPercent(double percent) const {
  const double value = minimum + percent * 0.01 * (static_cast<double>(maximum) - minimum);
  if (std::isnan(value)) return minimum;
  // Converting a double outside int's range is undefined, so clamp first.
  const double clamped = std::clamp(value, static_cast<double>(std::numeric_limits<int>::min()),
                                    static_cast<double>(std::numeric_limits<int>::max()));
  return static_cast<int>(std::trunc(clamped));
}

}  // namespace sonalyx
