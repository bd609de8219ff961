#include "ui/accessible/CTabPageAccessible.h"

#include <QTabBar>
#include <QTabWidget>

namespace sonalyx::ui {

namespace {

QTabWidget* tabWidgetOf(const QWidget* page) {
  const QWidget* stack = page->parentWidget();
  return stack ? qobject_cast<QTabWidget*>(stack->parentWidget()) : nullptr;
}

}  // namespace

CTabPageAccessible::CTabPageAccessible(QWidget* page) : QAccessibleWidget(page, QAccessible::Client) {}

QAccessibleInterface* CTabPageAccessible::parent() const {
  QTabWidget* tabs = tabWidgetOf(widget());
  if (!tabs) return QAccessibleWidget::parent();
  QAccessibleInterface* list = QAccessible::queryAccessibleInterface(tabs->tabBar());
  return list ? list->child(tabs->indexOf(widget())) : nullptr;
}

QString CTabPageAccessible::text(QAccessible::Text t) const {
  return t == QAccessible::Name ? QString() : QAccessibleWidget::text(t);
}

QAccessible::State CTabPageAccessible::state() const {
  QAccessible::State state = QAccessibleWidget::state();
  state.focusable = false;
  state.focused = false;
  return state;
}

}  // namespace sonalyx::ui
