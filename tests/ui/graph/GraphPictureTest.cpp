#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <functional>
#include <string>

#include "core/graph/GraphMapping.h"
#include "support/CurveData.h"
#include "ui/UiTestSupport.h"
#include "ui/graph/CGraphWnd.h"
#include "ui/graph/GraphPainter.h"
#include "ui/pages/CDataPage.h"

namespace sonalyx::ui {
namespace {

using test::pointsAt;
using test::rangeOf;

QImage paint(const std::array<DataSet, 4>& sets, std::uint32_t setType, std::int32_t cursor) {
  GraphStyle style;
  style.setType = setType;
  style.settingsRange = rangeOf(-10, 10, -10, 10);
  const GraphScene scene = buildGraphScene(sets, style, PlotRect{0, 0, 200, 200}, cursor);
  QImage image(200, 200, QImage::Format_RGB32);
  image.fill(Qt::gray);
  QPainter painter(&image);
  paintGraphScene(painter, scene, GraphLayers::All);
  return image;
}

bool anyPixel(const QImage& image, QRect area, QRgb colour) {
  for (int y = area.top(); y <= area.bottom(); ++y)
    for (int x = area.left(); x <= area.right(); ++x)
      if ((image.pixel(x, y) & 0xffffff) == (colour & 0xffffff)) return true;
  return false;
}

// One world unit is ten pixels, the origin at (100, 100): data set 1 has a point at
// (-5, 5), drawn at (50, 50); data set 2 one at (5, 5), at (150, 50).
TEST(GraphPicture, PixelsOfFrameAxesPointsAndCursor) {
  std::array<DataSet, 4> sets;
  sets[0] = pointsAt({{-5, 5}, {5, -5}});
  sets[1] = pointsAt({{5, 5}, {-5, -5}});
  sets[2] = pointsAt({{-5, 5}});
  sets[3] = pointsAt({{-5, 5}});
  const QRgb white = qRgb(255, 255, 255), black = qRgb(0, 0, 0), red = qRgb(255, 0, 0),
             yellow = qRgb(255, 255, 0), cyan = qRgb(0, 255, 255), blue = qRgb(0, 0, 255);
  const struct {
    const char* what;
    std::uint32_t setType;
    std::int32_t cursor;
    QPoint at;
    QRgb colour;
  } cases[] = {
      {"the frame's corner", 0, -1, {0, 0}, black},
      {"the x-axis", 0, -1, {30, 100}, black},
      {"the y-axis", 0, -1, {100, 170}, black},
      {"white between", 0, -1, {30, 170}, white},
      {"a point of the set played", 0, -1, {50, 50}, red},
      {"the edge of that point, its own colour", 0, -1, {52, 50}, red},
      {"a point of the set beside it", 0, -1, {150, 50}, yellow},
      {"data set 2 played", 1, -1, {150, 50}, red},
      {"data set 1 beside it", 1, -1, {50, 50}, yellow},
      {"the sum", 2, -1, {50, 50}, cyan},
      {"the difference", 3, -1, {50, 50}, blue},
      {"the cursor does not hide its point", 0, 0, {50, 50}, red},
  };
  for (const auto& c : cases) {
    const QImage image = paint(sets, c.setType, c.cursor);
    EXPECT_EQ(image.pixel(c.at) & 0xffffff, c.colour & 0xffffff) << c.what;
  }
  // The cursor: a dotted blue ring round its point and a dotted line down the plot.
  const QImage marked = paint(sets, 0, 0);
  const QImage unmarked = paint(sets, 0, -1);
  EXPECT_TRUE(anyPixel(marked, QRect(57, 44, 3, 12), blue)) << "the ring's right side";
  EXPECT_TRUE(anyPixel(marked, QRect(49, 2, 3, 30), blue)) << "the line above";
  EXPECT_FALSE(anyPixel(unmarked, QRect(40, 0, 20, 200), blue));
  // With no data nothing but white.
  const QImage empty = paint(std::array<DataSet, 4>{}, 0, -1);
  EXPECT_FALSE(anyPixel(empty, empty.rect(), black));
  EXPECT_EQ(empty.pixel(100, 100) & 0xffffff, white & 0xffffff);
}

// The graph window of the program shows what F4 sampled: the parabola's lowest
// point where the mapping puts it, in red, and paints its cache again unchanged.
TEST(GraphPicture, TheWindowShowsTheSampledCurve) {
  test::ProgramUnderTest program([](const SettingsStore& store) { store.SetExpr1("x^2-4"); });
  ASSERT_TRUE(program.started());
  program.press(Qt::Key_F4);
  ASSERT_TRUE(test::waitUntil([&] { return program.app().dataSets()[0].count() == 501; }));
  program.press(Qt::Key_F3);
  CGraphWnd* graph = program.child()->graph()->graph();
  ASSERT_TRUE(test::waitUntil([&] { return graph->isVisible() && graph->width() > 100; }));
  const QImage first = graph->grab().toImage();
  const GraphScene& scene = graph->scene();
  const auto bottom = worldToDevice({0, -4}, scene.range, scene.rect);
  ASSERT_TRUE(bottom);
  EXPECT_EQ(first.pixel(bottom->x, bottom->y) & 0xffffff, 0xff0000u);
  EXPECT_EQ(graph->grab().toImage(), first);
  EXPECT_EQ(graph->cache().toImage().pixel(bottom->x, bottom->y) & 0xffffff, 0xff0000u);
}

}  // namespace
}  // namespace sonalyx::ui
