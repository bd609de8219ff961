#pragma once

#include <cmath>
#include <cstdint>
#include <cstring>

// Exact sums and products of doubles, and bit-level selects, for the evaluator's
// own elementary functions and powers. Everything here has internal linkage: the
// block loops are compiled once for plain x86-64 and once with AVX2 and FMA, and
// each translation unit must get its own copy, built with its own flags. Both
// copies give the same bits: the products below are exact either way.
namespace sonalyx::extended {
namespace {

// A value and the rounding error it carries: hi + lo.
struct Extended {
  double hi;
  double lo;
};

inline std::uint64_t bitsOf(double v) {
  std::uint64_t b;
  std::memcpy(&b, &v, sizeof b);
  return b;
}

inline double fromBits(std::uint64_t b) {
  double v;
  std::memcpy(&v, &b, sizeof v);
  return v;
}

// v with its sign bit flipped where signBit has it: a sign change without a
// branch or a compare, so loops using it vectorise.
inline double flipSign(double v, std::uint64_t signBit) {
  return fromBits(bitsOf(v) ^ signBit);
}

// The exact product a * b as hi + lo. With a fused multiply-add the error is one
// instruction; without, Veltkamp's split gives the same exact error as long as
// the operands stay below 2^996 and the product's error stays a normal number,
// which every caller ensures for the values it keeps.
inline Extended exactProduct(double a, double b) {
  const double p = a * b;
#if defined(__FMA__)
  return {p, std::fma(a, b, -p)};
#else
  constexpr double kSplitter = 134217729.0;  // 2^27 + 1
  const double ca = kSplitter * a;
  const double aHi = ca - (ca - a);
  const double aLo = a - aHi;
  const double cb = kSplitter * b;
  const double bHi = cb - (cb - b);
  const double bLo = b - bHi;
  return {p, ((aHi * bHi - p) + aHi * bLo + aLo * bHi) + aLo * bLo};
#endif
}

// The exact sum a + b as hi + lo, whatever the magnitudes.
inline Extended twoSum(double a, double b) {
  const double s = a + b;
  const double bb = s - a;
  return {s, (a - (s - bb)) + (b - bb)};
}

// The same when |a| >= |b| (or a is 0).
inline Extended fastTwoSum(double a, double b) {
  const double s = a + b;
  return {s, b - (s - a)};
}

// The nearest whole number to v as a double, and its low bits in the bit pattern
// of `shifted`: v + 1.5 * 2^52 holds round(v) in its lowest bits for |v| < 2^51.
constexpr double kRoundingShift = 0x1.8p52;

}  // namespace
}  // namespace sonalyx::extended
