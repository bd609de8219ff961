#include "platform/sound/CSNControl.h"

#include <algorithm>
#include <memory>
#include <stdexcept>

#include "core/sound/AudioFormat.h"
#include "core/sound/PlayTimeLimit.h"
#include "core/sound/PointTone.h"
#include "core/sound/SweepRenderer.h"
#include "platform/sound/WaveFileWriter.h"

namespace sonalyx {

namespace {

// Frames rendered and written at a time, so that a long play time never needs the
// whole sound in memory.
constexpr std::size_t kExportChunkFrames = 16384;

}  // namespace

CSNControl::CSNControl(AudioOutput& output) : m_output(output) {}

// The engine's sound does not outlive the engine.
CSNControl::~CSNControl() {
  m_output.stop(AudioChannel::Graph);
}

void CSNControl::CreateInstance() {}

void CSNControl::Reset() {
  m_output.stop(AudioChannel::Graph);
  m_points.clear();
}

void CSNControl::AppendPoint(float x, float y) {
  m_points.push_back({x, y});
}

void CSNControl::SetPlayTime(int seconds) {
  m_settings.playTime = seconds;
}

void CSNControl::EnableYThreshold(bool on, float level) {
  m_settings.thresholdOn = on;
  m_settings.thresholdLevel = level;
}

void CSNControl::SetNumVerticalTicks(int n) {
  m_settings.numTicks = n;
}

void CSNControl::SetDataVolume(unsigned volume) {
  m_settings.dataVolume = volume;
}

void CSNControl::SetTickVolume(unsigned volume) {
  m_settings.tickVolume = volume;
}

void CSNControl::SetFreqMin(int hertz) {
  m_settings.freqMin = hertz;
}

void CSNControl::SetFreqMax(int hertz) {
  m_settings.freqMax = hertz;
}

void CSNControl::Play(bool stereo, bool ticks, bool reverse, bool segment, int start, int count) {
  const SweepRequest request{stereo, ticks, reverse, segment, start, count};
  m_output.play(AudioChannel::Graph, std::make_shared<SweepRenderer>(m_points, m_settings, request), 0.0,
                "sweep");
}

void CSNControl::PlayPoint(int index, bool stereo) {
  if (index < 0 || static_cast<std::size_t>(index) >= m_points.size()) return;
  m_output.play(AudioChannel::Graph, std::make_shared<PointTone>(m_points, m_settings, index, stereo), 0.0,
                "point");
}

void CSNControl::WriteWaveToFile(const std::string& path, bool stereo, bool ticks) {
  m_lastWriteError.clear();
  // Refused before any file is made: no empty wave, no wave of gigabytes.
  if (!playTimeAllowed(m_settings.playTime)) {
    m_lastWriteError = playTimeLimitText();
    return;
  }
  try {
    const SweepRequest request{stereo, ticks, false, false, 0, 0};
    SweepRenderer sweep(m_points, m_settings, request);
    const int channels = stereo ? 2 : 1;
    WaveFileWriter writer(path, channels);
    std::vector<float> mixed(kExportChunkFrames * kChannels);
    std::vector<float> mono(kExportChunkFrames);
    std::size_t left = sweep.totalFrames();
    bool ended = false;
    while (left > 0) {
      const std::size_t frames = std::min(left, kExportChunkFrames);
      std::fill(mixed.begin(), mixed.end(), 0.0f);
      // A sweep that ends early leaves silence to the end, as it would be heard.
      if (!ended) ended = sweep.render(mixed.data(), frames) < frames;
      if (stereo) {
        writer.write(std::span<const float>(mixed.data(), frames * kChannels));
      } else {
        // A mono sweep is the same on both sides: keep one.
        for (std::size_t i = 0; i < frames; ++i) mono[i] = mixed[i * kChannels];
        writer.write(std::span<const float>(mono.data(), frames));
      }
      left -= frames;
    }
    writer.commit();
  } catch (const std::exception& error) {
    m_lastWriteError = error.what();
  }
}

}  // namespace sonalyx
