#pragma once

#include <QAccessibleWidget>
#include <vector>

class QTabBar;
class QTabWidget;

namespace sonalyx::ui {

// The tabs of a tab widget as one page-tab list, named as the tab widget is (not
// after the current tab), whose page tabs hold their pages. The tab that is
// current carries the focus while the tabs have it; the list never claims it.
class CPageTabListAccessible : public QAccessibleWidget {
 public:
  explicit CPageTabListAccessible(QTabBar* bar);
  ~CPageTabListAccessible() override;

  QString text(QAccessible::Text t) const override;
  QAccessible::State state() const override;
  int childCount() const override;
  QAccessibleInterface* child(int index) const override;
  int indexOfChild(const QAccessibleInterface* child) const override;
  QAccessibleInterface* focusChild() const override;

  QTabBar* bar() const;
  QTabWidget* tabWidget() const;

 private:
  mutable std::vector<QAccessible::Id> m_tabs;
};

}  // namespace sonalyx::ui
