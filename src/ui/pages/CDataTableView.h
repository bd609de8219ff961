#pragma once

#include <QTableView>

#include "core/speech/SpeechKind.h"

namespace sonalyx::ui {

class CDataSetModel;

// The data table as the keyboard meets it: arriving says the table and the current
// row; Up and Down say each row reached, Left and Right each cell. Tab leaves the
// table instead of walking its cells, and typing in an x or f(x) cell edits it.
class CDataTableView : public QTableView {
  Q_OBJECT
 public:
  explicit CDataTableView(QWidget* parent = nullptr);

  void setDataModel(CDataSetModel* model);
  void setSpokenLabel(const QString& english);
  // Puts the current cell back after the model was reloaded, without a word.
  void restoreCurrent(int row, int column);
  // What arriving in the table says.
  QString spokenText() const;

 protected:
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void focusInEvent(QFocusEvent* event) override;
  void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;

 private:
  CDataSetModel* m_model = nullptr;
  QString m_spokenLabel;
  bool m_quiet = false;
  // The focus coming back from a cell's editor: only the row is said again.
  bool m_fromEditor = false;
};

}  // namespace sonalyx::ui
