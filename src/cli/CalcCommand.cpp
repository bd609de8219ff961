#include <string>
#include <string_view>

#include "cli/CliCommands.h"
#include "cli/CliError.h"
#include "core/engines/CCalcEngine.h"
#include "core/engines/CalcKeyPress.h"

namespace sonalyx::cli {

namespace {

// A key names a calculator command id, a number base or an angle unit.
struct CalcKey {
  const char* name;
  enum Kind { Command, Base, Angle } kind;
  int value;
};

// The labels of the calculator's keys, with ASCII spellings for X², X³, ÷, π and
// backspace. "C" is the clear key; the hexadecimal digit C is "c".
constexpr CalcKey kKeys[] = {
    {"F-E", CalcKey::Command, 1091}, {"EE", CalcKey::Command, 1092},   {"<-", CalcKey::Command, 1093},
    {"CE", CalcKey::Command, 1094},  {"C", CalcKey::Command, 1095},    {"A", CalcKey::Command, 1096},
    {"B", CalcKey::Command, 1097},   {"D", CalcKey::Command, 1099},    {"E", CalcKey::Command, 1100},
    {"F", CalcKey::Command, 1101},   {"a", CalcKey::Command, 1096},    {"b", CalcKey::Command, 1097},
    {"c", CalcKey::Command, 1098},   {"d", CalcKey::Command, 1099},    {"e", CalcKey::Command, 1100},
    {"f", CalcKey::Command, 1101},   {"and", CalcKey::Command, 1102},  {"or", CalcKey::Command, 1103},
    {"xor", CalcKey::Command, 1104}, {"not", CalcKey::Command, 1105},  {"mod", CalcKey::Command, 1106},
    {"lsh", CalcKey::Command, 1107}, {"rsh", CalcKey::Command, 1169},  {"sin", CalcKey::Command, 1108},
    {"cos", CalcKey::Command, 1109}, {"tan", CalcKey::Command, 1110},  {"e^x", CalcKey::Command, 1111},
    {"ln", CalcKey::Command, 1112},  {"log", CalcKey::Command, 1113},  {"x^2", CalcKey::Command, 1114},
    {"X²", CalcKey::Command, 1114},  {"x^3", CalcKey::Command, 1115},  {"X³", CalcKey::Command, 1115},
    {"x^y", CalcKey::Command, 1116}, {"sqrt", CalcKey::Command, 1117}, {"1/x", CalcKey::Command, 1118},
    {"n!", CalcKey::Command, 1119},  {"0", CalcKey::Command, 1120},    {"1", CalcKey::Command, 1121},
    {"2", CalcKey::Command, 1122},   {"3", CalcKey::Command, 1123},    {"4", CalcKey::Command, 1124},
    {"5", CalcKey::Command, 1125},   {"6", CalcKey::Command, 1126},    {"7", CalcKey::Command, 1127},
    {"8", CalcKey::Command, 1128},   {"9", CalcKey::Command, 1129},    {"/", CalcKey::Command, 1130},
    {"÷", CalcKey::Command, 1130},   {"*", CalcKey::Command, 1131},    {"x", CalcKey::Command, 1131},
    {"-", CalcKey::Command, 1132},   {"+", CalcKey::Command, 1133},    {"=", CalcKey::Command, 1134},
    {"+/-", CalcKey::Command, 1135}, {".", CalcKey::Command, 1136},    {"(", CalcKey::Command, 1137},
    {")", CalcKey::Command, 1138},   {"pi", CalcKey::Command, 1139},   {"π", CalcKey::Command, 1139},
    {"MS", CalcKey::Command, 1140},  {"M+", CalcKey::Command, 1141},   {"MC", CalcKey::Command, 1142},
    {"MR", CalcKey::Command, 1143},  {"hyp", CalcKey::Command, 1146},  {"inv", CalcKey::Command, 1147},
    {"hex", CalcKey::Base, 16},      {"dec", CalcKey::Base, 10},       {"oct", CalcKey::Base, 8},
    {"bin", CalcKey::Base, 2},       {"deg", CalcKey::Angle, 0},       {"rad", CalcKey::Angle, 1},
    {"grad", CalcKey::Angle, 2},
};

const CalcKey* findKey(std::string_view name) {
  for (const auto& key : kKeys) {
    if (name == key.name) return &key;
  }
  return nullptr;
}

void press(CCalcEngine& engine, const CalcKey& key) {
  switch (key.kind) {
    case CalcKey::Command:
      pressCalcKey(engine, key.value);
      break;
    case CalcKey::Base:
      engine.SetNumberBaseState(key.value);
      break;
    case CalcKey::Angle:
      engine.angleMode = key.value;
      break;
  }
}

}  // namespace

int runCalcCommand(const Arguments& args, std::ostream& out) {
  bool trace = false;
  std::vector<const CalcKey*> keys;
  std::vector<std::string> names;
  for (const auto& arg : args) {
    if (arg == "--trace") {
      trace = true;
      continue;
    }
    const CalcKey* key = findKey(arg);
    if (key == nullptr) {
      std::string known;
      for (const auto& k : kKeys) known += std::string(" ") + k.name;
      throw CliError::usage("unknown calculator key '" + arg + "'; the keys are:" + known);
    }
    keys.push_back(key);
    names.push_back(arg);
  }
  if (keys.empty()) throw CliError::usage("calc needs at least one key");
  CCalcEngine engine;
  for (std::size_t i = 0; i < keys.size(); ++i) {
    press(engine, *keys[i]);
    if (trace) out << names[i] << '\t' << engine.displayText << '\n';
  }
  if (!trace) out << engine.displayText << '\n';
  return 0;
}

}  // namespace sonalyx::cli
