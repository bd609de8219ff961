#include <charconv>
#include <cmath>
#include <cstdint>
#include <string>

#include "cli/CliCommands.h"
#include "cli/CliError.h"
#include "core/settings/SettingKeys.h"
#include "core/settings/SettingsPath.h"
#include "core/settings/SettingsStore.h"
#include "core/utility/DecimalText.h"

namespace sonalyx::cli {

namespace {

std::string lowerCase(std::string text) {
  for (char& c : text) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return text;
}

const SettingKey& keyNamed(const std::string& name) {
  const SettingKey* key = findSettingKey(name);
  if (key == nullptr) throw CliError::user("unknown setting '" + name + "'");
  return *key;
}

bool parseBool(const SettingKey& key, const std::string& text) {
  const std::string word = lowerCase(text);
  if (word == "1" || word == "true" || word == "on") return true;
  if (word == "0" || word == "false" || word == "off") return false;
  throw CliError::user(std::string(key.name) + " takes 0, 1, true, false, on or off, not '" + text + "'");
}

std::uint32_t parseInt(const SettingKey& key, const std::string& text) {
  std::uint32_t value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  // from_chars takes no sign and no blanks, so only plain digits that fit get through.
  if (text.empty() || error != std::errc() || end != text.data() + text.size()) {
    throw CliError::user(std::string(key.name) + " takes a whole number from 0 to 4294967295, not '" + text +
                         "'");
  }
  if (value > key.maximum) {
    throw CliError::user(std::string(key.name) + " takes at most " + std::to_string(key.maximum) + ", not '" +
                         text + "'");
  }
  return value;
}

double parseReal(const SettingKey& key, const std::string& text) {
  std::size_t consumed = 0;
  const double value = decimalToDouble(text, &consumed);
  if (text.empty() || consumed != text.size()) {
    throw CliError::user(std::string(key.name) + " takes a number, not '" + text + "'");
  }
  // An infinity would be stored as a word that reads back as 0.
  if (!std::isfinite(value)) {
    throw CliError::user(std::string(key.name) + " takes a number between -1e+308 and 1e+308, not '" + text +
                         "'");
  }
  return value;
}

void requireWords(const Arguments& args, std::size_t count, const char* what) {
  if (args.size() != count) throw CliError::usage(std::string("settings ") + args[0] + " " + what);
}

void reportWrite(bool written) {
  if (!written) throw CliError::user("could not write the settings file " + defaultSettingsPath().string());
}

void set(const SettingsStore& store, const SettingKey& key, const std::string& text) {
  switch (key.type) {
    case SettingType::Boolean:
      return reportWrite(store.SetBool(key, parseBool(key, text)));
    case SettingType::Integer:
      return reportWrite(store.SetInt(key, parseInt(key, text)));
    case SettingType::Real:
      return reportWrite(store.SetReal(key, parseReal(key, text)));
    case SettingType::Text:
      return reportWrite(store.SetText(key, text));
  }
}

}  // namespace

int runSettingsCommand(const Arguments& args, std::ostream& out) {
  if (args.empty()) throw CliError::usage("settings needs one of: path, list, get, set, delete");
  const std::string& action = args[0];
  if (action == "path") {
    requireWords(args, 1, "takes nothing more");
    out << defaultSettingsPath().string() << '\n';
    return 0;
  }
  const SettingsStore store = SettingsStore::openDefault();
  if (action == "list") {
    requireWords(args, 1, "takes nothing more");
    for (const auto& [name, value] : store.ListValues()) {
      out << (name.empty() ? "@" : name) << '\t' << registryTypeName(value.type) << '\t'
          << SettingsStore::ValueText(name, value) << '\n';
    }
    return 0;
  }
  if (action == "get") {
    requireWords(args, 2, "takes one setting name");
    const SettingKey& key = keyNamed(args[1]);
    const auto text = store.GetValueText(key);
    if (!text)
      throw CliError::user(std::string(key.name) + " is not stored yet; the program writes it at start");
    out << *text << '\n';
    return 0;
  }
  if (action == "set") {
    requireWords(args, 3, "takes a setting name and a value");
    set(store, keyNamed(args[1]), args[2]);
    return 0;
  }
  if (action == "delete") {
    requireWords(args, 1, "takes nothing more");
    reportWrite(store.DeleteSettings());
    return 0;
  }
  throw CliError::usage("unknown settings command '" + action + "'");
}

}  // namespace sonalyx::cli
