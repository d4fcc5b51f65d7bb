#pragma once

#include <QLabel>
#include <QVector>
#include <QWidget>

#include "frame/dictionary.h"
#include "link/ui/dark_panel.h"
#include "link/ui/head_panel.h"
#include "link/ui/value_panel.h"
#include "position/panel_texts.h"

namespace korvin {

/// The column of panels of `FormPosition`: the two values, the point cursor, the offset, the plan of a run
/// with its clock, and the head.
class PositionPanels : public DarkPanel {
  Q_OBJECT
 public:
  /// Takes `kopf` in at its foot.
  explicit PositionPanels(HeadPanel* kopf, QWidget* parent = nullptr);

  /// Captions in the present language; `einheit` is the mark of the lengths, "[mm]" or "[mil]".
  void setTexte(Dictionary& dictionary, const QString& einheit);
  void zeigeWerte(const PositionsTexte& texte);
  /// All but the two values.
  void zeigeStatus(const PositionsTexte& texte);
  /// `PanelZeit(2)`; an empty text hides it.
  void zeigeUhr(const QString& zeit);

  QVector<ValuePanel*> werte() const { return {x_, y_}; }

 private:
  ValuePanel* x_;
  ValuePanel* y_;
  QLabel* einheitX_;
  QLabel* einheitY_;
  CaptionedField* messPunkt_;
  CaptionedField* gesamt_;
  CaptionedField* offset_;
  CaptionedField* rest_;
  CaptionedField* intervall_;
  CaptionedField* start_;
  CaptionedField* stop_;
  CaptionedField* uhr_;
};

/// The large numbers that stand in place of the diagram: `PanelXWertZoom`, `PanelYWertZoom`, and `pnlXY`
/// with the unit.
class PositionZoom : public DarkPanel {
  Q_OBJECT
 public:
  explicit PositionZoom(QWidget* parent = nullptr);

  void setEinheit(const QString& einheit);
  void zeige(const PositionsTexte& texte);
  QVector<ValuePanel*> werte() const { return {x_, y_}; }

 private:
  ValuePanel* x_;
  ValuePanel* y_;
  QLabel* pnlXY_;
};

}  // namespace korvin
