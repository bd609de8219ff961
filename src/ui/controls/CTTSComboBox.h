#pragma once

#include <QComboBox>

#include "core/speech/SpeechKind.h"

namespace sonalyx::ui {

// A combo box that says its label and its selection when it gets the focus and
// whenever the user changes the selection, with the selection earcon (2) first.
// An item may be spoken by other words than its text: its Qt::AccessibleTextRole
// ("hexadecimal." for "Hex").
class CTTSComboBox : public QComboBox {
  Q_OBJECT
 public:
  explicit CTTSComboBox(QWidget* parent = nullptr);

  void setSpokenLabel(const QString& english);
  const QString& spokenLabel() const { return m_spokenLabel; }

  // The label alone with nothing selected, otherwise the label, a blank and the
  // selected item.
  QString spokenText() const;
  void Speak(SpeechKind kind);

 protected:
  void focusInEvent(QFocusEvent* event) override;

 private:
  void speakItem(SpeechKind kind, int index);
  QString itemSpokenText(int index) const;

  QString m_spokenLabel;
  // The item last said while the list was open; choosing it says nothing more.
  int m_lastHighlighted = -1;
};

}  // namespace sonalyx::ui
