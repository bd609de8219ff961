#include "ui/app/DataFileCommands.h"

#include <QClipboard>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QMessageBox>

#include "core/files/ClipboardText.h"
#include "core/files/DataSetFile.h"
#include "core/files/FileError.h"
#include "core/files/SelectedDataSet.h"
#include "ui/app/CGraphCalcApp.h"
#include "ui/app/Voice.h"
#include "ui/pages/CDataPage.h"
#include "ui/sheet/CCalcSheet.h"

namespace sonalyx::ui::files {

namespace {

QString fileFilter() {
  return Translate(kDataSetFileFilter);
}

std::string translated(const std::string& english) {
  return Translate(english);
}

const DataSet& played(const CGraphCalcApp& app) {
  return selectedDataSet(app.dataSets(), app.settings().GetSetType());
}

}  // namespace

void OpenDataSet(QWidget* parent, CDataPage& data1) {
  const QString path =
      QFileDialog::getOpenFileName(parent, Translate("Open Data Set"), QString(), fileFilter());
  if (path.isEmpty()) return;
  std::vector<DataPoint> points;
  try {
    points = readDataSetFile(path.toStdString());
  } catch (const FileError& error) {
    QMessageBox::critical(parent, Translate(kFileOpenErrorCaption), Translate(error.what()));
    return;
  } catch (const DataSetTextError& error) {
    QMessageBox::critical(parent, Translate(kFileOpenErrorCaption),
                          QString::fromStdString(error.message(translated)));
    return;
  }
  if (auto* sheetPage = data1.sheet()) sheetPage->SetActivePage(sheetPage->indexOf(&data1));
  data1.LoadPoints(std::move(points), path);
}

void SaveDataSet(QWidget* parent, const CGraphCalcApp& app) {
  const DataSet& set = played(app);
  if (set.count() == 0) {
    QMessageBox::critical(parent, Translate(kFileSaveErrorCaption),
                          Translate("No data set found - nothing to save."));
    return;
  }
  const QString chosen =
      QFileDialog::getSaveFileName(parent, Translate("Save Data Set"), QString(), fileFilter());
  if (chosen.isEmpty()) return;
  std::string written;
  try {
    written = saveDataSetFile(chosen.toStdString(), set);
  } catch (const FileError& error) {
    QMessageBox::critical(parent, Translate(kFileSaveErrorCaption), Translate(error.what()));
    return;
  }
  voice::Speak(SpeechKind::Content, Translate("Saved %1 points as %2.")
                                        .arg(static_cast<qulonglong>(set.count()))
                                        .arg(QFileInfo(QString::fromStdString(written)).fileName()));
}

void CopyDataSet(const CGraphCalcApp& app) {
  const DataSet& set = played(app);
  if (set.count() == 0) return;
  QGuiApplication::clipboard()->setText(QString::fromStdString(clipboardText(set)));
  voice::Speak(SpeechKind::Content,
               Translate("%1 points copied to the clipboard.").arg(static_cast<qulonglong>(set.count())));
}

void PasteDataSet(CDataPage& data1) {
  const QString text = QGuiApplication::clipboard()->text();
  if (auto* sheetPage = data1.sheet()) sheetPage->SetActivePage(sheetPage->indexOf(&data1));
  data1.Paste(text);
}

}  // namespace sonalyx::ui::files
