#include <algorithm>
#include <cstdint>
#include <string>

#include "cli/CliCommands.h"
#include "cli/CliError.h"
#include "cli/CliLanguage.h"
#include "core/settings/SettingsStore.h"
#include "core/speech/CalculatorKeyTable.h"
#include "core/speech/CoordinatePhrase.h"
#include "core/speech/LanguageTable.h"
#include "core/speech/SignWords.h"
#include "core/speech/SymbolExpander.h"
#include "core/speech/TranslationMarker.h"
#include "core/utility/DecimalText.h"
#include "core/utility/FPRounder.h"

namespace sonalyx::cli {

namespace {

// Spoken with the user's precision, read at the moment of use like every setting.
std::string coordinatePhraseFromSettings(double x, double y) {
  const std::uint32_t numDec = SettingsStore::openDefault().GetNumDec();
  return coordinatePhrase(x, y, static_cast<int>(std::min<std::uint32_t>(numDec, 1000)), cliTranslator());
}

// A whole number of decimal digits only, no sign, no blanks.
bool readWholeNumber(const std::string& text, long long limit, long long& value) {
  if (text.empty() || text.size() > 18) return false;
  value = 0;
  for (const char c : text) {
    if (c < '0' || c > '9') return false;
    value = value * 10 + (c - '0');
  }
  return value <= limit;
}

double readNumber(const std::string& text, const char* name) {
  std::size_t consumed = 0;
  const double value = decimalToDouble(text, &consumed);
  if (consumed == 0 || consumed != text.size())
    throw CliError::usage(std::string(name) + " must be a number, not '" + text + "'");
  return value;
}

void expectArguments(const Arguments& args, std::size_t least, std::size_t most, const char* usage) {
  if (args.size() < least || args.size() > most)
    throw CliError::usage(std::string("wrong number of words for: text ") + usage);
}

}  // namespace

int runTextCommand(const Arguments& args, std::ostream& out) {
  if (args.empty()) throw CliError::usage("text: name what to do: expand, round, key, language or coords");
  const std::string& action = args[0];

  if (action == "expand") {
    expectArguments(args, 2, 2, "expand TEXT");
    SymbolExpander expander(expressionSymbolTable(), cliTranslator());
    expander.BuildSymbolMap();
    std::string text = args[1];
    expander.ExpandSymbols(text);
    out << text << '\n';
    return 0;
  }

  if (action == "round") {
    expectArguments(args, 3, 3, "round TEXT DIGITS");
    long long digits = 0;
    if (!readWholeNumber(args[2], 65535, digits))
      throw CliError::usage("DIGITS must be a whole number from 0 to 65535, not '" + args[2] + "'");
    out << FPRounder::round(args[1], static_cast<std::uint16_t>(digits)) << '\n';
    return 0;
  }

  if (action == "key") {
    expectArguments(args, 2, 2, "key ID");
    long long id = 0;
    if (!readWholeNumber(args[1], 0x7FFFFFFF, id))
      throw CliError::usage("ID must be a whole number, not '" + args[1] + "'");
    const CalculatorKeyTable keys(cliTranslator());
    const CalculatorKey* key = keys.find(static_cast<int>(id));
    if (key == nullptr) throw CliError::user("no calculator key has the id " + args[1]);
    out << key->spokenText() << '\n';
    return 0;
  }

  if (action == "language") {
    expectArguments(args, 1, 2, "language [LOCALE]");
    const int langId = args.size() == 2 ? langIdForLocale(args[1]) : userDefaultLangId();
    out << langId << '\t' << static_cast<int>(languageForLangId(langId)) << '\n';
    return 0;
  }

  if (action == "coords") {
    expectArguments(args, 3, 3, "coords X Y");
    const double x = readNumber(args[1], "X");
    const double y = readNumber(args[2], "Y");
    out << spellNegativeSigns(coordinatePhraseFromSettings(x, y),
                              translateWith(cliTranslator(), SLX_TR("minus")))
        << '\n';
    return 0;
  }

  throw CliError::usage("text: unknown action '" + action + "'");
}

}  // namespace sonalyx::cli
