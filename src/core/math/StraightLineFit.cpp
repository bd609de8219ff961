#include "core/math/StraightLineFit.h"

#include <cmath>
#include <limits>

namespace sonalyx {

namespace {

// Values that differ by less than this fraction of their magnitude do not spread:
// the difference is rounding, not data. Relative, so that data measured in
// millionths are fitted as well as data measured in millions.
constexpr double kRelativeSpread = 1e-10;

bool spreads(double sumOfSquares, double n, double largest) {
  const double floor = kRelativeSpread * largest;
  // Written so that a NaN counts as spread: it then reaches the results as NaN.
  return !(sumOfSquares <= n * floor * floor);
}

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
  m_largestX = std::fmax(m_largestX, std::fabs(x));
  m_largestY = std::fmax(m_largestY, std::fabs(y));
}

StraightLineFit::Line StraightLineFit::line() const {
  Line result;
  if (m_count == 0) return result;
  const double n = static_cast<double>(m_count);
  const double ssxx = m_sumXX - m_sumX * m_sumX / n;
  const double ssyy = m_sumYY - m_sumY * m_sumY / n;
  const double ssxy = m_sumXY - m_sumX * m_sumY / n;
  const double meanX = m_x0 + m_sumX / n;
  const double meanY = m_y0 + m_sumY / n;
  if (!spreads(ssxx, n, m_largestX)) return result;
  if (!spreads(ssyy, n, m_largestY)) {
    result.shape = Shape::FlatY;
    result.intercept = meanY;
    result.r = std::numeric_limits<double>::quiet_NaN();
    return result;
  }
  result.shape = Shape::Line;
  result.slope = ssxy / ssxx;
  result.intercept = meanY - result.slope * meanX;
  result.r = ssxy / (std::sqrt(ssyy) * std::sqrt(ssxx));
  return result;
}

}  // namespace sonalyx
