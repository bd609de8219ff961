#include "core/engines/CompiledFunction.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/engines/ExpressionBlocks.h"
#include "core/engines/ExpressionBlocksAvx2.h"
#include "core/engines/ExpressionCompiler.h"

namespace sonalyx {

namespace {

using Operand = ExpressionCode::Operand;
using BlockRunner = void (*)(const ExpressionCode&, const double*, double*, std::size_t, double*,
                             std::size_t);

// The widest build of the block loops this processor runs; all give the same
// values.
BlockRunner blockRunner() {
  static const BlockRunner runner = [] {
#if defined(SONALYX_AVX2_BLOCKS)
    if (__builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma"))
      return BlockRunner{expression_blocks_avx2::runInstructions};
#endif
    return BlockRunner{expression_blocks::runInstructions};
  }();
  return runner;
}

}  // namespace

std::optional<CompiledFunction> CompiledFunction::compile(std::string_view expression,
                                                          EvaluationError& error) {
  ExpressionCode code;
  if (!compileExpression(expression, true, code, error)) return std::nullopt;
  return CompiledFunction(std::move(code));
}

void CompiledFunction::runBlock(const double* x, double* y, std::size_t n, double* registers,
                                std::size_t stride) const {
  blockRunner()(m_code, x, y, n, registers, stride);
}

void CompiledFunction::evaluate(const double* x, double* y, std::size_t n,
                                std::vector<double>& scratch) const {
  const Operand& result = m_code.result;
  if (result.kind == Operand::Kind::Constant) {
    std::fill(y, y + n, result.value);
    return;
  }
  if (result.kind == Operand::Kind::X) {
    if (y != x) std::copy(x, x + n, y);
    return;
  }
  // Some steps read their operand again after writing the result, so y must not
  // be x: in place, each block's result goes to a column of its own first.
  const bool inPlace = x == y;
  const std::size_t columns = static_cast<std::size_t>(m_code.registers) + (inPlace ? 1 : 0);
  if (scratch.size() < columns * kBlock) scratch.resize(columns * kBlock);
  double* const spare = scratch.data() + static_cast<std::size_t>(m_code.registers) * kBlock;
  for (std::size_t start = 0; start < n; start += kBlock) {
    const std::size_t count = std::min(kBlock, n - start);
    runBlock(x + start, inPlace ? spare : y + start, count, scratch.data(), kBlock);
    if (inPlace) std::copy(spare, spare + count, y + start);
  }
}

void CompiledFunction::evaluate(const double* x, double* y, std::size_t n) const {
  std::vector<double> scratch;
  evaluate(x, y, n, scratch);
}

double CompiledFunction::operator()(double x) const {
  if (m_code.result.kind != Operand::Kind::Register) {
    double y = 0.0;
    std::vector<double> none;
    evaluate(&x, &y, 1, none);
    return y;
  }
  // One value: registers one apart, on the stack for everyday expressions.
  std::array<double, 32> local{};
  std::vector<double> heap;
  double* registers = local.data();
  if (static_cast<std::size_t>(m_code.registers) > local.size()) {
    heap.resize(static_cast<std::size_t>(m_code.registers));
    registers = heap.data();
  }
  double y = 0.0;
  runBlock(&x, &y, 1, registers, 1);
  return y;
}

}  // namespace sonalyx
