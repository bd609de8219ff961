// Filling a data set from f(x), side by side in one run: Sonalyx's sampler (the
// expression compiled once and run in blocks) against fparser (parsed and
// optimised once), muparser (compiled once, value by value and in its bulk mode)
// and the same functions written by hand in C++. "y" is the values on the grid
// alone; "whole" is the sampler's whole job: y, the derivative from f(x -+ 0.001),
// the 7-node integral of every interval and the trend, ten values of f per point,
// each contender driven the same way. Everything is checked to agree before
// anything is timed; the table at the end gives ns per point and how many times
// slower each contender is than Sonalyx.

#include <benchmark/benchmark.h>
#include <muParser.h>
#include <fparser.hh>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "core/engines/CompiledFunction.h"
#include "core/math/DataSet.h"
#include "core/math/FunctionSampler.h"

namespace {

using sonalyx::CompiledFunction;
using sonalyx::DataSet;

struct Function {
  const char* sonalyx;  // our log is base 10
  const char* other;    // the same for fparser and muparser
  double (*hand)(double);
};

const std::array<Function, 5> kFunctions = {{
    {"x^2-4", "x^2-4", [](double x) { return x * x - 4.0; }},
    {"sin(x)*exp(-x/5)", "sin(x)*exp(-x/5)", [](double x) { return std::sin(x) * std::exp(-x / 5.0); }},
    {"sqrt(abs(x))+log(1+x^2)", "sqrt(abs(x))+log10(1+x^2)",
     [](double x) { return std::sqrt(std::fabs(x)) + std::log10(1.0 + x * x); }},
    // By hand a polynomial is written in Horner's form.
    {"3*x^6-2*x^5+x^4-7*x^3+x^2-x+1", "3*x^6-2*x^5+x^4-7*x^3+x^2-x+1",
     [](double x) { return (((((3.0 * x - 2.0) * x + 1.0) * x - 7.0) * x + 1.0) * x - 1.0) * x + 1.0; }},
    {"atan(x)/(1+cos(x)^2)", "atan(x)/(1+cos(x)^2)",
     [](double x) {
       const double c = std::cos(x);
       return std::atan(x) / (1.0 + c * c);
     }},
}};

const std::array<int, 2> kSizes = {501, 100001};
constexpr double kFrom = -10.0;
constexpr double kTo = 10.0;

// ---- the sampler's job, for a contender that computes f one value at a time or
// a block at a time. The arithmetic around f is the sampler's own.

constexpr double kStep = 0.001;
constexpr std::array<double, 7> kNodes = {-0.949107912342758, -0.741531185599394, -0.405845151377397, 0.0,
                                          0.405845151377397,  0.741531185599394,  0.949107912342758};
constexpr std::array<double, 7> kWeights = {0.12948496616887,  0.279705391489277, 0.381830050505119,
                                            0.417959183673469, 0.381830050505119, 0.279705391489277,
                                            0.12948496616887};

double zeroTiny(double v) {
  return std::fabs(v) < 1e-11 ? 0.0 : v;
}

void finishIntegral(DataSet& set, std::size_t i, double sum, double& integral, double& magnitude) {
  integral += sum;
  magnitude += std::fabs(sum);
  set.setIntegral(i, std::fabs(integral) <= magnitude * 1e-14 ? 0.0 : integral);
}

template <class F>
void jobOneByOne(DataSet& set, F&& f, int points) {
  set.makeGrid(kFrom, kTo, static_cast<std::size_t>(points));
  double integral = 0.0;
  double magnitude = 0.0;
  set.setIntegral(0, 0.0);
  for (std::size_t i = 0; i < set.count(); ++i) {
    const double x = set.getX(i);
    set.setY(i, f(zeroTiny(x)));
    set.setDerivative(i, (f(zeroTiny(x + kStep)) - f(zeroTiny(x - kStep))) * 500.0);
    if (i == 0) continue;
    const double left = set.getX(i - 1);
    const double h = zeroTiny((x - left) * 0.5);
    const double m = zeroTiny((x + left) * 0.5);
    double sum = 0.0;
    for (std::size_t k = 0; k < kNodes.size(); ++k) sum += kWeights[k] * (h * f(h * kNodes[k] + m));
    finishIntegral(set, i, sum, integral, magnitude);
  }
  sonalyx::FunctionSampler::setTrends(set);
}

// `bulk(xs, ys, n)` fills ys from xs: all ten values of every point in one call,
// the bulk mode at its best (column c of the arrays is [c * count, (c+1) * count)).
template <class Bulk>
void jobInBulk(DataSet& set, Bulk&& bulk, int points) {
  set.makeGrid(kFrom, kTo, static_cast<std::size_t>(points));
  const std::size_t n = set.count();
  static std::vector<double> xs;
  static std::vector<double> ys;
  static std::vector<double> halfWidths;
  xs.resize(10 * n);
  ys.resize(10 * n);
  halfWidths.resize(n);
  for (std::size_t i = 0; i < n; ++i) {
    const double x = set.getX(i);
    const double left = i == 0 ? x : set.getX(i - 1);
    xs[i] = zeroTiny(x);
    xs[n + i] = zeroTiny(x - kStep);
    xs[2 * n + i] = zeroTiny(x + kStep);
    halfWidths[i] = zeroTiny((x - left) * 0.5);
    const double m = zeroTiny((x + left) * 0.5);
    for (std::size_t k = 0; k < kNodes.size(); ++k) xs[(3 + k) * n + i] = halfWidths[i] * kNodes[k] + m;
  }
  bulk(xs.data(), ys.data(), 10 * n);
  double integral = 0.0;
  double magnitude = 0.0;
  set.setIntegral(0, 0.0);
  for (std::size_t i = 0; i < n; ++i) {
    set.setY(i, ys[i]);
    set.setDerivative(i, (ys[2 * n + i] - ys[n + i]) * 500.0);
    if (i == 0) continue;
    double sum = 0.0;
    for (std::size_t k = 0; k < kNodes.size(); ++k)
      sum += kWeights[k] * (halfWidths[i] * ys[(3 + k) * n + i]);
    finishIntegral(set, i, sum, integral, magnitude);
  }
  sonalyx::FunctionSampler::setTrends(set);
}

// ---- the contenders

// fparser's Eval is not const; one parser per function, parsed and optimised once.
struct Fparser {
  explicit Fparser(const char* text) {
    if (parser.Parse(text, "x") >= 0) fail(text, parser.ErrorMsg());
    parser.Optimize();
  }
  double operator()(double x) { return parser.Eval(&x); }
  static void fail(const char* text, const char* why) {
    std::fprintf(stderr, "fparser cannot read %s: %s\n", text, why);
    std::exit(1);
  }
  FunctionParser parser;
};

// muparser value by value: x is a variable the parser reads where it stands.
struct Muparser {
  explicit Muparser(const char* text) {
    parser.DefineVar("x", &x);
    parser.SetExpr(text);
    parser.Eval();  // compiles to byte code
  }
  double operator()(double v) {
    x = v;
    return parser.Eval();
  }
  double x = 0.0;
  mu::Parser parser;
};

// muparser's bulk mode: the variable is an array and one call fills an array.
struct MuparserBulk {
  explicit MuparserBulk(const char* text) : text(text) {}
  void operator()(double* xs, double* ys, std::size_t n) {
    if (xs != boundTo) {
      parser.DefineVar("x", xs);
      parser.SetExpr(text);
      boundTo = xs;
    }
    parser.Eval(ys, static_cast<int>(n));
  }
  std::string text;
  double* boundTo = nullptr;
  mu::Parser parser;
};

enum Contender { kSonalyx, kFparser, kMuparser, kMuparserBulk, kHand, kContenders };
const char* const kContenderNames[kContenders] = {"sonalyx", "fparser", "muparser", "muparser-bulk",
                                                  "by-hand"};

// What one contender does for one function: fill y on a grid, or the whole job.
struct Runner {
  std::function<void(const std::vector<double>& xs, std::vector<double>& ys)> y;
  std::function<void(DataSet& set, int points)> whole;
};

Runner runnerFor(Contender c, const Function& f) {
  switch (c) {
    case kSonalyx: {
      sonalyx::EvaluationError error;
      auto compiled = std::make_shared<CompiledFunction>(*CompiledFunction::compile(f.sonalyx, error));
      auto scratch = std::make_shared<std::vector<double>>();
      std::string text = f.sonalyx;
      return {[compiled, scratch](const std::vector<double>& xs, std::vector<double>& ys) {
                compiled->evaluate(xs.data(), ys.data(), xs.size(), *scratch);
              },
              // The whole job as the program runs it: reading the text included.
              [text](DataSet& set, int points) {
                sonalyx::FunctionSampler sampler;
                std::string error;
                if (!sampler.computeFunction(set, text, kFrom, kTo, points, error)) std::abort();
              }};
    }
    case kFparser: {
      auto p = std::make_shared<Fparser>(f.other);
      return {[p](const std::vector<double>& xs, std::vector<double>& ys) {
                for (std::size_t i = 0; i < xs.size(); ++i) ys[i] = (*p)(xs[i]);
              },
              [p](DataSet& set, int points) { jobOneByOne(set, *p, points); }};
    }
    case kMuparser: {
      auto p = std::make_shared<Muparser>(f.other);
      return {[p](const std::vector<double>& xs, std::vector<double>& ys) {
                for (std::size_t i = 0; i < xs.size(); ++i) ys[i] = (*p)(xs[i]);
              },
              [p](DataSet& set, int points) { jobOneByOne(set, *p, points); }};
    }
    case kMuparserBulk: {
      auto y = std::make_shared<MuparserBulk>(f.other);
      auto whole = std::make_shared<MuparserBulk>(f.other);
      return {[y](const std::vector<double>& xs, std::vector<double>& ys) {
                (*y)(const_cast<double*>(xs.data()), ys.data(), xs.size());
              },
              [whole](DataSet& set, int points) { jobInBulk(set, *whole, points); }};
    }
    case kHand:
    case kContenders:
      break;
  }
  double (*hand)(double) = f.hand;
  return {[hand](const std::vector<double>& xs, std::vector<double>& ys) {
            for (std::size_t i = 0; i < xs.size(); ++i) ys[i] = hand(xs[i]);
          },
          [hand](DataSet& set, int points) { jobOneByOne(set, hand, points); }};
}

std::vector<double> grid(int points) {
  DataSet set;
  set.makeGrid(kFrom, kTo, static_cast<std::size_t>(points));
  std::vector<double> xs;
  for (const auto& p : set.points()) xs.push_back(p.x);
  return xs;
}

// Relative to the largest magnitude of the column: the derivative's difference
// quotient turns rounding differences of f into absolute differences.
bool columnsAgree(const std::vector<double>& a, const std::vector<double>& b, double tolerance) {
  double scale = 0.0;
  for (const double v : b) scale = std::max(scale, std::fabs(v));
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (std::isnan(a[i]) != std::isnan(b[i])) return false;
    if (!std::isnan(a[i]) && std::fabs(a[i] - b[i]) > tolerance * std::max(scale, 1.0)) return false;
  }
  return true;
}

std::vector<double> column(const DataSet& set, double sonalyx::DataPoint::*field) {
  std::vector<double> v;
  for (const auto& p : set.points()) v.push_back(p.*field);
  return v;
}

void checkAgreement() {
  for (const Function& f : kFunctions) {
    for (const int points : kSizes) {
      const std::vector<double> xs = grid(points);
      std::vector<double> reference(xs.size());
      DataSet referenceSet;
      runnerFor(kSonalyx, f).y(xs, reference);
      runnerFor(kSonalyx, f).whole(referenceSet, points);
      for (int c = kFparser; c < kContenders; ++c) {
        Runner r = runnerFor(static_cast<Contender>(c), f);
        std::vector<double> ys(xs.size());
        r.y(xs, ys);
        DataSet set;
        r.whole(set, points);
        const bool agree = columnsAgree(ys, reference, 1e-13) &&
                           columnsAgree(column(set, &sonalyx::DataPoint::y), reference, 1e-13) &&
                           columnsAgree(column(set, &sonalyx::DataPoint::derivative),
                                        column(referenceSet, &sonalyx::DataPoint::derivative), 1e-10) &&
                           columnsAgree(column(set, &sonalyx::DataPoint::integral),
                                        column(referenceSet, &sonalyx::DataPoint::integral), 1e-12);
        if (!agree) {
          std::fprintf(stderr, "%s disagrees with Sonalyx on %s at %d points\n", kContenderNames[c],
                       f.sonalyx, points);
          std::exit(1);
        }
      }
    }
  }
  std::printf(
      "All contenders agree with Sonalyx on y, derivative and integral (5 functions, 501 and 100001 "
      "points).\n");
}

// ---- timing

double minimum(const std::vector<double>& v) {
  return *std::min_element(v.begin(), v.end());
}

struct Key {
  std::string task;  // "y", "whole" or "compile"
  int points;
  int function;
  int contender;
  bool operator<(const Key& o) const {
    return std::tie(task, points, function, contender) < std::tie(o.task, o.points, o.function, o.contender);
  }
};
std::map<std::string, Key> g_keys;   // benchmark name -> what it measures
std::map<Key, double> g_nsPerPoint;  // the fastest repetition

// Keeps every run's time per point for the table at the end.
class TableReporter : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type != Run::RT_Aggregate || run.aggregate_name != "min") continue;
      const auto found = g_keys.find(run.run_name.function_name);
      if (found == g_keys.end()) continue;
      const Key& key = found->second;
      const double ns = run.GetAdjustedRealTime() * timeUnitNs(run.time_unit);
      g_nsPerPoint[key] = key.task == "compile" ? ns : ns / key.points;
    }
    ConsoleReporter::ReportRuns(runs);
  }

 private:
  static double timeUnitNs(benchmark::TimeUnit unit) {
    switch (unit) {
      case benchmark::kSecond:
        return 1e9;
      case benchmark::kMillisecond:
        return 1e6;
      case benchmark::kMicrosecond:
        return 1e3;
      default:
        return 1.0;
    }
  }
};

void registerOne(const Key& key, std::function<void(benchmark::State&)> body) {
  const std::string name = key.task + "/" + std::to_string(key.points) + "/" +
                           kFunctions[static_cast<std::size_t>(key.function)].sonalyx + "/" +
                           kContenderNames[key.contender];
  g_keys[name] = key;
  benchmark::RegisterBenchmark(name.c_str(), std::move(body))
      ->Repetitions(5)
      ->ComputeStatistics("min", minimum)
      ->ReportAggregatesOnly(true)
      ->MinTime(0.05)
      ->Unit(benchmark::kMicrosecond);
}

void registerAll() {
  for (int fi = 0; fi < static_cast<int>(kFunctions.size()); ++fi) {
    const Function& f = kFunctions[static_cast<std::size_t>(fi)];
    for (const int points : kSizes) {
      for (int c = 0; c < kContenders; ++c) {
        auto runner = std::make_shared<Runner>(runnerFor(static_cast<Contender>(c), f));
        auto xs = std::make_shared<std::vector<double>>(grid(points));
        registerOne({"y", points, fi, c}, [runner, xs](benchmark::State& state) {
          std::vector<double> ys(xs->size());
          for (auto _ : state) {
            runner->y(*xs, ys);
            benchmark::DoNotOptimize(ys.data());
          }
        });
        registerOne({"whole", points, fi, c}, [runner, points](benchmark::State& state) {
          DataSet set;
          for (auto _ : state) {
            runner->whole(set, points);
            benchmark::DoNotOptimize(set.points().data());
          }
        });
      }
    }
    // Reading the text, once per fill.
    registerOne({"compile", 1, fi, kSonalyx}, [f](benchmark::State& state) {
      sonalyx::EvaluationError error;
      for (auto _ : state) benchmark::DoNotOptimize(CompiledFunction::compile(f.sonalyx, error));
    });
    registerOne({"compile", 1, fi, kFparser}, [f](benchmark::State& state) {
      for (auto _ : state) {
        Fparser p(f.other);
        benchmark::DoNotOptimize(p.parser.Eval(&kFrom));
      }
    });
    registerOne({"compile", 1, fi, kMuparser}, [f](benchmark::State& state) {
      for (auto _ : state) {
        Muparser p(f.other);
        benchmark::DoNotOptimize(p(0.0));
      }
    });
  }
  // A million points, as sonalyx-cli sample --points 1000001 computes them.
  for (int fi = 0; fi < static_cast<int>(kFunctions.size()); ++fi) {
    auto runner = std::make_shared<Runner>(runnerFor(kSonalyx, kFunctions[static_cast<std::size_t>(fi)]));
    registerOne({"whole", 1000001, fi, kSonalyx}, [runner](benchmark::State& state) {
      DataSet set;
      for (auto _ : state) {
        runner->whole(set, 1000001);
        benchmark::DoNotOptimize(set.points().data());
      }
    });
  }
}

void printTable() {
  std::printf("\nns per point (compile: ns per expression); in brackets, times slower than Sonalyx\n");
  for (const char* task : {"y", "whole"}) {
    for (const int points : kSizes) {
      std::printf("\n%s, %d points\n%-31s", task, points, "f(x)");
      for (int c = 0; c < kContenders; ++c) std::printf("%22s", kContenderNames[c]);
      std::printf("\n");
      std::array<double, kContenders> logSum{};
      for (int fi = 0; fi < static_cast<int>(kFunctions.size()); ++fi) {
        std::printf("%-31s", kFunctions[static_cast<std::size_t>(fi)].sonalyx);
        const double ours = g_nsPerPoint[{task, points, fi, kSonalyx}];
        for (int c = 0; c < kContenders; ++c) {
          const double ns = g_nsPerPoint[{task, points, fi, c}];
          logSum[static_cast<std::size_t>(c)] += std::log(ns / ours);
          std::printf("%12.2f (%6.2fx)", ns, ns / ours);
        }
        std::printf("\n");
      }
      std::printf("%-31s", "geometric mean of the ratios");
      for (int c = 0; c < kContenders; ++c)
        std::printf("%12s (%6.2fx)", "", std::exp(logSum[static_cast<std::size_t>(c)] / kFunctions.size()));
      std::printf("\n");
    }
  }
  std::printf("\ncompile, ns per expression\n");
  for (int fi = 0; fi < static_cast<int>(kFunctions.size()); ++fi) {
    std::printf("%-31s", kFunctions[static_cast<std::size_t>(fi)].sonalyx);
    for (const int c : {kSonalyx, kFparser, kMuparser})
      std::printf("%s %10.0f  ", kContenderNames[c], g_nsPerPoint[{"compile", 1, fi, c}]);
    std::printf("\n");
  }
  std::printf("\nwhole job by Sonalyx, 1000001 points\n");
  for (int fi = 0; fi < static_cast<int>(kFunctions.size()); ++fi) {
    const double ns = g_nsPerPoint[{"whole", 1000001, fi, kSonalyx}];
    std::printf("%-31s %8.1f ms\n", kFunctions[static_cast<std::size_t>(fi)].sonalyx, ns * 1000001 / 1e6);
  }
}

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  checkAgreement();
  registerAll();
  TableReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  printTable();
  benchmark::Shutdown();
  return 0;
}
