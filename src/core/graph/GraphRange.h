#pragma once

namespace sonalyx {

// The graph's world rectangle with y upwards: top = yMax, left = xMin,
// bottom = yMin, right = xMax. Every setter normalises so that left <= right and
// top >= bottom; a comparison with NaN swaps nothing.
struct GraphRange {
  double top = 0.0;
  double left = 0.0;
  double bottom = 0.0;
  double right = 0.0;

  void set(double newTop, double newLeft, double newBottom, double newRight) {
    top = newTop;
    left = newLeft;
    bottom = newBottom;
    right = newRight;
    normaliseX();
    normaliseY();
  }
  void setX(double newLeft, double newRight) {
    left = newLeft;
    right = newRight;
    normaliseX();
  }
  void setY(double newBottom, double newTop) {
    bottom = newBottom;
    top = newTop;
    normaliseY();
  }

  bool operator==(const GraphRange&) const = default;

 private:
  void normaliseX() {
    if (right < left) {
      const double t = right;
      right = left;
      left = t;
    }
  }
  void normaliseY() {
    if (top < bottom) {
      const double t = top;
      top = bottom;
      bottom = t;
    }
  }
};

}  // namespace sonalyx
