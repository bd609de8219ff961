#include "ui/app/Voice.h"

// Not yet connected to the speech engine: the voice's switch is kept here and the
// texts go nowhere until the program's speech control is wired in.
namespace sonalyx::ui::voice {

namespace {
bool g_enabled = false;
}

void Speak(const QString& /*text*/) {}
void Stop() {}
bool Enabled() {
  return g_enabled;
}
void SetEnabled(bool enabled) {
  g_enabled = enabled;
}
void PlayEffect(int /*id*/) {}

}  // namespace sonalyx::ui::voice
