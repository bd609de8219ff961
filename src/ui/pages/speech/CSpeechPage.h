#pragma once

#include <array>

#include "core/pages/SpeechPageForm.h"
#include "ui/pages/CSettingsPage.h"

class QCheckBox;
class QLabel;
class QPushButton;

namespace sonalyx::ui {

class CTTSComboBox;
class CTTSListBox;

// The Speech page: the decimal places spoken numbers keep, the voice and its rate,
// pitch and volume, sound effects, self-voicing and what it says beside a screen
// reader, and the speech engine's buttons: "About TTS" tells the engine, "General"
// chooses it, "Lexicon" edits the pronunciation list, "Translate" says what it is
// for. Every change is heard at once in the voice it makes.
class CSpeechPage : public CSettingsPage {
  Q_OBJECT
 public:
  explicit CSpeechPage(const QString& caption, QWidget* parent = nullptr);

  void OnSetActive() override;

 protected:
  bool Leave() override;

 private:
  struct Slider {
    CTTSSliderCtrl* slider;
    QLabel* caption;
    QString captionText;
    std::uint32_t (SettingsStore::*get)() const;
    bool (SettingsStore::*set)(std::uint32_t) const;
    bool (*apply)(std::uint32_t);
  };

  QPushButton* addEngineButton(const char* face, const char* spoken);
  void fillVoices();
  void onVoiceChosen(int row);
  void onSlider(Slider& row);
  void updateCaptions();
  void showAbout();
  void chooseEngine();
  void editLexicon();

  CTTSEdit* m_decimals = nullptr;
  CTTSListBox* m_voices = nullptr;
  QCheckBox* m_soundEffects = nullptr;
  QCheckBox* m_selfVoicing = nullptr;
  CTTSComboBox* m_mode = nullptr;
  std::array<Slider, 3> m_sliders{};
};

}  // namespace sonalyx::ui
