#pragma once

#include <vector>

#include "core/sound/RangeFilter.h"

namespace sonalyx {

// How a curve's y becomes pitch: equal musical steps (logarithmic in frequency) from
// the lower of the two frequency settings, at the lowest finite y of the points, to
// the higher, at the highest. A flat curve sounds at the geometric middle.
class PitchScale {
 public:
  // Frequencies are kept audible and below the Nyquist limit: anything below 20 Hz
  // (zero and negative settings too) plays at 20 Hz, anything above 20 kHz at 20 kHz.
  static constexpr double kLowestHz = 20.0;
  static constexpr double kHighestHz = 20000.0;

  PitchScale(const std::vector<SoundedPoint>& points, int freqMin, int freqMax);

  // The frequency in Hz for a finite y; y beyond the points' span gets the nearer end.
  double frequency(double y) const;

 private:
  double m_yLow = 0.0;
  double m_ySpan = 0.0;  // 0 for a flat curve
  double m_log2Low = 0.0;
  double m_log2Span = 0.0;
};

}  // namespace sonalyx
