#pragma once

#include <cmath>
#include <cstdint>

#include "core/engines/ElementaryTables.h"
#include "core/engines/ExtendedArithmetic.h"

// The evaluator's sin, cos, atan, exp, ln and log (base 10). Each is a table and a
// short polynomial whose last steps are carried in extended precision, so the
// result rounds once: it is the correctly rounded value but in vanishingly rare
// cases (the C library's functions are a unit off in about 0.1 % of arguments, its
// log10 in about 15 %). They are written without branches, as plain arithmetic,
// table reads and bit selects, so a loop over a block of values vectorises.
//
// Each function comes in three parts: its steps, exact only within its range;
// the range; and the function itself, which hands what lies outside the range
// (huge, tiny or special arguments) to the C library. A block loop runs the steps
// on every value and then redoes the few values out of range, so it computes
// exactly what the function does.
namespace sonalyx::elementary {
namespace {

using extended::bitsOf;
using extended::exactProduct;
using extended::Extended;
using extended::fastTwoSum;
using extended::flipSign;
using extended::fromBits;
using extended::kRoundingShift;
using extended::twoSum;

// ---- sin and cos: x = k * pi/2 + j/64 + t, |t| <= 1/128; the table gives sin and
// cos of j/64, short series those of t.

inline bool sinCosInRange(double x) {
  return std::fabs(x) <= 1e5;  // |k| < 2^16 keeps the reduction exact; false for NaN
}

template <bool kCosine>
inline double sinCosSteps(double x) {
  // pi/2 in three parts, the first two with 33 bits, so k times them is exact.
  constexpr double kPiOver2A = 0x1.921fb54400000p+0;
  constexpr double kPiOver2B = 0x1.0b4611a600000p-34;
  constexpr double kPiOver2C = 0x1.3198a2e037073p-69;
  constexpr double kTwoOverPi = 0x1.45f306dc9c883p-1;
  const double shiftedK = x * kTwoOverPi + kRoundingShift;
  const double k = shiftedK - kRoundingShift;
  const std::uint64_t quadrant = bitsOf(shiftedK) + (kCosine ? 1 : 0);  // cos x = sin(x + pi/2)
  const Extended partial = twoSum(x - k * kPiOver2A, -(k * kPiOver2B));
  const Extended r = fastTwoSum(partial.hi, partial.lo - k * kPiOver2C);

  const double shiftedJ = r.hi * 64.0 + kRoundingShift;
  const double a = (shiftedJ - kRoundingShift) * 0x1p-6;
  // sin(a + t) = S cos t + C sin t; in odd quadrants cos(a + t) = C cos t - S sin t,
  // whose coefficients are rows 128 on.
  const std::uint64_t row = ((bitsOf(shiftedJ) + 52) & 127) | ((quadrant & 1) << 7);
  const double th = r.hi - a;  // exact
  const double tl = r.lo;
  const double ah = kSinCosTable[row][0];
  const double al = kSinCosTable[row][1];
  const double bh = kSinCosTable[row][2];
  const double bl = kSinCosTable[row][3];

  const double t2 = th * th;
  const double cosMinus1 = -0.5 * t2 - th * tl + t2 * t2 * (1.0 / 24 - t2 * (1.0 / 720));
  const double sinMinusTh = tl - th * t2 * (1.0 / 6 - t2 * (1.0 / 120 - t2 * (1.0 / 5040)));
  const Extended lead = exactProduct(bh, th);
  const Extended sum = twoSum(ah, lead.hi);
  const double rest = al + ah * cosMinus1 + bh * sinMinusTh + bl * (th + sinMinusTh);
  const double v = flipSign(sum.hi + (sum.lo + lead.lo + rest), (quadrant & 2) << 62);
  // sin x is x itself below 2^-26; this also keeps the sign of -0.
  return !kCosine && std::fabs(x) < 0x1p-26 ? x : v;
}

inline double sin(double x) {
  return sinCosInRange(x) ? sinCosSteps<false>(x) : std::sin(x);
}

inline double cos(double x) {
  return sinCosInRange(x) ? sinCosSteps<true>(x) : std::cos(x);
}

// ---- atan: with w = |x| or 1/|x| in [0, 1], atan w = atan(j/64) + atan t, where
// t = (w - j/64) / (1 + w j/64) is below 1/128; atan |x| = pi/2 - atan(1/|x|).

inline bool atanInRange(double x) {
  return std::fabs(x) <= 1e300;  // 1/|x| stays exact; false for NaN
}

inline double atanSteps(double x) {
  const double u = std::fabs(x);
  const bool beyondOne = u > 1.0;
  const double inverse = 1.0 / u;
  const Extended product = exactProduct(inverse, u);
  const double inverseLo = ((1.0 - product.hi) - product.lo) * inverse;
  const double wh = beyondOne ? inverse : u;
  const double wl = beyondOne ? inverseLo : 0.0;

  // 1 when u > 1 (positive doubles order as their bit patterns), without a compare.
  const std::uint64_t beyond = (0x3FF0000000000000u - bitsOf(u)) >> 63;
  const double shiftedJ = wh * 64.0 + kRoundingShift;
  const double c = (shiftedJ - kRoundingShift) * 0x1p-6;
  const std::uint64_t row = (bitsOf(shiftedJ) & 127) | (beyond << 7);
  const double numerator = wh - c;  // exact
  const Extended wc = exactProduct(wh, c);
  const Extended one = fastTwoSum(1.0, wc.hi);
  const double dh = one.hi;
  const double dl = one.lo + wc.lo + wl * c;
  // t = (numerator + wl) / (dh + dl): a first quotient, then its exact residue.
  const double inverseD = 1.0 / dh;
  const double th = (numerator + wl) * inverseD;
  const Extended back = exactProduct(th, dh);
  const double tl = (((numerator - back.hi) - back.lo) + wl - th * dl) * inverseD;

  const double t2 = th * th;
  const double series = tl - th * t2 * (1.0 / 3 - t2 * (1.0 / 5 - t2 * (1.0 / 7 - t2 * (1.0 / 9))));
  // atan u = atan c + atan t, or pi/2 - atan c - atan t beyond 1.
  const std::uint64_t minus = beyond << 63;
  const Extended sum = twoSum(kAtanTable[row][0], flipSign(th, minus));
  const double v = sum.hi + (sum.lo + kAtanTable[row][1] + flipSign(series, minus));
  return flipSign(v, bitsOf(x) & 0x8000000000000000u);
}

inline double atan(double x) {
  return atanInRange(x) ? atanSteps(x) : std::atan(x);
}

// ---- exp: x = (64 e + j) ln2/64 + r, |r| <= ln2/128; exp x = 2^e 2^(j/64) exp r.

inline bool expInRange(double x) {
  return std::fabs(x) <= 707.0;  // the result a normal number; false for NaN
}

inline double expSteps(double x) {
  constexpr double kSixtyFourOverLn2 = 0x1.71547652b82fep+6;
  // ln2/64 in two parts, the first with 33 bits so that k times it is exact.
  constexpr double kLn2Over64A = 0x1.62e42fef00000p-7;
  constexpr double kLn2Over64B = 0x1.473de6af278edp-40;
  const double shiftedK = x * kSixtyFourOverLn2 + kRoundingShift;
  const double k = shiftedK - kRoundingShift;
  const std::uint64_t kBits = bitsOf(shiftedK);
  const Extended r = twoSum(x - k * kLn2Over64A, -(k * kLn2Over64B));
  const std::uint64_t row = kBits & 63;
  // 2^e built in the exponent field: the low bits of k shifted past j.
  const double scale = fromBits(((kBits >> 6) << 52) + (std::uint64_t{1023} << 52));
  const double th = kExpTable[row][0];
  const double tl = kExpTable[row][1];

  const double rh = r.hi;
  const double series =
      rh * rh * (0.5 + rh * (1.0 / 6 + rh * (1.0 / 24 + rh * (1.0 / 120 + rh * (1.0 / 720)))));
  const Extended lead = exactProduct(th, rh);
  const double small = lead.lo + th * (r.lo + series) + tl + tl * (rh + r.lo + series);
  const Extended sum = fastTwoSum(th, lead.hi);
  return (sum.hi + (sum.lo + small)) * scale;
}

inline double exp(double x) {
  return expInRange(x) ? expSteps(x) : std::exp(x);
}

// ---- ln and log: x = 2^e m, m in [0.75, 1.5); with c from the table near 1/m,
// ln x = e ln2 - ln c + ln(1 + r), r = m c - 1 small.

inline bool logInRange(double x) {
  return x >= 0x1p-1022 && x <= 0x1.fffffffffffffp1023;  // positive, normal, finite
}

inline Extended extendedLn(double x) {
  // ln2 in two parts, the first with 41 bits so that e times it is exact.
  constexpr double kLn2A = 0x1.62e42fefa3000p-1;
  constexpr double kLn2B = 0x1.3de6af278ece6p-42;
  const std::uint64_t b = bitsOf(x);
  const std::uint64_t offset = b - 0x3FE8000000000000u;  // 0.75
  const std::uint64_t exponentBits = offset >> 52;       // e, 12-bit two's complement
  const double e = fromBits(0x4330000000000000u | ((exponentBits ^ 0x800) & 0xFFF)) - (0x1p52 + 2048.0);
  const double m = fromBits(b - (exponentBits << 52));
  const std::uint64_t row = (offset >> 45) & 127;
  const double c = kLogTable[row][0];
  const double minusLnCHi = kLogTable[row][1];
  const double minusLnCLo = kLogTable[row][2];

  const Extended mc = exactProduct(m, c);
  const Extended r = twoSum(mc.hi - 1.0, mc.lo);  // mc.hi - 1 is exact
  const Extended base = twoSum(e * kLn2A, minusLnCHi);
  const double rh = r.hi;
  const Extended square = exactProduct(rh, rh);
  const double series =
      rh * square.hi *
      (1.0 / 3 -
       rh * (1.0 / 4 -
             rh * (1.0 / 5 -
                   rh * (1.0 / 6 - rh * (1.0 / 7 - rh * (1.0 / 8 - rh * (1.0 / 9 - rh * (1.0 / 10))))))));
  const Extended withR = twoSum(base.hi, rh);
  const Extended withSquare = twoSum(withR.hi, -0.5 * square.hi);
  const double tail = withR.lo + withSquare.lo + base.lo + e * kLn2B + minusLnCLo + r.lo - rh * r.lo -
                      0.5 * square.lo + series;
  return fastTwoSum(withSquare.hi, tail);
}

inline double lnSteps(double x) {
  return extendedLn(x).hi;
}

inline double logSteps(double x) {
  constexpr double kLog10EHi = 0x1.bcb7b1526e50ep-2;
  constexpr double kLog10ELo = 0x1.95355baaafad3p-57;
  const Extended ln = extendedLn(x);
  const Extended lead = exactProduct(ln.hi, kLog10EHi);
  return lead.hi + (lead.lo + ln.hi * kLog10ELo + ln.lo * kLog10EHi);
}

inline double ln(double x) {
  return logInRange(x) ? lnSteps(x) : std::log(x);
}

inline double log(double x) {
  return logInRange(x) ? logSteps(x) : std::log10(x);
}

}  // namespace
}  // namespace sonalyx::elementary
