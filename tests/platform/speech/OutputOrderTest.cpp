#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "core/settings/RecordingBackend.h"
#include "core/sound/AudioFormat.h"
#include "core/sound/PointStepping.h"
#include "platform/sound/EarconSound.h"
#include "platform/sound/OutputSequencer.h"
#include "platform/sound/SoundEffects.h"
#include "platform/speech/CDirectSS.h"
#include "platform/speech/CaptureSpeechEngine.h"
#include "support/NumericCompare.h"

namespace sonalyx {
namespace {

// The sound and speech of one command on an output the test moves on by hand, so
// that its clock is exact.
struct Rig {
  std::shared_ptr<test::RecordingBackend> backend = std::make_shared<test::RecordingBackend>();
  SettingsStore settings{backend};
  AudioOutput output{AudioOutput::Mode::Capture, {}, AudioOutput::Pacing::Manual};
  OutputSequencer sequencer{output};
  std::unique_ptr<SoundEffects> effects;
  std::unique_ptr<CDirectSS> voice;
  CaptureSpeechEngine* engine = nullptr;

  Rig() {
    settings.SetTtsOn(true);
    settings.SetSfxOn(true);
    effects = std::make_unique<SoundEffects>(settings, sequencer);
    voice = std::make_unique<CDirectSS>(settings);
    auto capture = std::make_unique<CaptureSpeechEngine>([this] { return output.nowMs(); });
    engine = capture.get();
    voice->Create(std::move(capture));
    voice->attach(sequencer);
    output.advance(1000.0);
  }
};

TEST(OutputOrder, SpeechWaitsForTheSoundThatLeadsIt) {
  using Step = std::function<void(Rig&)>;
  const Step earcon = [](Rig& r) { r.effects->PlaySoundEffect(2); };
  const Step pointTone = [](Rig& r) { r.sequencer.leadSpeech(kPointToneMs); };
  const auto sweep = [](std::int32_t count, std::size_t points) {
    return [count, points](Rig& r) {
      if (const auto pause = sweepPauseMs(SegmentPlay{false, 0, count}, points, 4))
        r.sequencer.leadSpeech(static_cast<double>(*pause));
    };
  };
  const Step wait100 = [](Rig& r) { r.output.advance(100.0); };
  const Step effectsOff = [](Rig& r) { r.effects->setOn(false); };
  const struct {
    const char* what;
    std::vector<Step> before;
    double expectedDelay;  // from the moment Speak is called
  } cases[] = {
      {"nothing leads", {}, 0.0},
      {"an earcon", {earcon}, 250.0},
      {"an earcon 100 ms ago", {earcon, wait100}, 150.0},
      {"a point tone", {pointTone}, 175.0},
      {"a sweep over a quarter of the points", {sweep(25, 100)}, 1000.0},
      {"a sweep over a tenth", {sweep(10, 100)}, 400.0},
      {"a sweep over all of the points", {sweep(100, 100)}, 4000.0},
      {"an earcon, then a point tone", {earcon, pointTone}, 175.0},
      {"an earcon with the effects off", {effectsOff, earcon}, 0.0},
  };
  for (const auto& c : cases) {
    Rig rig;
    for (const auto& step : c.before) step(rig);
    const double calledAt = rig.output.nowMs();
    rig.voice->Speak(SpeechKind::Content, "x = 2, y = 0.333");
    ASSERT_EQ(rig.engine->utterances().size(), 1U) << c.what;
    EXPECT_TRUE(test::agreesTo(rig.engine->utterances()[0].startMs - calledAt, c.expectedDelay, 12, 1e-9))
        << c.what;
  }
}

TEST(OutputOrder, ANewUtteranceCutsOffTheOldAndStopSilencesEverything) {
  Rig rig;
  rig.voice->Speak(SpeechKind::Content, "first");
  rig.output.advance(40.0);
  rig.effects->PlaySoundEffect(4);
  rig.voice->Speak(SpeechKind::Content, "second");
  auto graph =
      std::make_shared<EarconSound>(std::make_shared<const std::vector<float>>(kSampleRate * kChannels));
  rig.output.play(AudioChannel::Graph, graph, 0.0, "graph");
  rig.output.advance(10.0);
  ASSERT_TRUE(rig.output.isActive(AudioChannel::Graph));
  ASSERT_TRUE(rig.output.isActive(AudioChannel::Effect));

  rig.sequencer.stopAll();
  const auto& said = rig.engine->utterances();
  ASSERT_EQ(said.size(), 2U);
  ASSERT_TRUE(said[0].cutMs && said[1].cutMs);
  EXPECT_TRUE(test::agreesTo(*said[0].cutMs, 1040.0, 12));              // cut off by the second
  EXPECT_TRUE(test::agreesTo(said[1].startMs, 1290.0, 12));             // after the earcon
  EXPECT_TRUE(test::agreesTo(*said[1].cutMs, 1050.0, 12));              // dropped before it began
  EXPECT_TRUE(test::agreesTo(rig.sequencer.speechDelayMs(), 0.0, 12));  // nothing leads any more
  for (const AudioChannel channel : {AudioChannel::Graph, AudioChannel::Effect, AudioChannel::Speech}) {
    EXPECT_FALSE(rig.output.isActive(channel));
  }
  // The earcon started when it was asked for, 250 ms before the speech it led.
  const auto events = rig.output.events();
  ASSERT_EQ(events.size(), 2U);
  EXPECT_EQ(events[0].channel, AudioChannel::Effect);
  EXPECT_EQ(events[0].label, "earcon 4");
  EXPECT_TRUE(test::agreesTo(events[0].startMs, 1040.0, 12));
  // Within a fade everything is quiet.
  rig.output.advance(10.0);
  const std::vector<float> heard = rig.output.capturedSamples();
  const std::size_t lastFrames = framesForMilliseconds(4.0) * kChannels;
  for (std::size_t i = heard.size() - lastFrames; i < heard.size(); ++i) {
    ASSERT_TRUE(test::agreesTo(heard[i], 0.0, 12)) << i;
  }
}

}  // namespace
}  // namespace sonalyx
