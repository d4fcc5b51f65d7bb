#pragma once

#include <QAbstractTableModel>
#include <QStringList>
#include <QVector>

#include "position/point_store.h"
#include "position/record.h"

namespace korvin {

/// The points of a position measurement as a table: number, time, X and Y less the offset in force. Reads the
/// store itself and keeps no copy, so that 29999 points cost nothing; the row under the point cursor is
/// marked.
class PointListModel : public QAbstractTableModel {
  Q_OBJECT
 public:
  enum Column { Number, Time, X, Y, ColumnCount };

  /// Store and record have to outlive the model.
  PointListModel(const PointStore& points, const PositionsDatei& record, QObject* parent = nullptr);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

  void setHeadings(const QStringList& headings);

  /// Takes over what has changed since the last call: new points are appended, never the whole list anew;
  /// another offset, number of decimals or cursor only has rows painted again.
  void follow();
  /// Takes over wholly other points.
  void reload();

  /// The rows as lines of tab separated texts.
  QString tabSeparated(const QVector<int>& rows) const;

  /// The row under the point cursor; −1 without points.
  int cursorRow() const { return seen_.cursor - 1; }

 private:
  struct Seen {
    int count = 0;
    int cursor = 0;
    double offsetX = 0;
    double offsetY = 0;
    int decimals = 0;
  };
  Seen look() const;
  void repaintRows(int first, int last);

  const PointStore& points_;
  const PositionsDatei& record_;
  QStringList headings_;
  Seen seen_;
};

}  // namespace korvin
