#include <gtest/gtest.h>

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <functional>
#include <string>

#include "ui/app/CommandIds.h"
#include "ui/pages/CSettingsPage.h"
#include "ui/pages/SettingsPageSupport.h"

namespace sonalyx::ui {
namespace {

using test::control;

struct WaveProgram {
  test::ProgramUnderTest program{[](const SettingsStore& store) { store.SetTtsOn(true); }};
  CCalcSheet* sheet = nullptr;
  CCalcPage* page = nullptr;

  WaveProgram() {
    sheet = program.child()->sheet();
    program.commands().action(cmd::kWaveVolume)->trigger();
    page = sheet->page(CCalcSheet::kWave);
  }
};

// Every kind of control worked by keys: each stores its setting at once and says
// its new value; the slider captions and the play-time group follow.
TEST(WavePage, EveryControlStoresItsSettingAsItChanges) {
  WaveProgram wave;
  ASSERT_TRUE(wave.program.started());
  ASSERT_EQ(wave.sheet->currentIndex(), CCalcSheet::kWave);
  const SettingsStore& store = wave.program.settings();
  struct Row {
    const char* control;
    Qt::Key key;        // pressed when nothing is typed
    const char* typed;  // typed over the edit's text
    std::function<std::string()> stored;
    const char* expected;
    const char* said;  // the last words heard, or nullptr
  };
  const auto number = [](std::uint32_t value) { return std::to_string(value); };
  const Row rows[] = {
      {"Data set volume:", Qt::Key_Right, nullptr, [&] { return number(store.GetWaveVolume()); }, "51",
       "Data set volume: 51 percent."},
      {"Data set volume:", Qt::Key_PageUp, nullptr, [&] { return number(store.GetWaveVolume()); }, "61",
       "Data set volume: 61 percent."},
      {"Tick Marks", Qt::Key_Space, nullptr, [&] { return number(store.GetPlayTicks()); }, "1",
       "Tick Marks Checked."},
      {"Tick volume:", Qt::Key_Left, nullptr, [&] { return number(store.GetTickVolume()); }, "39",
       "Tick volume: 39 percent."},
      {"Number of vertical tick marks", Qt::Key_unknown, "12", [&] { return number(store.GetNumTicks()); },
       "12", nullptr},
      {"Y Threshold Level", Qt::Key_Space, nullptr, [&] { return number(store.GetYThreshOn()); }, "1",
       nullptr},
      {"Y threshold level", Qt::Key_unknown, "-2.5", [&] { return std::to_string(store.GetYThresh()); },
       "-2.500000", nullptr},
      {"Play time:", Qt::Key_PageUp, nullptr, [&] { return number(store.GetPlayTime()); }, "14",
       "Play time: 14 seconds."},
      {"Play time:", Qt::Key_End, nullptr, [&] { return number(store.GetPlayTime()); }, "600",
       "Play time: 600 seconds."},
      {"Play time:", Qt::Key_Right, nullptr, [&] { return number(store.GetPlayTime()); }, "600",
       "The play time must be from 1 to 600 seconds."},
      {"Play time:", Qt::Key_Home, nullptr, [&] { return number(store.GetPlayTime()); }, "1",
       "Play time: 1 seconds."},
      {"Stereo output", Qt::Key_Space, nullptr, [&] { return number(store.GetIsMono()); }, "0",
       "Stereo output Checked."},
      {"Frequency minimum", Qt::Key_Right, nullptr, [&] { return number(store.GetMinFreq()); }, "70",
       "Frequency minimum 70 hertz."},
      {"Frequency maximum", Qt::Key_PageDown, nullptr, [&] { return number(store.GetMaxFreq()); }, "1000",
       "Frequency maximum 1000 hertz."},
      {"Speak X and Y values at each step", Qt::Key_Space, nullptr,
       [&] { return number(store.GetAutoSpeak()); }, "1", nullptr},
  };
  test::Heard heard;
  for (const Row& row : rows) {
    QWidget* widget = control(wave.page, row.control);
    ASSERT_NE(widget, nullptr) << row.control;
    heard.mark();
    if (row.typed)
      test::typeOver(qobject_cast<QLineEdit*>(widget), row.typed);
    else
      test::press(widget, row.key);
    EXPECT_EQ(row.stored(), row.expected) << row.control;
    const std::vector<std::string> said = heard.take();
    if (row.said) {
      ASSERT_FALSE(said.empty()) << row.control;
      EXPECT_EQ(said.back(), row.said) << row.control;
    }
  }
  const QStringList titles = [&] {
    QStringList all;
    for (const QGroupBox* group : wave.page->findChildren<QGroupBox*>()) all << group->title();
    return all;
  }();
  EXPECT_TRUE(titles.contains("Play Time (1 sec.)")) << titles.join(", ").toStdString();
  const QStringList captions = [&] {
    QStringList all;
    for (const QLabel* label : wave.page->findChildren<QLabel*>()) all << label->text();
    return all;
  }();
  for (const char* caption : {"Data set (61):", "Tick volume (39):", "Minimum (70):", "Maximum (1000):"})
    EXPECT_TRUE(captions.contains(caption)) << caption;
}

// Reached by the menu from inside another page, a control says the stored value,
// never the one it held before the page read its settings.
TEST(WavePage, TheMenuBringsTheFocusToAControlThatSaysTheStoredValue) {
  test::ProgramUnderTest program{[](const SettingsStore& store) {
    store.SetTtsOn(true);
    store.SetWaveVolume(42);
  }};
  ASSERT_TRUE(program.started());
  CCalcSheet* sheet = program.child()->sheet();
  QWidget* key = sheet->page(CCalcSheet::kCalculator)->findChildren<QAbstractButton*>().front();
  key->setFocus(Qt::TabFocusReason);
  test::Heard heard;
  program.commands().action(cmd::kWaveVolume)->trigger();
  QApplication::processEvents();
  const auto said = heard.take();
  ASSERT_FALSE(said.empty());
  EXPECT_EQ(said.back(), "Data set volume: 42 percent.");
  for (const std::string& text : said) EXPECT_EQ(text.find(" 0 percent"), std::string::npos) << text;
}

// With Tick Marks off the tick controls are off and their entry is never refused;
// with them on, a count outside 5 to 15 keeps the page and says the range.
TEST(WavePage, RefusesATickCountOutsideItsRangeAndAThresholdThatIsNoNumber) {
  const struct {
    const char* box;  // pressed first, or nullptr
    const char* field;
    const char* typed;
    const char* said;  // nullptr: the page is left
    std::uint32_t ticks;
  } rows[] = {
      {"Tick Marks", "Number of vertical tick marks", "16", "The number of tick marks must be from 5 to 15.",
       10},
      {"Tick Marks", "Number of vertical tick marks", "4", "The number of tick marks must be from 5 to 15.",
       10},
      {"Tick Marks", "Number of vertical tick marks", "15", nullptr, 15},
      {nullptr, nullptr, nullptr, nullptr, 10},
      {"Y Threshold Level", "Y threshold level", "low", "Y Threshold Level must be a number.", 10},
  };
  for (const auto& row : rows) {
    WaveProgram wave;
    ASSERT_TRUE(wave.program.started());
    if (!row.box) {
      // Off, the tick count cannot be reached.
      EXPECT_FALSE(control(wave.page, "Number of vertical tick marks")->isEnabled());
      continue;
    }
    test::press(control(wave.page, row.box), Qt::Key_Space);
    test::typeOver(control<QLineEdit>(wave.page, row.field), row.typed);
    test::Heard heard;
    const bool left = test::leavePage(wave.program, CCalcSheet::kWave);
    EXPECT_EQ(wave.program.settings().GetNumTicks(), row.ticks) << row.typed;
    if (!row.said) {
      EXPECT_TRUE(left) << row.typed;
      continue;
    }
    EXPECT_FALSE(left) << row.typed;
    EXPECT_EQ(QApplication::focusWidget(), control(wave.page, row.field)) << row.typed;
    const std::vector<std::string> said = heard.take();
    ASSERT_FALSE(said.empty()) << row.typed;
    EXPECT_EQ(said.back(), row.said);
  }
}

}  // namespace
}  // namespace sonalyx::ui
