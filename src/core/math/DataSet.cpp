#include "core/math/DataSet.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <new>
#include <stdexcept>

namespace sonalyx {

void DataSet::clear() {
  m_points.clear();
  m_extrema.clear();
  m_extremaValid = false;
  m_polar = false;
}

bool DataSet::hasData() const {
  return !m_points.empty() && m_points.front().y != kAbsent;
}

void DataSet::assign(std::vector<DataPoint> points) {
  clear();
  m_points = std::move(points);
}

void DataSet::append(const DataPoint& point) {
  m_points.push_back(point);
  m_extremaValid = false;
}

std::span<DataPoint> DataSet::fillPoints() {
  m_extremaValid = false;
  return m_points;
}

double DataSet::getX(std::size_t i) const {
  return i < m_points.size() ? m_points[i].x : kAbsent;
}

bool DataSet::setY(std::size_t i, double v) {
  if (i >= m_points.size()) return false;
  m_points[i].y = v;
  m_extremaValid = false;  // the turning points follow y
  return true;
}

bool DataSet::setDerivative(std::size_t i, double v) {
  if (i >= m_points.size()) return false;
  m_points[i].derivative = v;
  return true;
}

bool DataSet::setIntegral(std::size_t i, double v) {
  if (i >= m_points.size()) return false;
  m_points[i].integral = v;
  return true;
}

bool DataSet::setTrend(std::size_t i, std::int32_t t) {
  if (i >= m_points.size()) return false;
  m_points[i].trend = t;
  return true;
}

namespace {

void convertToCartesian(DataPoint& p) {
  p.cartX = p.y * std::cos(p.x);
  p.cartY = p.y * std::sin(p.x);
}

}  // namespace

bool DataSet::setXAt(std::size_t i, double v) {
  if (i < m_points.size()) {
    m_points[i].x = v;
    if (m_polar) convertToCartesian(m_points[i]);
    return true;
  }
  if (i > m_points.size()) return false;
  DataPoint p;
  p.x = v;
  p.y = 0.0;
  if (m_polar) convertToCartesian(p);
  append(p);
  return true;
}

bool DataSet::setYAt(std::size_t i, double v) {
  if (i < m_points.size()) {
    setY(i, v);
    if (m_polar) convertToCartesian(m_points[i]);
    return true;
  }
  if (i > m_points.size()) return false;
  DataPoint p;
  p.x = 0.0;
  p.y = v;
  if (m_polar) convertToCartesian(p);
  append(p);
  return true;
}

bool DataSet::makeGrid(double x0, double x1, std::size_t n) {
  // Written so that a NaN bound fails too.
  if (!(x0 <= x1) || n < 2) return false;
  // Built aside, so that a grid too large for memory fails and keeps the old points.
  std::vector<DataPoint> grid;
  try {
    grid.resize(n);
  } catch (const std::length_error&) {
    return false;
  } catch (const std::bad_alloc&) {
    return false;
  }
  // Each x computed from its index, not accumulated: 500 additions of 0.04 would put
  // the middle of -10..10 at -3.6e-14 and the end short of 10. An x within a
  // billionth of a step of 0 is 0, so a grid through 0 has its 0 where it is spoken.
  const double step = (x1 - x0) / static_cast<double>(n - 1);
  const double snap = std::fabs(step) * 1e-9;
  for (std::size_t i = 0; i < n; ++i) {
    const double x = i + 1 == n ? x1 : x0 + static_cast<double>(i) * step;
    grid[i].x = std::fabs(x) <= snap ? 0.0 : x;
  }
  assign(std::move(grid));
  return true;
}

namespace {

std::pair<double, double> extent(const std::vector<DataPoint>& points, double DataPoint::*field) {
  std::pair<double, double> r{kAbsent, -kAbsent};
  for (const auto& p : points) {
    const double v = p.*field;
    if (v < r.first) r.first = v;
    if (v > r.second) r.second = v;
  }
  return r;
}

}  // namespace

std::pair<double, double> DataSet::rangeX(bool useCartesian) const {
  return extent(m_points, useCartesian ? &DataPoint::cartX : &DataPoint::x);
}

std::pair<double, double> DataSet::rangeY(bool useCartesian) const {
  return extent(m_points, useCartesian ? &DataPoint::cartY : &DataPoint::y);
}

std::size_t DataSet::toCartesian() {
  if (!hasData()) return 0;
  for (auto& p : m_points) convertToCartesian(p);
  m_polar = true;
  return m_points.size();
}

namespace {

// A set's values at any x, for the sum and difference: exact where it has a point,
// linear between neighbours, nothing outside its range.
class Interpolant {
 public:
  explicit Interpolant(const std::vector<DataPoint>& points) : m_points(points) {
    for (std::size_t i = 0; i < points.size(); ++i) {
      if (std::isfinite(points[i].x)) m_order.push_back(i);
    }
    // Stable, so that of equal x the first point counts.
    std::stable_sort(m_order.begin(), m_order.end(),
                     [&](std::size_t l, std::size_t r) { return points[l].x < points[r].x; });
  }

  // The value of `field` at x; NaN outside the range or where a value is missing.
  double at(double x, double DataPoint::*field) const {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    if (m_order.empty() || !(x >= xOf(0) && x <= xOf(m_order.size() - 1))) return nan;
    const auto upper = std::lower_bound(m_order.begin(), m_order.end(), x,
                                        [&](std::size_t i, double v) { return m_points[i].x < v; });
    const std::size_t k = static_cast<std::size_t>(upper - m_order.begin());
    const DataPoint& right = m_points[m_order[k]];
    if (right.x == x) return valueOf(right.*field);
    const DataPoint& left = m_points[m_order[k - 1]];
    const double l = valueOf(left.*field);
    const double r = valueOf(right.*field);
    return l + (r - l) * ((x - left.x) / (right.x - left.x));
  }

 private:
  double xOf(std::size_t k) const { return m_points[m_order[k]].x; }
  static double valueOf(double v) { return v == kAbsent ? std::numeric_limits<double>::quiet_NaN() : v; }

  const std::vector<DataPoint>& m_points;
  std::vector<std::size_t> m_order;  // indices of the points with a finite x, by x
};

}  // namespace

void DataSet::combine(DataSet& result, const DataSet& a, const DataSet& b, bool add) {
  if (!a.hasData() || !b.hasData()) return;
  const Interpolant other(b.m_points);
  const double sign = add ? 1.0 : -1.0;
  std::vector<DataPoint> points(a.count());
  for (std::size_t i = 0; i < a.count(); ++i) {
    const DataPoint& p = a.m_points[i];
    DataPoint& r = points[i];
    r.x = p.x;
    const auto combined = [&](double DataPoint::*field) {
      const double own = p.*field;
      if (own == kAbsent) return std::numeric_limits<double>::quiet_NaN();
      return own + sign * other.at(p.x, field);
    };
    r.y = combined(&DataPoint::y);
    // Calculus values exist only where both sets have them.
    const bool calculus = p.derivative != kAbsent && p.integral != kAbsent;
    r.derivative = calculus ? combined(&DataPoint::derivative) : kAbsent;
    r.integral = calculus ? combined(&DataPoint::integral) : kAbsent;
  }
  result.assign(std::move(points));
}

bool DataSet::findExtrema() {
  if (m_extremaValid) return false;
  m_extrema.clear();
  const std::size_t n = m_points.size();
  if (n == 0) return false;
  auto y = [this](std::size_t i) { return m_points[i].y; };
  // An end point is a turning point by its one neighbour: a minimum where the curve
  // rises from it or falls into it, a maximum the other way round.
  if (n >= 2 && y(0) < y(1)) m_extrema.push_back({Extremum::Minimum, 0});
  if (n >= 2 && y(0) > y(1)) m_extrema.push_back({Extremum::Maximum, 0});
  for (std::size_t i = 1; i + 1 < n; ++i) {
    const double a = y(i - 1), b = y(i), c = y(i + 1);
    if (a < b && b > c) {
      m_extrema.push_back({Extremum::Maximum, i});
    } else if (a > b && b < c) {
      m_extrema.push_back({Extremum::Minimum, i});
    }
  }
  if (n >= 2 && y(n - 1) < y(n - 2)) m_extrema.push_back({Extremum::Minimum, n - 1});
  if (n >= 2 && y(n - 1) > y(n - 2)) m_extrema.push_back({Extremum::Maximum, n - 1});
  m_extremaValid = true;
  return true;
}

}  // namespace sonalyx
