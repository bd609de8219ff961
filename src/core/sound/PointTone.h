#pragma once

#include <cstddef>
#include <vector>

#include "core/sound/AudioSource.h"
#include "core/sound/EngineSettings.h"
#include "core/sound/LinearRamp.h"
#include "core/sound/PanScale.h"
#include "core/sound/RangeFilter.h"
#include "core/sound/ToneOscillator.h"

namespace sonalyx {

// The short tone of one point: its pitch and pan as in the sweep, 150 ms, faded in
// and out. A position outside the list, a point whose y is not finite or a volume of
// 0 gives no sound at all.
class PointTone : public AudioSource {
 public:
  PointTone(const std::vector<SoundedPoint>& points, const EngineSettings& settings, int index, bool stereo);

  std::size_t totalFrames() const;

  std::size_t render(float* interleaved, std::size_t frames) override;
  void fadeOut() override;

 private:
  double m_hz = 0.0;
  float m_buzz = 0.0f;  // the threshold timbre, as the sweep plays it at this y
  float m_gain = 0.0f;
  StereoGain m_pan;
  std::size_t m_totalFrames = 0;

  std::size_t m_frame = 0;
  ToneOscillator m_oscillator;
  LinearRamp m_fade;
  bool m_fading = false;
};

}  // namespace sonalyx
