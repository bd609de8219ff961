#pragma once

#include <QTabBar>

#include "core/speech/SpeechKind.h"

namespace sonalyx::ui {

// The control panel's tabs. On focus, while shown, it says the current tab's
// caption followed by " screen.".
class CTTSTabCtrl : public QTabBar {
  Q_OBJECT
 public:
  explicit CTTSTabCtrl(QWidget* parent = nullptr);

  // "<caption> screen." for a tab: at most 31 characters of its caption, a blank
  // and the translated "screen.".
  QString screenText(int index) const;
  void Speak(SpeechKind kind);

  // Takes the focus without saying anything: the program moves it here on its way
  // to a tab that will speak.
  void takeFocusQuietly();

  // Every tab is at least this wide (the panel keeps it at a fifth of its width).
  void setMinimumTabWidth(int width);
  int minimumTabWidth() const { return m_minimumTabWidth; }

 protected:
  void focusInEvent(QFocusEvent* event) override;
  QSize tabSizeHint(int index) const override;

 private:
  int m_minimumTabWidth = 0;
  bool m_quietFocus = false;
};

}  // namespace sonalyx::ui
