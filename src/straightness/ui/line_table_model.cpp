#include "straightness/ui/line_table_model.h"

#include <array>

#include "frame/ui/qt_text.h"
#include "straightness/linien_zeile.h"

namespace korvin {
namespace {

constexpr std::array<PointColumn, LineTableModel::ColumnCount> lineColumns = {
    {{"000", false}, {"00000.0", true}, {"-0000.0000", true}, {"-0000.0000", true}}};

}  // namespace

LineTableModel::LineTableModel(const GeradReihe& series, const AchsenAnzeigeDaten& x,
                               const AchsenAnzeigeDaten& y, std::int16_t Masssystem, QObject* parent)
    : PointTableModel(lineColumns, parent), series_(series), x_(x), y_(y), masssystem_(Masssystem) {}

int LineTableModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : count_;
}

QStringList LineTableModel::rowTexts(int row) const {
  const LinienZeile line = linienZeile(series_, x_, y_, row + 1, masssystem_);
  return {qText(line.nummer), qText(line.z), qText(line.X), qText(line.Y)};
}

void LineTableModel::follow() {
  if (linienZeilen(series_, x_, y_) == count_) {
    repaintRows(0, count_ - 1);
  } else {
    reload();
  }
}

void LineTableModel::reload() {
  beginResetModel();
  count_ = linienZeilen(series_, x_, y_);
  endResetModel();
}

}  // namespace korvin
