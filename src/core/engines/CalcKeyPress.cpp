#include "core/engines/CalcKeyPress.h"

#include "core/speech/CalculatorKeyIds.h"

namespace sonalyx {

namespace {

// Page commands that are not keys of the table: the two check boxes and the
// keyboard shortcuts for right shift and memory recall.
constexpr int kHyperbolic = 1146;
constexpr int kInverse = 1147;
constexpr int kRightShift = 1169;
constexpr int kMemoryRecallShortcut = 1172;

// The engine's unary codes by key.
int unaryCode(int commandId) {
  switch (commandId) {
    case kKeySin:
      return 0;
    case kKeyCos:
      return 1;
    case kKeySquare:
      return 2;
    case kKeyTan:
      return 3;
    case kKeyExp:
      return 4;
    case kKeyLn:
      return 5;
    case kKeyLog:
      return 6;
    case kKeyCube:
      return 7;
    case kKeySquareRoot:
      return 9;
    case kKeyReciprocal:
      return 10;
    case kKeyFactorial:
      return 11;
    case kKeyLeftShift:
      return 12;
    case kKeyNot:
      return 13;
    default:
      return -1;
  }
}

const char* binaryName(int commandId) {
  switch (commandId) {
    case kKeyAnd:
      return "And";
    case kKeyOr:
      return "Or";
    case kKeyXor:
      return "Xor";
    case kKeyMod:
      return "Mod";
    case kKeyOpenParen:
      return "(";
    case kKeyCloseParen:
      return ")";
    case kKeyDivide:
      return "/";
    case kKeyTimes:
      return "*";
    case kKeyMinus:
      return "-";
    case kKeyPlus:
      return "+";
    case kKeyEquals:
      return "=";
    default:
      return nullptr;
  }
}

}  // namespace

bool isCalcKeyEnabled(int commandId, int numberBase) {
  if (commandId >= kKeyHexA && commandId <= kKeyHexF) return numberBase == 16;
  if (commandId == kKeyPoint || commandId == kKeyFixedExponent || commandId == kKeyEnterExponent)
    return numberBase == 10;
  if (commandId >= kKeyDigit0 && commandId <= kKeyDigit9) return commandId - kKeyDigit0 < numberBase;
  return true;
}

CalcKeyPress pressCalcKey(CCalcEngine& engine, int commandId) {
  CalcKeyPress press;
  press.performed = true;
  if (const int code = unaryCode(commandId); code >= 0) {
    engine.bttnUniOp_Click(code);
    press.unary = true;
    press.speakDisplay = true;
    return press;
  }
  if (const char* name = binaryName(commandId)) {
    engine.bttnBinOp_Click(name);
    press.speakDisplay = commandId == kKeyEquals || engine.isError();
    return press;
  }
  if (commandId >= kKeyDigit0 && commandId <= kKeyDigit9) {
    if (!isCalcKeyEnabled(commandId, engine.numberBase())) return CalcKeyPress{};
    engine.bttnDigit_Click(commandId - kKeyDigit0);
    return press;
  }
  if (commandId >= kKeyHexA && commandId <= kKeyHexF) {
    // Outside hexadecimal only the display is refreshed.
    if (engine.numberBase() == 16) engine.bttnDigit_Click(10 + commandId - kKeyHexA);
    return press;
  }
  switch (commandId) {
    case kKeyFixedExponent:
      engine.bttnF2E_Click();
      press.speakDisplay = true;
      break;
    case kKeyEnterExponent:
      engine.bttnEE_Click();
      break;
    case kKeyBackspace:
      engine.bttnBack_Click();
      break;
    case kKeyClearEntry:
      engine.bttnCE_Click();
      break;
    case kKeyClear:
      engine.bttnC_Click();
      break;
    case kKeyPower:
      engine.bttnBinOp_Click("X^Y");
      press.unary = true;
      break;
    case kRightShift:
      // A checked Inverse box turns right shift back into a left shift.
      engine.inverse = !engine.inverse;
      engine.bttnUniOp_Click(12);
      engine.inverse = false;
      press.unary = true;
      press.speakDisplay = true;
      break;
    case kKeyChangeSign:
      engine.bttnPlusMinus_Click();
      break;
    case kKeyPoint:
      engine.bttnDecimal_Click();
      break;
    case kKeyPi:
      engine.bttnPi_Click();
      break;
    case kKeyMemoryStore:
      engine.bttnMemory_Click(2);
      break;
    case kKeyMemoryPlus:
      engine.bttnMemory_Click(1);
      break;
    case kKeyMemoryClear:
      engine.bttnMemory_Click(0);
      break;
    case kKeyMemoryRecall:
    case kMemoryRecallShortcut:
      engine.bttnMemory_Click(3);
      press.speakDisplay = true;
      break;
    case kHyperbolic:
      engine.hyperbolic = !engine.hyperbolic;
      break;
    case kInverse:
      engine.inverse = !engine.inverse;
      break;
    default:
      return CalcKeyPress{};
  }
  // An error always reaches the user, whichever key brought it or met it.
  press.speakDisplay = press.speakDisplay || engine.isError();
  return press;
}

}  // namespace sonalyx
