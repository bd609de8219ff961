#pragma once

#include <cstddef>
#include <vector>

#include "core/graph/GraphRange.h"
#include "core/math/DataSet.h"

namespace sonalyx::test {

// (x, y) pairs, written {{x, y}, ...}.
using Points = std::vector<std::vector<double>>;

// A set of points with the given x and y, every other field unset.
inline DataSet pointsAt(const Points& xy) {
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
  Points xy;
  for (std::size_t i = 0; i < ys.size(); ++i) xy.push_back({static_cast<double>(i), ys[i]});
  return pointsAt(xy);
}

// Points (x, f(x)) for each x.
template <typename F>
Points sample(const std::vector<double>& xs, F f) {
  Points points;
  for (double x : xs) points.push_back({x, f(x)});
  return points;
}

inline GraphRange rangeOf(double left, double right, double bottom, double top) {
  GraphRange r;
  r.set(top, left, bottom, right);
  return r;
}

}  // namespace sonalyx::test
