#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace sonalyx {

// The scientific calculator behind the Calculator page. The page turns every key
// into one call and shows `displayText` afterwards.
//
// Decimal shows up to 15 significant digits, worked in a wider type so that the
// digits shown are right; hexadecimal, octal and binary work on 64-bit
// two's-complement integers that wrap like a register. Binary operators bind as
// x^y (and its root) above * / Mod, above + -, above And, above Xor, above Or; "("
// right after a number multiplies it; "=" completes everything pending and,
// pressed again, repeats the last operation on the value shown. Errors replace the
// display with one of "Cannot divide by zero", "Result is undefined", "Invalid
// input", "Overflow" (English; the page translates them) until a digit, point, π,
// EE, "(" or memory recall starts afresh.
class CCalcEngine {
 public:
  CCalcEngine();
  virtual ~CCalcEngine();

  // What the display shows; valid after every call.
  std::string displayText;
  // Written by the page's check boxes. Every unary operation and x^y consumes both:
  // they are false again afterwards, as the page clears its boxes.
  bool inverse = false;
  bool hyperbolic = false;
  // Unit of angles: 0 degrees, 1 radians, 2 grads.
  std::int32_t angleMode = 0;

  // A digit 0 to 15; digits that the number base lacks are ignored.
  void bttnDigit_Click(int digit);
  // "+", "-", "*", "/", "Mod", "X^Y", "And", "Or", "Xor", "(", ")" or "=".
  void bttnBinOp_Click(const std::string& op);
  // 0 sin, 1 cos, 2 x², 3 tan, 4 e^x, 5 ln, 6 log, 7 x³, 9 square root, 10 1/x,
  // 11 n!, 12 left shift, 13 not (with inverse: the inverse function, right shift
  // for 12; with hyperbolic: sinh, cosh, tanh). Other codes are ignored.
  void bttnUniOp_Click(int code);
  // 0 clear, 1 add the shown value to memory, 2 store it, 3 recall.
  void bttnMemory_Click(int action);
  void bttnC_Click();          // clears everything but memory
  void bttnCE_Click();         // clears the entry
  void bttnBack_Click();       // removes the last typed character
  void bttnPlusMinus_Click();  // the sign of the entry, of its exponent, or of the value shown
  void bttnDecimal_Click();    // decimal base only
  void bttnPi_Click();
  void bttnEE_Click();   // decimal base only: the digits that follow are a power of ten
  void bttnF2E_Click();  // decimal base only: toggles exponential display
  // 16, 10, 8 or 2: converts the value shown and everything pending, dropping
  // fractions. Other values are ignored.
  void SetNumberBaseState(int base);

  int numberBase() const { return m_base; }
  // True from memory store or add until memory clear: the page's "M" indicator.
  bool hasMemory() const { return m_memoryInUse; }
  // The memory as memory recall would show it in the base in use (or the error
  // that recalling it would give); nothing while the memory is empty.
  std::optional<std::string> memoryText() const;
  // True while the display shows an error text.
  bool isError() const { return m_last == Last::Error; }
  bool exponentialDisplay() const { return m_exponential; }
  // Parentheses opened and not yet closed.
  int openParentheses() const { return static_cast<int>(m_levels.size()) - 1; }

 private:
  enum class Op { Or, Xor, And, Add, Subtract, Multiply, Divide, Mod, Power, Root };
  // What the previous call left behind; decides whether an operator replaces the
  // one before it and whether "(" multiplies.
  enum class Last { Start, Cleared, Digit, Value, Operator, Open, Close, Equals, Error };

  // A value in the current base. `exact` says `bits` holds the value as a whole
  // number: always so in the integer bases, and in decimal after a conversion from
  // one, so that hexadecimal to decimal and back keeps all 64 bits.
  struct Number {
    long double real = 0.0L;
    std::int64_t bits = 0;
    bool exact = true;
  };
  struct Pending {
    Number left;
    Op op;
  };

  static int precedence(Op op);
  static Number whole(std::int64_t bits);
  static Number decimal(long double real);

  bool integerBase() const { return m_base != 10; }
  void resetAll();
  void restartAfterError();
  void fail(const char* text);
  void startEntry();
  bool entryTooLong() const;
  Number entryValue() const;
  void commitEntry();
  void showValue();
  void showEntry();
  std::string formatValue(const Number& n) const;

  const char* combine(const Number& left, Op op, const Number& right, Number& result) const;
  const char* combineDecimal(long double a, Op op, long double b, Number& result) const;
  const char* combineWhole(std::int64_t a, Op op, std::int64_t b, Number& result) const;
  const char* unary(int code, bool inv, bool hyp, const Number& x, Number& result) const;
  const char* unaryDecimal(int code, bool inv, bool hyp, long double x, long double& result) const;
  const char* unaryWhole(int code, bool inv, bool hyp, std::int64_t x, Number& result) const;
  const char* toWhole(const Number& n, std::int64_t& bits) const;
  const char* convert(const Number& n, int base, Number& result) const;

  bool reduce(int minimumPrecedence);
  void binaryOperator(Op op);
  void equals();
  void openParenthesis();
  void closeParenthesis();

  int m_base = 10;
  bool m_exponential = false;
  Last m_last = Last::Start;

  // The value shown when no entry is being typed.
  Number m_value;
  // Pending operations, one list per parenthesis level; [0] is outside all of them.
  std::vector<std::vector<Pending>> m_levels;

  // The entry being typed: mantissa digits (and point) without the sign, then
  // optionally an exponent after EE.
  bool m_typing = false;
  std::string m_mantissa;
  bool m_negative = false;
  bool m_inExponent = false;
  std::string m_exponent;
  bool m_exponentNegative = false;
  std::uint64_t m_entryBits = 0;  // integer bases: the typed pattern

  // What a repeated "=" does again.
  bool m_hasRepeat = false;
  Op m_repeatOp = Op::Add;
  Number m_repeatOperand;

  // The last operation that reduce() carried out, for "=" to remember.
  bool m_appliedAny = false;
  Op m_appliedOp = Op::Add;
  Number m_appliedRight;

  Number m_memory;  // kept as stored; converted to the base in use when recalled
  bool m_memoryInUse = false;
};

}  // namespace sonalyx
