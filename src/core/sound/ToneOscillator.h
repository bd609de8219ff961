#pragma once

namespace sonalyx {

// The curve's voice: a fundamental with a few soft harmonics, or, below the y
// threshold, a buzzier tone rich in odd harmonics. The two are blended, so the
// timbre can change smoothly; the phase runs on across every change of pitch.
class ToneOscillator {
 public:
  static constexpr int kHarmonics = 9;

  // The next sample at `hz` with `buzz` between 0 (plain) and 1 (threshold timbre).
  // The peak never exceeds 1. The first sample is 0, so a tone starts without a step.
  float next(double hz, float buzz);

 private:
  double m_phase = 0.0;  // in turns, 0..1
};

}  // namespace sonalyx
