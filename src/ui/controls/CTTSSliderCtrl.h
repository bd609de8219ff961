#pragma once

#include <QSlider>

#include "core/speech/SpeechKind.h"

namespace sonalyx::ui {

// A slider that says its label, its position and its unit ("Rate 50 percent.") on
// focus and whenever its page has handled a move.
class CTTSSliderCtrl : public QSlider {
  Q_OBJECT
 public:
  explicit CTTSSliderCtrl(Qt::Orientation orientation = Qt::Horizontal, QWidget* parent = nullptr);

  void setSpokenLabel(const QString& english);
  const QString& spokenLabel() const { return m_spokenLabel; }
  void setSpokenUnit(const QString& english);
  const QString& spokenUnit() const { return m_spokenUnit; }

  QString spokenText() const;
  void Speak(SpeechKind kind);

 protected:
  void focusInEvent(QFocusEvent* event) override;

 private:
  QString m_spokenLabel;
  QString m_spokenUnit;
};

}  // namespace sonalyx::ui
