#include "position/ui/point_list_model.h"

#include <array>

#include "frame/ui/qt_text.h"
#include "position/point_row.h"

namespace korvin {
namespace {

constexpr std::array<PointColumn, PointListModel::ColumnCount> pointColumns = {
    {{"00000", false}, {"00.00.0000 / 00:00:00", false, true}, {"-0000.0000", true}, {"-0000.0000", true}}};

}  // namespace

PointListModel::PointListModel(const PointStore& points, const PositionsDatei& record, QObject* parent)
    : PointTableModel(pointColumns, parent), points_(points), record_(record), seen_(look()) {}

int PointListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : seen_.count;
}

QStringList PointListModel::rowTexts(int row) const {
  const PunktZeile line = punktZeile(points_, record_, row + 1);
  return {qText(line.nummer), qText(line.zeit), qText(line.x), qText(line.y)};
}

PointListModel::Seen PointListModel::look() const {
  return {static_cast<int>(points_.X().anzahl()), record_.Info.MPAktuell, record_.X.Offset, record_.Y.Offset,
          record_.Info.NKStellen};
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

}  // namespace korvin
