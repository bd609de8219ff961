#include "ui/controls/CTTSButton.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QFocusEvent>
#include <QRadioButton>
#include <QTimer>

#include "ui/app/CGraphCalcApp.h"
#include "ui/controls/VoicedText.h"

namespace sonalyx::ui {

namespace {

CTTSButton::Kind kindOf(const QAbstractButton* button) {
  if (qobject_cast<const QCheckBox*>(button)) return CTTSButton::Kind::CheckBox;
  if (qobject_cast<const QRadioButton*>(button)) return CTTSButton::Kind::RadioButton;
  return CTTSButton::Kind::PushButton;
}

}  // namespace

CTTSButton::CTTSButton(QAbstractButton* button) : QObject(button), m_button(button), m_kind(kindOf(button)) {
  button->installEventFilter(this);
  connect(button, &QAbstractButton::clicked, this, &CTTSButton::PressFeedback);
}

void CTTSButton::setSpokenLabel(const QString& english) {
  m_spokenLabel = Translate(english);
  updateAccessibleName();
}

void CTTSButton::updateAccessibleName() {
  if (!m_spokenLabel.isEmpty()) m_button->setAccessibleName(m_spokenLabel);
}

QString CTTSButton::spokenText() const {
  if (m_kind == Kind::RadioButton && !m_button->isChecked()) return {};
  QString text;
  if (m_announceType) {
    switch (m_kind) {
      case Kind::PushButton:
        text = Translate("Button. ");
        break;
      case Kind::CheckBox:
        text = Translate("Check box. ");
        break;
      case Kind::RadioButton:
        text = Translate("Radio button. ");
        break;
    }
  }
  text += m_spokenLabel.isEmpty() ? voiced::withoutMnemonic(m_button->text()) : m_spokenLabel;
  if (m_kind == Kind::CheckBox)
    text += (m_button->isChecked() ? Translate(" Checked.") : Translate(" Unchecked."));
  if (m_kind == Kind::RadioButton) text += Translate(" Checked.");
  return text;
}

void CTTSButton::Speak(SpeechKind kind) {
  const QString text = spokenText();
  if (!text.isEmpty()) voiced::say(m_button, kind, text);
}

void CTTSButton::PressFeedback() {
  m_pressing = true;
  QTimer::singleShot(0, this, [this] { m_pressing = false; });
  if (m_toggleSound) {
    voiced::playSoundEffect(m_button->isChecked() ? 2 : 3);
    Speak(SpeechKind::Echo);
  } else if (m_pressSound) {
    voiced::playSoundEffect(4);
    Speak(SpeechKind::Echo);
  }
}

bool CTTSButton::eventFilter(QObject* watched, QEvent* event) {
  if (watched == m_button && event->type() == QEvent::FocusIn) {
    const Qt::FocusReason reason = static_cast<QFocusEvent*>(event)->reason();
    if ((reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason) && m_button->isActiveWindow() &&
        !(m_pressing && (m_toggleSound || m_pressSound)))
      Speak(SpeechKind::Echo);
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace sonalyx::ui
