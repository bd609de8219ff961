#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "core/speech/SpeechKind.h"
#include "core/speech/TranslationMarker.h"

namespace sonalyx {

// What self-voicing says beside a screen reader: the Speech page's choice, stored
// as ttsMode in this order.
enum class VoicingMode : std::uint32_t {
  Everything = 0,   // both kinds, in the program's own voice, as without a screen reader
  OnlyContent = 1,  // the echoes are left to the screen reader
  Automatic = 2,    // as OnlyContent while a screen reader runs, else as Everything
};

// The choice's captions in the order above, in English (each its own translation key).
inline constexpr std::array<std::string_view, 3> kVoicingModeCaptions{
    SLX_TR("Speak everything"), SLX_TR("Speak only what the screen reader cannot"), SLX_TR("Automatic")};

// The stored value; one the program does not know (a hand-edited file) is Automatic.
VoicingMode voicingModeFromSetting(std::uint32_t value);

// Where a text goes.
enum class SpeechRoute {
  OwnVoice,      // the program's own voice
  ScreenReader,  // the screen reader's queue, after what it is saying
  LeftOut,       // the screen reader says it itself
};

// Content beside a running screen reader joins its queue, so that neither cuts the
// other off; an echo is left to it. Without one, or with "Speak everything", both
// kinds keep the program's own voice. With "Speak only what the screen reader
// cannot" the echoes are left out even where no screen reader was found.
SpeechRoute routeSpeech(SpeechKind kind, VoicingMode mode, bool screenReaderRunning);

}  // namespace sonalyx
