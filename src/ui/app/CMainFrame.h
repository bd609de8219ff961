#pragma once

#include <QMainWindow>
#include <QPointer>

#include "ui/app/CAccessibilityHooks.h"

class QAction;
class QMdiArea;
class QMenu;

namespace sonalyx::ui {

class CChildFrame;
class CCommandTable;
class CGraphCalcApp;

// The top-level window: an MDI area holding the one child frame, the menu bar, the
// menu speech and the accessibility hooks. It forwards the pages' requests to
// redraw and to focus the graph to its child.
class CMainFrame : public QMainWindow {
  Q_OBJECT
 public:
  // Starts the accessibility hooks; the window starts with the short menu of a
  // frame without a child ("&File", "E&xit").
  explicit CMainFrame(CGraphCalcApp& app);
  ~CMainFrame() override;

  // Installs the command table's menu bar, with menu speech on every popup, and
  // creates the child frame, which handles the commands.
  CChildFrame* CreateChild(CCommandTable& commands);
  CChildFrame* child() const { return m_child; }
  QMdiArea* mdiArea() const { return m_mdiArea; }
  const CAccessibilityHooks& hooks() const { return m_hooks; }

  // The text said when a menu item is selected: its text without "&", with
  // ". Grayed." for a disabled item. An item that opens a popup, a submenu
  // included, says its own title. Separators say nothing.
  QString menuSelectText(const QWidget* container, const QAction* action) const;

 public slots:
  // The pages' requests, passed to the child.
  void redrawGraph();
  bool focusGraph();

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void onMenuSelect(const QWidget* container, QAction* action);
  void connectMenuSpeech(QMenu* menu);
  void shutDownVoices();

  CGraphCalcApp& m_app;
  QMdiArea* m_mdiArea = nullptr;
  QPointer<CChildFrame> m_child;
  CAccessibilityHooks m_hooks;
};

}  // namespace sonalyx::ui
