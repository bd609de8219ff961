#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/sound/EngineSettings.h"

namespace sonalyx {

// What one playback key does, for the window to carry out: the engine is loaded
// from the set played before a sweep or a tone, the speech follows the sound by
// `speechDelayMs`, and nothing here waits.
struct PlaybackAction {
  std::int32_t cursor = -1;           // the graph cursor afterwards
  bool resetEngine = false;           // silence what is playing
  std::optional<SweepRequest> sweep;  // Play this
  std::optional<int> pointTone;       // or PlayPoint at this engine position
  bool stereo = false;                // for the point tone
  double speechDelayMs = 0.0;         // how long the sound leads the speech
  std::string speech;                 // content to say; empty for nothing
  bool focusGraph = false;            // the keyboard focus goes to the graph
};

}  // namespace sonalyx
