#include "ui/pages/CDataSetModel.h"

#include <cmath>

#include "core/utility/NumberFormat.h"
#include "ui/app/CGraphCalcApp.h"

namespace sonalyx::ui {

namespace {

QString shown(double value) {
  if (value == kAbsent) return {};
  return QString::fromStdString(formatNumber(value, "%.6g"));
}

}  // namespace

CDataSetModel::CDataSetModel(DataPageSession& session, QObject* parent)
    : QAbstractTableModel(parent), m_session(session) {}

QString CDataSetModel::columnTitle(int column) {
  switch (column) {
    case kX:
      return Translate("x");
    case kY:
      return Translate("f(x)");
    case kDerivative:
      return Translate("d(f(x))/dx");
    case kIntegral:
      return QString(QChar(0x222B)) + Translate("f(x)dx");
    case kTrend:
      return Translate("Trend");
    default:
      return {};
  }
}

QString CDataSetModel::cellText(int row, int column) const {
  const DataSet& set = m_session.set();
  if (row < 0 || static_cast<std::size_t>(row) >= set.count()) return {};
  const DataPoint& p = set.at(static_cast<std::size_t>(row));
  switch (column) {
    case kX:
      return shown(p.x);
    case kY:
      return shown(p.y);
    case kDerivative:
      return shown(p.derivative);
    case kIntegral:
      return shown(p.integral);
    case kTrend:
      if (p.trend == kAbsentTrend) return {};
      return p.trend > 0 ? QStringLiteral("+") : p.trend < 0 ? QStringLiteral("-") : QStringLiteral("0");
    default:
      return {};
  }
}

QString CDataSetModel::cellSpokenText(int row, int column) const {
  const QString text = cellText(row, column);
  if (static_cast<std::size_t>(row) == m_session.set().count())
    return columnTitle(column) + QStringLiteral(", ") + Translate("new point");
  if (text.isEmpty()) return columnTitle(column) + QStringLiteral(", ") + Translate("blank");
  if (column == kTrend) return columnTitle(column) + QStringLiteral(" ") + text;
  return columnTitle(column) + QStringLiteral(" = ") + text;
}

QString CDataSetModel::rowSpokenText(int row) const {
  if (static_cast<std::size_t>(row) == m_session.set().count()) return Translate("New point.");
  QString text = Translate("Row %1: ").arg(row + 1);
  QStringList cells;
  for (int column = 0; column < kColumnCount; ++column)
    if (!cellText(row, column).isEmpty()) cells << cellSpokenText(row, column);
  return text + cells.join(QStringLiteral(", "));
}

void CDataSetModel::reload() {
  beginResetModel();
  endResetModel();
}

int CDataSetModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(m_session.set().count()) + 1;
}

int CDataSetModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kColumnCount;
}

QVariant CDataSetModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  switch (role) {
    case Qt::DisplayRole:
      return cellText(index.row(), index.column());
    case Qt::EditRole: {
      // Edited with all the digits kept.
      const DataSet& set = m_session.set();
      if (static_cast<std::size_t>(index.row()) >= set.count() || index.column() > kY) return QString();
      const DataPoint& p = set.at(static_cast<std::size_t>(index.row()));
      const double value = index.column() == kX ? p.x : p.y;
      return QString::fromStdString(formatNumber(value, "%.15g"));
    }
    case Qt::AccessibleTextRole:
      return cellSpokenText(index.row(), index.column());
    case Qt::TextAlignmentRole:
      return QVariant(static_cast<int>(Qt::AlignRight | Qt::AlignVCenter));
    default:
      return {};
  }
}

QVariant CDataSetModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole && role != Qt::AccessibleTextRole) return {};
  if (orientation == Qt::Horizontal) return columnTitle(section);
  if (static_cast<std::size_t>(section) == m_session.set().count())
    return role == Qt::DisplayRole ? QStringLiteral("*") : Translate("new point");
  return section + 1;
}

Qt::ItemFlags CDataSetModel::flags(const QModelIndex& index) const {
  Qt::ItemFlags flags = QAbstractTableModel::flags(index);
  if (index.isValid() && (index.column() == kX || index.column() == kY)) flags |= Qt::ItemIsEditable;
  return flags;
}

bool CDataSetModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (role != Qt::EditRole || !(flags(index) & Qt::ItemIsEditable)) return false;
  const QString typed = value.toString().trimmed();
  // An edit that changes nothing (the editor closed on the same text) is no edit.
  if (typed == data(index, Qt::EditRole).toString() || (typed.isEmpty() && index.row() == rowCount() - 1))
    return false;
  double number = 0.0;
  DataPageUpdate refusal;
  if (!m_session.readCell(typed.toStdString(), number, refusal.message)) {
    refusal.refused = true;
    emit edited(refusal);
    return false;
  }
  const std::size_t count = m_session.set().count();
  const bool appends = static_cast<std::size_t>(index.row()) == count;
  if (appends) beginInsertRows(QModelIndex(), static_cast<int>(count) + 1, static_cast<int>(count) + 1);
  const DataPageUpdate update =
      m_session.setCell(static_cast<std::size_t>(index.row()), index.column(), number);
  if (appends) endInsertRows();
  emit dataChanged(this->index(index.row(), 0), this->index(index.row(), kColumnCount - 1));
  emit edited(update);
  return true;
}

}  // namespace sonalyx::ui
