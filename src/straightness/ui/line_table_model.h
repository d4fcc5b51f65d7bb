#pragma once

#include <cstdint>

#include "link/ui/point_table_model.h"
#include "straightness/achsen_anzeige.h"
#include "straightness/record.h"

namespace korvin {

/// The points of a line as a table: number, z, and the evaluated values of both axes.
class LineTableModel : public PointTableModel {
  Q_OBJECT
 public:
  enum Column { Number, Z, X, Y, ColumnCount };

  /// Series and what was computed of it have to outlive the model; `Masssystem` is that of the window.
  LineTableModel(const GeradReihe& series, const AchsenAnzeigeDaten& x, const AchsenAnzeigeDaten& y,
                 std::int16_t Masssystem, QObject* parent = nullptr);

  int rowCount(const QModelIndex& parent = {}) const override;
  int cursorRow() const override { return series_.Linie.AktMP - 1; }
  /// Any reading may move the reference line, so all rows in view are painted anew.
  void follow() override;
  void reload() override;

 protected:
  QStringList rowTexts(int row) const override;

 private:
  const GeradReihe& series_;
  const AchsenAnzeigeDaten& x_;
  const AchsenAnzeigeDaten& y_;
  std::int16_t masssystem_;
  int count_ = 0;
};

}  // namespace korvin
