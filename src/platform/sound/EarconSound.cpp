#include "platform/sound/EarconSound.h"

#include "core/sound/AudioFormat.h"

namespace sonalyx {

namespace {
constexpr double kFadeOutMs = 5.0;
}

EarconSound::EarconSound(std::shared_ptr<const std::vector<float>> interleaved)
    : m_sound(std::move(interleaved)) {}

std::size_t EarconSound::render(float* interleaved, std::size_t frames) {
  const std::size_t total = m_sound->size() / kChannels;
  std::size_t produced = 0;
  while (produced < frames && m_frame < total) {
    float gain = 1.0F;
    if (m_fadeLength > 0) {
      if (m_fadeLeft == 0) break;
      gain = static_cast<float>(m_fadeLeft) / static_cast<float>(m_fadeLength);
      --m_fadeLeft;
    }
    for (int c = 0; c < kChannels; ++c) {
      interleaved[produced * kChannels + c] += gain * (*m_sound)[m_frame * kChannels + c];
    }
    ++produced;
    ++m_frame;
  }
  return produced;
}

void EarconSound::fadeOut() {
  if (m_fadeLength > 0) return;
  m_fadeLength = framesForMilliseconds(kFadeOutMs);
  m_fadeLeft = m_fadeLength;
}

}  // namespace sonalyx
