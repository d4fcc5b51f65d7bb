#pragma once

#include <QLabel>
#include <QString>
#include <array>
#include <optional>
#include <string>

#include "link/ui/dark_panel.h"
#include "position/formpos.h"
#include "position/statistics_texts.h"

namespace korvin {

/// The statistics of one axis: the axis with the number of points (index 3), mean (0), spread (1), span (2),
/// and below them a line for the maximum that an analysis finds. `PanelXStatistik` or `PanelYStatistik`; its
/// lines bear this name with their index.
class AxisStatistics : public QWidget {
  Q_OBJECT
 public:
  /// `maximumIndex` is the index of the last line.
  AxisStatistics(const QString& axis, int maximumIndex, QWidget* parent = nullptr);

  /// A line that is switched off leaves its room to the others.
  void zeige(int anzahl, const StatistikTexte& texte);
  void zeigeMaximum(const std::optional<std::string>& text);

 private:
  QLabel* addLine(int index, double scale, const QColor& colour);

  QString axis_;
  QLabel* head_;
  std::array<QLabel*, 3> lines_{};
  QLabel* maximum_;
};

/// `PictureStatistik`: mean, spread and span of both axes, below the diagram.
class PictureStatistik : public DarkPanel {
  Q_OBJECT
 public:
  explicit PictureStatistik(QWidget* parent = nullptr);

  /// Computes the statistics of the record, keeps them in it and shows what is switched on.
  void zeige(PositionsDatei& datei);
  /// The lines of the maxima; without a text a line is hidden, as at first.
  void zeigeMaxima(const std::optional<std::string>& x, const std::optional<std::string>& y);

 private:
  AxisStatistics* x_;
  AxisStatistics* y_;
};

}  // namespace korvin
