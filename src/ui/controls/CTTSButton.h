#pragma once

#include <QObject>
#include <QString>

#include "core/speech/SpeechKind.h"

class QAbstractButton;

namespace sonalyx::ui {

// Gives a push button, check box or radio button its voice. Attach one to the
// button (it becomes the button's child and lives as long as it):
//
//   auto* box = new QCheckBox(tr, page);
//   auto* voice = new CTTSButton(box);
//   voice->setSpokenLabel("Show X-Axis");
//   voice->setToggleSound(true);
//
// The button speaks when the Tab keys bring the focus to it (never when the mouse
// or the program does), and its press feedback plays an earcon and speaks on
// every click, from the mouse or the keyboard.
class CTTSButton : public QObject {
  Q_OBJECT
 public:
  enum class Kind { PushButton, CheckBox, RadioButton };

  explicit CTTSButton(QAbstractButton* button);

  QAbstractButton* button() const { return m_button; }
  Kind kind() const { return m_kind; }

  // Translated when set; an empty label makes the button speak its own text.
  void setSpokenLabel(const QString& english);
  const QString& spokenLabel() const { return m_spokenLabel; }
  // Start with "Button. ", "Check box. " or "Radio button. ".
  void setAnnounceType(bool on) { m_announceType = on; }
  // A press plays the check-box earcon (2 checked, 3 unchecked).
  void setToggleSound(bool on) { m_toggleSound = on; }
  // A press plays the key earcon (4).
  void setPressSound(bool on) { m_pressSound = on; }

  // What the button says now; empty for an unchecked radio button.
  QString spokenText() const;
  // Says spokenText() as `kind`: an echo when the user reached or changed the
  // button, content when a page says it for a reason of its own.
  void Speak(SpeechKind kind);
  // The earcon and the speech of a press. Clicks call it; a page calls it when it
  // presses the button on the user's behalf.
  void PressFeedback();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void updateAccessibleName();

  QAbstractButton* m_button;
  Kind m_kind;
  QString m_spokenLabel;
  bool m_announceType = false;
  bool m_toggleSound = false;
  bool m_pressSound = false;
  // Set while a press is being handled: an arrow in a group of radio buttons presses
  // the next one and then moves the focus to it, and the press has said it already.
  bool m_pressing = false;
};

}  // namespace sonalyx::ui
