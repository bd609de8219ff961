#include <benchmark/benchmark.h>

#include "core/engines/CCalcEngine.h"

// One key press and the display refresh that follows it: a chain of digits,
// operators, parentheses, a function and "=" as a user types them.
static void BM_CalcKeyPress(benchmark::State& state) {
  sonalyx::CCalcEngine engine;
  int presses = 0;
  for (auto _ : state) {
    engine.bttnDigit_Click(1);
    engine.bttnDecimal_Click();
    engine.bttnDigit_Click(7);
    engine.bttnBinOp_Click("+");
    engine.bttnBinOp_Click("(");
    engine.bttnDigit_Click(3);
    engine.bttnBinOp_Click("*");
    engine.bttnDigit_Click(4);
    engine.bttnBinOp_Click(")");
    engine.bttnBinOp_Click("X^Y");
    engine.bttnDigit_Click(2);
    engine.bttnUniOp_Click(0);
    engine.bttnBinOp_Click("=");
    engine.bttnBinOp_Click("=");
    engine.bttnMemory_Click(1);
    engine.bttnC_Click();
    presses += 16;
    benchmark::DoNotOptimize(engine.displayText.data());
  }
  state.SetItemsProcessed(presses);
}
BENCHMARK(BM_CalcKeyPress);

// The slowest single keys: a trigonometric function in radians and a base change
// that converts a pending expression.
static void BM_CalcSineInRadians(benchmark::State& state) {
  sonalyx::CCalcEngine engine;
  engine.angleMode = 1;
  for (auto _ : state) {
    engine.bttnPi_Click();
    engine.bttnUniOp_Click(0);
    benchmark::DoNotOptimize(engine.displayText.data());
  }
  state.SetItemsProcessed(state.iterations() * 2);
}
BENCHMARK(BM_CalcSineInRadians);

static void BM_CalcBaseChange(benchmark::State& state) {
  sonalyx::CCalcEngine engine;
  for (int i = 0; i < 10; ++i) {
    engine.bttnDigit_Click(9);
    engine.bttnBinOp_Click("+");
  }
  int base = 16;
  for (auto _ : state) {
    engine.SetNumberBaseState(base);
    base = base == 16 ? 10 : 16;
    benchmark::DoNotOptimize(engine.displayText.data());
  }
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_CalcBaseChange);
