#pragma once

#include <QString>

#include "core/speech/SpeechKind.h"

namespace sonalyx {
class CDirectSS;
class SettingsStore;
}  // namespace sonalyx

// The window layer's one way to the program's voice (CDirectSS). Every text that a
// frame, the sheet or a self-voicing control says goes through Speak, so that what
// the user hears and what the speech log records come from one place.
namespace sonalyx::ui::voice {

// The program-wide voice.
CDirectSS& device();

// Cuts off what is being said and says `text` (after an earcon that leads it);
// nothing while self-voicing is off. Every caller says which kind the text is: an
// echo of focus and state (what a control, a menu item or a tab says as the user
// reaches or changes it) or content only the program knows (a result, a
// coordinate, a message).
void Speak(SpeechKind kind, const QString& text);
// Cuts off what is being said.
void Stop();
// Self-voicing's switch (mirrors the setting ttsOn).
bool Enabled();
void SetEnabled(bool enabled);
// Inverts the stored ttsOn and says so, in the order that keeps the words heard;
// returns the new state.
bool ToggleSelfVoicing(const SettingsStore& settings);

}  // namespace sonalyx::ui::voice
