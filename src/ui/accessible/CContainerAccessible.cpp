#include "ui/accessible/CContainerAccessible.h"

#include <QWidget>

namespace sonalyx::ui {

CContainerAccessible::CContainerAccessible(QWidget* widget, ChildList children)
    : QAccessibleWidget(widget, QAccessible::Client), m_children(std::move(children)) {}

QString CContainerAccessible::text(QAccessible::Text t) const {
  return t == QAccessible::Name ? QString() : QAccessibleWidget::text(t);
}

QAccessible::State CContainerAccessible::state() const {
  QAccessible::State state = QAccessibleWidget::state();
  // A focus proxy would make it claim the focus of the widget it passes it to.
  state.focusable = false;
  state.focused = false;
  return state;
}

int CContainerAccessible::childCount() const {
  return m_children ? static_cast<int>(m_children().size()) : QAccessibleWidget::childCount();
}

QAccessibleInterface* CContainerAccessible::child(int index) const {
  if (!m_children) return QAccessibleWidget::child(index);
  const QWidgetList children = m_children();
  return index >= 0 && index < children.size() ? QAccessible::queryAccessibleInterface(children[index])
                                               : nullptr;
}

int CContainerAccessible::indexOfChild(const QAccessibleInterface* child) const {
  if (!m_children) return QAccessibleWidget::indexOfChild(child);
  if (!child) return -1;
  return static_cast<int>(m_children().indexOf(qobject_cast<QWidget*>(child->object())));
}

}  // namespace sonalyx::ui
