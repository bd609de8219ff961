#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

#include "core/math/DataPoint.h"
#include "core/math/Extremum.h"

namespace sonalyx {

// An ordered list of points and the turning-point list built from it. The program
// keeps four: data set 1, data set 2, their sum and their difference.
class DataSet {
 public:
  enum Slot : int { Data1 = 0, Data2 = 1, Sum = 2, Difference = 3 };

  void clear();
  // At least one point, and the first point's y is not the absent marker.
  bool hasData() const;
  std::size_t count() const { return m_points.size(); }

  const std::vector<DataPoint>& points() const { return m_points; }
  const DataPoint& at(std::size_t i) const { return m_points.at(i); }
  // Replaces every point; the turning points must be found again.
  void assign(std::vector<DataPoint> points);
  void append(const DataPoint& point);
  // The points to fill their values in place, as the sampler does; the turning
  // points are due for rebuilding afterwards.
  std::span<DataPoint> fillPoints();

  double getX(std::size_t i) const;  // kAbsent past the end
  // The setters return false and change nothing past the end. Any change of a y or
  // of the point count makes the turning points due for rebuilding.
  bool setY(std::size_t i, double v);
  bool setDerivative(std::size_t i, double v);
  bool setIntegral(std::size_t i, double v);
  bool setTrend(std::size_t i, std::int32_t t);
  // Table editing: i == count() appends a point whose other coordinate is 0.
  bool setXAt(std::size_t i, double v);
  bool setYAt(std::size_t i, double v);

  // n points from x0 to x1, point i at x0 + i * (x1 - x0) / (n - 1) and the last
  // exactly at x1, with an x within 1e-9 of a step of 0 made 0. False, with the set
  // unchanged, for x0 > x1, n < 2 or a grid that does not fit in memory.
  bool makeGrid(double x0, double x1, std::size_t n);

  // (minimum, maximum) of x or cartX, and of y or cartY; an empty set gives
  // (largest double, minus largest double).
  std::pair<double, double> rangeX(bool useCartesian) const;
  std::pair<double, double> rangeY(bool useCartesian) const;

  // Polar to Cartesian for every point of a set with data; returns how many. The
  // set is polar from then on (x the angle, y the radius), until it is refilled.
  std::size_t toCartesian();
  // Whether the set holds polar points: drawn, played and stepped by cartX, cartY.
  bool isPolar() const { return m_polar; }

  // result = a + b (add) or a - b at a's own x values: b's value at the same x, or
  // linearly interpolated between b's neighbours there; where x lies outside b's x
  // range (or a value is missing) the point is a gap, its y NaN. Derivative and
  // integral are combined the same way. Leaves result untouched when either set
  // lacks data.
  static void combine(DataSet& result, const DataSet& a, const DataSet& b, bool add);

  // Builds the turning-point list once per change of the points' y (a fill, an
  // append or an edit); false when there are no points or the list is up to date.
  bool findExtrema();
  bool extremaValid() const { return m_extremaValid; }
  const std::vector<Extremum>& extrema() const { return m_extrema; }

 private:
  std::vector<DataPoint> m_points;
  std::vector<Extremum> m_extrema;
  bool m_extremaValid = false;
  bool m_polar = false;
};

}  // namespace sonalyx
