#include "ui/app/CChildFrame.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QFontDatabase>
#include <QKeyEvent>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QPrinterInfo>
#include <QScreen>
#include <stdexcept>

#include "core/files/SelectedDataSet.h"
#include "core/sound/PlaybackCommand.h"
#include "ui/accessible/AccessibleTree.h"
#include "ui/app/CGraphCalcApp.h"
#include "ui/app/CMainFrame.h"
#include "ui/app/CommandIds.h"
#include "ui/app/CommandTable.h"
#include "ui/app/DataFileCommands.h"
#include "ui/app/FrameGeometry.h"
#include "ui/app/HelpFiles.h"
#include "ui/app/PrintSetupState.h"
#include "ui/app/ProductInfo.h"
#include "ui/app/ProgramIcon.h"
#include "ui/app/Voice.h"
#include "ui/controls/CTTSTabCtrl.h"
#include "ui/dialogs/CSLXPrintDlg.h"
#include "ui/graph/CGraphPlayer.h"
#include "ui/graph/CGraphWnd.h"
#include "ui/graph/CPlotWnd.h"
#include "ui/pages/CDataPage.h"
#include "ui/sheet/CCalcSheet.h"

namespace sonalyx::ui {

namespace {

// The panel's face, or the desktop's sans-serif face where it is not installed.
QString panelFace() {
  static const QString face = QFontDatabase::hasFamily(QStringLiteral("Tahoma"))
                                  ? QStringLiteral("Tahoma")
                                  : QFontDatabase::systemFont(QFontDatabase::GeneralFont).family();
  return face;
}

QFont fontOfTenths(int tenths) {
  QFont font(panelFace());
  font.setPointSizeF(tenths / 10.0);
  return font;
}

PlaybackCommand playbackCommandFor(int id) {
  switch (id) {
    case cmd::kPlayWithTicks:
      return PlaybackCommand::PlayWithTicks;
    case cmd::kStopPlaying:
      return PlaybackCommand::Stop;
    case cmd::kNextPoint:
      return PlaybackCommand::NextPoint;
    case cmd::kPreviousPoint:
      return PlaybackCommand::PreviousPoint;
    case cmd::kNextMaximum:
      return PlaybackCommand::NextMaximum;
    case cmd::kNextMinimum:
      return PlaybackCommand::NextMinimum;
    case cmd::kFirstPoint:
      return PlaybackCommand::FirstPoint;
    case cmd::kLastPoint:
      return PlaybackCommand::LastPoint;
    case cmd::kFindIntersection:
      return PlaybackCommand::NextCurveCrossing;
    case cmd::kFindZeros:
      return PlaybackCommand::NextZero;
    case cmd::kPreviousZero:
      return PlaybackCommand::PreviousZero;
    default:
      return PlaybackCommand::Play;
  }
}

}  // namespace

CChildFrame::CChildFrame(CGraphCalcApp& app, CCommandTable& commands)
    : m_app(app), m_commands(commands), m_widthStep(frame::kWidthStep), m_heightStep(frame::kHeightStep) {
  setWindowFlags(Qt::SubWindow | Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint |
                 Qt::WindowCloseButtonHint);
  setWindowTitle(QString::fromUtf8(product::kTitle));
  setWindowIcon(programIcon());
  setAttribute(Qt::WA_DeleteOnClose, false);
  // Only the program changes the size: the entries that would let the user do it go.
  if (QMenu* menu = systemMenu()) {
    for (QAction* action : menu->actions()) {
      const QString text = QString(action->text()).remove(QLatin1Char('&'));
      if (text == QStringLiteral("Size") || text == QStringLiteral("Minimize") ||
          text == QStringLiteral("Maximize") || text == QStringLiteral("Restore"))
        menu->removeAction(action);
    }
  }

  m_client = new QWidget();
  m_sheet = new CCalcSheet(m_client);
  // The only window in the work area: no stop for Tab, and nothing a screen reader
  // needs to hear of; the focus it is given goes straight to the panel's tabs.
  setFocusPolicy(Qt::NoFocus);
  setFocusProxy(m_sheet->tabControl());
  accessible::markLayoutOnly(this);
  accessible::markLayoutOnly(m_client);
  m_graph = new CPlotWnd(m_app, m_client);
  m_graph->setGeometry(0, 0, 1, 1);
  m_player = new CGraphPlayer(m_app, *m_graph, this);
  for (const std::size_t slot : {std::size_t{DataSet::Data1}, std::size_t{DataSet::Data2}}) {
    CDataPage* page = dataPage(static_cast<int>(slot));
    connect(page, &CDataPage::setChanged, this, &CChildFrame::onSetChanged);
    connect(page, &CDataPage::playRequested, m_player, &CGraphPlayer::playSet);
  }
  m_graph->hide();
  m_client->installEventFilter(this);
  setWidget(m_client);

  connect(m_sheet, &CCalcSheet::redrawGraphRequested, this, &CChildFrame::redrawGraph);
  connect(m_sheet, &CCalcSheet::focusGraphRequested, this, &CChildFrame::focusGraph);
  connect(m_sheet, &CCalcSheet::focusPanelRequested, this, &CChildFrame::focusPanel);
  connect(&m_commands, &CCommandTable::commandTriggered, this, &CChildFrame::OnCommand);
  for (int position = 0; position < 4; ++position)
    if (QMenu* popup = m_commands.popup(position))
      connect(popup, &QMenu::aboutToShow, this, &CChildFrame::UpdateCommandUI);
  const auto readClipboard = [this] {
    const QMimeData* data = QGuiApplication::clipboard()->mimeData();
    m_clipboardHasText = data && data->hasText();
    UpdateCommandUI();
  };
  connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, readClipboard);
  readClipboard();

  resizeOuter(frame::kInitialWidth, frame::kInitialHeight);
  recreateFonts();
  UpdateCommandUI();
}

CChildFrame::~CChildFrame() {
  qApp->removeEventFilter(this);
}

bool CChildFrame::HasHandler(int id) {
  switch (id) {
    case cmd::kRestoreDefaults:
    case cmd::kAppExit:
    case cmd::kCalculator:
    case cmd::kEvaluator:
    case cmd::kDataSet1:
    case cmd::kDataSet2:
    case cmd::kMatrices:
    case cmd::kPlotSource:
    case cmd::kPlotCalculus:
    case cmd::kPlotAxes:
    case cmd::kPlotFrame:
    case cmd::kPlotRange:
    case cmd::kSpeech:
    case cmd::kWaveVolume:
    case cmd::kWavePlayTime:
    case cmd::kWaveFrequency:
    case cmd::kWaveType:
    case cmd::kAutoReturn:
    case cmd::kSelfVoicing:
    case cmd::kLarger:
    case cmd::kSmaller:
    case cmd::kShowGraph:
    case cmd::kHideGraph:
    case cmd::kUserManual:
    case cmd::kCalculatorHotkeys:
    case cmd::kGraphingHotkeys:
    case cmd::kNavigationalHotkeys:
    case cmd::kTutorialIndex:
    case cmd::kTutorialCalculator:
    case cmd::kTutorialEvaluator:
    case cmd::kTutorialMatrix:
    case cmd::kTutorialSpeech:
    case cmd::kTutorialGraphing:
    case cmd::kTutorialPrinting:
    case cmd::kOnlineHelp:
    case cmd::kAppAbout:
    case cmd::kCloseChild:
    case cmd::kFileNew:
    case cmd::kFileOpen:
    case cmd::kFileSave:
    case cmd::kCopyData:
    case cmd::kPasteData:
    case cmd::kEvaluateExpression1:
    case cmd::kPlayDataSet:
    case cmd::kPlayWithTicks:
    case cmd::kWriteWaveFile:
    case cmd::kFindIntersection:
    case cmd::kFindZeros:
    case cmd::kStopPlaying:
    case cmd::kNextPoint:
    case cmd::kPreviousPoint:
    case cmd::kNextMaximum:
    case cmd::kNextMinimum:
    case cmd::kFirstPoint:
    case cmd::kLastPoint:
    case cmd::kPreviousZero:
    case cmd::kCopyMatrix:
    case cmd::kPrintGraph:
      return true;
    default:
      return false;
  }
}

bool CChildFrame::RuleAllows(int id) const {
  const auto& sets = m_app.dataSets();
  switch (id) {
    case cmd::kFileSave:
    case cmd::kCopyData:
      return selectedDataSet(sets, m_app.settings().GetSetType()).count() > 0;
    case cmd::kPasteData:
      return m_clipboardHasText;
    case cmd::kLoadConstants:
    case cmd::kSaveConstants:
      return false;
    case cmd::kLarger:
      return m_sizeLevel < frame::kMaxSizeLevel;
    case cmd::kSmaller:
      return m_sizeLevel >= 1;
    case cmd::kFindIntersection:
      return sets[0].count() > 1 && sets[1].count() > 1 && sets[0].count() == sets[1].count();
    case cmd::kFindZeros:
      return sets[0].count() > 1;
    case cmd::kCopyMatrix:
      // Elsewhere Ctrl+C stays the page's (memory store) or the edit's (copy).
      return m_sheet->currentIndex() == CCalcSheet::kMatrix;
    default:
      return true;
  }
}

void CChildFrame::UpdateCommandUI() {
  for (const CommandSpec& command : CCommandTable::commands()) {
    QAction* action = m_commands.action(command.id);
    if (!action) continue;
    const bool enabled = IsCommandEnabled(command.id);
    if (action->isEnabled() != enabled) action->setEnabled(enabled);
  }
  if (QAction* autoReturn = m_commands.action(cmd::kAutoReturn))
    autoReturn->setChecked(m_app.settings().GetIsAutoReturn());
}

void CChildFrame::OnCommand(int id) {
  // A key may arrive after its rule changed: the rule decides at the moment of use.
  if (!IsCommandEnabled(id)) return;
  switch (id) {
    case cmd::kRestoreDefaults:
      OnRestoreDefaults();
      break;
    case cmd::kAppExit:
      if (CMainFrame* main = m_app.mainFrame()) main->close();
      return;
    case cmd::kCloseChild:
      close();
      return;
    case cmd::kCalculator:
      m_sheet->SetActivePage(CCalcSheet::kCalculator);
      break;
    case cmd::kEvaluator:
      m_sheet->SetActivePage(CCalcSheet::kEvaluator);
      break;
    case cmd::kDataSet1:
      m_sheet->SetActivePage(CCalcSheet::kData1);
      break;
    case cmd::kDataSet2:
      m_sheet->SetActivePage(CCalcSheet::kData2);
      break;
    case cmd::kMatrices:
      m_sheet->SetActivePage(CCalcSheet::kMatrix);
      break;
    case cmd::kSpeech:
      m_sheet->SetActivePage(CCalcSheet::kSpeech);
      break;
    case cmd::kPlotSource:
    case cmd::kPlotCalculus:
    case cmd::kPlotAxes:
    case cmd::kPlotFrame:
    case cmd::kPlotRange:
      m_sheet->FocusPlotGroup(static_cast<CCalcSheet::PlotGroup>(id - cmd::kPlotSource));
      break;
    case cmd::kWaveVolume:
    case cmd::kWavePlayTime:
    case cmd::kWaveFrequency:
    case cmd::kWaveType:
      m_sheet->FocusWaveGroup(static_cast<CCalcSheet::WaveGroup>(id - cmd::kWaveVolume));
      break;
    case cmd::kAutoReturn:
      OnAutoReturn();
      break;
    case cmd::kCopyMatrix:
      m_sheet->CopyMatrix();
      break;
    case cmd::kSelfVoicing:
      OnSelfVoicing();
      break;
    case cmd::kLarger:
      OnLarger();
      break;
    case cmd::kSmaller:
      OnSmaller();
      break;
    case cmd::kShowGraph:
      OnShowGraph();
      break;
    case cmd::kHideGraph:
      OnHideGraph();
      break;
    case cmd::kEvaluateExpression1:
      OnEvaluateExpression1();
      break;
    case cmd::kPrintGraph:
      OnPrintGraph();
      break;
    case cmd::kFileOpen:
      files::OpenDataSet(this, *dataPage(DataSet::Data1));
      break;
    case cmd::kFileSave:
      files::SaveDataSet(this, m_app);
      break;
    case cmd::kCopyData:
      files::CopyDataSet(m_app);
      break;
    case cmd::kPasteData:
      files::PasteDataSet(*dataPage(DataSet::Data1));
      break;
    case cmd::kWriteWaveFile:
      m_player->writeWaveFile(this);
      break;
    case cmd::kPlayDataSet:
    case cmd::kPlayWithTicks:
    case cmd::kStopPlaying:
    case cmd::kNextPoint:
    case cmd::kPreviousPoint:
    case cmd::kNextMaximum:
    case cmd::kNextMinimum:
    case cmd::kFirstPoint:
    case cmd::kLastPoint:
    case cmd::kFindIntersection:
    case cmd::kFindZeros:
    case cmd::kPreviousZero:
      m_player->run(playbackCommandFor(id));
      return;
    default:
      if (const QString page = helpPageFor(id); !page.isEmpty()) OpenHelpFile(this, page);
      break;
  }
  UpdateCommandUI();
}

void CChildFrame::resizeOuter(int width, int height) {
  // Fixed, so that the mouse cannot resize the window; the program moves the size.
  setFixedSize(std::min(width, frame::kMaxWidth), std::min(height, frame::kMaxHeight));
}

void CChildFrame::OnLarger() {
  if (m_sizeLevel >= frame::kMaxSizeLevel) return;
  ++m_sizeLevel;
  resizeOuter(width() + frame::widthStepFor(m_widthStep, m_graphShown), height() + m_heightStep);
}

void CChildFrame::OnSmaller() {
  if (m_sizeLevel < 1) return;
  --m_sizeLevel;
  resizeOuter(width() - frame::widthStepFor(m_widthStep, m_graphShown), height() - m_heightStep);
}

void CChildFrame::OnShowGraph() {
  if (m_graphShown) return;
  m_graphShown = true;
  resizeOuter(frame::widthWithGraphShown(width()), height());
  setGraphItem(true);
}

void CChildFrame::OnHideGraph() {
  if (!m_graphShown) return;
  m_graphShown = false;
  resizeOuter(frame::widthWithGraphHidden(width()), height());
  setGraphItem(false);
}

void CChildFrame::setGraphItem(bool graphShown) {
  try {
    QMenu* popup = m_commands.graphPopup();
    if (!popup) throw std::runtime_error("menu not found.\n");
    QAction* show = m_commands.action(cmd::kShowGraph);
    QAction* hide = m_commands.action(cmd::kHideGraph);
    if (!show || !hide) throw std::runtime_error("menu handle not found.\n");
    QAction* from = graphShown ? show : hide;
    QAction* to = graphShown ? hide : show;
    if (!popup->actions().contains(from)) throw std::runtime_error("modify menu failed.\n");
    to->setText(graphShown ? Translate("&Hide Graph") + QStringLiteral("\tCtrl+F3")
                           : Translate("&Show Graph") + QStringLiteral("\tF3"));
    popup->insertAction(from, to);
    popup->removeAction(from);
  } catch (const std::exception& error) {
    QMessageBox::critical(this, Translate(product::kTitle), QString::fromUtf8(error.what()).trimmed());
  }
}

void CChildFrame::OnRestoreDefaults() {
  m_app.settings().DeleteSettings();
  // Through the pages, so that each says "clear" and can bring its set back.
  dataPage(DataSet::Data1)->ClearSet();
  dataPage(DataSet::Data2)->ClearSet();
  m_sheet->ReloadCurrentPage();
  redrawGraph();
}

CDataPage* CChildFrame::dataPage(int slot) const {
  return static_cast<CDataPage*>(
      m_sheet->page(slot == DataSet::Data2 ? CCalcSheet::kData2 : CCalcSheet::kData1));
}

void CChildFrame::OnEvaluateExpression1() {
  m_sheet->SetActivePage(CCalcSheet::kData1);
  dataPage(DataSet::Data1)->Evaluate();
}

void CChildFrame::OnPrintGraph() {
  // Asked anew each time: a printer may have been added while the program ran.
  PrintSetupState& state = m_app.printState();
  state.printerNames.clear();
  for (const QString& name : QPrinterInfo::availablePrinterNames())
    state.printerNames.push_back(name.toStdString());
  // What the graph shows is printed: f(x) is not sampled again over a typed table.
  if (selectedDataSet(m_app.dataSets(), m_app.settings().GetSetType()).count() == 0) {
    QMessageBox::critical(this, Translate("Print Error"), Translate("No data set found - nothing to print."));
    return;
  }
  CSLXPrintDlg dialog(m_app, this);
  dialog.exec();
}

void CChildFrame::onSetChanged(std::size_t slot) {
  const std::size_t played = selectedSlot(m_app.settings().GetSetType());
  if (played == slot || played == DataSet::Sum || played == DataSet::Difference)
    m_graph->graph()->setCursorIndex(-1);
  redrawGraph();
  UpdateCommandUI();
}

void CChildFrame::OnSelfVoicing() {
  voice::ToggleSelfVoicing(m_app.settings());
}

void CChildFrame::OnAutoReturn() {
  const bool on = !m_app.settings().GetIsAutoReturn();
  m_app.settings().SetIsAutoReturn(on);
  voice::Speak(SpeechKind::Content,
               on ? Translate("Auto return: enabled.") : Translate("Auto return: disabled."));
}

void CChildFrame::redrawGraph() {
  // Hidden, the graph only forgets its picture; it paints anew when shown.
  m_graph->redraw();
}

bool CChildFrame::focusGraph() {
  if (!m_graphShown) return false;
  m_graph->graph()->setFocus(Qt::OtherFocusReason);
  return true;
}

void CChildFrame::focusPanel() {
  const int index = m_sheet->currentIndex();
  if (index == CCalcSheet::kData1 || index == CCalcSheet::kData2)
    m_sheet->tabControl()->setFocus(Qt::OtherFocusReason);
  else
    m_graph->graph()->setFocus(Qt::OtherFocusReason);
}

void CChildFrame::recreateFonts() {
  const QScreen* screen = this->screen();
  const int dpi = screen ? static_cast<int>(screen->logicalDotsPerInchY()) : 96;
  m_panelFont = fontOfTenths(frame::panelFontTenths(m_sizeLevel, dpi));
  m_smallFont = fontOfTenths(frame::smallFontTenths(m_sizeLevel));
  m_sheet->setPanelFonts(m_panelFont, m_smallFont);
}

void CChildFrame::layoutClient() {
  recreateFonts();
  const int cx = m_client->width();
  const int cy = m_client->height();
  if (m_graphShown) {
    const int graphWidth = frame::graphWidth(cx);
    m_graph->setGeometry(0, 0, graphWidth, cy);
    m_graph->show();
    m_graph->update();
    m_sheet->setGeometry(graphWidth, 0, cx - graphWidth, cy);
  } else {
    m_graph->hide();
    m_sheet->setGeometry(0, 0, cx, cy);
  }
}

bool CChildFrame::isFrameKey(const QKeyEvent* event) const {
  // Esc in a table cell being edited gives up the edit; it stops playing elsewhere.
  // (A cell's editor is a child of its view's viewport.)
  if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier) {
    const QWidget* focus = QApplication::focusWidget();
    const QWidget* viewport = focus ? focus->parentWidget() : nullptr;
    const auto* view = viewport ? qobject_cast<const QAbstractItemView*>(viewport->parentWidget()) : nullptr;
    if (view && view->viewport() == viewport) return false;
  }
  const QKeySequence pressed(event->keyCombination());
  for (const CommandSpec& command : CCommandTable::commands()) {
    const QAction* action = m_commands.action(command.id);
    if (action && action->isEnabled() && action->shortcuts().contains(pressed)) return true;
  }
  return false;
}

bool CChildFrame::eventFilter(QObject* watched, QEvent* event) {
  if (watched == m_client && event->type() == QEvent::Resize) {
    layoutClient();
    return false;
  }
  if (event->type() == QEvent::KeyPress) {
    // Ctrl+Tab turns the panel's pages (the work area would take it to switch
    // windows, and there is only one).
    const auto* key = static_cast<QKeyEvent*>(event);
    auto* widget = qobject_cast<QWidget*>(watched);
    const bool tabKey = key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab;
    if (tabKey && key->modifiers().testFlag(Qt::ControlModifier) &&
        !key->modifiers().testFlag(Qt::AltModifier) && widget &&
        (widget == m_sheet || m_sheet->isAncestorOf(widget) || m_graph->isAncestorOf(widget))) {
      m_sheet->StepPage(key->key() == Qt::Key_Backtab || key->modifiers().testFlag(Qt::ShiftModifier) ? -1
                                                                                                      : 1);
      return true;
    }
  }
  if (event->type() == QEvent::ShortcutOverride) {
    auto* widget = qobject_cast<QWidget*>(watched);
    if (widget && widget == QApplication::focusWidget() && widget->window() == window()) {
      UpdateCommandUI();
      // Inside the panel the frame's keys come first: F5 plays even from an edit
      // box that would otherwise claim the key.
      if (m_sheet->isAncestorOf(widget) && isFrameKey(static_cast<QKeyEvent*>(event))) return true;
    } else if (widget && m_sheet->isAncestorOf(widget) && isFrameKey(static_cast<QKeyEvent*>(event))) {
      return true;
    }
  }
  return QMdiSubWindow::eventFilter(watched, event);
}

void CChildFrame::showEvent(QShowEvent* event) {
  QMdiSubWindow::showEvent(event);
  // Every key press first meets the frame's keys (see eventFilter). Installed again
  // on every showing so that it runs before the filters the work area adds.
  qApp->removeEventFilter(this);
  qApp->installEventFilter(this);
}

void CChildFrame::closeEvent(QCloseEvent* event) {
  // There is one child for the whole run: closing it closes the program.
  event->ignore();
  if (CMainFrame* main = m_app.mainFrame()) main->close();
}

}  // namespace sonalyx::ui
