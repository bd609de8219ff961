#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include "core/sound/AudioSource.h"

namespace sonalyx {

// One playing of a sound rendered beforehand (an earcon): interleaved stereo
// shared with every other playing of it.
class EarconSound : public AudioSource {
 public:
  explicit EarconSound(std::shared_ptr<const std::vector<float>> interleaved);

  std::size_t render(float* interleaved, std::size_t frames) override;
  void fadeOut() override;

 private:
  std::shared_ptr<const std::vector<float>> m_sound;
  std::size_t m_frame = 0;
  std::size_t m_fadeLeft = 0;  // frames of the fade still to play; 0 while not fading
  std::size_t m_fadeLength = 0;
};

}  // namespace sonalyx
