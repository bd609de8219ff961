#include "core/engines/CalcNumerics.h"

#include <array>
#include <cmath>
#include <limits>
#include <numbers>
#include <string>

namespace sonalyx::calcnumerics {

namespace {

// Powers of ten that the type holds exactly: 5^n must fit the mantissa.
constexpr int largestExactPower() {
  Real five = 1.0L;
  int n = 0;
  while (five * 5.0L < 1.0L / std::numeric_limits<Real>::epsilon()) {
    five *= 5.0L;
    ++n;
  }
  return n;
}
constexpr int kLargestExactPower = largestExactPower();
// From here on a value is whole: its last place is worth 1 or more.
constexpr Real kNoFraction = 1.0L / std::numeric_limits<Real>::epsilon();

constexpr Real kPi = std::numbers::pi_v<Real>;

}  // namespace

Real powerOfTen(int exponent) {
  // Every number the display can show lies within this reach; a table spares the
  // slow wide pow() on every key.
  constexpr int kReach = 400;
  static const std::array<Real, 2 * kReach + 1> kTable = [] {
    std::array<Real, 2 * kReach + 1> table{};
    for (int e = -kReach; e <= kReach; ++e) table[e + kReach] = std::pow(10.0L, static_cast<Real>(e));
    Real exact = 1.0L;
    for (int e = 0; e <= kLargestExactPower; ++e, exact *= 10.0L) table[e + kReach] = exact;
    return table;
  }();
  if (exponent >= -kReach && exponent <= kReach) return kTable[exponent + kReach];
  return std::pow(10.0L, static_cast<Real>(exponent));
}

int decimalExponent(Real x) {
  x = std::fabs(x);
  int e = static_cast<int>(std::floor(std::log10(x)));
  if (powerOfTen(e) > x) {
    --e;
  } else if (powerOfTen(e + 1) <= x) {
    ++e;
  }
  return e;
}

Real roundToDecimal(Real x, int exponent) {
  if (x == 0.0L || !std::isfinite(x)) return x;
  // Within the exact powers of ten this rounds once, to the value nearest the
  // decimal; beyond them the power itself is off by a unit in its last place,
  // far below any digit shown.
  const Real scale = powerOfTen(exponent < 0 ? -exponent : exponent);
  const Real scaled = exponent < 0 ? x * scale : x / scale;
  if (std::fabs(scaled) >= kNoFraction) return x;
  const Real whole = std::round(scaled);
  const Real result = exponent < 0 ? whole / scale : whole * scale;
  return result + 0.0L;  // no negative zero
}

Real roundSignificant(Real x, int digits) {
  if (x == 0.0L || !std::isfinite(x)) return x;
  return roundToDecimal(x, decimalExponent(x) - (digits - 1));
}

Real roundedSum(Real a, Real b) {
  const Real sum = a + b;
  const Real larger = std::fmax(std::fabs(a), std::fabs(b));
  if (!std::isfinite(sum) || larger == 0.0L) return sum + 0.0L;
  return roundToDecimal(sum, decimalExponent(larger) - (kShownDigits - 1));
}

Real roundAwayNoise(Real r, Real noise) {
  if (r == 0.0L || !(noise > 0.0L) || !std::isfinite(r)) return r;
  const int quantum = decimalExponent(noise) + 1;
  if (decimalExponent(r) - quantum >= kShownDigits) return r;  // the noise is not shown
  return roundToDecimal(r, quantum);
}

Real wholePart(Real x) {
  const Real nearest = std::round(x);
  if (roundSignificant(x) == nearest) return nearest + 0.0L;
  return std::trunc(x) + 0.0L;
}

SineCosine angleSineCosine(Real angle, int unit) {
  if (unit == kRadians) {
    // The angle is known to a unit in its last place; what the sine or cosine has
    // below that is noise: sin of the value nearest π is 0, not -5e-20.
    const Real noise = std::fabs(angle) * std::numeric_limits<Real>::epsilon();
    return {roundAwayNoise(std::sin(angle), noise), roundAwayNoise(std::cos(angle), noise)};
  }
  const Real full = unit == kGrads ? 400.0L : 360.0L;
  const Real quarter = full / 4.0L;
  // fmod is exact, so whole turns vanish without error.
  Real turn = std::fmod(angle, full);
  if (turn < 0.0L) turn += full;
  if (turn >= full) turn = 0.0L;
  int q = static_cast<int>(turn / quarter);
  if (q > 3) q = 3;
  Real rest = turn - q * quarter;
  if (rest < 0.0L) {
    --q;
    rest += quarter;
  }
  Real s;
  Real c;
  if (rest == 0.0L) {
    s = 0.0L;
    c = 1.0L;
  } else if (rest * 2.0L == quarter) {
    s = c = std::sqrt(0.5L);
  } else if (unit == kDegrees && rest == 30.0L) {
    s = 0.5L;
    c = std::sqrt(3.0L) / 2.0L;
  } else if (unit == kDegrees && rest == 60.0L) {
    s = std::sqrt(3.0L) / 2.0L;
    c = 0.5L;
  } else {
    const Real t = rest / quarter * (kPi / 2.0L);
    s = std::sin(t);
    c = std::cos(t);
  }
  SineCosine r;
  switch (q) {
    case 0:
      r = {s, c};
      break;
    case 1:
      r = {c, -s};
      break;
    case 2:
      r = {-s, -c};
      break;
    default:
      r = {-c, s};
      break;
  }
  return {r.sine + 0.0L, r.cosine + 0.0L};
}

Real radiansToUnit(Real radians, int unit) {
  // Dividing by π first keeps the common results whole: asin 1 is exactly 90°.
  if (unit == kDegrees) return radians / kPi * 180.0L;
  if (unit == kGrads) return radians / kPi * 200.0L;
  return radians;
}

std::int64_t wrappingAdd(std::int64_t a, std::int64_t b) {
  return static_cast<std::int64_t>(static_cast<std::uint64_t>(a) + static_cast<std::uint64_t>(b));
}

std::int64_t wrappingSubtract(std::int64_t a, std::int64_t b) {
  return static_cast<std::int64_t>(static_cast<std::uint64_t>(a) - static_cast<std::uint64_t>(b));
}

std::int64_t wrappingMultiply(std::int64_t a, std::int64_t b) {
  return static_cast<std::int64_t>(static_cast<std::uint64_t>(a) * static_cast<std::uint64_t>(b));
}

std::int64_t wrappingNegate(std::int64_t a) {
  return static_cast<std::int64_t>(0 - static_cast<std::uint64_t>(a));
}

std::int64_t wrappingPower(std::int64_t a, std::int64_t e) {
  std::uint64_t result = 1;
  std::uint64_t base = static_cast<std::uint64_t>(a);
  for (std::uint64_t n = static_cast<std::uint64_t>(e); n != 0; n >>= 1) {
    if (n & 1) result *= base;
    base *= base;
  }
  return static_cast<std::int64_t>(result);
}

namespace {

// Whether r^n <= x, without overflowing.
bool powerAtMost(std::uint64_t r, std::uint64_t n, std::uint64_t x) {
  if (r < 2) return r <= x;
  std::uint64_t power = 1;
  for (std::uint64_t i = 0; i < n; ++i) {
    if (power > x / r) return false;
    power *= r;
  }
  return true;
}

}  // namespace

std::uint64_t integerRoot(std::uint64_t x, std::uint64_t n) {
  if (x < 2 || n == 1) return x;
  if (n >= 64) return 1;
  // The floating estimate is within one or two of the answer; settle it exactly.
  const double estimate = std::floor(std::pow(static_cast<double>(x), 1.0 / static_cast<double>(n)));
  std::uint64_t r = estimate < 1.0 ? 1 : static_cast<std::uint64_t>(std::fmin(estimate, 4294967296.0));
  while (r > 1 && !powerAtMost(r, n, x)) --r;
  while (powerAtMost(r + 1, n, x)) ++r;
  return r;
}

bool truncateToInt64(Real x, std::int64_t& result) {
  if (std::isnan(x)) return false;
  const Real t = std::trunc(x);
  // -2^63 is representable, 2^63 is not.
  if (t < -9223372036854775808.0L || t >= 9223372036854775808.0L) return false;
  result = static_cast<std::int64_t>(t);
  return true;
}

std::string toBaseDigits(std::uint64_t bits, int base) {
  static constexpr char kDigits[] = "0123456789ABCDEF";
  if (bits == 0) return "0";
  char buffer[64];
  int at = 64;
  const auto b = static_cast<std::uint64_t>(base);
  while (bits != 0) {
    buffer[--at] = kDigits[bits % b];
    bits /= b;
  }
  return std::string(buffer + at, buffer + 64);
}

}  // namespace sonalyx::calcnumerics
