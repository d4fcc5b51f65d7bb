#include "link/ui/point_table_model.h"

#include <QFont>

namespace korvin {

PointTableModel::PointTableModel(std::span<const PointColumn> columns, QObject* parent)
    : QAbstractTableModel(parent), columns_(columns) {}

int PointTableModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(columns_.size());
}

QVariant PointTableModel::alignment(int column) const {
  const bool centred = columns_[static_cast<std::size_t>(column)].centred;
  return QVariant(centred ? Qt::AlignCenter : Qt::AlignRight | Qt::AlignVCenter);
}

QVariant PointTableModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= rowCount()) return {};
  switch (role) {
    case Qt::DisplayRole:
      return rowTexts(index.row()).value(index.column());
    case Qt::TextAlignmentRole:
      return alignment(index.column());
    case Qt::FontRole:
      if (index.row() == cursorRow()) {
        QFont bold;
        bold.setBold(true);
        return bold;
      }
      return {};
    default:
      return {};
  }
}

QVariant PointTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  if (role == Qt::DisplayRole) return headings_.value(section);
  if (role == Qt::TextAlignmentRole) return alignment(section);
  return {};
}

void PointTableModel::setHeadings(const QStringList& headings) {
  headings_ = headings;
  Q_EMIT headerDataChanged(Qt::Horizontal, 0, columnCount() - 1);
}

void PointTableModel::repaintRows(int first, int last) {
  if (first >= 0 && first <= last && last < rowCount()) {
    Q_EMIT dataChanged(index(first, 0), index(last, columnCount() - 1));
  }
}

QString PointTableModel::tabSeparated(const QVector<int>& rows) const {
  QString text;
  for (const int row : rows) text += rowTexts(row).join(QLatin1Char('\t')) + QLatin1Char('\n');
  return text;
}

}  // namespace korvin
