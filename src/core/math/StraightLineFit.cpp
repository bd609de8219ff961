#include "core/math/StraightLineFit.h"

#include <cmath>

namespace sonalyx {

namespace {

// Spreads at or below this count as none: the line is left undetermined.
constexpr double kSpreadFloor = 1e-11;

}  // namespace

void StraightLineFit::add(double x, double y) {
  if (m_count == 0) {
    m_x0 = x;
    m_y0 = y;
  }
  ++m_count;
  const double dx = x - m_x0;
  const double dy = y - m_y0;
  m_sumX += dx;
  m_sumY += dy;
  m_sumXX += dx * dx;
  m_sumYY += dy * dy;
  m_sumXY += dx * dy;
}

StraightLineFit::Line StraightLineFit::line() const {
  Line result;
  if (m_count == 0) return result;
  const double n = static_cast<double>(m_count);
  const double ssxx = m_sumXX - m_sumX * m_sumX / n;
  const double ssyy = m_sumYY - m_sumY * m_sumY / n;
  const double ssxy = m_sumXY - m_sumX * m_sumY / n;
  // Written so that a NaN anywhere also leaves the line undetermined.
  if (!(ssxx > kSpreadFloor && ssyy > kSpreadFloor)) return result;
  result.slope = ssxy / ssxx;
  // (ΣY − B·ΣX)/n, with the sums taken back to the origin.
  result.intercept = (m_y0 + m_sumY / n) - result.slope * (m_x0 + m_sumX / n);
  result.r = ssxy / (std::sqrt(ssyy) * std::sqrt(ssxx));
  result.determined = true;
  return result;
}

}  // namespace sonalyx
