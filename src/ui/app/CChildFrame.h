#pragma once

#include <QFont>
#include <QMdiSubWindow>

namespace sonalyx::ui {

class CCalcSheet;
class CCommandTable;
class CDataPage;
class CGraphCalcApp;
class CGraphPlayer;
class CPlotWnd;

// The one window inside the main frame for the whole run: the control panel, and
// beside it the graph when shown. It handles the commands of the menu bar and the
// hot keys, changes its size in steps (never by the mouse) and shows or hides the
// graph.
class CChildFrame : public QMdiSubWindow {
  Q_OBJECT
 public:
  CChildFrame(CGraphCalcApp& app, CCommandTable& commands);
  ~CChildFrame() override;

  CCalcSheet* sheet() const { return m_sheet; }
  // The graph's frame: the graph, its labels and read-outs.
  CPlotWnd* graph() const { return m_graph; }
  CGraphPlayer* player() const { return m_player; }
  CDataPage* dataPage(int slot) const;
  int sizeLevel() const { return m_sizeLevel; }
  bool graphShown() const { return m_graphShown; }
  const QFont& panelFont() const { return m_panelFont; }
  const QFont& smallFont() const { return m_smallFont; }

  // Whether the frame handles a command at all; one nobody handles yet shows
  // disabled, as a command without a handler does.
  static bool HasHandler(int id);
  // The command's own rule (the data sets, the size level, the clipboard).
  bool RuleAllows(int id) const;
  bool IsCommandEnabled(int id) const { return HasHandler(id) && RuleAllows(id); }
  // Brings every action's enabled and checked state up to date.
  void UpdateCommandUI();
  // Runs a command unless it is disabled.
  void OnCommand(int id);

  void OnLarger();
  void OnSmaller();
  void OnShowGraph();
  void OnHideGraph();
  void OnRestoreDefaults();
  void OnSelfVoicing();
  void OnAutoReturn();
  // F4: the Data 1 page evaluates its f(x); the graph follows when it is done.
  void OnEvaluateExpression1();
  void OnPrintGraph();

 public slots:
  // Redraws the graph when it is shown.
  void redrawGraph();
  // Gives the graph the focus when it is shown; false otherwise.
  bool focusGraph();
  // Focuses the panel's tabs on the Data pages, the graph otherwise.
  void focusPanel();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;

 private:
  void layoutClient();
  void recreateFonts();
  void resizeOuter(int width, int height);
  // Puts the show or the hide command into the "&Graph" popup's graph item.
  void setGraphItem(bool graphShown);
  bool isFrameKey(const QKeyEvent* event) const;
  // A data set changed: the cursor of the set played starts again, the graph and
  // the menus follow.
  void onSetChanged(std::size_t slot);

  CGraphCalcApp& m_app;
  CCommandTable& m_commands;
  QWidget* m_client = nullptr;
  CCalcSheet* m_sheet = nullptr;
  CPlotWnd* m_graph = nullptr;
  // The audio-plot engine and the playback keys.
  CGraphPlayer* m_player = nullptr;
  QFont m_panelFont;
  QFont m_smallFont;
  int m_sizeLevel = 0;
  int m_widthStep;
  int m_heightStep;
  bool m_graphShown = false;
  // Whether the clipboard holds text, kept as it changes: asking the clipboard at
  // every key press could wait on another program.
  bool m_clipboardHasText = false;
};

}  // namespace sonalyx::ui
