#pragma once

#include <utility>
#include <vector>

#include "core/math/DataSet.h"

namespace sonalyx::test {

using Points = std::vector<std::pair<double, double>>;

inline DataSet makeSet(const Points& xy) {
  std::vector<DataPoint> points;
  for (const auto& [x, y] : xy) {
    DataPoint p;
    p.x = x;
    p.y = y;
    points.push_back(p);
  }
  DataSet set;
  set.assign(std::move(points));
  return set;
}

// Points (x, f(x)) for each x.
template <typename F>
Points sample(const std::vector<double>& xs, F f) {
  Points points;
  for (double x : xs) points.emplace_back(x, f(x));
  return points;
}

}  // namespace sonalyx::test
