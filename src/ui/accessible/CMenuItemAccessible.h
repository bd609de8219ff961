#pragma once

#include <QAccessibleInterface>
#include <QPointer>

class QAction;
class QWidget;

namespace sonalyx::ui {

// An item of a menu or of the menu bar, named as a screen reader should say it:
// its text without the "&" and without the keys that follow a tab in the menu
// text ("&Larger\tF8" is "Larger"); the keys ("F8") are its shortcut. Only the
// innermost item that is lit claims the focus: a title whose menu has a lit item
// does not.
class CMenuItemAccessible : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  // `owner` is the QMenu or QMenuBar that shows the action.
  CMenuItemAccessible(QWidget* owner, QAction* action);

  // The name and the keys of a menu text.
  static QString nameOf(const QString& menuText);
  static QString keysOf(const QString& menuText);

  bool isValid() const override;
  QObject* object() const override;
  QWindow* window() const override;
  QAccessibleInterface* childAt(int x, int y) const override;
  QAccessibleInterface* parent() const override;
  QAccessibleInterface* child(int index) const override;
  int childCount() const override;
  int indexOfChild(const QAccessibleInterface* child) const override;
  QString text(QAccessible::Text t) const override;
  void setText(QAccessible::Text, const QString&) override {}
  QRect rect() const override;
  QAccessible::Role role() const override;
  QAccessible::State state() const override;
  void* interface_cast(QAccessible::InterfaceType type) override;

  QStringList actionNames() const override;
  void doAction(const QString& name) override;
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

 private:
  bool isLit() const;

  QPointer<QWidget> m_owner;
  QPointer<QAction> m_action;
};

}  // namespace sonalyx::ui
