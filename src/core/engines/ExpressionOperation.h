#pragma once

#include <cmath>
#include <cstdint>
#include <limits>
#include <string_view>
#include <type_traits>

#include "core/engines/ElementaryFunctions.h"
#include "core/engines/ExtendedArithmetic.h"

namespace sonalyx {

// What one step of an expression computes.
enum class ExpressionOperation : std::uint8_t {
  Negate,
  Add,
  Subtract,
  Multiply,
  Divide,
  Power,       // a ^ b, both computed
  WholePower,  // a ^ n for a whole exponent n known while parsing
  Factorial,
  Sin,
  Cos,
  Tan,
  Asin,
  Acos,
  Atan,
  Sinh,
  Cosh,
  Tanh,
  Asinh,
  Acosh,
  Atanh,
  Exp,
  Ln,
  Log,  // base 10
  Sqrt,
  Abs,
  Floor,
  Ceil,
  Round,
  Sign,
};

// The operation a function name stands for; false when it names none.
bool findFunctionOperation(std::string_view name, ExpressionOperation& op);

// The value of each operation. Every value the evaluator produces comes from
// `apply` (a constant folded while reading) or from a loop over a block calling
// the same inline functions (core/engines/ExpressionBlocks.h), so both give the
// same bits. Internal linkage, as in ExtendedArithmetic.h.
namespace expression_math {
namespace {

using extended::exactProduct;
using extended::Extended;

// Exponents this far from 0 are multiplied out rather than handed to pow.
constexpr int kLargestWholeExponent = 1024;

inline double factorial(double v) {
  if (v == std::floor(v)) {
    // The gamma function has poles at the negative integers: no value, no sign.
    if (v < 0.0) return std::numeric_limits<double>::quiet_NaN();
    // 170! is the largest factorial a double holds; the product is exact where
    // tgamma may be a few units off in the last place.
    if (v > 170.0) return std::numeric_limits<double>::infinity();
    double product = 1.0;
    for (int k = 2; k <= static_cast<int>(v); ++k) product *= k;
    return product;
  }
  return std::tgamma(v + 1.0);
}

inline double sign(double v) {
  if (v > 0.0) return 1.0;
  if (v < 0.0) return -1.0;
  return v;  // 0 stays 0, NaN stays NaN
}

// ---- x^n for a whole n: squared up from the leading bit with every product
// exact (hi + lo, lo left unnormalised between steps), rounded once at the end:
// the correctly rounded power but in vanishingly rare cases, where pow is a unit
// off in about 0.08 % of cases.

inline Extended times(Extended a, double b) {
  const Extended p = exactProduct(a.hi, b);
  return {p.hi, p.lo + a.lo * b};
}

inline Extended squared(Extended a) {
  const Extended p = exactProduct(a.hi, a.hi);
  return {p.hi, p.lo + 2.0 * a.hi * a.lo};
}

template <int N>
inline Extended extendedPower(double x) {
  if constexpr (N == 2) {
    return exactProduct(x, x);
  } else if constexpr (N % 2 == 0) {
    return squared(extendedPower<N / 2>(x));
  } else {
    return times(extendedPower<N - 1>(x), x);
  }
}

// The same steps for an exponent known only at run time (n >= 2).
inline Extended extendedPower(double x, unsigned n) {
  int top = 31;
  while (((n >> top) & 1u) == 0) --top;
  // The leading bit and the next: x^2 or x^3.
  --top;
  Extended r = exactProduct(x, x);
  if ((n >> top) & 1u) r = times(r, x);
  for (int bit = top - 1; bit >= 0; --bit) {
    r = squared(r);
    if ((n >> bit) & 1u) r = times(r, x);
  }
  return r;
}

// 1 / (hi + lo), rounded once.
inline double reciprocal(Extended v) {
  const double q = 1.0 / v.hi;
  const Extended p = exactProduct(q, v.hi);
  return q + q * (((1.0 - p.hi) - p.lo) - q * v.lo);
}

// |x| up to 2^(960 / |n|) and down to its reciprocal: there x^n and every step
// towards it stay far from overflow and underflow, so the products are exact.
// Outside (and for 0, infinities and NaN) pow decides.
constexpr double wholePowerReach(int magnitude) {
  double reach = 1.0;
  for (int k = 0; k < 960 / magnitude; ++k) reach *= 2.0;
  return reach;
}

inline bool withinWholePowerReach(double x, double reach) {
  const double m = std::fabs(x);
  return m <= reach && m * reach >= 1.0;
}

// Whether x^N is a plain value or one multiplication, exact or correctly rounded
// everywhere, with no range to check.
constexpr bool isSimpleWholePower(int n) {
  return n >= -1 && n <= 2;
}

// x^N by the steps above, without the check of the reach: branch-free, so a loop
// over a block vectorises; values out of reach are then redone.
template <int N>
inline double wholePowerSteps(double x) {
  if constexpr (N == 0) {
    return 1.0;  // as pow: even for NaN
  } else if constexpr (N == 1) {
    return x;
  } else if constexpr (N == -1) {
    return 1.0 / x;
  } else if constexpr (N == 2) {
    return x * x;
  } else {
    const Extended p = extendedPower<(N < 0 ? -N : N)>(x);
    if constexpr (N < 0) {
      return reciprocal(p);
    } else {
      return p.hi + p.lo;
    }
  }
}

template <int N>
inline double fixedWholePower(double x) {
  if constexpr (isSimpleWholePower(N)) {
    return wholePowerSteps<N>(x);
  } else {
    constexpr double kReach = wholePowerReach(N < 0 ? -N : N);
    if (!withinWholePowerReach(x, kReach)) return std::pow(x, static_cast<double>(N));
    return wholePowerSteps<N>(x);
  }
}

// Exponents beyond the fixed ones (|n| >= 2).
inline double wholePowerAtRunTime(double x, int n) {
  const int magnitude = n < 0 ? -n : n;
  if (!withinWholePowerReach(x, wholePowerReach(magnitude))) return std::pow(x, static_cast<double>(n));
  const Extended p = extendedPower(x, static_cast<unsigned>(magnitude));
  return n < 0 ? reciprocal(p) : p.hi + p.lo;
}

// Calls `body` with std::integral_constant<int, n> when n has a fixed-exponent
// function, else with n itself: the one choice the folding and the block loops
// both make, so they run the same steps.
template <class Body>
inline void withWholePower(int n, Body&& body) {
  switch (n) {
#define SONALYX_WHOLE_POWER_CASE(N)         \
  case N:                                   \
    body(std::integral_constant<int, N>{}); \
    return;
    SONALYX_WHOLE_POWER_CASE(0)
    SONALYX_WHOLE_POWER_CASE(1)
    SONALYX_WHOLE_POWER_CASE(2)
    SONALYX_WHOLE_POWER_CASE(3)
    SONALYX_WHOLE_POWER_CASE(4)
    SONALYX_WHOLE_POWER_CASE(5)
    SONALYX_WHOLE_POWER_CASE(6)
    SONALYX_WHOLE_POWER_CASE(7)
    SONALYX_WHOLE_POWER_CASE(8)
    SONALYX_WHOLE_POWER_CASE(-1)
    SONALYX_WHOLE_POWER_CASE(-2)
    SONALYX_WHOLE_POWER_CASE(-3)
    SONALYX_WHOLE_POWER_CASE(-4)
#undef SONALYX_WHOLE_POWER_CASE
    default:
      body(n);
      return;
  }
}

// x^n for a whole n with |n| <= kLargestWholeExponent.
inline double wholePower(double x, int n) {
  double result = 0.0;
  withWholePower(n, [&](auto exponent) {
    if constexpr (std::is_same_v<decltype(exponent), int>) {
      result = wholePowerAtRunTime(x, exponent);
    } else {
      result = fixedWholePower<decltype(exponent)::value>(x);
    }
  });
  return result;
}

// The exponent as a whole number the multiplied-out power takes, if it is one.
inline bool isWholeExponent(double b, int& n) {
  if (!(std::fabs(b) <= kLargestWholeExponent) || b != std::trunc(b)) return false;
  n = static_cast<int>(b);
  return true;
}

inline double power(double a, double b) {
  int n = 0;
  if (isWholeExponent(b, n)) return wholePower(a, n);
  return std::pow(a, b);
}

inline double apply(ExpressionOperation op, double a, double b = 0.0, int n = 0) {
  using Op = ExpressionOperation;
  switch (op) {
    case Op::Negate:
      return -a;
    case Op::Add:
      return a + b;
    case Op::Subtract:
      return a - b;
    case Op::Multiply:
      return a * b;
    case Op::Divide:
      return a / b;
    case Op::Power:
      return power(a, b);
    case Op::WholePower:
      return wholePower(a, n);
    case Op::Factorial:
      return factorial(a);
    case Op::Sin:
      return elementary::sin(a);
    case Op::Cos:
      return elementary::cos(a);
    case Op::Tan:
      return std::tan(a);
    case Op::Asin:
      return std::asin(a);
    case Op::Acos:
      return std::acos(a);
    case Op::Atan:
      return elementary::atan(a);
    case Op::Sinh:
      return std::sinh(a);
    case Op::Cosh:
      return std::cosh(a);
    case Op::Tanh:
      return std::tanh(a);
    case Op::Asinh:
      return std::asinh(a);
    case Op::Acosh:
      return std::acosh(a);
    case Op::Atanh:
      return std::atanh(a);
    case Op::Exp:
      return elementary::exp(a);
    case Op::Ln:
      return elementary::ln(a);
    case Op::Log:
      return elementary::log(a);
    case Op::Sqrt:
      return std::sqrt(a);
    case Op::Abs:
      return std::fabs(a);
    case Op::Floor:
      return std::floor(a);
    case Op::Ceil:
      return std::ceil(a);
    case Op::Round:
      return std::round(a);
    case Op::Sign:
      return sign(a);
  }
  return a;
}

}  // namespace
}  // namespace expression_math

}  // namespace sonalyx
