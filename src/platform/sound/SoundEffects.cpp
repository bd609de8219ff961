#include "platform/sound/SoundEffects.h"

#include <utility>

#include "core/utility/NumberFormat.h"
#include "platform/sound/EarconSound.h"

namespace sonalyx {

SoundEffects::SoundEffects(const SettingsStore& settings, OutputSequencer& sequencer,
                           const std::string& soundFont)
    : m_sequencer(sequencer), m_on(settings.GetSfxOn()) {
  EarconSynth synth(soundFont);
  m_canSound = synth.ready();
  // Effects that share a voice share one rendering.
  std::vector<std::pair<EffectVoice, std::shared_ptr<const std::vector<float>>>> rendered;
  for (int id = 0; id <= kEffectCount; ++id) {
    const EffectVoice voice = effectVoice(id);
    std::shared_ptr<const std::vector<float>> sound;
    for (const auto& [known, knownSound] : rendered) {
      if (known == voice) sound = knownSound;
    }
    if (!sound) {
      sound = std::make_shared<const std::vector<float>>(synth.render(voice, kEffectMs));
      rendered.emplace_back(voice, sound);
    }
    m_sounds[static_cast<std::size_t>(id)] = std::move(sound);
  }
}

std::shared_ptr<const std::vector<float>> SoundEffects::sound(int id) const {
  return m_sounds[static_cast<std::size_t>(id >= 0 && id < kEffectCount ? id : kEffectCount)];
}

void SoundEffects::PlaySoundEffect(int id) {
  if (!isOn() || !m_canSound) return;
  m_sequencer.output().play(AudioChannel::Effect, std::make_shared<EarconSound>(sound(id)), 0.0,
                            "earcon " + formatNumber(id, "%.10g"));
  m_sequencer.leadSpeech(kEffectMs);
}

}  // namespace sonalyx
