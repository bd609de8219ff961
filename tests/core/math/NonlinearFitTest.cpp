#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <numbers>
#include <string>
#include <vector>

#include "core/math/FitModel.h"
#include "core/math/FitTestData.h"
#include "core/math/LogisticModel.h"
#include "core/math/RegressionFit.h"
#include "core/math/SinusoidalModel.h"
#include "support/NumericCompare.h"

namespace sonalyx {
namespace {

using test::agreesTo;
using test::makeSet;
using test::Points;

std::vector<double> range(double from, double to, double step) {
  std::vector<double> xs;
  for (int i = 0; from + i * step <= to + step * 1e-9; ++i) xs.push_back(from + i * step);
  return xs;
}

// A repeatable disturbance, evenly spread over [−1, 1].
class Noise {
 public:
  double next() {
    m_state = m_state * 6364136223846793005ULL + 1442695040888963407ULL;
    return static_cast<double>(m_state >> 11) / static_cast<double>(1ULL << 53) * 2.0 - 1.0;
  }

 private:
  std::uint64_t m_state = 12345;
};

std::vector<std::string> header(int model, std::size_t count) {
  return {"Number of points: " + std::to_string(count), "",
          "Regression analysis:", std::string(fitModelTitle(model)), ""};
}

TEST(NonlinearModel, KeepsItsControls) {
  LogisticModel logistic;
  SinusoidalModel wave;
  struct Case {
    NonlinearModel* model;
    int limit;
    double damping;
  };
  const Case cases[] = {{&logistic, 16, 1.0}, {&wave, 40, 1000.0}};
  for (const auto& c : cases) {
    NonlinearModel& model = *c.model;
    EXPECT_EQ(model.iterationLimit(), c.limit);
    EXPECT_EQ(model.iterationsUsed(), 0);
    EXPECT_EQ(model.status(), NonlinearModel::kNotSolved);
    EXPECT_TRUE(agreesTo(model.tolerance(), 0.001, 15));
    EXPECT_TRUE(agreesTo(model.damping(), c.damping, 15));
    EXPECT_TRUE(agreesTo(model.dampingFactor(), 5.0, 15));

    // A reset restores the defaults but installs the larger damping factor.
    model.setIterationLimit(3);
    model.setTolerance(0.5);
    model.setDamping(7.0);
    model.setDampingFactor(2.0);
    model.reset();
    EXPECT_EQ(model.iterationLimit(), 16);
    EXPECT_EQ(model.iterationsUsed(), 0);
    EXPECT_TRUE(agreesTo(model.tolerance(), 0.001, 15));
    EXPECT_TRUE(agreesTo(model.damping(), 1.0, 15));
    EXPECT_TRUE(agreesTo(model.dampingFactor(), 10.0, 15));
  }
}

TEST(NonlinearModel, ReportsHowTheSolverEnded) {
  const std::vector<double> xs = range(-5, 10, 1);
  std::vector<double> ys;
  for (double x : xs) ys.push_back(LogisticModel::value(x, 2.0, 0.8, 10.0));

  {
    LogisticModel model;
    EXPECT_FALSE(model.solve());
    EXPECT_EQ(model.status(), NonlinearModel::kNotReady);
  }
  {
    LogisticModel model;
    std::vector<double> broken = ys;
    broken[3] = std::nan("");
    model.setData(xs, broken);
    model.estimateStart();
    EXPECT_FALSE(model.solve());
    EXPECT_EQ(model.status(), NonlinearModel::kUnsolvableStep);
  }
  {
    // Far from the answer, one iteration is not enough.
    LogisticModel model;
    model.setData(xs, ys);
    model.setParameter(0, 1.0);
    model.setParameter(1, 0.1);
    model.setParameter(2, 3.0);
    model.setIterationLimit(1);
    EXPECT_FALSE(model.solve());
    EXPECT_EQ(model.status(), NonlinearModel::kIterationLimit);
    EXPECT_EQ(model.iterationsUsed(), 1);
  }
  {
    LogisticModel model;
    model.setData(xs, ys);
    model.estimateStart();
    EXPECT_TRUE(model.solve());
    EXPECT_EQ(model.status(), NonlinearModel::kConverged);
    EXPECT_GE(model.iterationsUsed(), 1);
    EXPECT_LE(model.iterationsUsed(), 16);
    EXPECT_TRUE(agreesTo(model.sumOfSquares(), 0.0, 1, 1e-20));
  }
}

struct LogisticCase {
  const char* what;
  double a, b, c;
  std::vector<double> xs;
};

TEST(LogisticFit, RecoversTheCurveTheDataWereMadeFrom) {
  const LogisticCase cases[] = {
      {"growth", 2.0, 0.8, 10.0, range(-5, 10, 1)},
      {"decline (negative b)", 0.5, -1.5, 3.0, range(-4, 4, 0.5)},
      {"negative level", 3.0, 0.5, -20.0, range(-6, 12, 1)},
      {"only the lower half seen", 50.0, 0.4, 100.0, range(0, 9, 0.5)},
  };
  for (const auto& c : cases) {
    Points points;
    for (double x : c.xs) points.emplace_back(x, LogisticModel::value(x, c.a, c.b, c.c));
    const FitResult result = runFit(kLogistic, makeSet(points));
    ASSERT_EQ(result.coefficients.size(), 3u) << c.what << ": " << result.lines.front();
    std::vector<std::string> expected = header(kLogistic, points.size());
    EXPECT_EQ(std::vector<std::string>(result.lines.begin(), result.lines.begin() + 5), expected) << c.what;
    EXPECT_EQ(result.lines.size(), 8u) << c.what;
    EXPECT_TRUE(agreesTo(result.coefficients[0], c.a, 8)) << c.what;
    EXPECT_TRUE(agreesTo(result.coefficients[1], c.b, 8)) << c.what;
    EXPECT_TRUE(agreesTo(result.coefficients[2], c.c, 8)) << c.what;
  }
}

TEST(NonlinearFits, AFailureIsTheMessageAlone) {
  const double inf = std::numeric_limits<double>::infinity();
  const std::pair<int, const char*> models[] = {{kLogistic, "Invalid data set for logistic fit."},
                                                {kSinusoidal, "Invalid data set for sinusoidal fit."}};
  for (const auto& [model, message] : models) {
    for (double broken : {std::nan(""), inf}) {
      const FitResult result = runFit(model, makeSet({{0, 1}, {1, broken}, {2, 3}, {3, 3.5}}), 1.0);
      EXPECT_TRUE(result.ran) << model;
      EXPECT_EQ(result.lines, std::vector<std::string>{message}) << model << " with " << broken;
      EXPECT_TRUE(result.coefficients.empty()) << model;
    }
  }
}

struct WaveCase {
  const char* what;
  double a, b, c, d;
  std::vector<double> xs;
  // What the fit reports: the same wave with a ≥ 0, b ≥ 0 and −π < c ≤ π.
  double fa, fb, fc, fd;
};

TEST(SinusoidalFit, RecoversTheWaveTheDataWereMadeFrom) {
  const double pi = std::numbers::pi;
  const WaveCase cases[] = {
      {"three cycles", 2.0, 1.5, 0.4, -1.0, range(0, 12, 0.1), 2.0, 1.5, 0.4, -1.0},
      {"many cycles, large offset", 0.5, 6.0, -2.0, 100.0, range(0, 20, 0.05), 0.5, 6.0, -2.0, 100.0},
      {"negative amplitude", -3.0, 0.7, 1.0, 2.0, range(-10, 10, 0.2), 3.0, 0.7, 1.0 - pi, 2.0},
      {"negative frequency", 1.0, -2.0, 0.5, 0.0, range(0, 10, 0.1), 1.0, 2.0, pi - 0.5, 0.0},
      {"unsorted x",
       4.0,
       0.25,
       2.5,
       -3.0,
       {40, 3, 17, 29, 8, 35, 1, 22, 13, 44, 26, 5, 31, 10, 38, 19},
       4.0,
       0.25,
       2.5,
       -3.0},
  };
  for (const auto& c : cases) {
    Points points;
    for (double x : c.xs) points.emplace_back(x, SinusoidalModel::value(x, c.a, c.b, c.c, c.d));
    int asked = 0;
    double shown = 0.0;
    const FitResult result = runFit(kSinusoidal, makeSet(points), [&](double estimate) {
      ++asked;
      shown = estimate;
      return estimate;  // "Use Default"
    });
    EXPECT_EQ(asked, 1) << c.what;
    // The start value offered is already close to the true b.
    EXPECT_TRUE(agreesTo(shown, std::fabs(c.b), 2)) << c.what << ": " << shown;
    ASSERT_EQ(result.coefficients.size(), 4u) << c.what << ": " << result.lines.front();
    EXPECT_EQ(result.lines.size(), 9u) << c.what;
    EXPECT_EQ(std::vector<std::string>(result.lines.begin(), result.lines.begin() + 5),
              header(kSinusoidal, points.size()))
        << c.what;
    EXPECT_TRUE(agreesTo(result.coefficients[0], c.fa, 8)) << c.what;
    EXPECT_TRUE(agreesTo(result.coefficients[1], c.fb, 8)) << c.what;
    EXPECT_TRUE(agreesTo(result.coefficients[2], c.fc, 8)) << c.what;
    EXPECT_TRUE(agreesTo(result.coefficients[3], c.fd, 8, 1e-9)) << c.what;
  }
}

TEST(SinusoidalFit, StartsFromTheChosenB) {
  // Sampled 4 times a cycle, sin(x + 0.3) takes the same values as sin(3x + π − 0.3):
  // which wave comes back depends on the start value the user chose. A negative
  // choice comes back as the same wave with a positive b.
  const double pi = std::numbers::pi;
  Points points;
  for (double x : range(0, 20 * pi, pi / 2))
    points.emplace_back(x, SinusoidalModel::value(x, 1.0, 1.0, 0.3, 0.0));
  struct Case {
    double chosen;
    double b;
    double c;
  };
  const Case cases[] = {{1.05, 1.0, 0.3}, {-1.05, 1.0, 0.3}, {2.95, 3.0, pi - 0.3}};
  for (const auto& c : cases) {
    const FitResult result = runFit(kSinusoidal, makeSet(points), c.chosen);
    ASSERT_EQ(result.coefficients.size(), 4u) << c.chosen;
    EXPECT_TRUE(agreesTo(result.coefficients[0], 1.0, 8)) << c.chosen;
    EXPECT_TRUE(agreesTo(result.coefficients[1], c.b, 8)) << c.chosen;
    EXPECT_TRUE(agreesTo(result.coefficients[2], c.c, 8)) << c.chosen;
    EXPECT_TRUE(agreesTo(result.coefficients[3], 0.0, 1, 1e-9)) << c.chosen;
  }
}

TEST(SinusoidalFit, FollowsNoisyData) {
  Noise noise;
  Points points;
  for (double x : range(0, 30, 0.1)) {
    points.emplace_back(x, SinusoidalModel::value(x, 3.0, 0.7, 1.0, 2.0) + 0.3 * noise.next());
  }
  const FitResult result = runFit(kSinusoidal, makeSet(points));
  ASSERT_EQ(result.coefficients.size(), 4u) << result.lines.front();
  EXPECT_TRUE(agreesTo(result.coefficients[0], 3.0, 2));
  EXPECT_TRUE(agreesTo(result.coefficients[1], 0.7, 3));
  EXPECT_TRUE(agreesTo(result.coefficients[2], 1.0, 2));
  EXPECT_TRUE(agreesTo(result.coefficients[3], 2.0, 2));
}

}  // namespace
}  // namespace sonalyx
