#include "ui/dialogs/CSLXPrintDlg.h"

#include <QCheckBox>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QFontDatabase>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QRadioButton>
#include <QStandardPaths>
#include <QTimer>
#include <QVBoxLayout>

#include "core/settings/SettingsStore.h"
#include "core/speech/TranslationMarker.h"
#include "ui/app/CAccessibilityHooks.h"
#include "ui/app/CGraphCalcApp.h"
#include "ui/app/PrintSetupState.h"
#include "ui/app/ProductInfo.h"
#include "ui/app/Voice.h"
#include "ui/controls/CTTSButton.h"
#include "ui/controls/CTTSComboBox.h"
#include "ui/controls/CTTSEdit.h"
#include "ui/dialogs/CPrintPreview.h"

namespace sonalyx::ui {

namespace {

constexpr int kFontPoints[] = {8, 9, 10, 11, 12, 14, 16, 18, 20, 24};

std::string translated(const std::string& english) {
  return Translate(english);
}

QGroupBox* group(QWidget* parent, const char* title) {
  auto* box = new QGroupBox(Translate(title), parent);
  box->setAccessibleName(box->title());
  return box;
}

template <typename Button>
Button* voicedToggle(QWidget* parent, const char* face) {
  auto* button = new Button(Translate(face), parent);
  (new CTTSButton(button))->setToggleSound(true);
  return button;
}

CTTSEdit* edit(QWidget* parent, const char* spoken, const char* name) {
  auto* field = new CTTSEdit(parent);
  field->setSpokenLabel(spoken);
  field->setAccessibleName(Translate(name));
  return field;
}

CTTSComboBox* combo(QWidget* parent, const char* spoken, const char* name) {
  auto* box = new CTTSComboBox(parent);
  box->setSpokenLabel(spoken);
  box->setAccessibleName(Translate(name));
  return box;
}

QString say(const char* english, const QString& value) {
  return Translate(english).replace(QStringLiteral("%s"), value);
}

}  // namespace

CSLXPrintDlg::CSLXPrintDlg(CGraphCalcApp& app, QWidget* parent) : QDialog(parent), m_app(app) {
  CAccessibilityHooks::markSelfVoiced(this);
  setWindowTitle(Translate("SLX - Data Plot Print Setup"));
  setAccessibleName(windowTitle());
  PrintSetupState& kept = m_app.printState();
  m_style = graphStyleFromSettings(m_app.settings());
  m_style.decimalSign = DecimalSign();

  auto* output = group(this, SLX_TR("Printer"));
  auto* outputLayout = new QFormLayout(output);
  m_printer = combo(output, SLX_TR("Printer:"), SLX_TR("Printer"));
  if (kept.printerNames.empty()) {
    m_printer->addItem(Translate("No printer installed"));
    m_printer->setAccessibleDescription(Translate("With no printer, Print saves the graph as a PDF file."));
  }
  for (const std::string& name : kept.printerNames) m_printer->addItem(QString::fromStdString(name));
  if (const int at = m_printer->findText(QString::fromStdString(kept.printer)); at >= 0)
    m_printer->setCurrentIndex(at);
  outputLayout->addRow(new QLabel(Translate("Printer:"), output), m_printer);
  m_toFile = voicedToggle<QCheckBox>(output, SLX_TR("Print to file"));
  m_toFile->setAccessibleDescription(Translate("Saves the page as a PDF file instead of printing it."));
  m_toFile->setChecked(kept.toFile || kept.printerNames.empty());
  outputLayout->addRow(m_toFile);
  m_fileName = edit(output, SLX_TR("File name:"), SLX_TR("File name"));
  m_fileName->setAccessibleDescription(Translate("The PDF file the page is saved in."));
  m_fileName->setMathSymbols(false);
  m_fileName->setText(kept.fileName.empty() ? defaultFileName() : QString::fromStdString(kept.fileName));
  outputLayout->addRow(new QLabel(Translate("File name:"), output), m_fileName);
  m_font = combo(output, SLX_TR("Font:"), SLX_TR("Font"));
  m_font->addItems(QFontDatabase::families());
  const QString family = kept.fontFamily.empty() ? font().family() : QString::fromStdString(kept.fontFamily);
  m_font->setCurrentIndex(std::max(0, m_font->findText(family)));
  m_fontSize = combo(output, SLX_TR("Font size:"), SLX_TR("Font size"));
  for (const int points : kFontPoints) m_fontSize->addItem(QString::number(points), points);
  m_fontSize->setCurrentIndex(std::max(0, m_fontSize->findData(kept.fontPoints)));
  auto* fonts = new QHBoxLayout();
  fonts->addWidget(m_font, 1);
  fonts->addWidget(new QLabel(Translate("Font size:"), output));
  fonts->addWidget(m_fontSize);
  outputLayout->addRow(new QLabel(Translate("Font:"), output), fonts);

  auto* size = group(this, SLX_TR("Size"));
  auto* sizeLayout = new QFormLayout(size);
  m_width = edit(size, SLX_TR("Width:"), SLX_TR("Width"));
  m_width->setAccessibleDescription(Translate("The graph's width on paper, in inches."));
  m_width->setText(QString::fromStdString(kept.width));
  m_height = edit(size, SLX_TR("Height:"), SLX_TR("Height"));
  m_height->setAccessibleDescription(Translate("The graph's height on paper, in inches."));
  m_height->setText(QString::fromStdString(kept.height));
  m_portrait = voicedToggle<QRadioButton>(size, SLX_TR("Portrait"));
  m_landscape = voicedToggle<QRadioButton>(size, SLX_TR("Landscape"));
  (kept.landscape ? m_landscape : m_portrait)->setChecked(true);
  auto* orientation = new QHBoxLayout();
  orientation->addWidget(m_portrait);
  orientation->addWidget(m_landscape);
  sizeLayout->addRow(new QLabel(Translate("Width:"), size), m_width);
  sizeLayout->addRow(new QLabel(Translate("Height:"), size), m_height);
  sizeLayout->addRow(orientation);
  m_paper = edit(size, SLX_TR("Paper size:"), SLX_TR("Paper size"));
  m_paper->setReadOnly(true);
  sizeLayout->addRow(new QLabel(Translate("Paper size:"), size), m_paper);
  m_copies = edit(size, SLX_TR("Number of copies:"), SLX_TR("Number of copies"));
  m_copies->setText(QString::fromStdString(kept.copies));
  sizeLayout->addRow(new QLabel(Translate("Number of copies:"), size), m_copies);
  m_title = edit(size, SLX_TR("Title:"), SLX_TR("Title"));
  m_title->setAccessibleDescription(Translate("Printed above the graph."));
  m_title->setText(QString::fromStdString(kept.title));
  sizeLayout->addRow(new QLabel(Translate("Title:"), size), m_title);

  auto* dataStyle = group(this, SLX_TR("Data Style"));
  auto* dataLayout = new QVBoxLayout(dataStyle);
  const char* dataFaces[] = {SLX_TR("Draw Data Points"), SLX_TR("Draw line through points"),
                             SLX_TR("Draw both line and data points")};
  for (std::size_t i = 0; i < m_dataStyle.size(); ++i) {
    m_dataStyle[i] = voicedToggle<QRadioButton>(dataStyle, dataFaces[i]);
    dataLayout->addWidget(m_dataStyle[i]);
  }
  const bool points = m_style.showPoints, line = m_style.showLine;
  m_dataStyle[points && line ? 2 : line ? 1 : 0]->setChecked(true);

  auto* axes = group(this, SLX_TR("Axes"));
  auto* axesLayout = new QVBoxLayout(axes);
  m_showXAxis = voicedToggle<QCheckBox>(axes, SLX_TR("Show X-Axis"));
  m_showYAxis = voicedToggle<QCheckBox>(axes, SLX_TR("Show Y-Axis"));
  m_showXAxis->setChecked(m_style.showXAxis);
  m_showYAxis->setChecked(m_style.showYAxis);
  axesLayout->addWidget(m_showXAxis);
  axesLayout->addWidget(m_showYAxis);
  auto* labels = group(this, SLX_TR("Axis Labels"));
  auto* labelsLayout = new QVBoxLayout(labels);
  m_xLabels = voicedToggle<QCheckBox>(labels, SLX_TR("X Labels"));
  m_yLabels = voicedToggle<QCheckBox>(labels, SLX_TR("Y Labels"));
  m_xLabels->setChecked(m_style.showXLabels);
  m_yLabels->setChecked(m_style.showYLabels);
  labelsLayout->addWidget(m_xLabels);
  labelsLayout->addWidget(m_yLabels);
  auto* ticks = group(this, SLX_TR("Tick Marks"));
  auto* ticksLayout = new QVBoxLayout(ticks);
  const char* tickFaces[] = {SLX_TR("No Tick Marks"), SLX_TR("Tick Marks"), SLX_TR("Grid Lines")};
  for (std::size_t i = 0; i < m_ticks.size(); ++i) {
    m_ticks[i] = voicedToggle<QRadioButton>(ticks, tickFaces[i]);
    ticksLayout->addWidget(m_ticks[i]);
  }
  m_ticks[std::min<std::size_t>(m_style.frameType, 2)]->setChecked(true);

  m_preview = new CPrintPreview(m_app.dataSets(), this);
  m_preview->setAccessibleName(Translate("Preview"));
  m_sizeLine = new QLabel(this);
  m_yAxisLine = new QLabel(this);
  m_refusal = new QLabel(this);
  m_refusal->setAccessibleName(Translate("Error"));
  m_refusal->setWordWrap(true);
  m_refusal->hide();

  m_print = new QPushButton(Translate("Print"), this);
  auto* cancel = new QPushButton(Translate("Cancel"), this);
  m_print->setDefault(true);
  for (QPushButton* button : {m_print, cancel}) (new CTTSButton(button))->setAnnounceType(true);
  connect(m_print, &QPushButton::clicked, this, &CSLXPrintDlg::onPrint);
  connect(cancel, &QPushButton::clicked, this, &QDialog::reject);

  auto* left = new QVBoxLayout();
  left->addWidget(output);
  left->addWidget(size);
  auto* middle = new QVBoxLayout();
  for (QWidget* box : {static_cast<QWidget*>(dataStyle), static_cast<QWidget*>(axes),
                       static_cast<QWidget*>(labels), static_cast<QWidget*>(ticks)})
    middle->addWidget(box);
  middle->addStretch(1);
  auto* right = new QVBoxLayout();
  right->addWidget(m_preview, 1);
  right->addWidget(m_sizeLine);
  right->addWidget(m_yAxisLine);
  auto* columns = new QHBoxLayout();
  columns->addLayout(left);
  columns->addLayout(middle);
  columns->addLayout(right, 1);
  auto* buttons = new QHBoxLayout();
  buttons->addStretch(1);
  buttons->addWidget(m_print);
  buttons->addWidget(cancel);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(columns, 1);
  layout->addWidget(m_refusal);
  layout->addLayout(buttons);

  const auto refresh = [this] {
    updateEnabled();
    updatePaper();
    updatePreview();
  };
  for (QCheckBox* box : {m_toFile, m_showXAxis, m_showYAxis, m_xLabels, m_yLabels})
    connect(box, &QCheckBox::toggled, this, refresh);
  for (QRadioButton* radio : {m_portrait, m_landscape, m_dataStyle[0], m_dataStyle[1], m_dataStyle[2],
                              m_ticks[0], m_ticks[1], m_ticks[2]})
    connect(radio, &QRadioButton::toggled, this, refresh);
  for (CTTSComboBox* box : {m_printer, m_font, m_fontSize})
    connect(box, &QComboBox::currentIndexChanged, this, refresh);
  for (CTTSEdit* field : {m_width, m_height, m_title}) connect(field, &QLineEdit::textEdited, this, refresh);
  connect(m_toFile, &QCheckBox::toggled, this, [this](bool on) {
    // With no printer there is nothing else to print on.
    if (!on && m_app.printState().printerNames.empty()) {
      m_toFile->setChecked(true);
      voice::Speak(SpeechKind::Content,
                   Translate("No printer is installed: the graph can only be saved as a PDF file."));
    }
  });
  refresh();
}

QString CSLXPrintDlg::defaultFileName() {
  QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  if (folder.isEmpty() || !QFileInfo(folder).isDir()) folder = QDir::homePath();
  const QDir dir(folder);
  QString name = dir.filePath(QStringLiteral("graph.pdf"));
  for (int n = 2; QFileInfo::exists(name); ++n) name = dir.filePath(QStringLiteral("graph-%1.pdf").arg(n));
  return QDir::toNativeSeparators(name);
}

QString CSLXPrintDlg::refusalText() const {
  return m_refusal->isHidden() ? QString() : m_refusal->text();
}

QString CSLXPrintDlg::previewText() const {
  return m_yAxisLine->text().isEmpty() ? m_sizeLine->text()
                                       : m_sizeLine->text() + QStringLiteral(". ") + m_yAxisLine->text();
}

bool CSLXPrintDlg::printing() const {
  return !m_app.printState().printerNames.empty() && !m_toFile->isChecked();
}

void CSLXPrintDlg::updateEnabled() {
  m_printer->setEnabled(!m_app.printState().printerNames.empty());
  m_fileName->setEnabled(!printing());
  m_copies->setEnabled(printing());
}

QPageSize CSLXPrintDlg::pageSize() const {
  if (printing()) {
    const QPrinterInfo info = QPrinterInfo::printerInfo(m_printer->currentText());
    if (info.defaultPageSize().isValid()) return info.defaultPageSize();
  }
  // A file gets the paper of the user's country.
  return QPageSize(QLocale::system().measurementSystem() == QLocale::ImperialUSSystem ? QPageSize::Letter
                                                                                      : QPageSize::A4);
}

void CSLXPrintDlg::updatePaper() {
  const QPageSize paper = pageSize();
  const QSizeF inches = paper.size(QPageSize::Inch);
  m_paper->setText(
      paper.name() + QStringLiteral(", ") +
      QString::fromStdString(PrintSetupForm::sizeLine(translated, inches.width(), inches.height())));
}

PrintSetupForm CSLXPrintDlg::form() const {
  PrintSetupForm typed;
  typed.width = m_width->text().toStdString();
  typed.height = m_height->text().toStdString();
  typed.copies = printing() ? m_copies->text().toStdString() : std::string("1");
  typed.landscape = m_landscape->isChecked();
  const QSizeF inches = QSizeF(pageSize().sizePoints()) / 72.0;
  typed.paperWidthInches = inches.width();
  typed.paperHeightInches = inches.height();
  return typed;
}

GraphPageChoices CSLXPrintDlg::choices() const {
  GraphPageChoices chosen;
  const PrintSetupForm typed = form();
  chosen.widthInches = typed.acceptedWidth().value_or(PrintSetupForm::kSmallestInches);
  chosen.heightInches = typed.acceptedHeight().value_or(PrintSetupForm::kSmallestInches);
  chosen.style = m_style;
  chosen.style.showPoints = !m_dataStyle[1]->isChecked();
  chosen.style.showLine = !m_dataStyle[0]->isChecked();
  chosen.style.showXAxis = m_showXAxis->isChecked();
  chosen.style.showYAxis = m_showYAxis->isChecked();
  chosen.style.showXLabels = m_xLabels->isChecked();
  chosen.style.showYLabels = m_yLabels->isChecked();
  for (std::uint32_t type = 0; type < m_ticks.size(); ++type)
    if (m_ticks[type]->isChecked()) chosen.style.frameType = type;
  chosen.fontFamily = m_font->currentText();
  chosen.fontPoints = m_fontSize->currentData().toInt();
  chosen.title = m_title->text();
  return chosen;
}

void CSLXPrintDlg::updatePreview() {
  const PrintSetupForm typed = form();
  const GraphPageChoices chosen = choices();
  const QSizeF page(typed.pageWidthInches(), typed.pageHeightInches());
  m_preview->show(chosen, page);
  m_sizeLine->setText(
      QString::fromStdString(PrintSetupForm::sizeLine(translated, chosen.widthInches, chosen.heightInches)));
  const GraphScene scene = graphPageScene(QSize(850, 1100), page, m_app.dataSets(), chosen);
  m_yAxisLine->setText(
      scene.empty || scene.yLabelFactor == 1.0
          ? QString()
          : QString::fromStdString(PrintSetupForm::yAxisLine(translated, scene.yLabelFactor)));
  m_yAxisLine->setHidden(m_yAxisLine->text().isEmpty());
  m_preview->setAccessibleDescription(previewText());
}

void CSLXPrintDlg::refuse(QLineEdit* field, const QString& message) {
  m_refusal->setText(message);
  m_refusal->show();
  field->setFocus(Qt::OtherFocusReason);
  field->selectAll();
  voice::Speak(SpeechKind::Content, message);
}

QString CSLXPrintDlg::outputFile() const {
  QString name = m_fileName->text().trimmed();
  if (name.isEmpty()) return {};
  if (!name.endsWith(QStringLiteral(".pdf"), Qt::CaseInsensitive)) name += QStringLiteral(".pdf");
  const QFileInfo file(name);
  if (file.isRelative()) return QFileInfo(QFileInfo(defaultFileName()).dir(), name).absoluteFilePath();
  return file.absoluteFilePath();
}

void CSLXPrintDlg::remember() const {
  PrintSetupState& kept = m_app.printState();
  kept.printer = m_printer->currentText().toStdString();
  kept.toFile = m_toFile->isChecked();
  kept.fileName = m_fileName->text().toStdString();
  kept.fontFamily = m_font->currentText().toStdString();
  kept.fontPoints = m_fontSize->currentData().toInt();
  kept.width = m_width->text().toStdString();
  kept.height = m_height->text().toStdString();
  kept.landscape = m_landscape->isChecked();
  kept.copies = m_copies->text().toStdString();
  kept.title = m_title->text().toStdString();
}

void CSLXPrintDlg::onPrint() {
  const PrintSetupForm typed = form();
  if (const auto refusal = typed.check(translated)) {
    CTTSEdit* fields[] = {m_width, m_height, m_copies};
    refuse(fields[refusal->field], QString::fromStdString(refusal->message));
    return;
  }
  const QString file = printing() ? QString() : outputFile();
  if (!printing() && file.isEmpty()) {
    refuse(m_fileName, Translate("Type the name of the PDF file to save the graph in."));
    return;
  }
  remember();
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(m_title->text().isEmpty() ? Translate(product::kTitle) : m_title->text());
  printer.setCreator(Translate(product::kTitle));
  if (printing()) {
    printer.setPrinterName(m_printer->currentText());
    printer.setCopyCount(*typed.acceptedCopies());
  } else {
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(file);
  }
  printer.setPageSize(pageSize());
  printer.setPageOrientation(typed.landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
  printer.setPageMargins(QMarginsF(0, 0, 0, 0));
  if (!printGraphPage(printer, m_app.dataSets(), choices())) {
    const QString where = printing() ? m_printer->currentText() : QDir::toNativeSeparators(file);
    refuse(printing() ? static_cast<QLineEdit*>(m_copies) : m_fileName,
           say(SLX_TR("The graph could not be printed on %s."), where));
    return;
  }
  m_outcome = printing() ? say(SLX_TR("The graph is printed on %s."), m_printer->currentText())
                         : say(SLX_TR("The graph is saved in %s."), QDir::toNativeSeparators(file));
  if (!printing()) m_app.printState().fileName = defaultFileName().toStdString();
  accept();
  voice::Speak(SpeechKind::Content, m_outcome);
}

void CSLXPrintDlg::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  // With no printer the list is off, and the file's name comes first.
  QWidget* first = m_app.printState().printerNames.empty() ? static_cast<QWidget*>(m_fileName) : m_printer;
  first->setFocus(Qt::OtherFocusReason);
  m_greeted = false;
}

bool CSLXPrintDlg::event(QEvent* event) {
  const bool handled = QDialog::event(event);
  if (event->type() == QEvent::WindowActivate && !m_greeted) {
    m_greeted = true;
    // After the focused control's own words, which this repeats after the title.
    QTimer::singleShot(0, this, [this] {
      QString text = windowTitle() + QStringLiteral(". ");
      if (m_app.printState().printerNames.empty()) {
        text += Translate("No printer is installed: Print saves the graph as a PDF file.") +
                QLatin1Char(' ') + m_fileName->spokenText();
      } else {
        text += m_printer->spokenText();
      }
      voice::Speak(SpeechKind::Content, text);
    });
  }
  return handled;
}

}  // namespace sonalyx::ui
