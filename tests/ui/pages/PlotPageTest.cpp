#include <gtest/gtest.h>

#include <QCheckBox>
#include <QRadioButton>
#include <functional>
#include <string>

#include "core/utility/NumberFormat.h"
#include "ui/app/CommandIds.h"
#include "ui/pages/CSettingsPage.h"
#include "ui/pages/SettingsPageSupport.h"

namespace sonalyx::ui {
namespace {

using test::control;

std::string number(double value) {
  return formatNumber(value, "%.10g");
}

struct PlotProgram {
  test::ProgramUnderTest program{[](const SettingsStore& store) { store.SetTtsOn(true); }};
  CCalcSheet* sheet = nullptr;
  CCalcPage* page = nullptr;
  int redraws = 0;

  PlotProgram() {
    sheet = program.child()->sheet();
    QObject::connect(sheet, &CCalcSheet::redrawGraphRequested, [this] { ++redraws; });
    program.commands().action(cmd::kPlotSource)->trigger();
    page = sheet->page(CCalcSheet::kPlot);
  }
};

// Every kind of control on the page, worked by keys: each stores its setting at
// once, asks the graph to follow when the picture changes, and is read back when
// the page is entered again.
TEST(PlotPage, EveryControlStoresItsSettingAndTheGraphFollows) {
  PlotProgram plot;
  ASSERT_TRUE(plot.program.started());
  ASSERT_EQ(plot.sheet->currentIndex(), CCalcSheet::kPlot);
  const SettingsStore& store = plot.program.settings();
  struct Row {
    const char* control;
    const char* typed;  // nullptr: press Space
    std::function<std::string()> stored;
    const char* expected;
    bool redraws;
  };
  const Row rows[] = {
      {"Sum (1+2)", nullptr, [&] { return std::to_string(store.GetSetType()); }, "2", true},
      {"Difference (1 minus 2)", nullptr, [&] { return std::to_string(store.GetSetType()); }, "3", true},
      {"Difference (1 minus 2)", nullptr, [&] { return std::to_string(store.GetSetType()); }, "3", false},
      {"Derivative", nullptr, [&] { return std::to_string(store.GetPlotType()); }, "1", true},
      {"Integral", nullptr, [&] { return std::to_string(store.GetPlotType()); }, "2", true},
      {"Start", "-3", [&] { return number(store.GetFxX0()); }, "-3", false},
      {"Finish", "4.5", [&] { return number(store.GetFxX1()); }, "4.5", false},
      {"Number of points", "41", [&] { return std::to_string(store.GetFxNumPts()); }, "41", false},
      {"X Auto-Scale", nullptr, [&] { return std::to_string(store.GetAutoScaleX()); }, "1", true},
      {"Y max", "25", [&] { return number(store.GetYMax()); }, "25", true},
      {"Y min", "-5", [&] { return number(store.GetYMin()); }, "-5", true},
      {"Line", nullptr, [&] { return std::to_string(store.GetShowLine()); }, "1", true},
      {"Show Y-axis", nullptr, [&] { return std::to_string(store.GetShowYAxis()); }, "0", true},
      {"Grid", nullptr, [&] { return std::to_string(store.GetFrameType()); }, "2", true},
      {"No ticks or grid.", nullptr, [&] { return std::to_string(store.GetFrameType()); }, "0", true},
  };
  for (const Row& row : rows) {
    QWidget* widget = control(plot.page, row.control);
    ASSERT_NE(widget, nullptr) << row.control;
    const int before = plot.redraws;
    if (row.typed)
      test::typeOver(qobject_cast<QLineEdit*>(widget), row.typed);
    else
      test::press(widget, Qt::Key_Space);
    EXPECT_EQ(row.stored(), row.expected) << row.control;
    EXPECT_EQ(plot.redraws > before, row.redraws) << row.control;
  }
  // An arrow moves the choice inside its group and says it once; Tab goes on to
  // the next group's choice.
  control(plot.page, "Integral")->setFocus(Qt::TabFocusReason);
  test::Heard heard;
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
  EXPECT_EQ(store.GetPlotType(), 1u);
  EXPECT_EQ(heard.take(), std::vector<std::string>{"Derivative Checked."});
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Up);
  QApplication::processEvents();
  EXPECT_EQ(store.GetPlotType(), 2u);
  test::press(control(plot.page, "Difference (1 minus 2)"), Qt::Key_Tab);
  EXPECT_EQ(heard.take(), (std::vector<std::string>{"Integral Checked.", "Difference (1 minus 2) Checked.",
                                                    "Integral Checked."}));
  // Auto-scaling x switched the x range off; y stays editable.
  EXPECT_FALSE(control(plot.page, "X min")->isEnabled());
  EXPECT_TRUE(control(plot.page, "Y min")->isEnabled());
  // Away and back: the page shows what is stored.
  ASSERT_TRUE(test::leavePage(plot.program, CCalcSheet::kPlot));
  store.SetFxX1(7);
  store.SetAutoScaleX(false);
  plot.sheet->SetActivePage(CCalcSheet::kPlot);
  EXPECT_EQ(control<QLineEdit>(plot.page, "Finish")->text(), "7");
  EXPECT_TRUE(control(plot.page, "X min")->isEnabled());
  EXPECT_TRUE(control<QRadioButton>(plot.page, "Integral")->isChecked());
  EXPECT_FALSE(control<QCheckBox>(plot.page, "Show Y-axis")->isChecked());
}

// Leaving the page with a field that cannot be stored says why, keeps the page and
// puts the focus on the field; the first bad field in the page's order is named.
TEST(PlotPage, LeavingWithABadFieldSaysWhyAndKeepsTheFocus) {
  const struct {
    std::vector<std::pair<const char*, const char*>> typed;
    const char* autoScale;  // a box pressed first, or nullptr
    const char* focus;
    const char* said;  // nullptr: the page is left
  } rows[] = {
      {{{"Start", "5"}, {"Finish", "5"}},
       nullptr,
       "Start",
       "Invalid function domain. Start must be less than Finish."},
      {{{"Finish", "x"}}, nullptr, "Finish", "Finish must be a number."},
      {{{"Number of points", "1000002"}},
       nullptr,
       "Number of points",
       "The number of points must be from 2 to 1000001."},
      {{{"X min", "1"}, {"X max", "1"}},
       nullptr,
       "X min",
       "Invalid graph X range. X min must be less than X max."},
      {{{"X min", "1"}, {"X max", "1"}, {"Y min", "2"}, {"Y max", "0"}},
       nullptr,
       "X min",
       "Invalid graph X range. X min must be less than X max."},
      {{{"X min", "1"}, {"X max", "1"}, {"Y min", "2"}, {"Y max", "0"}},
       "X Auto-Scale",
       "Y min",
       "Invalid graph Y range. Y min must be less than Y max."},
      {{{"Y min", "2"}, {"Y max", "0"}}, "Y Auto-Scale", nullptr, nullptr},
  };
  for (const auto& row : rows) {
    PlotProgram plot;
    ASSERT_TRUE(plot.program.started());
    for (const auto& [field, text] : row.typed) test::typeOver(control<QLineEdit>(plot.page, field), text);
    if (row.autoScale) test::press(control(plot.page, row.autoScale), Qt::Key_Space);
    test::Heard heard;
    const bool left = test::leavePage(plot.program, CCalcSheet::kPlot);
    const std::vector<std::string> said = heard.take();
    auto* page = static_cast<CSettingsPage*>(plot.page);
    if (!row.said) {
      EXPECT_TRUE(left);
      continue;
    }
    EXPECT_FALSE(left) << row.said;
    EXPECT_EQ(QApplication::focusWidget(), control(plot.page, row.focus)) << row.said;
    ASSERT_FALSE(said.empty()) << row.said;
    EXPECT_EQ(said.back(), row.said);
    EXPECT_EQ(page->refusalText().toStdString(), row.said);
  }
}

}  // namespace
}  // namespace sonalyx::ui
