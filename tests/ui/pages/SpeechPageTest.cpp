#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>
#include <functional>
#include <string>

#include "platform/sound/AudioOutput.h"
#include "platform/speech/CaptureSpeechEngine.h"
#include "ui/app/CommandIds.h"
#include "ui/controls/CTTSMsgBox.h"
#include "ui/controls/CTTSStatic.h"
#include "ui/pages/CSettingsPage.h"
#include "ui/pages/SettingsPageSupport.h"

namespace sonalyx::ui {
namespace {

using test::control;

// A capture voice with three voices to choose from, for the length of a test.
class ThreeVoices {
 public:
  ThreeVoices() { install({{"English (America)", "English (Great Britain)", "German"}, 0}); }
  ~ThreeVoices() { install({}); }

 private:
  static void install(CaptureSpeechEngine::Voices voices) {
    CDirectSS::instance().Create(std::make_unique<CaptureSpeechEngine>(
        [] { return AudioOutput::instance().nowMs(); }, std::move(voices)));
  }
};

struct SpeechProgram {
  ThreeVoices voices;
  test::ProgramUnderTest program{[](const SettingsStore& store) { store.SetTtsOn(true); }};
  CCalcSheet* sheet = nullptr;
  CCalcPage* page = nullptr;

  SpeechProgram() {
    sheet = program.child()->sheet();
    program.commands().action(cmd::kSpeech)->trigger();
    page = sheet->page(CCalcSheet::kSpeech);
  }
};

// Runs `inside` on the modal window the next key opens, then closes it.
void inModal(const std::function<void(QWidget*)>& inside) {
  QTimer::singleShot(0, [inside] {
    QWidget* modal = QApplication::activeModalWidget();
    ASSERT_NE(modal, nullptr);
    QTest::qWait(20);
    inside(modal);
    if (auto* dialog = qobject_cast<QDialog*>(modal); dialog && dialog->isVisible()) dialog->reject();
  });
}

// Every control worked by keys: each stores its setting, takes effect in the voice
// at once and is heard; the page shows the stored values when entered again.
TEST(SpeechPage, EveryControlStoresItsSettingAndTheVoiceFollows) {
  SpeechProgram speech;
  ASSERT_TRUE(speech.program.started());
  ASSERT_EQ(speech.sheet->currentIndex(), CCalcSheet::kSpeech);
  const SettingsStore& store = speech.program.settings();
  const auto* engine = test::Heard::capture();
  ASSERT_NE(engine, nullptr);
  const auto number = [](std::uint32_t value) { return std::to_string(value); };
  struct Row {
    const char* control;
    Qt::Key key;
    const char* typed;
    std::function<std::string()> stored;
    const char* expected;
    std::vector<std::string> said;  // the end of what is heard; empty: not checked
  };
  const Row rows[] = {
      {"Number of decimal places to voice",
       Qt::Key_unknown,
       "7",
       [&] { return number(store.GetNumDec()); },
       "7",
       {}},
      // A voice's name is said as it is written.
      {"Voices",
       Qt::Key_Down,
       nullptr,
       [&] { return store.GetVoice(); },
       "English (Great Britain)",
       {"English (Great Britain)"}},
      {"Voices", Qt::Key_Down, nullptr, [&] { return engine->currentVoice(); }, "German", {"German"}},
      {"Rate", Qt::Key_Right, nullptr, [&] { return number(store.GetRate()); }, "51", {"Rate 51 percent."}},
      {"Pitch",
       Qt::Key_PageDown,
       nullptr,
       [&] { return number(engine->get(SpeechSetting::Pitch)); },
       "40",
       {"Pitch 40 percent."}},
      {"Volume",
       Qt::Key_End,
       nullptr,
       [&] { return number(store.GetVol()); },
       "100",
       {"Volume 100 percent."}},
      {"Sound Effects",
       Qt::Key_Space,
       nullptr,
       [&] { return number(store.GetSfxOn()); },
       "1",
       {"earcon 2", "Allow sound effects: checked."}},
      {"Sound Effects",
       Qt::Key_Space,
       nullptr,
       [&] { return number(store.GetSfxOn()); },
       "0",
       {"Allow sound effects: unchecked."}},
      {"Beside a screen reader:", Qt::Key_Up, nullptr, [&] { return number(store.GetTtsMode()); }, "1", {}},
      {"Translate",
       Qt::Key_Space,
       nullptr,
       [] { return std::string(); },
       "",
       {"Translate. This button only says what it is for: Sonalyx speaks in the language of your desktop, so "
        "choose a voice of that language in the list of voices."}},
      {"Allow Self-Voicing",
       Qt::Key_Space,
       nullptr,
       [&] { return number(store.GetTtsOn()); },
       "0",
       {"Self-voicing deactivated."}},
      {"Allow Self-Voicing",
       Qt::Key_Space,
       nullptr,
       [&] { return number(store.GetTtsOn()); },
       "1",
       {"Self-voicing activated."}},
  };
  test::Heard heard;
  for (const Row& row : rows) {
    QWidget* widget = control(speech.page, row.control);
    ASSERT_NE(widget, nullptr) << row.control;
    widget->setFocus(Qt::TabFocusReason);
    heard.mark();
    if (row.typed)
      test::typeOver(qobject_cast<QLineEdit*>(widget), row.typed);
    else
      QTest::keyClick(widget, row.key);
    EXPECT_EQ(row.stored(), row.expected) << row.control;
    // An earcon reaches the output a moment after it was asked for.
    QTest::qWait(60);
    const std::vector<std::string> said = heard.take();
    if (row.said.empty()) continue;
    ASSERT_GE(said.size(), row.said.size()) << row.control;
    EXPECT_EQ(std::vector<std::string>(said.end() - static_cast<std::ptrdiff_t>(row.said.size()), said.end()),
              row.said)
        << row.control;
  }
  ASSERT_TRUE(test::leavePage(speech.program, CCalcSheet::kSpeech));
  store.SetPitch(70);
  speech.sheet->SetActivePage(CCalcSheet::kSpeech);
  EXPECT_EQ(control<QLineEdit>(speech.page, "Number of decimal places to voice")->text(), "7");
  EXPECT_EQ(control<QListWidget>(speech.page, "Voices")->currentItem()->text(), "German");
  EXPECT_EQ(control<QSlider>(speech.page, "Pitch")->value(), 70);
  EXPECT_EQ(control<QComboBox>(speech.page, "Beside a screen reader:")->currentIndex(), 1);
}

TEST(SpeechPage, RefusesDecimalPlacesOutsideTheirRange) {
  const struct {
    const char* typed;
    std::uint32_t kept;
  } rows[] = {{"16", 1}, {"-3", 5}, {"", 5}, {"2.5", 2}};
  for (const auto& row : rows) {
    const char* typed = row.typed;
    SpeechProgram speech;
    ASSERT_TRUE(speech.program.started());
    test::typeOver(control<QLineEdit>(speech.page, "Number of decimal places to voice"), typed);
    test::Heard heard;
    EXPECT_FALSE(test::leavePage(speech.program, CCalcSheet::kSpeech)) << typed;
    EXPECT_EQ(QApplication::focusWidget(), control(speech.page, "Number of decimal places to voice"))
        << typed;
    const std::vector<std::string> said = heard.take();
    ASSERT_FALSE(said.empty()) << typed;
    EXPECT_EQ(said.back(), "The number of decimal places must be from 0 to 15.");
    // What was typed on the way there and is in range is in force.
    EXPECT_EQ(speech.program.settings().GetNumDec(), row.kept) << typed;
  }
}

// The engine's buttons: About TTS tells the engine and the voice in a message box
// that speaks; Lexicon's list changes what the voice says at once; General stores
// the engine, which the environment may have chosen for this run.
TEST(SpeechPage, TheEngineButtonsTellChooseAndTeachTheVoice) {
  SpeechProgram speech;
  ASSERT_TRUE(speech.program.started());
  const SettingsStore& store = speech.program.settings();
  test::Heard heard;

  QString about;
  inModal([&](QWidget* modal) {
    if (auto* box = qobject_cast<CTTSMsgBox*>(modal)) about = box->messageControl()->text();
  });
  test::press(control(speech.page, "About TTS"), Qt::Key_Space);
  EXPECT_EQ(about, "Speech engine: Speech capture for tests. Voice: English (America).");

  inModal([](QWidget* modal) {
    QTest::keyClicks(test::control<QLineEdit>(modal, "Word:"), "Translate");
    QTest::keyClicks(test::control<QLineEdit>(modal, "Say as:"), "Translation");
    test::press(test::control(modal, "Add"), Qt::Key_Space);
    test::press(test::control(modal, "OK"), Qt::Key_Space);
  });
  test::press(control(speech.page, "Lexicon"), Qt::Key_Space);
  EXPECT_EQ(store.GetLexicon(), "Translate=Translation");
  heard.mark();
  test::press(control(speech.page, "Translate"), Qt::Key_Space);
  const std::vector<std::string> said = heard.take();
  ASSERT_FALSE(said.empty());
  EXPECT_EQ(said.back().rfind("Translation. This button only says", 0), 0u) << said.back();

  inModal([](QWidget* modal) {
    test::press(test::control(modal, "System speech service"), Qt::Key_Space);
    test::press(test::control(modal, "OK"), Qt::Key_Space);
  });
  heard.mark();
  test::press(control(speech.page, "General"), Qt::Key_Space);
  EXPECT_EQ(store.GetTtsEngine(), "system");
  ASSERT_FALSE(heard.take().empty());
  EXPECT_EQ(test::Heard::capture()->utterances().back().text,
            "SONALYX_SPEECH chooses the engine of this run; System speech service speaks from the next start "
            "without it.");
}

}  // namespace
}  // namespace sonalyx::ui
