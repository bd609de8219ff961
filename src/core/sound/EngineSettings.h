#pragma once

namespace sonalyx {

// What the audio-plot engine has been told by the engine load, as it was told.
// Nothing is clamped on the way in; the renderer copes with any value.
struct EngineSettings {
  int playTime = 4;  // seconds for the whole point list
  bool thresholdOn = false;
  float thresholdLevel = 0.0f;
  int numTicks = 10;
  unsigned dataVolume = 50;  // 0..100
  unsigned tickVolume = 40;  // 0..100
  int freqMin = 60;          // Hz
  int freqMax = 2000;        // Hz
};

// One Play call: the whole list, or `count` points from position `start`.
struct SweepRequest {
  bool stereo = false;
  bool ticks = false;
  bool reverse = false;
  bool segment = false;
  int start = 0;
  int count = 0;
};

}  // namespace sonalyx
