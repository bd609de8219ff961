#include <gtest/gtest.h>

#include <QClipboard>
#include <QFileDialog>
#include <QLabel>
#include <QMessageBox>
#include <QTimer>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

#include "support/TempFolder.h"
#include "ui/UiTestSupport.h"
#include "ui/app/CommandIds.h"
#include "ui/controls/CTTSEdit.h"
#include "ui/controls/CTTSListBox.h"
#include "ui/controls/CTTSTabCtrl.h"
#include "ui/pages/CDataPage.h"
#include "ui/pages/CDataSetModel.h"
#include "ui/pages/CDataTableView.h"
#include "ui/sheet/CCalcSheet.h"

namespace sonalyx::ui {
namespace {

using Heard = std::vector<std::string>;
using test::ProgramUnderTest;

// Answers the next modal window of type T (a file dialog, a message box) as the
// user would.
template <typename T>
void whenModal(const std::function<void(T*)>& answer) {
  auto* timer = new QTimer();
  timer->setInterval(10);
  QObject::connect(timer, &QTimer::timeout, [timer, answer] {
    auto* modal = qobject_cast<T*>(QApplication::activeModalWidget());
    if (!modal || !modal->isVisible()) return;
    timer->stop();
    timer->deleteLater();
    answer(modal);
  });
  timer->start();
}

// Chooses `path` in the next file dialog.
void chooseFile(const std::string& path) {
  whenModal<QFileDialog>([path](QFileDialog* dialog) {
    dialog->selectFile(QString::fromStdString(path));
    static_cast<QDialog*>(dialog)->accept();
  });
}

// Reads the next message box and closes it.
void readMessage(QString& text) {
  whenModal<QMessageBox>([&text](QMessageBox* box) {
    text = box->windowTitle() + QStringLiteral(": ") + box->text();
    box->accept();
  });
}

// The last thing heard: what a command ends with, after the echoes of the keys.
std::string lastHeard(test::Heard& heard) {
  const Heard all = heard.take();
  return all.empty() ? std::string() : all.back();
}

// The Data 1 page as a keyboard user meets it, step by step in one program.
TEST(DataPage, ByKeyboardFromExpressionToFittedCurve) {
  ProgramUnderTest program([](const SettingsStore& store) { store.SetTtsOn(true); });
  ASSERT_TRUE(program.started());
  CDataPage* page = program.child()->dataPage(DataSet::Data1);
  auto& sets = program.app().dataSets();
  test::Heard heard;
  // Each key to whatever has the focus then: the first key typed in a cell opens its editor.
  const auto type = [&](const char* text) {
    for (const char* c = text; *c; ++c)
      QTest::keyClicks(QApplication::focusWidget(), QString(QLatin1Char(*c)));
  };
  const auto settle = [&] { ASSERT_TRUE(test::waitUntil([&] { return !page->busy(); })); };
  const struct Step {
    const char* what;
    std::function<void()> act;
    std::string said;  // the last thing heard
    std::size_t points;
  } steps[] = {
      {"to the page", [&] { program.press(Qt::Key_Tab, Qt::ControlModifier); }, "Data 1 screen.", 0},
      {"into f(x)", [&] { program.press(Qt::Key_Tab); }, "f open paren x close paren  = ", 0},
      {"an unknown name",
       [&] {
         type("x^2-y");
         program.press(Qt::Key_Return);
         settle();
       },
       "Invalid entry. Unknown name y.", 0},
      {"the refusal can be read again", [&] { program.press(Qt::Key_Tab); },
       "Label. Invalid entry. Unknown name y.", 0},
      {"corrected",
       [&] {
         program.press(Qt::Key_Tab, Qt::ShiftModifier);
         program.press(Qt::Key_End);
         program.press(Qt::Key_Backspace);
         type("4");
         program.press(Qt::Key_Return);
         settle();
       },
       "Data set 1 is ready: 501 points.", 501},
      {"past the coordinates", [&] { program.press(Qt::Key_Tab); }, "Rectangle Checked.", 501},
      {"into the table", [&] { program.press(Qt::Key_Tab); },
       "Data set 1 table. Row 1: x = minus 10, f(x) = 96, d(f(x))/dx = minus 20, \xE2\x88\xAB"
       "f(x)dx = 0, Trend 0",
       501},
      {"the next row", [&] { program.press(Qt::Key_Down); },
       "Row 2: x = minus 9.96, f(x) = 95.2016, d(f(x))/dx = minus 19.92, \xE2\x88\xAB"
       "f(x)dx = 3.82402, Trend +",
       501},
      {"the next cell", [&] { program.press(Qt::Key_Right); }, "f(x) = 95.2016", 501},
      {"a typed value",
       [&] {
         type("pi");
         program.press(Qt::Key_Return);
       },
       "Row 2: x = minus 9.96, f(x) = 3.14159, d(f(x))/dx = minus 19.92, \xE2\x88\xAB"
       "f(x)dx = 3.82402, Trend +",
       501},
      {"a typed value that is no number",
       [&] {
         type("2+");
         program.press(Qt::Key_Return);
         QTest::qWait(20);
       },
       "Invalid entry. The expression ends too early.", 501},
      {"put back as it was",
       [&] {
         program.press(Qt::Key_Up);
         program.press(Qt::Key_Down);
         type("(-9.96)^2-4");
         program.press(Qt::Key_Return);
       },
       "Row 2: x = minus 9.96, f(x) = 95.2016, d(f(x))/dx = minus 19.92, \xE2\x88\xAB"
       "f(x)dx = 3.82402, Trend +",
       501},
      {"Esc gives up an edit",
       [&] {
         type("7");
         program.press(Qt::Key_Escape);
       },
       "Row 2: x = minus 9.96, f(x) = 95.2016, d(f(x))/dx = minus 19.92, \xE2\x88\xAB"
       "f(x)dx = 3.82402, Trend +",
       501},
      {"to the statistics", [&] { program.press(Qt::Key_Tab); }, "Evaluate Statistics", 501},
      {"the statistics", [&] { program.press(Qt::Key_Space); }, "Number of points: 501", 501},
      {"the next line", [&] { program.press(Qt::Key_Down); }, "Blank line", 501},
      {"back to the models", [&] { program.press(Qt::Key_Tab, Qt::ShiftModifier); },
       "Mode: Basic Statistical Information", 501},
      {"the quadratic",
       [&] {
         program.press(Qt::Key_Down);
         program.press(Qt::Key_Down);
       },
       "Mode: Quadratic: y = ax^2 + bx + c", 501},
      {"its lines",
       [&] {
         program.press(Qt::Key_Tab);
         for (int i = 0; i < 7; ++i) program.press(Qt::Key_Down);
       },
       "c:  minus 4", 501},
      {"plot the fit",
       [&] {
         program.press(Qt::Key_Tab);
         program.press(Qt::Key_Space);
         ASSERT_TRUE(test::waitUntil([&] { return sets[1].count() == 501; }));
       },
       "Data set 2 holds the fitted curve: 501 points.", 501},
  };
  for (const Step& step : steps) {
    heard.mark();
    step.act();
    EXPECT_EQ(lastHeard(heard), step.said) << step.what;
    EXPECT_EQ(sets[0].count(), step.points) << step.what;
  }
  EXPECT_EQ(page->expressionEdit()->text(), "user") << "a typed cell makes the set the user's";
  EXPECT_EQ(page->messageLine()->text(), "") << "the good edit after it took the refusal away";
  EXPECT_TRUE(AudioOutput::instance().isActive(AudioChannel::Graph)) << "the fitted curve plays";
  EXPECT_NEAR(sets[1].at(250).y, -4.0, 1e-9);
}

// The "&File" menu's data-set commands, the wave export and the Data page's undo,
// each with what the user hears and what becomes of data set 1. Every failure is
// told and changes nothing.
TEST(DataPage, FilesClipboardAndWaveTellWhatHappened) {
  ProgramUnderTest program([](const SettingsStore& store) {
    store.SetTtsOn(true);
    store.SetExpr1("x^2-4");
  });
  ASSERT_TRUE(program.started());
  test::TempFolder folder;
  const std::string saved = (folder.path() / "parabola").string();
  const std::string damaged = (folder.path() / "damaged.set").string();
  std::ofstream(damaged) << "1 2\nthree four\n";
  auto& sets = program.app().dataSets();
  CDataPage* page = program.child()->dataPage(DataSet::Data1);
  QString box;
  test::Heard heard;
  const auto run = [&](int id) { program.commands().action(id)->trigger(); };
  const struct Step {
    const char* what;
    std::function<void()> act;
    std::string said;     // the last thing the program said, if anything
    const char* message;  // the message box, if one is expected
    std::size_t points;
  } steps[] = {
      {"statistics of nothing",
       [&] {
         readMessage(box);
         page->ToggleStatistics();
       },
       "", "Empty Data Set: No data plotted -- nothing to calculate.", 0},
      {"a wave of nothing",
       [&] {
         readMessage(box);
         run(cmd::kWriteWaveFile);
       },
       "", "Wave File Error: No data set found - nothing to save.", 0},
      {"F4",
       [&] {
         run(cmd::kEvaluateExpression1);
         ASSERT_TRUE(test::waitUntil([&] { return !page->busy() && sets[0].count() == 501; }));
       },
       "Data set 1 is ready: 501 points.", nullptr, 501},
      {"save",
       [&] {
         chooseFile(saved);
         run(cmd::kFileSave);
       },
       "Saved 501 points as parabola.set.", nullptr, 501},
      {"save where nothing can be written",
       [&] {
         chooseFile((folder.path() / "missing" / "parabola.set").string());
         readMessage(box);
         run(cmd::kFileSave);
       },
       "", "File Save Error: All or part of the path is invalid.", 501},
      {"copy",
       [&] {
         run(cmd::kCopyData);
         EXPECT_TRUE(QGuiApplication::clipboard()->text().startsWith("-10\t96\r\n-9.96\t95.2016\r\n"));
       },
       "501 points copied to the clipboard.", nullptr, 501},
      {"paste what is no table",
       [&] {
         QGuiApplication::clipboard()->setText("hello");
         run(cmd::kPasteData);
       },
       "The clipboard does not hold a table of points. Line 1 does not hold two numbers.", nullptr, 501},
      {"paste a table",
       [&] {
         QGuiApplication::clipboard()->setText("1\t2\r\n3,4\r\n5 6\r\n");
         run(cmd::kPasteData);
       },
       "Data set 1: 3 points pasted. Ctrl+Z brings back the previous set.", nullptr, 3},
      {"Ctrl+Z from the tabs",
       [&] {
         QApplication::setActiveWindow(program.mainFrame());
         program.child()->sheet()->tabControl()->setFocus();
         program.press(Qt::Key_Z, Qt::ControlModifier);
       },
       "Data set 1 is back as it was: 501 points.", nullptr, 501},
      {"open a damaged file",
       [&] {
         chooseFile(damaged);
         readMessage(box);
         run(cmd::kFileOpen);
       },
       "", "File Open Error: Line 2 does not hold two numbers.", 501},
      {"open the saved file",
       [&] {
         chooseFile(saved + ".set");
         run(cmd::kFileOpen);
       },
       "Data set 1: 501 points read from parabola.set.", nullptr, 501},
      {"the wave",
       [&] {
         chooseFile(saved);
         run(cmd::kWriteWaveFile);
       },
       "Wave file written: " + saved + ".wav.", nullptr, 501},
      {"restore defaults", [&] { run(cmd::kRestoreDefaults); }, "", nullptr, 0},
  };
  for (const Step& step : steps) {
    heard.mark();
    box.clear();
    step.act();
    const Heard said = heard.take();
    if (!step.said.empty()) {
      ASSERT_FALSE(said.empty()) << step.what;
      EXPECT_EQ(said.back(), step.said) << step.what;
    }
    EXPECT_EQ(box.toStdString(), step.message ? step.message : "") << step.what;
    EXPECT_EQ(sets[0].count(), step.points) << step.what;
  }
  EXPECT_EQ(page->expressionEdit()->text(), "clear");
  std::ifstream wave(saved + ".wav", std::ios::binary);
  std::string riff(4, '\0');
  wave.read(riff.data(), 4);
  EXPECT_EQ(riff, "RIFF");
}

}  // namespace
}  // namespace sonalyx::ui
