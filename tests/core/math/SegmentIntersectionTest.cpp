#include "core/math/SegmentIntersection.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "support/NumericCompare.h"

namespace sonalyx {
namespace {

using test::agreesTo;

TEST(SegmentIntersection, FindsWhereClosedSegmentsMeet) {
  const struct {
    const char* what;
    Segment a;
    Segment b;
    std::optional<PlanePoint> expected;
  } cases[] = {
      {"crossing the x axis", {{1, 3}, {2, -1}}, {{1, 0}, {2, 0}}, PlanePoint{1.75, 0}},
      {"an end on the other's middle", {{0, 0}, {2, 2}}, {{2, 0}, {2, 4}}, PlanePoint{2, 2}},
      {"one end in common", {{0, 0}, {1, 1}}, {{1, 1}, {3, 0}}, PlanePoint{1, 1}},
      {"missing beyond an end", {{0, 0}, {1, 1}}, {{3, 0}, {0, 3.1}}, std::nullopt},
      {"parallel apart", {{0, 0}, {4, 0}}, {{0, 1}, {4, 1}}, std::nullopt},
      {"collinear apart", {{0, 0}, {1, 0}}, {{2, 0}, {3, 0}}, std::nullopt},
      {"collinear touching end to end", {{0, 0}, {1, 0}}, {{1, 0}, {3, 0}}, PlanePoint{1, 0}},
      {"collinear overlap starting inside a", {{0, 0}, {4, 0}}, {{2, 0}, {6, 0}}, PlanePoint{2, 0}},
      {"collinear overlap covering a's start", {{0, 0}, {4, 0}}, {{-1, 0}, {2, 0}}, PlanePoint{0, 0}},
      {"collinear overlap, a walking backwards", {{4, 0}, {0, 0}}, {{-1, 0}, {2, 0}}, PlanePoint{2, 0}},
      {"a point on the other", {{1, 1}, {1, 1}}, {{0, 0}, {2, 2}}, PlanePoint{1, 1}},
      {"a point off the other", {{1, 2}, {1, 2}}, {{0, 0}, {2, 2}}, std::nullopt},
      {"the other a point on this", {{0, 0}, {2, 2}}, {{0.5, 0.5}, {0.5, 0.5}}, PlanePoint{0.5, 0.5}},
      {"two equal points", {{1, 1}, {1, 1}}, {{1, 1}, {1, 1}}, PlanePoint{1, 1}},
  };
  for (const auto& c : cases) {
    const auto meeting = intersectSegments(c.a, c.b);
    ASSERT_EQ(meeting.has_value(), c.expected.has_value()) << c.what;
    if (!c.expected) continue;
    EXPECT_TRUE(agreesTo(meeting->x, c.expected->x, 15, 1e-15)) << c.what;
    EXPECT_TRUE(agreesTo(meeting->y, c.expected->y, 15, 1e-15)) << c.what;
  }
}

TEST(SegmentIntersection, TwoSampledCurvesMeetExactlyAtASharedSample) {
  // y = x*x and y = x sampled at 0.96 and 1: they share the sample (1, 1).
  const Segment square{{0.96, 0.96 * 0.96}, {1.0, 1.0}};
  const Segment line{{0.96, 0.96}, {1.0, 1.0}};
  const auto meeting = intersectSegments(square, line);
  ASSERT_TRUE(meeting.has_value());
  EXPECT_EQ(*meeting, (PlanePoint{1.0, 1.0}));
}

TEST(SegmentIntersection, SegmentsThatCannotBeComputedMeetNothing) {
  const double nan = std::nan("");
  const double inf = std::numeric_limits<double>::infinity();
  const double big = std::numeric_limits<double>::max();
  EXPECT_FALSE(intersectSegments({{0, nan}, {1, 1}}, {{0, 1}, {1, 0}}));
  EXPECT_FALSE(intersectSegments({{0, 0}, {1, 1}}, {{0, inf}, {1, 0}}));
  EXPECT_FALSE(intersectSegments({{0, big}, {1, -big}}, {{0, 0}, {1, 0}}));
}

}  // namespace
}  // namespace sonalyx
