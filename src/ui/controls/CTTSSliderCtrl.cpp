#include "ui/controls/CTTSSliderCtrl.h"

#include <QFocusEvent>

#include "ui/app/CGraphCalcApp.h"
#include "ui/controls/VoicedText.h"

namespace sonalyx::ui {

CTTSSliderCtrl::CTTSSliderCtrl(Qt::Orientation orientation, QWidget* parent) : QSlider(orientation, parent) {
  setFocusPolicy(Qt::StrongFocus);
}

void CTTSSliderCtrl::setSpokenLabel(const QString& english) {
  m_spokenLabel = Translate(english);
  setAccessibleName(m_spokenLabel);
}

void CTTSSliderCtrl::setSpokenUnit(const QString& english) {
  m_spokenUnit = Translate(english);
}

QString CTTSSliderCtrl::spokenText() const {
  return QStringLiteral("%1 %2 %3").arg(m_spokenLabel).arg(value()).arg(m_spokenUnit);
}

void CTTSSliderCtrl::Speak(SpeechKind kind) {
  voiced::say(this, kind, spokenText());
}

void CTTSSliderCtrl::focusInEvent(QFocusEvent* event) {
  QSlider::focusInEvent(event);
  if (voiced::isArrival(this, event)) Speak(SpeechKind::Echo);
}

}  // namespace sonalyx::ui
