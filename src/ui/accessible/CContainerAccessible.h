#pragma once

#include <QAccessibleWidget>
#include <QWidgetList>
#include <functional>

namespace sonalyx::ui {

// A widget that only lays out others, as a screen reader should pass over it: an
// unnamed filler that never takes the focus. It lists its child widgets, or the
// ones `children` names when some of them appear elsewhere in the tree.
class CContainerAccessible : public QAccessibleWidget {
 public:
  using ChildList = std::function<QWidgetList()>;

  explicit CContainerAccessible(QWidget* widget, ChildList children = {});

  QString text(QAccessible::Text t) const override;
  QAccessible::State state() const override;
  int childCount() const override;
  QAccessibleInterface* child(int index) const override;
  int indexOfChild(const QAccessibleInterface* child) const override;

 private:
  ChildList m_children;
};

}  // namespace sonalyx::ui
