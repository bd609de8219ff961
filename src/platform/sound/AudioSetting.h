#pragma once

#include <string>
#include <string_view>

#include "platform/sound/AudioOutput.h"

namespace sonalyx {

// How SONALYX_AUDIO chose the output: "null", "capture:FILE.wav", "default" or unset.
struct AudioSetting {
  AudioOutput::Mode mode = AudioOutput::Mode::Default;
  std::string captureFile;

  // Unknown words fall back to the sound card: a typo must not silence the program.
  static AudioSetting parse(std::string_view text);
  static AudioSetting fromEnvironment();
};

}  // namespace sonalyx
