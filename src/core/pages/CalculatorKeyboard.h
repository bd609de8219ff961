#pragma once

#include <span>
#include <string>
#include <vector>

namespace sonalyx {

// The Calculator page's commands that are no key of the key table.
enum CalculatorPageCommand : int {
  kCalcCommandInverseBox = 1058,  // the Inverse check box itself
  kCalcCommandHyperbolicBox = 1059,
  kCalcCommandSayDisplay = 1144,  // Ctrl+B
  kCalcCommandSayMemory = 1145,   // Ctrl+T
  kCalcCommandHyperbolic = 1146,  // Ctrl+H: tick or clear the Hyperbolic box
  kCalcCommandInverse = 1147,     // Ctrl+I
  kCalcCommandRightShift = 1169,  // ">" typed
  kCalcCommandMemoryRecall = 1172,
};

// One accelerator of the page: the keys as a user reads them ("Ctrl+Shift+Delete",
// "Enter", a typed character such as "a" or "*") and the command they run. Keys
// count from anywhere in the panel while the page is in front.
struct CalcAccelerator {
  const char* keys;
  int commandId;
};

// Every accelerator, in the order a key list shows them. "Enter" stands for both
// Enter keys; the decimal point also answers to "," (the keypad's point in many
// languages).
std::span<const CalcAccelerator> calculatorAccelerators();

// The shifted characters that press a key at once: Shift+R is the square root,
// ">" right shift.
struct CalcShiftedKey {
  char character;
  int commandId;
};
std::span<const CalcShiftedKey> calculatorShiftedKeys();

// The keys a user presses for a command, as shown to them: "Shift+R", "= or
// Enter"; empty when the keyboard has none.
std::vector<std::string> calculatorKeysFor(int commandId);

// A key as the page's keyboard filter sees it, before the controls and the
// accelerators do.
struct CalcKeyInput {
  enum class Named { None, Backspace, Delete, Enter, Space };
  Named named = Named::None;
  // The character the key types; 0 for none (Ctrl or Alt held, or no character).
  char32_t typed = 0;
  bool shift = false;
  // Ctrl, Alt or Meta held.
  bool command = false;
};

// What the filter does with a key.
struct CalcKeyStep {
  enum class Kind {
    // Not the filter's: the controls and the accelerators see the key as usual.
    None,
    // Give `commandId`'s key the focus; its accelerator then presses it.
    FocusKey,
    // Press `commandId` now and take the key away from everybody else.
    PressKey,
    // Press the control that has the focus and take the key away.
    PressFocused,
  };
  Kind kind = Kind::None;
  int commandId = 0;
  // PressKey: the key keeps the focus afterwards.
  bool focusKey = false;
};

// The page's keyboard rules, in order: Delete and Backspace bring their keys under
// the focus; a shifted character of calculatorShiftedKeys() presses its key at
// once (and focuses it); a typed digit, hexadecimal letter, operator, parenthesis
// or point brings its key under the focus (unless the number base lacks it: then
// nothing happens at all); Enter and Space press the focused key or check box.
// With auto return no key is brought under the focus, since the focus goes to "="
// after every key, and Enter and Space are left to the accelerators.
// `focusedId` is the command id of the focused control, 0 for any other.
CalcKeyStep calculatorKeyStep(const CalcKeyInput& key, int numberBase, bool autoReturn, int focusedId);

}  // namespace sonalyx
