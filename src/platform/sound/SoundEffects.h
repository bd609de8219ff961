#pragma once

#include <array>
#include <atomic>
#include <memory>
#include <string>
#include <vector>

#include "core/settings/SettingsStore.h"
#include "core/sound/EffectTable.h"
#include "platform/sound/EarconSynth.h"
#include "platform/sound/OutputSequencer.h"

namespace sonalyx {

// The earcons that confirm the user's actions, and their switch. The application
// owns one for the whole run; any page or control may call PlaySoundEffect().
// Every effect is rendered once, when this is made, so playing one costs nothing.
class SoundEffects {
 public:
  // The switch starts as the stored `sfxOn`.
  SoundEffects(const SettingsStore& settings, OutputSequencer& sequencer,
               const std::string& soundFont = EarconSynth::defaultSoundFont());

  // Starts earcon `id` on the Effect channel and returns at once; whatever is said
  // next waits for its kEffectMs. Nothing (and no wait) while the switch is off or
  // when there is no synthesiser.
  void PlaySoundEffect(int id);

  // The mirror of `sfxOn`: whoever changes the setting sets this with it.
  bool isOn() const { return m_on.load(); }
  void setOn(bool on) { m_on.store(on); }

  // Whether earcons can be heard at all (the SoundFont loaded).
  bool canSound() const { return m_canSound; }
  // The rendered sound of effect `id` (interleaved stereo; silence without a synthesiser).
  std::shared_ptr<const std::vector<float>> sound(int id) const;

 private:
  OutputSequencer& m_sequencer;
  std::atomic<bool> m_on;
  bool m_canSound = false;
  // Effects 0 to kEffectCount - 1, then the sound of every other number.
  std::array<std::shared_ptr<const std::vector<float>>, kEffectCount + 1> m_sounds;
};

}  // namespace sonalyx
