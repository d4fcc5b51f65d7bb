#pragma once

#include <QGridLayout>
#include <QLabel>
#include <QString>
#include <QWidget>
#include <array>
#include <string>

#include "frame/dictionary.h"
#include "link/ui/value_panel.h"
#include "straightness/achsen_anzeige.h"

namespace korvin {

/// The numbers of one axis on a dark panel: the value at the current point, `PanelxWertNormal` or
/// `PanelyWertNormal`, and below it the lines of statistics and tolerance that are switched on,
/// `PanelXStatistik(n)` or `PanelYStatistik(n)`: 0 mean, 1 deviation, 2 spread, 5 and 6 the allowed, 7 and 8
/// the measured of the whole line and of a section.
class AxisPanel : public QWidget {
  Q_OBJECT
 public:
  /// `axis` is "X" or "Y".
  explicit AxisPanel(const QString& axis, QWidget* parent = nullptr);

  /// Captions in the present language; `unit` is the mark of the values, "[mm]" or "[mil]".
  void setTexte(Dictionary& dictionary, const QString& unit);
  /// `name` stands beside the value: the axis with the number of the point.
  void zeige(const std::string& name, const AchsenTexte& texte);

  ValuePanel* wert() { return value_; }

 private:
  struct Tolerance {
    QLabel* caption = nullptr;
    QLabel* allowedName = nullptr;
    QLabel* allowed = nullptr;
    QLabel* measuredName = nullptr;
    QLabel* measured = nullptr;
  };

  QLabel* row(int index);
  Tolerance toleranceRow(QGridLayout& grid, int line, int allowed, int measured);
  static void showTolerance(const Tolerance& row, const std::optional<std::string>& allowed,
                            const std::optional<std::string>& measured);

  QString axis_;
  ValuePanel* value_;
  QLabel* name_;
  QLabel* unit_;
  QLabel* mean_;
  QLabel* deviation_;
  QLabel* spread_;
  QWidget* statistics_;
  QWidget* tolerances_;
  Tolerance whole_;
  Tolerance section_;
};

}  // namespace korvin
