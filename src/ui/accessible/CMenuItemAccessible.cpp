#include "ui/accessible/CMenuItemAccessible.h"

#include <QAction>
#include <QKeySequence>
#include <QMenu>
#include <QMenuBar>
#include <QStyle>

namespace sonalyx::ui {

CMenuItemAccessible::CMenuItemAccessible(QWidget* owner, QAction* action)
    : m_owner(owner), m_action(action) {}

QString CMenuItemAccessible::nameOf(const QString& menuText) {
  QString name = menuText.section(QLatin1Char('\t'), 0, 0);
  name.replace(QStringLiteral("&&"), QStringLiteral("\x01"));
  name.remove(QLatin1Char('&'));
  name.replace(QLatin1Char('\x01'), QLatin1Char('&'));
  return name;
}

QString CMenuItemAccessible::keysOf(const QString& menuText) {
  return menuText.section(QLatin1Char('\t'), 1).trimmed();
}

bool CMenuItemAccessible::isValid() const {
  return m_owner && m_action;
}

QObject* CMenuItemAccessible::object() const {
  return m_action;
}

QWindow* CMenuItemAccessible::window() const {
  return m_owner ? m_owner->window()->windowHandle() : nullptr;
}

QAccessibleInterface* CMenuItemAccessible::childAt(int x, int y) const {
  QAccessibleInterface* menu = child(0);
  return menu && menu->rect().contains(x, y) ? menu : nullptr;
}

QAccessibleInterface* CMenuItemAccessible::parent() const {
  return m_owner ? QAccessible::queryAccessibleInterface(m_owner.data()) : nullptr;
}

QAccessibleInterface* CMenuItemAccessible::child(int index) const {
  QMenu* menu = m_action ? m_action->menu() : nullptr;
  return index == 0 && menu ? QAccessible::queryAccessibleInterface(menu) : nullptr;
}

int CMenuItemAccessible::childCount() const {
  return m_action && m_action->menu() ? 1 : 0;
}

int CMenuItemAccessible::indexOfChild(const QAccessibleInterface* child) const {
  return child && m_action && m_action->menu() && child->object() == m_action->menu() ? 0 : -1;
}

QString CMenuItemAccessible::text(QAccessible::Text t) const {
  if (!m_action) return {};
  switch (t) {
    case QAccessible::Name:
      return nameOf(m_action->text());
    case QAccessible::Accelerator: {
      const QString keys = keysOf(m_action->text());
      // A title of the menu bar opens with Alt and its letter.
      if (keys.isEmpty() && qobject_cast<QMenuBar*>(m_owner))
        return QKeySequence::mnemonic(m_action->text()).toString(QKeySequence::NativeText);
      return keys;
    }
    default:
      return {};
  }
}

QRect CMenuItemAccessible::rect() const {
  if (!isValid()) return {};
  QRect item;
  if (auto* menu = qobject_cast<QMenu*>(m_owner))
    item = menu->actionGeometry(m_action);
  else if (auto* bar = qobject_cast<QMenuBar*>(m_owner))
    item = bar->actionGeometry(m_action);
  return QRect(m_owner->mapToGlobal(item.topLeft()), item.size());
}

QAccessible::Role CMenuItemAccessible::role() const {
  return m_action && m_action->isSeparator() ? QAccessible::Separator : QAccessible::MenuItem;
}

bool CMenuItemAccessible::isLit() const {
  if (auto* menu = qobject_cast<QMenu*>(m_owner))
    return menu->isVisible() && menu->activeAction() == m_action;
  if (auto* bar = qobject_cast<QMenuBar*>(m_owner)) return bar->activeAction() == m_action;
  return false;
}

QAccessible::State CMenuItemAccessible::state() const {
  QAccessible::State state;
  if (!isValid()) {
    state.invalid = true;
    return state;
  }
  const QMenu* submenu = m_action->menu();
  state.invisible = !m_owner->isVisible() || !m_action->isVisible();
  state.focused = isLit() && !(submenu && submenu->isVisible() && submenu->activeAction());
  state.hotTracked = m_owner->style()->styleHint(QStyle::SH_Menu_MouseTracking) != 0;
  state.disabled = m_action->isSeparator() || !m_action->isEnabled();
  state.checkable = m_action->isCheckable();
  state.checked = m_action->isChecked();
  state.hasPopup = submenu != nullptr;
  return state;
}

void* CMenuItemAccessible::interface_cast(QAccessible::InterfaceType type) {
  return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
}

QStringList CMenuItemAccessible::actionNames() const {
  if (!m_action || m_action->isSeparator()) return {};
  QStringList names{m_action->menu() ? showMenuAction() : pressAction()};
  if (m_action->isCheckable()) names << toggleAction();
  return names;
}

void CMenuItemAccessible::doAction(const QString& name) {
  if (!isValid() || !m_action->isEnabled()) return;
  if (name == pressAction() || name == toggleAction()) {
    m_action->trigger();
  } else if (name == showMenuAction() && m_action->menu()) {
    if (m_action->menu()->isVisible())
      m_action->menu()->hide();
    else if (auto* bar = qobject_cast<QMenuBar*>(m_owner))
      bar->setActiveAction(m_action);
    else if (auto* menu = qobject_cast<QMenu*>(m_owner))
      menu->setActiveAction(m_action);
  }
}

}  // namespace sonalyx::ui
