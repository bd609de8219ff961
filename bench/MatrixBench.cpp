#include <benchmark/benchmark.h>

#include <random>
#include <stdexcept>
#include <string>

#include "core/engines/MatrixEngine.h"
#include "core/utility/NumberFormat.h"

// The inverse of a 100 x 100 matrix typed as text, read, inverted and written
// back as text: what one Enter on the Matrix page costs for a large matrix.

namespace {

std::string randomMatrixText(int n) {
  std::mt19937 generator(7);
  std::uniform_real_distribution<double> element(-10.0, 10.0);
  std::string text = "inv([";
  for (int i = 0; i < n; ++i) {
    if (i > 0) text += ';';
    for (int j = 0; j < n; ++j) {
      if (j > 0) text += ',';
      text += sonalyx::formatNumber(element(generator), "%.10g");
    }
  }
  return text + "])";
}

}  // namespace

static void BM_MatrixInverse100FromText(benchmark::State& state) {
  const std::string expression = randomMatrixText(100);
  sonalyx::MatrixEngine engine;
  std::string result;
  for (auto _ : state) {
    if (!engine.Calculate(expression, result)) throw std::runtime_error(engine.lastError());
    benchmark::DoNotOptimize(result.data());
  }
  state.counters["chars"] = static_cast<double>(result.size());
}

BENCHMARK(BM_MatrixInverse100FromText)->Unit(benchmark::kMillisecond);
