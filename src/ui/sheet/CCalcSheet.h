#pragma once

#include <QFont>
#include <QPointer>
#include <QTabWidget>
#include <array>

#include "ui/sheet/CCalcPage.h"

namespace sonalyx::ui {

class CTTSTabCtrl;

// The control panel: the eight pages behind their tabs. It says "<caption>
// screen." when the user changes the tab, asks the page being left whether it may
// go, tells the page coming to the front to re-read its settings, and gives the
// child frame the operations that bring a page forward.
class CCalcSheet : public QTabWidget {
  Q_OBJECT
 public:
  enum PageIndex { kPlot, kWave, kSpeech, kCalculator, kData1, kData2, kEvaluator, kMatrix, kPageCount };
  // The groups of the Plot and Wave pages that the "&Options" submenus reach.
  enum PlotGroup { kPlotSource, kPlotCalculus, kPlotAxes, kPlotFrame, kPlotRange };
  enum WaveGroup { kWaveVolume, kWavePlayTime, kWaveFrequency, kWaveType };

  // The English tab captions in tab order.
  static const std::array<const char*, kPageCount>& englishCaptions();

  // Translates the captions once and adds the pages; the Calculator page comes to
  // the front.
  explicit CCalcSheet(QWidget* parent = nullptr);

  CCalcPage* page(int index) const;
  CCalcPage* currentPage() const { return m_currentPage; }
  void setCurrentPage(CCalcPage* page) { m_currentPage = page; }
  CTTSTabCtrl* tabControl() const { return m_tabControl; }

  // Brings a page to the front without speaking (the program's own change).
  // Shows page `index`. When the focus was in the page left, it moves to the new
  // page's first control once the page has read its settings, unless the caller
  // places it itself (`placeFocus` false).
  void SetActivePage(int index, bool placeFocus = true);
  // The user's move to the next (1) or previous (-1) tab, round the ends, as
  // Ctrl+Tab and Ctrl+Shift+Tab do; it is announced, and the focus ends on the tab.
  void StepPage(int direction);
  // Lets the current page read its settings again.
  void ReloadCurrentPage();
  // Brings the Plot or Wave page forward and focuses one of its groups.
  void FocusPlotGroup(PlotGroup group);
  void FocusWaveGroup(WaveGroup group);

  // Ctrl+C: copies the matrix when the Matrix page is in front.
  void CopyMatrix();

  // The tabs' font and the pages' font.
  void setPanelFonts(const QFont& panelFont, const QFont& pageFont);

 signals:
  // The pages' requests to the frames.
  void redrawGraphRequested();
  void focusGraphRequested();
  void focusPanelRequested();

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void onCurrentChanged(int index);

  CTTSTabCtrl* m_tabControl;
  std::array<CCalcPage*, kPageCount> m_pages{};
  QPointer<CCalcPage> m_currentPage;
  int m_shownIndex = -1;
  bool m_programChange = false;
  bool m_reverting = false;
};

}  // namespace sonalyx::ui
