#pragma once

#include <cmath>
#include <cstdint>
#include <limits>
#include <string_view>
#include <type_traits>

namespace sonalyx {

// What one step of an expression computes. Every value the evaluator produces
// comes from `applyOperation` or from a loop over a block that calls the same
// inline functions, so a constant folded while parsing and the same step run over
// a block of x values give the same bits.
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

namespace expression_math {

// Exponents this far from 0 are multiplied out rather than handed to pow.
inline constexpr int kLargestWholeExponent = 1024;

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

// A value and the rounding error it carries: hi + lo, |lo| below half a unit of hi.
struct Extended {
  double hi;
  double lo;
};

// The exact product of two doubles as hi + lo (Veltkamp's split, no fused
// multiply-add needed). Exact while the operands and the product stay well inside
// the range of normal doubles, which `wholePower` checks.
inline Extended exactProduct(double a, double b) {
  constexpr double kSplitter = 134217729.0;  // 2^27 + 1
  const double p = a * b;
  const double ca = kSplitter * a;
  const double aHi = ca - (ca - a);
  const double aLo = a - aHi;
  const double cb = kSplitter * b;
  const double bHi = cb - (cb - b);
  const double bLo = b - bHi;
  return {p, ((aHi * bHi - p) + aHi * bLo + aLo * bHi) + aLo * bLo};
}

inline Extended multiply(Extended a, Extended b) {
  const Extended p = exactProduct(a.hi, b.hi);
  const double lo = p.lo + (a.hi * b.lo + a.lo * b.hi);
  const double hi = p.hi + lo;
  return {hi, lo - (hi - p.hi)};
}

// x^N (N >= 2) by squaring from the leading bit, each step carried to about 104
// bits, so the result rounds once: the correctly rounded power in all but
// vanishingly rare cases, as pow gives it, at the cost of a few multiplications.
template <int N>
inline Extended extendedPower(double x) {
  if constexpr (N == 1) {
    return {x, 0.0};
  } else if constexpr (N % 2 == 0) {
    const Extended half = extendedPower<N / 2>(x);
    return multiply(half, half);
  } else {
    return multiply(extendedPower<N - 1>(x), Extended{x, 0.0});
  }
}

// The same steps for an exponent known only at run time.
inline Extended extendedPower(double x, unsigned n) {
  int top = 31;
  while (((n >> top) & 1u) == 0) --top;
  Extended r{x, 0.0};
  for (int bit = top - 1; bit >= 0; --bit) {
    r = multiply(r, r);
    if ((n >> bit) & 1u) r = multiply(r, Extended{x, 0.0});
  }
  return r;
}

// 1 / (hi + lo), rounded once.
inline double reciprocal(Extended v) {
  const double q = 1.0 / v.hi;
  const Extended p = exactProduct(q, v.hi);
  const double residue = ((1.0 - p.hi) - p.lo) - q * v.lo;  // 1 - q * v, exact to the last bits
  return q + q * residue;
}

// |x| up to 2^(960 / |n|) and down to its reciprocal: there x^n and every step
// towards it stay far from overflow and underflow, so the extended steps are
// exact. Outside (and for 0, infinities and NaN) pow decides.
constexpr double wholePowerReach(int magnitude) {
  double reach = 1.0;
  for (int k = 0; k < 960 / magnitude; ++k) reach *= 2.0;
  return reach;
}

inline bool withinWholePowerReach(double x, double reach) {
  const double m = std::fabs(x);
  return m <= reach && m * reach >= 1.0;
}

// Whether x^N is one multiplication or a plain value, needing no extended steps.
constexpr bool isSimpleWholePower(int n) {
  return n >= -1 && n <= 2;
}

// x^N by the extended steps, without the check of the reach: branch-free, so a
// loop over a block vectorises; the values outside the reach are then redone.
template <int N>
inline double wholePowerSteps(double x) {
  if constexpr (N == 0) {
    return 1.0;  // as pow: even for NaN
  } else if constexpr (N == 1) {
    return x;
  } else if constexpr (N == -1) {
    return 1.0 / x;
  } else if constexpr (N == 2) {
    return x * x;  // one rounding already, everywhere
  } else {
    const Extended p = extendedPower<(N < 0 ? -N : N)>(x);
    if constexpr (N < 0) {
      return reciprocal(p);
    } else {
      return p.hi;
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
  return n < 0 ? reciprocal(p) : p.hi;
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
      return std::sin(a);
    case Op::Cos:
      return std::cos(a);
    case Op::Tan:
      return std::tan(a);
    case Op::Asin:
      return std::asin(a);
    case Op::Acos:
      return std::acos(a);
    case Op::Atan:
      return std::atan(a);
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
      return std::exp(a);
    case Op::Ln:
      return std::log(a);
    case Op::Log:
      return std::log10(a);
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

}  // namespace expression_math

// The operation a function name stands for; false when it names none. Matched on
// the first letter so that no text is built.
bool findFunctionOperation(std::string_view name, ExpressionOperation& op);

}  // namespace sonalyx
