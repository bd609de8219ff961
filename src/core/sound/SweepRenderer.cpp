#include "core/sound/SweepRenderer.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "core/sound/AudioFormat.h"
#include "core/sound/TickWaveform.h"
#include "core/sound/VolumeScale.h"

namespace sonalyx {

namespace {

constexpr std::size_t kFadeFrames = framesForMilliseconds(5);
constexpr std::size_t kTimbreFrames = framesForMilliseconds(15);
// More tick marks than this would no longer be heard as marks but as a rattle.
constexpr int kMostTicks = 1000;
// Ticks closer than this would merge into one; the later one is left out.
constexpr std::size_t kTickSpacing = framesForMilliseconds(3);

bool finite(float v) {
  return std::isfinite(v);
}

// The value between two points at `fraction`, or the finite one's over its own half
// of the way; nothing when neither is there to sound.
bool between(float a, const float* b, double fraction, double& value) {
  const bool aOk = finite(a);
  const bool bOk = b != nullptr && finite(*b);
  if (aOk && bOk) {
    value = a + fraction * (static_cast<double>(*b) - a);
  } else if (aOk && (b == nullptr || fraction < 0.5)) {
    value = a;
  } else if (bOk && fraction >= 0.5) {
    value = *b;
  } else {
    return false;
  }
  return true;
}

}  // namespace

SweepRenderer::SweepRenderer(std::vector<SoundedPoint> points, const EngineSettings& settings,
                             const SweepRequest& request)
    : m_pitch(points, settings.freqMin, settings.freqMax),
      m_pan(points),
      m_stereo(request.stereo),
      m_thresholdOn(settings.thresholdOn),
      m_thresholdLevel(settings.thresholdLevel),
      m_dataGain(static_cast<float>(dataGain(settings.dataVolume))),
      m_tickGain(static_cast<float>(tickGain(settings.tickVolume))),
      m_envelope(0.0f, kFadeFrames),
      m_buzz(0.0f, kTimbreFrames),
      m_fade(1.0f, kFadeFrames) {
  const auto n = static_cast<std::int64_t>(points.size());
  std::int64_t first = 0;
  std::int64_t end = n;
  if (request.segment && request.reverse) {
    // Backwards from `start`: start, start - 1, ... as a sweep to an earlier point runs.
    end = std::clamp<std::int64_t>(std::int64_t{request.start} + 1, 0, n);
    first = std::clamp<std::int64_t>(std::int64_t{request.start} + 1 - request.count, 0, end);
  } else if (request.segment) {
    first = std::clamp<std::int64_t>(request.start, 0, n);
    end = std::clamp<std::int64_t>(std::int64_t{request.start} + request.count, first, n);
  }
  if (end <= first || settings.playTime <= 0) return;

  m_played.assign(points.begin() + first, points.begin() + end);
  if (request.reverse) std::reverse(m_played.begin(), m_played.end());
  const double seconds = static_cast<double>(settings.playTime) * static_cast<double>(end - first) / n;
  m_toneFrames = static_cast<std::size_t>(std::llround(seconds * kSampleRate));
  if (m_toneFrames == 0) return;
  m_pointsPerFrame = static_cast<double>(m_played.size()) / static_cast<double>(m_toneFrames);
  m_totalFrames = m_toneFrames;
  if (request.ticks && settings.numTicks > 0) scheduleTicks(std::min(settings.numTicks, kMostTicks));
}

double SweepRenderer::positionAt(std::size_t frame) const {
  const double p = (static_cast<double>(frame) + 0.5) * m_pointsPerFrame - 0.5;
  return std::clamp(p, 0.0, static_cast<double>(m_played.size() - 1));
}

std::size_t SweepRenderer::frameAt(double position) const {
  const double f = (position + 0.5) / m_pointsPerFrame - 0.5;
  return f <= 0.0 ? 0 : static_cast<std::size_t>(std::llround(f));
}

void SweepRenderer::scheduleTicks(int numTicks) {
  const auto range = m_pan.xRange();
  if (!range) return;
  // Named copies, not a structured binding: clang before 16 cannot capture one.
  const double low = range->first;
  const double high = range->second;
  // Evenly spaced over the x range, both ends included; a single mark in the middle.
  const auto tickX = [&](int j) {
    if (numTicks == 1) return low + 0.5 * (high - low);
    if (j == numTicks - 1) return high;
    return low + (high - low) * j / (numTicks - 1);
  };
  // The first mark beyond v (or at or beyond v when `orAt`).
  const auto firstMark = [&](double v, bool orAt) {
    int lo = 0;
    int hi = numTicks;
    while (lo < hi) {
      const int mid = lo + (hi - lo) / 2;
      if (orAt ? tickX(mid) >= v : tickX(mid) > v) {
        hi = mid;
      } else {
        lo = mid + 1;
      }
    }
    return lo;
  };
  m_tickWave = tickWaveform();
  const auto add = [&](int j, double position) {
    const std::size_t frame = frameAt(position);
    if (!m_ticks.empty() && frame < m_ticks.back().frame + kTickSpacing) return;
    m_ticks.push_back({frame, PanScale::gains(m_pan.position(tickX(j)), m_stereo)});
  };

  // A mark sounds where the sweep's x reaches it: at the start, or when x passes it
  // or lands on it (leaving a mark does not sound it again).
  const float x0 = m_played.front().x;
  if (finite(x0)) {
    for (int j = firstMark(x0, true); j < firstMark(x0, false); ++j) add(j, 0.0);
  }
  for (std::size_t k = 0; k + 1 < m_played.size(); ++k) {
    const double a = m_played[k].x;
    const double b = m_played[k + 1].x;
    if (!std::isfinite(a) || !std::isfinite(b) || a == b) continue;
    const auto at = [&](int j) { return static_cast<double>(k) + (tickX(j) - a) / (b - a); };
    if (a < b) {
      for (int j = firstMark(a, false), last = firstMark(b, false); j < last; ++j) add(j, at(j));
    } else {
      for (int j = firstMark(a, true) - 1, last = firstMark(b, true); j >= last; --j) add(j, at(j));
    }
  }
  if (!m_ticks.empty()) {
    m_totalFrames = std::max(m_totalFrames, m_ticks.back().frame + m_tickWave.size());
  }
}

std::size_t SweepRenderer::totalFrames() const {
  return m_totalFrames;
}

void SweepRenderer::fadeOut() {
  m_fading = true;
}

std::size_t SweepRenderer::render(float* interleaved, std::size_t frames) {
  std::size_t produced = 0;
  const std::size_t count = m_played.size();
  for (; produced < frames && m_frame < m_totalFrames; ++produced, ++m_frame) {
    const float fade = m_fade.next(m_fading ? 0.0f : 1.0f);
    if (fade <= 0.0f) break;
    float* out = interleaved + produced * kChannels;

    if (m_frame < m_toneFrames) {
      const double position = positionAt(m_frame);
      const auto k = std::min(static_cast<std::size_t>(position), count - 1);
      const double fraction = position - static_cast<double>(k);
      const SoundedPoint& a = m_played[k];
      const SoundedPoint* b = k + 1 < count ? &m_played[k + 1] : nullptr;

      double y = 0.0;
      const bool sounding = between(a.y, b ? &b->y : nullptr, fraction, y);
      if (sounding) {
        m_hz = m_pitch.frequency(y);
        m_below = m_thresholdOn && y < m_thresholdLevel;
      }
      // The tone ends its fade exactly at the end of its time.
      const bool open = sounding && m_frame + kFadeFrames < m_toneFrames;
      const float envelope = m_envelope.next(open ? 1.0f : 0.0f);
      const float buzz = m_buzz.next(m_below ? 1.0f : 0.0f);
      const float sample = m_oscillator.next(m_hz, buzz) * envelope * m_dataGain * fade;
      if (sample != 0.0f && m_stereo) {
        double x = 0.0;
        const double pan = between(a.x, b ? &b->x : nullptr, fraction, x) ? m_pan.position(x) : 0.5;
        const StereoGain g = PanScale::gains(pan, true);
        out[0] += sample * g.left;
        out[1] += sample * g.right;
      } else {
        out[0] += sample;
        out[1] += sample;
      }
    }

    while (m_nextTick < m_ticks.size() && m_ticks[m_nextTick].frame <= m_frame) ++m_nextTick;
    while (m_firstSoundingTick < m_nextTick &&
           m_frame - m_ticks[m_firstSoundingTick].frame >= m_tickWave.size()) {
      ++m_firstSoundingTick;
    }
    for (std::size_t t = m_firstSoundingTick; t < m_nextTick; ++t) {
      const std::size_t offset = m_frame - m_ticks[t].frame;
      if (offset >= m_tickWave.size()) continue;
      const float v = m_tickWave[offset] * m_tickGain * fade;
      out[0] += v * m_ticks[t].gain.left;
      out[1] += v * m_ticks[t].gain.right;
    }
  }
  return produced;
}

}  // namespace sonalyx
