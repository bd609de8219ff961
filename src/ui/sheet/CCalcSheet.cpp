#include "ui/sheet/CCalcSheet.h"

#include <QApplication>
#include <QResizeEvent>

#include "core/speech/TranslationMarker.h"
#include "ui/accessible/AccessibleTree.h"
#include "ui/app/CGraphCalcApp.h"
#include "ui/app/Voice.h"
#include "ui/controls/CTTSTabCtrl.h"
#include "ui/controls/VoicedText.h"
#include "ui/pages/CCaptionPage.h"
#include "ui/pages/CDataPage.h"
#include "ui/pages/calculator/CCalculatorPage.h"
#include "ui/pages/evaluator/CEvaluatorPage.h"
#include "ui/pages/matrix/CMatrixPage.h"
#include "ui/pages/plot/CPlotPage.h"
#include "ui/pages/speech/CSpeechPage.h"
#include "ui/pages/wave/CWavePage.h"

namespace sonalyx::ui {

namespace {

// The page behind each tab; those not built yet show their caption.
CCalcPage* createPage(int index, const QString& caption) {
  switch (index) {
    case CCalcSheet::kCalculator:
      return new CCalculatorPage(caption);
    case CCalcSheet::kEvaluator:
      return new CEvaluatorPage(caption);
    case CCalcSheet::kMatrix:
      return new CMatrixPage(caption);
    case CCalcSheet::kPlot:
      return new CPlotPage(caption);
    case CCalcSheet::kWave:
      return new CWavePage(caption);
    case CCalcSheet::kSpeech:
      return new CSpeechPage(caption);
    case CCalcSheet::kData1:
      return new CDataPage(DataSet::Data1, caption);
    case CCalcSheet::kData2:
      return new CDataPage(DataSet::Data2, caption);
    default:
      return new CCaptionPage(caption);
  }
}

}  // namespace

const std::array<const char*, CCalcSheet::kPageCount>& CCalcSheet::englishCaptions() {
  static const std::array<const char*, kPageCount> captions{
      SLX_TR("Plot"),   SLX_TR("Wave"),   SLX_TR("Speech"),    SLX_TR("Calculator"),
      SLX_TR("Data 1"), SLX_TR("Data 2"), SLX_TR("Evaluator"), SLX_TR("Matrix")};
  return captions;
}

CCalcSheet::CCalcSheet(QWidget* parent) : QTabWidget(parent), m_tabControl(new CTTSTabCtrl()) {
  setTabBar(m_tabControl);
  setAccessibleName(Translate("Control panel"));
  for (int index = 0; index < kPageCount; ++index) {
    const QString caption = Translate(englishCaptions()[index]);
    m_pages[index] = createPage(index, caption);
    addTab(m_pages[index], caption);
  }
  // A screen reader meets the panel as its tabs, each holding its page.
  accessible::markPageTabList(this);
  connect(this, &QTabWidget::currentChanged, this, &CCalcSheet::onCurrentChanged);
  m_shownIndex = currentIndex();
  SetActivePage(kCalculator);
  if (!m_currentPage) m_pages[kCalculator]->OnSetActive();
}

CCalcPage* CCalcSheet::page(int index) const {
  return index >= 0 && index < kPageCount ? m_pages[index] : nullptr;
}

void CCalcSheet::SetActivePage(int index, bool placeFocus) {
  if (!page(index)) return;
  // Qt hands the focus to the new page's first control before the page has read
  // its settings, which would say a stale value ("volume 0 percent"): the focus
  // waits on the tabs, unheard, and moves on once the page is ready.
  bool waiting = false;
  if (index != currentIndex() && !m_tabControl->hasFocus() && isAncestorOf(QApplication::focusWidget())) {
    const accessible::QuietFocus quiet;
    m_tabControl->takeFocusQuietly();
    waiting = true;
  }
  m_programChange = true;
  setCurrentIndex(index);
  m_programChange = false;
  if (waiting && placeFocus && currentIndex() == index) m_pages[index]->CCalcPage::FocusGroup(0);
}

void CCalcSheet::StepPage(int direction) {
  if (count() == 0) return;
  // From inside a page the turn ends on the new tab too, as from the tabs: the
  // focus goes there first, unheard, and moves once, with the page.
  if (!m_tabControl->hasFocus() && isAncestorOf(QApplication::focusWidget())) {
    const accessible::QuietFocus quiet;
    m_tabControl->takeFocusQuietly();
  }
  setCurrentIndex(((currentIndex() + direction) % count() + count()) % count());
}

void CCalcSheet::ReloadCurrentPage() {
  if (!m_currentPage) return;
  SetActivePage(indexOf(m_currentPage));
  m_currentPage->OnSetActive();
}

void CCalcSheet::FocusPlotGroup(PlotGroup group) {
  SetActivePage(kPlot, false);
  if (currentIndex() == kPlot) m_pages[kPlot]->FocusGroup(group);
}

void CCalcSheet::FocusWaveGroup(WaveGroup group) {
  SetActivePage(kWave, false);
  if (currentIndex() == kWave) m_pages[kWave]->FocusGroup(group);
}

void CCalcSheet::CopyMatrix() {
  if (currentIndex() == kMatrix) static_cast<CMatrixPage*>(m_pages[kMatrix])->CopyMatrix();
}

void CCalcSheet::setPanelFonts(const QFont& panelFont, const QFont& pageFont) {
  m_tabControl->setFont(panelFont);
  for (CCalcPage* each : m_pages) each->setFont(pageFont);
}

void CCalcSheet::onCurrentChanged(int index) {
  if (m_reverting) return;
  CCalcPage* leaving = page(m_shownIndex);
  if (leaving && index != m_shownIndex && !leaving->OnKillActive()) {
    m_reverting = true;
    setCurrentIndex(m_shownIndex);
    m_reverting = false;
    return;
  }
  m_shownIndex = index;
  CCalcPage* arriving = page(index);
  if (!arriving) return;
  arriving->OnSetActive();
  if (!m_programChange) voiced::say(m_tabControl, SpeechKind::Echo, m_tabControl->screenText(index));
}

void CCalcSheet::resizeEvent(QResizeEvent* event) {
  QTabWidget::resizeEvent(event);
  m_tabControl->setMinimumTabWidth(width() / 5);
  if (m_currentPage && currentWidget() != m_currentPage) SetActivePage(indexOf(m_currentPage));
}

}  // namespace sonalyx::ui
