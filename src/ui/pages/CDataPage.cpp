#include "ui/pages/CDataPage.h"

#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QInputDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QShortcut>
#include <QTimer>
#include <QVBoxLayout>
#include <cstdlib>

#include "core/math/FitModel.h"
#include "core/speech/TranslationMarker.h"
#include "core/utility/NumberFormat.h"
#include "ui/app/CGraphCalcApp.h"
#include "ui/app/Voice.h"
#include "ui/controls/CTTSButton.h"
#include "ui/controls/CTTSComboBox.h"
#include "ui/controls/CTTSEdit.h"
#include "ui/controls/CTTSListBox.h"
#include "ui/controls/CTTSStatic.h"
#include "ui/pages/CDataSetModel.h"
#include "ui/pages/CDataTableView.h"
#include "ui/sheet/CCalcSheet.h"

namespace sonalyx::ui {

namespace {

CGraphCalcApp& app() {
  return *CGraphCalcApp::instance();
}

std::string translated(const std::string& english) {
  return Translate(english);
}

CTTSButton* voiceOf(QAbstractButton* button, const char* label, bool toggle) {
  auto* voice = new CTTSButton(button);
  voice->setSpokenLabel(label);
  if (toggle)
    voice->setToggleSound(true);
  else
    voice->setPressSound(true);
  return voice;
}

}  // namespace

CDataPage::CDataPage(std::size_t slot, const QString& caption, QWidget* parent)
    : CCalcPage(caption, parent), m_session(app().dataSets(), slot, app().settings(), translated) {
  m_workers.setMaxThreadCount(1);
  auto* layout = new QVBoxLayout(this);

  auto* exprRow = new QHBoxLayout();
  auto* exprLabel = new QLabel(Translate("f(x) = "), this);
  m_expr = new CTTSEdit(this);
  m_expr->setSpokenLabel(SLX_TR("f(x) = "));
  exprLabel->setBuddy(m_expr);
  exprRow->addWidget(exprLabel);
  exprRow->addWidget(m_expr, 1);
  layout->addLayout(exprRow);
  connect(m_expr, &QLineEdit::returnPressed, this, &CDataPage::Evaluate);
  m_expr->installEventFilter(this);

  m_message = new CTTSStatic(QString(), this);
  m_message->setWordWrap(true);
  m_message->setAccessibleName(Translate("Message"));
  m_message->hide();
  layout->addWidget(m_message);

  m_coordinates = new QGroupBox(Translate("Coordinates"), this);
  auto* coordinatesRow = new QHBoxLayout(m_coordinates);
  m_rectangle = new QRadioButton(Translate("Rectangle"), m_coordinates);
  m_polar = new QRadioButton(Translate("Polar"), m_coordinates);
  voiceOf(m_rectangle, SLX_TR("Rectangle"), true);
  voiceOf(m_polar, SLX_TR("Polar"), true);
  m_rectangle->setChecked(true);
  coordinatesRow->addWidget(m_rectangle);
  coordinatesRow->addWidget(m_polar);
  layout->addWidget(m_coordinates);

  m_model = new CDataSetModel(m_session, this);
  m_table = new CDataTableView(this);
  m_table->setSpokenLabel(slot == DataSet::Data1 ? SLX_TR("Data set 1 table") : SLX_TR("Data set 2 table"));
  m_table->setDataModel(m_model);
  layout->addWidget(m_table, 1);
  connect(m_model, &CDataSetModel::edited, this, [this](const DataPageUpdate& update) {
    // A refused cell is said after the table has taken the focus back and said its
    // row, so the reason is what the user hears.
    if (update.refused)
      QTimer::singleShot(0, this, [this, update] { apply(update, true, false); });
    else
      apply(update, true, false);
  });

  m_statsGroup = new QGroupBox(Translate("Statistical Description of Data Set"), this);
  auto* statsLayout = new QVBoxLayout(m_statsGroup);
  auto* modeRow = new QHBoxLayout();
  auto* modeLabel = new QLabel(Translate("Mode:"), m_statsGroup);
  m_mode = new CTTSComboBox(m_statsGroup);
  m_mode->setSpokenLabel(SLX_TR("Mode:"));
  modeLabel->setBuddy(m_mode);
  for (int model = 0; model < kFitModelCount; ++model)
    m_mode->addItem(Translate(
        QString::fromUtf8(fitModelTitle(model).data(), static_cast<qsizetype>(fitModelTitle(model).size()))));
  modeRow->addWidget(modeLabel);
  modeRow->addWidget(m_mode, 1);
  statsLayout->addLayout(modeRow);
  m_results = new CTTSListBox(m_statsGroup);
  m_results->setSpeakSelection(true);
  m_results->setAccessibleName(Translate("Results"));
  statsLayout->addWidget(m_results, 1);
  m_plotFit = new QPushButton(Translate("Plot Fitted Curve"), m_statsGroup);
  voiceOf(m_plotFit, SLX_TR("Plot Fitted Curve"), false);
  m_plotFit->setEnabled(false);
  statsLayout->addWidget(m_plotFit);
  m_statsGroup->hide();
  layout->addWidget(m_statsGroup, 1);
  connect(m_mode, &QComboBox::activated, this, [this] { computeFit(false); });
  connect(m_plotFit, &QPushButton::clicked, this, &CDataPage::plotFit);

  auto* buttons = new QHBoxLayout();
  m_statsButton = new QPushButton(Translate("Evaluate Statistics"), this);
  voiceOf(m_statsButton, "", false);
  connect(m_statsButton, &QPushButton::clicked, this, &CDataPage::ToggleStatistics);
  buttons->addWidget(m_statsButton);
  if (slot == DataSet::Data1) {
    m_plotSet2 = new QCheckBox(Translate("Plot Data Set 2"), this);
    voiceOf(m_plotSet2, SLX_TR("Plot Data Set 2"), true);
    buttons->addWidget(m_plotSet2);
    connect(m_plotSet2, &QCheckBox::clicked, this, [this](bool checked) {
      app().settings().SetSetType(checked ? 1 : 0);
      emit setChanged(DataSet::Data2);
    });
  }
  buttons->addStretch(1);
  layout->addLayout(buttons);
}

CDataPage::~CDataPage() {
  // A sampling still running reads the dictionary; it ends before the page does.
  m_workers.waitForDone();
}

QLabel* CDataPage::messageLine() const {
  return m_message;
}

void CDataPage::OnSetActive() {
  if (!m_undo && sheet()) {
    m_undo =
        new QShortcut(QKeySequence::Undo, sheet(), this, &CDataPage::Undo, Qt::WidgetWithChildrenShortcut);
  }
  if (m_undo) m_undo->setEnabled(true);
  m_expr->setText(QString::fromStdString(m_session.arrivalText(m_expr->text().toStdString())));
  (m_session.storedPolar() ? m_polar : m_rectangle)->setChecked(true);
  if (m_plotSet2) m_plotSet2->setChecked(app().settings().GetSetType() == 1);
  CCalcPage::OnSetActive();
}

bool CDataPage::OnKillActive() {
  if (m_undo) m_undo->setEnabled(false);
  return CCalcPage::OnKillActive();
}

void CDataPage::Evaluate() {
  const auto request = m_session.evaluation(m_expr->text().toStdString(), m_polar->isChecked());
  if (request) startSampling(*request);
}

void CDataPage::PlotFittedCurve(const SamplingRequest& request) {
  startSampling(request);
}

void CDataPage::startSampling(const SamplingRequest& request) {
  const int generation = ++m_generation;
  if (m_pending++ == 0) QApplication::setOverrideCursor(Qt::WaitCursor);
  m_workers.start([this, request, generation] {
    auto result = std::make_shared<SamplingResult>(DataPageSession::sample(request, translated));
    QMetaObject::invokeMethod(
        this,
        [this, request, generation, result] {
          if (--m_pending == 0) QApplication::restoreOverrideCursor();
          if (generation == m_generation) finishSampling(request, std::move(*result));
          if (m_pending == 0) emit evaluated();
        },
        Qt::QueuedConnection);
  });
}

void CDataPage::finishSampling(const SamplingRequest& request, SamplingResult result) {
  const DataPageUpdate update = m_session.accept(request, std::move(result));
  if (request.fittedCurve && !update.refused) {
    apply(update, false);
    emit playRequested(slot(), QString::fromStdString(update.message));
    return;
  }
  apply(update);
}

void CDataPage::apply(const DataPageUpdate& update, bool sayMessage, bool reloadTable) {
  if (update.editText) m_expr->setText(QString::fromStdString(*update.editText));
  if (update.setChanged && !reloadTable) emit setChanged(slot());
  if (update.setChanged && reloadTable) {
    // The table keeps its place where it can.
    const QModelIndex current = m_table->currentIndex();
    m_model->reload();
    if (current.isValid()) m_table->restoreCurrent(current.row(), current.column());
    emit setChanged(slot());
  }
  const QString message = QString::fromStdString(update.message);
  if (!update.message.empty() || update.setChanged) {
    m_message->setText(message);
    m_message->setAccessibleName(message.isEmpty() ? Translate("Message") : message);
    m_message->setVisible(!message.isEmpty());
    // A refusal can be read again with Tab; news of success is shown, not kept in the way.
    m_message->setFocusPolicy(update.refused ? Qt::StrongFocus : Qt::NoFocus);
  }
  if (!sayMessage || message.isEmpty()) return;
  // The page's command is done: its earcon, then what came of it.
  if (!update.refused) app().PlaySoundEffect(0);
  voice::Speak(SpeechKind::Content, message);
}

void CDataPage::LoadPoints(std::vector<DataPoint> points, const QString& path) {
  apply(m_session.loaded(std::move(points), path.toStdString()));
}

void CDataPage::Paste(const QString& text) {
  apply(m_session.paste(text.toStdString()));
}

void CDataPage::ClearSet() {
  apply(m_session.clear(), false);
}

void CDataPage::Undo() {
  apply(m_session.undo());
}

void CDataPage::ToggleStatistics() {
  if (!m_statisticsShown && !m_session.hasData()) {
    QMessageBox::critical(this, Translate("Empty Data Set"),
                          Translate("No data plotted -- nothing to calculate."));
    return;
  }
  showStatistics(!m_statisticsShown);
}

void CDataPage::showStatistics(bool shown) {
  m_statisticsShown = shown;
  m_statsButton->setText(shown ? Translate("Return to Data Table") : Translate("Evaluate Statistics"));
  m_table->setVisible(!shown);
  m_coordinates->setVisible(!shown);
  m_expr->setEnabled(!shown);
  m_statsGroup->setVisible(shown);
  if (shown) {
    computeFit(true);
  } else {
    m_table->setFocus(Qt::OtherFocusReason);
  }
}

double CDataPage::chooseSineStart(double estimated) {
  QInputDialog dialog(this);
  dialog.setWindowTitle(Translate("Sinusoidal Fit Parameters"));
  dialog.setLabelText(Translate("Period: "));
  dialog.setTextValue(QString::fromStdString(formatNumber(estimated, "%.12g")));
  dialog.setOkButtonText(Translate("Set"));
  dialog.setCancelButtonText(Translate("Use Default"));
  if (dialog.exec() != QDialog::Accepted) return estimated;
  // The leading number of what was typed, 0 when there is none.
  const std::string typed = dialog.textValue().toStdString();
  return std::strtod(typed.c_str(), nullptr);
}

void CDataPage::computeFit(bool focusList) {
  m_plotFit->setEnabled(false);
  m_results->clear();
  if (!m_session.hasData()) return;
  const FitResult result =
      m_session.fit(m_mode->currentIndex(), [this](double estimated) { return chooseSineStart(estimated); });
  for (const std::string& line : result.lines) m_results->addItem(QString::fromStdString(line));
  if (!result.ran) m_results->addItem(Translate("A fit needs at least two points."));
  m_plotFit->setEnabled(m_session.canPlotFit());
  app().PlaySoundEffect(0);
  if (!focusList) return;
  // Arriving in the list selects and says its first line.
  m_results->setCurrentRow(-1);
  m_results->setFocus(Qt::OtherFocusReason);
}

void CDataPage::plotFit() {
  const auto request = m_session.fitCurve();
  CCalcSheet* owner = sheet();
  if (!request || !owner) return;
  auto* other = qobject_cast<CDataPage*>(
      owner->page(request->slot == DataSet::Data1 ? CCalcSheet::kData1 : CCalcSheet::kData2));
  if (other) other->PlotFittedCurve(*request);
}

bool CDataPage::eventFilter(QObject* watched, QEvent* event) {
  // Ctrl+Z in f(x) undoes the typing while there is typing to undo, then the set.
  if (watched == m_expr && event->type() == QEvent::ShortcutOverride) {
    auto* key = static_cast<QKeyEvent*>(event);
    if (key->matches(QKeySequence::Undo) && !m_expr->isUndoAvailable()) {
      event->ignore();
      return true;
    }
  }
  return CCalcPage::eventFilter(watched, event);
}

}  // namespace sonalyx::ui
