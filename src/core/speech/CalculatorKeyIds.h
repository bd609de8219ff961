#pragma once

namespace sonalyx {

// Command ids of the calculator keys. They also key the accelerator table and the
// keyboard mapping, so they never change. The digit ids run in value order even
// though the keys are laid out in columns.
enum CalculatorKeyId : int {
  // Top row.
  kKeyFixedExponent = 1091,  // "F-E"
  kKeyEnterExponent = 1092,  // "EE"
  kKeyBackspace = 1093,
  kKeyClearEntry = 1094,
  kKeyClear = 1095,
  // Main block.
  kKeyHexA = 1096,
  kKeyHexB = 1097,
  kKeyHexC = 1098,
  kKeyHexD = 1099,
  kKeyHexE = 1100,
  kKeyHexF = 1101,
  kKeyAnd = 1102,
  kKeyOr = 1103,
  kKeyXor = 1104,
  kKeyNot = 1105,
  kKeyMod = 1106,
  kKeyLeftShift = 1107,
  kKeySin = 1108,
  kKeyCos = 1109,
  kKeyTan = 1110,
  kKeyExp = 1111,  // "e^x"
  kKeyLn = 1112,
  kKeyLog = 1113,
  kKeySquare = 1114,
  kKeyCube = 1115,
  kKeyPower = 1116,  // "x^y"
  kKeySquareRoot = 1117,
  kKeyReciprocal = 1118,
  kKeyFactorial = 1119,
  kKeyDigit0 = 1120,
  kKeyDigit1 = 1121,
  kKeyDigit2 = 1122,
  kKeyDigit3 = 1123,
  kKeyDigit4 = 1124,
  kKeyDigit5 = 1125,
  kKeyDigit6 = 1126,
  kKeyDigit7 = 1127,
  kKeyDigit8 = 1128,
  kKeyDigit9 = 1129,
  kKeyDivide = 1130,
  kKeyTimes = 1131,
  kKeyMinus = 1132,
  kKeyPlus = 1133,
  kKeyEquals = 1134,
  kKeyChangeSign = 1135,  // "+/-"
  kKeyPoint = 1136,
  kKeyOpenParen = 1137,
  kKeyCloseParen = 1138,
  kKeyPi = 1139,
  kKeyMemoryStore = 1140,
  kKeyMemoryPlus = 1141,
  kKeyMemoryClear = 1142,
  kKeyMemoryRecall = 1143,
};

inline constexpr int kFirstCalculatorKeyId = kKeyFixedExponent;
inline constexpr int kLastCalculatorKeyId = kKeyMemoryRecall;

// The key of a decimal digit 0..9.
constexpr int digitKeyId(int value) {
  return kKeyDigit0 + value;
}

// The key of a hexadecimal letter digit 10..15 (A..F).
constexpr int hexLetterKeyId(int value) {
  return kKeyHexA + (value - 10);
}

}  // namespace sonalyx
