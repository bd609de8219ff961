#include <gtest/gtest.h>

#include <QCheckBox>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <memory>
#include <string>
#include <vector>

#include "ui/UiTestSupport.h"
#include "ui/app/CAccessibilityHooks.h"
#include "ui/controls/CHyperLink.h"
#include "ui/controls/CTTSButton.h"
#include "ui/controls/CTTSComboBox.h"
#include "ui/controls/CTTSEdit.h"
#include "ui/controls/CTTSListBox.h"
#include "ui/controls/CTTSMsgBox.h"
#include "ui/controls/CTTSSliderCtrl.h"
#include "ui/controls/CTTSStatic.h"
#include "ui/sheet/CCalcSheet.h"

namespace sonalyx::ui {
namespace {

using Heard = std::vector<std::string>;

// The program with its voice and earcons on, and a window of the program's own
// for the controls under test (on a page they would meet that page's keys).
class Controls : public ::testing::Test {
 protected:
  Controls()
      : m_program([](const SettingsStore& store) {
          store.SetTtsOn(true);
          store.SetSfxOn(true);
          store.SetNumDec(3);
        }) {}

  void SetUp() override {
    ASSERT_TRUE(m_program.started());
    m_host = std::make_unique<QWidget>();
    CAccessibilityHooks::markSelfVoiced(m_host.get());
    m_host->resize(320, 240);
    m_host->show();
    QApplication::setActiveWindow(m_host.get());
    ASSERT_TRUE(QTest::qWaitForWindowActive(m_host.get()));
    m_page = m_host.get();
    m_heard.mark();
  }

  template <class Widget, class... Args>
  Widget* add(Args&&... args) {
    auto* widget = new Widget(std::forward<Args>(args)..., m_page);
    widget->show();
    return widget;
  }

  // What was heard since the last look. The output starts an earcon at its next
  // buffer, some milliseconds after it was asked for.
  Heard heard() {
    QTest::qWait(60);
    return m_heard.take();
  }

  test::ProgramUnderTest m_program;
  std::unique_ptr<QWidget> m_host;
  QWidget* m_page = nullptr;
  test::Heard m_heard;
};

TEST_F(Controls, ButtonsSpeakOnTabAndGiveTheirPressFeedback) {
  enum Kind { Push, Check, Radio };
  enum Act { TabIn, BacktabIn, MouseIn, Click };
  const struct {
    Kind kind;
    bool announce, toggleSound, pressSound, checked;
    const char* label;
    Act act;
    Heard expected;
  } cases[] = {
      {Push, true, false, false, false, "", TabIn, {"Button. Print"}},
      {Push, false, false, false, false, "Print the graph", BacktabIn, {"Print the graph"}},
      {Push, true, false, false, false, "", MouseIn, {}},
      {Push, true, false, true, false, "", Click, {"earcon 4", "Button. Print"}},
      {Push, true, false, false, false, "", Click, {}},  // no feedback asked for
      {Check,
       true,
       true,
       false,
       false,
       "Show X-Axis",
       Click,
       {"earcon 2", "Check box. Show X-Axis Checked."}},
      {Check, false, true, false, true, "Show X-Axis", Click, {"earcon 3", "Show X-Axis Unchecked."}},
      {Check, true, false, false, true, "", TabIn, {"Check box. Print Checked."}},
      {Radio, true, false, false, false, "Degrees", TabIn, {}},  // unchecked: silent
      {Radio, true, false, false, true, "Degrees", TabIn, {"Radio button. Degrees Checked."}},
      {Radio, false, true, false, false, "Degrees", Click, {"earcon 2", "Degrees Checked."}},
  };
  for (const auto& c : cases) {
    QAbstractButton* button = nullptr;
    if (c.kind == Push) button = add<QPushButton>(QStringLiteral("&Print"));
    if (c.kind == Check) button = add<QCheckBox>(QStringLiteral("&Print"));
    if (c.kind == Radio) button = add<QRadioButton>(QStringLiteral("&Print"));
    button->setChecked(c.checked);
    auto* voice = new CTTSButton(button);
    voice->setSpokenLabel(c.label);
    voice->setAnnounceType(c.announce);
    voice->setToggleSound(c.toggleSound);
    voice->setPressSound(c.pressSound);
    heard();
    switch (c.act) {
      case TabIn:
        button->setFocus(Qt::TabFocusReason);
        break;
      case BacktabIn:
        button->setFocus(Qt::BacktabFocusReason);
        break;
      case MouseIn:
        button->setFocus(Qt::MouseFocusReason);
        break;
      case Click:
        QTest::mouseClick(button, Qt::LeftButton, {}, QPoint(6, button->height() / 2));
        break;
    }
    EXPECT_EQ(heard(), c.expected) << c.kind << " " << c.label << " " << c.act;
    if (c.act != Click) {
      EXPECT_EQ(button->accessibleDescription().toStdString(), c.expected.empty() ? "" : c.expected.back());
    }
    delete button;
  }
}

TEST_F(Controls, EditsEchoKeysAndSayTheirTextOnFocus) {
  const struct {
    const char* label;
    const char* text;
    int cursor;
    Qt::Key key;  // Qt::Key_unknown: the focus arrives
    bool roundNumber;
    Heard expected;
  } cases[] = {
      {"", "", 0, Qt::Key_Backspace, false, {"Backspace. "}},
      {"", "2*3", 3, Qt::Key_Backspace, false, {"Backspace. 3"}},
      {"", "2*3", 0, Qt::Key_Right, false, {" times "}},
      {"", "2*3", 2, Qt::Key_Right, false, {}},  // at the last character
      {"", "2*3", 2, Qt::Key_Left, false, {" times "}},
      {"", "2*3", 0, Qt::Key_Left, false, {"2"}},  // not below the start
      {"", "2", 1, Qt::Key_Plus, false, {" plus "}},
      {"", "2", 1, Qt::Key_7, false, {"7"}},
      {"", "2+2", 3, Qt::Key_Return, false, {}},
      {"Result: ", "3.14159-1", 0, Qt::Key_unknown, true, {"Result: 3.142 minus 1"}},
      {"Expression ", "x^2", 0, Qt::Key_unknown, false, {"Expression x to the power of 2"}},
  };
  for (const auto& c : cases) {
    auto* edit = add<CTTSEdit>();
    edit->setSpokenLabel(c.label);
    edit->setRoundNumber(c.roundNumber);
    edit->setText(c.text);
    if (c.key != Qt::Key_unknown) {
      edit->setFocus(Qt::MouseFocusReason);
      edit->setCursorPosition(c.cursor);
      heard();
      QTest::keyClick(edit, c.key);
    } else {
      heard();
      edit->setFocus(Qt::TabFocusReason);
    }
    EXPECT_EQ(heard(), c.expected) << c.text << " " << c.key;
    delete edit;
  }
}

TEST_F(Controls, ListsCombosSlidersAndTextsSayTheirContents) {
  auto* combo = add<CTTSComboBox>();
  combo->setSpokenLabel("Voice");
  auto* list = add<CTTSListBox>();
  list->addItems({"2*3", "4/5", "x-1"});
  list->setSpeakSelection(true);
  auto* slider = add<CTTSSliderCtrl>(Qt::Horizontal);
  slider->setRange(0, 100);
  slider->setValue(50);
  slider->setSpokenLabel("Rate");
  slider->setSpokenUnit("percent.");
  auto* label = add<CTTSStatic>(QStringLiteral("Data 1"));
  heard();

  combo->setFocus(Qt::TabFocusReason);
  EXPECT_EQ(heard(), Heard{"Voice"});  // nothing selected
  combo->addItems({"Sam", "Mary"});
  combo->setCurrentIndex(0);
  EXPECT_EQ(heard(), Heard{});  // the program's own choice is silent
  QTest::keyClick(combo, Qt::Key_Down);
  EXPECT_EQ(heard(), (Heard{"earcon 2", "Voice Mary"}));
  // An item may be said in other words than it shows.
  combo->setItemData(0, QStringLiteral("Samantha"), Qt::AccessibleTextRole);
  QTest::keyClick(combo, Qt::Key_Up);
  EXPECT_EQ(heard(), (Heard{"earcon 2", "Voice Samantha"}));

  list->setFocus(Qt::TabFocusReason);
  EXPECT_EQ(heard(), Heard{"2 times 3"});
  EXPECT_EQ(list->currentRow(), 0);
  QTest::keyClick(list, Qt::Key_Down);
  EXPECT_EQ(heard(), Heard{"4 divide 5"});
  list->setSpeakSelection(false);
  QTest::keyClick(list, Qt::Key_Down);
  EXPECT_EQ(heard(), Heard{});

  slider->setFocus(Qt::TabFocusReason);
  EXPECT_EQ(heard(), Heard{"Rate 50 percent."});
  EXPECT_EQ(slider->accessibleName(), "Rate");

  label->setFocus(Qt::MouseFocusReason);
  EXPECT_EQ(heard(), Heard{"Label. Data 1"});
  label->setSpokenLabel("First data set");
  label->Speak(SpeechKind::Echo);
  EXPECT_EQ(heard(), Heard{"Label. First data set"});
}

TEST_F(Controls, MessageBoxesSpeakTheirMessage) {
  const struct {
    bool linkMode;
    bool leftAlign;
    const char* message;
  } cases[] = {{false, false, "No data set found - nothing to save."}, {true, true, "www.quillmont.example"}};
  for (const auto& c : cases) {
    CTTSMsgBox box(m_program.mainFrame());
    box.setTitle("File Save Error");
    box.setMessage(c.message);
    box.setLinkTarget("https://www.quillmont.example/");
    box.setLinkMode(c.linkMode);
    box.setLeftAlign(c.leftAlign);
    Heard said;
    QRect okGeometry;
    bool isLink = false;
    Qt::Alignment alignment;
    QTimer::singleShot(0, [&] {
      QTest::qWait(20);
      said = heard();
      okGeometry = box.okButton()->geometry();
      isLink = qobject_cast<CHyperLink*>(box.messageControl()) != nullptr;
      alignment = box.messageControl()->alignment();
      box.okButton()->click();
    });
    box.exec();
    EXPECT_EQ(said, Heard{std::string("Label. ") + c.message});
    EXPECT_EQ(okGeometry, QRect((280 - 65) / 2, 320 - 39, 65, 30));
    EXPECT_EQ(isLink, c.linkMode);
    EXPECT_EQ(alignment.testFlag(Qt::AlignHCenter), !c.leftAlign);
    EXPECT_EQ(box.messageControl()->objectName(), "1014");
  }
}

TEST_F(Controls, DialogsThatDoNotSpeakForThemselvesAreReadByTheHooks) {
  Heard said;
  QTimer::singleShot(0, [&] {
    QTest::qWait(20);
    said = heard();
    if (QWidget* box = QApplication::activeModalWidget()) QTest::keyClick(box, Qt::Key_Escape);
  });
  QMessageBox::critical(m_program.mainFrame(), "Print Error", "No installed printers found.");
  EXPECT_EQ(said, Heard{"Print Error. No installed printers found. OK, button"});
  // Back in the program's own window the hooks are silent: the controls speak.
  EXPECT_TRUE(m_program.mainFrame()->hooks().running());
}

}  // namespace
}  // namespace sonalyx::ui
