#include "platform/speech/SpeechStream.h"

#include <algorithm>

#include "core/sound/AudioFormat.h"

namespace sonalyx {

namespace {
constexpr double kFadeOutMs = 5.0;
}

SpeechStream::SpeechStream(std::size_t capacityFrames) : m_ring(std::max<std::size_t>(capacityFrames, 1)) {}

std::size_t SpeechStream::write(const float* mono, std::size_t count) {
  const std::uint64_t written = m_written.load(std::memory_order_relaxed);
  const std::uint64_t room = m_ring.size() - (written - m_read.load(std::memory_order_acquire));
  const auto n = static_cast<std::size_t>(std::min<std::uint64_t>(room, count));
  for (std::size_t i = 0; i < n; ++i) m_ring[(written + i) % m_ring.size()] = mono[i];
  m_written.store(written + n, std::memory_order_release);
  return n;
}

void SpeechStream::finish() {
  m_finished.store(true, std::memory_order_release);
}

void SpeechStream::fadeOut() {
  cutOff();
  if (m_fading) return;
  m_fading = true;
  m_fadeLength = framesForMilliseconds(kFadeOutMs);
  m_fadeLeft = m_fadeLength;
}

std::size_t SpeechStream::render(float* interleaved, std::size_t frames) {
  if (isCutOff() && !m_fading) fadeOut();
  // Read the finished flag before the write position, so that a stream seen as
  // finished has all its samples visible.
  const bool finished = m_finished.load(std::memory_order_acquire);
  const std::uint64_t written = m_written.load(std::memory_order_acquire);
  std::uint64_t read = m_read.load(std::memory_order_relaxed);
  std::size_t produced = 0;
  for (; produced < frames; ++produced) {
    float gain = 1.0F;
    if (m_fading) {
      if (m_fadeLeft == 0) break;
      gain = static_cast<float>(m_fadeLeft) / static_cast<float>(m_fadeLength);
      --m_fadeLeft;
    }
    if (read == written) {
      if (finished) break;
      continue;  // not synthesised yet: silence, and keep the stream alive
    }
    const float sample = gain * m_ring[read % m_ring.size()];
    for (int c = 0; c < kChannels; ++c) interleaved[produced * kChannels + c] += sample;
    ++read;
  }
  m_read.store(read, std::memory_order_release);
  if (produced < frames) m_done.store(true);
  return produced;
}

}  // namespace sonalyx
