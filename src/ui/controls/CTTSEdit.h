#pragma once

#include <QLineEdit>

#include "core/speech/SpeechKind.h"

namespace sonalyx::ui {

// An edit box that says its label and text on focus, echoes every typed character
// (symbols as words), says "Backspace. " with the character it removes, and says
// the character the Left and Right arrows move onto.
class CTTSEdit : public QLineEdit {
  Q_OBJECT
 public:
  explicit CTTSEdit(QWidget* parent = nullptr);

  void setSpokenLabel(const QString& english);
  const QString& spokenLabel() const { return m_spokenLabel; }
  // Speak the text with its decimals rounded to the setting numDec.
  void setRoundNumber(bool on) { m_roundNumber = on; }
  bool roundNumber() const { return m_roundNumber; }
  // Symbols read as maths ("/" is "divide"); off for a text that is no expression,
  // such as a file name, which the voice reads as it is written.
  void setMathSymbols(bool on) { m_mathSymbols = on; }

  // The label followed directly by the text (rounded when asked), symbols as words.
  QString spokenText() const;
  // An echo on arrival; a page that says its result box speaks content.
  void Speak(SpeechKind kind);

 protected:
  void focusInEvent(QFocusEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QString m_spokenLabel;
  bool m_roundNumber = false;
  bool m_mathSymbols = true;
};

}  // namespace sonalyx::ui
