#include "ui/app/CGraphCalcApp.h"

#include "core/settings/FirstStart.h"

#include <QApplication>
#include <QCursor>
#include <QTimer>

#include "core/speech/LanguageTable.h"
#include "core/speech/Translator.h"
#include "platform/qt/speech/DesktopScreenReader.h"
#include "platform/qt/speech/SystemSpeechEngine.h"
#include "platform/sound/OutputSequencer.h"
#include "platform/sound/SoundEffects.h"
#include "platform/speech/CDirectSS.h"
#include "ui/accessible/AccessibleTree.h"
#include "ui/app/CAboutDlg.h"
#include "ui/app/CChildFrame.h"
#include "ui/app/CMainFrame.h"
#include "ui/app/CMenuStyle.h"
#include "ui/app/CTranslationDictionary.h"
#include "ui/app/CommandIds.h"
#include "ui/app/CommandTable.h"
#include "ui/app/MenuTranslation.h"
#include "ui/app/PrintSetupState.h"
#include "ui/app/ProductInfo.h"
#include "ui/app/VersionPublisher.h"
#include "ui/app/Voice.h"

namespace sonalyx::ui {

namespace {

CGraphCalcApp* g_instance = nullptr;

SettingsStore openSettings() {
  SettingsStore store = SettingsStore::openDefault();
  store.OpenSettingsKey();
  return store;
}

}  // namespace

CGraphCalcApp::CGraphCalcApp(ProgramOptions options)
    : m_options(std::move(options)),
      m_settings(openSettings()),
      m_printState(std::make_unique<PrintSetupState>()),
      m_dictionary(std::make_unique<CTranslationDictionary>()) {
  const int langId = m_options.langId ? *m_options.langId : userDefaultLangId();
  m_dictionary->Init(languageForLangId(langId));
  g_instance = this;
}

CGraphCalcApp::~CGraphCalcApp() {
  m_mainFrame.reset();
  m_soundEffects.reset();
  if (m_screenReader && voice::device().screenReader() == m_screenReader.get())
    voice::device().setScreenReader(nullptr);
  if (g_instance == this) g_instance = nullptr;
}

CGraphCalcApp* CGraphCalcApp::instance() {
  return g_instance;
}

bool CGraphCalcApp::InitInstance() {
  PublishVersion(m_settings, product::kVersion, m_options.argumentText);
  // The earcons' switch starts as the stored sfxOn.
  m_soundEffects = std::make_unique<SoundEffects>(m_settings, OutputSequencer::instance());

  // Disabled menu items stay reachable from the keyboard so that they can be heard.
  QApplication::setStyle(new CMenuStyle());
  // Before the first window asks for its accessible interface.
  accessible::install();

  m_mainFrame = std::make_unique<CMainFrame>(*this);

  // The one voice, made once per process; its switch follows this run's settings.
  CDirectSS& voice = voice::device();
  voice.setSettings(m_settings);
  // The voice speaks the program's language; the translator reaches whichever
  // application object is current, as the voice outlives this one.
  voice.setLanguage(std::string(languageCode(m_dictionary->language())),
                    [](const std::string& english) { return Translate(english); });
  if (!voice.engine()) {
    registerSystemSpeechEngine();
    voice.Create(OutputSequencer::instance());
  }
  // A first start speaks at once; whether it keeps speaking is decided when the
  // screen reader's status has arrived (announceFirstStart).
  const bool firstStart = isFirstStart(m_settings);
  voice.setEnabled(firstStart || m_settings.GetTtsOn());
  // Watched from the start, so that the first words already know whether a screen
  // reader runs.
  if (!voice.screenReader()) {
    m_screenReader = std::make_unique<DesktopScreenReader>();
    voice.setScreenReader(m_screenReader.get());
  }

  QApplication::beep();
  QApplication::setOverrideCursor(Qt::WaitCursor);

  m_commands = new CCommandTable(m_mainFrame.get());
  translateMenu(*m_commands, [this](const std::string& text) { return m_dictionary->Translate(text); });
  connect(m_commands, &CCommandTable::commandTriggered, this, &CGraphCalcApp::onCommand);

  m_mainFrame->CreateChild(*m_commands);

  m_mainFrame->show();

  QApplication::restoreOverrideCursor();
  if (firstStart) announceFirstStart();
  return true;
}

namespace {
// How long the desktop may take to say whether a screen reader runs.
constexpr int kScreenReaderAnswerMs = 250;
}  // namespace

void CGraphCalcApp::announceFirstStart() {
  // After the window has the focus and has said where it is: said earlier, the
  // sentence would be cut off by that echo. A window that never gets the focus
  // (no window manager) still hears it after a moment. The short wait lets the
  // desktop's answer about a screen reader arrive first.
  auto* pending = new QObject(this);
  const auto decide = [this, pending] {
    if (pending->property("said").toBool()) return;
    pending->setProperty("said", true);
    pending->deleteLater();
    const ScreenReader* reader = voice::device().screenReader();
    if (reader && reader->running()) {
      // The user hears the program through the screen reader already: self-voicing
      // stays off until asked for (Ctrl+Q, then in the reader's own queue), and a
      // later start without a screen reader is still a first start.
      voice::SetEnabled(false);
      return;
    }
    m_settings.SetTtsOn(true);
    voice::Speak(SpeechKind::Content, Translate(kFirstStartSentence));
  };
  connect(qApp, &QApplication::focusChanged, pending,
          [pending, decide] { QTimer::singleShot(kScreenReaderAnswerMs, pending, decide); });
  QTimer::singleShot(1500, pending, decide);
}

int CGraphCalcApp::ExitInstance() {
  if (m_mainFrame) m_mainFrame->close();
  m_mainFrame.reset();
  m_commands = nullptr;
  return 0;
}

bool CGraphCalcApp::sfxOn() const {
  return m_soundEffects && m_soundEffects->isOn();
}

void CGraphCalcApp::setSfxOn(bool on) {
  if (m_soundEffects) m_soundEffects->setOn(on);
}

void CGraphCalcApp::PlaySoundEffect(int id) const {
  if (m_soundEffects) m_soundEffects->PlaySoundEffect(id);
}

void CGraphCalcApp::OnAppAbout() {
  CAboutDlg about(m_mainFrame.get());
  about.exec();
}

void CGraphCalcApp::onCommand(int id) {
  switch (id) {
    case cmd::kAppAbout:
      OnAppAbout();
      break;
    case cmd::kFileNew:
      OnFileNew();
      break;
    default:
      break;
  }
}

QString Translate(const QString& english) {
  const CGraphCalcApp* app = CGraphCalcApp::instance();
  if (!app) return english;
  return QString::fromStdString(app->dictionary().Translate(english.toStdString()));
}

QString Translate(const char* english) {
  return Translate(QString::fromUtf8(english));
}

std::string Translate(const std::string& english) {
  const CGraphCalcApp* app = CGraphCalcApp::instance();
  return app ? app->dictionary().Translate(english) : english;
}

std::string DecimalSign() {
  return decimalSignOf([](const std::string& english) { return Translate(english); });
}

}  // namespace sonalyx::ui
