#pragma once

#include <QThreadPool>
#include <cstddef>
#include <memory>
#include <vector>

#include "core/pages/DataPageSession.h"
#include "ui/sheet/CCalcPage.h"

class QGroupBox;
class QLabel;
class QPushButton;
class QRadioButton;
class QCheckBox;
class QShortcut;

namespace sonalyx::ui {

class CDataSetModel;
class CDataTableView;
class CTTSComboBox;
class CTTSEdit;
class CTTSListBox;
class CTTSStatic;

// The Data 1 and Data 2 pages: a set's f(x), its table, and the statistics view
// with the fits. The page turns keys into calls of its session and shows and says
// what comes back; f(x) is sampled away from the window, so a long evaluation
// never freezes it.
class CDataPage : public CCalcPage {
  Q_OBJECT
 public:
  // `slot` is DataSet::Data1 or DataSet::Data2.
  CDataPage(std::size_t slot, const QString& caption, QWidget* parent = nullptr);
  ~CDataPage() override;

  std::size_t slot() const { return m_session.slot(); }
  DataPageSession& session() { return m_session; }
  CTTSEdit* expressionEdit() const { return m_expr; }
  CDataTableView* table() const { return m_table; }
  CDataSetModel* model() const { return m_model; }
  QLabel* messageLine() const;
  CTTSListBox* resultsList() const { return m_results; }
  CTTSComboBox* modeList() const { return m_mode; }
  QPushButton* statisticsButton() const { return m_statsButton; }
  QPushButton* plotFitButton() const { return m_plotFit; }
  bool statisticsShown() const { return m_statisticsShown; }
  // Whether a sampling is still running.
  bool busy() const { return m_pending > 0; }

  void OnSetActive() override;
  bool OnKillActive() override;

  // The page's evaluate command (Enter in f(x), and F4 for Data 1): samples the
  // expression unless the box shows where the set came from.
  void Evaluate();
  // The fitted curve of the other page, sampled into this page's set and played.
  void PlotFittedCurve(const SamplingRequest& request);
  // The frame's file and clipboard commands, and restore defaults.
  void LoadPoints(std::vector<DataPoint> points, const QString& path);
  void Paste(const QString& text);
  void ClearSet();
  // Ctrl+Z: the set before the last paste, load, evaluation or clear.
  void Undo();
  // "Evaluate Statistics" and "Return to Data Table".
  void ToggleStatistics();

 signals:
  // The set changed: the graph, the cursor and the menus follow.
  void setChanged(std::size_t slot);
  // Play this set whole, then say `speech` (a plotted fit).
  void playRequested(std::size_t slot, const QString& speech);
  // A sampling ended, well or not.
  void evaluated();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void startSampling(const SamplingRequest& request);
  void finishSampling(const SamplingRequest& request, SamplingResult result);
  // Shows and says what the session answered. A cell's edit has changed the table
  // already; everything else reloads it.
  void apply(const DataPageUpdate& update, bool sayMessage = true, bool reloadTable = true);
  void showStatistics(bool shown);
  // With `focusList` the results list takes the focus and says its first line,
  // as on entering the view; a change of model only refills it.
  void computeFit(bool focusList);
  void plotFit();
  double chooseSineStart(double estimated);

  DataPageSession m_session;
  CTTSEdit* m_expr = nullptr;
  CTTSStatic* m_message = nullptr;
  QGroupBox* m_coordinates = nullptr;
  QRadioButton* m_rectangle = nullptr;
  QRadioButton* m_polar = nullptr;
  CDataSetModel* m_model = nullptr;
  CDataTableView* m_table = nullptr;
  QPushButton* m_statsButton = nullptr;
  QGroupBox* m_statsGroup = nullptr;
  CTTSComboBox* m_mode = nullptr;
  CTTSListBox* m_results = nullptr;
  QPushButton* m_plotFit = nullptr;
  QCheckBox* m_plotSet2 = nullptr;
  // Ctrl+Z anywhere in the panel while this page is in front, the tabs included.
  QShortcut* m_undo = nullptr;
  bool m_statisticsShown = false;
  int m_pending = 0;
  // Only the latest sampling of the page is taken; an older one that ends later is dropped.
  int m_generation = 0;
  // Last: waited for before anything else goes.
  QThreadPool m_workers;
};

}  // namespace sonalyx::ui
