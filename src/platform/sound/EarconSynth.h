#pragma once

#include <memory>
#include <string>
#include <vector>

#include "core/sound/EffectTable.h"

namespace sonalyx {

// A General MIDI synthesiser that renders into memory (FluidSynth with no audio
// driver) for the earcons. Without the SoundFont, or the synthesiser itself, it
// renders silence: earcons are a comfort, never a reason to fail.
class EarconSynth {
 public:
  explicit EarconSynth(const std::string& soundFontPath);
  ~EarconSynth();
  EarconSynth(const EarconSynth&) = delete;
  EarconSynth& operator=(const EarconSynth&) = delete;

  // SONALYX_SOUNDFONT when set, else the General MIDI SoundFont TimGM6mb.
  static std::string defaultSoundFont();

  // Whether the synthesiser runs and the SoundFont loaded.
  bool ready() const;

  // `ms` of the voice's note struck with the earcon velocity on MIDI channel 0 and
  // cut off without a note-off, with a short fade at the cut so that it does not
  // click: interleaved stereo at kSampleRate. Silence when not ready.
  std::vector<float> render(const EffectVoice& voice, double ms);

 private:
  struct Impl;
  std::unique_ptr<Impl> m_impl;
};

}  // namespace sonalyx
