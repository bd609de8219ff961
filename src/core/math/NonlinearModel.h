#pragma once

#include <Eigen/Core>
#include <bitset>
#include <cstddef>
#include <vector>

namespace sonalyx {

// A curve y = f(x; p) fitted to points by damped least squares (Levenberg-Marquardt).
// Subclasses supply the model; the controls and the solver are shared.
class NonlinearModel {
 public:
  enum Status : int {
    kNotSolved = 0,
    kNotReady = 1,        // no data loaded
    kUnsolvableStep = 2,  // a damped system had no finite solution
    kIterationLimit = 3,  // still improving when the iterations ran out
    kConverged = 4,
  };

  static constexpr std::size_t kMaxParameters = 8;
  static constexpr int kDefaultIterationLimit = 16;
  static constexpr double kDefaultTolerance = 0.001;
  static constexpr double kDefaultDamping = 1.0;
  static constexpr double kInitialDampingFactor = 5.0;
  // reset() deliberately installs a larger factor than a new object starts with.
  static constexpr double kResetDampingFactor = 10.0;

  explicit NonlinearModel(std::size_t parameterCount);
  virtual ~NonlinearModel() = default;
  NonlinearModel(const NonlinearModel&) = default;
  NonlinearModel& operator=(const NonlinearModel&) = default;

  // Restores the iteration limit, the iterations used, the tolerance and the
  // damping to their defaults and the damping factor to 10.
  virtual void reset();
  // y minus the model value at every point, for the parameters p.
  virtual void residuals(const Eigen::VectorXd& p, Eigen::VectorXd& out) const = 0;
  // The model's values at the given x, with the current parameters.
  virtual std::vector<double> valuesAt(const std::vector<double>& xs) const = 0;
  // Sets every parameter that was not given from the data.
  virtual void estimateStart() = 0;
  // The partial derivatives of the model value by each parameter at every point:
  // one row a point, one column a parameter.
  virtual void derivatives(const Eigen::VectorXd& p, Eigen::MatrixXd& out) const = 0;
  // Fits the parameters, starting from the current ones. True when converged:
  // an iteration lowered the sum of squared residuals by less than the tolerance
  // (relative), or the sum was 0.
  virtual bool solve();

  // Loads the points (x and y of equal length) and marks the model ready.
  void setData(std::vector<double> xs, std::vector<double> ys);
  bool isReady() const { return m_ready; }
  const std::vector<double>& xs() const { return m_xs; }
  const std::vector<double>& ys() const { return m_ys; }

  std::size_t parameterCount() const { return static_cast<std::size_t>(m_parameters.size()); }
  const Eigen::VectorXd& parameters() const { return m_parameters; }
  double parameter(std::size_t i) const { return m_parameters(static_cast<Eigen::Index>(i)); }
  // Installs a parameter's start value and marks it given: the start estimate keeps it.
  void setParameter(std::size_t i, double value);
  bool isGiven(std::size_t i) const { return m_given.test(i); }

  int iterationLimit() const { return m_iterationLimit; }
  void setIterationLimit(int limit) { m_iterationLimit = limit; }
  int iterationsUsed() const { return m_iterationsUsed; }
  double tolerance() const { return m_tolerance; }
  void setTolerance(double tolerance) { m_tolerance = tolerance; }
  // The damping the first iteration starts from.
  double damping() const { return m_damping; }
  void setDamping(double damping) { m_damping = damping; }
  // The damping is multiplied or divided by this between trial steps.
  double dampingFactor() const { return m_dampingFactor; }
  void setDampingFactor(double factor) { m_dampingFactor = factor; }
  double sumOfSquares() const { return m_sumOfSquares; }
  Status status() const { return m_status; }

 protected:
  // For estimateStart(): sets a parameter unless it was given.
  void setEstimate(std::size_t i, double value);
  // Rewrites a fitted parameter in an equivalent form; leaves the given marks alone.
  void storeParameter(std::size_t i, double value) { m_parameters(static_cast<Eigen::Index>(i)) = value; }
  Eigen::Index pointCount() const { return static_cast<Eigen::Index>(m_xs.size()); }

 private:
  std::vector<double> m_xs;
  std::vector<double> m_ys;
  Eigen::VectorXd m_parameters;
  std::bitset<kMaxParameters> m_given;
  bool m_ready = false;
  int m_iterationLimit = kDefaultIterationLimit;
  int m_iterationsUsed = 0;
  double m_tolerance = kDefaultTolerance;
  double m_damping = kDefaultDamping;
  double m_dampingFactor = kInitialDampingFactor;
  double m_sumOfSquares = 0.0;
  Status m_status = kNotSolved;
};

}  // namespace sonalyx
