#include "core/math/Statistics.h"

#include <cmath>

#include "core/math/FitText.h"
#include "core/speech/TranslationMarker.h"

namespace sonalyx {

SampleStatistics computeStatistics(const DataSet& set) {
  SampleStatistics s;
  const std::vector<DataPoint>& points = set.points();
  s.count = points.size();
  if (points.empty()) return s;

  for (const DataPoint& p : points) {
    s.sumX += p.x;
    s.sumY += p.y;
  }
  const double n = static_cast<double>(s.count);
  s.meanX = s.sumX / n;
  s.meanY = s.sumY / n;

  // About the mean, in a second pass: the raw sums of squares lose their digits
  // when the values sit far from 0.
  double squaresX = 0.0;
  double squaresY = 0.0;
  for (const DataPoint& p : points) {
    squaresX += (p.x - s.meanX) * (p.x - s.meanX);
    squaresY += (p.y - s.meanY) * (p.y - s.meanY);
  }
  s.sampleDeviationX = std::sqrt(squaresX / (n - 1.0));
  s.sampleDeviationY = std::sqrt(squaresY / (n - 1.0));
  s.populationDeviationX = std::sqrt(squaresX / n);
  s.populationDeviationY = std::sqrt(squaresY / n);
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
      text.valueLine(SLX_TR("Sum of x values:"), s.sumX),
      text.valueLine(SLX_TR("Mean value of x:"), s.meanX),
      text.valueLine(SLX_TR("Sample standard deviation of x:"), s.sampleDeviationX),
      text.valueLine(SLX_TR("Population standard deviation of x:"), s.populationDeviationX),
      "",
      text.valueLine(SLX_TR("Sum of y values:"), s.sumY),
      text.valueLine(SLX_TR("Mean value of y:"), s.meanY),
      text.valueLine(SLX_TR("Sample standard deviation of y:"), s.sampleDeviationY),
      text.valueLine(SLX_TR("Population standard deviation of y:"), s.populationDeviationY),
  };
}

}  // namespace sonalyx
