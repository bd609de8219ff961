#include <benchmark/benchmark.h>

#include <cmath>
#include <vector>

#include "core/math/FitModel.h"
#include "core/math/RegressionFit.h"

namespace {

sonalyx::DataSet noisyCurve(std::size_t count, double (*curve)(double)) {
  std::vector<sonalyx::DataPoint> points(count);
  for (std::size_t i = 0; i < count; ++i) {
    const double x = -10.0 + 20.0 * static_cast<double>(i) / static_cast<double>(count);
    points[i].x = x;
    points[i].y = curve(x) + 0.01 * std::sin(37.0 * x);
  }
  sonalyx::DataSet set;
  set.assign(std::move(points));
  return set;
}

// A whole "Evaluate Statistics" run on the largest tables the program fills.
void BM_LinearFitOfAMillionPoints(benchmark::State& state) {
  const sonalyx::DataSet set = noisyCurve(1'000'000, [](double x) { return 3.0 - 2.0 * x; });
  for (auto _ : state) {
    sonalyx::FitResult result = sonalyx::runFit(sonalyx::kLinear, set);
    benchmark::DoNotOptimize(result);
  }
}
BENCHMARK(BM_LinearFitOfAMillionPoints)->Unit(benchmark::kMillisecond);

void BM_QuarticFitOf100kPoints(benchmark::State& state) {
  const sonalyx::DataSet set =
      noisyCurve(100'000, [](double x) { return 0.5 * x * x * x * x - x * x + 2.0; });
  for (auto _ : state) {
    sonalyx::FitResult result = sonalyx::runFit(sonalyx::kQuartic, set);
    benchmark::DoNotOptimize(result);
  }
}
BENCHMARK(BM_QuarticFitOf100kPoints)->Unit(benchmark::kMillisecond);

}  // namespace
