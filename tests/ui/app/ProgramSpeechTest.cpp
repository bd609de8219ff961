#include <gtest/gtest.h>

#include <QMenu>
#include <QMenuBar>
#include <optional>
#include <string>
#include <vector>

#include "core/speech/VoicingMode.h"
#include "support/CaptureScreenReader.h"
#include "ui/UiTestSupport.h"
#include "ui/app/CommandIds.h"
#include "ui/sheet/CCalcSheet.h"

namespace sonalyx::ui {
namespace {

using Heard = std::vector<std::string>;
using test::ProgramUnderTest;

void speakOn(const SettingsStore& store) {
  store.SetTtsOn(true);
}

TEST(ProgramSpeech, AnnouncesItsTabAtStartOnlyWhenSelfVoicingIsOn) {
  auto* reader = dynamic_cast<test::CaptureScreenReader*>(CDirectSS::instance().screenReader());
  ASSERT_NE(reader, nullptr);
  const struct {
    std::optional<bool> ttsOn;  // nothing: never stored, the first start
    bool screenReader;
    Heard expected;
    std::optional<bool> stored;  // nothing: still never stored
  } cases[] = {
      {true, false, {"Calculator screen."}, true},
      {false, false, {}, false},
      {std::nullopt,
       false,
       {"Calculator screen.", "Self-voicing is on; Control+Q switches it off and on again."},
       true},
      // Beside a screen reader the first start stays quiet and stores nothing.
      {std::nullopt, true, {}, std::nullopt},
  };
  for (const auto& c : cases) {
    reader->setRunning(c.screenReader);
    test::Heard heard;
    ProgramUnderTest program([&](const SettingsStore& store) {
      if (c.ttsOn) {
        store.SetTtsOn(*c.ttsOn);
      } else {
        store.backend().deleteValue("ttsOn");
      }
    });
    ASSERT_TRUE(program.started());
    QTest::qWait(400);  // the first start decides once the screen reader's status is in
    EXPECT_EQ(heard.take(), c.expected) << c.ttsOn.value_or(-1);
    EXPECT_TRUE(reader->take().empty());
    // The first start's choice is kept: the next start follows the stored switch.
    const auto stored = program.settings().backend().readValue("ttsOn");
    EXPECT_EQ(stored.has_value(), c.stored.has_value());
    EXPECT_EQ(program.settings().GetTtsOn(), c.stored.value_or(false));
    EXPECT_EQ(CDirectSS::instance().enabled(), c.stored.value_or(false));
  }
  reader->setRunning(false);
}

TEST(ProgramSpeech, SaysWhatTheKeyboardDoesInOrder) {
  test::Heard heard;
  ProgramUnderTest program(speakOn);
  ASSERT_TRUE(program.started());
  EXPECT_EQ(heard.take(), Heard{"Calculator screen."});
  CChildFrame* child = program.child();
  const struct {
    const char* what;
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    Heard expected;
  } steps[] = {
      {"next tab", Qt::Key_Tab, Qt::ControlModifier, {"Data 1 screen."}},
      {"previous tab", Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier, {"Calculator screen."}},
      {"into the page", Qt::Key_Tab, Qt::NoModifier, {"Display. 0"}},
      {"back to the tabs", Qt::Key_Backtab, Qt::ShiftModifier, {"Calculator screen."}},
      {"tab to the left", Qt::Key_Left, Qt::NoModifier, {"Speech screen."}},
      {"into the menus", Qt::Key_F10, Qt::NoModifier, {"File"}},
      {"an item", Qt::Key_Down, Qt::NoModifier, {"Open Data Set ..."}},
      {"up past the top", Qt::Key_Up, Qt::NoModifier, {"Exit"}},
      {"the next popup", Qt::Key_Right, Qt::NoModifier, {"Options", "Calculator"}},
      {"down", Qt::Key_Down, Qt::NoModifier, {"Evaluator"}},
      {"down", Qt::Key_Down, Qt::NoModifier, {"Data Set 1"}},
      {"down", Qt::Key_Down, Qt::NoModifier, {"Data Set 2"}},
      {"down", Qt::Key_Down, Qt::NoModifier, {"Matrices"}},
      {"the Plot submenu", Qt::Key_Down, Qt::NoModifier, {"Plot"}},
      {"into the submenu", Qt::Key_Right, Qt::NoModifier, {"Source"}},
      {"out of the submenu", Qt::Key_Escape, Qt::NoModifier, {"Plot"}},
      {"down", Qt::Key_Down, Qt::NoModifier, {"Speech"}},
      {"the Wave submenu", Qt::Key_Down, Qt::NoModifier, {"Wave"}},
      {"up", Qt::Key_Up, Qt::NoModifier, {"Speech"}},
      {"back to the bar", Qt::Key_Escape, Qt::NoModifier, {"Options"}},
      {"out of the menus", Qt::Key_Escape, Qt::NoModifier, {}},
      {"self-voicing off", Qt::Key_Q, Qt::ControlModifier, {"Self-voicing deactivated."}},
      {"silent tab change", Qt::Key_Right, Qt::NoModifier, {}},
      {"self-voicing on", Qt::Key_S, Qt::AltModifier, {"Self-voicing activated."}},
      {"smaller at the limit", Qt::Key_F7, Qt::NoModifier, {}},
      {"larger", Qt::Key_F8, Qt::NoModifier, {}},
      {"graph shown", Qt::Key_F3, Qt::NoModifier, {}},
  };
  for (const auto& step : steps) {
    if (QApplication::activePopupWidget()) {
      QTest::keyClick(QApplication::activePopupWidget(), step.key, step.modifiers);
      QApplication::processEvents();
    } else {
      program.press(step.key, step.modifiers);
    }
    // The menu bar's own key handling may come back through the event loop.
    QTest::qWait(10);
    EXPECT_EQ(heard.take(), step.expected) << step.what;
  }
  EXPECT_TRUE(program.settings().GetTtsOn());
  EXPECT_EQ(child->sheet()->currentIndex(), CCalcSheet::kCalculator);
}

TEST(ProgramSpeech, SpeaksDisabledSizeItemsAsGrayedAndTogglesAutoReturnAloud) {
  test::Heard heard;
  ProgramUnderTest program(speakOn);
  ASSERT_TRUE(program.started());
  for (int i = 0; i < 7; ++i) program.press(Qt::Key_F8);
  heard.mark();
  // Options: the last two items are "&Larger" (disabled now) and "&Smaller".
  QMenu* options = program.commands().popup(1);
  program.mainFrame()->menuBar()->setActiveAction(options->menuAction());
  QTest::qWait(10);
  QTest::keyClick(options, Qt::Key_Up);
  QTest::keyClick(options, Qt::Key_Up);
  QTest::keyClick(options, Qt::Key_Escape);
  QTest::keyClick(QApplication::activePopupWidget() ? QApplication::activePopupWidget() : program.mainFrame(),
                  Qt::Key_Escape);
  QTest::qWait(10);
  EXPECT_EQ(heard.take(), (Heard{"Options", "Smaller\tF7", "Larger\tF8. Grayed.", "Options"}));
  const struct {
    bool expectedSetting;
    const char* said;
  } toggles[] = {{true, "Auto return: enabled."}, {false, "Auto return: disabled."}};
  for (const auto& toggle : toggles) {
    program.commands().action(cmd::kAutoReturn)->trigger();
    EXPECT_EQ(program.settings().GetIsAutoReturn(), toggle.expectedSetting);
    EXPECT_EQ(heard.take(), Heard{toggle.said});
  }
  // Restoring the defaults says nothing.
  program.commands().action(cmd::kRestoreDefaults)->trigger();
  EXPECT_EQ(heard.take(), Heard{});
}

TEST(ProgramSpeech, LeavesEchoesToARunningScreenReaderAndQueuesContentThere) {
  test::Heard heard;
  ProgramUnderTest program(speakOn);
  ASSERT_TRUE(program.started());
  auto* reader = dynamic_cast<test::CaptureScreenReader*>(CDirectSS::instance().screenReader());
  ASSERT_NE(reader, nullptr);
  heard.mark();
  const Heard echoes{"Data 1 screen.", "Calculator screen."};
  const Heard content{"Self-voicing deactivated.", "Self-voicing activated."};
  const struct {
    VoicingMode mode;
    bool running;
    bool queueAccepts;
    bool echoSaid;       // by the program's own voice
    bool contentSaid;    // by the program's own voice
    bool contentQueued;  // handed to the screen reader
  } cases[] = {
      {VoicingMode::Automatic, false, true, true, true, false},
      {VoicingMode::Automatic, true, true, false, false, true},
      {VoicingMode::Everything, true, true, true, true, false},
      {VoicingMode::OnlyContent, false, true, false, true, false},
      {VoicingMode::OnlyContent, true, true, false, false, true},
      // A queue that cannot take the text leaves it to the program's own voice.
      {VoicingMode::Automatic, true, false, false, true, true},
  };
  for (const auto& c : cases) {
    // Both are looked at when the program speaks, as they change while it runs.
    program.settings().SetTtsMode(static_cast<std::uint32_t>(c.mode));
    reader->setRunning(c.running);
    reader->setAccepts(c.queueAccepts);
    program.press(Qt::Key_Tab, Qt::ControlModifier);
    program.press(Qt::Key_Tab, Qt::ControlModifier | Qt::ShiftModifier);
    program.press(Qt::Key_Q, Qt::ControlModifier);
    program.press(Qt::Key_Q, Qt::ControlModifier);
    Heard own = c.echoSaid ? echoes : Heard{};
    if (c.contentSaid) own.insert(own.end(), content.begin(), content.end());
    const auto row = static_cast<int>(&c - cases);
    EXPECT_EQ(heard.take(), own) << "row " << row;
    EXPECT_EQ(reader->take(), c.contentQueued ? content : Heard{}) << "row " << row;
  }
  reader->setRunning(false);
  reader->setAccepts(true);
}

}  // namespace
}  // namespace sonalyx::ui
