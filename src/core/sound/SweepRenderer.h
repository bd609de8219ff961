#pragma once

#include <cstddef>
#include <vector>

#include "core/sound/AudioSource.h"
#include "core/sound/EngineSettings.h"
#include "core/sound/LinearRamp.h"
#include "core/sound/PanScale.h"
#include "core/sound/PitchScale.h"
#include "core/sound/RangeFilter.h"
#include "core/sound/ToneOscillator.h"

namespace sonalyx {

// The sound of a curve: y as pitch on a logarithmic scale from freqMin (lowest y of
// all loaded points) to freqMax (highest), gliding continuously from point to point
// over the play time, with optional ticks, the threshold timbre below the level, and
// a left-to-right pan in stereo. Works from its own copy of the points, so the
// engine may be reloaded while it plays.
//
// Every point owns an equal share of the play time, playTime / (number of points),
// and sounds its own pitch at the middle of its share; between two middles the pitch
// glides. A point whose y is not finite is a silent gap of its share. The segment is
// clipped to the point list; nothing sounds for an empty segment or a play time of
// zero or less.
class SweepRenderer : public AudioSource {
 public:
  SweepRenderer(std::vector<SoundedPoint> points, const EngineSettings& settings,
                const SweepRequest& request);

  // The length of the sound in frames (before any fade-out cut it short).
  std::size_t totalFrames() const;

  std::size_t render(float* interleaved, std::size_t frames) override;
  void fadeOut() override;

 private:
  struct Tick {
    std::size_t frame = 0;
    StereoGain gain;
  };

  void scheduleTicks(int numTicks);
  // The point position (0 .. count-1 along the played points) at frame n.
  double positionAt(std::size_t frame) const;
  std::size_t frameAt(double position) const;

  PitchScale m_pitch;
  PanScale m_pan;
  std::vector<SoundedPoint> m_played;  // in playing order
  std::vector<Tick> m_ticks;           // by frame
  std::vector<float> m_tickWave;
  bool m_stereo = false;
  bool m_thresholdOn = false;
  float m_thresholdLevel = 0.0f;
  float m_dataGain = 0.0f;
  float m_tickGain = 0.0f;
  double m_pointsPerFrame = 0.0;
  std::size_t m_toneFrames = 0;
  std::size_t m_totalFrames = 0;

  // Playing state, touched only by render and fadeOut.
  std::size_t m_frame = 0;
  std::size_t m_nextTick = 0;
  std::size_t m_firstSoundingTick = 0;
  double m_hz = 0.0;
  bool m_below = false;
  ToneOscillator m_oscillator;
  LinearRamp m_envelope;
  LinearRamp m_buzz;
  LinearRamp m_fade;
  bool m_fading = false;
};

}  // namespace sonalyx
