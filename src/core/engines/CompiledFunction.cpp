#include "core/engines/CompiledFunction.h"

#include <algorithm>
#include <array>
#include <type_traits>
#include <utility>

#include "core/engines/ExpressionCompiler.h"

namespace sonalyx {

namespace {

using Operand = ExpressionCode::Operand;
using Op = ExpressionOperation;
namespace em = expression_math;

// One operand of an instruction within a block: a column of values or a constant.
struct Source {
  const double* column;  // null for a constant
  double constant;
};

// The loops below are the whole cost of a run: each is a plain loop over
// distinct arrays calling an inline function, which the compiler vectorises.
template <class F>
void unaryLoop(const double* a, double* out, std::size_t n, F f) {
  for (std::size_t i = 0; i < n; ++i) out[i] = f(a[i]);
}

template <class F>
void binaryLoop(Source a, Source b, double* out, std::size_t n, F f) {
  if (a.column != nullptr && b.column != nullptr) {
    for (std::size_t i = 0; i < n; ++i) out[i] = f(a.column[i], b.column[i]);
  } else if (a.column != nullptr) {
    const double c = b.constant;
    for (std::size_t i = 0; i < n; ++i) out[i] = f(a.column[i], c);
  } else {
    const double c = a.constant;
    for (std::size_t i = 0; i < n; ++i) out[i] = f(c, b.column[i]);
  }
}

// As fixedWholePower, in two passes: the branch-free steps for every value, then
// pow for the rare values out of their reach.
template <int N>
void wholePowerLoop(const double* a, double* out, std::size_t n) {
  unaryLoop(a, out, n, [](double v) { return em::wholePowerSteps<N>(v); });
  if constexpr (!em::isSimpleWholePower(N)) {
    constexpr double kReach = em::wholePowerReach(N < 0 ? -N : N);
    unsigned outside = 0;
    for (std::size_t i = 0; i < n; ++i) outside |= em::withinWholePowerReach(a[i], kReach) ? 0u : 1u;
    if (outside != 0) {
      for (std::size_t i = 0; i < n; ++i) {
        if (!em::withinWholePowerReach(a[i], kReach)) out[i] = std::pow(a[i], static_cast<double>(N));
      }
    }
  }
}

template <double (*F)(double)>
void libraryLoop(const double* a, double* out, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) out[i] = F(a[i]);
}

double sinOf(double v) {
  return std::sin(v);
}
double cosOf(double v) {
  return std::cos(v);
}
double tanOf(double v) {
  return std::tan(v);
}
double asinOf(double v) {
  return std::asin(v);
}
double acosOf(double v) {
  return std::acos(v);
}
double atanOf(double v) {
  return std::atan(v);
}
double sinhOf(double v) {
  return std::sinh(v);
}
double coshOf(double v) {
  return std::cosh(v);
}
double tanhOf(double v) {
  return std::tanh(v);
}
double asinhOf(double v) {
  return std::asinh(v);
}
double acoshOf(double v) {
  return std::acosh(v);
}
double atanhOf(double v) {
  return std::atanh(v);
}
double expOf(double v) {
  return std::exp(v);
}
double lnOf(double v) {
  return std::log(v);
}
double logOf(double v) {
  return std::log10(v);
}
double floorOf(double v) {
  return std::floor(v);
}
double ceilOf(double v) {
  return std::ceil(v);
}
double roundOf(double v) {
  return std::round(v);
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
  const auto& instructions = m_code.instructions;
  const auto source = [&](const Operand& o) -> Source {
    switch (o.kind) {
      case Operand::Kind::X:
        return {x, 0.0};
      case Operand::Kind::Register:
        return {registers + o.index * stride, 0.0};
      case Operand::Kind::Constant:
        break;
    }
    return {nullptr, o.value};
  };
  for (std::size_t k = 0; k < instructions.size(); ++k) {
    const ExpressionCode::Instruction& in = instructions[k];
    // The last instruction computes the result: straight into y.
    double* out = k + 1 == instructions.size() ? y : registers + in.target * stride;
    const Source a = source(in.a);
    switch (in.op) {
      case Op::Negate:
        unaryLoop(a.column, out, n, [](double v) { return -v; });
        break;
      case Op::Add:
        binaryLoop(a, source(in.b), out, n, [](double p, double q) { return p + q; });
        break;
      case Op::Subtract:
        binaryLoop(a, source(in.b), out, n, [](double p, double q) { return p - q; });
        break;
      case Op::Multiply:
        binaryLoop(a, source(in.b), out, n, [](double p, double q) { return p * q; });
        break;
      case Op::Divide:
        binaryLoop(a, source(in.b), out, n, [](double p, double q) { return p / q; });
        break;
      case Op::Power:
        binaryLoop(a, source(in.b), out, n, [](double p, double q) { return em::power(p, q); });
        break;
      case Op::WholePower:
        em::withWholePower(in.exponent, [&](auto exponent) {
          if constexpr (std::is_same_v<decltype(exponent), int>) {
            unaryLoop(a.column, out, n,
                      [exponent](double v) { return em::wholePowerAtRunTime(v, exponent); });
          } else {
            wholePowerLoop<decltype(exponent)::value>(a.column, out, n);
          }
        });
        break;
      case Op::Factorial:
        unaryLoop(a.column, out, n, [](double v) { return em::factorial(v); });
        break;
      case Op::Sin:
        libraryLoop<sinOf>(a.column, out, n);
        break;
      case Op::Cos:
        libraryLoop<cosOf>(a.column, out, n);
        break;
      case Op::Tan:
        libraryLoop<tanOf>(a.column, out, n);
        break;
      case Op::Asin:
        libraryLoop<asinOf>(a.column, out, n);
        break;
      case Op::Acos:
        libraryLoop<acosOf>(a.column, out, n);
        break;
      case Op::Atan:
        libraryLoop<atanOf>(a.column, out, n);
        break;
      case Op::Sinh:
        libraryLoop<sinhOf>(a.column, out, n);
        break;
      case Op::Cosh:
        libraryLoop<coshOf>(a.column, out, n);
        break;
      case Op::Tanh:
        libraryLoop<tanhOf>(a.column, out, n);
        break;
      case Op::Asinh:
        libraryLoop<asinhOf>(a.column, out, n);
        break;
      case Op::Acosh:
        libraryLoop<acoshOf>(a.column, out, n);
        break;
      case Op::Atanh:
        libraryLoop<atanhOf>(a.column, out, n);
        break;
      case Op::Exp:
        libraryLoop<expOf>(a.column, out, n);
        break;
      case Op::Ln:
        libraryLoop<lnOf>(a.column, out, n);
        break;
      case Op::Log:
        libraryLoop<logOf>(a.column, out, n);
        break;
      case Op::Sqrt:
        unaryLoop(a.column, out, n, [](double v) { return std::sqrt(v); });
        break;
      case Op::Abs:
        unaryLoop(a.column, out, n, [](double v) { return std::fabs(v); });
        break;
      case Op::Floor:
        libraryLoop<floorOf>(a.column, out, n);
        break;
      case Op::Ceil:
        libraryLoop<ceilOf>(a.column, out, n);
        break;
      case Op::Round:
        libraryLoop<roundOf>(a.column, out, n);
        break;
      case Op::Sign:
        unaryLoop(a.column, out, n, [](double v) { return em::sign(v); });
        break;
    }
  }
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
