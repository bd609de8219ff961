#include "ui/controls/CTTSTabCtrl.h"

#include <QFocusEvent>

#include "ui/app/CGraphCalcApp.h"
#include "ui/controls/VoicedText.h"

namespace sonalyx::ui {

CTTSTabCtrl::CTTSTabCtrl(QWidget* parent) : QTabBar(parent) {
  setFocusPolicy(Qt::StrongFocus);
  setAccessibleName(Translate("Control panel"));
}

QString CTTSTabCtrl::screenText(int index) const {
  return tabText(index).left(31) + QLatin1Char(' ') + Translate("screen.");
}

void CTTSTabCtrl::Speak() {
  if (currentIndex() >= 0) voiced::say(this, screenText(currentIndex()));
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
  if (isVisible() && voiced::isArrival(this, event)) Speak();
}

QSize CTTSTabCtrl::tabSizeHint(int index) const {
  QSize size = QTabBar::tabSizeHint(index);
  if (size.width() < m_minimumTabWidth) size.setWidth(m_minimumTabWidth);
  return size;
}

}  // namespace sonalyx::ui
