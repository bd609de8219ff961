#include "core/math/SegmentIntersection.h"

#include <algorithm>
#include <cmath>

namespace sonalyx {

namespace {

struct Vec {
  double x;
  double y;
};

Vec minus(PlanePoint a, PlanePoint b) {
  return {a.x - b.x, a.y - b.y};
}
double cross(Vec a, Vec b) {
  return a.x * b.y - a.y * b.x;
}
double dot(Vec a, Vec b) {
  return a.x * b.x + a.y * b.y;
}
// An end touching the other segment can come out a rounding error beyond it.
constexpr double kEndSlack = 1e-12;

bool inClosedUnit(double t) {
  return t >= -kEndSlack && t <= 1.0 + kEndSlack;
}

bool isPoint(Vec v) {
  return v.x == 0.0 && v.y == 0.0;
}

bool isFinite(const Segment& s) {
  return std::isfinite(s.from.x) && std::isfinite(s.from.y) && std::isfinite(s.to.x) && std::isfinite(s.to.y);
}

// The point at parameter t along s; exact at both ends.
PlanePoint along(const Segment& s, double t) {
  if (t == 0.0) return s.from;
  if (t == 1.0) return s.to;
  return {std::lerp(s.from.x, s.to.x, t), std::lerp(s.from.y, s.to.y, t)};
}

bool liesOn(PlanePoint p, const Segment& s) {
  const Vec d = minus(s.to, s.from);
  const Vec w = minus(p, s.from);
  if (cross(w, d) != 0.0) return false;
  const double t = dot(w, d);
  return t >= 0.0 && t <= dot(d, d);
}

std::optional<PlanePoint> checked(PlanePoint p) {
  if (!std::isfinite(p.x) || !std::isfinite(p.y)) return std::nullopt;
  return p;
}

}  // namespace

std::optional<PlanePoint> intersectSegments(const Segment& a, const Segment& b) {
  if (!isFinite(a) || !isFinite(b)) return std::nullopt;
  const Vec r = minus(a.to, a.from);
  const Vec s = minus(b.to, b.from);
  const Vec qp = minus(b.from, a.from);

  if (isPoint(r) && isPoint(s)) {
    if (a.from == b.from) return a.from;
    return std::nullopt;
  }
  if (isPoint(r)) return liesOn(a.from, b) ? std::optional<PlanePoint>(a.from) : std::nullopt;
  if (isPoint(s)) return liesOn(b.from, a) ? std::optional<PlanePoint>(b.from) : std::nullopt;

  const double denominator = cross(r, s);
  if (denominator != 0.0 && std::isfinite(denominator)) {
    // Two curves that share a sample meet exactly there, whatever the rounding below.
    if (a.from == b.from || a.from == b.to) return a.from;
    if (a.to == b.from || a.to == b.to) return a.to;
    const double t = cross(qp, s) / denominator;
    const double u = cross(qp, r) / denominator;
    if (!(inClosedUnit(t) && inClosedUnit(u))) return std::nullopt;
    return checked(along(a, std::clamp(t, 0.0, 1.0)));
  }
  if (denominator != 0.0) return std::nullopt;  // overflowed: coordinates too large to intersect

  // Parallel: they meet only when collinear, and then where b's span covers a's.
  if (cross(qp, r) != 0.0) return std::nullopt;
  const double rr = dot(r, r);
  const double t0 = dot(qp, r) / rr;
  const double t1 = dot(minus(b.to, a.from), r) / rr;
  const double lo = std::max(0.0, std::min(t0, t1));
  const double hi = std::min(1.0, std::max(t0, t1));
  if (!(lo <= hi)) return std::nullopt;
  return checked(along(a, lo));
}

}  // namespace sonalyx
