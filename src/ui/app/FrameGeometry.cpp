#include "ui/app/FrameGeometry.h"

namespace sonalyx::ui::frame {

int panelFontTenths(int sizeLevel, int logicalDpiY) {
  const int tenths = 100 + 16 * sizeLevel;
  return logicalDpiY < 97 ? tenths : static_cast<int>(tenths * 0.75);
}

int smallFontTenths(int sizeLevel) {
  return static_cast<int>(0.75 * (100 + 16 * sizeLevel));
}

int widthStepFor(int widthStep, bool graphShown) {
  return graphShown ? static_cast<int>(2.5 * widthStep) : widthStep;
}

int widthWithGraphShown(int width) {
  return static_cast<int>(width * 2.8571427);
}

int widthWithGraphHidden(int width) {
  return static_cast<int>(width * 0.35);
}

int graphWidth(int clientWidth) {
  return static_cast<int>(clientWidth * 0.65);
}

}  // namespace sonalyx::ui::frame
