#include "core/sound/PointTone.h"

#include <algorithm>
#include <cmath>

#include "core/sound/AudioFormat.h"
#include "core/sound/PitchScale.h"
#include "core/sound/VolumeScale.h"

namespace sonalyx {

namespace {

constexpr std::size_t kToneFrames = framesForMilliseconds(150);
constexpr std::size_t kEdgeFrames = framesForMilliseconds(10);
constexpr std::size_t kFadeOutFrames = framesForMilliseconds(5);

}  // namespace

PointTone::PointTone(const std::vector<SoundedPoint>& points, const EngineSettings& settings, int index,
                     bool stereo)
    : m_fade(1.0f, kFadeOutFrames) {
  if (index < 0 || static_cast<std::size_t>(index) >= points.size()) return;
  const SoundedPoint& p = points[static_cast<std::size_t>(index)];
  if (!std::isfinite(p.y) || settings.dataVolume == 0) return;
  m_hz = PitchScale(points, settings.freqMin, settings.freqMax).frequency(p.y);
  m_buzz = settings.thresholdOn && p.y < settings.thresholdLevel ? 1.0f : 0.0f;
  m_gain = static_cast<float>(dataGain(settings.dataVolume));
  const PanScale pan(points);
  m_pan = PanScale::gains(pan.position(p.x), stereo);
  m_totalFrames = kToneFrames;
}

std::size_t PointTone::totalFrames() const {
  return m_totalFrames;
}

void PointTone::fadeOut() {
  m_fading = true;
}

std::size_t PointTone::render(float* interleaved, std::size_t frames) {
  std::size_t produced = 0;
  for (; produced < frames && m_frame < m_totalFrames; ++produced, ++m_frame) {
    const float fade = m_fade.next(m_fading ? 0.0f : 1.0f);
    if (fade <= 0.0f) break;
    // Linear edges: the first sample and the last are 0.
    const std::size_t fromEnd = m_totalFrames - 1 - m_frame;
    const float edge = std::min(
        {1.0f, static_cast<float>(m_frame) / kEdgeFrames, static_cast<float>(fromEnd) / kEdgeFrames});
    const float v = m_oscillator.next(m_hz, m_buzz) * edge * m_gain * fade;
    interleaved[produced * kChannels] += v * m_pan.left;
    interleaved[produced * kChannels + 1] += v * m_pan.right;
  }
  return produced;
}

}  // namespace sonalyx
