#include <gtest/gtest.h>

#include <QAccessible>
#include <QAccessibleInterface>
#include <QAction>
#include <QClipboard>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTimer>
#include <QUrl>

#include "ui/UiTestSupport.h"
#include "ui/app/CAboutDlg.h"
#include "ui/app/CommandIds.h"
#include "ui/app/HelpFiles.h"
#include "ui/controls/CHyperLink.h"
#include "ui/controls/CTTSEdit.h"
#include "ui/controls/CTTSTabCtrl.h"
#include "ui/sheet/CCalcSheet.h"

namespace sonalyx::ui {
namespace {

using test::ProgramUnderTest;

TEST(Program, StartsWithOneChildOnTheCalculatorTabAndPublishesItsVersion) {
  ProgramUnderTest program;
  ASSERT_TRUE(program.started());
  EXPECT_EQ(program.mainFrame()->mdiArea()->subWindowList().size(), 1);
  EXPECT_EQ(program.child()->size(), QSize(320, 480));
  EXPECT_EQ(program.child()->sheet()->currentIndex(), CCalcSheet::kCalculator);
  EXPECT_EQ(program.child()->sheet()->currentPage(), program.child()->sheet()->page(CCalcSheet::kCalculator));
  EXPECT_EQ(QApplication::focusWidget(), program.child()->sheet()->tabControl());
  const QList<QAction*> top = program.mainFrame()->menuBar()->actions();
  ASSERT_EQ(top.size(), 4);
  EXPECT_EQ(top[3]->text(), "&Help");
  const VersionNumbers version = parseProductVersion(SONALYX_PRODUCT_VERSION);
  EXPECT_EQ(program.settings().GetInt("Major", 99), version.major);
  EXPECT_EQ(program.settings().GetInt("Rev", 99), version.rev);
  EXPECT_EQ(program.settings().GetText("appName", ""), "sonalyx");
  // A fresh user: sfxOn is read (and so stored) at start.
  EXPECT_NE(test::readBytes(program.settingsFile().file()).find("\"sfxOn\"=dword:00000000"),
            std::string::npos);
}

TEST(Program, SizeStepsMoveInStepsAndStopAtTheirLimits) {
  ProgramUnderTest program;
  ASSERT_TRUE(program.started());
  CChildFrame* child = program.child();
  const struct {
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    int level;
    QSize size;
    bool largerEnabled, smallerEnabled;
  } steps[] = {
      {Qt::Key_F7, Qt::NoModifier, 0, {320, 480}, true, false},  // at the lower limit
      {Qt::Key_F8, Qt::NoModifier, 1, {360, 540}, true, true},
      {Qt::Key_F8, Qt::NoModifier, 2, {400, 600}, true, true},
      {Qt::Key_F3, Qt::NoModifier, 2, {1142, 600}, true, true},  // graph shown: 1/0.35 wider
      {Qt::Key_F8, Qt::NoModifier, 3, {1242, 660}, true, true},  // steps of 100 now
      {Qt::Key_F8, Qt::NoModifier, 4, {1342, 720}, true, true},
      {Qt::Key_F8, Qt::NoModifier, 5, {1442, 780}, true, true},
      {Qt::Key_F8, Qt::NoModifier, 6, {1542, 840}, false, true},
      {Qt::Key_F8, Qt::NoModifier, 6, {1542, 840}, false, true},  // at the upper limit
      {Qt::Key_F3, Qt::ControlModifier, 6, {539, 840}, false, true},
      {Qt::Key_F7, Qt::NoModifier, 5, {499, 780}, true, true},
  };
  for (const auto& step : steps) {
    program.press(step.key, step.modifiers);
    EXPECT_EQ(child->sizeLevel(), step.level) << step.size.width();
    EXPECT_EQ(child->size(), step.size) << step.level;
    EXPECT_EQ(program.commands().action(cmd::kLarger)->isEnabled(), step.largerEnabled) << step.level;
    EXPECT_EQ(program.commands().action(cmd::kSmaller)->isEnabled(), step.smallerEnabled) << step.level;
    // The panel keeps its page in front through every change.
    EXPECT_EQ(child->sheet()->currentIndex(), CCalcSheet::kCalculator);
  }
}

TEST(Program, TheGraphTakesItsShareAndTheMenuItemFollows) {
  ProgramUnderTest program;
  ASSERT_TRUE(program.started());
  CChildFrame* child = program.child();
  QMenu* graphMenu = program.commands().graphPopup();
  QAction* show = program.commands().action(cmd::kShowGraph);
  QAction* hide = program.commands().action(cmd::kHideGraph);
  const struct {
    Qt::KeyboardModifiers modifiers;
    bool shown;
    int width;
    QAction* item;
    const char* itemText;
  } steps[] = {
      {Qt::ControlModifier, false, 320, show, "&Show Graph\tF3"},  // hiding a hidden graph: nothing
      {Qt::NoModifier, true, 914, hide, "&Hide Graph\tCtrl+F3"},
      {Qt::NoModifier, true, 914, hide, "&Hide Graph\tCtrl+F3"},  // F3 again: nothing
      {Qt::ControlModifier, false, 319, show, "&Show Graph\tF3"},
  };
  for (const auto& step : steps) {
    program.press(Qt::Key_F3, step.modifiers);
    EXPECT_EQ(child->graphShown(), step.shown);
    EXPECT_EQ(child->width(), step.width);
    EXPECT_TRUE(graphMenu->actions().contains(step.item));
    EXPECT_FALSE(graphMenu->actions().contains(step.item == show ? hide : show));
    EXPECT_EQ(step.item->text(), step.itemText);
    const QWidget* client = child->widget();
    EXPECT_EQ(child->graph()->isVisible(), step.shown);
    const int graphWidth = step.shown ? static_cast<int>(client->width() * 0.65) : 0;
    EXPECT_EQ(child->sheet()->geometry(),
              QRect(graphWidth, 0, client->width() - graphWidth, client->height()));
    if (step.shown) {
      EXPECT_EQ(child->graph()->geometry(), QRect(0, 0, graphWidth, client->height()));
    }
  }
}

TEST(Program, TheFrameKeysWorkFromInsideAnEditWhileTabAndArrowsStayInThePanel) {
  ProgramUnderTest program;
  ASSERT_TRUE(program.started());
  CCalcPage* page = program.child()->sheet()->page(CCalcSheet::kCalculator);
  auto* edit = new CTTSEdit(page);
  edit->setSpokenLabel("Entry");
  edit->show();
  edit->setText("12");
  edit->setFocus(Qt::TabFocusReason);
  QApplication::processEvents();
  ASSERT_EQ(QApplication::focusWidget(), edit);
  program.press(Qt::Key_F8);
  EXPECT_EQ(program.child()->sizeLevel(), 1);
  edit->setCursorPosition(2);
  program.press(Qt::Key_Left);
  EXPECT_EQ(edit->cursorPosition(), 1);
  EXPECT_EQ(program.child()->sizeLevel(), 1);
  program.press(Qt::Key_Tab);
  EXPECT_TRUE(program.child()->sheet()->isAncestorOf(QApplication::focusWidget()));
  // Ctrl+C has no frame command yet: the edit keeps its copy.
  edit->setFocus();
  edit->selectAll();
  program.press(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "12");
}

TEST(Program, CommandRulesFollowTheDataSetsAndHandlersDecideTheRest) {
  ProgramUnderTest program;
  ASSERT_TRUE(program.started());
  auto& sets = program.app().dataSets();
  auto fill = [](DataSet& set, int count) {
    set.clear();
    for (int i = 0; i < count; ++i) set.append(DataPoint{static_cast<double>(i), 1.0});
  };
  const struct {
    int data1, data2;
    std::uint32_t setType;
    bool save, intersection, zeros;
  } cases[] = {
      {0, 0, 0, false, false, false}, {5, 6, 0, true, false, true},  {6, 6, 0, true, true, true},
      {1, 1, 0, true, false, false},  {0, 3, 1, true, false, false}, {3, 0, 1, false, false, true},
  };
  for (const auto& c : cases) {
    fill(sets[0], c.data1);
    fill(sets[1], c.data2);
    program.settings().SetSetType(c.setType);
    const CChildFrame* child = program.child();
    EXPECT_EQ(child->RuleAllows(cmd::kFileSave), c.save) << c.data1 << "/" << c.data2;
    EXPECT_EQ(child->RuleAllows(cmd::kCopyData), c.save);
    EXPECT_EQ(child->RuleAllows(cmd::kFindIntersection), c.intersection) << c.data1 << "/" << c.data2;
    EXPECT_EQ(child->RuleAllows(cmd::kFindZeros), c.zeros) << c.data1;
  }
  QGuiApplication::clipboard()->setText("1\t2");
  EXPECT_TRUE(program.child()->RuleAllows(cmd::kPasteData));
  QGuiApplication::clipboard()->clear();
  EXPECT_FALSE(program.child()->RuleAllows(cmd::kPasteData));
  program.child()->UpdateCommandUI();
  for (const int id : {cmd::kLoadConstants, cmd::kSaveConstants})
    EXPECT_FALSE(program.commands().action(id)->isEnabled()) << id;
  for (const int id : {cmd::kRestoreDefaults, cmd::kSelfVoicing, cmd::kShowGraph, cmd::kUserManual,
                       cmd::kAppAbout, cmd::kFileOpen, cmd::kPlayDataSet})
    EXPECT_TRUE(program.commands().action(id)->isEnabled()) << id;
}

TEST(Program, OptionsCommandsBringTheirPageForward) {
  ProgramUnderTest program;
  ASSERT_TRUE(program.started());
  const struct {
    int id;
    int page;
  } cases[] = {
      {cmd::kEvaluator, CCalcSheet::kEvaluator}, {cmd::kDataSet1, CCalcSheet::kData1},
      {cmd::kDataSet2, CCalcSheet::kData2},      {cmd::kMatrices, CCalcSheet::kMatrix},
      {cmd::kSpeech, CCalcSheet::kSpeech},       {cmd::kPlotAxes, CCalcSheet::kPlot},
      {cmd::kWaveType, CCalcSheet::kWave},       {cmd::kCalculator, CCalcSheet::kCalculator},
  };
  for (const auto& c : cases) {
    program.commands().action(c.id)->trigger();
    EXPECT_EQ(program.child()->sheet()->currentIndex(), c.page) << c.id;
    EXPECT_EQ(program.child()->sheet()->currentPage(), program.child()->sheet()->page(c.page));
  }
  // The group commands also take the focus onto the page.
  program.commands().action(cmd::kPlotRange)->trigger();
  EXPECT_TRUE(program.child()->sheet()->page(CCalcSheet::kPlot)->isAncestorOf(QApplication::focusWidget()));
}

TEST(Program, RestoringDefaultsEmptiesTheSettingsAndTheTwoDataSets) {
  ProgramUnderTest program([](const SettingsStore& store) {
    store.SetYMax(5);
    store.SetExpr1("x^2");
  });
  ASSERT_TRUE(program.started());
  for (auto& set : program.app().dataSets()) set.append(DataPoint{1.0, 2.0});
  program.commands().action(cmd::kRestoreDefaults)->trigger();
  const std::string stored = test::readBytes(program.settingsFile().file());
  EXPECT_EQ(stored.find("\"expr1\""), std::string::npos);
  EXPECT_EQ(stored.find("\"yMax\"=\"5\""), std::string::npos);
  EXPECT_DOUBLE_EQ(program.settings().GetYMax(), 10);
  // The sum and the difference go with the sets they are made of.
  for (const DataSet& set : program.app().dataSets()) EXPECT_EQ(set.count(), 0u);
}

TEST(Program, AutoReturnTogglesTheSettingAndTheCheckMark) {
  ProgramUnderTest program;
  ASSERT_TRUE(program.started());
  QAction* item = program.commands().action(cmd::kAutoReturn);
  for (const bool expected : {true, false, true}) {
    item->trigger();
    EXPECT_EQ(program.settings().GetIsAutoReturn(), expected);
    EXPECT_EQ(item->isChecked(), expected);
  }
}

// Records the addresses the program asks the desktop to open.
class UrlRecorder : public QObject {
  Q_OBJECT
 public slots:
  void open(const QUrl& url) { urls << url; }

 public:
  QList<QUrl> urls;
};

TEST(Program, HelpCommandsOpenTheirPagesBesideTheProgram) {
  ProgramUnderTest program;
  ASSERT_TRUE(program.started());
  UrlRecorder recorder;
  QDesktopServices::setUrlHandler("file", &recorder, "open");
  const struct {
    int id;
    const char* page;
  } cases[] = {
      {cmd::kUserManual, "index.html"},
      {cmd::kCalculatorHotkeys, "keys-calculator.html"},
      {cmd::kGraphingHotkeys, "keys-graph.html"},
      {cmd::kNavigationalHotkeys, "keys-navigation.html"},
      {cmd::kTutorialIndex, "index.html"},
      {cmd::kTutorialCalculator, "calculator.html"},
      {cmd::kTutorialEvaluator, "evaluator.html"},
      {cmd::kTutorialMatrix, "matrix.html"},
      {cmd::kTutorialSpeech, "speech.html"},
      {cmd::kTutorialGraphing, "graph.html"},
      {cmd::kTutorialPrinting, "printing.html"},
      {cmd::kOnlineHelp, "online.html"},
  };
  for (const auto& c : cases) {
    recorder.urls.clear();
    program.commands().action(c.id)->trigger();
    ASSERT_EQ(recorder.urls.size(), 1) << c.page;
    // English: the only language the help has a folder for so far.
    EXPECT_EQ(recorder.urls[0],
              QUrl::fromLocalFile(QCoreApplication::applicationDirPath() + "/help/en/" + c.page));
    // Written by hand, or made by the build from the program's tables.
    EXPECT_TRUE(QFileInfo::exists(QStringLiteral(SONALYX_HELP_DIR "/en/") + c.page) ||
                QFileInfo::exists(QStringLiteral(SONALYX_BUILT_HELP_DIR "/en/") + c.page))
        << c.page;
  }
  program.press(Qt::Key_F1);
  EXPECT_EQ(recorder.urls.size(), 2);
  QDesktopServices::unsetUrlHandler("file");
}

TEST(Program, TheAboutBoxShowsTheProductVersionAndLinks) {
  ProgramUnderTest program([](const SettingsStore& store) { store.SetTtsOn(true); });
  ASSERT_TRUE(program.started());
  QStringList texts;
  QString web, mail;
  bool focusedOnProduct = false;
  test::Heard heard;
  std::vector<std::string> said;
  QTimer::singleShot(0, [&] {
    auto* about = qobject_cast<CAboutDlg*>(QApplication::activeModalWidget());
    ASSERT_NE(about, nullptr);
    QTest::qWait(20);
    focusedOnProduct = QApplication::focusWidget() == about->productLine();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    said = heard.take();
    for (const QLabel* label : about->findChildren<QLabel*>()) texts << label->text();
    web = about->webLink()->linkTarget();
    mail = about->mailLink()->linkTarget();
    about->okButton()->click();
  });
  program.commands().action(cmd::kAppAbout)->trigger();
  EXPECT_TRUE(focusedOnProduct);
  // It speaks as it opens; Tab goes round its lines to the OK button.
  EXPECT_EQ(said, (std::vector<std::string>{"Label. Sonalyx", "Label. with Sonitrace Technology",
                                            "Label. Sonalyx", "Button. OK"}));
  EXPECT_TRUE(texts.contains("with Sonitrace Technology"));
  EXPECT_TRUE(texts.contains(QStringLiteral("Version ") + SONALYX_PRODUCT_VERSION));
  EXPECT_TRUE(texts.contains("Licence: GNU General Public License, version 3 or later."));
  const QString libraries = texts.filter("Libraries used: ").value(0);
  for (const char* library : {"Qt 6", "eSpeak NG (GNU General Public License, version 3 or later)", "SDL 2",
                              "FluidSynth", "libsndfile", "Eigen (Mozilla Public License, version 2.0)"})
    EXPECT_TRUE(libraries.contains(library)) << library;
  EXPECT_TRUE(
      texts.contains("This program supplied as is.  No implied or expressed warranty exists for the "
                     "performance and function of this software."));
  EXPECT_TRUE(web.startsWith("http"));
  EXPECT_TRUE(mail.startsWith("mailto:"));
}

TEST(Program, EveryControlTheKeyboardReachesHasAnAccessibleName) {
  ProgramUnderTest program;
  ASSERT_TRUE(program.started());
  program.press(Qt::Key_F3);  // the graph too
  QStringList unnamed;
  int focusable = 0;
  for (QWidget* widget : program.mainFrame()->findChildren<QWidget*>()) {
    // A widget with a focus proxy is never reached itself: the proxy takes its focus.
    if (widget->focusPolicy() == Qt::NoFocus || widget->focusProxy() || !widget->isEnabled()) continue;
    ++focusable;
    QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(widget);
    if (!iface || iface->text(QAccessible::Name).trimmed().isEmpty())
      unnamed << QString::fromLatin1(widget->metaObject()->className()) + " " + widget->objectName();
  }
  EXPECT_GE(focusable, 9);  // the tabs and a text on each page at least
  EXPECT_TRUE(unnamed.isEmpty()) << unnamed.join(", ").toStdString();
}

// What a screen reader meets: one focused object, the panel as a page-tab list
// whose tabs hold their pages, menu items named without their keys.
TEST(Program, ShowsAScreenReaderTheTreeItExpects) {
  ProgramUnderTest program;
  ASSERT_TRUE(program.started());
  CCalcSheet* sheet = program.child()->sheet();
  QAccessibleInterface* tabs = QAccessible::queryAccessibleInterface(sheet->tabControl());
  ASSERT_NE(tabs, nullptr);
  const auto item = [&](int id) {
    return QAccessible::queryAccessibleInterface(program.commands().action(id));
  };
  const struct {
    const char* what;
    QAccessibleInterface* iface;
    QAccessible::Role role;
    const char* name;
    const char* keys;
  } rows[] = {
      {"the panel", tabs, QAccessible::PageTabList, "Control panel", ""},
      {"a tab", tabs->child(CCalcSheet::kData1), QAccessible::PageTab, "Data 1", ""},
      {"an item with a key", item(cmd::kLarger), QAccessible::MenuItem, "Larger", "F8"},
      {"an item with two keys", item(cmd::kSelfVoicing), QAccessible::MenuItem, "Self-Voicing",
       "Ctrl+Q, Alt+S"},
      {"an item without", item(cmd::kAutoReturn), QAccessible::MenuItem, "AutoReturn", ""},
  };
  for (const auto& row : rows) {
    ASSERT_NE(row.iface, nullptr) << row.what;
    EXPECT_EQ(row.iface->role(), row.role) << row.what;
    EXPECT_EQ(row.iface->text(QAccessible::Name), row.name) << row.what;
    EXPECT_EQ(row.iface->text(QAccessible::Accelerator), row.keys) << row.what;
  }
  ASSERT_EQ(tabs->childCount(), CCalcSheet::kPageCount);
  for (int index = 0; index < CCalcSheet::kPageCount; ++index) {
    QAccessibleInterface* page = tabs->child(index)->child(0);
    ASSERT_NE(page, nullptr) << index;
    EXPECT_EQ(page->object(), sheet->page(index)) << index;
    EXPECT_EQ(page->parent(), tabs->child(index)) << index;
  }
  // Exactly one object claims the focus, however the focus is passed on inside.
  QStringList focused;
  QList<QAccessibleInterface*> pending{QAccessible::queryAccessibleInterface(program.mainFrame())};
  while (!pending.isEmpty()) {
    QAccessibleInterface* next = pending.takeFirst();
    if (next->state().focused) focused << next->text(QAccessible::Name);
    for (int index = 0; index < next->childCount(); ++index)
      if (QAccessibleInterface* below = next->child(index)) pending << below;
  }
  EXPECT_EQ(focused, QStringList{"Calculator"});
  // The child frame around the panel is no stop for Tab: it goes round the page,
  // from the tabs back to the page's last control and on to the tabs again.
  program.press(Qt::Key_Tab);
  EXPECT_TRUE(sheet->page(CCalcSheet::kCalculator)->isAncestorOf(QApplication::focusWidget()));
  program.press(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(QApplication::focusWidget(), sheet->tabControl());
  program.press(Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_TRUE(sheet->page(CCalcSheet::kCalculator)->isAncestorOf(QApplication::focusWidget()));
  program.press(Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), sheet->tabControl());
}

}  // namespace
}  // namespace sonalyx::ui

#include "ProgramTest.moc"
