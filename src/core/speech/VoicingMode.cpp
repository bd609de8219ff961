#include "core/speech/VoicingMode.h"

namespace sonalyx {

VoicingMode voicingModeFromSetting(std::uint32_t value) {
  switch (value) {
    case static_cast<std::uint32_t>(VoicingMode::Everything):
      return VoicingMode::Everything;
    case static_cast<std::uint32_t>(VoicingMode::OnlyContent):
      return VoicingMode::OnlyContent;
    default:
      return VoicingMode::Automatic;
  }
}

SpeechRoute routeSpeech(SpeechKind kind, VoicingMode mode, bool screenReaderRunning) {
  if (mode == VoicingMode::Everything || (mode == VoicingMode::Automatic && !screenReaderRunning))
    return SpeechRoute::OwnVoice;
  if (kind == SpeechKind::Echo) return SpeechRoute::LeftOut;
  return screenReaderRunning ? SpeechRoute::ScreenReader : SpeechRoute::OwnVoice;
}

}  // namespace sonalyx
