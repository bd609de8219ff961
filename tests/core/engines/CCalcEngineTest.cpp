#include "core/engines/CCalcEngine.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <optional>
#include <sstream>
#include <string>

namespace sonalyx {
namespace {

// Drives the engine by the names printed on the keys, separated by blanks.
// "inv" and "hyp" tick the check boxes; "deg", "rad", "grad" and "hex", "dec",
// "oct", "bin" are the two selectors.
class KeyPad {
 public:
  explicit KeyPad(CCalcEngine& engine) : m_engine(engine) {
    CCalcEngine& e = m_engine;
    for (int d = 0; d < 10; ++d) m_keys[std::to_string(d)] = [&e, d] { e.bttnDigit_Click(d); };
    for (int d = 10; d < 16; ++d)
      m_keys[std::string(1, char('a' + d - 10))] = [&e, d] { e.bttnDigit_Click(d); };
    const std::map<std::string, std::string> binary = {
        {"+", "+"},   {"-", "-"},     {"*", "*"},     {"/", "/"}, {"mod", "Mod"}, {"and", "And"},
        {"or", "Or"}, {"xor", "Xor"}, {"x^y", "X^Y"}, {"(", "("}, {")", ")"},     {"=", "="}};
    for (const auto& [key, op] : binary) m_keys[key] = [&e, op] { e.bttnBinOp_Click(op); };
    const std::map<std::string, int> unary = {{"sin", 0},  {"cos", 1}, {"x^2", 2},  {"tan", 3},   {"e^x", 4},
                                              {"ln", 5},   {"log", 6}, {"x^3", 7},  {"code8", 8}, {"sqrt", 9},
                                              {"1/x", 10}, {"n!", 11}, {"lsh", 12}, {"not", 13}};
    for (const auto& [key, code] : unary) m_keys[key] = [&e, code] { e.bttnUniOp_Click(code); };
    const std::map<std::string, int> memory = {{"MC", 0}, {"M+", 1}, {"MS", 2}, {"MR", 3}};
    for (const auto& [key, action] : memory) m_keys[key] = [&e, action] { e.bttnMemory_Click(action); };
    const std::map<std::string, int> bases = {{"hex", 16}, {"dec", 10}, {"oct", 8}, {"bin", 2}};
    for (const auto& [key, base] : bases) m_keys[key] = [&e, base] { e.SetNumberBaseState(base); };
    const std::map<std::string, int> angles = {{"deg", 0}, {"rad", 1}, {"grad", 2}};
    for (const auto& [key, unit] : angles) m_keys[key] = [&e, unit] { e.angleMode = unit; };
    m_keys["inv"] = [&e] { e.inverse = true; };
    m_keys["hyp"] = [&e] { e.hyperbolic = true; };
    m_keys["C"] = [&e] { e.bttnC_Click(); };
    m_keys["CE"] = [&e] { e.bttnCE_Click(); };
    m_keys["<-"] = [&e] { e.bttnBack_Click(); };
    m_keys["+/-"] = [&e] { e.bttnPlusMinus_Click(); };
    m_keys["."] = [&e] { e.bttnDecimal_Click(); };
    m_keys["pi"] = [&e] { e.bttnPi_Click(); };
    m_keys["EE"] = [&e] { e.bttnEE_Click(); };
    m_keys["F-E"] = [&e] { e.bttnF2E_Click(); };
  }

  // Presses the keys and returns the display afterwards.
  std::string press(const std::string& keys) {
    std::istringstream words(keys);
    std::string word;
    while (words >> word) {
      const auto key = m_keys.find(word);
      if (key == m_keys.end()) {
        ADD_FAILURE() << "no key '" << word << "'";
        continue;
      }
      key->second();
    }
    return m_engine.displayText;
  }

 private:
  CCalcEngine& m_engine;
  std::map<std::string, std::function<void()>> m_keys;
};

struct KeyCase {
  const char* keys;
  const char* display;
};

void expectDisplays(const KeyCase* begin, const KeyCase* end) {
  for (const KeyCase* c = begin; c != end; ++c) {
    CCalcEngine engine;
    EXPECT_EQ(KeyPad(engine).press(c->keys), c->display) << "keys: " << c->keys;
  }
}

template <std::size_t N>
void expectDisplays(const KeyCase (&cases)[N]) {
  expectDisplays(cases, cases + N);
}

TEST(CCalcEngine, StartsAtZeroInDecimalAndDegrees) {
  CCalcEngine engine;
  EXPECT_EQ(engine.displayText, "0");
  EXPECT_EQ(engine.numberBase(), 10);
  EXPECT_EQ(engine.angleMode, 0);
  EXPECT_FALSE(engine.inverse);
  EXPECT_FALSE(engine.hyperbolic);
  EXPECT_FALSE(engine.hasMemory());
  EXPECT_FALSE(engine.isError());
}

TEST(CCalcEngine, TypingShowsTheEntryAsTyped) {
  const KeyCase cases[] = {
      {"1 2 3", "123"},
      {"0 0 7", "7"},
      {"0 0", "0"},
      {". 5", "0.5"},
      {"1 . . 5", "1.5"},
      {"1 . 5 0", "1.50"},
      {"1 2 <-", "1"},
      {"1 <- <-", "0"},
      {"1 . 2 +/- <- <- <-", "0"},
      {"1 2 +/-", "-12"},
      {"1 +/- 2", "-12"},
      {"1 2 +/- +/-", "12"},
      {"0 . 0 0 0 1", "0.0001"},
      // Fifteen significant digits are all the display can show; more are refused.
      {"1 2 3 4 5 6 7 8 9 0 1 2 3 4 5 6", "123456789012345"},
      {"0 . 0 0 1 2 3 4 5 6 7 8 9 0 1 2 3 4 5 6", "0.00123456789012345"},
      {"1 . 5 EE 3", "1.5e+3"},
      {"1 . 5 EE", "1.5e+0"},
      {"1 . 5 EE 3 +/-", "1.5e-3"},
      {"1 . 5 EE 3 . 4", "1.5e+34"},
      {"EE 6", "1e+6"},
      {"2 EE 5 <- <- 7", "27"},
      {"1 EE 1 2 3 4", "1e+123"},
      {"1 EE 3 0 9", "1e+30"},  // 1e+309 is beyond the largest double
      {"1 2 + <-", "12"},       // backspace only edits what is being typed
      {"1 2 + 3 <- 4 =", "16"},
      {"pi", "3.14159265358979"},
      {"pi 5", "5"},
      {"5 + 3 CE 4 =", "9"},
      {"5 + 3 C", "0"},
      {"5 + 3 C 2 =", "2"},
  };
  expectDisplays(cases);
}

TEST(CCalcEngine, ResultsShowFifteenDigitsThenExponents) {
  const KeyCase cases[] = {
      {"1 . 5 EE 3 =", "1500"},
      {"EE 6 =", "1000000"},
      {"2 EE 1 +/- =", "0.2"},
      {"1 2 3 4 5 6 7 8 9 0 1 2 3 4 5 =", "123456789012345"},
      {"9 9 9 9 9 9 9 9 9 9 9 9 9 9 9 + 1 =", "1e+015"},
      {"1 / 3 =", "0.333333333333333"},
      {"2 / 3 =", "0.666666666666667"},
      {"0 . 0 0 0 1 =", "0.0001"},
      {"0 . 0 0 0 0 1 =", "1e-005"},
      {"1 +/- =", "-1"},
      {"1 2 3 F-E", "1.23e+002"},
      {"1 2 3 F-E F-E", "123"},
      {"0 F-E", "0e+000"},
      {"F-E 2 / 3 =", "6.66666666666667e-001"},
      {"F-E 1 2 3", "123"},  // an entry shows as typed
      {"1 EE 2 0 0 * 1 EE 1 0 8 =", "1e+308"},
  };
  expectDisplays(cases);
}

TEST(CCalcEngine, ResultsAreExactToTheShownDigits) {
  const KeyCase cases[] = {
      {". 1 + . 2 =", "0.3"},
      {". 1 + . 2 - . 3 =", "0"},
      {". 7 + . 1 - . 8 =", "0"},
      {". 1 * 3 - . 3 =", "0"},
      {"1 / 3 * 3 =", "1"},
      {"1 / 3 - . 3 3 3 3 3 3 3 3 3 3 3 3 3 3 3 =", "0"},
      {"3 . 3 * 3 =", "9.9"},
      {"2 x^y . 5 = x^2", "2"},
      {"2 x^y . 5 = x^2 - 2 =", "0"},
      {"2 sqrt x^2 - 2 =", "0"},
      // Cancellation keeps the digits the operands really had.
      {"1 . 0 0 0 0 0 0 0 0 0 0 0 0 0 1 - 1 =", "1e-014"},
      {"1 8 0 sin", "0"},
      {"3 6 0 sin", "0"},
      {"1 8 0 +/- sin", "0"},
      {"3 0 sin", "0.5"},
      {"3 0 sin - . 5 =", "0"},
      {"4 5 tan", "1"},
      {"9 0 cos", "0"},
      {"rad pi sin", "0"},
      {"rad pi cos", "-1"},
      {"rad pi / 2 = cos", "0"},
      {"rad pi * 2 = sin", "0"},
      {"grad 4 0 0 cos", "1"},
      {"grad 2 0 0 sin", "0"},
      // A typed approximation of pi is not pi.
      // Near a multiple of pi only the digits the angle determines are shown.
      {"rad 3 . 1 4 1 5 9 2 6 5 3 5 8 9 7 9 sin", "3.238e-015"},
      {"rad pi * 1 0 0 = sin", "0"},
      {"1 . 0 0 0 0 0 0 0 0 0 0 0 0 0 1 ln", "1e-014"},
      {"2 inv x^3 x^3", "2"},
      {"1 0 inv x^3 x^3 - 1 0 =", "0"},
      {"2 7 inv x^3 - 3 =", "0"},
      {"8 inv x^y 3 =", "2"},
  };
  expectDisplays(cases);
}

TEST(CCalcEngine, OperatorsBindByPrecedence) {
  const KeyCase cases[] = {
      {"2 + 3 * 4 =", "14"},
      {"2 * 3 + 4 =", "10"},
      {"2 + 3 x^y 2 * 2 =", "20"},
      {"2 x^y 3 x^y 2 =", "64"},  // left to right, as typed
      {"1 0 - 4 - 3 =", "3"},
      {"1 0 0 / 1 0 / 5 =", "2"},
      {"7 mod 4 * 2 =", "6"},
      {"1 + 7 mod 4 =", "4"},
      {"4 and 1 + 2 =", "0"},
      {"1 xor 3 and 2 =", "3"},
      {"1 or 2 xor 3 =", "1"},
      {"5 or 3 xor 6 and 3 =", "5"},
      {"2 - 3 x^y 2 =", "-7"},
      // The display shows what the precedence lets be computed so far.
      {"2 + 3 *", "3"},
      {"2 * 3 +", "6"},
      {"2 + 3 * 4 +", "14"},
      {"2 + 3 * 4 x^y", "4"},
      // A second operator in a row replaces the first.
      {"2 + * 3 =", "6"},
      {"1 + 2 * + 3 =", "6"},
      {"2 x^y + 3 =", "5"},
      // "=" right after an operator uses the value shown.
      {"2 + =", "4"},
      {"3 * =", "9"},
  };
  expectDisplays(cases);
}

TEST(CCalcEngine, ParenthesesGroupAndMultiply) {
  const KeyCase cases[] = {
      {"( 2 + 3 ) * 4 =", "20"},
      {"2 * ( 3 + 4 ) =", "14"},
      {"2 ( 3 + 4 ) =", "14"},
      {"( 1 + 2 ) ( 3 + 4 ) =", "21"},
      {"( ( 2 ) ) =", "2"},
      {"( 2 + 3", "3"},
      {"( 2 + 3 )", "5"},
      {"( 2 + 3 =", "5"},
      {"2 * ( 3 + ( 4 - 1 ) * 2 ) =", "18"},
      {"( 2 + ) =", "4"},
      {")", "0"},
      {"5 )", "5"},
      {"2 + 3 = ( 4 ) =", "7"},  // "=" again repeats + 3 on the new value
      {"( 4 * 5 ) =", "20"},
      {"1 0 - ( 2 - 3 ) =", "11"},
  };
  expectDisplays(cases);
}

TEST(CCalcEngine, TwentyFiveNestedParenthesesComplete) {
  CCalcEngine engine;
  KeyPad pad(engine);
  std::string keys;
  for (int i = 0; i < 25; ++i) keys += "( 2 * ";
  pad.press(keys + "1");
  EXPECT_EQ(engine.openParentheses(), 25);
  std::string closing;
  for (int i = 0; i < 25; ++i) closing += ") + 1 ";
  pad.press(closing);
  EXPECT_EQ(engine.openParentheses(), 0);
  // The innermost group is 2; each level around it doubles and adds one, giving
  // 3 * 2^k - 1, and the last "+ 1" stands outside all of them: 3 * 2^24.
  EXPECT_EQ(pad.press("="), "50331648");
}

TEST(CCalcEngine, RepeatedEqualsRepeatsTheLastOperation) {
  const KeyCase cases[] = {
      {"2 + 3 = =", "8"},
      {"2 + 3 = = =", "11"},
      {"2 + 3 = 1 0 =", "13"},
      {"2 * 3 = =", "18"},
      {"1 0 - 3 = =", "4"},
      {"1 0 0 / 2 = =", "25"},
      {"2 + 3 * 4 = =", "26"},
      {"2 + = =", "6"},
      {"5 =", "5"},
      {"5 = =", "5"},
      {"2 + 3 = sqrt =", "5.23606797749979"},
      {"2 + 3 = C =", "0"},
      {"2 + 3 = * 2 = =", "20"},
  };
  expectDisplays(cases);
}

TEST(CCalcEngine, UnaryCodesInDecimal) {
  const KeyCase cases[] = {
      {"3 0 sin", "0.5"},
      {". 5 inv sin", "30"},
      {"6 0 cos", "0.5"},
      {". 5 inv cos", "60"},
      {"1 inv cos", "0"},
      {"1 +/- inv cos", "180"},
      {"4 5 tan", "1"},
      {"1 inv tan", "45"},
      {"9 0 tan", "Invalid input"},
      {"2 7 0 tan", "Invalid input"},
      {"2 inv sin", "Invalid input"},
      {"1 . 5 +/- inv cos", "Invalid input"},
      {"1 hyp sin", "1.1752011936438"},
      {"1 hyp cos", "1.54308063481524"},
      {"1 hyp tan", "0.761594155955765"},
      {"1 inv hyp sin", "0.881373587019543"},
      {"2 inv hyp cos", "1.31695789692482"},
      {". 5 inv hyp tan", "0.549306144334055"},
      {". 5 inv hyp cos", "Invalid input"},
      {"1 inv hyp tan", "Invalid input"},
      {"1 0 0 0 hyp sin", "Overflow"},
      {"9 x^2", "81"},
      {"8 1 inv x^2", "9"},
      {"2 +/- inv x^2", "Invalid input"},
      {"1 e^x", "2.71828182845905"},
      {"1 inv e^x", "0"},
      {"1 0 0 0 e^x", "Overflow"},
      {"1 0 0 ln", "4.60517018598809"},
      {"1 inv ln", "2.71828182845905"},
      {"0 ln", "Invalid input"},
      {"1 0 0 0 log", "3"},
      {"3 inv log", "1000"},
      {"0 log", "Invalid input"},
      {"2 +/- log", "Invalid input"},
      {"3 x^3", "27"},
      {"2 7 inv x^3", "3"},
      {"8 +/- inv x^3", "-2"},
      {"1 6 sqrt", "4"},
      {"4 inv sqrt", "16"},
      {"2 +/- sqrt", "Invalid input"},
      {"4 1/x", "0.25"},
      {"4 inv 1/x", "0.25"},
      {"0 1/x", "Cannot divide by zero"},
      {"5 n!", "120"},
      {"0 n!", "1"},
      {"1 7 0 n!", "7.257415615308e+306"},
      {"1 7 1 n!", "Overflow"},
      {"2 . 5 n!", "Invalid input"},
      {"3 +/- n!", "Invalid input"},
      {"5 lsh", "10"},
      {"5 inv lsh", "2"},
      {"5 +/- inv lsh", "-3"},
      {"2 . 7 lsh", "4"},
      {"5 not", "-6"},
      {"5 inv not", "-6"},
      {"1 EE 2 0 not", "Overflow"},
      {"5 code8", "5"},
      {"1 2 code8 3", "123"},
  };
  expectDisplays(cases);
}

TEST(CCalcEngine, TrigonometryFollowsTheAngleUnit) {
  const KeyCase cases[] = {
      {"rad 1 sin", "0.841470984807897"},
      {"rad 1 inv sin", "1.5707963267949"},
      {"rad 1 inv tan", "0.785398163397448"},
      {"rad 0 cos", "1"},
      {"grad 5 0 tan", "1"},
      {"grad 1 inv sin", "100"},
      {"grad 1 0 0 sin", "1"},
      {"grad 3 0 0 cos", "0"},
      {"deg 9 0 +/- sin", "-1"},
      {"deg 7 2 0 cos", "1"},
      {"deg 2 1 0 sin", "-0.5"},
      {"deg 1 3 5 tan", "-1"},
      {"deg 1 inv tan", "45"},
      // Hyperbolic functions take no angle unit.
      {"grad 1 hyp sin", "1.1752011936438"},
  };
  expectDisplays(cases);
}

TEST(CCalcEngine, UnaryCodesInTheIntegerBases) {
  const KeyCase cases[] = {
      {"hex f f x^2", "FE01"},
      {"hex 1 0 0 inv x^2", "10"},
      {"hex 1 b x^3", "4CE3"},
      {"hex 4 c e 3 inv x^3", "1B"},
      {"hex 5 +/- inv x^3", "FFFFFFFFFFFFFFFF"},
      {"hex 5 sqrt", "2"},
      {"hex 5 inv sqrt", "19"},
      {"hex 1 +/- sqrt", "Invalid input"},
      {"hex 1 0 1/x", "0"},
      {"hex 1 1/x", "1"},
      {"hex 0 1/x", "Cannot divide by zero"},
      {"hex 5 n!", "78"},
      {"hex 1 4 n!", "21C3677C82B40000"},
      {"hex 1 5 n!", "Overflow"},
      {"hex 1 lsh", "2"},
      {"hex 8 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 lsh", "0"},
      {"hex 4 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 lsh", "8000000000000000"},
      {"hex 5 +/- inv lsh", "FFFFFFFFFFFFFFFD"},
      {"hex 1 not", "FFFFFFFFFFFFFFFE"},
      {"hex 1 e sin", "0"},  // sin 30° is a half: the fraction goes
      {"hex 5 a sin", "1"},
      {"hex 0 cos", "1"},
      {"hex 3 c cos", "0"},
      {"hex 2 d tan", "1"},
      {"hex 1 inv cos", "0"},
      {"hex 1 inv sin", "5A"},
      {"rad hex 1 inv tan", "0"},
      {"hex 2 e^x", "7"},
      {"hex 6 4 log", "2"},
      {"hex 3 inv log", "3E8"},
      {"hex 0 ln", "Invalid input"},
      {"hex 3 c e^x", "Overflow"},  // e^60 needs more than 63 bits
      {"hex 3 c inv e^x", "4"},
      {"hex 1 hyp tan", "0"},
      {"oct 7 7 x^2", "7601"},
      {"oct 1 0 inv lsh", "4"},
      {"oct 1 0 0 sqrt", "10"},
      {"oct 1 0 log", "0"},
      {"bin 1 0 0 0 n!", "1001110110000000"},
      {"bin 1 1 1 1 1 1 1 1 1 1 1 e^x", "Overflow"},
      {"bin 1 0 1 x^2", "11001"},
      {"bin 1 1 0 1 0 0 inv x^3", "11"},
      {"bin 0 not", "1111111111111111111111111111111111111111111111111111111111111111"},
  };
  expectDisplays(cases);
}

TEST(CCalcEngine, InverseAndHyperbolicAreConsumedByOneOperation) {
  CCalcEngine engine;
  KeyPad pad(engine);
  EXPECT_EQ(pad.press("inv 9 x^2"), "3");
  EXPECT_FALSE(engine.inverse);
  EXPECT_EQ(pad.press("x^2"), "9");
  pad.press("hyp inv 5");
  EXPECT_TRUE(engine.inverse);
  EXPECT_TRUE(engine.hyperbolic);
  EXPECT_EQ(pad.press("x^2"), "2.23606797749979");
  EXPECT_FALSE(engine.inverse);
  EXPECT_FALSE(engine.hyperbolic);
  pad.press("inv x^y");
  EXPECT_FALSE(engine.inverse);
  EXPECT_EQ(pad.press("2 ="), "1.49534878122122");
  // Even an operation refused in an error state consumes them.
  pad.press("C 1 / 0 = inv hyp sin");
  EXPECT_FALSE(engine.inverse);
  EXPECT_FALSE(engine.hyperbolic);
}

TEST(CCalcEngine, PowersAndRoots) {
  const KeyCase cases[] = {
      {"2 x^y 1 0 =", "1024"},
      {"2 x^y 1 +/- =", "0.5"},
      {"0 x^y 0 =", "1"},
      {"2 +/- x^y 3 =", "-8"},
      {"1 6 inv x^y 4 =", "2"},
      {"8 +/- inv x^y 3 =", "-2"},
      {"1 0 0 0 inv x^y 3 =", "10"},
      {"4 inv x^y 2 +/- =", "0.5"},
      {"8 +/- inv x^y 2 =", "Invalid input"},
      {"8 inv x^y 0 =", "Invalid input"},
      {"2 +/- x^y . 5 =", "Invalid input"},
      {"0 x^y 1 +/- =", "Cannot divide by zero"},
      {"1 0 x^y 3 0 9 =", "Overflow"},
      {"hex 2 x^y 3 f =", "8000000000000000"},
      {"hex 2 x^y 4 0 =", "0"},  // a 64-bit register wraps
      {"hex 2 x^y 1 +/- =", "0"},
      {"hex 1 +/- x^y 3 +/- =", "FFFFFFFFFFFFFFFF"},
      {"hex 0 x^y 1 +/- =", "Cannot divide by zero"},
      {"hex 1 b 9 inv x^y 2 =", "15"},
      {"hex 1 +/- inv x^y 2 =", "Invalid input"},
      {"hex 8 +/- inv x^y 3 =", "FFFFFFFFFFFFFFFE"},
      {"hex 8 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 inv x^y 3 f =", "FFFFFFFFFFFFFFFE"},
  };
  expectDisplays(cases);
}

TEST(CCalcEngine, NumberBasesConvertTheShownValue) {
  const KeyCase cases[] = {
      {"1 0 hex", "A"},
      {"2 5 5 hex", "FF"},
      {"1 0 oct", "12"},
      {"1 0 bin", "1010"},
      {"1 +/- hex", "FFFFFFFFFFFFFFFF"},
      {"2 . 9 hex", "2"},
      {"2 . 9 +/- hex", "FFFFFFFFFFFFFFFE"},
      {"hex f f f f f f f f f f f f f f f f dec", "-1"},
      {"bin 1 1 1 1 dec", "15"},
      {"hex 7 f f f f f f f f f f f f f f f dec", "9.22337203685478e+018"},
      {"hex 7 f f f f f f f f f f f f f f f dec hex", "7FFFFFFFFFFFFFFF"},
      {"hex 7 f f f f f f f f f f f f f f f oct", "777777777777777777777"},
      {"1 EE 3 0 hex", "Overflow"},
      {"1 EE 3 0 hex 5", "5"},
      {"1 2 dec 3", "123"},  // the same base again leaves the entry alone
      {"1 2 hex 3", "3"},
      {"1 0 + hex 6 =", "10"},
      {"2 . 5 + 2 . 5 =", "5"},
      {"2 . 5 + 2 . 5 hex =", "4"},
      {"hex 1 . 2", "12"},
      {"hex 1 EE 2", "12"},
      {"hex 1 2 F-E", "12"},
      {"bin 1 2", "1"},
      {"oct 8", "0"},
      {"dec a", "0"},
      {"hex 1 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0", "1000000000000000"},
      {"oct 1 7 7 7 7 7 7 7 7 7 7 7 7 7 7 7 7 7 7 7 7 7 7", "1777777777777777777777"},
      {"oct 2 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0", "200000000000000000000"},
      {"hex a b <-", "A"},
      {"hex 5 +/-", "FFFFFFFFFFFFFFFB"},
      {"hex 5 +/- 1", "1"},
      {"2 + 3 = hex =", "8"},
  };
  expectDisplays(cases);
}

TEST(CCalcEngine, IntegerBasesWrapLikeARegister) {
  const KeyCase cases[] = {
      {"hex f f + 1 =", "100"},
      {"hex f f f f f f f f f f f f f f f f + 2 =", "1"},
      {"hex 7 f f f f f f f f f f f f f f f + 1 =", "8000000000000000"},
      {"hex 8 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 - 1 =", "7FFFFFFFFFFFFFFF"},
      {"hex 1 0 0 0 0 0 0 0 0 * 1 0 0 0 0 0 0 0 0 =", "0"},
      {"hex 1 0 / 3 =", "5"},
      {"hex 7 +/- / 2 =", "FFFFFFFFFFFFFFFD"},
      {"hex 8 0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 / 1 +/- =", "8000000000000000"},
      {"hex 1 7 mod 5 =", "3"},
      {"hex 7 +/- mod 3 =", "FFFFFFFFFFFFFFFF"},
      {"hex 1 2 and a =", "2"},
      {"hex 1 2 or a =", "1A"},
      {"hex 1 2 xor a =", "18"},
      {"bin 1 1 0 + 1 1 =", "1001"},
      {"oct 7 * 7 =", "61"},
  };
  expectDisplays(cases);
}

TEST(CCalcEngine, BitwiseOperatorsUseTheWholePartInDecimal) {
  const KeyCase cases[] = {
      {"1 2 and 1 0 =", "8"},         {"1 2 or 3 =", "15"},         {"1 2 xor 1 0 =", "6"},
      {"1 2 . 9 and 1 0 . 9 =", "8"}, {"1 +/- and 2 5 5 =", "255"}, {"7 . 5 mod 2 =", "1"},
      {"7 +/- mod 3 =", "-1"},        {"1 EE 2 0 mod 7 =", "2"},    {"1 EE 2 0 and 1 =", "Overflow"},
  };
  expectDisplays(cases);
}

TEST(CCalcEngine, ErrorsShowATextUntilANewStart) {
  const KeyCase cases[] = {
      {"5 / 0 =", "Cannot divide by zero"},
      {"0 / 0 =", "Result is undefined"},
      {"5 mod 0 =", "Cannot divide by zero"},
      {"0 mod 0 =", "Result is undefined"},
      {"hex 5 / 0 =", "Cannot divide by zero"},
      {"hex 0 / 0 =", "Result is undefined"},
      {"5 / 0 +", "Cannot divide by zero"},
      {"1 EE 3 0 0 x^2", "Overflow"},
      {"1 EE 3 0 0 * 1 EE 3 0 0 =", "Overflow"},
      {"1 EE 3 0 8 + 1 EE 3 0 8 =", "Overflow"},
      {"1 EE 3 0 0 +/- x^2 1/x", "Cannot divide by zero"},  // 1e-600 shows, and is, 0
      // The next digit starts afresh; operators and functions are refused.
      {"5 / 0 = 3", "3"},
      {"5 / 0 = 3 + 4 =", "7"},
      {"1 + 5 / 0 = 2 =", "2"},
      {"5 / 0 = + 2 =", "2"},
      {"5 / 0 = +", "Cannot divide by zero"},
      {"5 / 0 = sin", "Cannot divide by zero"},
      {"5 / 0 = <-", "Cannot divide by zero"},
      {"5 / 0 = +/-", "Cannot divide by zero"},
      {"5 / 0 = =", "Cannot divide by zero"},
      {"5 / 0 = F-E", "Cannot divide by zero"},
      {"5 / 0 = CE", "0"},
      {"5 / 0 = C", "0"},
      {"5 / 0 = .", "0."},
      {"5 / 0 = pi", "3.14159265358979"},
      {"5 / 0 = EE", "1e+0"},
      {"5 / 0 = ( 2 + 3 ) =", "5"},
      {"5 / 0 = hex", "Cannot divide by zero"},
      {"5 / 0 = hex f", "F"},
      {"2 + 3 = 1 / 0 = =", "Cannot divide by zero"},
  };
  expectDisplays(cases);
}

TEST(CCalcEngine, MemoryStoresAddsRecallsAndClears) {
  const KeyCase cases[] = {
      {"MR", "0"},
      {"5 MS C MR", "5"},
      {"5 MS 3 M+ MR", "8"},
      {"5 M+ M+ MR", "10"},
      {"5 MS MC MR", "0"},
      {"5 MS 2 + MR =", "7"},
      {"1 2 MS 3", "3"},
      {". 1 MS . 2 M+ MR - . 3 =", "0"},
      {"2 5 5 MS hex MR", "FF"},
      {"hex f f f f f f f f f f f f f f f f MS dec MR", "-1"},
      {"2 . 5 MS hex MR", "2"},
      {"1 EE 3 0 MS hex MR", "Overflow"},
      {"5 MS 1 / 0 = MR", "5"},
      {"1 EE 3 0 8 MS M+", "Overflow"},
      {"2 + 3 MS =", "5"},
      {"2 + MS 3 =", "5"},
  };
  expectDisplays(cases);
}

TEST(CCalcEngine, MemoryIndicatorAndTextFollowStoreAddAndClear) {
  CCalcEngine engine;
  KeyPad pad(engine);
  const struct {
    const char* keys;
    std::optional<std::string> memory;
  } steps[] = {
      {"5 MS", "5"},
      {"C", "5"},  // C keeps the memory
      {"MC", std::nullopt},
      {"3 M+", "3"},
      {"C 2 5 5 MS hex", "FF"},  // in the base shown
      {"dec 1 EE 3 0 0 MS hex", "Overflow"},
      {"dec MC 1 / 0 = MS", std::nullopt},  // nothing to store in an error
  };
  for (const auto& step : steps) {
    pad.press(step.keys);
    EXPECT_EQ(engine.hasMemory(), step.memory.has_value()) << step.keys;
    EXPECT_EQ(engine.memoryText(), step.memory) << step.keys;
  }
}

TEST(CCalcEngine, ErrorStateIsReported) {
  CCalcEngine engine;
  KeyPad pad(engine);
  pad.press("1 / 0 =");
  EXPECT_TRUE(engine.isError());
  pad.press("7");
  EXPECT_FALSE(engine.isError());
  EXPECT_EQ(engine.displayText, "7");
}

TEST(CCalcEngine, OutOfRangeCallsAreIgnored) {
  CCalcEngine engine;
  KeyPad pad(engine);
  pad.press("4 2");
  engine.bttnDigit_Click(16);
  engine.bttnDigit_Click(-1);
  engine.bttnUniOp_Click(14);
  engine.bttnUniOp_Click(-1);
  engine.bttnBinOp_Click("^");
  engine.bttnBinOp_Click("mod");
  engine.bttnMemory_Click(4);
  engine.SetNumberBaseState(12);
  EXPECT_EQ(engine.displayText, "42");
  EXPECT_EQ(engine.numberBase(), 10);
  EXPECT_EQ(pad.press("+ 1 ="), "43");
}

}  // namespace
}  // namespace sonalyx
