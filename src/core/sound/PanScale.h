#pragma once

#include <optional>
#include <utility>
#include <vector>

#include "core/sound/RangeFilter.h"

namespace sonalyx {

struct StereoGain {
  float left = 1.0f;
  float right = 1.0f;
};

// Where a point sits between the left and the right speaker: the points' finite x
// range spread from hard left to hard right.
class PanScale {
 public:
  explicit PanScale(const std::vector<SoundedPoint>& points);

  // The lowest and highest finite x, nothing when no x is finite.
  std::optional<std::pair<double, double>> xRange() const;

  // 0 hard left .. 1 hard right; the centre for a non-finite x or a single x.
  double position(double x) const;

  // Equal-power gains for a position; mono is the same full signal on both sides.
  static StereoGain gains(double position, bool stereo);

 private:
  double m_xLow = 0.0;
  double m_xHigh = 0.0;
  bool m_hasRange = false;
};

}  // namespace sonalyx
