#include "ui/accessible/CPageTabAccessible.h"

#include <QApplication>
#include <QTabBar>
#include <QTabWidget>
#include <QWidget>

namespace sonalyx::ui {

namespace {

QString withoutMnemonic(QString text) {
  text.replace(QStringLiteral("&&"), QStringLiteral("\x01"));
  text.remove(QLatin1Char('&'));
  text.replace(QLatin1Char('\x01'), QLatin1Char('&'));
  return text;
}

}  // namespace

CPageTabAccessible::CPageTabAccessible(QTabBar* bar, int index) : m_bar(bar), m_index(index) {}

bool CPageTabAccessible::isValid() const {
  return m_bar && m_index < m_bar->count();
}

QWidget* CPageTabAccessible::page() const {
  const auto* tabs = m_bar ? qobject_cast<QTabWidget*>(m_bar->parentWidget()) : nullptr;
  return tabs ? tabs->widget(m_index) : nullptr;
}

QWindow* CPageTabAccessible::window() const {
  return m_bar ? m_bar->window()->windowHandle() : nullptr;
}

QAccessibleInterface* CPageTabAccessible::childAt(int x, int y) const {
  QAccessibleInterface* content = child(0);
  return content && content->rect().contains(x, y) ? content : nullptr;
}

QAccessibleInterface* CPageTabAccessible::parent() const {
  return m_bar ? QAccessible::queryAccessibleInterface(m_bar.data()) : nullptr;
}

QAccessibleInterface* CPageTabAccessible::child(int index) const {
  QWidget* content = page();
  return index == 0 && content ? QAccessible::queryAccessibleInterface(content) : nullptr;
}

int CPageTabAccessible::childCount() const {
  return page() ? 1 : 0;
}

int CPageTabAccessible::indexOfChild(const QAccessibleInterface* child) const {
  return child && page() && child->object() == page() ? 0 : -1;
}

QString CPageTabAccessible::text(QAccessible::Text t) const {
  if (!isValid() || t != QAccessible::Name) return {};
  return withoutMnemonic(m_bar->tabText(m_index));
}

QRect CPageTabAccessible::rect() const {
  if (!isValid()) return {};
  const QRect tab = m_bar->tabRect(m_index);
  return QRect(m_bar->mapToGlobal(tab.topLeft()), tab.size());
}

QAccessible::State CPageTabAccessible::state() const {
  QAccessible::State state;
  if (!isValid()) {
    state.invalid = true;
    return state;
  }
  const bool current = m_bar->currentIndex() == m_index;
  state.focusable = true;
  state.selectable = true;
  state.selected = current;
  // While a menu is open, its item has the focus.
  state.focused = current && m_bar->hasFocus() && !QApplication::activePopupWidget();
  state.disabled = !m_bar->isTabEnabled(m_index);
  state.invisible = !m_bar->isVisible() || !m_bar->isTabVisible(m_index);
  return state;
}

void* CPageTabAccessible::interface_cast(QAccessible::InterfaceType type) {
  return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
}

QStringList CPageTabAccessible::actionNames() const {
  return {pressAction()};
}

void CPageTabAccessible::doAction(const QString& name) {
  if (name == pressAction() && isValid()) m_bar->setCurrentIndex(m_index);
}

}  // namespace sonalyx::ui
