#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace sonalyx {

// The languages the translation dictionary can be opened in; the value is the
// dictionary's index.
enum class Language : int { English = 0, Swedish = 1, French = 2, German = 3, Spanish = 4 };

// The dictionary language for a Windows language identifier (primary language and
// sub-language together). Only the listed sub-languages select a translation, so
// Swedish as used in Finland (2077) stays English, as does every unknown value.
Language languageForLangId(int langId);

// The Windows language identifier of a POSIX locale name such as "sv_SE.UTF-8",
// "fr_CA", "es_MX@euro" or "de". The codeset and modifier are ignored, and "-"
// may stand for "_". A bare language means its main country (sv 1053, fr 1036,
// de 1031, es 3082, en 1033). "C", "POSIX", an empty name and every pair not known
// here give 1033, English (United States).
int langIdForLocale(std::string_view localeName);

// The two-letter code of a language ("en", "sv", "fr", "de", "es"), as the help
// folders are named; and the language a code names, English for any other.
std::string_view languageCode(Language language);
Language languageForCode(std::string_view code);
// Whether `code` names one of the languages above.
bool isLanguageCode(std::string_view code);

// The decimal sign a language writes numbers for people with: "." in English, ","
// in the others.
std::string_view decimalSign(Language language);

// Reads an environment variable; returns "" when it is not set.
using EnvironmentLookup = std::function<std::string(const std::string& name)>;

// The user's language identifier from the environment, with the POSIX precedence
// for messages: LC_ALL, then LC_MESSAGES, then LANG, skipping variables that are
// unset or empty. An empty lookup reads the process environment.
int userDefaultLangId(const EnvironmentLookup& lookup = {});

}  // namespace sonalyx
