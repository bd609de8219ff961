#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "core/math/DataSet.h"

namespace sonalyx {

struct SampleStatistics {
  std::size_t count = 0;
  double sumX = 0.0;
  double meanX = 0.0;
  double sampleDeviationX = 0.0;      // standard deviation divided by n − 1
  double populationDeviationX = 0.0;  // divided by n
  double sumY = 0.0;
  double meanY = 0.0;
  double sampleDeviationY = 0.0;
  double populationDeviationY = 0.0;
};

// Over every point of the set, which needs at least 2 points.
SampleStatistics computeStatistics(const DataSet& set);

// The "Basic Statistical Information" lines: "Number of points: 3", an empty line,
// the x values (sum, mean, sample and population standard deviation), an empty
// line, the same for y; each value with "%.10g", magnitudes below 1e-11 as 0. No
// lines for a set without data or with fewer than 2 points. `translate` receives
// each English label; empty means English.
std::vector<std::string> statisticsLines(
    const DataSet& set, const std::function<std::string(const std::string&)>& translate = {});

}  // namespace sonalyx
