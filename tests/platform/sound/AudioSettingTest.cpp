#include "platform/sound/AudioSetting.h"

#include <gtest/gtest.h>

namespace sonalyx {
namespace {

TEST(AudioSetting, ChoosesTheOutputFromItsText) {
  using Mode = AudioOutput::Mode;
  const struct {
    const char* text;
    Mode mode;
    const char* file;
  } cases[] = {
      {"", Mode::Default, ""},         {"default", Mode::Default, ""},
      {"null", Mode::Null, ""},        {"capture:/tmp/out.wav", Mode::Capture, "/tmp/out.wav"},
      {"capture:", Mode::Default, ""}, {"Null", Mode::Default, ""},
      {"nul", Mode::Default, ""},
  };
  for (const auto& c : cases) {
    const AudioSetting s = AudioSetting::parse(c.text);
    EXPECT_EQ(s.mode, c.mode) << c.text;
    EXPECT_EQ(s.captureFile, c.file) << c.text;
  }
}

}  // namespace
}  // namespace sonalyx
