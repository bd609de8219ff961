#include "core/sound/PanScale.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "core/sound/SineTable.h"

namespace sonalyx {

PanScale::PanScale(const std::vector<SoundedPoint>& points) {
  double low = std::numeric_limits<double>::infinity();
  double high = -low;
  for (const SoundedPoint& p : points) {
    if (!std::isfinite(p.x)) continue;
    low = std::min<double>(low, p.x);
    high = std::max<double>(high, p.x);
  }
  if (low <= high) {
    m_xLow = low;
    m_xHigh = high;
    m_hasRange = true;
  }
}

std::optional<std::pair<double, double>> PanScale::xRange() const {
  if (!m_hasRange) return std::nullopt;
  return std::make_pair(m_xLow, m_xHigh);
}

double PanScale::position(double x) const {
  const double span = m_xHigh - m_xLow;
  if (!std::isfinite(x) || !(span > 0.0)) return 0.5;
  return std::clamp((x - m_xLow) / span, 0.0, 1.0);
}

StereoGain PanScale::gains(double position, bool stereo) {
  if (!stereo) return {1.0f, 1.0f};
  // A quarter turn across the field: cos on the left, sin on the right.
  const double turns = std::clamp(position, 0.0, 1.0) * 0.25;
  return {cosineOfTurns(turns), sineOfTurns(turns)};
}

}  // namespace sonalyx
