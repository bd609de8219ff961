#pragma once

namespace sonalyx {

// The keys that play the graph and move its cursor.
enum class PlaybackCommand {
  Play,               // F5
  PlayWithTicks,      // F6
  Stop,               // Esc
  NextPoint,          // Alt+Right
  PreviousPoint,      // Alt+Left
  NextMaximum,        // Alt+Page Up
  NextMinimum,        // Alt+Page Down
  FirstPoint,         // Alt+Home
  LastPoint,          // Alt+End
  NextCurveCrossing,  // Alt+I: where data sets 1 and 2 cross
  NextZero,           // Alt+0: the next crossing of the x-axis
  PreviousZero,       // Ctrl+Alt+0
};

}  // namespace sonalyx
