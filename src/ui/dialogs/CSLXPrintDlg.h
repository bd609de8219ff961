#pragma once

#include <QDialog>
#include <QPageSize>
#include <array>

#include "core/pages/PrintSetupForm.h"
#include "ui/graph/GraphPage.h"

class QCheckBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace sonalyx::ui {

class CGraphCalcApp;
class CPrintPreview;
class CTTSComboBox;
class CTTSEdit;

// The print setup: the printer (or a PDF file when there is none, or when asked),
// the label font, the graph's size and orientation, copies, a title, and how the
// data, axes, labels and ticks are drawn on paper, with a live preview. The
// drawing choices start from the Plot page's settings and apply to this print
// only; the rest is kept for the run. Print refuses a size that does not fit the
// page, keeping the focus on the field and saying why.
class CSLXPrintDlg : public QDialog {
  Q_OBJECT
 public:
  explicit CSLXPrintDlg(CGraphCalcApp& app, QWidget* parent = nullptr);

  // What the last Print did, as said to the user; empty before.
  const QString& outcome() const { return m_outcome; }
  QString refusalText() const;
  // The size line and the y-axis line under the preview.
  QString previewText() const;

  // A free name in the user's documents ("graph.pdf", "graph-2.pdf", ...).
  static QString defaultFileName();

 protected:
  void showEvent(QShowEvent* event) override;
  bool event(QEvent* event) override;

 private:
  void onPrint();
  void updatePreview();
  void updatePaper();
  void updateEnabled();
  void refuse(QLineEdit* field, const QString& message);
  void remember() const;
  bool printing() const;
  QString outputFile() const;
  PrintSetupForm form() const;
  GraphPageChoices choices() const;
  QPageSize pageSize() const;

  CGraphCalcApp& m_app;
  CTTSComboBox* m_printer = nullptr;
  QCheckBox* m_toFile = nullptr;
  CTTSEdit* m_fileName = nullptr;
  CTTSComboBox* m_font = nullptr;
  CTTSComboBox* m_fontSize = nullptr;
  CTTSEdit* m_width = nullptr;
  CTTSEdit* m_height = nullptr;
  QRadioButton* m_portrait = nullptr;
  QRadioButton* m_landscape = nullptr;
  CTTSEdit* m_paper = nullptr;
  CTTSEdit* m_copies = nullptr;
  CTTSEdit* m_title = nullptr;
  std::array<QRadioButton*, 3> m_dataStyle{};
  QCheckBox* m_showXAxis = nullptr;
  QCheckBox* m_showYAxis = nullptr;
  QCheckBox* m_xLabels = nullptr;
  QCheckBox* m_yLabels = nullptr;
  std::array<QRadioButton*, 3> m_ticks{};
  CPrintPreview* m_preview = nullptr;
  QLabel* m_sizeLine = nullptr;
  QLabel* m_yAxisLine = nullptr;
  QLabel* m_refusal = nullptr;
  QPushButton* m_print = nullptr;
  GraphStyle m_style;
  QString m_outcome;
  bool m_greeted = false;
};

}  // namespace sonalyx::ui
