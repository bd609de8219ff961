#include "core/engines/CalcKeyPress.h"

namespace sonalyx {

namespace {

// Command ids of the calculator keys.
constexpr int kFixedExponential = 1091;
constexpr int kEnterExponent = 1092;
constexpr int kBackspace = 1093;
constexpr int kClearEntry = 1094;
constexpr int kClear = 1095;
constexpr int kHexDigitA = 1096;
constexpr int kHexDigitF = 1101;
constexpr int kAnd = 1102;
constexpr int kOr = 1103;
constexpr int kXor = 1104;
constexpr int kNot = 1105;
constexpr int kMod = 1106;
constexpr int kLeftShift = 1107;
constexpr int kSine = 1108;
constexpr int kCosine = 1109;
constexpr int kTangent = 1110;
constexpr int kExp = 1111;
constexpr int kNaturalLog = 1112;
constexpr int kLog = 1113;
constexpr int kSquare = 1114;
constexpr int kCube = 1115;
constexpr int kPower = 1116;
constexpr int kSquareRoot = 1117;
constexpr int kReciprocal = 1118;
constexpr int kFactorial = 1119;
constexpr int kDigit0 = 1120;
constexpr int kDigit9 = 1129;
constexpr int kDivide = 1130;
constexpr int kTimes = 1131;
constexpr int kMinus = 1132;
constexpr int kPlus = 1133;
constexpr int kEquals = 1134;
constexpr int kPlusMinus = 1135;
constexpr int kPoint = 1136;
constexpr int kOpen = 1137;
constexpr int kClose = 1138;
constexpr int kPi = 1139;
constexpr int kMemoryStore = 1140;
constexpr int kMemoryAdd = 1141;
constexpr int kMemoryClear = 1142;
constexpr int kMemoryRecall = 1143;
constexpr int kHyperbolic = 1146;
constexpr int kInverse = 1147;
constexpr int kRightShift = 1169;
constexpr int kMemoryRecallShortcut = 1172;

// The engine's unary codes by key.
int unaryCode(int commandId) {
  switch (commandId) {
    case kSine:
      return 0;
    case kCosine:
      return 1;
    case kSquare:
      return 2;
    case kTangent:
      return 3;
    case kExp:
      return 4;
    case kNaturalLog:
      return 5;
    case kLog:
      return 6;
    case kCube:
      return 7;
    case kSquareRoot:
      return 9;
    case kReciprocal:
      return 10;
    case kFactorial:
      return 11;
    case kLeftShift:
      return 12;
    case kNot:
      return 13;
    default:
      return -1;
  }
}

const char* binaryName(int commandId) {
  switch (commandId) {
    case kAnd:
      return "And";
    case kOr:
      return "Or";
    case kXor:
      return "Xor";
    case kMod:
      return "Mod";
    case kOpen:
      return "(";
    case kClose:
      return ")";
    case kDivide:
      return "/";
    case kTimes:
      return "*";
    case kMinus:
      return "-";
    case kPlus:
      return "+";
    case kEquals:
      return "=";
    default:
      return nullptr;
  }
}

}  // namespace

bool isCalcKeyEnabled(int commandId, int numberBase) {
  if (commandId >= kHexDigitA && commandId <= kHexDigitF) return numberBase == 16;
  if (commandId == kPoint || commandId == kFixedExponential || commandId == kEnterExponent)
    return numberBase == 10;
  if (commandId >= kDigit0 && commandId <= kDigit9) return commandId - kDigit0 < numberBase;
  return true;
}

CalcKeyPress pressCalcKey(CCalcEngine& engine, int commandId) {
  CalcKeyPress press;
  press.performed = true;
  if (const int code = unaryCode(commandId); code >= 0) {
    engine.bttnUniOp_Click(code);
    press.unary = true;
    return press;
  }
  if (const char* name = binaryName(commandId)) {
    engine.bttnBinOp_Click(name);
    return press;
  }
  if (commandId >= kDigit0 && commandId <= kDigit9) {
    if (!isCalcKeyEnabled(commandId, engine.numberBase())) return CalcKeyPress{};
    engine.bttnDigit_Click(commandId - kDigit0);
    return press;
  }
  if (commandId >= kHexDigitA && commandId <= kHexDigitF) {
    // Outside hexadecimal only the display is refreshed.
    if (engine.numberBase() == 16) engine.bttnDigit_Click(10 + commandId - kHexDigitA);
    return press;
  }
  switch (commandId) {
    case kFixedExponential:
      engine.bttnF2E_Click();
      break;
    case kEnterExponent:
      engine.bttnEE_Click();
      break;
    case kBackspace:
      engine.bttnBack_Click();
      break;
    case kClearEntry:
      engine.bttnCE_Click();
      break;
    case kClear:
      engine.bttnC_Click();
      break;
    case kPower:
      engine.bttnBinOp_Click("X^Y");
      press.unary = true;
      break;
    case kRightShift:
      // A checked Inverse box turns right shift back into a left shift.
      engine.inverse = !engine.inverse;
      engine.bttnUniOp_Click(12);
      engine.inverse = false;
      press.unary = true;
      break;
    case kPlusMinus:
      engine.bttnPlusMinus_Click();
      break;
    case kPoint:
      engine.bttnDecimal_Click();
      break;
    case kPi:
      engine.bttnPi_Click();
      break;
    case kMemoryStore:
      engine.bttnMemory_Click(2);
      break;
    case kMemoryAdd:
      engine.bttnMemory_Click(1);
      break;
    case kMemoryClear:
      engine.bttnMemory_Click(0);
      break;
    case kMemoryRecall:
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
  return press;
}

}  // namespace sonalyx
