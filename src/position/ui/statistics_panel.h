#pragma once

#include <QLabel>
#include <QString>
#include <array>

#include "link/ui/dark_panel.h"
#include "position/formpos.h"
#include "position/statistics_texts.h"

namespace korvin {

/// The statistics of one axis, four lines: the axis with the number of points, mean, spread and span.
/// `PanelXStatistik` or `PanelYStatistik`; its lines bear this name with their index.
class AxisStatistics : public QWidget {
  Q_OBJECT
 public:
  AxisStatistics(const QString& axis, QWidget* parent = nullptr);

  /// A line that is switched off leaves its room to the others.
  void zeige(int anzahl, const StatistikTexte& texte);

 private:
  QString axis_;
  std::array<QLabel*, 4> lines_{};
};

/// `PictureStatistik`: mean, spread and span of both axes, below the diagram.
class PictureStatistik : public DarkPanel {
  Q_OBJECT
 public:
  explicit PictureStatistik(QWidget* parent = nullptr);

  /// Computes the statistics of the record, keeps them in it and shows what is switched on.
  void zeige(PositionsDatei& datei);

 private:
  AxisStatistics* x_;
  AxisStatistics* y_;
};

}  // namespace korvin
