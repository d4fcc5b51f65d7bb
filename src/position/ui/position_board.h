#pragma once

#include <QAction>
#include <QString>
#include <functional>

#include "frame/dictionary.h"
#include "frame/flagge.h"
#include "frame/messplatz.h"
#include "frame/ui/key_tool_bar.h"
#include "link/ui/point_list.h"
#include "position/formpos.h"
#include "position/punkt_erfassung.h"
#include "position/ui/diagram_area.h"
#include "position/ui/point_list_model.h"
#include "position/ui/position_panels.h"

namespace korvin {

/// What a board works with. All outlive it.
struct BoardUmgebung {
  FORMPOS& formpos;
  PunktErfassung& erfassung;
  const Systemwerte& system;
  KeyToolBar& tasten;
  HeadPanel& kopf;
  PictureDesk ablage;  ///< where pictures of the diagram go
};

/// What every window on the position record shows in its middle, and what the user does there: diagram with
/// statistics, values, list of points; the keys of the statistics, of the cursor, of the offset and of the
/// points drawn; the grid. The window lays the three pieces out.
class PositionBoard {
 public:
  PositionBoard(const BoardUmgebung& umgebung, QWidget* parent);

  /// Called when the user has changed what is to be shown: the window redraws.
  std::function<void()> onGeaendert;

  /// Captions in the present language and unit.
  void setTexte(Dictionary& dictionary);
  /// Makes `eintrag` the entry `M_Gitter`.
  void gitterEintrag(QAction& eintrag);

  /// Does what a key of the toolbar asks for; nothing for keys of the window's own.
  void taste(const QString& key, bool gedrueckt);

  /// Shows all of the record anew, with its keys.
  void zeigeNeu();
  /// Brings values, diagram, statistics and list up to date; the status fields are the window's.
  void zeige(const PositionsTexte& texte);

  DiagramArea& bild() { return *bild_; }
  PositionPanels& panels() { return *panels_; }
  PointList& liste() { return *liste_; }
  QVector<ValuePanel*> werte() const { return panels_->werte() + bild_->werte(); }

 private:
  void schalter(Flagge& flagge, bool an);
  void offset(bool an);
  void cursor(int schritt);
  void M_Gitter();
  void geaendert();
  PositionsInfo& Info() { return u_.formpos.Info(); }

  BoardUmgebung u_;
  PointListModel punkte_;
  DiagramArea* bild_;
  PointList* liste_;
  PositionPanels* panels_;
  QAction* M_Gitter_ = nullptr;
};

}  // namespace korvin
