#include "ui/app/FrameGeometry.h"

#include <gtest/gtest.h>

namespace sonalyx::ui::frame {
namespace {

TEST(FrameGeometry, FontsGrowWithTheSizeLevelAndShrinkOnDenseDisplays) {
  const struct {
    int level, dpi, panel, small;
  } cases[] = {
      {0, 96, 100, 75}, {1, 96, 116, 87},   {6, 96, 196, 147},
      {0, 97, 75, 75},  {3, 120, 111, 111}, {6, 144, 147, 147},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(panelFontTenths(c.level, c.dpi), c.panel) << c.level << " at " << c.dpi;
    EXPECT_EQ(smallFontTenths(c.level), c.small) << c.level;
  }
}

TEST(FrameGeometry, WidthsFollowTheGraph) {
  EXPECT_EQ(kHeightStep, 60);
  EXPECT_EQ(widthStepFor(kWidthStep, false), 40);
  EXPECT_EQ(widthStepFor(kWidthStep, true), 100);
  const struct {
    int width, shown, hiddenAgain;
  } cases[] = {{320, 914, 319}, {360, 1028, 359}, {560, 1599, 559}, {400, 1142, 399}};
  for (const auto& c : cases) {
    EXPECT_EQ(widthWithGraphShown(c.width), c.shown) << c.width;
    EXPECT_EQ(widthWithGraphHidden(c.shown), c.hiddenAgain) << c.width;
    EXPECT_LE(c.width - widthWithGraphHidden(widthWithGraphShown(c.width)), 1) << c.width;
  }
  EXPECT_EQ(graphWidth(914), 594);
  EXPECT_EQ(graphWidth(100), 65);
}

}  // namespace
}  // namespace sonalyx::ui::frame
