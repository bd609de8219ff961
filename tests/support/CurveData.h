#pragma once

#include <cstddef>
#include <vector>

#include "core/graph/GraphRange.h"
#include "core/math/DataSet.h"

namespace sonalyx::test {

// A set of points with the given x and y, every other field unset.
inline DataSet pointsAt(const std::vector<std::vector<double>>& xy) {
  std::vector<DataPoint> points;
  for (const auto& p : xy) {
    DataPoint d;
    d.x = p.at(0);
    d.y = p.at(1);
    points.push_back(d);
  }
  DataSet set;
  set.assign(std::move(points));
  return set;
}

// A curve through the given y values at x = 0, 1, 2, ...
inline DataSet curve(const std::vector<double>& ys) {
  std::vector<std::vector<double>> xy;
  for (std::size_t i = 0; i < ys.size(); ++i) xy.push_back({static_cast<double>(i), ys[i]});
  return pointsAt(xy);
}

inline GraphRange rangeOf(double left, double right, double bottom, double top) {
  GraphRange r;
  r.set(top, left, bottom, right);
  return r;
}

}  // namespace sonalyx::test
