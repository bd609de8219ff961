#include "platform/sound/AudioSetting.h"

#include <cstdlib>

namespace sonalyx {

AudioSetting AudioSetting::parse(std::string_view text) {
  AudioSetting setting;
  constexpr std::string_view kCapture = "capture:";
  if (text == "null") {
    setting.mode = AudioOutput::Mode::Null;
  } else if (text.substr(0, kCapture.size()) == kCapture && text.size() > kCapture.size()) {
    setting.mode = AudioOutput::Mode::Capture;
    setting.captureFile = std::string(text.substr(kCapture.size()));
  }
  return setting;
}

AudioSetting AudioSetting::fromEnvironment() {
  const char* value = std::getenv("SONALYX_AUDIO");
  return parse(value != nullptr ? value : "");
}

}  // namespace sonalyx
