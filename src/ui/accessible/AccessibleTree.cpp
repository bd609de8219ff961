#include "ui/accessible/AccessibleTree.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QTimer>

#include "ui/accessible/CContainerAccessible.h"
#include "ui/accessible/CMenuAccessible.h"
#include "ui/accessible/CMenuItemAccessible.h"
#include "ui/accessible/CPageTabListAccessible.h"
#include "ui/accessible/CTabPageAccessible.h"

namespace sonalyx::ui::accessible {

namespace {

constexpr const char* kLayoutOnly = "sonalyxLayoutOnly";
constexpr const char* kPageTabList = "sonalyxPageTabList";
// How many QuietFocus objects live.
int g_quietFocus = 0;

bool isPageTabList(const QObject* object) {
  return object && object->property(kPageTabList).toBool();
}

// The menu or menu bar that shows `action`.
QWidget* menuHolding(QAction* action) {
  for (QObject* holder : action->associatedObjects())
    if (qobject_cast<QMenu*>(holder) || qobject_cast<QMenuBar*>(holder)) return static_cast<QWidget*>(holder);
  return nullptr;
}

QAccessibleInterface* factory(const QString& /*className*/, QObject* object) {
  if (auto* action = qobject_cast<QAction*>(object)) {
    QWidget* owner = menuHolding(action);
    return owner ? new CMenuItemAccessible(owner, action) : nullptr;
  }
  auto* widget = qobject_cast<QWidget*>(object);
  if (!widget) return nullptr;
  if (qobject_cast<QMenu*>(widget) || qobject_cast<QMenuBar*>(widget)) return new CMenuAccessible(widget);
  QWidget* parent = widget->parentWidget();
  if (auto* tabs = qobject_cast<QTabWidget*>(widget); tabs && isPageTabList(tabs))
    return new CContainerAccessible(tabs, [tabs] { return QWidgetList{tabs->tabBar()}; });
  if (auto* bar = qobject_cast<QTabBar*>(widget); bar && isPageTabList(parent))
    return new CPageTabListAccessible(bar);
  if (qobject_cast<QStackedWidget*>(widget) && isPageTabList(parent))
    return new CContainerAccessible(widget, [] { return QWidgetList{}; });  // the pages hang below their tabs
  if (parent && qobject_cast<QStackedWidget*>(parent) && isPageTabList(parent->parentWidget()))
    return new CTabPageAccessible(widget);
  if (widget->property(kLayoutOnly).toBool()) return new CContainerAccessible(widget);
  return nullptr;
}

// A name set in a constructor already asks for an interface: the one made before
// the mark is dropped, so that the next question makes the marked one.
void refresh(QObject* object) {
  if (QAccessibleInterface* iface = QAccessible::queryAccessibleInterface(object))
    QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(iface));
}

bool isMenu(const QObject* object) {
  return qobject_cast<const QMenu*>(object) || qobject_cast<const QMenuBar*>(object) ||
         qobject_cast<const QAction*>(object);
}

// While a menu is open or the menu bar is active, the focus is the menus' own:
// Qt still reports the panel's control when one popup closes and the next opens,
// which would take a screen reader out of the menus.
bool menusHoldFocus(const QObject* object) {
  if (qobject_cast<QMenu*>(QApplication::activePopupWidget())) return true;
  const auto* widget = qobject_cast<const QWidget*>(object);
  const auto* frame = widget ? qobject_cast<const QMainWindow*>(widget->window()) : nullptr;
  const QMenuBar* bar = frame ? qobject_cast<const QMenuBar*>(frame->menuWidget()) : nullptr;
  return bar && bar->activeAction() != nullptr;
}

void filter(QAccessibleEvent* event);

void forward(QAccessibleEvent* event) {
  QAccessible::installUpdateHandler(nullptr);
  QAccessible::updateAccessibility(event);
  QAccessible::installUpdateHandler(&filter);
}

void filter(QAccessibleEvent* event) {
  QObject* object = event->object();
  if (event->type() == QAccessible::Focus &&
      (g_quietFocus > 0 || (object && !isMenu(object) && menusHoldFocus(object))))
    return;
  // The tabs' own focus is the current tab's, as it is when the arrows turn them.
  if (event->type() == QAccessible::Focus && event->child() < 0) {
    if (auto* bar = qobject_cast<QTabBar*>(object); bar && isPageTabList(bar->parentWidget())) {
      if (bar->currentIndex() >= 0) {
        QAccessibleEvent tab(bar, QAccessible::Focus);
        tab.setChild(bar->currentIndex());
        forward(&tab);
        return;
      }
    }
  }
  // A title of the menu bar is lit just before its menu opens and lights its first
  // item: said only if that does not follow, so that the key moves the focus once.
  if (event->type() == QAccessible::Focus && event->child() >= 0) {
    if (auto* bar = qobject_cast<QMenuBar*>(object)) {
      const int index = event->child();
      QTimer::singleShot(0, bar, [bar = QPointer<QMenuBar>(bar), index] {
        const QList<QAction*> titles = bar ? bar->actions() : QList<QAction*>();
        if (index >= titles.size() || bar->activeAction() != titles[index]) return;
        const QMenu* menu = titles[index]->menu();
        if (menu && menu->isVisible() && menu->activeAction()) return;
        QAccessibleEvent title(bar.data(), QAccessible::Focus);
        title.setChild(index);
        forward(&title);
      });
      return;
    }
  }
  forward(event);
}

}  // namespace

void install() {
  static bool installed = false;
  if (installed) return;
  installed = true;
  QAccessible::installFactory(&factory);
  QAccessible::installUpdateHandler(&filter);
}

void markLayoutOnly(QWidget* widget) {
  widget->setProperty(kLayoutOnly, true);
  refresh(widget);
}

void markPageTabList(QTabWidget* tabs) {
  tabs->setProperty(kPageTabList, true);
  refresh(tabs);
  refresh(tabs->tabBar());
  for (QStackedWidget* stack : tabs->findChildren<QStackedWidget*>(Qt::FindDirectChildrenOnly))
    refresh(stack);
  for (int index = 0; index < tabs->count(); ++index) refresh(tabs->widget(index));
}

QuietFocus::QuietFocus() {
  ++g_quietFocus;
}

QuietFocus::~QuietFocus() {
  --g_quietFocus;
}

void announceMenuItem(QWidget* widget) {
  auto* menu = qobject_cast<QMenu*>(widget);
  if (!menu || !menu->activeAction()) return;
  QAccessibleEvent focus(menu, QAccessible::Focus);
  focus.setChild(static_cast<int>(menu->actions().indexOf(menu->activeAction())));
  QAccessible::updateAccessibility(&focus);
}

}  // namespace sonalyx::ui::accessible
