#include "core/graph/GraphScene.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <vector>

#include "support/CurveData.h"

namespace sonalyx {
namespace {

using graph_colour::kBlack;
using graph_colour::kBlue;
using graph_colour::kCyan;
using graph_colour::kRed;
using graph_colour::kYellow;
using test::curve;
using test::pointsAt;
using test::rangeOf;

// x from 0 to 10 and y from 0 to 10 on a 100 x 100 rectangle: one world unit is
// ten device units, y upwards.
GraphStyle tenByTen() {
  GraphStyle style;
  style.settingsRange = rangeOf(0, 10, 0, 10);
  return style;
}

const PlotRect kRect{0, 0, 100, 100};

TEST(GraphScene, ColoursAndOrderFollowTheSetPlayed) {
  std::array<DataSet, 4> slots;
  slots[0] = pointsAt({{1, 1}, {2, 2}});
  slots[1] = pointsAt({{1, 5}, {2, 6}});
  slots[2] = pointsAt({{1, 6}});
  slots[3] = pointsAt({{1, 4}});
  const struct {
    std::uint32_t setType;
    std::vector<Rgb> lines;  // one polyline a set here
    std::vector<Rgb> dots;
  } cases[] = {
      {0, {kBlack, kYellow}, {kRed, kYellow}},
      {1, {kYellow, kBlack}, {kYellow, kRed}},
      {2, {}, {kCyan}},
      {3, {}, {kBlue}},
      {7, {kBlack, kBlack}, {kRed, kRed}},
  };
  for (const auto& c : cases) {
    GraphStyle style = tenByTen();
    style.setType = c.setType;
    style.showLine = true;
    const GraphScene scene = buildGraphScene(slots, style, kRect, -1);
    ASSERT_FALSE(scene.empty) << c.setType;
    std::vector<Rgb> lines;
    std::vector<Rgb> dots;
    for (const auto& line : scene.lines) lines.push_back(line.colour);
    for (const auto& dot : scene.dots) dots.push_back(dot.colour);
    EXPECT_EQ(lines, c.lines) << c.setType;
    EXPECT_EQ(dots, c.dots) << c.setType;
  }
}

TEST(GraphScene, DrawsWhatLiesInsideAndClipsWhatLeaves) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  DataPoint polarPoint;  // radius 5 at a right angle: (0, 5) on the plane
  polarPoint.x = std::acos(-1.0) / 2;
  polarPoint.y = 5;
  const struct {
    const char* what;
    DataSet set;
    std::uint32_t plotType;
    std::vector<std::vector<DevicePoint>> lines;
    std::vector<DevicePoint> dots;
  } cases[] = {
      {"inside, the edge point only as a line end",
       pointsAt({{1, 1}, {5, 5}, {10, 5}}),
       0,
       {{{10, 90}, {50, 50}, {100, 50}}},
       {{10, 90}, {50, 50}}},
      {"a gap splits the line",
       pointsAt({{1, 1}, {2, 2}, {3, nan}, {4, 4}, {5, 5}}),
       0,
       {{{10, 90}, {20, 80}}, {{40, 60}, {50, 50}}},
       {{10, 90}, {20, 80}, {40, 60}, {50, 50}}},
      {"far outside is clipped two units beyond the frame",
       pointsAt({{5, 5}, {5, 1e300}}),
       0,
       {{{50, 50}, {50, -2}}},
       {{50, 50}}},
      {"a line through the plot from outside to outside",
       pointsAt({{-10, 5}, {20, 5}}),
       0,
       {{{-2, 50}, {102, 50}}},
       {}},
      {"repeated positions are drawn once",
       pointsAt({{5, 5}, {5.01, 5.01}, {5, 5}}),
       0,
       {{{50, 50}}},
       {{50, 50}}},
  };
  for (const auto& c : cases) {
    std::array<DataSet, 4> slots;
    slots[0] = c.set;
    GraphStyle style = tenByTen();
    style.showLine = true;
    style.plotType = c.plotType;
    const GraphScene scene = buildGraphScene(slots, style, kRect, -1);
    std::vector<std::vector<DevicePoint>> lines;
    for (const auto& line : scene.lines) lines.push_back(line.points);
    EXPECT_EQ(lines, c.lines) << c.what;
    EXPECT_EQ(scene.dots.empty() ? std::vector<DevicePoint>{} : scene.dots[0].centres, c.dots) << c.what;
  }

  // A polar set is drawn at its plane pair; the derivative plot at (x, derivative).
  std::array<DataSet, 4> slots;
  slots[0].assign({polarPoint});
  slots[0].toCartesian();
  GraphStyle style = tenByTen();
  style.settingsRange = rangeOf(-10, 10, -10, 10);
  GraphScene scene = buildGraphScene(slots, style, kRect, 0);
  ASSERT_EQ(scene.dots.size(), 1u);
  EXPECT_EQ(scene.dots[0].centres, std::vector<DevicePoint>{DevicePoint({50, 25})});
  EXPECT_EQ(scene.cursor, DevicePoint({50, 25}));
  slots[0] = pointsAt({{2, 9}});
  DataPoint sloped = slots[0].at(0);
  sloped.derivative = 3;
  slots[0].assign({sloped});
  style = tenByTen();
  style.plotType = 1;
  scene = buildGraphScene(slots, style, kRect, -1);
  ASSERT_EQ(scene.dots.size(), 1u);
  EXPECT_EQ(scene.dots[0].centres, std::vector<DevicePoint>{DevicePoint({20, 70})});
}

TEST(GraphScene, FrameAxesLabelsAndCursor) {
  std::array<DataSet, 4> slots;
  slots[0] = pointsAt({{-2, 0}, {0, -4}, {2, 0}});
  GraphStyle style;
  style.settingsRange = rangeOf(-4, 4, -50000, 50000);
  style.frameType = 1;
  const PlotRect rect{0, 0, 80, 80};
  GraphScene scene = buildGraphScene(slots, style, rect, 1);
  ASSERT_FALSE(scene.empty);
  EXPECT_EQ(scene.axes, (std::vector<DeviceLine>{{{0, 40}, {80, 40}}, {{40, 0}, {40, 80}}}));
  EXPECT_FALSE(scene.marks.empty());
  ASSERT_FALSE(scene.xLabels.empty());
  EXPECT_EQ(scene.xLabels[0].anchor, DevicePoint({40, 80}));
  EXPECT_EQ(scene.xLabels[0].text, "0.00");
  // Up to 50000 the y labels are in ten thousands.
  EXPECT_DOUBLE_EQ(scene.yLabelFactor, 1e-4);
  ASSERT_GE(scene.yLabels.size(), 2u);
  EXPECT_EQ(scene.yLabels[1].text, "1.25");
  EXPECT_EQ(scene.cursor, DevicePoint({40, 40}));

  style.showXAxis = false;
  style.showXLabels = false;
  style.showYLabels = false;
  scene = buildGraphScene(slots, style, rect, 3);
  EXPECT_EQ(scene.axes.size(), 1u);
  EXPECT_TRUE(scene.xLabels.empty() && scene.yLabels.empty());
  EXPECT_FALSE(scene.cursor) << "past the end";

  slots[0].clear();
  EXPECT_TRUE(buildGraphScene(slots, style, rect, 0).empty);
}

TEST(GraphScene, AHundredThousandPointsHoldNoMoreThanTheRectangleShows) {
  std::vector<double> ys;
  for (int i = 0; i <= 100000; ++i) ys.push_back(std::sin(i / 5000.0) * 4);
  std::array<DataSet, 4> slots;
  slots[0] = curve(ys);
  GraphStyle style;
  style.settingsRange = rangeOf(0, 100000, -5, 5);
  style.showLine = true;
  const PlotRect rect{0, 0, 600, 400};
  const GraphScene scene = buildGraphScene(slots, style, rect, -1);
  ASSERT_EQ(scene.dots.size(), 1u);
  EXPECT_LT(scene.dots[0].centres.size(), 4000u);
  std::size_t linePoints = 0;
  for (const auto& line : scene.lines) linePoints += line.points.size();
  EXPECT_LT(linePoints, 4000u);
}

TEST(GraphScene, AClickPicksTheNearerPointByX) {
  const DataSet set = pointsAt({{0, 0}, {1, 10}, {3, 30}});
  const struct {
    double x;
    std::size_t expected;
  } cases[] = {{-5, 0}, {0.4, 0}, {0.5, 1}, {1.9, 1}, {2, 2}, {99, 2}};
  for (const auto& c : cases) EXPECT_EQ(pointNearestX(set, c.x), c.expected) << c.x;
  EXPECT_FALSE(pointNearestX(DataSet{}, 1));
}

}  // namespace
}  // namespace sonalyx
