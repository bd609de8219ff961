#include "core/graph/GraphTicks.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "core/graph/GraphMapping.h"
#include "support/CurveData.h"
#include "support/NumericCompare.h"

namespace sonalyx {
namespace {

using test::agreesTo;
using test::rangeOf;

void expectTicks(const std::vector<Tick>& actual, const std::vector<Tick>& expected, const char* what) {
  ASSERT_EQ(actual.size(), expected.size()) << what;
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(actual[i].position, expected[i].position) << what << ", tick " << i;
    EXPECT_TRUE(agreesTo(actual[i].value, expected[i].value, 12, 1e-12)) << what << ", tick " << i;
  }
}

TEST(GraphTicks, XTicksFollowTheAxisOrTheLeftEdge) {
  const struct {
    const char* what;
    GraphRange range;
    PlotRect rect;
    std::vector<Tick> expected;
  } cases[] = {
      // The y axis a quarter across: -1 sits on the left edge and is kept, 3 on the right.
      {"-1 to 3, anchored on the y axis",
       rangeOf(-1, 3, -1, 1),
       {0, 0, 800, 400},
       {{200, 0}, {100, -0.5}, {0, -1}, {300, 0.5}, {400, 1}, {500, 1.5}, {600, 2}, {700, 2.5}, {800, 3}}},
      // Seven steps at most on a side, so the right edge goes unmarked.
      {"0 to 8, the axis on the left edge",
       rangeOf(0, 8, -1, 1),
       {0, 0, 800, 400},
       {{0, 0}, {100, 1}, {200, 2}, {300, 3}, {400, 4}, {500, 5}, {600, 6}, {700, 7}}},
      // Spacing 805 / 8 = 100 truncated, so the ninth tick falls short of the edge.
      {"1 to 5, no axis: nine ticks from the left edge",
       rangeOf(1, 5, -1, 1),
       {0, 0, 805, 400},
       {{0, 1}, {100, 1.5}, {200, 2}, {300, 2.5}, {400, 3}, {500, 3.5}, {600, 4}, {700, 4.5}, {800, 5}}},
  };
  for (const auto& c : cases) {
    expectTicks(xTicks(c.range, c.rect, yAxisPosition(c.range, c.rect)), c.expected, c.what);
  }
}

TEST(GraphTicks, YTicksRunUpPositiveAndCarryTheLabelFactor) {
  const struct {
    const char* what;
    GraphRange range;
    PlotRect rect;
    double factor;
    std::vector<Tick> expected;
  } cases[] = {
      // The x axis three quarters down: six steps fit above it, two below.
      {"-10 to 30, anchored on the x axis",
       rangeOf(-1, 1, -10, 30),
       {0, 0, 800, 400},
       1.0,
       {{300, 0}, {250, 5}, {200, 10}, {150, 15}, {100, 20}, {50, 25}, {0, 30}, {350, -5}, {400, -10}}},
      {"1 to 9, no axis: nine ticks from the top edge down, factor 0.1",
       rangeOf(-1, 1, 1, 9),
       {0, 20, 800, 400},
       0.1,
       {{20, .9}, {70, .8}, {120, .7}, {170, .6}, {220, .5}, {270, .4}, {320, .3}, {370, .2}, {420, .1}}},
  };
  for (const auto& c : cases) {
    expectTicks(yTicks(c.range, c.rect, xAxisPosition(c.range, c.rect), c.factor), c.expected, c.what);
  }
}

TEST(GraphTicks, MarksDependOnTheFrameType) {
  const PlotRect rect{10, 20, 100, 200};  // right 110, bottom 220
  const std::vector<Tick> ticks{{40, 1.0}, {70, 2.0}};
  const struct {
    std::uint32_t frameType;
    std::vector<DeviceLine> x;
    std::vector<DeviceLine> y;
  } cases[] = {
      {FrameNone, {}, {}},
      {FrameTicks,
       {{{40, 220}, {40, 210}}, {{70, 220}, {70, 210}}},
       {{{10, 40}, {20, 40}}, {{10, 70}, {20, 70}}}},
      {FrameGrid,
       {{{40, 20}, {40, 220}}, {{70, 20}, {70, 220}}},
       {{{10, 40}, {110, 40}}, {{10, 70}, {110, 70}}}},
      {7, {}, {}},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(xTickMarks(ticks, rect, c.frameType), c.x) << "frame type " << c.frameType;
    EXPECT_EQ(yTickMarks(ticks, rect, c.frameType), c.y) << "frame type " << c.frameType;
  }
}

TEST(GraphTicks, YLabelFactorBringsLabelsToAReadableSize) {
  const struct {
    double yMin;
    double yMax;
    double expected;
  } cases[] = {
      {-10, 10, 1.0},        // L = 1 is not above 1
      {0, 50000, 1e-4},      // L 4.70, n 4
      {-0.05, 0.05, 10.0},   // L -1.30, n trunc(-1.80) = -1
      {0, 10.5, 1.0},        // L 1.02, n trunc(0.52) = 0
      {-200, 3, 0.1},        // |log 200| wins over |log 3|
      {-1e-12, 5e-12, 1.0},  // both bounds count as 0
      {1e-11, 0, 1e11},      // 1e-11 itself is not below the zero limit
  };
  for (const auto& c : cases) {
    EXPECT_TRUE(agreesTo(yLabelFactor(c.yMin, c.yMax), c.expected, 14)) << c.yMin << ", " << c.yMax;
  }
}

TEST(GraphTicks, TheYAxisMultiplierIsAWholePowerOfTen) {
  // 1 / 1e-5 comes back as 99999.99999999999; small values are read times 0.1.
  const double cases[][2] = {{1.0, 1}, {1e-5, 100000}, {10.0, 0.1}, {1e11, 1e-11}};
  for (const auto& c : cases) EXPECT_TRUE(agreesTo(yAxisMultiplier(c[0]), c[1], 17)) << c[0];
}

TEST(GraphTicks, LabelsHaveTwoDecimals) {
  const struct {
    double value;
    const char* expected;
  } cases[] = {{50000 * 1e-4, "5.00"}, {-0.5, "-0.50"}, {-1e-17, "0.00"}};
  for (const auto& c : cases) EXPECT_EQ(tickLabel(c.value), c.expected) << c.value;
}

}  // namespace
}  // namespace sonalyx
