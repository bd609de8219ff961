#include "core/math/NonlinearModel.h"

#include <Eigen/Cholesky>
#include <cmath>
#include <limits>
#include <stdexcept>
#include <utility>

namespace sonalyx {

namespace {

// How often one iteration may keep lowering the damping while the steps keep
// improving, and how often it may raise it in search of any improvement.
constexpr int kMaxDecreases = 10;
constexpr int kMaxIncreases = 20;

struct Trial {
  Eigen::VectorXd parameters;
  Eigen::VectorXd residuals;
  double sum = std::numeric_limits<double>::infinity();
  double damping = 0.0;
};

}  // namespace

NonlinearModel::NonlinearModel(std::size_t parameterCount)
    : m_parameters(Eigen::VectorXd::Zero(static_cast<Eigen::Index>(parameterCount))) {
  if (parameterCount == 0 || parameterCount > kMaxParameters) {
    throw std::invalid_argument("a fitted model needs 1 to 8 parameters");
  }
}

void NonlinearModel::reset() {
  m_iterationLimit = kDefaultIterationLimit;
  m_iterationsUsed = 0;
  m_tolerance = kDefaultTolerance;
  m_damping = kDefaultDamping;
  m_dampingFactor = kResetDampingFactor;
}

void NonlinearModel::setData(std::vector<double> xs, std::vector<double> ys) {
  if (xs.size() != ys.size()) throw std::invalid_argument("x and y values differ in number");
  m_xs = std::move(xs);
  m_ys = std::move(ys);
  m_ready = true;
}

void NonlinearModel::setParameter(std::size_t i, double value) {
  m_parameters(static_cast<Eigen::Index>(i)) = value;
  m_given.set(i);
}

void NonlinearModel::setEstimate(std::size_t i, double value) {
  if (!m_given.test(i)) m_parameters(static_cast<Eigen::Index>(i)) = value;
}

bool NonlinearModel::solve() {
  m_iterationsUsed = 0;
  if (!m_ready) {
    m_status = kNotReady;
    return false;
  }
  const Eigen::Index n = pointCount();
  const Eigen::Index p = m_parameters.size();
  Eigen::VectorXd r(n);
  residuals(m_parameters, r);
  double sum = r.squaredNorm();
  m_sumOfSquares = sum;
  if (!std::isfinite(sum)) {
    // Nothing can be solved from a start that does not even evaluate.
    m_status = kUnsolvableStep;
    return false;
  }

  double damping = m_damping;
  Eigen::MatrixXd jacobian(n, p);
  for (int iteration = 1; iteration <= m_iterationLimit; ++iteration) {
    derivatives(m_parameters, jacobian);
    const Eigen::MatrixXd normal = jacobian.transpose() * jacobian;
    const Eigen::VectorXd gradient = jacobian.transpose() * r;
    // Marquardt's scaling: damping each parameter by its own curvature makes the
    // steps independent of the parameters' units. A parameter the data do not
    // see gets a small positive weight so that the damped system stays definite.
    Eigen::VectorXd weight = normal.diagonal();
    const double largestWeight = weight.maxCoeff();
    const double floor = largestWeight > 0.0 ? largestWeight * 1e-12 : 1.0;
    for (Eigen::Index i = 0; i < p; ++i) weight(i) = std::max(weight(i), floor);

    auto tryStep = [&](double lambda, Trial& out) {
      Eigen::MatrixXd system = normal;
      system.diagonal() += lambda * weight;
      const Eigen::LLT<Eigen::MatrixXd> llt(system);
      if (llt.info() != Eigen::Success) return false;
      const Eigen::VectorXd step = llt.solve(gradient);
      if (!step.allFinite()) return false;
      out.parameters = m_parameters + step;
      out.residuals.resize(n);
      residuals(out.parameters, out.residuals);
      out.sum = out.residuals.squaredNorm();
      if (!std::isfinite(out.sum)) out.sum = std::numeric_limits<double>::infinity();
      out.damping = lambda;
      return true;
    };

    // First try less damping than last time, and go on lowering it while that
    // keeps helping; when it does not help at all, raise the damping until a
    // step improves. A step that improves nothing leaves the parameters alone.
    Trial best;
    bool improved = false;
    Trial trial;
    if (tryStep(damping / m_dampingFactor, trial) && trial.sum < sum) {
      best = trial;
      improved = true;
      for (int k = 0; k < kMaxDecreases; ++k) {
        if (!tryStep(best.damping / m_dampingFactor, trial) || !(trial.sum < best.sum)) break;
        best = trial;
      }
    } else {
      double lambda = damping;
      for (int k = 0; k <= kMaxIncreases && !improved; ++k, lambda *= m_dampingFactor) {
        if (!tryStep(lambda, trial)) {
          m_iterationsUsed = iteration;
          m_status = kUnsolvableStep;
          return false;
        }
        if (trial.sum < sum) {
          best = trial;
          improved = true;
        }
      }
    }

    const double newSum = improved ? best.sum : sum;
    const bool converged = !(newSum < (1.0 - m_tolerance) * sum) || sum == 0.0;
    if (improved) {
      m_parameters = best.parameters;
      r = best.residuals;
      damping = best.damping;
    }
    m_sumOfSquares = newSum;
    if (converged) {
      m_iterationsUsed = iteration;
      m_status = kConverged;
      return true;
    }
    sum = newSum;
  }
  m_iterationsUsed = m_iterationLimit;
  m_status = kIterationLimit;
  return false;
}

}  // namespace sonalyx
