#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "core/math/DataSet.h"
#include "core/math/Extremum.h"

namespace sonalyx {

// Crossings this close to a point's x belong to that point.
inline constexpr double kSameX = 1e-11;

// A point of a set found as a feature of its curve.
struct FeaturePoint {
  std::int32_t index = 0;
  double x = 0.0;
  double y = 0.0;
};

struct TurningPoint {
  Extremum::Kind kind = Extremum::Minimum;
  FeaturePoint point;
};

// What a user can step to on one curve: its turning points (as the next-maximum and
// next-minimum commands see them) and the x-axis crossings that the next-crossing
// command reaches when stepped from the first point.
struct CurveFeatures {
  std::vector<TurningPoint> turningPoints;
  std::vector<FeaturePoint> axisCrossings;
};

// Cursor convention of every search below: the cursor is a point index, -1 when no
// point is selected. Searches work on the stored x and y of the points; a point
// whose x or y is absent or not finite joins no segment.

// The index to report for a crossing at x = crossingX on the segment from point
// `first` to point `second`: a point within kSameX of the crossing, tested in that
// order, else the nearer of the two, `second` on a tie.
std::int32_t nearestIndex(double crossingX, const DataSet& set, std::int32_t first, std::int32_t second);

// The first turning point of `kind` beyond the cursor (with no cursor, the first
// one, which may be point 0); builds the set's turning-point list first if the set
// changed since it was built.
std::optional<std::int32_t> nextExtremum(DataSet& set, std::int32_t cursor, Extremum::Kind kind);

// The next crossing of the x axis beyond the cursor, the segment that starts at the
// cursor included: the index of the point nearest the crossing, which must lie
// beyond the cursor (with no cursor, any point). Stepping from a crossing found
// therefore always moves on.
std::optional<std::int32_t> nextAxisCrossing(const DataSet& set, std::int32_t cursor);

// The mirror image: segments from the cursor towards point 0, the index found below
// the cursor; a crossing reports the same point as the forward search. Nothing with
// no cursor or with the cursor past the last point.
std::optional<std::int32_t> previousAxisCrossing(const DataSet& set, std::int32_t cursor);

// The next crossing of two curves beyond the cursor, in the same way: each segment
// of `first` against the segments of `second` that span the same x, so the two
// sets may have different points. The index is one of `first`'s.
std::optional<std::int32_t> nextCurveCrossing(const DataSet& first, const DataSet& second,
                                              std::int32_t cursor);

// The turning points and the stepped x-axis crossings of a set, in index order.
CurveFeatures listCurveFeatures(DataSet& set);

}  // namespace sonalyx
