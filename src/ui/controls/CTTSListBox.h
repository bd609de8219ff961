#pragma once

#include <QListWidget>

#include "core/speech/SpeechKind.h"

namespace sonalyx::ui {

// A list that selects and says its caret item when it gets the focus and, when
// asked to, says each item the user selects. Items are read with symbols as words.
class CTTSListBox : public QListWidget {
  Q_OBJECT
 public:
  explicit CTTSListBox(QWidget* parent = nullptr);

  void setSpeakSelection(bool on) { m_speakSelection = on; }
  // Read the items' symbols as words (on unless set): off for names, such as
  // voices, whose brackets are no arithmetic.
  void setReadSymbols(bool on) { m_readSymbols = on; }
  bool speakSelection() const { return m_speakSelection; }

  QString itemSpokenText(int row) const;
  void SpeakItem(SpeechKind kind, int row);

 protected:
  void focusInEvent(QFocusEvent* event) override;

 private:
  bool m_speakSelection = false;
  bool m_selectingOnFocus = false;
  bool m_readSymbols = true;
};

}  // namespace sonalyx::ui
