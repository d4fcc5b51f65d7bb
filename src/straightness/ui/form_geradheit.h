#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>

#include "link/ui/data_window.h"
#include "link/ui/point_list.h"
#include "straightness/achsen_anzeige.h"
#include "straightness/commands.h"
#include "straightness/erfassung.h"
#include "straightness/formgera.h"
#include "straightness/straightness_file.h"
#include "straightness/ui/axis_area.h"
#include "straightness/ui/convergence_view.h"
#include "straightness/ui/form_adapt_fehler.h"
#include "straightness/ui/line_panels.h"
#include "straightness/ui/line_table_model.h"
#include "straightness/ui/list_pane.h"
#include "straightness/ui/multi_point_host.h"

namespace korvin {

/// What `FormGeradheit` works with, beside what every measuring window needs. All outlive it.
struct GeradUmgebung {
  ZyklusUmgebung zyklus;
  MSComm& MSCommKamera;
  FORMGERA& formgera;
  GeradErfassung& erfassung;
  GeradDateien& dateien;
  FensterDienste dienste;
};

/// `FormGeradheit`: measures the points of a line one after the other. Shows the diagrams of both axes, the
/// numbers of the current point, statistics and tolerances, and the table of points. Language and units are
/// those of the moment when it is shown.
class FormGeradheit : public DatenFenster {
  Q_OBJECT
 public:
  explicit FormGeradheit(const GeradUmgebung& umgebung, QWidget* parent = nullptr);
  ~FormGeradheit() override;

 protected:
  void ersteAktivierung() override;
  void taste(const QString& key, bool gedrueckt) override;
  void neuZeichnen(bool geaendert) override;
  void zeigeAdaptProgress(const std::optional<Fortschritt>& fortschritt) override;
  Messdaten& daten() override { return daten_; }
  DateiBefehle& befehle() override { return befehle_; }
  void datenZeigen() override;
  void einstellungenZeigen() override;
  std::string titel() override;
  std::string bildName() const override { return "XYZ"; }
  std::int16_t betriebText() override;
  bool schliessenErlaubt() override;

 private:
  /// One axis: what it is made of, what was computed of it, and where it is shown.
  struct Achse {
    GeradAchse& messung;
    AchsenAnzeigeDaten daten{};
    AxisArea* bild = nullptr;
  };

  void layoutAnlegen();
  void mehrPunktAnlegen(QWidget* bilder);
  AxisArea* bildAnlegen(const QString& name, Achse& achse);
  void menusAnlegen();
  void beschriften();

  void auswertungZeigen();
  void statistikTasten(bool sichtbar);
  void richtungZeigen();
  void numZoomZeigen();
  void konvergenzZeigen();
  void achseZeigen(Achse& achse, const std::string& name);

  bool auswertungsTaste(const QString& key);
  bool anzeigeTaste(const QString& key, bool gedrueckt);
  void M_NumZoom(Achse& achse);
  void M_Gitter();
  void M_Konvergenz(bool an);
  void mehrPunktOffen(bool offen);

  // ---- Points moved along the line ----

  void zmmod(bool an);
  void zeiger(AxisPointer pointer);
  void druck(double z);
  void loslassen();
  void verschieben(std::int16_t punkt, double z);
  void zEingabe(const std::string& text);
  /// The diagrams' frames are drawn anew.
  void rahmenVerwerfen();

  GeradReihe& reihe() { return p_.formgera.reihe(); }
  GeradInfo& Info() { return reihe().Info; }
  std::int16_t Masssystem() const { return p_.zyklus.system.Masssystem; }

  GeradUmgebung p_;
  GeradDaten daten_;
  DateiBefehle befehle_;
  Achse x_;
  Achse y_;
  LineTableModel punkte_;
  QtAdaptFehlerFrage fehlerFrage_;
  PointList* liste_ = nullptr;
  ConvergenceView* konvergenz_ = nullptr;
  ListPane* unten_ = nullptr;
  LinePanels* panels_ = nullptr;
  MultiPointFrame* rahmen_ = nullptr;
  std::unique_ptr<MultiPointHost> mehrPunktAnsicht_;
  std::unique_ptr<MehrPunktAblauf> mehrPunkt_;
  QAction* M_xNumZoom_ = nullptr;
  QAction* M_yNumZoom_ = nullptr;
  QAction* M_Gitter_ = nullptr;
  QAction* M_Konvergenz_ = nullptr;
  std::optional<std::int16_t> gehalten_;  ///< the point that the mouse holds
  std::string einzelBild_;                ///< picture that the key "XYMP1" has
  bool Anzeige_ = false;
};

}  // namespace korvin
