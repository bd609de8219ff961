#include "ui/pages/wave/CWavePage.h"

#include <QCheckBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

#include "core/limits/Limits.h"
#include "core/settings/SettingsStore.h"
#include "core/sound/PlayTimeLimit.h"
#include "core/speech/TranslationMarker.h"
#include "ui/app/CGraphCalcApp.h"
#include "ui/app/Voice.h"
#include "ui/controls/CTTSButton.h"
#include "ui/controls/CTTSEdit.h"
#include "ui/controls/CTTSSliderCtrl.h"
#include "ui/sheet/CCalcSheet.h"

namespace sonalyx::ui {

namespace {

// The frequency sliders' ends: the lowest can start in the bass, the highest reach
// the top of hearing; the renderer keeps every pitch within 20 Hz to 20 kHz.
constexpr int kLowestMinimumHz = 20;
constexpr int kHighestMinimumHz = 2000;
constexpr int kLowestMaximumHz = 100;
constexpr int kHighestMaximumHz = 20000;

QGroupBox* addGroup(QVBoxLayout* column, QWidget* parent, const QString& title) {
  auto* group = new QGroupBox(title, parent);
  group->setAccessibleName(title);
  column->addWidget(group);
  return group;
}

QString playTimeTitle(int seconds) {
  return Translate("Play Time (%d sec.)").replace(QStringLiteral("%d"), QString::number(seconds));
}

Translator translator() {
  return [](const std::string& english) { return Translate(english); };
}

}  // namespace

CWavePage::CWavePage(const QString& caption, QWidget* parent) : CSettingsPage(caption, parent) {
  QWidget* page = content();

  auto* volume = addGroup(column(), page, Translate("Volume"));
  auto* volumeLayout = new QVBoxLayout(volume);
  addSlider(volume, SLX_TR("Data set:"), SLX_TR("Data set volume:"), SLX_TR("percent."),
            SLX_TR("How loud the curve plays."), 0, 100, 10, &SettingsStore::GetWaveVolume,
            &SettingsStore::SetWaveVolume);
  m_playTicks = new QCheckBox(Translate("Tick Marks:"), volume);
  voiceToggle(m_playTicks, SLX_TR("Tick Marks"));
  volumeLayout->addWidget(m_sliders.back().caption);
  volumeLayout->addWidget(m_sliders.back().slider);
  volumeLayout->addWidget(m_playTicks);
  addSlider(volume, SLX_TR("Tick volume:"), SLX_TR("Tick volume:"), SLX_TR("percent."),
            SLX_TR("How loud the tick marks click."), 0, 100, 10, &SettingsStore::GetTickVolume,
            &SettingsStore::SetTickVolume);
  volumeLayout->addWidget(m_sliders.back().caption);
  volumeLayout->addWidget(m_sliders.back().slider);
  m_tickCount = makeEdit(SLX_TR("# of vertical tick marks:"), SLX_TR("Number of vertical tick marks"),
                         SLX_TR("How many tick marks a sweep passes, from 5 to 15."));
  m_tickCount->setParent(volume);
  m_tickCountLabel = new QLabel(Translate("# of vertical tick marks:"), volume);
  m_tickCountLabel->setBuddy(m_tickCount);
  volumeLayout->addWidget(m_tickCountLabel);
  volumeLayout->addWidget(m_tickCount);

  auto* threshold = addGroup(column(), page, Translate("Y Threshold"));
  auto* thresholdLayout = new QVBoxLayout(threshold);
  m_thresholdOn = new QCheckBox(Translate("Y Threshold Level:"), threshold);
  voiceToggle(m_thresholdOn, SLX_TR("Y Threshold Level"));
  m_threshold =
      makeEdit(SLX_TR("Y Threshold Level:"), SLX_TR("Y threshold level"),
               SLX_TR("Below this y the tone turns buzzier, so you hear where the curve passes it."));
  m_threshold->setParent(threshold);
  thresholdLayout->addWidget(m_thresholdOn);
  thresholdLayout->addWidget(m_threshold);

  m_playTimeGroup = addGroup(column(), page, playTimeTitle(4));
  auto* playTimeLayout = new QVBoxLayout(m_playTimeGroup);
  Slider& playTime =
      addSlider(m_playTimeGroup, SLX_TR("Play time:"), SLX_TR("Play time:"), SLX_TR("seconds."),
                SLX_TR("How long the whole curve plays."), static_cast<int>(limits::kShortestPlayTime),
                static_cast<int>(limits::kLongestPlayTime), 10, &SettingsStore::GetPlayTime,
                &SettingsStore::SetPlayTime);
  playTimeLayout->addWidget(playTime.caption);
  playTimeLayout->addWidget(playTime.slider);
  // The slider ends at the limits; a key that would pass one says it.
  CTTSSliderCtrl* playTimeSlider = playTime.slider;
  connect(playTimeSlider, &QAbstractSlider::actionTriggered, this, [playTimeSlider](int action) {
    const bool up = action == QAbstractSlider::SliderSingleStepAdd ||
                    action == QAbstractSlider::SliderPageStepAdd ||
                    action == QAbstractSlider::SliderToMaximum;
    const bool down = action == QAbstractSlider::SliderSingleStepSub ||
                      action == QAbstractSlider::SliderPageStepSub ||
                      action == QAbstractSlider::SliderToMinimum;
    if ((up && playTimeSlider->value() == playTimeSlider->maximum()) ||
        (down && playTimeSlider->value() == playTimeSlider->minimum()))
      voice::Speak(SpeechKind::Content, QString::fromStdString(playTimeLimitText(translator())));
  });

  auto* waveType = addGroup(column(), page, Translate("Wave Type"));
  auto* waveTypeLayout = new QVBoxLayout(waveType);
  m_mono = new QRadioButton(Translate("Mono output"), waveType);
  m_stereo = new QRadioButton(Translate("Stereo output"), waveType);
  voiceToggle(m_mono);
  voiceToggle(m_stereo);
  waveTypeLayout->addWidget(m_mono);
  waveTypeLayout->addWidget(m_stereo);
  connect(m_mono, &QRadioButton::toggled, this, [this](bool on) {
    if (!loading()) settings().SetIsMono(on);
  });

  auto* frequency = addGroup(column(), page, Translate("Frequency Range"));
  auto* frequencyLayout = new QVBoxLayout(frequency);
  for (Slider* row : {&addSlider(frequency, SLX_TR("Minimum"), SLX_TR("Frequency minimum"), SLX_TR("hertz."),
                                 SLX_TR("The pitch of the lowest y."), kLowestMinimumHz, kHighestMinimumHz,
                                 100, &SettingsStore::GetMinFreq, &SettingsStore::SetMinFreq),
                      &addSlider(frequency, SLX_TR("Maximum"), SLX_TR("Frequency maximum"), SLX_TR("hertz."),
                                 SLX_TR("The pitch of the highest y."), kLowestMaximumHz, kHighestMaximumHz,
                                 1000, &SettingsStore::GetMaxFreq, &SettingsStore::SetMaxFreq)}) {
    row->slider->setSingleStep(10);
    frequencyLayout->addWidget(row->caption);
    frequencyLayout->addWidget(row->slider);
  }

  auto* speak = addGroup(column(), page, Translate("Auto-speak Coordinates"));
  auto* speakLayout = new QVBoxLayout(speak);
  m_autoSpeak = new QCheckBox(Translate("Speak X and Y values at each step"), speak);
  voiceToggle(m_autoSpeak);
  speakLayout->addWidget(m_autoSpeak);
  column()->addStretch(1);

  connect(m_playTicks, &QCheckBox::toggled, this, [this](bool on) {
    if (loading()) return;
    settings().SetPlayTicks(on);
    updateEnabled();
  });
  connect(m_thresholdOn, &QCheckBox::toggled, this, [this](bool on) {
    if (loading()) return;
    settings().SetYThreshOn(on);
    updateEnabled();
  });
  connect(m_autoSpeak, &QCheckBox::toggled, this, [this](bool on) {
    if (!loading()) settings().SetAutoSpeak(on);
  });
  for (CTTSEdit* edit : {m_tickCount, m_threshold}) {
    connect(edit, &QLineEdit::textEdited, this, [this] {
      const WavePageForm typed = form();
      typed.storeAccepted(settings());
      if (!typed.check()) clearRefusal();
    });
  }
}

CWavePage::Slider& CWavePage::addSlider(QWidget* group, const char* caption, const char* spoken,
                                        const char* unit, const char* description, int minimum, int maximum,
                                        int pageStep, std::uint32_t (SettingsStore::*get)() const,
                                        bool (SettingsStore::*set)(std::uint32_t) const) {
  CTTSSliderCtrl* slider = makeSlider(spoken, unit, description, minimum, maximum, pageStep);
  slider->setParent(group);
  QString captionText = Translate(caption);
  if (captionText.endsWith(QLatin1Char(':'))) captionText.chop(1);
  auto* label = new QLabel(group);
  label->setBuddy(slider);
  m_sliders.push_back({slider, label, captionText, get, set});
  const std::size_t index = m_sliders.size() - 1;
  connect(slider, &QAbstractSlider::valueChanged, this, [this, index] { onSlider(m_sliders[index]); });
  return m_sliders.back();
}

void CWavePage::onSlider(Slider& row) {
  updateCaptions();
  if (loading()) return;
  (settings().*row.set)(static_cast<std::uint32_t>(row.slider->value()));
  if (row.slider->hasFocus()) row.slider->Speak(SpeechKind::Echo);
}

void CWavePage::updateCaptions() {
  for (const Slider& row : m_sliders)
    row.caption->setText(QStringLiteral("%1 (%2):").arg(row.captionText).arg(row.slider->value()));
  for (const Slider& row : m_sliders)
    if (row.get == &SettingsStore::GetPlayTime) m_playTimeGroup->setTitle(playTimeTitle(row.slider->value()));
}

void CWavePage::OnSetActive() {
  {
    const Loading filling(*this);
    const SettingsStore& store = settings();
    for (const Slider& row : m_sliders) row.slider->setValue(static_cast<int>((store.*row.get)()));
    const WavePageForm stored = WavePageForm::fromSettings(store);
    m_playTicks->setChecked(stored.playTicks);
    m_thresholdOn->setChecked(stored.thresholdOn);
    m_tickCount->setText(QString::fromStdString(stored.tickCount));
    m_threshold->setText(QString::fromStdString(stored.threshold));
    const bool mono = store.GetIsMono();
    m_mono->setChecked(mono);
    m_stereo->setChecked(!mono);
    m_autoSpeak->setChecked(store.GetAutoSpeak());
  }
  updateCaptions();
  updateEnabled();
  clearRefusal();
  CSettingsPage::OnSetActive();
}

bool CWavePage::Leave() {
  const WavePageForm typed = form();
  if (const auto refusal = typed.check(translator())) {
    refuse(refusal->field == WavePageForm::TickCount ? m_tickCount : m_threshold, refusal->message);
    return false;
  }
  typed.storeAccepted(settings());
  clearRefusal();
  return true;
}

void CWavePage::FocusGroup(int group) {
  QWidget* target = nullptr;
  switch (group) {
    case CCalcSheet::kWaveVolume:
      target = m_sliders[0].slider;
      break;
    case CCalcSheet::kWavePlayTime:
      target = m_sliders[2].slider;
      break;
    case CCalcSheet::kWaveFrequency:
      target = m_sliders[3].slider;
      break;
    case CCalcSheet::kWaveType:
      target = m_mono->isChecked() ? m_mono : m_stereo;
      break;
    default:
      CSettingsPage::FocusGroup(group);
      return;
  }
  target->setFocus(Qt::OtherFocusReason);
  // A slider says itself as the focus arrives; a button only when Tab brings it.
  if (auto* voice = target->findChild<CTTSButton*>(QString(), Qt::FindDirectChildrenOnly))
    voice->Speak(SpeechKind::Echo);
}

void CWavePage::updateEnabled() {
  const WavePageForm typed = form();
  for (QWidget* control :
       {static_cast<QWidget*>(m_tickCount), static_cast<QWidget*>(m_tickCountLabel),
        static_cast<QWidget*>(m_sliders[1].slider), static_cast<QWidget*>(m_sliders[1].caption)})
    control->setEnabled(typed.tickControlsEnabled());
  m_threshold->setEnabled(typed.thresholdEnabled());
}

WavePageForm CWavePage::form() const {
  return WavePageForm{m_tickCount->text().toStdString(), m_threshold->text().toStdString(),
                      m_playTicks->isChecked(), m_thresholdOn->isChecked()};
}

}  // namespace sonalyx::ui
