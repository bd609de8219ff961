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
      // -0.3 is a rounding error off the first segment: it still touches.
      {"an end on the other by rounding", {{0, 0}, {3, -0.9}}, {{1, -0.3}, {0.6, 1.3}}, PlanePoint{1, -0.3}},
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
  // Two curves sampled at 0.42 and 0.46 share the sample (0.46, 0.81); computed from
  // the crossing parameter the meeting would miss it in the last digits.
  const double x1 = 0.42 + 0.04;
  const auto meeting = intersectSegments({{0.42, -2.46}, {x1, 0.81}}, {{0.42, 0.34}, {x1, 0.81}});
  ASSERT_TRUE(meeting.has_value());
  EXPECT_TRUE(agreesTo(meeting->x, x1, 17));
  EXPECT_TRUE(agreesTo(meeting->y, 0.81, 17));
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
