#pragma once

#include "core/math/NonlinearModel.h"

namespace sonalyx {

// y = a·sin(b·x + c) + d, parameters in the order a, b, c, d. A wave needs more
// iterations and a more cautious start than the other models: the iteration limit
// is 40 and the first iteration starts from damping 1000.
class SinusoidalModel : public NonlinearModel {
 public:
  static constexpr int kIterationLimit = 40;
  static constexpr double kStartDamping = 1000.0;

  SinusoidalModel();

  void residuals(const Eigen::VectorXd& p, Eigen::VectorXd& out) const override;
  std::vector<double> valuesAt(const std::vector<double>& xs) const override;
  // b from the spacing of the wave's crossings of the mean, refined by the best of
  // nearby values; then a, c and d by linear least squares at that b.
  void estimateStart() override;
  void derivatives(const Eigen::VectorXd& p, Eigen::MatrixXd& out) const override;

  // Rewrites the fitted wave in its usual form: a ≥ 0, b ≥ 0 and −π < c ≤ π.
  void normalize();

  static double value(double x, double a, double b, double c, double d);
};

}  // namespace sonalyx
