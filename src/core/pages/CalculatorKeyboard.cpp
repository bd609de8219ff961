#include "core/pages/CalculatorKeyboard.h"

#include <array>
#include <cstring>

#include "core/engines/CalcKeyPress.h"
#include "core/speech/CalculatorKeyIds.h"

namespace sonalyx {

namespace {

constexpr std::array kAccelerators{
    CalcAccelerator{"0", kKeyDigit0},
    CalcAccelerator{"1", kKeyDigit1},
    CalcAccelerator{"2", kKeyDigit2},
    CalcAccelerator{"3", kKeyDigit3},
    CalcAccelerator{"4", kKeyDigit4},
    CalcAccelerator{"5", kKeyDigit5},
    CalcAccelerator{"6", kKeyDigit6},
    CalcAccelerator{"7", kKeyDigit7},
    CalcAccelerator{"8", kKeyDigit8},
    CalcAccelerator{"9", kKeyDigit9},
    CalcAccelerator{"a", kKeyHexA},
    CalcAccelerator{"b", kKeyHexB},
    CalcAccelerator{"c", kKeyHexC},
    CalcAccelerator{"d", kKeyHexD},
    CalcAccelerator{"e", kKeyHexE},
    CalcAccelerator{"f", kKeyHexF},
    CalcAccelerator{".", kKeyPoint},
    CalcAccelerator{",", kKeyPoint},
    CalcAccelerator{"+", kKeyPlus},
    CalcAccelerator{"-", kKeyMinus},
    CalcAccelerator{"*", kKeyTimes},
    CalcAccelerator{"/", kKeyDivide},
    CalcAccelerator{"(", kKeyOpenParen},
    CalcAccelerator{")", kKeyCloseParen},
    CalcAccelerator{"=", kKeyEquals},
    CalcAccelerator{"Enter", kKeyEquals},
    CalcAccelerator{"Backspace", kKeyBackspace},
    CalcAccelerator{"Delete", kKeyClearEntry},
    CalcAccelerator{"Ctrl+Delete", kKeyClear},
    CalcAccelerator{"Ctrl+N", kKeyFixedExponent},
    CalcAccelerator{"Ctrl+C", kKeyMemoryStore},
    CalcAccelerator{"Ctrl+A", kKeyMemoryPlus},
    CalcAccelerator{"Ctrl+V", kKeyMemoryRecall},
    CalcAccelerator{"Ctrl+M", kCalcCommandMemoryRecall},
    CalcAccelerator{"Ctrl+Shift+Delete", kKeyMemoryClear},
    CalcAccelerator{"Ctrl+I", kCalcCommandInverse},
    CalcAccelerator{"Ctrl+H", kCalcCommandHyperbolic},
    CalcAccelerator{"Ctrl+B", kCalcCommandSayDisplay},
    CalcAccelerator{"Ctrl+T", kCalcCommandSayMemory},
};

constexpr std::array kShiftedKeys{
    CalcShiftedKey{'!', kKeyFactorial},  CalcShiftedKey{'F', kKeyFactorial},
    CalcShiftedKey{'#', kKeyMod},        CalcShiftedKey{'&', kKeyAnd},
    CalcShiftedKey{'<', kKeyLeftShift},  CalcShiftedKey{'>', kCalcCommandRightShift},
    CalcShiftedKey{'C', kKeyCos},        CalcShiftedKey{'E', kKeyEnterExponent},
    CalcShiftedKey{'G', kKeyLog},        CalcShiftedKey{'L', kKeyLn},
    CalcShiftedKey{'M', kKeyChangeSign}, CalcShiftedKey{'O', kKeyReciprocal},
    CalcShiftedKey{'P', kKeyPi},         CalcShiftedKey{'Q', kKeySquare},
    CalcShiftedKey{'R', kKeySquareRoot}, CalcShiftedKey{'S', kKeySin},
    CalcShiftedKey{'T', kKeyTan},        CalcShiftedKey{'U', kKeyCube},
    CalcShiftedKey{'X', kKeyExp},        CalcShiftedKey{'Y', kKeyPower},
    CalcShiftedKey{'^', kKeyPower},      CalcShiftedKey{'_', kKeyXor},
    CalcShiftedKey{'|', kKeyOr},         CalcShiftedKey{'~', kKeyNot},
};

// The key a typed character brings under the focus; 0 for none.
int typedKey(char32_t c) {
  for (const CalcAccelerator& accelerator : kAccelerators) {
    if (std::strlen(accelerator.keys) == 1 && static_cast<char32_t>(accelerator.keys[0]) == c)
      return accelerator.commandId;
  }
  return 0;
}

// Memory recall has a second command of its own for its second accelerator.
int keyOf(int commandId) {
  return commandId == kCalcCommandMemoryRecall ? kKeyMemoryRecall : commandId;
}

}  // namespace

std::span<const CalcAccelerator> calculatorAccelerators() {
  return kAccelerators;
}

std::span<const CalcShiftedKey> calculatorShiftedKeys() {
  return kShiftedKeys;
}

std::vector<std::string> calculatorKeysFor(int commandId) {
  std::vector<std::string> keys;
  for (const CalcShiftedKey& shifted : kShiftedKeys) {
    if (shifted.commandId != commandId) continue;
    const bool letter = shifted.character >= 'A' && shifted.character <= 'Z';
    keys.push_back((letter ? "Shift+" : "") + std::string(1, shifted.character));
  }
  for (const CalcAccelerator& accelerator : kAccelerators)
    if (keyOf(accelerator.commandId) == keyOf(commandId)) keys.emplace_back(accelerator.keys);
  return keys;
}

CalcKeyStep calculatorKeyStep(const CalcKeyInput& key, int numberBase, bool autoReturn, int focusedId) {
  using Kind = CalcKeyStep::Kind;
  using Named = CalcKeyInput::Named;
  // With auto return the focus goes to "=" after every key: bringing the key
  // under it first would only be a step a screen reader follows in vain.
  if (!key.command && !key.shift && !autoReturn) {
    if (key.named == Named::Delete) return {Kind::FocusKey, kKeyClearEntry, false};
    if (key.named == Named::Backspace) return {Kind::FocusKey, kKeyBackspace, false};
  }
  if (!key.command && key.shift && key.typed >= 33 && key.typed <= 126) {
    for (const CalcShiftedKey& shifted : kShiftedKeys) {
      if (static_cast<char32_t>(shifted.character) != key.typed) continue;
      // Right shift is no key of its own: nothing takes the focus.
      const bool focus = !autoReturn && shifted.commandId != kCalcCommandRightShift;
      return {Kind::PressKey, shifted.commandId, focus};
    }
  }
  if (!key.command) {
    if (const int id = typedKey(key.typed); id != 0)
      return isCalcKeyEnabled(id, numberBase) && !autoReturn ? CalcKeyStep{Kind::FocusKey, id, false}
                                                             : CalcKeyStep{};
  }
  const bool pressesFocused = key.named == Named::Enter || key.named == Named::Space;
  if (!autoReturn && !key.command && pressesFocused && focusedId >= kCalcCommandInverseBox &&
      focusedId <= kCalcCommandRightShift)
    return {Kind::PressFocused, focusedId, false};
  return {};
}

}  // namespace sonalyx
