#pragma once

#include <QStackedWidget>
#include <QVector>
#include <QWidget>
#include <functional>

#include "frame/dictionary.h"
#include "frame/messplatz.h"
#include "position/formpos.h"
#include "position/panel_texts.h"
#include "position/ui/position_panels.h"
#include "position/ui/range_bar.h"
#include "position/ui/statistics_panel.h"
#include "position/ui/xy_diagram_view.h"

namespace korvin {

/// The left half of `FormPosition`: the bar of ranges, the diagram or the large numbers in its place, and the
/// statistics below.
class DiagramArea : public QWidget {
  Q_OBJECT
 public:
  /// Measurement, units and the desk's ports outlive the widget.
  DiagramArea(FORMPOS& formpos, const Systemwerte& system, const PictureDesk& desk,
              QWidget* parent = nullptr);

  /// Called with the number of the point that the user chose in the diagram.
  std::function<void(int nummer)> onChosen;

  void setTexte(Dictionary& dictionary, const QString& einheit);

  /// Brings all up to date with the record.
  void zeige(const PositionsTexte& texte);
  /// The same with wholly other points.
  void zeigeNeu(const PositionsTexte& texte);

  void setNumZoom(bool an);
  void setStatistik(bool an) { statistik_->setVisible(an); }
  void setBereichsleiste(bool an);

  PictureStatistik& statistik() { return *statistik_; }
  PictureXYDiagramm& diagramm() { return *diagramm_; }
  QVector<ValuePanel*> werte() const { return zoom_->werte(); }

 private:
  void bereichTaste(const QString& key);
  void nebenanZeigen();

  FORMPOS& formpos_;
  const Systemwerte& system_;
  RangeBar* bereich_;
  PictureXYDiagramm* diagramm_;
  PositionZoom* zoom_;
  QStackedWidget* flaeche_;
  PictureStatistik* statistik_;
};

}  // namespace korvin
