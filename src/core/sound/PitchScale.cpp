#include "core/sound/PitchScale.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace sonalyx {

namespace {

double audible(int hertz) {
  return std::clamp(static_cast<double>(hertz), PitchScale::kLowestHz, PitchScale::kHighestHz);
}

}  // namespace

PitchScale::PitchScale(const std::vector<SoundedPoint>& points, int freqMin, int freqMax) {
  double low = std::numeric_limits<double>::infinity();
  double high = -low;
  for (const SoundedPoint& p : points) {
    if (!std::isfinite(p.y)) continue;
    low = std::min<double>(low, p.y);
    high = std::max<double>(high, p.y);
  }
  if (low <= high) {
    m_yLow = low;
    m_ySpan = high - low;  // in double, so even the widest float span stays finite
  }
  const double a = std::log2(audible(freqMin));
  const double b = std::log2(audible(freqMax));
  m_log2Low = std::min(a, b);
  m_log2Span = std::fabs(b - a);
}

double PitchScale::frequency(double y) const {
  const double t = m_ySpan > 0.0 ? std::clamp((y - m_yLow) / m_ySpan, 0.0, 1.0) : 0.5;
  return std::exp2(m_log2Low + t * m_log2Span);
}

}  // namespace sonalyx
