#pragma once

#include <QKeyCombination>
#include <QMenuBar>
#include <QObject>
#include <QPointer>
#include <map>
#include <span>

class QAction;
class QMenu;
class QWidget;

namespace sonalyx::ui {

// One command: its identifier, its English menu text (nullptr for a command that
// has only a key) and up to two keys.
struct CommandSpec {
  int id;
  const char* menuText;
  int keyCount;
  QKeyCombination keys[2];
};

// One line of the menu bar's layout, in order.
struct MenuLine {
  enum Kind { Command, Separator, BeginPopup, EndPopup };
  Kind kind;
  int id;            // Command
  const char* text;  // BeginPopup: the popup's English title
};

// The command table: one action per command with its menu text and keys, and the
// menu bar that shows them. Every action is added to the window, so that its keys
// work wherever the focus is inside it. Triggering an action emits
// commandTriggered with its identifier; who handles which command is the frames'
// business.
class CCommandTable : public QObject {
  Q_OBJECT
 public:
  explicit CCommandTable(QWidget* window);
  ~CCommandTable() override;

  static std::span<const CommandSpec> commands();
  static std::span<const MenuLine> menuLayout();
  static const CommandSpec* find(int id);

  // The action of a command; nullptr for an unknown identifier.
  QAction* action(int id) const;
  // The identifier an action stands for; -1 for any other action.
  static int commandId(const QAction* action);

  // The menu bar (its four popups "&File", "&Options", "&Graph", "&Help"). It
  // belongs to whoever installs it, otherwise to the table.
  QMenuBar* menuBar() const { return m_menuBar; }
  QMenu* popup(int position) const;
  // The popup holding the graph item ("&Show Graph" or "&Hide Graph").
  QMenu* graphPopup() const { return popup(2); }

 signals:
  void commandTriggered(int id);

 private:
  std::map<int, QAction*> m_actions;
  QPointer<QMenuBar> m_menuBar;
};

}  // namespace sonalyx::ui
