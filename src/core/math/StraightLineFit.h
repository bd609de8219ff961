#pragma once

#include <cstddef>

namespace sonalyx {

// Least-squares line Y = A + B·X through pairs fed one at a time, in point order.
// The regression models feed it their transformed pairs (ln y, 1/x, x·y ...).
class StraightLineFit {
 public:
  enum class Shape {
    Line,       // X and Y both spread: A, B and r as usual
    FlatY,      // Y does not spread: B = 0, A = mean Y, r undefined (NaN)
    NoSpreadX,  // every X alike: no line is determined; A, B, r are 0
  };

  struct Line {
    Shape shape = Shape::NoSpreadX;
    double intercept = 0.0;  // A
    double slope = 0.0;      // B
    double r = 0.0;          // correlation coefficient
  };

  void add(double x, double y);
  std::size_t count() const { return m_count; }
  Line line() const;

 private:
  // The sums are taken about the first pair, which leaves the sums of squared
  // deviations unchanged but keeps their digits when the data sit far from 0.
  std::size_t m_count = 0;
  double m_x0 = 0.0;
  double m_y0 = 0.0;
  double m_sumX = 0.0;
  double m_sumY = 0.0;
  double m_sumXX = 0.0;
  double m_sumYY = 0.0;
  double m_sumXY = 0.0;
  // The largest magnitudes, against which a spread counts as none.
  double m_largestX = 0.0;
  double m_largestY = 0.0;
};

}  // namespace sonalyx
