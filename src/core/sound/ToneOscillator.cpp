#include "core/sound/ToneOscillator.h"

#include <array>

#include "core/sound/AudioFormat.h"
#include "core/sound/SineTable.h"

namespace sonalyx {

namespace {

using Timbre = std::array<float, ToneOscillator::kHarmonics>;

// Amplitudes scaled to sum to 1, which bounds the peak of the blend by 1 too.
constexpr Timbre normalised(Timbre t) {
  float sum = 0.0f;
  for (const float a : t) sum += a;
  for (float& a : t) a /= sum;
  return t;
}

constexpr Timbre kPlain = normalised({1.0f, 0.35f, 0.15f, 0.08f, 0.04f, 0.0f, 0.0f, 0.0f, 0.0f});
constexpr Timbre kBuzz = normalised({1.0f, 0.1f, 0.7f, 0.05f, 0.5f, 0.0f, 0.4f, 0.0f, 0.3f});

// Harmonics fade out between these frequencies, so none folds back from above the
// Nyquist limit as a high pitch glides.
constexpr double kHarmonicFull = 0.40 * kSampleRate;
constexpr double kHarmonicGone = 0.45 * kSampleRate;

float harmonicWeight(double hz) {
  if (hz <= kHarmonicFull) return 1.0f;
  if (hz >= kHarmonicGone) return 0.0f;
  return static_cast<float>((kHarmonicGone - hz) / (kHarmonicGone - kHarmonicFull));
}

}  // namespace

float ToneOscillator::next(double hz, float buzz) {
  const float s1 = sineOfTurns(m_phase);
  const float twoCos = 2.0f * cosineOfTurns(m_phase);
  // sin(hφ) for every harmonic from sin φ and cos φ by the Chebyshev recurrence.
  float previous = 0.0f;
  float current = s1;
  float sum = 0.0f;
  const bool allBelowLimit = hz * kHarmonics <= kHarmonicFull;
  for (int h = 0; h < kHarmonics; ++h) {
    float amplitude = kPlain[h] + buzz * (kBuzz[h] - kPlain[h]);
    if (h > 0 && !allBelowLimit) amplitude *= harmonicWeight(hz * (h + 1));
    sum += amplitude * current;
    const float following = twoCos * current - previous;
    previous = current;
    current = following;
  }
  m_phase += hz / kSampleRate;
  if (m_phase >= 1.0) m_phase -= static_cast<double>(static_cast<long long>(m_phase));
  return sum;
}

}  // namespace sonalyx
