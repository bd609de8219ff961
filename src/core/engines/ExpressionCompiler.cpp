#include "core/engines/ExpressionCompiler.h"

#include <cstddef>
#include <cstdint>
#include <numbers>
#include <string>
#include <vector>

#include "core/limits/Limits.h"
#include "core/utility/DecimalText.h"

namespace sonalyx {

namespace {

using Operand = ExpressionCode::Operand;
using Op = ExpressionOperation;

constexpr double kPowersOfTen[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                   1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};

// Deep enough for any expression a person types, shallow enough that a text of
// thousands of brackets fails instead of exhausting the stack.
constexpr int kMaxNesting = 400;

bool isBlank(char c) {
  return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\v' || c == '\f';
}
bool isDigit(char c) {
  return c >= '0' && c <= '9';
}
bool isLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

// Recursive descent, lowest precedence first:
//   sum     = product { (+|-) product }
//   product = signed { (*|/) signed }
//   signed  = { + | - } power
//   power   = factor [ ^ signed ]          right-associative, exponent may carry a sign
//   factor  = primary { ! }
//   primary = number | pi | e | x | name ( sum ) | ( sum )
// Each rule yields an operand: a constant when nothing in it depends on x (then
// nothing was emitted and nothing allocated), else the register holding it.
class Compiler {
 public:
  Compiler(std::string_view text, bool withX, ExpressionCode& code)
      : m_text(text), m_withX(withX), m_code(code) {}

  bool compile() {
    m_code.instructions.clear();
    m_code.registers = 0;
    if (peek() == '\0' && m_pos == m_text.size()) return fail(EvaluationError::Kind::Empty);
    Operand value;
    if (!sum(value)) return false;
    if (peek() != '\0' || m_pos != m_text.size()) return unexpected();
    m_code.result = value;
    dropUnusedCode();
    return true;
  }

  const EvaluationError& error() const { return m_error; }

 private:
  // Removes the instructions whose values the result does not use, as the code of
  // a base raised to 0 (sin(x)^0 is 1), going back from the result through the
  // registers each kept instruction reads. Afterwards the last instruction
  // computes the result, which the block loops rely on.
  void dropUnusedCode() {
    auto& code = m_code.instructions;
    if (m_code.result.kind != Operand::Kind::Register) {
      code.clear();
      return;
    }
    std::vector<bool> needed(static_cast<std::size_t>(m_code.registers), false);
    std::vector<bool> kept(code.size(), false);
    needed[m_code.result.index] = true;
    for (std::size_t i = code.size(); i-- > 0;) {
      const ExpressionCode::Instruction& in = code[i];
      if (!needed[in.target]) continue;
      kept[i] = true;
      needed[in.target] = false;
      for (const Operand* o : {&in.a, &in.b}) {
        if (o->kind == Operand::Kind::Register) needed[o->index] = true;
      }
    }
    std::size_t next = 0;
    for (std::size_t i = 0; i < code.size(); ++i) {
      if (kept[i]) code[next++] = code[i];
    }
    code.resize(next);
  }

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
    const std::string_view word = m_text.substr(m_pos, end - m_pos);
    if (m_withX && word == "x" && followsNumber()) return fail(EvaluationError::Kind::NumberBeforeX);
    return fail(EvaluationError::Kind::Unexpected, word);
  }

  // Whether the last character before the current position, blanks aside, ends a
  // number: "2x", "2 x", "1.5x".
  bool followsNumber() const {
    std::size_t i = m_pos;
    while (i > 0 && isBlank(m_text[i - 1])) --i;
    return i > 0 && (isDigit(m_text[i - 1]) || m_text[i - 1] == '.');
  }

  // The next character after blanks, '\0' at the end.
  char peek() {
    while (m_pos < m_text.size() && isBlank(m_text[m_pos])) ++m_pos;
    return m_pos < m_text.size() ? m_text[m_pos] : '\0';
  }

  // Registers are taken lowest first and a result never shares a register with an
  // operand, so every loop reads and writes distinct columns.
  std::uint16_t takeRegister() {
    std::size_t r = 0;
    while (r < m_busy.size() && m_busy[r]) ++r;
    if (r == m_busy.size()) m_busy.push_back(false);
    m_busy[r] = true;
    if (static_cast<int>(r) + 1 > m_code.registers) m_code.registers = static_cast<int>(r) + 1;
    return static_cast<std::uint16_t>(r);
  }

  void release(const Operand& o) {
    if (o.kind == Operand::Kind::Register) m_busy[o.index] = false;
  }

  Operand emit(Op op, const Operand& a, const Operand& b = Operand::constant(0.0), int exponent = 0) {
    if (a.isConstant() && b.isConstant())
      return Operand::constant(expression_math::apply(op, a.value, b.value, exponent));
    const std::uint16_t target = takeRegister();
    release(a);
    release(b);
    m_code.instructions.push_back({op, a, b, exponent, target});
    return Operand::reg(target);
  }

  Operand raise(const Operand& base, const Operand& exponent) {
    int n = 0;
    if (base.isConstant() || !exponent.isConstant() || !expression_math::isWholeExponent(exponent.value, n))
      return emit(Op::Power, base, exponent);
    if (n == 0) {
      release(base);
      return Operand::constant(1.0);  // as pow: even for NaN
    }
    if (n == 1) return base;
    return emit(Op::WholePower, base, Operand::constant(0.0), n);
  }

  bool sum(Operand& value) {
    if (!product(value)) return false;
    for (;;) {
      const char op = peek();
      if (op != '+' && op != '-') return true;
      ++m_pos;
      Operand right;
      if (!product(right)) return false;
      value = emit(op == '+' ? Op::Add : Op::Subtract, value, right);
    }
  }

  bool product(Operand& value) {
    if (!signedPower(value)) return false;
    for (;;) {
      const char op = peek();
      if (op != '*' && op != '/') return true;
      ++m_pos;
      Operand right;
      if (!signedPower(right)) return false;
      value = emit(op == '*' ? Op::Multiply : Op::Divide, value, right);
    }
  }

  // Signs are counted rather than recursed into, so "------1" costs no stack.
  bool signedPower(Operand& value) {
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
    if (negative) value = emit(Op::Negate, value);
    return true;
  }

  bool power(Operand& value) {
    if (!factor(value)) return false;
    if (peek() != '^') return true;
    ++m_pos;
    if (++m_depth > kMaxNesting) return fail(EvaluationError::Kind::NestedTooDeeply);
    Operand exponent;
    if (!signedPower(exponent)) return false;
    --m_depth;
    value = raise(value, exponent);
    return true;
  }

  bool factor(Operand& value) {
    if (!primary(value)) return false;
    while (peek() == '!') {
      ++m_pos;
      value = emit(Op::Factorial, value);
    }
    return true;
  }

  bool primary(Operand& value) {
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
    if (m_withX && name == "x") {
      value = Operand::x();
      return true;
    }
    Op f = Op::Negate;
    const bool isFunction = findFunctionOperation(name, f);
    if (peek() == '(' && name != "pi" && name != "e") {
      if (!isFunction) {
        m_pos = start;
        return fail(EvaluationError::Kind::UnknownName, name);
      }
      ++m_pos;
      Operand argument;
      if (!bracketed(argument)) return false;
      value = emit(f, argument);
      return true;
    }
    if (name == "pi") {
      value = Operand::constant(std::numbers::pi);
      return true;
    }
    if (name == "e") {
      value = Operand::constant(std::numbers::e);
      return true;
    }
    m_pos = start;
    return fail(
        isFunction ? EvaluationError::Kind::FunctionNeedsArgument : EvaluationError::Kind::UnknownName, name);
  }

  // The rest of "( sum )" after the opening bracket.
  bool bracketed(Operand& value) {
    if (++m_depth > kMaxNesting) return fail(EvaluationError::Kind::NestedTooDeeply);
    if (!sum(value)) return false;
    const char c = peek();
    if (c == '\0' && m_pos == m_text.size()) return fail(EvaluationError::Kind::MissingClosingBracket);
    if (c != ')') return unexpected();
    ++m_pos;
    --m_depth;
    return true;
  }

  bool number(Operand& value) {
    // Fast path for short decimals: with at most 19 digits whose value fits in
    // 2^53 and a power of ten up to 22, both operands of one multiplication or
    // division are exact, so its single rounding gives the correctly rounded
    // value. Anything else takes the full reading.
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
      value = Operand::constant(scale < 0 ? m / kPowersOfTen[-scale] : m * kPowersOfTen[scale]);
      m_pos = i;
      return true;
    }
    std::size_t used = 0;
    value = Operand::constant(decimalToDouble(m_text.substr(m_pos), &used));
    m_pos += used;
    return true;
  }

  int digitAt(std::size_t i) const { return m_text[i] - '0'; }

  std::string_view m_text;
  bool m_withX;
  ExpressionCode& m_code;
  std::size_t m_pos = 0;
  int m_depth = 0;
  std::vector<bool> m_busy;
  EvaluationError m_error;
};

}  // namespace

bool findFunctionOperation(std::string_view name, ExpressionOperation& op) {
  const auto is = [&](std::string_view candidate, Op o) {
    if (name != candidate) return false;
    op = o;
    return true;
  };
  if (name.empty()) return false;
  switch (name[0]) {
    case 'a':
      return is("abs", Op::Abs) || is("asin", Op::Asin) || is("acos", Op::Acos) || is("atan", Op::Atan) ||
             is("asinh", Op::Asinh) || is("acosh", Op::Acosh) || is("atanh", Op::Atanh);
    case 'c':
      return is("cos", Op::Cos) || is("cosh", Op::Cosh) || is("ceil", Op::Ceil);
    case 'e':
      return is("exp", Op::Exp);
    case 'f':
      return is("floor", Op::Floor);
    case 'l':
      return is("ln", Op::Ln) || is("log", Op::Log);
    case 'r':
      return is("round", Op::Round);
    case 's':
      return is("sin", Op::Sin) || is("sinh", Op::Sinh) || is("sqrt", Op::Sqrt) || is("sign", Op::Sign);
    case 't':
      return is("tan", Op::Tan) || is("tanh", Op::Tanh);
    default:
      return false;
  }
}

bool compileExpression(std::string_view text, bool withX, ExpressionCode& code, EvaluationError& error) {
  // Refused before any code is made.
  if (text.size() > limits::kMostExpressionLength) {
    error = EvaluationError{EvaluationError::Kind::TooLong, std::to_string(limits::kMostExpressionLength), 0};
    return false;
  }
  Compiler compiler(text, withX, code);
  if (compiler.compile()) return true;
  error = compiler.error();
  return false;
}

}  // namespace sonalyx
