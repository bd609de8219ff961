#pragma once

#include <QAccessibleWidget>

namespace sonalyx::ui {

// The menu bar, or a menu that has popped up below the item that opened it,
// holding their items. A lit item has the focus, never the menu itself (nor the
// menu bar, which holds the keyboard while its titles are lit).
class CMenuAccessible : public QAccessibleWidget {
 public:
  // `menu` is a QMenu or a QMenuBar.
  explicit CMenuAccessible(QWidget* menu);

  QAccessibleInterface* parent() const override;
  int childCount() const override;
  QAccessibleInterface* child(int index) const override;
  int indexOfChild(const QAccessibleInterface* child) const override;
  QAccessible::State state() const override;
};

}  // namespace sonalyx::ui
