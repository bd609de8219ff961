#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "core/math/FitModel.h"
#include "support/CurveData.h"

namespace sonalyx::test {

// A fit's result lines: the heading for `count` points, then `rest`.
inline std::vector<std::string> fitLines(int model, std::size_t count,
                                         const std::vector<std::string>& rest = {}) {
  std::vector<std::string> lines = {"Number of points: " + std::to_string(count), "",
                                    "Regression analysis:", std::string(fitModelTitle(model)), ""};
  lines.insert(lines.end(), rest.begin(), rest.end());
  return lines;
}

// from, from + step, ... up to `to`.
inline std::vector<double> range(double from, double to, double step) {
  std::vector<double> xs;
  for (int i = 0; from + i * step <= to + step * 1e-9; ++i) xs.push_back(from + i * step);
  return xs;
}

}  // namespace sonalyx::test
