#include "ui/controls/CTTSTabCtrl.h"

#include <QAbstractButton>
#include <QFocusEvent>

#include "ui/app/CGraphCalcApp.h"
#include "ui/controls/VoicedText.h"

namespace sonalyx::ui {

CTTSTabCtrl::CTTSTabCtrl(QWidget* parent) : QTabBar(parent) {
  setFocusPolicy(Qt::StrongFocus);
  // The scroll arrows would be silent stops for Tab; the arrow keys turn the tabs.
  for (QAbstractButton* arrow : findChildren<QAbstractButton*>()) arrow->setFocusPolicy(Qt::NoFocus);
}

QString CTTSTabCtrl::screenText(int index) const {
  return tabText(index).left(31) + QLatin1Char(' ') + Translate("screen.");
}

void CTTSTabCtrl::Speak(SpeechKind kind) {
  if (currentIndex() >= 0) voiced::say(this, kind, screenText(currentIndex()));
}

void CTTSTabCtrl::setMinimumTabWidth(int width) {
  if (width == m_minimumTabWidth) return;
  m_minimumTabWidth = width;
  // Makes the bar lay its tabs out again with the new hint.
  setUsesScrollButtons(usesScrollButtons());
  updateGeometry();
}

void CTTSTabCtrl::focusInEvent(QFocusEvent* event) {
  QTabBar::focusInEvent(event);
  if (isVisible() && !m_quietFocus && voiced::isArrival(this, event)) Speak(SpeechKind::Echo);
}

void CTTSTabCtrl::takeFocusQuietly() {
  m_quietFocus = true;
  setFocus(Qt::OtherFocusReason);
  m_quietFocus = false;
}

QSize CTTSTabCtrl::tabSizeHint(int index) const {
  QSize size = QTabBar::tabSizeHint(index);
  if (size.width() < m_minimumTabWidth) size.setWidth(m_minimumTabWidth);
  return size;
}

}  // namespace sonalyx::ui
