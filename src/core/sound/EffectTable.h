#pragma once

namespace sonalyx {

// The General MIDI sound of one earcon: a program (0-based) and a note, struck on
// MIDI channel 0 with velocity 63 and left to sound for kEffectMs.
struct EffectVoice {
  int program = 0;
  int note = 0;

  bool operator==(const EffectVoice&) const = default;
};

inline constexpr int kEffectCount = 7;
inline constexpr int kEffectVelocity = 63;
inline constexpr double kEffectMs = 250.0;

// Effects 0 to 6 (4, 5 and 6 sound the same); any other number plays program 0,
// note 0.
constexpr EffectVoice effectVoice(int id) {
  constexpr EffectVoice table[kEffectCount] = {{1, 90}, {2, 40}, {13, 90}, {13, 30},
                                               {3, 50}, {3, 50}, {3, 50}};
  return id >= 0 && id < kEffectCount ? table[id] : EffectVoice{};
}

}  // namespace sonalyx
