#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "core/sound/AudioSource.h"

namespace sonalyx {

// An utterance that is heard while it is still being synthesised: one thread
// writes mono samples at the mixer's rate, the audio thread plays them. It stays
// silent until the first samples arrive and fills any later gap with silence; it
// ends once the writer has finished and everything written has been heard.
// Lock-free, so the audio thread never waits for the synthesiser.
class SpeechStream : public AudioSource {
 public:
  explicit SpeechStream(std::size_t capacityFrames);

  // Writer: appends as many of the samples as there is room for and returns how
  // many that was (the rest must wait for the listener).
  std::size_t write(const float* mono, std::size_t count);
  // Writer: nothing more will come.
  void finish();
  // Either side: nobody wants the rest (the output faded it, or a newer utterance
  // replaced it before it started).
  void cutOff() { m_cut.store(true); }
  bool isCutOff() const { return m_cut.load(); }
  // True once the whole utterance has been heard or it was cut off.
  bool isDone() const { return m_done.load(); }
  std::uint64_t framesWritten() const { return m_written.load(); }

  std::size_t render(float* interleaved, std::size_t frames) override;
  void fadeOut() override;

 private:
  std::vector<float> m_ring;
  std::atomic<std::uint64_t> m_written{0};
  std::atomic<std::uint64_t> m_read{0};
  std::atomic<bool> m_finished{false};
  std::atomic<bool> m_cut{false};
  std::atomic<bool> m_done{false};
  // Audio thread only.
  bool m_fading = false;
  std::size_t m_fadeLeft = 0;
  std::size_t m_fadeLength = 0;
};

}  // namespace sonalyx
