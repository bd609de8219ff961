#include "ui/pages/CDataTableView.h"

#include <QFocusEvent>
#include <QHeaderView>

#include "ui/app/CGraphCalcApp.h"
#include "ui/controls/VoicedText.h"
#include "ui/pages/CDataSetModel.h"

namespace sonalyx::ui {

CDataTableView::CDataTableView(QWidget* parent) : QTableView(parent) {
  setTabKeyNavigation(false);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setSelectionBehavior(QAbstractItemView::SelectItems);
  setEditTriggers(QAbstractItemView::AnyKeyPressed | QAbstractItemView::EditKeyPressed |
                  QAbstractItemView::DoubleClicked);
  // Fixed row heights: a hundred thousand rows need no measuring.
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 4);
  horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  setWordWrap(false);
}

void CDataTableView::setDataModel(CDataSetModel* model) {
  m_model = model;
  setModel(model);
}

void CDataTableView::setSpokenLabel(const QString& english) {
  m_spokenLabel = Translate(english);
  setAccessibleName(m_spokenLabel);
}

void CDataTableView::restoreCurrent(int row, int column) {
  if (!m_model) return;
  m_quiet = true;
  const QModelIndex index = m_model->index(std::min(row, m_model->rowCount() - 1), column);
  setCurrentIndex(index);
  scrollTo(index);
  m_quiet = false;
}

QString CDataTableView::spokenText() const {
  QString text = m_spokenLabel + QStringLiteral(". ");
  if (m_model && m_model->rowCount() == 1) return text + Translate("Empty.");
  const QModelIndex current = currentIndex();
  if (m_model && current.isValid()) text += m_model->rowSpokenText(current.row());
  return text;
}

void CDataTableView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  if (m_quiet || !m_model || !hasFocus() || !current.isValid()) return;
  if (!previous.isValid() || current.row() != previous.row())
    voiced::say(this, SpeechKind::Echo, m_model->rowSpokenText(current.row()));
  else
    voiced::say(this, SpeechKind::Echo, m_model->cellSpokenText(current.row(), current.column()));
}

void CDataTableView::focusInEvent(QFocusEvent* event) {
  if (m_model && !currentIndex().isValid()) restoreCurrent(0, 0);
  QTableView::focusInEvent(event);
  if (m_fromEditor) {
    if (m_model && currentIndex().isValid())
      voiced::say(this, SpeechKind::Echo, m_model->rowSpokenText(currentIndex().row()));
    return;
  }
  if (voiced::isArrival(this, event)) voiced::say(this, SpeechKind::Echo, spokenText());
}

void CDataTableView::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
  m_fromEditor = true;
  QTableView::closeEditor(editor, hint);
  m_fromEditor = false;
}

}  // namespace sonalyx::ui
