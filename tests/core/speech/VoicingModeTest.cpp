#include "core/speech/VoicingMode.h"

#include "core/speech/ScreenReaderProcess.h"

#include <gtest/gtest.h>

namespace sonalyx {
namespace {

TEST(VoicingMode, SendsEachKindToOneVoiceByTheChoiceAndTheScreenReader) {
  using enum SpeechRoute;
  const struct {
    std::uint32_t stored;
    bool screenReader;
    SpeechRoute echo;
    SpeechRoute content;
  } cases[] = {
      {0, false, OwnVoice, OwnVoice},
      {0, true, OwnVoice, OwnVoice},
      {1, false, LeftOut, OwnVoice},
      {1, true, LeftOut, ScreenReader},
      {2, false, OwnVoice, OwnVoice},
      {2, true, LeftOut, ScreenReader},
      // A value the program does not know is read as Automatic.
      {7, false, OwnVoice, OwnVoice},
      {7, true, LeftOut, ScreenReader},
  };
  for (const auto& c : cases) {
    const VoicingMode mode = voicingModeFromSetting(c.stored);
    EXPECT_EQ(routeSpeech(SpeechKind::Echo, mode, c.screenReader), c.echo)
        << c.stored << ' ' << c.screenReader;
    EXPECT_EQ(routeSpeech(SpeechKind::Content, mode, c.screenReader), c.content)
        << c.stored << ' ' << c.screenReader;
  }
}

TEST(VoicingMode, FindsTheScreenReaderByItsNameOrItsScript) {
  const struct {
    const char* shortName;
    std::vector<std::string> commandLine;
    bool screenReader;
  } cases[] = {
      {"orca", {"/usr/bin/python3", "/usr/bin/orca", "-u", "/tmp/prefs"}, true},
      {"python3", {"/usr/bin/python3", "/usr/bin/orca"}, true},
      {"orca", {}, true},
      {"python3", {"python3", "-m", "orca"}, false},
      {"sonalyx", {"/usr/bin/sonalyx", "orca"}, false},
      {"orcaswitch", {"/usr/bin/orcaswitch"}, false},
      {"", {}, false},
  };
  for (const auto& c : cases)
    EXPECT_EQ(isScreenReaderProcess(c.shortName, c.commandLine), c.screenReader) << c.shortName;
}

}  // namespace
}  // namespace sonalyx
