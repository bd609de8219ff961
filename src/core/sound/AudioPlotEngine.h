#pragma once

#include <string>

namespace sonalyx {

// The audio-plot engine as the program drives it: points appended in order, the
// Wave settings, then sweeps, point tones or a wave file. Play and PlayPoint return
// at once while the sound runs; Reset silences within one audio buffer.
class AudioPlotEngine {
 public:
  virtual ~AudioPlotEngine() = default;

  virtual void CreateInstance() = 0;
  virtual void Reset() = 0;
  virtual void AppendPoint(float x, float y) = 0;
  virtual void SetPlayTime(int seconds) = 0;
  virtual void EnableYThreshold(bool on, float level) = 0;
  virtual void SetNumVerticalTicks(int n) = 0;
  virtual void SetDataVolume(unsigned volume) = 0;
  virtual void SetTickVolume(unsigned volume) = 0;
  virtual void SetFreqMin(int hertz) = 0;
  virtual void SetFreqMax(int hertz) = 0;
  virtual void Play(bool stereo, bool ticks, bool reverse, bool segment, int start, int count) = 0;
  virtual void PlayPoint(int index, bool stereo) = 0;
  // Full path with extension; writes nothing (and leaves no partial file) on failure.
  virtual void WriteWaveToFile(const std::string& path, bool stereo, bool ticks) = 0;
};

}  // namespace sonalyx
