#include <benchmark/benchmark.h>
#include <muParser.h>

#include <cstdio>
#include <stdexcept>
#include <string>
#include <vector>

#include "core/engines/Evaluator.h"

// One text read and computed once, as the Evaluator page and the matrix elements
// do: Calculate against muparser, a general-purpose parser, given the same texts.

namespace {

// sin(x)*x^2+3 with 5,010 values of x written in: a typical line of numbers and
// functions.
const std::vector<std::string>& texts() {
  static const std::vector<std::string> all = [] {
    std::vector<std::string> t;
    for (int i = 0; i < 5010; ++i) {
      char text[64];
      std::snprintf(text, sizeof text, "sin(%.14g)*(%.14g)^2+3", -10.0 + i * 0.004, -10.0 + i * 0.004);
      t.push_back(text);
    }
    return t;
  }();
  return all;
}

bool muparserNewParser(const std::string& text, double& result, std::string& error) {
  try {
    mu::Parser parser;
    parser.SetExpr(text);
    result = parser.Eval();
    return true;
  } catch (const mu::Parser::exception_type& e) {
    error = e.GetMsg();
    return false;
  }
}

bool muparserSetExpr(const std::string& text, double& result, std::string& error) {
  static mu::Parser parser;
  try {
    parser.SetExpr(text);
    result = parser.Eval();
    return true;
  } catch (const mu::Parser::exception_type& e) {
    error = e.GetMsg();
    return false;
  }
}

bool calculate(const std::string& text, double& result, std::string& error) {
  return sonalyx::Calculate(text, result, error);
}

void readEach(benchmark::State& state, bool (*evaluate)(const std::string&, double&, std::string&)) {
  std::string error;
  for (auto _ : state) {
    double total = 0.0;
    for (const auto& text : texts()) {
      double v = 0.0;
      if (!evaluate(text, v, error)) throw std::runtime_error(error);
      total += v;
    }
    benchmark::DoNotOptimize(total);
  }
  state.counters["texts"] = static_cast<double>(texts().size());
}

}  // namespace

static void BM_Read5010_Calculate(benchmark::State& state) {
  readEach(state, calculate);
}
static void BM_Read5010_MuparserNewParser(benchmark::State& state) {
  readEach(state, muparserNewParser);
}
static void BM_Read5010_MuparserSetExpr(benchmark::State& state) {
  readEach(state, muparserSetExpr);
}

BENCHMARK(BM_Read5010_Calculate)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Read5010_MuparserNewParser)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Read5010_MuparserSetExpr)->Unit(benchmark::kMillisecond);
