#pragma once

#include <QAccessibleWidget>

namespace sonalyx::ui {

// A page of a page-tab list, as the child of its tab (not of the stack that holds
// the pages on screen). It is a container a screen reader passes over: the tab
// names the page.
class CTabPageAccessible : public QAccessibleWidget {
 public:
  explicit CTabPageAccessible(QWidget* page);

  QAccessibleInterface* parent() const override;
  QString text(QAccessible::Text t) const override;
  QAccessible::State state() const override;
};

}  // namespace sonalyx::ui
