#pragma once

#include <QTableView>
#include <functional>

#include "link/ui/point_table_model.h"

namespace korvin {

/// The table of points of a measuring window: scrolls with the point cursor; a click on a row, or Up and
/// Down, moves the cursor. Rows can be selected on their own account and copied (Ctrl+C, all rows where none
/// is selected) as tab separated text.
class PointList : public QTableView {
  Q_OBJECT
 public:
  PointList(PointTableModel& model, QWidget* parent = nullptr);

  /// Called with the number of the point that the user chose.
  std::function<void(int number)> onChosen;

  /// What stands in the empty list.
  void setEmptyText(const QString& text);
  /// Brings the list up to date with record and store, and the cursor's row into view if it moved.
  void follow();
  /// The same with wholly other points.
  void reload();

  void copy();

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

 private:
  void fitColumns();
  void showCursor();
  int columnWidthOf(int column) const;

  PointTableModel& model_;
  QString emptyText_;
  bool following_ = false;  ///< the list itself moves its current row
  int shownRow_ = -1;
};

}  // namespace korvin
