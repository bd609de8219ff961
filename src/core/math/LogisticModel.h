#pragma once

#include "core/math/NonlinearModel.h"

namespace sonalyx {

// y = c / (1 + a·e^(−b·x)), parameters in the order a, b, c.
class LogisticModel : public NonlinearModel {
 public:
  LogisticModel() : NonlinearModel(3) {}

  void residuals(const Eigen::VectorXd& p, Eigen::VectorXd& out) const override;
  std::vector<double> valuesAt(const std::vector<double>& xs) const override;
  // c a little beyond the y farthest from 0, then a and b from the straight line
  // ln(c/y − 1) = ln a − b·x; of several such c the one whose curve fits best.
  void estimateStart() override;
  void derivatives(const Eigen::VectorXd& p, Eigen::MatrixXd& out) const override;

  static double value(double x, double a, double b, double c);
};

}  // namespace sonalyx
