#include "core/engines/MatrixExpression.h"

#include <Eigen/LU>
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <new>
#include <numbers>
#include <stdexcept>
#include <utility>
#include <vector>

#include "core/engines/Evaluator.h"
#include "core/limits/Limits.h"
#include "core/utility/DecimalText.h"
#include "core/utility/NumberFormat.h"

namespace sonalyx {

namespace {

using Eigen::MatrixXd;

constexpr double kEpsilon = std::numeric_limits<double>::epsilon();
// Deep enough for anything typed, shallow enough that thousands of brackets fail
// instead of exhausting the stack.
constexpr int kMaxNesting = 200;
// eye(n) beyond this would be megabytes of text in the edit box.
constexpr double kMaxEye = 1000.0;

// Thrown inside the evaluation, caught once at the top.
class MatrixFailure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

[[noreturn]] void fail(const std::string& reason) {
  throw MatrixFailure(reason);
}

std::string sizeText(const MatrixValue& v) {
  return std::to_string(v.matrix.rows()) + "x" + std::to_string(v.matrix.cols());
}

[[noreturn]] void mismatch(const MatrixValue& a, const char* op, const MatrixValue& b) {
  fail("size mismatch: " + sizeText(a) + " " + op + " " + sizeText(b));
}

void requireSquare(const MatrixValue& v, const char* what) {
  if (v.matrix.rows() != v.matrix.cols())
    fail(std::string(what) + " needs a square matrix, not " + sizeText(v));
}

MatrixValue matrixOf(MatrixXd m) {
  return MatrixValue{std::move(m), false};
}

// Full-pivot LU whose pivots count as zero below a relative threshold of a few
// units of rounding per row: [1,2,3;4,5,6;7,8,9] comes out with a last pivot of
// about 1e-16 of the first and is singular, as it is exactly.
Eigen::FullPivLU<MatrixXd> factorise(const MatrixXd& m) {
  Eigen::FullPivLU<MatrixXd> lu(m);
  lu.setThreshold(16.0 * kEpsilon * static_cast<double>(m.rows()));
  return lu;
}

// Entries smaller than the rounding error of their own computation carry no
// digit of the true value; they are written as 0 so that A*inv(A) reads as the
// identity rather than as 1e-017 noise.
void clearNoise(MatrixXd& m, const MatrixXd& errorBound) {
  for (Eigen::Index j = 0; j < m.cols(); ++j) {
    for (Eigen::Index i = 0; i < m.rows(); ++i) {
      if (std::fabs(m(i, j)) <= errorBound(i, j)) m(i, j) = 0.0;
    }
  }
}

MatrixXd product(const MatrixXd& a, const MatrixXd& b) {
  MatrixXd c = a * b;
  const double rounding = 2.0 * static_cast<double>(a.cols() + 1) * kEpsilon;
  clearNoise(c, (a.cwiseAbs() * b.cwiseAbs()) * rounding);
  return c;
}

MatrixXd inverse(const MatrixXd& m) {
  const auto lu = factorise(m);
  if (!lu.isInvertible()) fail("singular matrix");
  MatrixXd inv = lu.inverse();
  // An inverse is only accurate as a whole, to rounding of its largest entry.
  const double floor = 4.0 * static_cast<double>(m.rows()) * kEpsilon * inv.cwiseAbs().maxCoeff();
  clearNoise(inv, MatrixXd::Constant(inv.rows(), inv.cols(), floor));
  return inv;
}

MatrixValue add(const MatrixValue& a, const MatrixValue& b, char op) {
  const double sign = op == '+' ? 1.0 : -1.0;
  if (a.scalar && b.scalar) return MatrixValue::number(a.scalarValue() + sign * b.scalarValue());
  if (a.scalar) return matrixOf((sign * b.matrix).array() + a.scalarValue());
  if (b.scalar) return matrixOf(a.matrix.array() + sign * b.scalarValue());
  if (a.matrix.rows() != b.matrix.rows() || a.matrix.cols() != b.matrix.cols())
    mismatch(a, op == '+' ? "+" : "-", b);
  return matrixOf(a.matrix + sign * b.matrix);
}

MatrixValue multiply(const MatrixValue& a, const MatrixValue& b) {
  if (a.scalar && b.scalar) return MatrixValue::number(a.scalarValue() * b.scalarValue());
  if (a.scalar) return matrixOf(a.scalarValue() * b.matrix);
  if (b.scalar) return matrixOf(a.matrix * b.scalarValue());
  if (a.matrix.cols() != b.matrix.rows()) mismatch(a, "*", b);
  return matrixOf(product(a.matrix, b.matrix));
}

MatrixValue divide(const MatrixValue& a, const MatrixValue& b) {
  if (b.scalar) {
    if (b.scalarValue() == 0.0) fail("division by zero");
    MatrixValue quotient = a;
    quotient.matrix /= b.scalarValue();
    return quotient;
  }
  if (b.matrix.rows() != b.matrix.cols()) fail("division needs a square matrix, not " + sizeText(b));
  if (!a.scalar && a.matrix.cols() != b.matrix.rows()) mismatch(a, "/", b);
  return multiply(a, matrixOf(inverse(b.matrix)));
}

// A whole exponent as an integer; anything else has no meaning for a matrix.
std::int64_t wholeExponent(double exponent) {
  constexpr double kLimit = 9007199254740992.0;  // 2^53: every whole double below is exact
  if (!(std::fabs(exponent) <= kLimit) || exponent != std::floor(exponent))
    fail("a matrix power needs a whole exponent");
  return static_cast<std::int64_t>(exponent);
}

MatrixValue power(const MatrixValue& base, const MatrixValue& exponent) {
  if (!exponent.scalar && exponent.matrix.size() != 1)
    fail("the exponent must be a number, not " + sizeText(exponent));
  const double e = exponent.scalarValue();
  if (base.scalar) return MatrixValue::number(std::pow(base.scalarValue(), e));
  requireSquare(base, "a power");
  std::int64_t n = wholeExponent(e);
  MatrixXd factor = n < 0 ? inverse(base.matrix) : base.matrix;
  MatrixXd result = MatrixXd::Identity(base.matrix.rows(), base.matrix.cols());
  // Squaring: ^1000000 takes 40 products, not a million.
  std::uint64_t remaining = n < 0 ? static_cast<std::uint64_t>(-n) : static_cast<std::uint64_t>(n);
  int products = 0;
  for (std::uint64_t bits = remaining; bits != 0; bits >>= 1U) products += (bits & 1U) != 0 ? 2 : 1;
  const double order = static_cast<double>(base.matrix.rows());
  if (order * order * order * products > limits::kMostMatrixPowerWork) {
    fail("a power of a " + sizeText(base) + " matrix to " + std::to_string(n) + " needs more than the " +
         formatNumber(limits::kMostMatrixPowerWork, "%.0f") + " multiplications allowed");
  }
  while (remaining != 0) {
    if ((remaining & 1U) != 0) result = product(result, factor);
    remaining >>= 1U;
    if (remaining != 0) factor = product(factor, factor);
  }
  return matrixOf(std::move(result));
}

double determinant(const MatrixXd& m) {
  const auto lu = factorise(m);
  return lu.isInvertible() ? lu.determinant() : 0.0;
}

bool isBlank(char c) {
  return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}
bool isDigit(char c) {
  return c >= '0' && c <= '9';
}
bool isNameStart(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
}
bool isNameChar(char c) {
  return isNameStart(c) || isDigit(c);
}

// Recursive descent, lowest precedence first:
//   sum     = product { (+|-) product }
//   product = signed { (*|/) signed }
//   signed  = { + | - } power
//   power   = postfix [ ^ signed ]
//   postfix = primary { ' }
//   primary = number | pi | e | name ( sum ) | ( sum ) | [ rows ]
class MatrixParser {
 public:
  // Reads text[begin, end); positions in reasons count from the start of `text`.
  MatrixParser(std::string_view text, int depth, std::size_t begin = 0,
               std::size_t end = std::string_view::npos)
      : m_text(text), m_pos(begin), m_end(std::min(end, text.size())), m_depth(depth) {}

  MatrixValue parseWhole() {
    if (peek() == '\0') fail("empty expression");
    MatrixValue value = sum();
    if (peek() != '\0' || m_pos != m_end) unexpected();
    return value;
  }

 private:
  char peek() {
    while (m_pos < m_end && isBlank(m_text[m_pos])) ++m_pos;
    return m_pos < m_end ? m_text[m_pos] : '\0';
  }

  [[noreturn]] void unexpected() {
    if (peek() == '\0') fail("the expression ends too early");
    fail("unexpected '" + std::string(1, m_text[m_pos]) + "' at position " + std::to_string(m_pos + 1));
  }

  void expect(char c) {
    if (peek() != c) unexpected();
    ++m_pos;
  }

  void enter() {
    if (++m_depth > kMaxNesting) fail("too deeply nested");
  }

  MatrixValue sum() {
    MatrixValue value = productTerm();
    for (char op = peek(); op == '+' || op == '-'; op = peek()) {
      ++m_pos;
      value = add(value, productTerm(), op);
    }
    return value;
  }

  MatrixValue productTerm() {
    MatrixValue value = signedPower();
    for (char op = peek(); op == '*' || op == '/'; op = peek()) {
      ++m_pos;
      const MatrixValue right = signedPower();
      value = op == '*' ? multiply(value, right) : divide(value, right);
    }
    return value;
  }

  MatrixValue signedPower() {
    bool negative = false;
    for (char c = peek(); c == '-' || c == '+'; c = peek()) {
      if (c == '-') negative = !negative;
      ++m_pos;
    }
    MatrixValue value = powerTerm();
    if (negative) value.matrix = -value.matrix;
    return value;
  }

  MatrixValue powerTerm() {
    MatrixValue value = postfix();
    if (peek() != '^') return value;
    ++m_pos;
    enter();
    const MatrixValue exponent = signedPower();
    --m_depth;
    return power(value, exponent);
  }

  MatrixValue postfix() {
    MatrixValue value = primary();
    while (peek() == '\'') {
      ++m_pos;
      if (!value.scalar) value.matrix.transposeInPlace();
    }
    return value;
  }

  MatrixValue primary() {
    const char c = peek();
    if (isDigit(c) || c == '.') return number();
    if (c == '(') {
      ++m_pos;
      enter();
      MatrixValue value = sum();
      expect(')');
      --m_depth;
      return value;
    }
    if (c == '[') {
      ++m_pos;
      enter();
      MatrixValue value = literal();
      --m_depth;
      return value;
    }
    if (isNameStart(c)) return named();
    unexpected();
  }

  MatrixValue number() {
    std::size_t used = 0;
    const double value = decimalToDouble(m_text.substr(m_pos, m_end - m_pos), &used);
    if (used == 0) unexpected();
    m_pos += used;
    return MatrixValue::number(value);
  }

  MatrixValue named() {
    const std::size_t start = m_pos;
    while (m_pos < m_end && isNameChar(m_text[m_pos])) ++m_pos;
    const std::string name(m_text.substr(start, m_pos - start));
    if (peek() != '(') {
      if (name == "pi") return MatrixValue::number(std::numbers::pi);
      if (name == "e") return MatrixValue::number(std::numbers::e);
      fail("unknown name: " + name);
    }
    if (!isFunction(name)) fail("unknown function: " + name);
    ++m_pos;
    enter();
    const MatrixValue argument = sum();
    expect(')');
    --m_depth;
    return apply(name, argument);
  }

  static bool isFunction(const std::string& name) {
    for (const char* own : {"det", "inv", "trans", "trace", "rank", "eye"}) {
      if (name == own) return true;
    }
    double ignored = 0.0;
    std::string error;
    return Calculate(name + "(1)", ignored, error);
  }

  static MatrixValue apply(const std::string& name, const MatrixValue& x) {
    if (name == "trans") return MatrixValue{x.matrix.transpose(), x.scalar};
    if (name == "inv") {
      requireSquare(x, "inv");
      return MatrixValue{inverse(x.matrix), x.scalar};
    }
    if (name == "det") {
      requireSquare(x, "det");
      return MatrixValue::number(determinant(x.matrix));
    }
    if (name == "trace") {
      requireSquare(x, "trace");
      return MatrixValue::number(x.matrix.trace());
    }
    if (name == "rank") return MatrixValue::number(static_cast<double>(factorise(x.matrix).rank()));
    if (x.matrix.size() != 1) fail(name + " needs a number, not " + sizeText(x));
    const double v = x.scalarValue();
    if (name == "eye") {
      if (!(v >= 1.0 && v <= kMaxEye) || v != std::floor(v)) fail("eye needs a whole number from 1 to 1000");
      const auto n = static_cast<Eigen::Index>(v);
      return matrixOf(MatrixXd::Identity(n, n));
    }
    // Every other function is the evaluator's; 17 digits carry the double exactly.
    double result = 0.0;
    std::string error;
    if (!Calculate(name + "(" + formatNumber(v, "%.17g") + ")", result, error))
      fail("the result is not a finite number");  // NaN and infinities are written as words
    return MatrixValue::number(result);
  }

  // After "[": elements up to the matching "]".
  MatrixValue literal() {
    std::vector<std::vector<MatrixValue>> rows(1);
    if (peek() == ']') fail("an empty matrix");
    for (;;) {
      const std::size_t end = elementEnd();
      rows.back().push_back(element(m_pos, end));
      m_pos = end;
      const char separator = m_text[m_pos++];
      if (separator == ']') break;
      if (separator == ';') rows.emplace_back();
    }
    return assemble(rows);
  }

  // Where the element starting at the current position ends: the next "," ";" or
  // "]" outside brackets of its own.
  std::size_t elementEnd() const {
    int round = 0;
    int square = 0;
    for (std::size_t i = m_pos; i < m_end; ++i) {
      const char c = m_text[i];
      if (c == '(') ++round;
      if (c == '[') ++square;
      if (round == 0 && square == 0 && (c == ',' || c == ';' || c == ']')) return i;
      if (c == ')' && --round < 0) fail("unexpected ')' at position " + std::to_string(i + 1));
      if (c == ']') --square;
    }
    fail("a matrix is missing its closing ']'");
  }

  MatrixValue element(std::size_t begin, std::size_t end) {
    // Numbers and scalar expressions are the evaluator's; most elements are
    // plain numbers, so this is tried first.
    const std::string_view text = m_text.substr(begin, end - begin);
    double value = 0.0;
    std::string error;
    if (Calculate(std::string(text), value, error)) return MatrixValue::number(value);
    if (text.find_first_not_of(" \t\n\r") == std::string_view::npos) fail("a matrix has an empty element");
    return MatrixParser(m_text, m_depth, begin, end).parseWhole();
  }

  static MatrixValue assemble(const std::vector<std::vector<MatrixValue>>& rows) {
    Eigen::Index width = -1;
    Eigen::Index height = 0;
    std::vector<Eigen::Index> rowHeights;
    for (const auto& row : rows) {
      const Eigen::Index rowHeight = row.front().matrix.rows();
      Eigen::Index rowWidth = 0;
      for (const auto& piece : row) {
        if (piece.matrix.rows() != rowHeight)
          fail("size mismatch: pieces of " + std::to_string(rowHeight) + " and " +
               std::to_string(piece.matrix.rows()) + " rows side by side");
        rowWidth += piece.matrix.cols();
      }
      if (width >= 0 && rowWidth != width)
        fail("size mismatch: rows of " + std::to_string(width) + " and " + std::to_string(rowWidth) +
             " columns");
      width = rowWidth;
      height += rowHeight;
      rowHeights.push_back(rowHeight);
    }
    // Checked before the matrix is made: nested blocks grow fourfold each level.
    if (static_cast<double>(height) * static_cast<double>(width) >
        static_cast<double>(limits::kMostMatrixElements))
      fail("a matrix of " + std::to_string(height) + "x" + std::to_string(width) + " is larger than the " +
           std::to_string(limits::kMostMatrixElements) + " elements allowed");
    MatrixXd m(height, width);
    Eigen::Index top = 0;
    for (std::size_t r = 0; r < rows.size(); ++r) {
      Eigen::Index left = 0;
      for (const auto& piece : rows[r]) {
        m.block(top, left, piece.matrix.rows(), piece.matrix.cols()) = piece.matrix;
        left += piece.matrix.cols();
      }
      top += rowHeights[r];
    }
    return matrixOf(std::move(m));
  }

  std::string_view m_text;
  std::size_t m_pos;
  std::size_t m_end;
  int m_depth;
};

}  // namespace

bool evaluateMatrixExpression(std::string_view text, MatrixValue& value, std::string& error) {
  try {
    if (text.size() > limits::kMostMatrixTextLength)
      fail("the expression is longer than " + std::to_string(limits::kMostMatrixTextLength) + " characters");
    MatrixValue result = MatrixParser(text, 0).parseWhole();
    if (!result.matrix.allFinite()) fail("the result is not a finite number");
    value = std::move(result);
    return true;
  } catch (const MatrixFailure& failure) {
    error = failure.what();
  } catch (const std::bad_alloc&) {
    error = "the matrix is too large";
  }
  return false;
}

std::string formatMatrixNumber(double value) {
  return formatNumber(value + 0.0, "%.10g");  // -0 + 0 is +0
}

std::string formatMatrix(const MatrixValue& value) {
  if (value.scalar) return formatMatrixNumber(value.scalarValue());
  std::string text = "[";
  for (Eigen::Index i = 0; i < value.matrix.rows(); ++i) {
    if (i > 0) text += ';';
    for (Eigen::Index j = 0; j < value.matrix.cols(); ++j) {
      if (j > 0) text += ',';
      text += formatMatrixNumber(value.matrix(i, j));
    }
  }
  text += ']';
  return text;
}

}  // namespace sonalyx
