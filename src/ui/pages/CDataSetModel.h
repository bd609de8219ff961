#pragma once

#include <QAbstractTableModel>

#include "core/pages/DataPageSession.h"

namespace sonalyx::ui {

// The data table's model: a view straight onto a Data page's set, so a set of
// 100,001 points opens at once. Row count() is empty, for a new point. Every cell
// tells a screen reader its column ("f(x) = 96"). Typed x and f(x) cells go to the
// session; what it answers is passed on through `edited`.
class CDataSetModel : public QAbstractTableModel {
  Q_OBJECT
 public:
  enum Column { kX, kY, kDerivative, kIntegral, kTrend, kColumnCount };

  explicit CDataSetModel(DataPageSession& session, QObject* parent = nullptr);

  // The column's title as shown and spoken.
  static QString columnTitle(int column);
  // The cell as shown: "%.6g", "Error" for a value that is not a number, nothing
  // for an absent value; the trend as "+", "-" or "0".
  QString cellText(int row, int column) const;
  // The cell as spoken: its column and its text.
  QString cellSpokenText(int row, int column) const;
  // The whole row as spoken ("Row 3: x = -9.92, f(x) = 94.41").
  QString rowSpokenText(int row) const;

  // The set was replaced: everything is read anew.
  void reload();

  int rowCount(const QModelIndex& parent = QModelIndex()) const override;
  int columnCount(const QModelIndex& parent = QModelIndex()) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

 signals:
  void edited(const DataPageUpdate& update);

 private:
  DataPageSession& m_session;
};

}  // namespace sonalyx::ui
