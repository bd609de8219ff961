#include "core/speech/LanguageTable.h"

#include <cstdlib>

namespace sonalyx {

namespace {

constexpr int kEnglishUnitedStates = 1033;

struct LangIdLanguage {
  int langId;
  Language language;
};

constexpr LangIdLanguage kTranslatedLangIds[] = {
    {1053, Language::Swedish},  {1036, Language::French},   {2060, Language::French},
    {3084, Language::French},   {4108, Language::French},   {5132, Language::French},
    {6156, Language::French},   {1031, Language::German},   {2055, Language::German},
    {3079, Language::German},   {4103, Language::German},   {5127, Language::German},
    {1034, Language::Spanish},  {2058, Language::Spanish},  {3082, Language::Spanish},
    {4106, Language::Spanish},  {5130, Language::Spanish},  {6154, Language::Spanish},
    {7178, Language::Spanish},  {8202, Language::Spanish},  {9226, Language::Spanish},
    {10250, Language::Spanish}, {11274, Language::Spanish}, {12298, Language::Spanish},
    {13322, Language::Spanish}, {14346, Language::Spanish}, {15370, Language::Spanish},
    {16394, Language::Spanish}, {17418, Language::Spanish}, {18442, Language::Spanish},
    {19466, Language::Spanish}, {20490, Language::Spanish},
};

struct LocaleLangId {
  std::string_view locale;  // language, or language_TERRITORY
  int langId;
};

// A bare language stands for its main country. Spanish of Spain is the modern
// sort (3082); the traditional sort (1034) has no locale name of its own.
constexpr LocaleLangId kLocaleLangIds[] = {
    {"sv", 1053},     {"sv_SE", 1053},  {"sv_FI", 2077},

    {"fr", 1036},     {"fr_FR", 1036},  {"fr_BE", 2060},  {"fr_CA", 3084},  {"fr_CH", 4108},
    {"fr_LU", 5132},  {"fr_MC", 6156},

    {"de", 1031},     {"de_DE", 1031},  {"de_CH", 2055},  {"de_AT", 3079},  {"de_LU", 4103},
    {"de_LI", 5127},

    {"es", 3082},     {"es_ES", 3082},  {"es_MX", 2058},  {"es_GT", 4106},  {"es_CR", 5130},
    {"es_PA", 6154},  {"es_DO", 7178},  {"es_VE", 8202},  {"es_CO", 9226},  {"es_PE", 10250},
    {"es_AR", 11274}, {"es_EC", 12298}, {"es_CL", 13322}, {"es_UY", 14346}, {"es_PY", 15370},
    {"es_BO", 16394}, {"es_SV", 17418}, {"es_HN", 18442}, {"es_NI", 19466}, {"es_PR", 20490},
    {"es_US", 21514},

    {"en", 1033},     {"en_US", 1033},  {"en_GB", 2057},  {"en_AU", 3081},  {"en_CA", 4105},
    {"en_NZ", 5129},  {"en_IE", 6153},  {"en_ZA", 7177},  {"en_JM", 8201},  {"en_BZ", 10249},
    {"en_TT", 11273}, {"en_ZW", 12297}, {"en_PH", 13321}, {"en_IN", 16393}, {"en_MY", 17417},
    {"en_SG", 18441},
};

char lower(char c) {
  return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c;
}
char upper(char c) {
  return (c >= 'a' && c <= 'z') ? static_cast<char>(c - 'a' + 'A') : c;
}

// "fr-ca.utf8@euro" -> "fr_CA": language in lower case, territory in upper case.
std::string normalisedLocale(std::string_view name) {
  const std::size_t end = name.find_first_of(".@");
  if (end != std::string_view::npos) name = name.substr(0, end);
  std::string result;
  bool territory = false;
  for (const char c : name) {
    if (c == '_' || c == '-') {
      if (territory) break;  // a script or variant after the territory does not matter
      territory = true;
      result += '_';
    } else {
      result += territory ? upper(c) : lower(c);
    }
  }
  return result;
}

}  // namespace

Language languageForLangId(int langId) {
  for (const auto& entry : kTranslatedLangIds) {
    if (entry.langId == langId) return entry.language;
  }
  return Language::English;
}

int langIdForLocale(std::string_view localeName) {
  const std::string locale = normalisedLocale(localeName);
  for (const auto& entry : kLocaleLangIds) {
    if (entry.locale == locale) return entry.langId;
  }
  return kEnglishUnitedStates;
}

std::string_view decimalSign(Language language) {
  return language == Language::English ? "." : ",";
}

int userDefaultLangId(const EnvironmentLookup& lookup) {
  const EnvironmentLookup read = lookup ? lookup : [](const std::string& name) {
    const char* value = std::getenv(name.c_str());
    return std::string(value != nullptr ? value : "");
  };
  for (const char* variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    const std::string value = read(variable);
    if (!value.empty()) return langIdForLocale(value);
  }
  return kEnglishUnitedStates;
}

namespace {

constexpr std::string_view kCodes[] = {"en", "sv", "fr", "de", "es"};

}  // namespace

std::string_view languageCode(Language language) {
  const auto index = static_cast<std::size_t>(language);
  return index < std::size(kCodes) ? kCodes[index] : kCodes[0];
}

Language languageForCode(std::string_view code) {
  for (std::size_t index = 0; index < std::size(kCodes); ++index)
    if (kCodes[index] == code) return static_cast<Language>(index);
  return Language::English;
}

bool isLanguageCode(std::string_view code) {
  for (const std::string_view known : kCodes)
    if (known == code) return true;
  return false;
}

}  // namespace sonalyx
