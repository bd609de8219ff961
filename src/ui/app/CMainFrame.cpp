#include "ui/app/CMainFrame.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QMdiArea>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QTimer>

#include "ui/accessible/AccessibleTree.h"
#include "ui/app/CChildFrame.h"
#include "ui/app/CGraphCalcApp.h"
#include "ui/app/CommandTable.h"
#include "ui/app/ProductInfo.h"
#include "ui/app/ProgramIcon.h"
#include "ui/app/Voice.h"

namespace sonalyx::ui {

namespace {

// The text of the menu-bar item that carries command `id`, searched through
// every popup; empty when no item carries it.
QString textOfCommand(const QWidget* menu, int id) {
  for (const QAction* action : menu->actions()) {
    if (action->menu()) {
      const QString found = textOfCommand(action->menu(), id);
      if (!found.isNull()) return found;
    } else if (CCommandTable::commandId(action) == id) {
      return action->text();
    }
  }
  return {};
}

}  // namespace

CMainFrame::CMainFrame(CGraphCalcApp& app) : m_app(app) {
  setWindowTitle(QString::fromUtf8(product::kTitle));
  setAccessibleName(Translate(product::kTitle));
  setWindowIcon(programIcon());
  CAccessibilityHooks::markSelfVoiced(this);

  m_mdiArea = new QMdiArea(this);
  // The child may grow past the window: the work area scrolls then.
  m_mdiArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  m_mdiArea->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  // Only a frame around the child: a screen reader passes over it.
  accessible::markLayoutOnly(m_mdiArea);
  setCentralWidget(m_mdiArea);
  resize(1000, 640);

  // The frame's own menu until the child's menu bar replaces it.
  auto* frameMenu = new QMenuBar();
  QMenu* file = frameMenu->addMenu(Translate("&File"));
  file->addAction(Translate("E&xit"), this, &QWidget::close);
  setMenuBar(frameMenu);

  CAccessibilityHooks::setAccessibility(true);
  m_hooks.Start(this, [](const QString& text) { voice::Speak(SpeechKind::Echo, text); });
}

CMainFrame::~CMainFrame() {
  shutDownVoices();
}

void CMainFrame::shutDownVoices() {
  // The hooks first, so that nothing speaks after the voice has stopped.
  m_hooks.Stop();
  voice::Stop();
}

CChildFrame* CMainFrame::CreateChild(CCommandTable& commands) {
  QMenuBar* bar = commands.menuBar();
  setMenuBar(bar);
  connect(bar, &QMenuBar::hovered, this, [this, bar](QAction* action) { onMenuSelect(bar, action); });
  for (QAction* top : bar->actions())
    if (top->menu()) connectMenuSpeech(top->menu());

  m_child = new CChildFrame(m_app, commands);
  m_mdiArea->addSubWindow(m_child);
  m_child->show();
  m_mdiArea->setActiveSubWindow(m_child);

  // F10 moves into the menu bar, as on the desktop the program comes from.
  auto* menuKey = new QAction(this);
  menuKey->setShortcut(Qt::Key_F10);
  connect(menuKey, &QAction::triggered, this, [this] {
    if (menuBar() && !menuBar()->actions().isEmpty())
      menuBar()->setActiveAction(menuBar()->actions().first());
  });
  addAction(menuKey);
  return m_child;
}

void CMainFrame::connectMenuSpeech(QMenu* menu) {
  connect(menu, &QMenu::hovered, this, [this, menu](QAction* action) { onMenuSelect(menu, action); });
  for (QAction* action : menu->actions()) {
    QMenu* submenu = action->menu();
    if (!submenu) continue;
    connectMenuSpeech(submenu);
    // Leaving a submenu for its title is no move in Qt's eyes, and would be silent.
    // Looked at once the menus have settled: a chosen item closes them all.
    connect(submenu, &QMenu::aboutToHide, this, [this, menu, action] {
      QTimer::singleShot(0, this, [this, menu = QPointer<QMenu>(menu), action = QPointer<QAction>(action)] {
        if (!menu || !action || !menu->isVisible() || menu->activeAction() != action) return;
        onMenuSelect(menu, action);
        accessible::announceMenuItem(menu);
      });
    });
  }
}

QString CMainFrame::menuSelectText(const QWidget* container, const QAction* action) const {
  if (!action || action->isSeparator() || !container) return {};
  QString text;
  const QMenuBar* bar = menuBar();
  if (action->menu()) {
    // Its own title, also for a submenu inside a popup (the menu bar holds
    // something else at that position, or nothing).
    text = action->text();
  } else if (bar) {
    text = textOfCommand(bar, CCommandTable::commandId(action));
  }
  if (!action->isEnabled()) text += Translate(". Grayed.");
  text.remove(QLatin1Char('&'));
  return text;
}

void CMainFrame::onMenuSelect(const QWidget* container, QAction* action) {
  // A popup's hover is reported again by every menu above it; only the menu that
  // holds the item speaks.
  if (!action || action->isSeparator() || !container->actions().contains(action)) return;
  voice::Speak(SpeechKind::Echo, menuSelectText(container, action));
}

void CMainFrame::redrawGraph() {
  if (m_child) m_child->redrawGraph();
}

bool CMainFrame::focusGraph() {
  return m_child && m_child->focusGraph();
}

void CMainFrame::closeEvent(QCloseEvent* event) {
  QMainWindow::closeEvent(event);
  if (event->isAccepted()) shutDownVoices();
}

}  // namespace sonalyx::ui
