#include "core/math/FunctionSampler.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <new>
#include <span>
#include <utility>
#include <vector>

#include "core/engines/EvaluationError.h"
#include "core/limits/Limits.h"
#include "core/speech/TranslationMarker.h"

namespace sonalyx {

namespace {

constexpr double kZeroTolerance = 1e-11;
constexpr double kDerivativeStep = 0.001;
constexpr double kDerivativeScale = 500.0;  // 1 / (2 * step)

// 7-point Gauss-Legendre on [-1, 1], applied in this order.
constexpr std::size_t kNodeCount = 7;
constexpr std::array<double, kNodeCount> kNodes = {
    -0.949107912342758, -0.741531185599394, -0.405845151377397, 0.0,
    0.405845151377397,  0.741531185599394,  0.949107912342758};
constexpr std::array<double, kNodeCount> kWeights = {0.12948496616887,  0.279705391489277, 0.381830050505119,
                                                     0.417959183673469, 0.381830050505119, 0.279705391489277,
                                                     0.12948496616887};

// The values of f one point needs: y, f(x -+ step) and the integration nodes of the
// interval that ends at it.
constexpr std::size_t kValuesPerPoint = 3 + kNodeCount;

// Points worked together: their ten values per point fill a few of the compiled
// function's blocks, and the buffers stay in cache.
constexpr std::size_t kChunk = 128;

double zeroTiny(double v) {
  return std::fabs(v) < kZeroTolerance ? 0.0 : v;
}

std::int32_t trendOf(double change) {
  if (change > kZeroTolerance) return 1;
  if (change < -kZeroTolerance) return -1;
  return 0;  // unchanged within the tolerance, or NaN
}

// The integral at each point of a chunk from the sums of its intervals: the one
// chain of the work, in a function of its own so that it runs in registers.
// `magnitude` sums the parts' sizes, to tell a true 0 from rounding.
[[gnu::noinline]] void runningIntegral(const double* sums, double* integrals, std::size_t n, double& integral,
                                       double& magnitude) {
  double total = integral;
  double size = magnitude;
  for (std::size_t j = 0; j < n; ++j) {
    total += sums[j];
    size += std::fabs(sums[j]);
    // Parts that cancel leave rounding noise (-8.9e-16 for x^3 over -2..2): 0.
    integrals[j] = std::fabs(total) <= size * 1e-14 ? 0.0 : total;
  }
  integral = total;
  magnitude = size;
}

// One pass over the points in chunks. Column c of a chunk of n points is the run
// [c * n, (c + 1) * n) of `xs` and `ys`: 0 the points, 1 and 2 the points -+ step,
// 3 + k node k of the interval that ends at the point. The work on a chunk goes
// column by column, so that each loop runs over independent points; only the
// running integral is a chain.
void sampleInChunks(std::span<DataPoint> points, const CompiledFunction& f) {
  const std::size_t count = points.size();
  std::vector<double> xs(kValuesPerPoint * kChunk);
  std::vector<double> ys(kValuesPerPoint * kChunk);
  std::array<double, kChunk + 1> at{};  // the chunk's x, after the one before it
  std::array<double, kChunk> halfWidths{};
  std::array<double, kChunk> middles{};
  std::array<double, kChunk> sums{};
  std::array<double, kChunk> integrals{};
  std::vector<double> scratch;
  double integral = 0.0;
  double magnitude = 0.0;
  double previousDerivative = 0.0;
  for (std::size_t first = 0; first < count; first += kChunk) {
    const std::size_t n = std::min(kChunk, count - first);
    DataPoint* const p = points.data() + first;
    // The first point ends no interval: its interval is empty and goes unused.
    at[0] = first == 0 ? p[0].x : p[-1].x;
    for (std::size_t j = 0; j < n; ++j) at[j + 1] = p[j].x;
    for (std::size_t j = 0; j < n; ++j) {
      const double x = at[j + 1];
      xs[j] = zeroTiny(x);
      xs[n + j] = zeroTiny(x - kDerivativeStep);
      xs[2 * n + j] = zeroTiny(x + kDerivativeStep);
      halfWidths[j] = zeroTiny((x - at[j]) * 0.5);
      middles[j] = zeroTiny((x + at[j]) * 0.5);
    }
    for (std::size_t k = 0; k < kNodeCount; ++k) {
      for (std::size_t j = 0; j < n; ++j) xs[(3 + k) * n + j] = halfWidths[j] * kNodes[k] + middles[j];
    }
    f.evaluate(xs.data(), ys.data(), kValuesPerPoint * n, scratch);
    // Each interval's sum over its nodes, in the nodes' order; the first point's
    // interval is empty (its nodes' values, even infinite ones, do not count).
    for (std::size_t j = 0; j < n; ++j) sums[j] = 0.0;
    for (std::size_t k = 0; k < kNodeCount; ++k) {
      for (std::size_t j = 0; j < n; ++j) sums[j] += kWeights[k] * (halfWidths[j] * ys[(3 + k) * n + j]);
    }
    if (first == 0) sums[0] = 0.0;
    runningIntegral(sums.data(), integrals.data(), n, integral, magnitude);
    for (std::size_t j = 0; j < n; ++j) {
      DataPoint& point = p[j];
      const double derivative = (ys[2 * n + j] - ys[n + j]) * kDerivativeScale;
      point.y = ys[j];
      point.derivative = derivative;
      point.integral = integrals[j];
      point.trend = trendOf(derivative - previousDerivative);
      previousDerivative = derivative;
    }
    if (first == 0) p[0].trend = 0;
  }
}

}  // namespace

FunctionSampler::FunctionSampler(Translator translate) : m_translate(std::move(translate)) {}

std::string FunctionSampler::translate(const std::string& text) const {
  return m_translate ? m_translate(text) : text;
}

std::string FunctionSampler::invalidEntry(const std::string& reason) const {
  std::string text = translate(SLX_TR("Invalid entry."));
  if (!reason.empty()) text += ' ' + reason;
  return text;
}

bool FunctionSampler::computeFunction(DataSet& set, const std::string& expression, double x0, double x1,
                                      int numPts, std::string& errorText) {
  set.clear();
  // Written so that a NaN bound is refused too.
  if (!(x0 < x1)) {
    errorText = invalidEntry(translate(SLX_TR("Start must be below finish.")));
    return false;
  }
  if (numPts < 2) {
    errorText = invalidEntry(translate(SLX_TR("At least 2 points are needed.")));
    return false;
  }
  if (static_cast<std::size_t>(numPts) > limits::kMostPoints) {
    std::string most = translate(SLX_TR("At most %d points can be sampled."));
    if (const auto at = most.find("%d"); at != std::string::npos)
      most.replace(at, 2, std::to_string(limits::kMostPoints));
    errorText = invalidEntry(most);
    return false;
  }
  bool built = false;
  try {
    built = set.makeGrid(x0, x1, static_cast<std::size_t>(numPts));
  } catch (const std::bad_alloc&) {
    set.clear();
  }
  if (!built) {
    errorText = translate(SLX_TR("Point allocation error."));
    return false;
  }
  if (!sampleFunction(set, expression)) {
    errorText = m_lastError;
    return false;
  }
  return true;
}

bool FunctionSampler::sampleFunction(DataSet& set, const std::string& expression) {
  if (set.count() < 2) {
    set.clear();
    m_lastError = invalidEntry(translate(SLX_TR("Range error: Check plot settings.")));
    return false;
  }
  EvaluationError error;
  const auto f = CompiledFunction::compile(expression, error);
  if (!f) {
    set.clear();
    m_lastError = invalidEntry(evaluationErrorText(error, m_translate));
    return false;
  }
  return sampleFunction(set, *f);
}

bool FunctionSampler::sampleFunction(DataSet& set, const CompiledFunction& f) {
  if (set.count() < 2) {
    set.clear();
    m_lastError = invalidEntry(translate(SLX_TR("Range error: Check plot settings.")));
    return false;
  }
  try {
    sampleInChunks(set.fillPoints(), f);
  } catch (const std::exception&) {
    // The buffers did not fit in memory: nothing half done is kept.
    set.clear();
    m_lastError = invalidEntry({});
    return false;
  }
  return true;
}

void FunctionSampler::setTrends(DataSet& set) {
  if (set.count() == 0) return;
  set.setTrend(0, 0);
  for (std::size_t i = 1; i < set.count(); ++i)
    set.setTrend(i, trendOf(set.at(i).derivative - set.at(i - 1).derivative));
}

}  // namespace sonalyx
