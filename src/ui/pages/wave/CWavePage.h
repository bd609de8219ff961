#pragma once

#include <QString>
#include <deque>

#include "core/pages/WavePageForm.h"
#include "ui/pages/CSettingsPage.h"

class QCheckBox;
class QGroupBox;
class QLabel;
class QRadioButton;

namespace sonalyx::ui {

// The Wave page: how a graph sounds. The data and tick volumes, the number of
// tick marks, the y threshold, the play time, the frequency range, mono or stereo,
// and whether each step says its coordinates. Every change is stored at once, so
// the next F5 follows it; a typed entry out of range keeps the page and says the
// range.
class CWavePage : public CSettingsPage {
  Q_OBJECT
 public:
  explicit CWavePage(const QString& caption, QWidget* parent = nullptr);

  void OnSetActive() override;
  // The groups of the "&Options" "&Wave" submenu: volume, play time, frequency
  // range, wave type.
  void FocusGroup(int group) override;

 protected:
  bool Leave() override;

 private:
  struct Slider {
    CTTSSliderCtrl* slider;
    QLabel* caption;
    QString captionText;
    std::uint32_t (SettingsStore::*get)() const;
    bool (SettingsStore::*set)(std::uint32_t) const;
  };

  Slider& addSlider(QWidget* group, const char* caption, const char* spoken, const char* unit,
                    const char* description, int minimum, int maximum, int pageStep,
                    std::uint32_t (SettingsStore::*get)() const,
                    bool (SettingsStore::*set)(std::uint32_t) const);
  void onSlider(Slider& row);
  void updateCaptions();
  void updateEnabled();
  WavePageForm form() const;

  // A deque: a slider's row stays where it is as more are added.
  std::deque<Slider> m_sliders;
  QGroupBox* m_playTimeGroup = nullptr;
  QCheckBox* m_playTicks = nullptr;
  QCheckBox* m_thresholdOn = nullptr;
  QCheckBox* m_autoSpeak = nullptr;
  CTTSEdit* m_tickCount = nullptr;
  QLabel* m_tickCountLabel = nullptr;
  CTTSEdit* m_threshold = nullptr;
  QRadioButton* m_mono = nullptr;
  QRadioButton* m_stereo = nullptr;
};

}  // namespace sonalyx::ui
