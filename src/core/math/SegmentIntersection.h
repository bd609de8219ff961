#pragma once

#include <optional>

#include "core/math/PlanePoint.h"

namespace sonalyx {

// A closed segment of the plane, ends included.
struct Segment {
  PlanePoint from;
  PlanePoint to;
};

// Where two closed segments meet, if they do:
// - crossing or touching (an end on the other segment, two ends in common): the one
//   common point;
// - collinear and overlapping: the first point of `a`, walking from a.from to a.to,
//   that lies on `b` (a search walking along `a` meets the overlap there first);
// - parallel apart, collinear without overlap: nothing;
// - a segment of zero length is a point and meets what passes through it.
// An end that misses the other segment by a rounding error (a parameter within 1e-12
// of the segment's ends) still touches it. Collinearity is decided exactly, so only
// truly collinear segments overlap; a segment with a coordinate that is not finite
// meets nothing.
std::optional<PlanePoint> intersectSegments(const Segment& a, const Segment& b);

}  // namespace sonalyx
