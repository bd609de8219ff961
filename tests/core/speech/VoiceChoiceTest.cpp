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

}  // namespace
}  // namespace sonalyx
