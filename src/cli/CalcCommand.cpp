#include <optional>
#include <string>
#include <string_view>

#include "cli/CliCommands.h"
#include "cli/CliError.h"
#include "cli/CliLanguage.h"
#include "core/engines/CCalcEngine.h"
#include "core/engines/CalcKeyPress.h"
#include "core/pages/CalculatorKeyboard.h"
#include "core/speech/CalculatorAnnouncements.h"
#include "core/speech/CalculatorKeyIds.h"
#include "core/speech/CalculatorKeyTable.h"
#include "core/speech/SymbolExpander.h"

namespace sonalyx::cli {

namespace {

// What a word on the command line presses: a calculator key, a number base or an
// angle unit.
struct CalcKey {
  enum Kind { Command, Base, Angle } kind;
  int value;
};

// ASCII spellings of the labels X², X³, ÷, x (times), π and backspace, the lower-case
// hexadecimal digits ("C" alone is the clear key, "c" the digit), and the controls
// beside the keys.
struct Alias {
  const char* word;
  CalcKey key;
};
constexpr Alias kAliases[] = {
    {"<-", {CalcKey::Command, kKeyBackspace}},
    {"x^2", {CalcKey::Command, kKeySquare}},
    {"x^3", {CalcKey::Command, kKeyCube}},
    {"/", {CalcKey::Command, kKeyDivide}},
    {"*", {CalcKey::Command, kKeyTimes}},
    {"pi", {CalcKey::Command, kKeyPi}},
    {"a", {CalcKey::Command, kKeyHexA}},
    {"b", {CalcKey::Command, kKeyHexB}},
    {"c", {CalcKey::Command, kKeyHexC}},
    {"d", {CalcKey::Command, kKeyHexD}},
    {"e", {CalcKey::Command, kKeyHexE}},
    {"f", {CalcKey::Command, kKeyHexF}},
    {"hyp", {CalcKey::Command, 1146}},
    {"inv", {CalcKey::Command, 1147}},
    {"rsh", {CalcKey::Command, 1169}},
    {"hex", {CalcKey::Base, 16}},
    {"dec", {CalcKey::Base, 10}},
    {"oct", {CalcKey::Base, 8}},
    {"bin", {CalcKey::Base, 2}},
    {"deg", {CalcKey::Angle, 0}},
    {"rad", {CalcKey::Angle, 1}},
    {"grad", {CalcKey::Angle, 2}},
};

// A key's own label names it; the top row comes first, so "C" is the clear key.
std::optional<CalcKey> findKey(const CalculatorKeyTable& table, std::string_view word) {
  for (const auto& alias : kAliases) {
    if (word == alias.word) return alias.key;
  }
  for (const auto* row : {&table.topRow(), &table.mainBlock()}) {
    for (const CalculatorKey& key : *row) {
      if (word == key.label) return CalcKey{CalcKey::Command, key.id};
    }
  }
  return std::nullopt;
}

std::string knownWords(const CalculatorKeyTable& table) {
  std::string known;
  auto add = [&known](const std::string& word) {
    if ((known + " ").find(" " + word + " ") == std::string::npos) known += " " + word;
  };
  for (const auto* row : {&table.topRow(), &table.mainBlock()}) {
    for (const CalculatorKey& key : *row) add(key.label);
  }
  for (const auto& alias : kAliases) add(alias.word);
  return known;
}

CalcKeyPress press(CCalcEngine& engine, const CalcKey& key) {
  switch (key.kind) {
    case CalcKey::Command:
      return pressCalcKey(engine, key.value);
    case CalcKey::Base:
      engine.SetNumberBaseState(key.value);
      break;
    case CalcKey::Angle:
      engine.angleMode = key.value;
      break;
  }
  return {};
}

// What the page says after a key: the key's spoken name, and with a result the
// display read aloud.
std::string keyFeedback(const CalculatorKeyTable& table, const CalcKey& key, const CalcKeyPress& press,
                        const CCalcEngine& engine) {
  std::string name;
  if (key.value == kCalcCommandRightShift) {
    name = translateWith(cliTranslator(), std::string(kRightShiftWord));
  } else if (const CalculatorKey* found =
                 table.find(key.value == kCalcCommandMemoryRecall ? kKeyMemoryRecall : key.value)) {
    name = found->spokenText();
  }
  if (!press.speakDisplay) return name;
  std::string display =
      engine.isError() ? translateWith(cliTranslator(), engine.displayText) : engine.displayText;
  SymbolExpander expander(expressionSymbolTable(), cliTranslator());
  expander.BuildSymbolMap();
  expander.ExpandSymbols(display);
  return name + ", " + display;
}

}  // namespace

int runCalcCommand(const Arguments& args, std::ostream& out) {
  bool trace = false;
  bool say = false;
  const CalculatorKeyTable table(cliTranslator());
  std::vector<CalcKey> keys;
  std::vector<std::string> names;
  for (const auto& arg : args) {
    if (arg == "--trace" || arg == "--say") {
      (arg == "--say" ? say : trace) = true;
      continue;
    }
    const std::optional<CalcKey> key = findKey(table, arg);
    if (!key)
      throw CliError::usage("unknown calculator key '" + arg + "'; the keys are:" + knownWords(table));
    keys.push_back(*key);
    names.push_back(arg);
  }
  if (keys.empty()) throw CliError::usage("calc needs at least one key");
  CCalcEngine engine;
  for (std::size_t i = 0; i < keys.size(); ++i) {
    const CalcKeyPress pressed = press(engine, keys[i]);
    if (say && keys[i].kind == CalcKey::Command && pressed.performed)
      out << names[i] << '\t' << keyFeedback(table, keys[i], pressed, engine) << '\n';
    if (!trace) continue;
    out << names[i] << '\t' << engine.displayText;
    // What the page announces when its base or angle list changes.
    if (keys[i].kind == CalcKey::Base) {
      const int value = keys[i].value;
      out << '\t'
          << translateWith(cliTranslator(), std::string(numberBaseAnnouncement(value == 16   ? 0
                                                                               : value == 10 ? 1
                                                                               : value == 8  ? 2
                                                                                             : 3)));
    }
    if (keys[i].kind == CalcKey::Angle)
      out << '\t' << translateWith(cliTranslator(), std::string(angleModeAnnouncement(keys[i].value)));
    out << '\n';
  }
  if (!trace && !say) out << engine.displayText << '\n';
  return 0;
}

}  // namespace sonalyx::cli
