#include "ui/controls/CTTSEdit.h"

#include <QKeyEvent>
#include <algorithm>
#include <cstdint>

#include "core/utility/FPRounder.h"
#include "ui/app/CGraphCalcApp.h"
#include "ui/controls/VoicedText.h"

namespace sonalyx::ui {

CTTSEdit::CTTSEdit(QWidget* parent) : QLineEdit(parent) {}

void CTTSEdit::setSpokenLabel(const QString& english) {
  m_spokenLabel = Translate(english);
  setAccessibleName(m_spokenLabel);
}

QString CTTSEdit::spokenText() const {
  QString body = text();
  if (m_roundNumber) {
    const int digits = std::clamp(voiced::spokenDecimals(), 0, 99);
    body = QString::fromStdString(FPRounder::round(body.toStdString(), static_cast<std::uint16_t>(digits)));
  }
  return m_mathSymbols ? voiced::expandSymbols(m_spokenLabel + body) : m_spokenLabel + body;
}

void CTTSEdit::Speak(SpeechKind kind) {
  voiced::say(this, kind, spokenText());
}

void CTTSEdit::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  if (voiced::isArrival(this, event)) Speak(SpeechKind::Echo);
}

void CTTSEdit::keyPressEvent(QKeyEvent* event) {
  const QString current = text();
  switch (event->key()) {
    case Qt::Key_Backspace:
      voiced::say(this, SpeechKind::Echo, Translate("Backspace. ") + current.right(1));
      break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      break;
    case Qt::Key_Left:
    case Qt::Key_Right: {
      const int step = event->key() == Qt::Key_Left ? -1 : 1;
      const int target = std::max(cursorPosition() + step, 0);
      if (target < current.size())
        voiced::say(this, SpeechKind::Echo,
                    m_mathSymbols ? voiced::expandSymbols(current.mid(target, 1)) : current.mid(target, 1));
      break;
    }
    default: {
      const QString typed = event->text();
      if (!typed.isEmpty() && typed.at(0).isPrint())
        voiced::say(this, SpeechKind::Echo, m_mathSymbols ? voiced::expandSymbols(typed) : typed);
      break;
    }
  }
  QLineEdit::keyPressEvent(event);
}

}  // namespace sonalyx::ui
