#include "position/ui/point_list_model.h"

#include <QFont>
#include <QPalette>

#include "frame/ui/qt_text.h"
#include "position/point_row.h"

namespace korvin {
namespace {

QString cell(const PunktZeile& row, int column) {
  switch (column) {
    case PointListModel::Number:
      return qText(row.nummer);
    case PointListModel::Time:
      return qText(row.zeit);
    case PointListModel::X:
      return qText(row.x);
    case PointListModel::Y:
      return qText(row.y);
    default:
      return {};
  }
}

}  // namespace

PointListModel::PointListModel(const PointStore& points, const PositionsDatei& record, QObject* parent)
    : QAbstractTableModel(parent), points_(points), record_(record), seen_(look()) {}

int PointListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : seen_.count;
}

int PointListModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : ColumnCount;
}

QVariant PointListModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.row() >= seen_.count) return {};
  switch (role) {
    case Qt::DisplayRole:
      return cell(punktZeile(points_, record_, index.row() + 1), index.column());
    case Qt::TextAlignmentRole:
      return QVariant(index.column() == Time ? Qt::AlignCenter : Qt::AlignRight | Qt::AlignVCenter);
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

QVariant PointListModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  if (role == Qt::DisplayRole) return headings_.value(section);
  if (role == Qt::TextAlignmentRole) {
    return QVariant(section == Time ? Qt::AlignCenter : Qt::AlignRight | Qt::AlignVCenter);
  }
  return {};
}

void PointListModel::setHeadings(const QStringList& headings) {
  headings_ = headings;
  Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
}

PointListModel::Seen PointListModel::look() const {
  return {static_cast<int>(points_.X().anzahl()), record_.Info.MPAktuell, record_.X.Offset, record_.Y.Offset,
          record_.Info.NKStellen};
}

void PointListModel::repaintRows(int first, int last) {
  if (first >= 0 && first <= last && last < seen_.count) {
    Q_EMIT dataChanged(index(first, 0), index(last, ColumnCount - 1));
  }
}

void PointListModel::follow() {
  const Seen before = seen_;
  const Seen present = look();
  if (present.count < before.count) {
    reload();
    return;
  }
  if (present.count > before.count) {
    beginInsertRows({}, before.count, present.count - 1);
    seen_ = present;
    endInsertRows();
  }
  seen_ = present;
  if (present.offsetX != before.offsetX || present.offsetY != before.offsetY ||
      present.decimals != before.decimals) {
    repaintRows(0, present.count - 1);
  } else if (present.cursor != before.cursor) {
    repaintRows(before.cursor - 1, before.cursor - 1);
    repaintRows(present.cursor - 1, present.cursor - 1);
  }
}

void PointListModel::reload() {
  beginResetModel();
  seen_ = look();
  endResetModel();
}

QString PointListModel::tabSeparated(const QVector<int>& rows) const {
  QString text;
  for (const int row : rows) {
    const PunktZeile line = punktZeile(points_, record_, row + 1);
    for (int column = 0; column < ColumnCount; ++column) {
      text += cell(line, column) + QLatin1Char(column + 1 < ColumnCount ? '\t' : '\n');
    }
  }
  return text;
}

}  // namespace korvin
