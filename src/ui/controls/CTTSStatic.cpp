#include "ui/controls/CTTSStatic.h"

#include <QFocusEvent>
#include <QPainter>

#include "ui/app/CGraphCalcApp.h"
#include "ui/controls/VoicedText.h"

namespace sonalyx::ui {

CTTSStatic::CTTSStatic(const QString& text, QWidget* parent) : QLabel(text, parent) {
  setFocusPolicy(Qt::StrongFocus);
}

void CTTSStatic::setSpokenLabel(const QString& english) {
  m_spokenLabel = Translate(english);
  setAccessibleName(m_spokenLabel);
}

QString CTTSStatic::spokenText() const {
  return Translate("Label. ") + (m_spokenLabel.isEmpty() ? voiced::withoutMnemonic(text()) : m_spokenLabel);
}

void CTTSStatic::Speak(SpeechKind kind) {
  voiced::say(this, kind, spokenText());
}

void CTTSStatic::focusInEvent(QFocusEvent* event) {
  QLabel::focusInEvent(event);
  if (voiced::isArrival(this, event)) Speak(SpeechKind::Echo);
  update();
}

void CTTSStatic::focusOutEvent(QFocusEvent* event) {
  QLabel::focusOutEvent(event);
  update();
}

void CTTSStatic::paintEvent(QPaintEvent* event) {
  QLabel::paintEvent(event);
  if (!hasFocus()) return;
  QPainter painter(this);
  painter.setPen(palette().color(foregroundRole()));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace sonalyx::ui
