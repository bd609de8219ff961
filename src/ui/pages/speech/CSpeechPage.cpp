#include "ui/pages/speech/CSpeechPage.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "core/settings/SettingsStore.h"
#include "core/speech/PronunciationLexicon.h"
#include "core/speech/TranslationMarker.h"
#include "platform/speech/CDirectSS.h"
#include "platform/speech/SelfVoicing.h"
#include "platform/speech/SpeechEngineRegistry.h"
#include "ui/app/CGraphCalcApp.h"
#include "ui/app/Voice.h"
#include "ui/controls/CTTSButton.h"
#include "ui/controls/CTTSComboBox.h"
#include "ui/controls/CTTSEdit.h"
#include "ui/controls/CTTSListBox.h"
#include "ui/controls/CTTSMsgBox.h"
#include "ui/controls/CTTSSliderCtrl.h"
#include "ui/controls/VoicedText.h"
#include "ui/pages/speech/CLexiconDlg.h"
#include "ui/pages/speech/CSpeechEngineDlg.h"

namespace sonalyx::ui {

namespace {

Translator translator() {
  return [](const std::string& english) { return Translate(english); };
}

QGroupBox* addGroup(QVBoxLayout* column, QWidget* parent, const char* title) {
  auto* group = new QGroupBox(Translate(title), parent);
  group->setAccessibleName(group->title());
  column->addWidget(group);
  return group;
}

// What "About TTS" says: the engine with its version, and the voice in use.
QString aboutText() {
  const SpeechEngine* engine = voice::device().engine();
  if (!engine) return Translate("No speech engine is running.");
  return Translate("Speech engine: %1. Voice: %2.")
      .replace(QStringLiteral("%1"), QString::fromStdString(engine->description()))
      .replace(QStringLiteral("%2"), QString::fromStdString(engine->currentVoice()));
}

// The spoken descriptions of the engine buttons: what each does here.
constexpr const char* kAboutSpoken =
    SLX_TR("About TTS. This button tells the name, version and voice of your speech engine.");
constexpr const char* kGeneralSpoken =
    SLX_TR("General. This button chooses the speech engine: eSpeak NG or the system's speech service.");
constexpr const char* kTranslateSpoken = SLX_TR(
    "Translate. This button only says what it is for: Sonalyx speaks in the language of your desktop, so "
    "choose a voice of that language in the list of voices.");
constexpr const char* kLexiconSpoken =
    SLX_TR("Lexicon. This button opens the pronunciation list: words and how the voice says them.");

}  // namespace

CSpeechPage::CSpeechPage(const QString& caption, QWidget* parent) : CSettingsPage(caption, parent) {
  QWidget* page = content();

  auto* numbers = addGroup(column(), page, SLX_TR("Numbers"));
  auto* numbersLayout = new QVBoxLayout(numbers);
  m_decimals =
      makeEdit(SLX_TR("Number of decimal places to voice:"), SLX_TR("Number of decimal places to voice"),
               SLX_TR("How many decimal places spoken numbers keep, from 0 to 15."));
  m_decimals->setParent(numbers);
  auto* decimalsLabel = new QLabel(Translate("Number of decimal places to voice:"), numbers);
  decimalsLabel->setWordWrap(true);
  decimalsLabel->setBuddy(m_decimals);
  numbersLayout->addWidget(decimalsLabel);
  numbersLayout->addWidget(m_decimals);
  connect(m_decimals, &QLineEdit::textEdited, this, [this] {
    const SpeechPageForm typed{m_decimals->text().toStdString()};
    typed.storeAccepted(settings());
    if (!typed.check()) clearRefusal();
  });

  auto* voiceGroup = addGroup(column(), page, SLX_TR("Voice"));
  auto* voiceLayout = new QVBoxLayout(voiceGroup);
  m_voices = new CTTSListBox(voiceGroup);
  m_voices->setReadSymbols(false);
  m_voices->setAccessibleName(Translate("Voices"));
  m_voices->setAccessibleDescription(Translate("The voices of the speech engine; the chosen one speaks."));
  m_voices->setMinimumHeight(80);
  auto* voicesLabel = new QLabel(Translate("Voices:"), voiceGroup);
  voicesLabel->setBuddy(m_voices);
  voiceLayout->addWidget(voicesLabel);
  voiceLayout->addWidget(m_voices);
  connect(m_voices, &QListWidget::currentRowChanged, this, &CSpeechPage::onVoiceChosen);

  const std::array<std::tuple<const char*, const char*, std::uint32_t (SettingsStore::*)() const,
                              bool (SettingsStore::*)(std::uint32_t) const, bool (*)(std::uint32_t)>,
                   3>
      sliders{{{SLX_TR("Rate"), SLX_TR("How fast the voice speaks."), &SettingsStore::GetRate,
                &SettingsStore::SetRate, [](std::uint32_t v) { return voice::device().SetRate(v); }},
               {SLX_TR("Pitch"), SLX_TR("How high the voice speaks."), &SettingsStore::GetPitch,
                &SettingsStore::SetPitch, [](std::uint32_t v) { return voice::device().SetPitch(v); }},
               {SLX_TR("Volume"), SLX_TR("How loud the voice speaks."), &SettingsStore::GetVol,
                &SettingsStore::SetVol, [](std::uint32_t v) { return voice::device().SetVolume(v); }}}};
  for (std::size_t i = 0; i < sliders.size(); ++i) {
    const auto& [name, description, get, set, apply] = sliders[i];
    CTTSSliderCtrl* slider = makeSlider(name, SLX_TR("percent."), description, 0, 100, 10);
    slider->setParent(voiceGroup);
    slider->setTickInterval(10);
    slider->setTickPosition(QSlider::TicksBelow);
    auto* label = new QLabel(voiceGroup);
    label->setBuddy(slider);
    m_sliders[i] = {slider, label, Translate(name), get, set, apply};
    voiceLayout->addWidget(label);
    voiceLayout->addWidget(slider);
    connect(slider, &QAbstractSlider::valueChanged, this, [this, i] { onSlider(m_sliders[i]); });
  }

  auto* voicing = addGroup(column(), page, SLX_TR("Self-Voicing"));
  auto* voicingLayout = new QVBoxLayout(voicing);
  m_soundEffects = new QCheckBox(Translate("Sound Effects"), voicing);
  new CTTSButton(m_soundEffects);
  m_selfVoicing = new QCheckBox(Translate("Allow Self-Voicing"), voicing);
  new CTTSButton(m_selfVoicing);
  m_mode = new CTTSComboBox(voicing);
  m_mode->setSpokenLabel(SLX_TR("Beside a screen reader:"));
  m_mode->setAccessibleDescription(Translate(
      "What self-voicing says while a screen reader runs: everything, or only what the screen reader "
      "cannot know."));
  for (const char* item :
       {SLX_TR("Speak everything"), SLX_TR("Speak only what the screen reader cannot"), SLX_TR("Automatic")})
    m_mode->addItem(Translate(item));
  auto* modeLabel = new QLabel(Translate("Beside a screen reader:"), voicing);
  modeLabel->setBuddy(m_mode);
  voicingLayout->addWidget(m_soundEffects);
  voicingLayout->addWidget(m_selfVoicing);
  voicingLayout->addWidget(modeLabel);
  voicingLayout->addWidget(m_mode);
  connect(m_soundEffects, &QCheckBox::clicked, this, [this](bool on) {
    settings().SetSfxOn(on);
    CGraphCalcApp* app = CGraphCalcApp::instance();
    app->setSfxOn(on);
    // The earcon leads the words that go with it.
    if (on) app->PlaySoundEffect(2);
    voiced::say(
        m_soundEffects, SpeechKind::Echo,
        on ? Translate("Allow sound effects: checked.") : Translate("Allow sound effects: unchecked."));
  });
  connect(m_selfVoicing, &QCheckBox::clicked, this,
          [this](bool on) { setSelfVoicing(on, settings(), voice::device(), translator()); });
  connect(m_mode, &QComboBox::activated, this,
          [this](int index) { settings().SetTtsMode(static_cast<std::uint32_t>(index)); });

  auto* engine = addGroup(column(), page, SLX_TR("Speech Engine"));
  auto* engineLayout = new QGridLayout(engine);
  QPushButton* about = addEngineButton(SLX_TR("About TTS"), kAboutSpoken);
  QPushButton* general = addEngineButton(SLX_TR("General"), kGeneralSpoken);
  QPushButton* translate = addEngineButton(SLX_TR("Translate"), kTranslateSpoken);
  QPushButton* lexicon = addEngineButton(SLX_TR("Lexicon"), kLexiconSpoken);
  engineLayout->addWidget(about, 0, 0);
  engineLayout->addWidget(general, 0, 1);
  engineLayout->addWidget(translate, 1, 0);
  engineLayout->addWidget(lexicon, 1, 1);
  connect(about, &QPushButton::clicked, this, &CSpeechPage::showAbout);
  connect(general, &QPushButton::clicked, this, &CSpeechPage::chooseEngine);
  connect(lexicon, &QPushButton::clicked, this, &CSpeechPage::editLexicon);
  connect(translate, &QPushButton::clicked, this,
          [translate] { voiced::say(translate, SpeechKind::Content, Translate(kTranslateSpoken)); });
  column()->addStretch(1);
}

QPushButton* CSpeechPage::addEngineButton(const char* face, const char* spoken) {
  auto* button = new QPushButton(Translate(face), content());
  auto* voice = new CTTSButton(button);
  voice->setSpokenLabel(spoken);
  // Named by its face; what it does is its description.
  button->setAccessibleName(Translate(face));
  button->setAccessibleDescription(Translate(spoken));
  return button;
}

void CSpeechPage::OnSetActive() {
  {
    const Loading filling(*this);
    const SettingsStore& store = settings();
    m_decimals->setText(QString::fromStdString(SpeechPageForm::fromSettings(store).decimals));
    fillVoices();
    m_soundEffects->setChecked(store.GetSfxOn());
    m_selfVoicing->setChecked(store.GetTtsOn());
    m_mode->setCurrentIndex(static_cast<int>(store.GetTtsMode()));
    for (const Slider& row : m_sliders) row.slider->setValue(static_cast<int>((store.*row.get)()));
  }
  updateCaptions();
  clearRefusal();
  CSettingsPage::OnSetActive();
}

bool CSpeechPage::Leave() {
  const SpeechPageForm typed{m_decimals->text().toStdString()};
  if (const auto refusal = typed.check(translator())) {
    refuse(m_decimals, refusal->message);
    return false;
  }
  typed.storeAccepted(settings());
  clearRefusal();
  return true;
}

void CSpeechPage::fillVoices() {
  // Every time: the engine, and so its voices, may have changed since.
  std::vector<std::string> voices;
  voice::device().GetVoices(voices);
  m_voices->clear();
  const std::string stored = settings().GetVoice();
  const SpeechEngine* engine = voice::device().engine();
  const std::string inUse = engine ? engine->currentVoice() : std::string();
  int current = -1;
  for (const std::string& name : voices) {
    if (name == stored || (current < 0 && name == inUse)) current = m_voices->count();
    m_voices->addItem(QString::fromStdString(name));
  }
  if (current >= 0) m_voices->setCurrentRow(current);
}

void CSpeechPage::onVoiceChosen(int row) {
  if (loading() || row < 0) return;
  const std::string name = m_voices->item(row)->text().toStdString();
  settings().SetVoice(name);
  // The new voice with the stored rate, pitch and volume says its own name.
  voice::device().ApplySettings();
  if (m_voices->hasFocus()) m_voices->SpeakItem(SpeechKind::Echo, row);
}

void CSpeechPage::onSlider(Slider& row) {
  updateCaptions();
  if (loading()) return;
  const auto value = static_cast<std::uint32_t>(row.slider->value());
  (settings().*row.set)(value);
  row.apply(value);
  if (row.slider->hasFocus()) row.slider->Speak(SpeechKind::Echo);
}

void CSpeechPage::updateCaptions() {
  for (const Slider& row : m_sliders)
    row.caption->setText(QStringLiteral("%1 (%2%):").arg(row.captionText).arg(row.slider->value()));
}

void CSpeechPage::showAbout() {
  CTTSMsgBox box(this);
  box.setTitle(Translate("About TTS"));
  box.setMessage(aboutText());
  box.setBoxSize(340, 170);
  box.exec();
}

void CSpeechPage::chooseEngine() {
  const std::string before = settings().GetTtsEngine();
  CSpeechEngineDlg dialog(before, this);
  if (dialog.exec() != QDialog::Accepted) return;
  const std::string chosen = dialog.chosen();
  if (chosen.empty()) return;
  settings().SetTtsEngine(chosen);
  QString said;
  if (SpeechEngineRegistry::chosenByEnvironment()) {
    said =
        Translate("SONALYX_SPEECH chooses the engine of this run; %1 speaks from the next start without it.");
  } else if (voice::device().UseEngine(chosen)) {
    said = Translate("%1 speaks now.");
  } else {
    settings().SetTtsEngine(before);
    said = Translate("%1 cannot start here; the voice stays as it was.");
  }
  fillVoices();
  voice::Speak(SpeechKind::Content,
               said.replace(QStringLiteral("%1"), CSpeechEngineDlg::displayName(chosen)));
}

void CSpeechPage::editLexicon() {
  CLexiconDlg dialog(PronunciationLexicon::fromStoredText(settings().GetLexicon()), this);
  if (dialog.exec() == QDialog::Accepted) settings().SetLexicon(dialog.lexicon().storedText());
}

}  // namespace sonalyx::ui
