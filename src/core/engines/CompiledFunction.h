#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "core/engines/EvaluationError.h"
#include "core/engines/ExpressionCode.h"

namespace sonalyx {

// An expression in x read once and run over many x values. The values are those
// Calculate gives for the same text with x written in full, bit for bit: both come
// from the same reader and the same operations. A value outside a function's
// domain is NaN or an infinity there, as in Calculate; only the reading can fail.
class CompiledFunction {
 public:
  // Values run through each instruction together: enough to pay for dispatching
  // it, few enough that the registers stay in the first-level cache.
  static constexpr std::size_t kBlock = 256;

  // The expression in x, or nothing with `error` saying why it cannot be read
  // ("Unknown name y.", "Write a * between a number and x.").
  static std::optional<CompiledFunction> compile(std::string_view expression, EvaluationError& error);

  // y[i] = f(x[i]) for i < n. `scratch` holds the registers between calls, so a
  // caller that keeps it allocates nothing after the first call. y may be x
  // itself but must not overlap it otherwise.
  void evaluate(const double* x, double* y, std::size_t n, std::vector<double>& scratch) const;
  void evaluate(const double* x, double* y, std::size_t n) const;
  double operator()(double x) const;

  // Whether the value does not depend on x (then it is `constantValue()`).
  bool isConstant() const { return m_code.result.isConstant(); }
  double constantValue() const { return m_code.result.value; }
  std::size_t instructionCount() const { return m_code.instructions.size(); }

 private:
  explicit CompiledFunction(ExpressionCode code) : m_code(std::move(code)) {}
  // Register r of the block at registers + r * stride.
  void runBlock(const double* x, double* y, std::size_t n, double* registers, std::size_t stride) const;

  ExpressionCode m_code;
};

}  // namespace sonalyx
