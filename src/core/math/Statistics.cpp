#include "core/math/Statistics.h"

#include <cmath>

#include "core/math/FitText.h"

namespace sonalyx {

SampleStatistics computeStatistics(const DataSet& set) {
  SampleStatistics s;
  const std::vector<DataPoint>& points = set.points();
  s.count = points.size();
  if (points.empty()) return s;

  // The sum of squares behind the divide-by-n deviation is taken about the first
  // x: the same value as from the raw sums, without losing the digits that the raw
  // sums lose when the x values sit far from 0.
  const double x0 = points.front().x;
  double shiftedSumX = 0.0;
  double shiftedSumXX = 0.0;
  for (const DataPoint& p : points) {
    s.sumX += p.x;
    s.sumY += p.y;
    const double dx = p.x - x0;
    shiftedSumX += dx;
    shiftedSumXX += dx * dx;
  }
  const double n = static_cast<double>(s.count);
  const double reciprocal = 1.0 / n;
  s.meanX = reciprocal * s.sumX;
  s.meanY = reciprocal * s.sumY;

  double squaresX = 0.0;
  double squaresY = 0.0;
  for (const DataPoint& p : points) {
    squaresX += (p.x - s.meanX) * (p.x - s.meanX);
    squaresY += (p.y - s.meanY) * (p.y - s.meanY);
  }
  s.deviationX = std::sqrt((1.0 / (n - 1.0)) * squaresX);
  s.deviationY = std::sqrt((1.0 / (n - 1.0)) * squaresY);
  double spread = shiftedSumXX - shiftedSumX * shiftedSumX / n;
  if (spread < 0.0) spread = 0.0;  // rounding when every x is nearly the same; a NaN stays
  s.sampleDeviation = std::sqrt(reciprocal * spread);
  return s;
}

std::vector<std::string> statisticsLines(const DataSet& set,
                                         const std::function<std::string(const std::string&)>& translate) {
  if (!set.hasData() || set.count() < 2) return {};
  const SampleStatistics s = computeStatistics(set);
  const FitText text(translate);
  return {
      text.countLine(s.count),
      "",
      text.valueLine("Sum of x values:", s.sumX),
      text.valueLine("Mean value of x:", s.meanX),
      text.valueLine("x standard deviation:", s.deviationX),
      text.valueLine("Sample deviation:", s.sampleDeviation),
      "",
      text.valueLine("Sum of y values:", s.sumY),
      text.valueLine("Mean value of y:", s.meanY),
      text.valueLine("y standard deviation:", s.deviationY),
  };
}

}  // namespace sonalyx
