#include "core/math/PolynomialFit.h"

#include <Eigen/Dense>
#include <algorithm>
#include <cmath>

namespace sonalyx {

namespace {

// Refinement steps on the residual, taken in extended precision; one is enough.
constexpr int kRefinements = 1;

}  // namespace

std::optional<std::vector<double>> fitPolynomial(const std::vector<DataPoint>& points, int degree) {
  if (degree < 0) return std::nullopt;
  const Eigen::Index rows = static_cast<Eigen::Index>(points.size());
  const Eigen::Index columns = degree + 1;
  if (rows < columns) return std::nullopt;

  double low = 0.0;
  double high = 0.0;
  for (std::size_t i = 0; i < points.size(); ++i) {
    const double x = points[i].x;
    if (!std::isfinite(x)) return std::nullopt;
    low = i == 0 ? x : std::min(low, x);
    high = i == 0 ? x : std::max(high, x);
  }
  // Powers of t = (x − middle)/half run from −1 to 1: far better conditioned than
  // powers of x when the data sit far from 0 (years, say). t is taken in extended
  // precision so that its rounding stays far below that of the data.
  const long double middle = (static_cast<long double>(low) + high) / 2.0L;
  const long double half = high > low ? (static_cast<long double>(high) - low) / 2.0L : 1.0L;
  const long double inverseHalf = 1.0L / half;
  std::vector<long double> ts(points.size());
  for (std::size_t i = 0; i < points.size(); ++i)
    ts[i] = (static_cast<long double>(points[i].x) - middle) * inverseHalf;

  // QR with column pivoting instead of the normal equations keeps twice the
  // digits: the normal equations square the condition number of the powers.
  Eigen::MatrixXd powers(rows, columns);
  Eigen::VectorXd y(rows);
  for (Eigen::Index i = 0; i < rows; ++i) {
    const double t = static_cast<double>(ts[static_cast<std::size_t>(i)]);
    double power = 1.0;
    for (Eigen::Index k = 0; k < columns; ++k) {
      powers(i, k) = power;
      power *= t;
    }
    y(i) = points[static_cast<std::size_t>(i)].y;
  }
  const Eigen::ColPivHouseholderQR<Eigen::MatrixXd> qr(powers);
  if (qr.rank() < columns) return std::nullopt;
  Eigen::VectorXd q = qr.solve(y);
  // Refining on residuals taken in extended precision, from unrounded powers,
  // wins back what rounding in the solve and in the stored powers lost.
  Eigen::VectorXd residual(rows);
  for (int step = 0; step < kRefinements; ++step) {
    for (Eigen::Index i = 0; i < rows; ++i) {
      const long double t = ts[static_cast<std::size_t>(i)];
      long double value = 0.0L;
      for (Eigen::Index k = columns; k-- > 0;) value = value * t + q(k);
      residual(i) = static_cast<double>(static_cast<long double>(y(i)) - value);
    }
    q += qr.solve(residual);
  }

  // Back to powers of x: Σ q_k·((x − middle)/half)^k, expanded term by term in
  // extended precision. basis holds the coefficients of ((x − middle)/half)^k.
  std::vector<long double> result(static_cast<std::size_t>(columns), 0.0L);
  std::vector<long double> basis(static_cast<std::size_t>(columns), 0.0L);
  basis[0] = 1.0L;
  for (Eigen::Index k = 0; k < columns; ++k) {
    for (Eigen::Index j = 0; j <= k; ++j)
      result[static_cast<std::size_t>(j)] += q(k) * basis[static_cast<std::size_t>(j)];
    for (Eigen::Index j = std::min<Eigen::Index>(k + 1, columns - 1); j >= 0; --j) {
      const long double shifted = j > 0 ? basis[static_cast<std::size_t>(j - 1)] : 0.0L;
      basis[static_cast<std::size_t>(j)] =
          (shifted - middle * basis[static_cast<std::size_t>(j)]) * inverseHalf;
    }
  }
  return std::vector<double>(result.begin(), result.end());
}

}  // namespace sonalyx
