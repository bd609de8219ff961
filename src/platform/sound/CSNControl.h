#pragma once

#include <string>
#include <vector>

#include "core/sound/AudioPlotEngine.h"
#include "core/sound/EngineSettings.h"
#include "core/sound/RangeFilter.h"
#include "platform/sound/AudioOutput.h"

namespace sonalyx {

// The audio-plot engine: holds the points and Wave settings the engine load sends, and
// turns them into sweeps and point tones on the output's Graph channel, or into a wave
// file. Play and PlayPoint hand a sound built from a copy of the points to the output
// and return at once; reloading the engine does not disturb what is playing.
class CSNControl : public AudioPlotEngine {
 public:
  explicit CSNControl(AudioOutput& output = AudioOutput::instance());
  ~CSNControl() override;
  CSNControl(const CSNControl&) = delete;
  CSNControl& operator=(const CSNControl&) = delete;

  void CreateInstance() override;
  // Silences the graph within one audio buffer and forgets the points.
  void Reset() override;
  void AppendPoint(float x, float y) override;
  void SetPlayTime(int seconds) override;
  void EnableYThreshold(bool on, float level) override;
  void SetNumVerticalTicks(int n) override;
  void SetDataVolume(unsigned volume) override;
  void SetTickVolume(unsigned volume) override;
  void SetFreqMin(int hertz) override;
  void SetFreqMax(int hertz) override;
  void Play(bool stereo, bool ticks, bool reverse, bool segment, int start, int count) override;
  // A position outside the list plays nothing and leaves a running sweep alone.
  void PlayPoint(int index, bool stereo) override;
  // The sound of Play(stereo, ticks) over the whole list, rendered at once into a 16-bit
  // wave file, mono (one channel) unless stereo. Reports nothing; lastWriteError() says
  // why the last export failed, for callers that tell the user.
  void WriteWaveToFile(const std::string& path, bool stereo, bool ticks) override;

  const std::vector<SoundedPoint>& points() const { return m_points; }
  const EngineSettings& settings() const { return m_settings; }
  // Empty when the last WriteWaveToFile succeeded.
  const std::string& lastWriteError() const { return m_lastWriteError; }

 private:
  AudioOutput& m_output;
  std::vector<SoundedPoint> m_points;
  EngineSettings m_settings;
  std::string m_lastWriteError;
};

}  // namespace sonalyx
