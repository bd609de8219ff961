#include "core/speech/VoiceChoice.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace sonalyx {
namespace {

TEST(VoiceChoice, PrefersTheExactNameThenTheFirstContainingItThenTheDefault) {
  const std::vector<std::string> voices = {"English (Great Britain)", "English (America)", "Sam Spade", "Sam",
                                           "German"};
  const struct {
    const char* name;
    std::size_t expected;
  } cases[] = {
      {"Sam", 3},  // exact beats an earlier voice that merely contains it
      {"America", 1}, {"English", 0}, {"english (america)", 1},  // case is a last resort
      {"Mary", 2},                                               // nothing: the default
      {"", 2},        {"German", 4},
  };
  for (const auto& c : cases) EXPECT_EQ(chooseVoice(voices, c.name, 2), c.expected) << '"' << c.name << '"';
  EXPECT_EQ(chooseVoice({}, "Sam", 0), 0U);
  // A name matches at a word's start, not inside "Assamese".
  EXPECT_EQ(chooseVoice({"Assamese", "English"}, "Sam", 1), 1U);
  EXPECT_EQ(chooseVoice({"Assamese", "English"}, "sam", 1), 1U);
}

TEST(VoiceChoice, TheProgramsLanguageDecidesUnlessTheChosenVoiceSpeaksIt) {
  // As espeak-ng lists them, with English (Great Britain) its default.
  const std::vector<std::string> voices = {
      "English (Great Britain)", "English (America)", "French (Belgium)", "French (France)", "German",
      "Spanish (Latin America)", "Spanish (Spain)",   "Swedish",          "Assamese"};
  const std::vector<std::string> languages = {"en-gb",  "en-us", "fr-be", "fr-fr", "de",
                                              "es-419", "es",    "sv",    "as"};
  const struct {
    const char* name;
    const char* language;
    std::size_t expected;
  } cases[] = {
      {"Sam", "fr", 3},                     // the old default names no voice: the main French voice
      {"Sam", "en", 0},                     // the engine's default speaks English
      {"", "sv", 7},        {"", "es", 6},  // Spain before Latin America
      {"", "de", 4},        {"French (Belgium)", "fr", 2},  // the user's choice speaks French: kept
      {"America", "en", 1}, {"German", "fr", 3},            // a voice of another language gives way
      {"Swedish", "", 7},                                   // no language: the name alone
      {"German", "fi", 4},                                  // no Finnish voice: the user's choice stands
      {"", "fi", 0},
  };
  for (const auto& c : cases)
    EXPECT_EQ(chooseVoiceForLanguage(voices, languages, c.name, c.language, 0), c.expected)
        << '"' << c.name << "\" in " << c.language;
  // An engine that cannot tell its voices' languages chooses by name.
  EXPECT_EQ(chooseVoiceForLanguage(voices, {}, "Swedish", "fr", 0), 7U);
  // Only a variant of the language: it is taken. Tags may use "_" and capitals.
  EXPECT_EQ(chooseVoiceForLanguage({"English", "Québécois"}, {"en_US", "fr_CA"}, "", "fr", 0), 1U);
  EXPECT_EQ(chooseVoiceForLanguage({"English", "Deutsch"}, {"en_US", "DE_de"}, "", "de", 0), 1U);
}

}  // namespace
}  // namespace sonalyx
