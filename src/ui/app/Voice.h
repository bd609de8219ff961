#pragma once

#include <QString>

// The window layer's one way to the program's voice. Every text that a frame, the
// sheet or a self-voicing control says goes through Speak, so that what the user
// hears and what a test reads in the speech log come from one place.
namespace sonalyx::ui::voice {

// Cuts off what is being said and says `text`; nothing while self-voicing is off.
void Speak(const QString& text);
// Cuts off what is being said.
void Stop();
// Self-voicing's switch (mirrors the setting ttsOn).
bool Enabled();
void SetEnabled(bool enabled);

// Plays earcon `id` (0 to 6) now, before the speech that goes with it. The caller
// has already asked the sound-effect switch.
void PlayEffect(int id);

}  // namespace sonalyx::ui::voice
