#include "platform/sound/EarconSynth.h"

#include <fluidsynth.h>

#include <algorithm>
#include <cstdlib>

#include "core/sound/AudioFormat.h"

namespace sonalyx {

namespace {

constexpr const char* kGeneralMidiSoundFont = "/usr/share/sounds/sf2/TimGM6mb.sf2";
// FluidSynth's default gain leaves a velocity-63 note some 25 dB below full scale,
// too soft beside speech; this keeps the loudest earcon near half scale.
constexpr double kGain = 3.0;
constexpr double kCutFadeMs = 5.0;

}  // namespace

struct EarconSynth::Impl {
  fluid_settings_t* settings = nullptr;
  fluid_synth_t* synth = nullptr;
  bool loaded = false;

  ~Impl() {
    if (synth != nullptr) delete_fluid_synth(synth);
    if (settings != nullptr) delete_fluid_settings(settings);
  }
};

EarconSynth::EarconSynth(const std::string& soundFontPath) : m_impl(std::make_unique<Impl>()) {
  // A missing SoundFont is expected on some systems; FluidSynth would print about it.
  for (int level = 0; level < LAST_LOG_LEVEL; ++level) fluid_set_log_function(level, nullptr, nullptr);
  m_impl->settings = new_fluid_settings();
  if (m_impl->settings == nullptr) return;
  fluid_settings_setnum(m_impl->settings, "synth.sample-rate", kSampleRate);
  fluid_settings_setnum(m_impl->settings, "synth.gain", kGain);
  // Dry and single-threaded, so that every rendering of a note is the same.
  fluid_settings_setint(m_impl->settings, "synth.reverb.active", 0);
  fluid_settings_setint(m_impl->settings, "synth.chorus.active", 0);
  fluid_settings_setint(m_impl->settings, "synth.cpu-cores", 1);
  m_impl->synth = new_fluid_synth(m_impl->settings);
  if (m_impl->synth == nullptr) return;
  m_impl->loaded = fluid_synth_sfload(m_impl->synth, soundFontPath.c_str(), 1) != FLUID_FAILED;
}

EarconSynth::~EarconSynth() = default;

std::string EarconSynth::defaultSoundFont() {
  const char* chosen = std::getenv("SONALYX_SOUNDFONT");
  return chosen != nullptr && *chosen != '\0' ? chosen : kGeneralMidiSoundFont;
}

bool EarconSynth::ready() const {
  return m_impl->loaded;
}

std::vector<float> EarconSynth::render(const EffectVoice& voice, double ms) {
  const std::size_t frames = framesForMilliseconds(ms);
  std::vector<float> sound(frames * kChannels, 0.0F);
  if (!ready() || frames == 0) return sound;

  fluid_synth_t* synth = m_impl->synth;
  fluid_synth_system_reset(synth);  // nothing left sounding from the last note
  fluid_synth_program_change(synth, 0, voice.program);
  fluid_synth_noteon(synth, 0, voice.note, kEffectVelocity);
  std::vector<float> left(frames);
  std::vector<float> right(frames);
  fluid_synth_write_float(synth, static_cast<int>(frames), left.data(), 0, 1, right.data(), 0, 1);
  fluid_synth_system_reset(synth);

  const std::size_t fadeFrames = std::min(frames, framesForMilliseconds(kCutFadeMs));
  for (std::size_t i = 0; i < frames; ++i) {
    const std::size_t framesToEnd = frames - i;
    const float gain = framesToEnd <= fadeFrames
                           ? static_cast<float>(framesToEnd - 1) / static_cast<float>(fadeFrames)
                           : 1.0F;
    sound[i * kChannels] = left[i] * gain;
    sound[i * kChannels + 1] = right[i] * gain;
  }
  return sound;
}

}  // namespace sonalyx
