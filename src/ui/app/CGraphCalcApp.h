#pragma once

#include <QObject>
#include <QString>
#include <array>
#include <memory>
#include <string>

#include "core/math/DataSet.h"
#include "core/settings/SettingsStore.h"
#include "ui/app/ProgramOptions.h"

namespace sonalyx {
class ScreenReader;
class SoundEffects;
}  // namespace sonalyx

namespace sonalyx::ui {

class CCommandTable;
class CMainFrame;
class CTranslationDictionary;
struct PrintSetupState;

// The program's state for the whole run and its start-up. Construct it after the
// QApplication; InitInstance then builds the windows in a fixed order. There is one
// at a time, reachable through instance().
class CGraphCalcApp : public QObject {
  Q_OBJECT
 public:
  // Opens the settings (making sure the key exists), makes the four empty data sets
  // and the print state, and initialises the dictionary in the user's language (the
  // environment's locale, or the options' language id).
  explicit CGraphCalcApp(ProgramOptions options = {});
  ~CGraphCalcApp() override;
  CGraphCalcApp(const CGraphCalcApp&) = delete;
  CGraphCalcApp& operator=(const CGraphCalcApp&) = delete;

  static CGraphCalcApp* instance();

  // Publishes the version, reads sfxOn, creates the main frame, beeps and shows the
  // wait cursor, builds and translates the menu bar and its keys, creates the one
  // child frame and shows the main frame. True to run the event loop.
  bool InitInstance();
  // Closes the windows; returns the exit code.
  int ExitInstance();

  const SettingsStore& settings() const { return m_settings; }
  std::array<DataSet, 4>& dataSets() { return m_dataSets; }
  const std::array<DataSet, 4>& dataSets() const { return m_dataSets; }
  PrintSetupState& printState() { return *m_printState; }
  const CTranslationDictionary& dictionary() const { return *m_dictionary; }
  const ProgramOptions& options() const { return m_options; }

  // The sound-effect switch, read from sfxOn at start; the Speech page keeps it in
  // step with the setting.
  bool sfxOn() const;
  void setSfxOn(bool on);
  // Plays earcon `id` when the switch is on; returns at once otherwise. Speech
  // that follows waits for the earcon.
  void PlaySoundEffect(int id) const;

  CMainFrame* mainFrame() const { return m_mainFrame.get(); }
  CCommandTable* commands() const { return m_commands; }

  // The About command: the About box, modal.
  void OnAppAbout();
  // The "new document" command: there are no documents, so nothing happens.
  void OnFileNew() {}

 private:
  void onCommand(int id);
  // Says how to switch self-voicing off, once the window has said where it is.
  void announceFirstStart();

  ProgramOptions m_options;
  SettingsStore m_settings;
  std::array<DataSet, 4> m_dataSets;
  std::unique_ptr<PrintSetupState> m_printState;
  // Destroyed first of the run's state, after the windows.
  std::unique_ptr<CTranslationDictionary> m_dictionary;
  // The earcons and their switch, from start-up on.
  std::unique_ptr<SoundEffects> m_soundEffects;
  // The session's screen reader as the voice sees it, unless the voice had one.
  std::unique_ptr<ScreenReader> m_screenReader;
  std::unique_ptr<CMainFrame> m_mainFrame;
  CCommandTable* m_commands = nullptr;  // owned by the main frame
};

// The one entry point for fixed texts: the English text is its own key. Without an
// application object the text stays English.
QString Translate(const QString& english);
QString Translate(const char* english);
std::string Translate(const std::string& english);
// The decimal sign of the numbers the program shows and says ("," in French).
std::string DecimalSign();

}  // namespace sonalyx::ui
