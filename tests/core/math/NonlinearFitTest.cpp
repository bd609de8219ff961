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
using test::fitLines;
using test::Points;
using test::pointsAt;
using test::range;

// The fitted coefficients, checked to `digits`; the lines are the heading and one per coefficient.
void expectFit(const FitResult& result, int model, std::size_t count, const std::vector<double>& expected,
               int digits, const char* what) {
  ASSERT_EQ(result.coefficients.size(), expected.size()) << what << ": " << result.lines.front();
  ASSERT_EQ(result.lines.size(), 5 + expected.size()) << what;
  EXPECT_EQ(std::vector<std::string>(result.lines.begin(), result.lines.begin() + 5), fitLines(model, count))
      << what;
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_TRUE(agreesTo(result.coefficients[i], expected[i], digits, 1e-9)) << what << " #" << i;
  }
}

TEST(NonlinearModel, ReportsHowTheSolverEnded) {
  const std::vector<double> xs = range(-5, 10, 1);
  std::vector<double> ys;
  for (double x : xs) ys.push_back(LogisticModel::value(x, 2.0, 0.8, 10.0));
  std::vector<double> broken = ys;
  broken[3] = std::nan("");
  const struct {
    const char* what;
    const std::vector<double>* ys;  // none: no data loaded
    bool farStart;                  // from a = 1, b = 0.1, c = 3 with one iteration
    NonlinearModel::Status status;
  } cases[] = {
      {"no data", nullptr, false, NonlinearModel::kNotReady},
      {"a NaN in the data", &broken, false, NonlinearModel::kUnsolvableStep},
      {"far from the answer", &ys, true, NonlinearModel::kIterationLimit},
      {"from the estimate", &ys, false, NonlinearModel::kConverged},
  };
  for (const auto& c : cases) {
    LogisticModel model;
    if (c.ys != nullptr) model.setData(xs, *c.ys);
    if (c.farStart) {
      model.setParameter(0, 1.0);
      model.setParameter(1, 0.1);
      model.setParameter(2, 3.0);
      model.setIterationLimit(1);
    } else if (c.ys != nullptr) {
      model.estimateStart();
    }
    EXPECT_EQ(model.solve(), c.status == NonlinearModel::kConverged) << c.what;
    EXPECT_EQ(model.status(), c.status) << c.what;
    if (c.farStart) {
      EXPECT_EQ(model.iterationsUsed(), 1);
    }
    if (c.status == NonlinearModel::kConverged) {
      EXPECT_TRUE(agreesTo(model.sumOfSquares(), 0.0, 1, 1e-20));
    }
  }
}

TEST(LogisticFit, RecoversTheCurveTheDataWereMadeFrom) {
  const struct {
    const char* what;
    double a, b, c;
    std::vector<double> xs;
  } cases[] = {
      {"growth", 2.0, 0.8, 10.0, range(-5, 10, 1)},
      {"decline (negative b)", 0.5, -1.5, 3.0, range(-4, 4, 0.5)},
      {"only the lower half seen", 50.0, 0.4, 100.0, range(0, 9, 0.5)},
  };
  for (const auto& c : cases) {
    const Points points =
        test::sample(c.xs, [&](double x) { return LogisticModel::value(x, c.a, c.b, c.c); });
    expectFit(runFit(kLogistic, pointsAt(points)), kLogistic, points.size(), {c.a, c.b, c.c}, 8, c.what);
  }
}

TEST(NonlinearFits, AFailureIsTheMessageAlone) {
  const std::pair<int, const char*> models[] = {{kLogistic, "Invalid data set for logistic fit."},
                                                {kSinusoidal, "Invalid data set for sinusoidal fit."}};
  for (const auto& [model, message] : models) {
    const FitResult result = runFit(model, pointsAt({{0, 1}, {1, std::nan("")}, {2, 3}, {3, 3.5}}), 1.0);
    EXPECT_TRUE(result.ran) << model;
    EXPECT_EQ(result.lines, std::vector<std::string>{message}) << model;
    EXPECT_TRUE(result.coefficients.empty()) << model;
  }
}

TEST(SinusoidalFit, RecoversTheWaveInItsUsualForm) {
  const double pi = std::numbers::pi;
  const struct {
    const char* what;
    double a, b, c, d;
    std::vector<double> xs;
    std::vector<double> reported;  // the same wave with a >= 0, b >= 0 and -pi < c <= pi
  } cases[] = {
      {"three cycles", 2.0, 1.5, 0.4, -1.0, range(0, 12, 0.1), {2.0, 1.5, 0.4, -1.0}},
      {"negative amplitude", -3.0, 0.7, 1.0, 2.0, range(-10, 10, 0.2), {3.0, 0.7, 1.0 - pi, 2.0}},
      {"negative frequency", 1.0, -2.0, 0.5, 0.0, range(0, 10, 0.1), {1.0, 2.0, pi - 0.5, 0.0}},
      {"unsorted x",
       4.0,
       0.25,
       2.5,
       -3.0,
       {40, 3, 17, 29, 8, 35, 1, 22, 13, 44, 26, 5, 31, 10, 38, 19},
       {4.0, 0.25, 2.5, -3.0}},
  };
  for (const auto& c : cases) {
    const Points points =
        test::sample(c.xs, [&](double x) { return SinusoidalModel::value(x, c.a, c.b, c.c, c.d); });
    int asked = 0;
    const FitResult result = runFit(kSinusoidal, pointsAt(points), [&](double estimate) {
      ++asked;
      // The start value offered is already close to the true b.
      EXPECT_TRUE(agreesTo(estimate, std::fabs(c.b), 2)) << c.what << ": " << estimate;
      return estimate;  // "Use Default"
    });
    EXPECT_EQ(asked, 1) << c.what;
    expectFit(result, kSinusoidal, points.size(), c.reported, 8, c.what);
  }
}

TEST(SinusoidalFit, StartsFromTheChosenB) {
  // Sampled 4 times a cycle, sin(x + 0.3) takes the same values as sin(3x + pi - 0.3):
  // which wave comes back depends on the start value the user chose. A negative
  // choice comes back as the same wave with a positive b.
  const double pi = std::numbers::pi;
  const Points points = test::sample(range(0, 20 * pi, pi / 2),
                                     [](double x) { return SinusoidalModel::value(x, 1, 1, 0.3, 0); });
  const struct {
    double chosen, b, c;
  } cases[] = {{1.05, 1.0, 0.3}, {-1.05, 1.0, 0.3}, {2.95, 3.0, pi - 0.3}};
  for (const auto& c : cases) {
    const std::string what = "chosen " + std::to_string(c.chosen);
    expectFit(runFit(kSinusoidal, pointsAt(points), c.chosen), kSinusoidal, points.size(),
              {1.0, c.b, c.c, 0.0}, 8, what.c_str());
  }
}

TEST(SinusoidalFit, FollowsNoisyData) {
  // A repeatable disturbance, evenly spread over [-0.3, 0.3].
  std::uint64_t state = 12345;
  const Points points = test::sample(range(0, 30, 0.1), [&](double x) {
    state = state * 6364136223846793005ULL + 1442695040888963407ULL;
    const double noise = static_cast<double>(state >> 11) / static_cast<double>(1ULL << 53) * 2.0 - 1.0;
    return SinusoidalModel::value(x, 3.0, 0.7, 1.0, 2.0) + 0.3 * noise;
  });
  const FitResult result = runFit(kSinusoidal, pointsAt(points));
  ASSERT_EQ(result.coefficients.size(), 4u) << result.lines.front();
  const double expected[] = {3.0, 0.7, 1.0, 2.0};
  const int digits[] = {2, 3, 2, 2};
  for (std::size_t i = 0; i < 4; ++i)
    EXPECT_TRUE(agreesTo(result.coefficients[i], expected[i], digits[i])) << i;
}

}  // namespace
}  // namespace sonalyx
