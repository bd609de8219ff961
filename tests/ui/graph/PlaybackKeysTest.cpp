#include <gtest/gtest.h>

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "core/sound/SoundMeasure.h"
#include "ui/UiTestSupport.h"
#include "ui/app/CommandIds.h"
#include "ui/controls/CTTSEdit.h"
#include "ui/graph/CGraphWnd.h"
#include "ui/pages/CDataPage.h"
#include "ui/sheet/CCalcSheet.h"

namespace sonalyx::ui {
namespace {

using test::ProgramUnderTest;

// How the pitch of what a key played moves from its start to its end.
enum class Pitch { None, Steady, Falls, Rises, Dips };

const char* name(Pitch p) {
  switch (p) {
    case Pitch::None:
      return "silence";
    case Pitch::Steady:
      return "steady";
    case Pitch::Falls:
      return "falls";
    case Pitch::Rises:
      return "rises";
    case Pitch::Dips:
      return "dips";
  }
  return "";
}

// The pitch of the graph's sound over its first, middle and last fifth.
Pitch pitchOf(const std::vector<float>& interleaved, double startMs, double lengthMs) {
  std::vector<float> left;
  left.reserve(interleaved.size() / 2);
  for (std::size_t i = 0; i < interleaved.size(); i += 2) left.push_back(interleaved[i]);
  const auto at = [&](double fraction) {
    const double from = startMs + lengthMs * fraction;
    return test::pitch(left, test::frameAtSeconds(from / 1000.0),
                       test::frameAtSeconds((from + lengthMs * 0.2) / 1000.0));
  };
  const double first = at(0.0);
  const double middle = at(0.4);
  const double last = at(0.8);
  if (first <= 0.0 || last <= 0.0) return Pitch::None;
  if (middle < first * 0.9 && middle < last * 0.9) return Pitch::Dips;
  if (last < first * 0.9) return Pitch::Falls;
  if (last > first * 1.1) return Pitch::Rises;
  return Pitch::Steady;
}

// Every playback key on x^2-4 (and 2*x as data set 2), pressed in turn as a user
// would: what is said, when, what sound starts at once and how its pitch moves.
TEST(PlaybackKeys, EachKeySoundsAtOnceAndItsWordsFollowTheSound) {
  ProgramUnderTest program([](const SettingsStore& store) {
    store.SetTtsOn(true);
    store.SetAutoSpeak(true);
    store.SetPlayTime(1);
    store.SetExpr1("x^2-4");
    store.SetExpr2("2*x");
  });
  ASSERT_TRUE(program.started());
  CChildFrame* child = program.child();
  program.commands().action(cmd::kDataSet2)->trigger();
  child->dataPage(DataSet::Data2)->expressionEdit()->setFocus();
  program.press(Qt::Key_Return);
  program.press(Qt::Key_F4);
  ASSERT_TRUE(test::waitUntil([&] {
    return !child->dataPage(0)->busy() && !child->dataPage(1)->busy() &&
           program.app().dataSets()[1].count() == 501;
  }));
  ASSERT_EQ(program.app().dataSets()[0].count(), 501u);

  const auto* voice = test::Heard::capture();
  ASSERT_NE(voice, nullptr);
  AudioOutput& output = AudioOutput::instance();
  const struct {
    const char* what;
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    std::int32_t cursor;
    const char* said;   // nullptr: nothing
    const char* sound;  // the engine's label, nullptr for none
    double delayMs;     // how long the sound leads the words
    Pitch pitch;
  } keys[] = {
      {"first point, out of the range heard", Qt::Key_Home, Qt::AltModifier, 0, "x = minus 10, y = 96",
       nullptr, 0, Pitch::None},
      {"next zero", Qt::Key_0, Qt::AltModifier, 200, "x = minus 2, y = 0", "sweep", 229, Pitch::Falls},
      {"next minimum", Qt::Key_PageDown, Qt::AltModifier, 250, "x = 0, y = minus 4", "sweep", 267,
       Pitch::Falls},
      {"next zero again", Qt::Key_0, Qt::AltModifier, 300, "x = 2, y = 0", "sweep", 267, Pitch::Rises},
      {"back to the zero before", Qt::Key_0, Qt::AltModifier | Qt::ControlModifier, 200, "x = minus 2, y = 0",
       "sweep", 534, Pitch::Dips},
      {"one point on", Qt::Key_Right, Qt::AltModifier, 201, "x = minus 1.96, y = minus 0.1584", "point", 175,
       Pitch::Steady},
      {"one point back", Qt::Key_Left, Qt::AltModifier, 200, "x = minus 2, y = 0", "point", 175,
       Pitch::Steady},
      {"next maximum: none heard", Qt::Key_PageUp, Qt::AltModifier, 200, "No further maximum.", nullptr, 0,
       Pitch::None},
      {"where the two sets cross", Qt::Key_I, Qt::AltModifier, 219, "x = minus 1.24, y = minus 2.4624",
       "sweep", 101, Pitch::Falls},
      {"last point", Qt::Key_End, Qt::AltModifier, 500, "x = 10, y = 96", nullptr, 0, Pitch::None},
      {"past the end", Qt::Key_Right, Qt::AltModifier, 500, "Last point.", nullptr, 0, Pitch::None},
      {"the whole graph", Qt::Key_F5, Qt::NoModifier, 500, nullptr, "sweep", 1000, Pitch::Dips},
      {"the whole graph with ticks", Qt::Key_F6, Qt::NoModifier, 500, nullptr, "sweep", 1000, Pitch::Dips},
  };
  for (const auto& k : keys) {
    const std::size_t said = voice->utterances().size();
    const std::size_t events = output.events().size();
    const double pressedMs = output.nowMs();
    program.press(k.key, k.modifiers);
    EXPECT_EQ(child->graph()->graph()->cursorIndex(), k.cursor) << k.what;
    // The key answers at once: what it says and plays is handed over before it returns.
    std::vector<AudioOutput::Event> graphEvents;
    ASSERT_TRUE(test::waitUntil(
        [&] {
          graphEvents.clear();
          const auto all = output.events();
          for (std::size_t i = events; i < all.size(); ++i)
            if (all[i].channel == AudioChannel::Graph) graphEvents.push_back(all[i]);
          return k.sound == nullptr || !graphEvents.empty();
        },
        500))
        << k.what;
    if (k.sound) {
      ASSERT_EQ(graphEvents.size(), 1u) << k.what;
      EXPECT_EQ(graphEvents[0].label, k.sound) << k.what;
    } else {
      EXPECT_TRUE(graphEvents.empty()) << k.what;
    }
    if (k.said) {
      ASSERT_EQ(voice->utterances().size(), said + 1) << k.what;
      const auto& utterance = voice->utterances().back();
      EXPECT_EQ(utterance.text, k.said) << k.what;
      if (k.sound) {
        // The words wait the sound's share of the play time from the key, and never
        // longer than that after the sound began (which is at the audio buffer being
        // mixed, a buffer either way); how soon the sound starts is bench/'s figure.
        EXPECT_GE(utterance.startMs - pressedMs, k.delayMs - 1.0) << k.what;
        EXPECT_LE(utterance.startMs - graphEvents[0].startMs, k.delayMs + 25.0) << k.what;
      }
    } else {
      EXPECT_EQ(voice->utterances().size(), said) << k.what;
    }
    if (k.sound) {
      const double startMs = graphEvents[0].startMs;
      ASSERT_TRUE(test::waitUntil([&] { return output.nowMs() > startMs + k.delayMs + 50; }, 5000));
      // A point's tone lasts 150 ms, a sweep as long as its words wait.
      const double lengthMs = std::string(k.sound) == "point" ? 140.0 : std::min(k.delayMs, 1000.0);
      EXPECT_STREQ(name(pitchOf(output.capturedSamples(), startMs, lengthMs)), name(k.pitch)) << k.what;
    }
  }

  // Esc silences the sweep and the words waiting for it, at once.
  program.press(Qt::Key_Home, Qt::AltModifier);
  program.press(Qt::Key_0, Qt::AltModifier);
  EXPECT_TRUE(output.isActive(AudioChannel::Graph));
  const std::size_t stops = voice->stopCount();
  program.press(Qt::Key_Escape);
  EXPECT_GT(voice->stopCount(), stops);
  EXPECT_TRUE(test::waitUntil([&] { return !output.isActive(AudioChannel::Graph); }, 100));
}

TEST(PlaybackKeys, AnEmptySetSaysSoAndPlaysNothing) {
  ProgramUnderTest program([](const SettingsStore& store) { store.SetTtsOn(true); });
  ASSERT_TRUE(program.started());
  test::Heard heard;
  for (const Qt::Key key : {Qt::Key_F5, Qt::Key_F6}) {
    program.press(key);
    EXPECT_EQ(heard.take(), std::vector<std::string>{"The data set is empty."});
  }
  EXPECT_FALSE(AudioOutput::instance().isActive(AudioChannel::Graph));
}

}  // namespace
}  // namespace sonalyx::ui
