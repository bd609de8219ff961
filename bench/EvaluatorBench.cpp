#include <benchmark/benchmark.h>
#include <muParser.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "core/engines/Evaluator.h"
#include "core/math/DataSet.h"
#include "core/math/FunctionSampler.h"

// Sampling substitutes a number into the text and parses it again for every value:
// 10 evaluator calls per point, 5,010 for the default 501 points. muparser, a
// general-purpose parser, is the yardstick for the same substitute-and-parse work.

namespace {

const char* const kExpression = "sin(x)*x^2+3";

// The evaluator as sampling calls it, with its error as text.
bool calculateText(const std::string& text, double& result, std::string& error) {
  return sonalyx::Calculate(text, result, error);
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

void sample(benchmark::State& state, const sonalyx::FunctionSampler::Evaluator& evaluate, int points) {
  sonalyx::FunctionSampler sampler({}, evaluate);
  sonalyx::DataSet set;
  std::string error;
  for (auto _ : state) {
    if (!sampler.computeFunction(set, kExpression, -10.0, 10.0, points, error))
      throw std::runtime_error(error);
    benchmark::DoNotOptimize(set.points().data());
  }
  state.counters["calls"] = static_cast<double>(points + 2 * points + 7 * (points - 1));
}

// The 5,010 texts one default sampling hands to the evaluator.
const std::vector<std::string>& sampledTexts() {
  static const std::vector<std::string> texts = [] {
    std::vector<std::string> recorded;
    sonalyx::FunctionSampler sampler({}, [&](const std::string& text, double& result, std::string& error) {
      recorded.push_back(text);
      return sonalyx::Calculate(text, result, error);
    });
    sonalyx::DataSet set;
    std::string error;
    sampler.computeFunction(set, kExpression, -10.0, 10.0, 501, error);
    return recorded;
  }();
  return texts;
}

void parseOnly(benchmark::State& state, bool (*evaluate)(const std::string&, double&, std::string&)) {
  const auto& texts = sampledTexts();
  std::string error;
  for (auto _ : state) {
    double total = 0.0;
    for (const auto& text : texts) {
      double v = 0.0;
      if (!evaluate(text, v, error)) throw std::runtime_error(error);
      total += v;
    }
    benchmark::DoNotOptimize(total);
  }
  state.counters["calls"] = static_cast<double>(texts.size());
}

}  // namespace

static void BM_Sample501_Calculate(benchmark::State& state) {
  sample(state, calculateText, 501);
}
static void BM_Sample501_MuparserNewParser(benchmark::State& state) {
  sample(state, muparserNewParser, 501);
}
static void BM_Sample501_MuparserSetExpr(benchmark::State& state) {
  sample(state, muparserSetExpr, 501);
}
static void BM_Sample100001_Calculate(benchmark::State& state) {
  sample(state, calculateText, 100001);
}
static void BM_Parse5010_Calculate(benchmark::State& state) {
  parseOnly(state, sonalyx::Calculate);
}
static void BM_Parse5010_MuparserNewParser(benchmark::State& state) {
  parseOnly(state, muparserNewParser);
}
static void BM_Parse5010_MuparserSetExpr(benchmark::State& state) {
  parseOnly(state, muparserSetExpr);
}

BENCHMARK(BM_Sample501_Calculate)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Sample501_MuparserNewParser)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Sample501_MuparserSetExpr)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Sample100001_Calculate)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Parse5010_Calculate)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Parse5010_MuparserNewParser)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Parse5010_MuparserSetExpr)->Unit(benchmark::kMillisecond);
