#include "core/pages/CalculatorKeyboard.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "core/speech/CalculatorKeyTable.h"

namespace sonalyx {
namespace {

using Kind = CalcKeyStep::Kind;
using Named = CalcKeyInput::Named;

CalcKeyInput typed(char32_t c, bool shift = false) {
  return {Named::None, c, shift, false};
}

TEST(CalculatorKeyboard, StepsFollowTheRulesInOrder) {
  const struct {
    const char* what;
    CalcKeyInput key;
    int base;
    bool autoReturn;
    int focusedId;
    CalcKeyStep expected;
  } cases[] = {
      {"Delete focuses CE", {Named::Delete, 0, false, false}, 10, false, 0, {Kind::FocusKey, 1094, false}},
      {"Ctrl+Delete is the accelerator's", {Named::Delete, 0, false, true}, 10, false, 0, {}},
      {"Backspace", {Named::Backspace, 0, false, false}, 10, false, 0, {Kind::FocusKey, 1093, false}},
      {"with auto return the accelerator alone", {Named::Backspace, 0, false, false}, 10, true, 0, {}},
      {"Shift+R presses sqrt and focuses it", typed('R', true), 10, false, 0, {Kind::PressKey, 1117, true}},
      {"with auto return the focus goes to =", typed('R', true), 10, true, 0, {Kind::PressKey, 1117, false}},
      {"> is right shift, no key to focus", typed('>', true), 2, false, 0, {Kind::PressKey, 1169, false}},
      {"^ is x^y", typed('^', true), 10, false, 0, {Kind::PressKey, 1116, true}},
      {"an unshifted letter is no function", typed('r'), 10, false, 0, {}},
      {"Shift+A is nothing", typed('A', true), 16, false, 0, {}},
      {"a shifted + is still +", typed('+', true), 10, false, 0, {Kind::FocusKey, 1133, false}},
      {"a digit", typed('7'), 10, false, 0, {Kind::FocusKey, 1127, false}},
      {"a digit with auto return", typed('7'), 10, true, 0, {}},
      {"5 in binary: nothing", typed('5'), 2, false, 0, {}},
      {"8 in octal: nothing", typed('8'), 8, false, 0, {}},
      {"7 in octal", typed('7'), 8, false, 0, {Kind::FocusKey, 1127, false}},
      {"a in hexadecimal", typed('a'), 16, false, 0, {Kind::FocusKey, 1096, false}},
      {"a in decimal: nothing", typed('a'), 10, false, 0, {}},
      {". only in decimal", typed('.'), 16, false, 0, {}},
      {", is the point too", typed(','), 10, false, 0, {Kind::FocusKey, 1136, false}},
      {"Ctrl+C is the accelerator's", {Named::None, 0, false, true}, 10, false, 1140, {}},
      {"Enter presses the focused key",
       {Named::Enter, 0, false, false},
       10,
       false,
       1108,
       {Kind::PressFocused, 1108, false}},
      {"Space ticks the focused box",
       {Named::Space, 0, false, false},
       10,
       false,
       1058,
       {Kind::PressFocused, 1058, false}},
      {"Enter on the display is =", {Named::Enter, 0, false, false}, 10, false, 1056, {}},
      {"with auto return Enter is =", {Named::Enter, 0, false, false}, 10, true, 1108, {}},
  };
  for (const auto& c : cases) {
    const CalcKeyStep step = calculatorKeyStep(c.key, c.base, c.autoReturn, c.focusedId);
    EXPECT_EQ(step.kind, c.expected.kind) << c.what;
    EXPECT_EQ(step.commandId, c.expected.commandId) << c.what;
    EXPECT_EQ(step.focusKey, c.expected.focusKey) << c.what;
  }
}

TEST(CalculatorKeyboard, EveryKeyCanBeReachedFromTheKeyboardAndNoKeyTwice) {
  const CalculatorKeyTable table;
  for (const auto* row : {&table.topRow(), &table.mainBlock()})
    for (const CalculatorKey& key : *row) EXPECT_FALSE(calculatorKeysFor(key.id).empty()) << key.label;
  std::set<std::string> seen;
  for (const CalcAccelerator& accelerator : calculatorAccelerators())
    EXPECT_TRUE(seen.insert(accelerator.keys).second) << accelerator.keys;
  for (const CalcShiftedKey& shifted : calculatorShiftedKeys())
    EXPECT_TRUE(seen.insert(std::string(1, shifted.character)).second) << shifted.character;
}

TEST(CalculatorKeyboard, KeysAreListedAsTheUserTypesThem) {
  const struct {
    int id;
    std::vector<std::string> keys;
  } cases[] = {
      {1117, {"Shift+R"}},
      {1134, {"=", "Enter"}},
      {1143, {"Ctrl+V", "Ctrl+M"}},
      {1119, {"!", "Shift+F"}},
      {1116, {"Shift+Y", "^"}},
      {1136, {".", ","}},
      {1142, {"Ctrl+Shift+Delete"}},
      {1096, {"a"}},
      {1147, {"Ctrl+I"}},
  };
  for (const auto& c : cases) EXPECT_EQ(calculatorKeysFor(c.id), c.keys) << c.id;
}

}  // namespace
}  // namespace sonalyx
