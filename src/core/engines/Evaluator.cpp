#include "core/engines/Evaluator.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <numbers>
#include <string_view>

#include "core/engines/EvaluationError.h"
#include "core/utility/DecimalText.h"

namespace sonalyx {

namespace {

using UnaryFunction = double (*)(double);

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

constexpr double kPowersOfTen[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                   1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

// Deep enough for any expression a person types, shallow enough that a text of
// thousands of brackets fails instead of exhausting the stack.
constexpr int kMaxNesting = 400;

double factorial(double v) {
  if (v == std::floor(v)) {
    // The gamma function has poles at the negative integers: no value, no sign.
    if (v < 0.0) return kNaN;
    // 170! is the largest factorial a double holds; the product is exact where
    // tgamma may be a few units off in the last place.
    if (v > 170.0) return kInfinity;
    double product = 1.0;
    for (int k = 2; k <= static_cast<int>(v); ++k) product *= k;
    return product;
  }
  return std::tgamma(v + 1.0);
}

double sign(double v) {
  if (v > 0.0) return 1.0;
  if (v < 0.0) return -1.0;
  return v;  // 0 stays 0, NaN stays NaN
}

// Matched on the first letter and the length so that no text is built.
UnaryFunction findFunction(std::string_view name) {
  switch (name[0]) {
    case 'a':
      if (name == "abs") return [](double v) { return std::fabs(v); };
      if (name == "asin") return [](double v) { return std::asin(v); };
      if (name == "acos") return [](double v) { return std::acos(v); };
      if (name == "atan") return [](double v) { return std::atan(v); };
      if (name == "asinh") return [](double v) { return std::asinh(v); };
      if (name == "acosh") return [](double v) { return std::acosh(v); };
      if (name == "atanh") return [](double v) { return std::atanh(v); };
      break;
    case 'c':
      if (name == "cos") return [](double v) { return std::cos(v); };
      if (name == "cosh") return [](double v) { return std::cosh(v); };
      if (name == "ceil") return [](double v) { return std::ceil(v); };
      break;
    case 'e':
      if (name == "exp") return [](double v) { return std::exp(v); };
      break;
    case 'f':
      if (name == "floor") return [](double v) { return std::floor(v); };
      break;
    case 'l':
      if (name == "ln") return [](double v) { return std::log(v); };
      if (name == "log") return [](double v) { return std::log10(v); };
      break;
    case 'r':
      if (name == "round") return [](double v) { return std::round(v); };
      break;
    case 's':
      if (name == "sin") return [](double v) { return std::sin(v); };
      if (name == "sinh") return [](double v) { return std::sinh(v); };
      if (name == "sqrt") return [](double v) { return std::sqrt(v); };
      if (name == "sign") return sign;
      break;
    case 't':
      if (name == "tan") return [](double v) { return std::tan(v); };
      if (name == "tanh") return [](double v) { return std::tanh(v); };
      break;
    default:
      break;
  }
  return nullptr;
}

bool isBlank(char c) {
  return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\v' || c == '\f';
}
bool isDigit(char c) {
  return c >= '0' && c <= '9';
}
bool isLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

// Recursive descent that computes while it reads, lowest precedence first:
//   sum     = product { (+|-) product }
//   product = signed { (*|/) signed }
//   signed  = { + | - } power
//   power   = factor [ ^ signed ]          right-associative, exponent may carry a sign
//   factor  = primary { ! }
//   primary = number | pi | e | name ( sum ) | ( sum )
class Parser {
 public:
  explicit Parser(std::string_view text) : m_text(text) {}

  bool parse(double& value) {
    if (peek() == '\0' && m_pos == m_text.size()) return fail(EvaluationError::Kind::Empty);
    if (!sum(value)) return false;
    if (peek() != '\0' || m_pos != m_text.size()) return unexpected();
    return true;
  }

  const EvaluationError& error() const { return m_error; }

 private:
  bool fail(EvaluationError::Kind kind, std::string_view subject = {}) {
    m_error.kind = kind;
    m_error.subject = std::string(subject);
    m_error.position = m_pos;
    return false;
  }

  // The word, number or character at the current position, for "Unexpected ...".
  bool unexpected() {
    const char c = peek();
    if (m_pos == m_text.size()) return fail(EvaluationError::Kind::EndsTooEarly);
    if (c == '\0') return fail(EvaluationError::Kind::Unexpected, "NUL");
    std::size_t end = m_pos + 1;
    const auto runOf = [&](auto belongs) {
      while (end < m_text.size() && belongs(m_text[end])) ++end;
    };
    if (isLetter(c)) {
      runOf(isLetter);
    } else if (isDigit(c) || c == '.') {
      runOf([](char d) { return isDigit(d) || d == '.'; });
    } else {
      // The rest of a UTF-8 character, so that "π" is named whole.
      runOf([](char d) { return (static_cast<unsigned char>(d) & 0xC0) == 0x80; });
    }
    return fail(EvaluationError::Kind::Unexpected, m_text.substr(m_pos, end - m_pos));
  }

  // The next character after blanks, '\0' at the end.
  char peek() {
    while (m_pos < m_text.size() && isBlank(m_text[m_pos])) ++m_pos;
    return m_pos < m_text.size() ? m_text[m_pos] : '\0';
  }

  bool sum(double& value) {
    if (!product(value)) return false;
    for (;;) {
      const char op = peek();
      if (op != '+' && op != '-') return true;
      ++m_pos;
      double right = 0.0;
      if (!product(right)) return false;
      value = op == '+' ? value + right : value - right;
    }
  }

  bool product(double& value) {
    if (!signedPower(value)) return false;
    for (;;) {
      const char op = peek();
      if (op != '*' && op != '/') return true;
      ++m_pos;
      double right = 0.0;
      if (!signedPower(right)) return false;
      value = op == '*' ? value * right : value / right;
    }
  }

  // Signs are counted rather than recursed into, so "------1" costs no stack.
  bool signedPower(double& value) {
    bool negative = false;
    for (;;) {
      const char c = peek();
      if (c == '-') {
        negative = !negative;
      } else if (c != '+') {
        break;
      }
      ++m_pos;
    }
    if (!power(value)) return false;
    if (negative) value = -value;
    return true;
  }

  bool power(double& value) {
    if (!factor(value)) return false;
    if (peek() != '^') return true;
    ++m_pos;
    if (++m_depth > kMaxNesting) return fail(EvaluationError::Kind::NestedTooDeeply);
    double exponent = 0.0;
    if (!signedPower(exponent)) return false;
    --m_depth;
    value = std::pow(value, exponent);
    return true;
  }

  bool factor(double& value) {
    if (!primary(value)) return false;
    while (peek() == '!') {
      ++m_pos;
      value = factorial(value);
    }
    return true;
  }

  bool primary(double& value) {
    const char c = peek();
    if (isDigit(c) || c == '.') return number(value);
    if (c == '(') {
      ++m_pos;
      return bracketed(value);
    }
    if (!isLetter(c)) return unexpected();
    const std::size_t start = m_pos;
    while (m_pos < m_text.size() && isLetter(m_text[m_pos])) ++m_pos;
    const std::string_view name = m_text.substr(start, m_pos - start);
    const UnaryFunction f = findFunction(name);
    if (peek() == '(' && name != "pi" && name != "e") {
      if (f == nullptr) {
        m_pos = start;
        return fail(EvaluationError::Kind::UnknownName, name);
      }
      ++m_pos;
      if (!bracketed(value)) return false;
      value = f(value);
      return true;
    }
    if (name == "pi") {
      value = std::numbers::pi;
      return true;
    }
    if (name == "e") {
      value = std::numbers::e;
      return true;
    }
    m_pos = start;
    return fail(
        f != nullptr ? EvaluationError::Kind::FunctionNeedsArgument : EvaluationError::Kind::UnknownName,
        name);
  }

  // The rest of "( sum )" after the opening bracket.
  bool bracketed(double& value) {
    if (++m_depth > kMaxNesting) return fail(EvaluationError::Kind::NestedTooDeeply);
    if (!sum(value)) return false;
    const char c = peek();
    if (c == '\0' && m_pos == m_text.size()) return fail(EvaluationError::Kind::MissingClosingBracket);
    if (c != ')') return unexpected();
    ++m_pos;
    --m_depth;
    return true;
  }

  bool number(double& value) {
    // Fast path for the short decimals that sampling writes: with at most 19
    // digits whose value fits in 2^53 and a power of ten up to 22, both operands of
    // one multiplication or division are exact, so its single rounding gives the
    // correctly rounded value. Anything else takes the full reading.
    std::size_t i = m_pos;
    std::uint64_t mantissa = 0;
    int digits = 0;
    int scale = 0;
    for (; i < m_text.size() && isDigit(m_text[i]); ++i, ++digits) mantissa = mantissa * 10 + digitAt(i);
    if (i < m_text.size() && m_text[i] == '.') {
      for (++i; i < m_text.size() && isDigit(m_text[i]); ++i, ++digits, --scale)
        mantissa = mantissa * 10 + digitAt(i);
    }
    if (digits == 0) return unexpected();  // a lone "."
    if (i < m_text.size() && (m_text[i] == 'e' || m_text[i] == 'E')) {
      std::size_t j = i + 1;
      const bool negative = j < m_text.size() && m_text[j] == '-';
      if (j < m_text.size() && (m_text[j] == '-' || m_text[j] == '+')) ++j;
      if (j < m_text.size() && isDigit(m_text[j])) {
        int exponent = 0;
        for (; j < m_text.size() && isDigit(m_text[j]); ++j) {
          if (exponent < 100000) exponent = exponent * 10 + digitAt(j);
        }
        scale += negative ? -exponent : exponent;
        i = j;
      }
    }
    constexpr std::uint64_t kExactLimit = std::uint64_t{1} << 53;
    if (digits <= 19 && mantissa <= kExactLimit && scale >= -22 && scale <= 22) {
      const double m = static_cast<double>(mantissa);
      value = scale < 0 ? m / kPowersOfTen[-scale] : m * kPowersOfTen[scale];
      m_pos = i;
      return true;
    }
    std::size_t used = 0;
    value = decimalToDouble(m_text.substr(m_pos), &used);
    m_pos += used;
    return true;
  }

  int digitAt(std::size_t i) const { return m_text[i] - '0'; }

  std::string_view m_text;
  std::size_t m_pos = 0;
  int m_depth = 0;
  EvaluationError m_error;
};

}  // namespace

bool Calculate(const std::string& expression, double& result, EvaluationError& error) {
  Parser parser(expression);
  double value = 0.0;
  if (!parser.parse(value)) {
    error = parser.error();
    return false;
  }
  result = value;
  return true;
}

bool Calculate(const std::string& expression, double& result, std::string& errorText) {
  EvaluationError error;
  if (!Calculate(expression, result, error)) {
    errorText = evaluationErrorText(error);
    return false;
  }
  return true;
}

}  // namespace sonalyx
