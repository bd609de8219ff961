#include <benchmark/benchmark.h>

#include "core/utility/NumberFormat.h"

// Tables of 100,001 points are written through this, two numbers a line.
static void BM_FormatDataSetLine(benchmark::State& state) {
  double x = -10.0;
  for (auto _ : state) {
    std::string line =
        sonalyx::formatNumber(x, "%-10.10g") + ' ' + sonalyx::formatNumber(x * 1e-9, "%10.10g");
    benchmark::DoNotOptimize(line);
    x += 0.04;
  }
}
BENCHMARK(BM_FormatDataSetLine);
