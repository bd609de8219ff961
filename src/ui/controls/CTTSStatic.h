#pragma once

#include <QLabel>

#include "core/speech/SpeechKind.h"

namespace sonalyx::ui {

// A text the keyboard can stop on: on focus it says "Label. " and its spoken label
// (or its text), and shows a one-pixel frame in the text colour until the focus
// leaves.
class CTTSStatic : public QLabel {
  Q_OBJECT
 public:
  explicit CTTSStatic(const QString& text = {}, QWidget* parent = nullptr);

  // Translated when set; an empty label makes the control speak its text.
  void setSpokenLabel(const QString& english);
  const QString& spokenLabel() const { return m_spokenLabel; }

  QString spokenText() const;
  void Speak(SpeechKind kind);

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QString m_spokenLabel;
};

}  // namespace sonalyx::ui
