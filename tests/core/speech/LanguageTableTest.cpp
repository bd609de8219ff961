#include "core/speech/LanguageTable.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace sonalyx {
namespace {

// The identifiers that select a translation, as the dictionary's makers list them.
std::map<int, Language> translatedIdentifiers() {
  std::map<int, Language> expected;
  expected[1053] = Language::Swedish;
  for (int id : {1036, 2060, 3084, 4108, 5132, 6156}) expected[id] = Language::French;
  for (int id : {1031, 2055, 3079, 4103, 5127}) expected[id] = Language::German;
  expected[1034] = Language::Spanish;
  // Spanish sub-languages 2 to 20 follow each other in steps of 1024.
  for (int sub = 2; sub <= 20; ++sub) expected[sub * 1024 + 10] = Language::Spanish;
  return expected;
}

TEST(LanguageTable, SelectsTheDictionaryByTheWholeLanguageIdentifier) {
  const std::map<int, Language> expected = translatedIdentifiers();
  ASSERT_EQ(expected.size(), 32u);
  EXPECT_EQ(expected.count(20490), 1u);
  EXPECT_EQ(expected.count(3082), 1u);
  // Every 16-bit identifier, so that no unlisted one selects a translation.
  for (int id = 0; id <= 0xFFFF; ++id) {
    const auto found = expected.find(id);
    const Language want = found == expected.end() ? Language::English : found->second;
    ASSERT_EQ(languageForLangId(id), want) << id;
  }
  for (int id : {-1, 0x10000 + 1053, 0x7FFFFFFF}) EXPECT_EQ(languageForLangId(id), Language::English) << id;
}

struct CountryFamily {
  const char* language;
  int primaryLanguage;
  std::vector<const char*> countriesBySubLanguage;  // sub-language 1, 2, ...
};

TEST(LanguageTable, MapsCountriesToTheirSubLanguages) {
  // A language identifier is the sub-language shifted by 10 bits over the primary
  // language; Spanish of Spain is the modern sort, sub-language 3.
  const CountryFamily families[] = {
      {"sv", 0x1D, {"SE", "FI"}},
      {"fr", 0x0C, {"FR", "BE", "CA", "CH", "LU", "MC"}},
      {"de", 0x07, {"DE", "CH", "AT", "LU", "LI"}},
      {"es", 0x0A, {"",   "MX", "ES", "GT", "CR", "PA", "DO", "VE", "CO", "PE",
                    "AR", "EC", "CL", "UY", "PY", "BO", "SV", "HN", "NI", "PR"}},
      {"en", 0x09, {"US", "GB", "AU", "CA", "NZ", "IE", "ZA"}},
  };
  for (const auto& family : families) {
    for (std::size_t i = 0; i < family.countriesBySubLanguage.size(); ++i) {
      const std::string country = family.countriesBySubLanguage[i];
      if (country.empty()) continue;
      const std::string locale = std::string(family.language) + "_" + country;
      EXPECT_EQ(langIdForLocale(locale), static_cast<int>(i + 1) * 1024 + family.primaryLanguage) << locale;
    }
  }
}

struct LocaleCase {
  const char* locale;
  int langId;
};

TEST(LanguageTable, ReadsLocaleNamesInTheirUsualSpellings) {
  const LocaleCase cases[] = {
      // A bare language means its main country.
      {"sv", 1053},
      {"es", 3082},
      {"en", 1033},
      // Codesets, modifiers, other spellings.
      {"sv_SE.UTF-8", 1053},
      {"es_MX@euro", 2058},
      {"fr-CA", 3084},
      {"FR_ca", 3084},
      {"sv.UTF-8", 1053},
      {"de_CH_variant", 2055},
      // Nothing, or nothing known.
      {"C", 1033},
      {"", 1033},
      {"it_IT", 1033},
      {"_SE", 1033},
      {"svSE", 1033},
  };
  for (const auto& c : cases) EXPECT_EQ(langIdForLocale(c.locale), c.langId) << '"' << c.locale << '"';
}

struct EnvironmentCase {
  std::map<std::string, std::string> variables;
  int langId;
};

TEST(LanguageTable, ReadsTheEnvironmentInPosixOrder) {
  const EnvironmentCase cases[] = {
      {{{"LC_ALL", "sv_SE.UTF-8"}, {"LC_MESSAGES", "fr_FR"}, {"LANG", "de_DE"}}, 1053},
      {{{"LC_ALL", ""}, {"LC_MESSAGES", "fr_FR"}, {"LANG", "de_DE"}}, 1036},
      {{{"LC_ALL", ""}, {"LC_MESSAGES", ""}, {"LANG", "es_MX.UTF-8"}}, 2058},
      {{{"LANG", "de_AT"}, {"LC_NUMERIC", "sv_SE"}, {"LANGUAGE", "fr"}}, 3079},
      {{{"LC_ALL", "C"}, {"LANG", "sv_SE"}}, 1033},
      {{}, 1033},
  };
  for (const auto& c : cases) {
    std::vector<std::string> asked;
    const int langId = userDefaultLangId([&](const std::string& name) {
      asked.push_back(name);
      const auto found = c.variables.find(name);
      return found == c.variables.end() ? std::string() : found->second;
    });
    EXPECT_EQ(langId, c.langId);
    ASSERT_FALSE(asked.empty());
    EXPECT_EQ(asked.front(), "LC_ALL");
  }
}

TEST(LanguageTable, NamesTheHelpFolderOfEachLanguage) {
  const struct {
    Language language;
    const char* code;
  } rows[] = {{Language::English, "en"},
              {Language::Swedish, "sv"},
              {Language::French, "fr"},
              {Language::German, "de"},
              {Language::Spanish, "es"}};
  for (const auto& row : rows) {
    EXPECT_EQ(languageCode(row.language), row.code);
    EXPECT_EQ(languageForCode(row.code), row.language);
    EXPECT_TRUE(isLanguageCode(row.code));
  }
  EXPECT_FALSE(isLanguageCode("it"));
}

}  // namespace
}  // namespace sonalyx
