#pragma once

#include <cstddef>

namespace sonalyx {

// Something that can be heard: a sweep, a point tone, an earcon, an utterance.
// The mixer pulls from it on the audio thread, so render() must not block, lock for
// long or allocate; everything it needs is prepared before it is handed over.
class AudioSource {
 public:
  virtual ~AudioSource() = default;

  // Adds (mixes) up to `frames` stereo frames into `interleaved` (kChannels floats a
  // frame, already holding other sources' sound) and returns how many frames it
  // produced. Fewer than asked means the source has ended and will not be asked again.
  virtual std::size_t render(float* interleaved, std::size_t frames) = 0;

  // Asked to end soon: fade out over a few milliseconds (no click) and then return
  // fewer frames than asked. Called from the audio thread, between renders.
  virtual void fadeOut() = 0;
};

}  // namespace sonalyx
