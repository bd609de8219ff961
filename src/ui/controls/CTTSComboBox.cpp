#include "ui/controls/CTTSComboBox.h"

#include <QAbstractItemView>
#include <QFocusEvent>

#include "ui/app/CGraphCalcApp.h"
#include "ui/controls/VoicedText.h"

namespace sonalyx::ui {

CTTSComboBox::CTTSComboBox(QWidget* parent) : QComboBox(parent) {
  // The user's changes only (keys, the list, the mouse); the program's own
  // setCurrentIndex stays silent.
  connect(this, &QComboBox::activated, this, [this](int index) {
    if (index == m_lastHighlighted) {
      m_lastHighlighted = -1;
      return;
    }
    m_lastHighlighted = -1;
    Speak(SpeechKind::Echo);
  });
  connect(this, &QComboBox::highlighted, this, [this](int index) {
    if (!view() || !view()->isVisible()) return;
    m_lastHighlighted = index;
    speakItem(SpeechKind::Echo, index);
  });
}

void CTTSComboBox::setSpokenLabel(const QString& english) {
  m_spokenLabel = Translate(english);
  setAccessibleName(m_spokenLabel);
  // The open list is named after its box too.
  if (view()) view()->setAccessibleName(m_spokenLabel);
}

QString CTTSComboBox::itemSpokenText(int index) const {
  const QString words = itemData(index, Qt::AccessibleTextRole).toString();
  const QString item = words.isEmpty() ? itemText(index) : words;
  return m_spokenLabel.isEmpty() ? item : m_spokenLabel + QLatin1Char(' ') + item;
}

QString CTTSComboBox::spokenText() const {
  if (currentIndex() < 0) return m_spokenLabel;
  return itemSpokenText(currentIndex());
}

void CTTSComboBox::Speak(SpeechKind kind) {
  speakItem(kind, currentIndex());
}

void CTTSComboBox::speakItem(SpeechKind kind, int index) {
  if (index < 0) {
    voiced::say(this, kind, m_spokenLabel);
    return;
  }
  voiced::playSoundEffect(2);
  voiced::say(this, kind, itemSpokenText(index));
}

void CTTSComboBox::focusInEvent(QFocusEvent* event) {
  QComboBox::focusInEvent(event);
  if (voiced::isArrival(this, event)) Speak(SpeechKind::Echo);
}

}  // namespace sonalyx::ui
