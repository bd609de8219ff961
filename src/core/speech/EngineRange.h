#pragma once

namespace sonalyx {

// The span a speech engine accepts for one of its settings (rate, pitch, volume).
// The program stores these settings as a percent of the span, so that one stored
// value means the same to every engine.
struct EngineRange {
  int minimum = 0;
  int maximum = 0;

  // minimum + percent × 0.01 × (maximum − minimum), truncated toward zero: 50 on
  // 0..255 gives 127. A percent beyond 0..100 is not clipped here (the engine
  // decides), but the result always stays a valid int.
  int fromPercent(double percent) const;

  bool operator==(const EngineRange&) const = default;
};

}  // namespace sonalyx
