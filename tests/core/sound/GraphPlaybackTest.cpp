#include "core/sound/GraphPlayback.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "core/settings/RecordingBackend.h"
#include "support/CurveData.h"

namespace sonalyx {
namespace {

using Command = PlaybackCommand;

struct Expected {
  std::int32_t cursor;
  std::optional<SweepRequest> sweep;
  std::optional<int> tone;
  double delayMs;
  std::string speech;
};

// Each case presses keys from no cursor and checks what the last one does.
TEST(GraphPlayback, EachKeyPlaysAndSaysWhatTheCursorReaches) {
  // Set 1: y = 0, 2, 1, 3, -1 at x 0..4; set 2: y = 3 - x; the graph's y range
  // -2..2.5 leaves the point with y 3 unheard.
  std::array<DataSet, 4> slots;
  slots[0] = test::curve({0, 2, 1, 3, -1});
  slots[1] = test::curve({3, 2, 1, 0, -1});
  const auto setup = [](const SettingsStore& s) {
    s.SetBool("autoSpeak", true);
    s.SetGraphRange(2.5, -10, -2, 10);
  };
  const struct {
    const char* what;
    std::function<void(const SettingsStore&)> change;
    std::vector<Command> keys;
    Expected expected;
  } cases[] = {
      {"play", {}, {Command::PlayWithTicks}, {-1, SweepRequest{false, true, false, false, 0, 0}, {}, 0, ""}},
      {"a step sounds the point's position among the heard ones",
       {},
       {Command::LastPoint, Command::PreviousPoint},
       {2, {}, 2, 175, "x = 2, y = 1"}},
      {"a step passes over the unheard point",
       {},
       {Command::FirstPoint, Command::NextPoint, Command::NextPoint},
       {2, {}, 2, 175, "x = 2, y = 1"}},
      {"the end of the set", {}, {Command::LastPoint, Command::NextPoint}, {4, {}, {}, 0, "Last point."}},
      {"a maximum sweeps between heard positions",
       {},
       {Command::NextMaximum},
       {1, SweepRequest{false, false, false, true, 0, 1}, {}, 1000, "x = 1, y = 2"}},
      {"the unheard maximum is passed over",
       {},
       {Command::NextMaximum, Command::NextMaximum},
       {1, {}, {}, 0, "No further maximum."}},
      {"the last point is a minimum",
       {},
       {Command::NextMinimum, Command::NextMinimum, Command::NextMinimum},
       {4, SweepRequest{false, false, false, true, 2, 1}, {}, 1000, "x = 4, y = -1"}},
      {"a zero",
       {},
       {Command::FirstPoint, Command::NextZero},
       {4, SweepRequest{false, false, false, true, 0, 3}, {}, 3000, "x = 4, y = -1"}},
      {"back to a zero",
       {},
       {Command::LastPoint, Command::PreviousZero},
       {0, SweepRequest{false, false, true, true, 3, 3}, {}, 3000, "x = 0, y = 0"}},
      {"the crossing of the two sets",
       {},
       {Command::NextCurveCrossing},
       {1, SweepRequest{false, false, false, true, 0, 1}, {}, 1000, "x = 1, y = 2"}},
      {"set 2 is played and stepped when it is the source",
       [](const SettingsStore& s) { s.SetInt("setType", 1); },
       {Command::FirstPoint, Command::NextPoint},
       {1, {}, 0, 175, "x = 1, y = 2"}},
      {"the derivative plotted is spoken",
       [](const SettingsStore& s) {
         s.SetInt("plotType", 1);
         s.SetBool("autoScaleY", true);
       },
       {Command::FirstPoint},
       {0, {}, 0, 175, "x = 0, y = 0.5"}},
      {"without autoSpeak the step is only heard",
       [](const SettingsStore& s) { s.SetBool("autoSpeak", false); },
       {Command::FirstPoint},
       {0, {}, 0, 175, ""}},
  };
  for (const auto& c : cases) {
    auto backend = std::make_shared<test::RecordingBackend>();
    const SettingsStore store(backend);
    setup(store);
    if (c.change) c.change(store);
    std::array<DataSet, 4> sets = slots;
    for (std::size_t i = 0; i < 5; ++i) sets[0].setDerivative(i, 0.5 * static_cast<double>(i) + 0.5);
    GraphPlayback playback(sets, store);
    std::int32_t cursor = -1;
    PlaybackAction action;
    for (const Command key : c.keys) {
      action = playback.run(key, cursor);
      cursor = action.cursor;
    }
    EXPECT_EQ(action.cursor, c.expected.cursor) << c.what;
    EXPECT_EQ(action.sweep.has_value(), c.expected.sweep.has_value()) << c.what;
    if (action.sweep && c.expected.sweep) {
      const SweepRequest& a = *action.sweep;
      const SweepRequest& e = *c.expected.sweep;
      EXPECT_EQ(std::tie(a.ticks, a.reverse, a.segment, a.start, a.count),
                std::tie(e.ticks, e.reverse, e.segment, e.start, e.count))
          << c.what;
    }
    EXPECT_EQ(action.pointTone, c.expected.tone) << c.what;
    EXPECT_EQ(action.speechDelayMs, c.expected.delayMs) << c.what;
    EXPECT_EQ(action.speech, c.expected.speech) << c.what;
  }
}

TEST(GraphPlayback, AnEmptySetSaysSoAndEscapeSilences) {
  std::array<DataSet, 4> slots;
  auto backend = std::make_shared<test::RecordingBackend>();
  const SettingsStore store(backend);
  GraphPlayback playback(slots, store);
  EXPECT_EQ(playback.run(Command::Play, -1).speech, "The data set is empty.");
  EXPECT_FALSE(playback.run(Command::Play, -1).sweep.has_value());
  EXPECT_TRUE(playback.run(Command::Stop, 3).resetEngine);
}

}  // namespace
}  // namespace sonalyx
