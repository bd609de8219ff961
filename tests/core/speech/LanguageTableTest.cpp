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
  EXPECT_EQ(static_cast<int>(languageForLangId(2058)), 4);
  EXPECT_EQ(static_cast<int>(languageForLangId(2077)), 0);
}

struct LocaleCase {
  const char* locale;
  int langId;
};

TEST(LanguageTable, MapsLocaleNamesToLanguageIdentifiers) {
  const LocaleCase cases[] = {
      {"sv_SE.UTF-8", 1053},
      {"sv_SE", 1053},
      {"sv_FI", 2077},
      {"sv", 1053},
      {"fr_FR", 1036},
      {"fr_BE", 2060},
      {"fr_CA", 3084},
      {"fr_CH", 4108},
      {"fr_LU", 5132},
      {"fr_MC", 6156},
      {"fr", 1036},
      {"de_DE", 1031},
      {"de_CH", 2055},
      {"de_AT", 3079},
      {"de_LU", 4103},
      {"de_LI", 5127},
      {"de", 1031},
      {"es_ES", 3082},
      {"es_MX", 2058},
      {"es_GT", 4106},
      {"es_CR", 5130},
      {"es_PA", 6154},
      {"es_DO", 7178},
      {"es_VE", 8202},
      {"es_CO", 9226},
      {"es_PE", 10250},
      {"es_AR", 11274},
      {"es_EC", 12298},
      {"es_CL", 13322},
      {"es_UY", 14346},
      {"es_PY", 15370},
      {"es_BO", 16394},
      {"es_SV", 17418},
      {"es_HN", 18442},
      {"es_NI", 19466},
      {"es_PR", 20490},
      {"es", 3082},
      {"en_US", 1033},
      {"en_GB", 2057},
      {"en_AU", 3081},
      {"en_CA", 4105},
      {"en_NZ", 5129},
      {"en_IE", 6153},
      {"en_ZA", 7177},
      {"en_IN", 16393},
      {"en", 1033},
      // Codesets, modifiers, other spellings.
      {"es_MX@euro", 2058},
      {"de_AT.ISO-8859-1@euro", 3079},
      {"fr_CA.utf8", 3084},
      {"fr-CA", 3084},
      {"FR_ca", 3084},
      {"sv.UTF-8", 1053},
      {"de_CH_variant", 2055},
      // Nothing, or nothing known.
      {"C", 1033},
      {"POSIX", 1033},
      {"C.UTF-8", 1033},
      {"", 1033},
      {"it_IT", 1033},
      {"xx", 1033},
      {"_SE", 1033},
      {"sv_", 1033},
      {"svSE", 1033},
      {"sv_SE_", 1053},
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
      {{{"LC_MESSAGES", "fr_CA"}, {"LANG", "de_DE"}}, 3084},
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

}  // namespace
}  // namespace sonalyx
