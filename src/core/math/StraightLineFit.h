#pragma once

#include <cstddef>

namespace sonalyx {

// Least-squares line Y = A + B·X through pairs fed one at a time, in point order.
// The regression models feed it their transformed pairs (ln y, 1/x, x·y ...).
class StraightLineFit {
 public:
  struct Line {
    double intercept = 0.0;  // A
    double slope = 0.0;      // B
    double r = 0.0;          // correlation coefficient
    // False when the X or the Y values do not spread by more than 1e-11 (sum of
    // squared deviations): A, B and r are then all 0.
    bool determined = false;
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
};

}  // namespace sonalyx
