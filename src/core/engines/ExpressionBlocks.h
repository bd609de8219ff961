#pragma once

#include <cmath>
#include <cstddef>
#include <type_traits>

#include "core/engines/ElementaryFunctions.h"
#include "core/engines/ExpressionCode.h"
#include "core/engines/ExpressionOperation.h"

// The loops that run compiled code over a block of values. Included by two
// translation units, one built for plain x86-64 and one with AVX2 and FMA
// (chosen at run time), so it has internal linkage. Each loop calls the same
// inline function `expression_math::apply` would, so a block gives the values
// the folding gives, bit for bit.
namespace sonalyx::expression_blocks {
namespace {

namespace em = expression_math;
namespace el = elementary;
using Operand = ExpressionCode::Operand;
using Op = ExpressionOperation;

// One operand of an instruction within a block: a column of values or a constant.
struct Source {
  const double* column;  // null for a constant
  double constant;
};

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

// A function whose steps hold within a range: the steps for every value
// (branch-free, vectorised), then the fallback for the rare values outside.
template <class Steps, class InRange, class Fallback>
void patchedLoop(const double* a, double* out, std::size_t n, Steps steps, InRange inRange,
                 Fallback fallback) {
  unaryLoop(a, out, n, steps);
  unsigned outside = 0;
  for (std::size_t i = 0; i < n; ++i) outside |= inRange(a[i]) ? 0u : 1u;
  if (outside == 0) return;
  for (std::size_t i = 0; i < n; ++i) {
    if (!inRange(a[i])) out[i] = fallback(a[i]);
  }
}

// As em::fixedWholePower<N>.
template <int N>
void wholePowerLoop(const double* a, double* out, std::size_t n) {
  if constexpr (em::isSimpleWholePower(N)) {
    unaryLoop(a, out, n, [](double v) { return em::wholePowerSteps<N>(v); });
  } else {
    constexpr double kReach = em::wholePowerReach(N < 0 ? -N : N);
    patchedLoop(
        a, out, n, [](double v) { return em::wholePowerSteps<N>(v); },
        [](double v) { return em::withinWholePowerReach(v, kReach); },
        [](double v) { return std::pow(v, static_cast<double>(N)); });
  }
}

template <double (*F)(double)>
void libraryLoop(const double* a, double* out, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) out[i] = F(a[i]);
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

// Runs every instruction over n values of x (n <= the block size); register r's
// column starts at registers + r * stride; the last instruction writes y.
void runInstructions(const ExpressionCode& code, const double* x, double* y, std::size_t n, double* registers,
                     std::size_t stride) {
  const auto& instructions = code.instructions;
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
        patchedLoop(
            a.column, out, n, [](double v) { return el::sinCosSteps<false>(v); }, el::sinCosInRange,
            [](double v) { return std::sin(v); });
        break;
      case Op::Cos:
        patchedLoop(
            a.column, out, n, [](double v) { return el::sinCosSteps<true>(v); }, el::sinCosInRange,
            [](double v) { return std::cos(v); });
        break;
      case Op::Atan:
        patchedLoop(a.column, out, n, el::atanSteps, el::atanInRange, [](double v) { return std::atan(v); });
        break;
      case Op::Exp:
        patchedLoop(a.column, out, n, el::expSteps, el::expInRange, [](double v) { return std::exp(v); });
        break;
      case Op::Ln:
        patchedLoop(a.column, out, n, el::lnSteps, el::logInRange, [](double v) { return std::log(v); });
        break;
      case Op::Log:
        patchedLoop(a.column, out, n, el::logSteps, el::logInRange, [](double v) { return std::log10(v); });
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
      case Op::Sqrt:
        unaryLoop(a.column, out, n, [](double v) { return std::sqrt(v); });
        break;
      case Op::Abs:
        unaryLoop(a.column, out, n, [](double v) { return std::fabs(v); });
        break;
      case Op::Floor:
        unaryLoop(a.column, out, n, [](double v) { return std::floor(v); });
        break;
      case Op::Ceil:
        unaryLoop(a.column, out, n, [](double v) { return std::ceil(v); });
        break;
      case Op::Round:
        unaryLoop(a.column, out, n, [](double v) { return std::round(v); });
        break;
      case Op::Sign:
        unaryLoop(a.column, out, n, [](double v) { return em::sign(v); });
        break;
    }
  }
}

}  // namespace
}  // namespace sonalyx::expression_blocks
