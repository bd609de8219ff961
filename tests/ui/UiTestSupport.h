#pragma once

#include <stdlib.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QTest>
#include <QWidget>
#include <algorithm>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "core/settings/SettingsStore.h"
#include "platform/sound/AudioOutput.h"
#include "platform/speech/CDirectSS.h"
#include "platform/speech/CaptureSpeechEngine.h"
#include "support/TempFolder.h"
#include "ui/app/CChildFrame.h"
#include "ui/app/CGraphCalcApp.h"
#include "ui/app/CMainFrame.h"
#include "ui/app/CommandTable.h"
#include "ui/app/VersionPublisher.h"
#include "ui/graph/CPlotWnd.h"

// Readable QStrings in failure messages.
inline void PrintTo(const QString& text, std::ostream* out) {
  *out << '"' << text.toStdString() << '"';
}

namespace sonalyx::test {

// Sets an environment variable for the life of the object, then puts back what was there.
class ScopedEnv {
 public:
  ScopedEnv(const char* name, const std::string& value) : m_name(name) {
    if (const char* old = ::getenv(name)) m_old = old;
    ::setenv(name, value.c_str(), 1);
  }
  ~ScopedEnv() {
    if (m_old)
      ::setenv(m_name, m_old->c_str(), 1);
    else
      ::unsetenv(m_name);
  }
  ScopedEnv(const ScopedEnv&) = delete;
  ScopedEnv& operator=(const ScopedEnv&) = delete;

 private:
  const char* m_name;
  std::optional<std::string> m_old;
};

// Lets the event loop run until `done` holds or `timeoutMs` have passed; whether it holds.
inline bool waitUntil(const std::function<bool()>& done, int timeoutMs = 5000) {
  QElapsedTimer timer;
  timer.start();
  while (!done()) {
    if (timer.elapsed() > timeoutMs) return false;
    QTest::qWait(5);
  }
  return true;
}

// What the program said and which earcons it played, in the order the user hears
// them: each utterance as its text, each earcon as "earcon N".
class Heard {
 public:
  Heard() { mark(); }

  // Forgets everything heard so far.
  void mark() {
    const CaptureSpeechEngine* engine = capture();
    m_utterances = engine ? engine->utterances().size() : 0;
    m_events = AudioOutput::instance().events().size();
  }

  // Everything heard since the last mark, then marks.
  std::vector<std::string> take() {
    struct Entry {
      double startMs;
      int order;  // an earcon before the speech that starts with it
      std::string text;
    };
    std::vector<Entry> entries;
    if (const CaptureSpeechEngine* engine = capture()) {
      const auto& said = engine->utterances();
      for (std::size_t i = m_utterances; i < said.size(); ++i)
        entries.push_back({said[i].startMs, 1, said[i].text});
    }
    const auto events = AudioOutput::instance().events();
    for (std::size_t i = m_events; i < events.size(); ++i)
      if (events[i].channel == AudioChannel::Effect)
        entries.push_back({events[i].startMs, 0, events[i].label});
    std::stable_sort(entries.begin(), entries.end(), [](const Entry& a, const Entry& b) {
      return a.startMs < b.startMs || (a.startMs == b.startMs && a.order < b.order);
    });
    mark();
    std::vector<std::string> texts;
    for (const Entry& entry : entries) texts.push_back(entry.text);
    return texts;
  }

  static const CaptureSpeechEngine* capture() {
    return dynamic_cast<const CaptureSpeechEngine*>(CDirectSS::instance().engine());
  }

 private:
  std::size_t m_utterances = 0;
  std::size_t m_events = 0;
};

// A settings file of its own in a fresh folder, removed afterwards.
class TempSettings {
 public:
  TempSettings() : m_env("SONALYX_SETTINGS", file().string()) {}

  std::filesystem::path file() const { return m_folder / "Settings.reg"; }
  SettingsStore store() const { return SettingsStore::openDefault(); }

 private:
  TempFolder m_folder;
  ScopedEnv m_env;
};

// The real program, started as at the command line, in a temporary settings file
// that `prepare` may fill first.
class ProgramUnderTest {
 public:
  explicit ProgramUnderTest(const std::function<void(const SettingsStore&)>& prepare = {},
                            ui::ProgramOptions options = {}) {
    // Not a first start unless a test asks for one: its announcement would lead
    // every test's speech.
    m_settings.store().SetTtsOn(false);
    if (prepare) prepare(m_settings.store());
    m_app = std::make_unique<ui::CGraphCalcApp>(std::move(options));
    m_started = m_app->InitInstance();
    if (m_started) {
      QApplication::setActiveWindow(mainFrame());
      m_exposed = QTest::qWaitForWindowExposed(mainFrame());
      QTest::qWait(20);
    }
  }
  ~ProgramUnderTest() {
    if (m_app) m_app->ExitInstance();
  }

  bool started() const { return m_started && m_exposed; }
  ui::CGraphCalcApp& app() const { return *m_app; }
  ui::CMainFrame* mainFrame() const { return m_app->mainFrame(); }
  ui::CChildFrame* child() const { return mainFrame()->child(); }
  ui::CCommandTable& commands() const { return *m_app->commands(); }
  const SettingsStore& settings() const { return m_app->settings(); }
  const TempSettings& settingsFile() const { return m_settings; }

  // A key as the user types it: to the widget that has the focus.
  void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const {
    QWidget* target = QApplication::focusWidget();
    if (!target) target = mainFrame();
    QTest::keyClick(target, key, modifiers);
    QApplication::processEvents();
  }

 private:
  TempSettings m_settings;
  std::unique_ptr<ui::CGraphCalcApp> m_app;
  bool m_started = false;
  bool m_exposed = false;
};

}  // namespace sonalyx::test
