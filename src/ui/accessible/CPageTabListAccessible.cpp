#include "ui/accessible/CPageTabListAccessible.h"

#include <QTabBar>
#include <QTabWidget>

#include "ui/accessible/CPageTabAccessible.h"

namespace sonalyx::ui {

CPageTabListAccessible::CPageTabListAccessible(QTabBar* bar)
    : QAccessibleWidget(bar, QAccessible::PageTabList) {}

CPageTabListAccessible::~CPageTabListAccessible() {
  for (const QAccessible::Id id : m_tabs) QAccessible::deleteAccessibleInterface(id);
}

QTabBar* CPageTabListAccessible::bar() const {
  return static_cast<QTabBar*>(widget());
}

QTabWidget* CPageTabListAccessible::tabWidget() const {
  return qobject_cast<QTabWidget*>(bar()->parentWidget());
}

QString CPageTabListAccessible::text(QAccessible::Text t) const {
  if (t != QAccessible::Name) return QAccessibleWidget::text(t);
  if (!bar()->accessibleName().isEmpty()) return bar()->accessibleName();
  return tabWidget() ? tabWidget()->accessibleName() : QString();
}

QAccessible::State CPageTabListAccessible::state() const {
  QAccessible::State state = QAccessibleWidget::state();
  state.focused = false;
  return state;
}

int CPageTabListAccessible::childCount() const {
  return bar()->count();
}

QAccessibleInterface* CPageTabListAccessible::child(int index) const {
  if (index < 0 || index >= bar()->count()) return nullptr;
  while (m_tabs.size() <= static_cast<std::size_t>(index)) {
    auto* tab = new CPageTabAccessible(bar(), static_cast<int>(m_tabs.size()));
    m_tabs.push_back(QAccessible::registerAccessibleInterface(tab));
  }
  return QAccessible::accessibleInterface(m_tabs[static_cast<std::size_t>(index)]);
}

int CPageTabListAccessible::indexOfChild(const QAccessibleInterface* child) const {
  const auto* tab = dynamic_cast<const CPageTabAccessible*>(child);
  return tab && tab->bar() == bar() && tab->index() < bar()->count() ? tab->index() : -1;
}

QAccessibleInterface* CPageTabListAccessible::focusChild() const {
  return bar()->hasFocus() ? child(bar()->currentIndex()) : nullptr;
}

}  // namespace sonalyx::ui
