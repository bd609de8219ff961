#include "platform/sound/SoundEffects.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

#include "core/settings/RecordingBackend.h"
#include "core/sound/AudioFormat.h"
#include "support/NumericCompare.h"

namespace sonalyx {
namespace {

float peak(const std::vector<float>& sound) {
  float loudest = 0.0F;
  for (const float s : sound) loudest = std::max(loudest, std::fabs(s));
  return loudest;
}

struct Rig {
  std::shared_ptr<test::RecordingBackend> backend = std::make_shared<test::RecordingBackend>();
  SettingsStore settings{backend};
  AudioOutput output{AudioOutput::Mode::Null, {}, AudioOutput::Pacing::Manual};
  OutputSequencer sequencer{output};
};

TEST(SoundEffects, RendersEveryEffectOnceAsAQuarterSecondNote) {
  Rig rig;
  const SoundEffects effects(rig.settings, rig.sequencer);
  ASSERT_TRUE(effects.canSound()) << "the General MIDI SoundFont is missing";
  const std::size_t samples = framesForMilliseconds(kEffectMs) * kChannels;
  for (int id = -1; id <= kEffectCount; ++id) {
    const auto sound = effects.sound(id);
    ASSERT_EQ(sound->size(), samples) << id;
    EXPECT_GT(peak(*sound), 0.05F) << id;
    EXPECT_LT(peak(*sound), 1.0F) << id;
    // Cut off at the end, but faded so that the cut does not click.
    EXPECT_LT(std::fabs(sound->back()), 1e-3F) << id;
  }
  EXPECT_EQ(effects.sound(4), effects.sound(5));
  EXPECT_EQ(effects.sound(4), effects.sound(6));
  EXPECT_EQ(effects.sound(-1), effects.sound(kEffectCount));
  for (int a = 0; a <= 4; ++a) {
    for (int b = a + 1; b <= 4; ++b) EXPECT_NE(*effects.sound(a), *effects.sound(b)) << a << " and " << b;
    EXPECT_NE(*effects.sound(a), *effects.sound(99)) << a;
  }
}

TEST(SoundEffects, FollowTheirSwitchAndFallSilentWithoutASoundFont) {
  const struct {
    bool storedOn;
    bool switchTo;
    const char* soundFont;
    bool heard;
  } cases[] = {
      {false, false, nullptr, false},
      {false, true, nullptr, true},
      {true, true, nullptr, true},
      {true, false, nullptr, false},
      {true, true, "/nonexistent/none.sf2", false},
  };
  for (const auto& c : cases) {
    Rig rig;
    rig.settings.SetSfxOn(c.storedOn);
    SoundEffects effects(rig.settings, rig.sequencer,
                         c.soundFont != nullptr ? c.soundFont : EarconSynth::defaultSoundFont());
    EXPECT_EQ(effects.isOn(), c.storedOn);
    effects.setOn(c.switchTo);
    effects.PlaySoundEffect(2);
    EXPECT_EQ(rig.output.isActive(AudioChannel::Effect), c.heard) << c.storedOn << c.switchTo;
    EXPECT_TRUE(test::agreesTo(rig.sequencer.speechDelayMs(), c.heard ? kEffectMs : 0.0, 12))
        << c.storedOn << c.switchTo;
    if (c.soundFont != nullptr) {
      EXPECT_FALSE(effects.canSound());
      EXPECT_TRUE(test::agreesTo(peak(*effects.sound(2)), 0.0, 12));
    }
  }
}

}  // namespace
}  // namespace sonalyx
