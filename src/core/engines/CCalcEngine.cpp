#include "core/engines/CCalcEngine.h"

#include <cmath>
#include <cstdint>
#include <limits>
#include <numbers>

#include "core/engines/CalcNumerics.h"
#include "core/speech/TranslationMarker.h"
#include "core/utility/DecimalText.h"
#include "core/utility/NumberFormat.h"

namespace sonalyx {

namespace cn = calcnumerics;
using cn::Real;

namespace {

constexpr const char* kDivideByZero = SLX_TR("Cannot divide by zero");
constexpr const char* kUndefined = SLX_TR("Result is undefined");
constexpr const char* kInvalidInput = SLX_TR("Invalid input");
constexpr const char* kOverflow = SLX_TR("Overflow");

// Deeper nesting is ignored; nobody types more, and it bounds the memory used.
constexpr std::size_t kMostOpenParentheses = 100;
// Typed decimal digits beyond those shown would be silently lost.
constexpr int kMostTypedDigits = cn::kShownDigits;
constexpr std::size_t kMostMantissaCharacters = 40;
constexpr std::size_t kMostExponentDigits = 3;

enum UnaryCode {
  kSine = 0,
  kCosine = 1,
  kSquare = 2,
  kTangent = 3,
  kExp = 4,
  kNaturalLog = 5,
  kLog = 6,
  kCube = 7,
  kSquareRoot = 9,
  kReciprocal = 10,
  kFactorial = 11,
  kLeftShift = 12,
  kNot = 13,
};

constexpr char kDigitCharacters[] = "0123456789ABCDEF";

// A result as the display takes it: NaN is a domain error, anything beyond the
// largest double an overflow.
const char* checkFinite(Real r) {
  if (std::isnan(r)) return kInvalidInput;
  if (std::fabs(r) > cn::kLargestShown) return kOverflow;
  return nullptr;
}

// An exponent that shows as a whole number is taken as one, so (-8)^y works when y
// was computed as 2.9999999999999996 and shows 3.
Real asShownIfWhole(Real y) {
  const Real shown = cn::roundSignificant(y);
  return shown == std::trunc(shown) ? shown : y;
}

Real rootOfPositive(Real x, Real y) {
  if (y == 2.0L) return std::sqrt(x);
  if (y == 3.0L) return std::cbrt(x);
  return std::pow(x, 1.0L / y);
}

std::uint64_t magnitude(std::int64_t x) {
  return x < 0 ? 0 - static_cast<std::uint64_t>(x) : static_cast<std::uint64_t>(x);
}

}  // namespace

CCalcEngine::CCalcEngine() {
  resetAll();
}

CCalcEngine::~CCalcEngine() = default;

CCalcEngine::Number CCalcEngine::whole(std::int64_t bits) {
  return Number{static_cast<Real>(bits), bits, true};
}

CCalcEngine::Number CCalcEngine::decimal(long double real) {
  // What shows as 0 is 0: 1e-600 would otherwise make 1/x overflow on a display of 0.
  if (static_cast<double>(real) == 0.0) real = 0.0L;
  return Number{real + 0.0L, 0, false};
}

// ---------------------------------------------------------------- state

void CCalcEngine::resetAll() {
  m_levels.assign(1, {});
  m_typing = false;
  m_value = whole(0);
  m_hasRepeat = false;
  m_last = Last::Start;
  showValue();
}

void CCalcEngine::restartAfterError() {
  if (m_last == Last::Error) resetAll();
}

void CCalcEngine::fail(const char* text) {
  m_levels.assign(1, {});
  m_typing = false;
  m_value = whole(0);
  m_hasRepeat = false;
  m_last = Last::Error;
  displayText = text;
}

void CCalcEngine::startEntry() {
  m_typing = true;
  m_mantissa.clear();
  m_negative = false;
  m_inExponent = false;
  m_exponent.clear();
  m_exponentNegative = false;
  m_entryBits = 0;
}

bool CCalcEngine::entryTooLong() const {
  if (m_mantissa.size() >= kMostMantissaCharacters) return true;
  int significant = 0;
  bool leading = true;
  for (const char c : m_mantissa) {
    if (c == '.') continue;
    if (leading && c == '0') continue;
    leading = false;
    ++significant;
  }
  return significant >= kMostTypedDigits;
}

CCalcEngine::Number CCalcEngine::entryValue() const {
  if (integerBase()) return whole(static_cast<std::int64_t>(m_entryBits));
  // Digits times a power of ten: the typed decimal rounded once.
  std::uint64_t digits = 0;
  int scale = 0;
  bool fraction = false;
  for (const char c : m_mantissa) {
    if (c == '.') {
      fraction = true;
      continue;
    }
    digits = digits * 10 + static_cast<std::uint64_t>(c - '0');
    if (fraction) --scale;
  }
  int exponent = 0;
  for (const char c : m_exponent) exponent = exponent * 10 + (c - '0');
  scale += m_exponentNegative ? -exponent : exponent;
  Real value = static_cast<Real>(digits);
  if (digits != 0) value = scale >= 0 ? value * cn::powerOfTen(scale) : value / cn::powerOfTen(-scale);
  return decimal(m_negative ? -value : value);
}

void CCalcEngine::commitEntry() {
  if (!m_typing) return;
  m_value = entryValue();
  m_typing = false;
}

void CCalcEngine::showValue() {
  displayText = formatValue(m_value);
}

void CCalcEngine::showEntry() {
  displayText.clear();
  if (m_negative) displayText.push_back('-');
  displayText += m_mantissa.empty() ? "0" : m_mantissa;
  if (m_inExponent) {
    displayText += m_exponentNegative ? "e-" : "e+";
    displayText += m_exponent.empty() ? "0" : m_exponent;
  }
}

std::string CCalcEngine::formatValue(const Number& n) const {
  if (integerBase()) return cn::toBaseDigits(static_cast<std::uint64_t>(n.bits), m_base);
  const auto shown = static_cast<double>(n.real);
  if (shown == 0.0) return m_exponential ? "0e+000" : "0";
  if (!m_exponential) return formatNumber(shown, "%.15g");
  // Exponential display drops the trailing zeros of the mantissa: 1.5e+003.
  std::string text = formatNumber(shown, "%.14e");
  const std::size_t e = text.find('e');
  std::size_t end = e;
  while (end > 0 && text[end - 1] == '0') --end;
  if (end > 0 && text[end - 1] == '.') --end;
  return text.substr(0, end) + text.substr(e);
}

// ---------------------------------------------------------------- arithmetic

const char* CCalcEngine::toWhole(const Number& n, std::int64_t& bits) const {
  if (n.exact) {
    bits = n.bits;
    return nullptr;
  }
  return cn::truncateToInt64(cn::wholePart(n.real), bits) ? nullptr : kOverflow;
}

const char* CCalcEngine::convert(const Number& n, int base, Number& result) const {
  if (base == 10) {
    result = n;
    return nullptr;
  }
  std::int64_t bits = 0;
  if (const char* error = toWhole(n, bits)) return error;
  result = whole(bits);
  return nullptr;
}

const char* CCalcEngine::combine(const Number& left, Op op, const Number& right, Number& result) const {
  if (integerBase()) return combineWhole(left.bits, op, right.bits, result);
  if (op == Op::And || op == Op::Or || op == Op::Xor) {
    std::int64_t a = 0;
    std::int64_t b = 0;
    if (const char* error = toWhole(left, a)) return error;
    if (const char* error = toWhole(right, b)) return error;
    return combineWhole(a, op, b, result);
  }
  if (op == Op::Mod) {
    std::int64_t a = 0;
    std::int64_t b = 0;
    if (!toWhole(left, a) && !toWhole(right, b)) return combineWhole(a, op, b, result);
    // Beyond 64 bits the whole parts are still exact, and so is fmod.
    const Real x = cn::wholePart(left.real);
    const Real y = cn::wholePart(right.real);
    if (y == 0.0L) return x == 0.0L ? kUndefined : kDivideByZero;
    result = decimal(std::fmod(x, y));
    return nullptr;
  }
  return combineDecimal(left.real, op, right.real, result);
}

const char* CCalcEngine::combineDecimal(Real a, Op op, Real b, Number& result) const {
  Real r = 0.0L;
  switch (op) {
    case Op::Add:
      r = cn::roundedSum(a, b);
      break;
    case Op::Subtract:
      r = cn::roundedSum(a, -b);
      break;
    case Op::Multiply:
      r = a * b;
      break;
    case Op::Divide:
      if (b == 0.0L) return a == 0.0L ? kUndefined : kDivideByZero;
      r = a / b;
      break;
    case Op::Power: {
      const Real y = asShownIfWhole(b);
      const bool wholeExponent = y == std::trunc(y);
      if (a == 0.0L && y < 0.0L) return kDivideByZero;
      if (a < 0.0L && !wholeExponent) return kInvalidInput;
      r = std::pow(a, y);
      break;
    }
    case Op::Root: {
      const Real y = asShownIfWhole(b);
      if (y == 0.0L) return kInvalidInput;
      if (a < 0.0L) {
        // Only odd whole roots of a negative number are real.
        if (y != std::trunc(y) || std::fmod(y, 2.0L) == 0.0L) return kInvalidInput;
        r = -rootOfPositive(-a, y);
      } else {
        if (a == 0.0L && y < 0.0L) return kDivideByZero;
        r = rootOfPositive(a, y);
      }
      break;
    }
    default:
      return kInvalidInput;  // the whole-number operators never come here
  }
  if (const char* error = checkFinite(r)) return error;
  result = decimal(r);
  return nullptr;
}

const char* CCalcEngine::combineWhole(std::int64_t a, Op op, std::int64_t b, Number& result) const {
  std::int64_t r = 0;
  switch (op) {
    case Op::Or:
      r = a | b;
      break;
    case Op::Xor:
      r = a ^ b;
      break;
    case Op::And:
      r = a & b;
      break;
    case Op::Add:
      r = cn::wrappingAdd(a, b);
      break;
    case Op::Subtract:
      r = cn::wrappingSubtract(a, b);
      break;
    case Op::Multiply:
      r = cn::wrappingMultiply(a, b);
      break;
    case Op::Divide:
      if (b == 0) return a == 0 ? kUndefined : kDivideByZero;
      r = b == -1 ? cn::wrappingNegate(a) : a / b;
      break;
    case Op::Mod:
      if (b == 0) return a == 0 ? kUndefined : kDivideByZero;
      r = b == -1 ? 0 : a % b;
      break;
    case Op::Power:
      if (b >= 0) {
        r = cn::wrappingPower(a, b);
      } else if (a == 0) {
        return kDivideByZero;
      } else if (a == 1 || a == -1) {
        r = (a == -1 && (b & 1) != 0) ? -1 : 1;
      } else {
        r = 0;  // the fraction 1 / a^|b| is dropped
      }
      break;
    case Op::Root: {
      if (b == 0) return kInvalidInput;
      if (a < 0 && (b & 1) == 0) return kInvalidInput;
      const std::uint64_t root = cn::integerRoot(magnitude(a), magnitude(b));
      if (b < 0) {
        // 1 / root: whole only for a root of 1.
        if (root == 0) return kDivideByZero;
        r = root == 1 ? (a < 0 ? -1 : 1) : 0;
      } else {
        const auto signedRoot = static_cast<std::int64_t>(root);  // 2^63 only as a root of -2^63
        r = a < 0 ? cn::wrappingNegate(signedRoot) : signedRoot;
      }
      break;
    }
  }
  result = whole(r);
  return nullptr;
}

const char* CCalcEngine::unary(int code, bool inv, bool hyp, const Number& x, Number& result) const {
  if (integerBase()) return unaryWhole(code, inv, hyp, x.bits, result);
  if (code == kLeftShift || code == kNot) {
    std::int64_t bits = 0;
    if (const char* error = toWhole(x, bits)) return error;
    if (code == kNot) {
      result = whole(~bits);
    } else if (inv) {
      result = whole(bits >> 1);
    } else {
      // In decimal a left shift doubles; it does not wrap into the sign bit.
      if (bits > std::numeric_limits<std::int64_t>::max() / 2 ||
          bits < std::numeric_limits<std::int64_t>::min() / 2)
        return kOverflow;
      result = whole(bits * 2);
    }
    return nullptr;
  }
  Real r = 0.0L;
  if (const char* error = unaryDecimal(code, inv, hyp, x.real, r)) return error;
  result = decimal(r);
  return nullptr;
}

const char* CCalcEngine::unaryDecimal(int code, bool inv, bool hyp, Real x, Real& r) const {
  const int unit = angleMode == 1 ? cn::kRadians : angleMode == 2 ? cn::kGrads : cn::kDegrees;
  switch (code) {
    case kSine:
    case kCosine:
    case kTangent:
      if (hyp && !inv) {
        r = code == kSine ? std::sinh(x) : code == kCosine ? std::cosh(x) : std::tanh(x);
      } else if (hyp) {
        if (code == kSine) {
          r = std::asinh(x);
        } else if (code == kCosine) {
          if (x < 1.0L && cn::roundSignificant(x) == 1.0L) x = 1.0L;
          if (x < 1.0L) return kInvalidInput;
          r = std::acosh(x);
        } else {
          if (std::fabs(x) >= 1.0L) return kInvalidInput;
          r = std::atanh(x);
        }
      } else if (!inv) {
        const cn::SineCosine sc = cn::angleSineCosine(x, unit);
        if (code == kSine) {
          r = sc.sine;
        } else if (code == kCosine) {
          r = sc.cosine;
        } else {
          if (sc.cosine == 0.0L) return kInvalidInput;
          r = sc.sine / sc.cosine;
        }
      } else {
        if (code != kTangent && std::fabs(x) > 1.0L) {
          // 1.0000000000000002 from a rounded computation shows 1.
          if (std::fabs(cn::roundSignificant(x)) != 1.0L) return kInvalidInput;
          x = std::copysign(1.0L, x);
        }
        r = cn::radiansToUnit(code == kSine     ? std::asin(x)
                              : code == kCosine ? std::acos(x)
                                                : std::atan(x),
                              unit);
      }
      break;
    case kSquare:
    case kSquareRoot:
      if (inv == (code == kSquare)) {
        if (x < 0.0L) return kInvalidInput;
        r = std::sqrt(x);
      } else {
        r = x * x;
      }
      break;
    case kExp:
    case kNaturalLog:
      if (inv == (code == kExp)) {
        if (x <= 0.0L) return kInvalidInput;
        // Near 1 the logarithm is as uncertain as the last place of its argument.
        r = cn::roundAwayNoise(std::log(x), std::numeric_limits<Real>::epsilon());
      } else {
        r = std::exp(x);
      }
      break;
    case kLog:
      if (inv) {
        r = std::pow(10.0L, x);
      } else {
        if (x <= 0.0L) return kInvalidInput;
        r = cn::roundAwayNoise(std::log10(x), std::numeric_limits<Real>::epsilon());
      }
      break;
    case kCube:
      r = inv ? std::cbrt(x) : x * x * x;
      break;
    case kReciprocal:
      if (x == 0.0L) return kDivideByZero;
      r = 1.0L / x;
      break;
    case kFactorial: {
      const Real n = cn::roundSignificant(x);
      if (n < 0.0L || n != std::trunc(n)) return kInvalidInput;
      if (n > 170.0L) return kOverflow;  // 171! is beyond what the display shows
      r = 1.0L;
      for (int i = 2; i <= static_cast<int>(n); ++i) r *= i;
      break;
    }
    default:
      return kInvalidInput;
  }
  return checkFinite(r);
}

const char* CCalcEngine::unaryWhole(int code, bool inv, bool hyp, std::int64_t x, Number& result) const {
  switch (code) {
    case kSquare:
    case kSquareRoot:
      if (inv == (code == kSquare)) {
        if (x < 0) return kInvalidInput;
        result = whole(static_cast<std::int64_t>(cn::integerRoot(static_cast<std::uint64_t>(x), 2)));
      } else {
        result = whole(cn::wrappingMultiply(x, x));
      }
      return nullptr;
    case kCube:
      if (inv) {
        const auto root = static_cast<std::int64_t>(cn::integerRoot(magnitude(x), 3));
        result = whole(x < 0 ? -root : root);
      } else {
        result = whole(cn::wrappingMultiply(cn::wrappingMultiply(x, x), x));
      }
      return nullptr;
    case kReciprocal:
      if (x == 0) return kDivideByZero;
      result = whole(x == 1 || x == -1 ? x : 0);
      return nullptr;
    case kFactorial: {
      if (x < 0) return kInvalidInput;
      if (x > 20) return kOverflow;  // 21! exceeds 64 bits
      std::int64_t r = 1;
      for (std::int64_t i = 2; i <= x; ++i) r *= i;
      result = whole(r);
      return nullptr;
    }
    case kLeftShift:
      // A register shift: bits move out at the top.
      result = whole(inv ? x >> 1 : static_cast<std::int64_t>(static_cast<std::uint64_t>(x) << 1));
      return nullptr;
    case kNot:
      result = whole(~x);
      return nullptr;
    default: {
      // The real functions: computed as decimals, the fraction dropped.
      Real r = 0.0L;
      if (const char* error = unaryDecimal(code, inv, hyp, static_cast<Real>(x), r)) return error;
      std::int64_t bits = 0;
      if (!cn::truncateToInt64(cn::wholePart(r), bits)) return kOverflow;
      result = whole(bits);
      return nullptr;
    }
  }
}

// ---------------------------------------------------------------- operators

int CCalcEngine::precedence(Op op) {
  switch (op) {
    case Op::Or:
      return 1;
    case Op::Xor:
      return 2;
    case Op::And:
      return 3;
    case Op::Add:
    case Op::Subtract:
      return 4;
    case Op::Multiply:
    case Op::Divide:
    case Op::Mod:
      return 5;
    case Op::Power:
    case Op::Root:
      return 6;
  }
  return 0;
}

bool CCalcEngine::reduce(int minimumPrecedence) {
  auto& level = m_levels.back();
  while (!level.empty() && precedence(level.back().op) >= minimumPrecedence) {
    const Pending pending = level.back();
    level.pop_back();
    Number result;
    if (const char* error = combine(pending.left, pending.op, m_value, result)) {
      fail(error);
      return false;
    }
    m_appliedAny = true;
    m_appliedOp = pending.op;
    m_appliedRight = m_value;
    m_value = result;
  }
  return true;
}

void CCalcEngine::binaryOperator(Op op) {
  if (m_last == Last::Error) return;
  commitEntry();
  auto& level = m_levels.back();
  if (m_last == Last::Operator && !level.empty()) {
    // A second operator in a row replaces the first.
    m_value = level.back().left;
    level.pop_back();
  }
  if (!reduce(precedence(op))) return;
  m_levels.back().push_back({m_value, op});
  m_last = Last::Operator;
  showValue();
}

void CCalcEngine::equals() {
  if (m_last == Last::Error) return;
  commitEntry();
  m_appliedAny = false;
  // Close every open parenthesis, innermost first.
  while (true) {
    if (!reduce(0)) return;
    if (m_levels.size() == 1) break;
    m_levels.pop_back();
  }
  if (m_appliedAny) {
    m_hasRepeat = true;
    m_repeatOp = m_appliedOp;
    m_repeatOperand = m_appliedRight;
  } else if (m_hasRepeat) {
    Number result;
    if (const char* error = combine(m_value, m_repeatOp, m_repeatOperand, result)) {
      fail(error);
      return;
    }
    m_value = result;
  }
  m_last = Last::Equals;
  showValue();
}

void CCalcEngine::openParenthesis() {
  restartAfterError();
  if (m_levels.size() > kMostOpenParentheses) return;
  if (m_last == Last::Digit || m_last == Last::Value || m_last == Last::Close) {
    // A number or a closed group right before "(" multiplies it: 2(3+4) is 14.
    commitEntry();
    if (!reduce(precedence(Op::Multiply))) return;
    m_levels.back().push_back({m_value, Op::Multiply});
  }
  m_levels.emplace_back();
  m_last = Last::Open;
  showValue();
}

void CCalcEngine::closeParenthesis() {
  if (m_last == Last::Error || m_levels.size() == 1) return;
  commitEntry();
  if (!reduce(0)) return;
  m_levels.pop_back();
  m_last = Last::Close;
  showValue();
}

// ---------------------------------------------------------------- keys

void CCalcEngine::bttnDigit_Click(int digit) {
  if (digit < 0 || digit >= m_base) return;
  restartAfterError();
  if (!m_typing) startEntry();
  if (integerBase()) {
    const auto base = static_cast<std::uint64_t>(m_base);
    const auto d = static_cast<std::uint64_t>(digit);
    if (m_entryBits > (std::numeric_limits<std::uint64_t>::max() - d) / base) return;  // past 64 bits
    m_entryBits = m_entryBits * base + d;
    if (m_mantissa == "0") m_mantissa.clear();
    m_mantissa += kDigitCharacters[digit];
  } else if (m_inExponent) {
    if (m_exponent.size() >= kMostExponentDigits) return;
    const std::string before = m_exponent;
    if (m_exponent == "0") m_exponent.clear();
    m_exponent += kDigitCharacters[digit];
    if (std::fabs(entryValue().real) > cn::kLargestShown) {
      m_exponent = before;  // beyond what the display shows
      return;
    }
  } else {
    if (m_mantissa == "0") m_mantissa.clear();
    if (entryTooLong()) return;
    m_mantissa += kDigitCharacters[digit];
  }
  m_last = Last::Digit;
  showEntry();
}

void CCalcEngine::bttnBinOp_Click(const std::string& op) {
  if (op == "=") {
    equals();
  } else if (op == "(") {
    openParenthesis();
  } else if (op == ")") {
    closeParenthesis();
  } else if (op == "X^Y") {
    const bool root = inverse;
    inverse = false;
    hyperbolic = false;
    binaryOperator(root ? Op::Root : Op::Power);
  } else if (op == "+") {
    binaryOperator(Op::Add);
  } else if (op == "-") {
    binaryOperator(Op::Subtract);
  } else if (op == "*") {
    binaryOperator(Op::Multiply);
  } else if (op == "/") {
    binaryOperator(Op::Divide);
  } else if (op == "Mod") {
    binaryOperator(Op::Mod);
  } else if (op == "And") {
    binaryOperator(Op::And);
  } else if (op == "Or") {
    binaryOperator(Op::Or);
  } else if (op == "Xor") {
    binaryOperator(Op::Xor);
  }
}

void CCalcEngine::bttnUniOp_Click(int code) {
  const bool inv = inverse;
  const bool hyp = hyperbolic;
  inverse = false;
  hyperbolic = false;
  if (m_last == Last::Error) return;
  if (code < kSine || code > kNot || code == 8) return;
  commitEntry();
  Number result;
  if (const char* error = unary(code, inv, hyp, m_value, result)) {
    fail(error);
    return;
  }
  m_value = result;
  m_last = Last::Value;
  showValue();
}

void CCalcEngine::bttnMemory_Click(int action) {
  switch (action) {
    case 0:
      m_memory = whole(0);
      m_memoryInUse = false;
      return;
    case 1:
    case 2: {
      if (m_last == Last::Error) return;
      if (m_typing) {
        commitEntry();
        m_last = Last::Value;  // the next digit starts a new number
      }
      if (action == 2) {
        m_memory = m_value;
      } else {
        Number held;
        Number sum;
        const char* error = convert(m_memory, m_base, held);
        if (error == nullptr) error = combine(held, Op::Add, m_value, sum);
        if (error != nullptr) {
          fail(error);
          return;
        }
        m_memory = sum;
      }
      m_memoryInUse = true;
      showValue();
      return;
    }
    case 3: {
      restartAfterError();
      m_typing = false;
      Number recalled;
      if (const char* error = convert(m_memory, m_base, recalled)) {
        fail(error);
        return;
      }
      m_value = recalled;
      m_last = Last::Value;
      showValue();
      return;
    }
    default:
      return;
  }
}

std::optional<std::string> CCalcEngine::memoryText() const {
  if (!m_memoryInUse) return std::nullopt;
  Number recalled;
  if (const char* error = convert(m_memory, m_base, recalled)) return std::string(error);
  return formatValue(recalled);
}

void CCalcEngine::bttnC_Click() {
  resetAll();
}

void CCalcEngine::bttnCE_Click() {
  if (m_last == Last::Error) {
    resetAll();
    return;
  }
  m_typing = false;
  m_value = whole(0);
  m_last = Last::Cleared;
  showValue();
}

void CCalcEngine::bttnBack_Click() {
  if (m_last == Last::Error || !m_typing) return;
  if (m_inExponent) {
    if (!m_exponent.empty()) {
      m_exponent.pop_back();
    } else {
      m_inExponent = false;
      m_exponentNegative = false;
    }
  } else if (!m_mantissa.empty()) {
    m_mantissa.pop_back();
    if (integerBase()) m_entryBits /= static_cast<std::uint64_t>(m_base);
  }
  if (m_mantissa.empty()) m_negative = false;
  showEntry();
}

void CCalcEngine::bttnPlusMinus_Click() {
  if (m_last == Last::Error) return;
  if (m_typing && !integerBase()) {
    if (m_inExponent) {
      m_exponentNegative = !m_exponentNegative;
      if (std::fabs(entryValue().real) > cn::kLargestShown) m_exponentNegative = !m_exponentNegative;
    } else {
      m_negative = !m_negative;
    }
    showEntry();
    return;
  }
  // Hexadecimal, octal and binary show no sign while typing: negate the value.
  commitEntry();
  if (integerBase()) {
    m_value = whole(cn::wrappingNegate(m_value.bits));
  } else if (m_value.exact && m_value.bits != std::numeric_limits<std::int64_t>::min()) {
    m_value = whole(-m_value.bits);
  } else {
    m_value = decimal(-m_value.real);
  }
  m_last = Last::Value;
  showValue();
}

void CCalcEngine::bttnDecimal_Click() {
  if (integerBase()) return;
  restartAfterError();
  if (!m_typing) startEntry();
  if (m_inExponent || m_mantissa.find('.') != std::string::npos) return;
  if (m_mantissa.empty()) m_mantissa.push_back('0');
  m_mantissa += '.';
  m_last = Last::Digit;
  showEntry();
}

void CCalcEngine::bttnPi_Click() {
  restartAfterError();
  m_typing = false;
  m_value = integerBase() ? whole(3) : decimal(std::numbers::pi_v<Real>);
  m_last = Last::Value;
  showValue();
}

void CCalcEngine::bttnEE_Click() {
  if (integerBase()) return;
  restartAfterError();
  if (!m_typing) {
    // EE on its own means 1 times a power of ten, as on a pocket calculator.
    startEntry();
    m_mantissa.push_back('1');
  }
  if (m_inExponent) return;
  m_inExponent = true;
  m_exponent.clear();
  m_exponentNegative = false;
  m_last = Last::Digit;
  showEntry();
}

void CCalcEngine::bttnF2E_Click() {
  if (integerBase()) return;
  m_exponential = !m_exponential;
  if (m_last == Last::Error) return;
  if (m_typing) {
    commitEntry();
    m_last = Last::Value;
  }
  showValue();
}

void CCalcEngine::SetNumberBaseState(int base) {
  if (base != 2 && base != 8 && base != 10 && base != 16) return;
  // The page applies the base again whenever its selector gains the focus; that
  // must not disturb an entry.
  if (base == m_base) return;
  if (m_last == Last::Error) {
    m_base = base;
    return;
  }
  commitEntry();
  Number value;
  if (const char* error = convert(m_value, base, value)) {
    m_base = base;
    fail(error);
    return;
  }
  for (auto& level : m_levels) {
    for (auto& pending : level) {
      if (const char* error = convert(pending.left, base, pending.left)) {
        m_base = base;
        fail(error);
        return;
      }
    }
  }
  if (m_hasRepeat && convert(m_repeatOperand, base, m_repeatOperand) != nullptr) m_hasRepeat = false;
  m_value = value;
  m_base = base;
  if (m_last == Last::Digit) m_last = Last::Value;
  showValue();
}

}  // namespace sonalyx
