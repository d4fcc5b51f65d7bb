#pragma once

#include "link/ui/point_table_model.h"
#include "position/point_store.h"
#include "position/record.h"

namespace korvin {

/// The points of a position measurement as a table: number, time, X and Y less the offset in force. Reads the
/// store itself and keeps no copy, so that 29999 points cost nothing.
class PointListModel : public PointTableModel {
  Q_OBJECT
 public:
  enum Column { Number, Time, X, Y, ColumnCount };

  /// Store and record have to outlive the model.
  PointListModel(const PointStore& points, const PositionsDatei& record, QObject* parent = nullptr);

  int rowCount(const QModelIndex& parent = {}) const override;
  int cursorRow() const override { return seen_.cursor - 1; }

  /// New points are appended, never the whole list anew; another offset, number of decimals or cursor only
  /// has rows painted again.
  void follow() override;
  void reload() override;

 protected:
  QStringList rowTexts(int row) const override;

 private:
  struct Seen {
    int count = 0;
    int cursor = 0;
    double offsetX = 0;
    double offsetY = 0;
    int decimals = 0;
  };
  Seen look() const;

  const PointStore& points_;
  const PositionsDatei& record_;
  Seen seen_;
};

}  // namespace korvin
