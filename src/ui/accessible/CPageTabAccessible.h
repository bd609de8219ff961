#pragma once

#include <QAccessibleInterface>
#include <QPointer>

class QTabBar;

namespace sonalyx::ui {

// One tab of a page-tab list, holding its page. It carries the focus while the
// tabs have it and it is current, unless a menu is open.
class CPageTabAccessible : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  CPageTabAccessible(QTabBar* bar, int index);

  QTabBar* bar() const { return m_bar; }
  int index() const { return m_index; }
  // The page the tab brings forward; nullptr when there is none.
  QWidget* page() const;

  bool isValid() const override;
  QObject* object() const override { return nullptr; }
  QWindow* window() const override;
  QAccessibleInterface* childAt(int x, int y) const override;
  QAccessibleInterface* parent() const override;
  QAccessibleInterface* child(int index) const override;
  int childCount() const override;
  int indexOfChild(const QAccessibleInterface* child) const override;
  QString text(QAccessible::Text t) const override;
  void setText(QAccessible::Text, const QString&) override {}
  QRect rect() const override;
  QAccessible::Role role() const override { return QAccessible::PageTab; }
  QAccessible::State state() const override;
  void* interface_cast(QAccessible::InterfaceType type) override;

  QStringList actionNames() const override;
  void doAction(const QString& name) override;
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

 private:
  QPointer<QTabBar> m_bar;
  int m_index;
};

}  // namespace sonalyx::ui
