#include "core/math/LogisticModel.h"

#include <array>
#include <cmath>
#include <limits>

#include "core/math/StraightLineFit.h"

namespace sonalyx {

double LogisticModel::value(double x, double a, double b, double c) {
  return c / (1.0 + a * std::exp(-b * x));
}

void LogisticModel::residuals(const Eigen::VectorXd& p, Eigen::VectorXd& out) const {
  out.resize(pointCount());
  for (Eigen::Index i = 0; i < pointCount(); ++i) {
    const auto k = static_cast<std::size_t>(i);
    out(i) = ys()[k] - value(xs()[k], p(0), p(1), p(2));
  }
}

std::vector<double> LogisticModel::valuesAt(const std::vector<double>& xs) const {
  std::vector<double> values;
  values.reserve(xs.size());
  for (double x : xs) values.push_back(value(x, parameter(0), parameter(1), parameter(2)));
  return values;
}

void LogisticModel::derivatives(const Eigen::VectorXd& p, Eigen::MatrixXd& out) const {
  const double a = p(0);
  const double b = p(1);
  const double c = p(2);
  out.resize(pointCount(), 3);
  for (Eigen::Index i = 0; i < pointCount(); ++i) {
    const double x = xs()[static_cast<std::size_t>(i)];
    const double e = std::exp(-b * x);
    const double d = 1.0 + a * e;
    if (!std::isfinite(e) || !std::isfinite(d)) {
      // Far down the lower tail the curve is 0 whatever the parameters.
      out.row(i).setZero();
      continue;
    }
    const double g = 1.0 / d;
    out(i, 0) = -c * e * g * g;
    out(i, 1) = c * a * x * e * g * g;
    out(i, 2) = g;
  }
}

void LogisticModel::estimateStart() {
  const std::vector<double>& x = xs();
  const std::vector<double>& y = ys();
  if (x.empty()) return;
  // The curve keeps the sign of c, so work on the side where the data reach farthest.
  double farthest = 0.0;
  for (double v : y) {
    if (std::fabs(v) > std::fabs(farthest)) farthest = v;
  }
  const double sign = farthest < 0.0 ? -1.0 : 1.0;
  const double top = std::fabs(farthest);

  double bestSum = std::numeric_limits<double>::infinity();
  double bestA = 1.0;
  double bestB = 1.0;
  double bestC = farthest != 0.0 ? farthest : 1.0;
  constexpr std::array<double, 9> kLifts = {1.001, 1.01, 1.03, 1.1, 1.25, 1.5, 2.0, 3.0, 5.0};
  for (double lift : kLifts) {
    const double c = sign * top * lift;
    const double a0 = isGiven(0) ? parameter(0) : 0.0;
    const double b0 = isGiven(1) ? parameter(1) : 0.0;
    const double cUsed = isGiven(2) ? parameter(2) : c;
    StraightLineFit line;
    for (std::size_t i = 0; i < x.size(); ++i) {
      const double ratio = cUsed / y[i] - 1.0;
      if (ratio > 0.0 && std::isfinite(ratio)) line.add(x[i], std::log(ratio));
    }
    const StraightLineFit::Line fit = line.line();
    if (fit.shape != StraightLineFit::Shape::Line) continue;
    const double a = isGiven(0) ? a0 : std::exp(fit.intercept);
    const double b = isGiven(1) ? b0 : -fit.slope;
    double sum = 0.0;
    for (std::size_t i = 0; i < x.size(); ++i) {
      const double r = y[i] - value(x[i], a, b, cUsed);
      sum += r * r;
    }
    if (std::isfinite(sum) && sum < bestSum) {
      bestSum = sum;
      bestA = a;
      bestB = b;
      bestC = cUsed;
    }
    if (isGiven(2)) break;  // every lift would give the same line
  }
  setEstimate(0, bestA);
  setEstimate(1, bestB);
  setEstimate(2, bestC);
}

}  // namespace sonalyx
