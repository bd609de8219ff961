#include "core/math/DataSet.h"

#include <cmath>
#include <new>
#include <stdexcept>

namespace sonalyx {

void DataSet::clear() {
  m_points.clear();
  m_extrema.clear();
  m_extremaValid = false;
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

bool DataSet::setXAt(std::size_t i, double v) {
  if (i < m_points.size()) {
    m_points[i].x = v;
    return true;
  }
  if (i > m_points.size()) return false;
  DataPoint p;
  p.x = v;
  p.y = 0.0;
  append(p);
  return true;
}

bool DataSet::setYAt(std::size_t i, double v) {
  if (i < m_points.size()) return setY(i, v);
  if (i > m_points.size()) return false;
  DataPoint p;
  p.x = 0.0;
  p.y = v;
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
  const double step = (x1 - x0) / static_cast<double>(n - 1);
  double x = x0;
  for (auto& p : grid) {
    p.x = x;
    x += step;  // accumulated on purpose: the last x may miss x1 by rounding
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
  for (auto& p : m_points) {
    p.cartX = p.y * std::cos(p.x);
    p.cartY = p.y * std::sin(p.x);
  }
  return m_points.size();
}

void DataSet::combine(DataSet& result, const DataSet& a, const DataSet& b, bool add) {
  if (!a.hasData() || !b.hasData() || a.count() != b.count()) return;
  const auto [minX, maxX] = a.rangeX(false);
  if (!result.makeGrid(minX, maxX, a.count())) return;
  const double sign = add ? 1.0 : -1.0;
  for (std::size_t i = 0; i < a.count(); ++i) {
    const DataPoint& p = a.m_points[i];
    const DataPoint& q = b.m_points[i];
    DataPoint& r = result.m_points[i];
    r.y = p.y + sign * q.y;
    r.derivative = p.derivative + sign * q.derivative;
    r.integral = p.integral + sign * q.integral;
  }
}

bool DataSet::findExtrema() {
  if (m_extremaValid) return false;
  m_extrema.clear();
  const std::size_t n = m_points.size();
  if (n == 0) return false;
  auto y = [this](std::size_t i) { return m_points[i].y; };
  // End points only ever count as minima: the first when the curve rises from it,
  // the last when the curve falls into it.
  if (n >= 2 && y(0) < y(1)) m_extrema.push_back({Extremum::Minimum, 0});
  for (std::size_t i = 1; i + 1 < n; ++i) {
    const double a = y(i - 1), b = y(i), c = y(i + 1);
    if (a < b && b > c) {
      m_extrema.push_back({Extremum::Maximum, i});
    } else if (a > b && b < c) {
      m_extrema.push_back({Extremum::Minimum, i});
    }
  }
  if (n >= 2 && y(n - 1) < y(n - 2)) m_extrema.push_back({Extremum::Minimum, n - 1});
  m_extremaValid = true;
  return true;
}

}  // namespace sonalyx
