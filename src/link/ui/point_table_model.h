#pragma once

#include <QAbstractTableModel>
#include <QStringList>
#include <QVector>
#include <span>

namespace korvin {

/// A column of a table of points.
struct PointColumn {
  const char* widest;    ///< the widest text that has to fit
  bool stretches;        ///< takes a share of the room that is left
  bool centred = false;  ///< else to the right, as figures stand
};

/// The points of a measurement as a table for `PointList`. The row of the point cursor is marked.
///
/// To add a kind: derive from it, give rows and cursor from the kind's record, and tell in `follow` what has
/// changed.
class PointTableModel : public QAbstractTableModel {
  Q_OBJECT
 public:
  /// `columns` outlive the model.
  explicit PointTableModel(std::span<const PointColumn> columns, QObject* parent = nullptr);

  /// Takes over what has changed since the last call.
  virtual void follow() = 0;
  /// Takes over wholly other points.
  virtual void reload() = 0;
  /// The row under the point cursor; −1 without points.
  virtual int cursorRow() const = 0;

  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;

  std::span<const PointColumn> columns() const { return columns_; }
  void setHeadings(const QStringList& headings);

  /// The rows as lines of tab separated texts.
  QString tabSeparated(const QVector<int>& rows) const;

 protected:
  /// The texts of a row, one for each column.
  virtual QStringList rowTexts(int row) const = 0;
  /// Has rows painted anew, as far as there are such rows.
  void repaintRows(int first, int last);

 private:
  QVariant alignment(int column) const;

  std::span<const PointColumn> columns_;
  QStringList headings_;
};

}  // namespace korvin
