#include "ui/accessible/CMenuAccessible.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

namespace sonalyx::ui {

CMenuAccessible::CMenuAccessible(QWidget* menu)
    : QAccessibleWidget(menu, qobject_cast<QMenuBar*>(menu) ? QAccessible::MenuBar : QAccessible::PopupMenu) {
}

QAccessibleInterface* CMenuAccessible::parent() const {
  auto* menu = qobject_cast<QMenu*>(widget());
  if (!menu) return QAccessibleWidget::parent();
  QAction* opener = menu->menuAction();
  for (QObject* holder : opener->associatedObjects()) {
    if ((qobject_cast<QMenu*>(holder) || qobject_cast<QMenuBar*>(holder)) &&
        static_cast<QWidget*>(holder)->actions().contains(opener))
      return QAccessible::queryAccessibleInterface(opener);
  }
  return QAccessibleWidget::parent();
}

int CMenuAccessible::childCount() const {
  return static_cast<int>(widget()->actions().size());
}

QAccessibleInterface* CMenuAccessible::child(int index) const {
  const QList<QAction*> actions = widget()->actions();
  return index >= 0 && index < actions.size() ? QAccessible::queryAccessibleInterface(actions[index])
                                              : nullptr;
}

int CMenuAccessible::indexOfChild(const QAccessibleInterface* child) const {
  if (!child) return -1;
  return static_cast<int>(widget()->actions().indexOf(qobject_cast<QAction*>(child->object())));
}

QAccessible::State CMenuAccessible::state() const {
  QAccessible::State state = QAccessibleWidget::state();
  state.focused = false;
  return state;
}

}  // namespace sonalyx::ui
