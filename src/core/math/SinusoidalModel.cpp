#include "core/math/SinusoidalModel.h"

#include <Eigen/Dense>
#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <utility>

namespace sonalyx {

namespace {

constexpr double kPi = std::numbers::pi;

// The refining scan looks at no more than this many points and b values.
constexpr std::size_t kMaxScanPoints = 2048;
constexpr int kMaxScanSteps = 200;

struct WaveFit {
  double a = 0.0;
  double c = 0.0;
  double d = 0.0;
  double sum = std::numeric_limits<double>::infinity();
  bool valid = false;
};

// a·sin(bx + c) + d = A·sin(bx) + B·cos(bx) + d is linear in A, B and d.
WaveFit fitAtFrequency(const std::vector<std::pair<double, double>>& points, double b) {
  WaveFit fit;
  const auto n = static_cast<Eigen::Index>(points.size());
  if (n < 3) return fit;
  Eigen::MatrixXd m(n, 3);
  Eigen::VectorXd y(n);
  for (Eigen::Index i = 0; i < n; ++i) {
    const auto& [x, v] = points[static_cast<std::size_t>(i)];
    m(i, 0) = std::sin(b * x);
    m(i, 1) = std::cos(b * x);
    m(i, 2) = 1.0;
    y(i) = v;
  }
  const Eigen::ColPivHouseholderQR<Eigen::MatrixXd> qr(m);
  if (qr.rank() < 3) return fit;
  const Eigen::Vector3d s = qr.solve(y);
  if (!s.allFinite()) return fit;
  fit.a = std::hypot(s(0), s(1));
  fit.c = std::atan2(s(1), s(0));
  fit.d = s(2);
  fit.sum = (y - m * s).squaredNorm();
  fit.valid = std::isfinite(fit.sum);
  return fit;
}

// Half a cycle lies between two crossings of the mean. A crossing counts only once
// the wave has gone a quarter of its half-range past the mean, so that noise near
// the mean does not add crossings.
double frequencyFromCrossings(const std::vector<std::pair<double, double>>& sorted, double span) {
  double low = sorted.front().second;
  double high = low;
  double sum = 0.0;
  for (const auto& point : sorted) {
    low = std::min(low, point.second);
    high = std::max(high, point.second);
    sum += point.second;
  }
  const double mean = sum / static_cast<double>(sorted.size());
  const double band = 0.25 * (high - low) / 2.0;
  if (!(band > 0.0)) return kPi / span;

  int side = 0;
  double lastCrossing = std::numeric_limits<double>::quiet_NaN();
  double first = 0.0;
  double last = 0.0;
  int crossings = 0;
  for (std::size_t i = 0; i < sorted.size(); ++i) {
    const auto& [x, y] = sorted[i];
    if (i > 0) {
      const auto& [px, py] = sorted[i - 1];
      if ((py - mean) * (y - mean) < 0.0) {
        lastCrossing = px + (x - px) * (mean - py) / (y - py);
      } else if (y == mean) {
        lastCrossing = x;
      }
    }
    const int now = y > mean + band ? 1 : (y < mean - band ? -1 : side);
    if (side != 0 && now != side && !std::isnan(lastCrossing)) {
      if (crossings == 0) first = lastCrossing;
      last = lastCrossing;
      ++crossings;
    }
    side = now;
  }
  if (crossings < 2 || !(last > first)) return kPi / span;
  return kPi * (crossings - 1) / (last - first);
}

}  // namespace

SinusoidalModel::SinusoidalModel() : NonlinearModel(4) {
  setIterationLimit(kIterationLimit);
  setDamping(kStartDamping);
}

double SinusoidalModel::value(double x, double a, double b, double c, double d) {
  return a * std::sin(b * x + c) + d;
}

void SinusoidalModel::residuals(const Eigen::VectorXd& p, Eigen::VectorXd& out) const {
  out.resize(pointCount());
  for (Eigen::Index i = 0; i < pointCount(); ++i) {
    const auto k = static_cast<std::size_t>(i);
    out(i) = ys()[k] - value(xs()[k], p(0), p(1), p(2), p(3));
  }
}

std::vector<double> SinusoidalModel::valuesAt(const std::vector<double>& xs) const {
  std::vector<double> values;
  values.reserve(xs.size());
  for (double x : xs) values.push_back(value(x, parameter(0), parameter(1), parameter(2), parameter(3)));
  return values;
}

void SinusoidalModel::derivatives(const Eigen::VectorXd& p, Eigen::MatrixXd& out) const {
  out.resize(pointCount(), 4);
  for (Eigen::Index i = 0; i < pointCount(); ++i) {
    const double x = xs()[static_cast<std::size_t>(i)];
    const double angle = p(1) * x + p(2);
    const double cosine = std::cos(angle);
    out(i, 0) = std::sin(angle);
    out(i, 1) = p(0) * x * cosine;
    out(i, 2) = p(0) * cosine;
    out(i, 3) = 1.0;
  }
}

void SinusoidalModel::estimateStart() {
  if (xs().empty()) return;
  for (std::size_t i = 0; i < xs().size(); ++i) {
    // Such data cannot be fitted; the solver says so from its first sum.
    if (!std::isfinite(xs()[i]) || !std::isfinite(ys()[i])) return;
  }
  std::vector<std::pair<double, double>> sorted;
  sorted.reserve(xs().size());
  for (std::size_t i = 0; i < xs().size(); ++i) sorted.emplace_back(xs()[i], ys()[i]);
  std::sort(sorted.begin(), sorted.end());
  const double span = sorted.back().first - sorted.front().first;

  if (!isGiven(1)) {
    double b = span > 0.0 ? frequencyFromCrossings(sorted, span) : 1.0;
    if (span > 0.0 && std::isfinite(b)) {
      // The crossings can be off by a fraction of a cycle; of the b values around
      // them, a step of an eighth of a cycle over the span apart, keep the one whose
      // wave fits best.
      std::vector<std::pair<double, double>> sample;
      const std::size_t stride = (sorted.size() + kMaxScanPoints - 1) / kMaxScanPoints;
      for (std::size_t i = 0; i < sorted.size(); i += stride) sample.push_back(sorted[i]);
      const double from = 0.8 * b;
      const double to = 1.25 * b;
      const double step = std::max(kPi / (4.0 * span), (to - from) / kMaxScanSteps);
      double bestSum = std::numeric_limits<double>::infinity();
      double bestB = b;
      for (int k = 0; k <= kMaxScanSteps; ++k) {
        const double candidate = from + k * step;
        if (candidate > to) break;
        const WaveFit fit = fitAtFrequency(sample, candidate);
        if (fit.valid && fit.sum < bestSum) {
          bestSum = fit.sum;
          bestB = candidate;
        }
      }
      b = bestB;
    }
    setEstimate(1, b);
  }

  const WaveFit fit = fitAtFrequency(sorted, parameter(1));
  if (fit.valid) {
    setEstimate(0, fit.a);
    setEstimate(2, fit.c);
    setEstimate(3, fit.d);
    return;
  }
  // No wave at this b (b = 0, or too few distinct x): the middle and half the range.
  double low = sorted.front().second;
  double high = low;
  for (const auto& point : sorted) {
    low = std::min(low, point.second);
    high = std::max(high, point.second);
  }
  setEstimate(0, (high - low) / 2.0);
  setEstimate(2, 0.0);
  setEstimate(3, (high + low) / 2.0);
}

void SinusoidalModel::normalize() {
  double a = parameter(0);
  double b = parameter(1);
  double c = parameter(2);
  // sin(−bx + c) = sin(bx − c + π) and −a·sin(θ) = a·sin(θ + π).
  if (b < 0.0) {
    b = -b;
    c = kPi - c;
  }
  if (a < 0.0) {
    a = -a;
    c += kPi;
  }
  c = std::remainder(c, 2.0 * kPi);
  if (c <= -kPi) c += 2.0 * kPi;
  storeParameter(0, a);
  storeParameter(1, b);
  storeParameter(2, c);
}

}  // namespace sonalyx
