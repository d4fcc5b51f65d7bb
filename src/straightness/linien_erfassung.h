#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "frame/profil.h"
#include "link/messaufgabe.h"
#include "straightness/adapt_fehler.h"
#include "straightness/adaptiv.h"
#include "straightness/mehr_punkt_abnehmer.h"
#include "straightness/record.h"

namespace korvin {

/// Taking points along a line: every reading belongs to the current point and replaces what stood there, and
/// a single measurement steps on to the next point. With `AutoAdapt` a single measurement is an adaptive
/// point. Holds no line itself: the kind of measuring hands it the live one.
///
/// How to add a kind: derive from it, give the line and its record through what is left abstract, and name
/// what differs in a `ZyklusBeschreibung`. `vorMessung` may serve a request in the kind's own way. The window
/// gives it its failure dialog by `setAdaptFehlerFrage`.
class LinienErfassung : public Messaufgabe, public AdaptivAufgabe {
 public:
  /// `profil` outlives it.
  explicit LinienErfassung(Profil& profil) : profil_(profil) {}

  // ---- The line ----

  virtual LinienGeometrie& linie() = 0;
  /// The mounting by which readings are turned.
  virtual std::int16_t Montage() const = 0;
  /// What adaptive points aim at, and whether single measurements are such; of the live record.
  virtual AdaptVorgaben& adaptVorgaben() = 0;

  // ---- Taking points ----

  /// Stores the reading of `antwort` at the current point, in mm in every system of units, turned for the
  /// mounting; the sign of Y stays as the head counts it. A current point that a file brought from outside
  /// the line is brought onto it first. Nothing on a line without points.
  void PunktSpeichern(const KameraAntwort& antwort);

  /// The reading of the current point, in mm, X and Y.
  virtual std::pair<double, double> PunktWert() = 0;
  /// Stores a pair in mm at the current point, brought onto the line; nothing on a line without points.
  /// `Leerwert` empties the point.
  void PunktSetzen(double X, double Y);

  /// Where a single measurement steps: to the next point, or to the one before.
  bool RichtungVor() const { return richtungVor_; }
  /// The key "AUTO_MESSRICHTUNG": turns the direction round.
  void AUTO_MESSRICHTUNG() { richtungVor_ = !richtungVor_; }
  /// Picture of that key.
  std::string_view richtungsBild() const { return richtungVor_ ? "ICON91" : "ICON92"; }

  /// Multi-point measuring is running: the head's keys are ignored.
  bool MehrPunktAktiv() const { return mehrPunktAktiv_; }
  void setMehrPunktAktiv(bool aktiv) { mehrPunktAktiv_ = aktiv; }
  /// Who hears of adaptive points while `MehrPunktAktiv` holds; outlives its use, none by nullptr.
  void setMehrPunktAbnehmer(MehrPunktAbnehmer* abnehmer) { abnehmer_ = abnehmer; }

  /// Single measurements are adaptive points.
  bool AutoAdapt() { return static_cast<bool>(adaptVorgaben().AutoAdapt); }
  /// Picture of the key "XYMP1", which tells how it will measure.
  std::string_view einzelBild() { return AutoAdapt() ? "ICON85" : "ICON81"; }

  // ---- Adaptive points ----

  /// The adaptive point under way, or the last one.
  const AdaptivMessung& adaptMessung() const { return messung_; }
  /// The dialog of a failed point; outlives its use, none by nullptr: the point is then given up at once.
  void setAdaptFehlerFrage(AdaptFehlerFrage* frage) { fehlerFrage_ = frage; }

  // ---- Settings of the kind ----

  /// Measuring in both directions is wanted: the key "AUTO_MESSRICHTUNG" is there. As read last by
  /// `richtungLesen`.
  bool BiDi_Messen() const { return biDiMessen_; }
  /// Reads `BiDi_Messen` from the settings. The direction is forward again.
  void richtungLesen();
  /// The mounting of the settings, which the window's picture shows. The line's own may be another: it holds
  /// from one new measurement to the next.
  std::int16_t gezeigteMontage() override;

  // ---- Messaufgabe ----

  bool tastenGesperrt() const override { return mehrPunktAktiv_; }
  /// While multi-point measuring is running, it decides about single measurements, and there are no others. A
  /// kind that serves requests in its own way asks here first.
  bool vorMessung(char zustand) override;
  void anforderungVerfallen() override;
  void laufBeginnt(float /*sekunden*/) override {}
  LaufSchritt laufSchritt() override { return {}; }
  bool laufFertig() const override { return false; }
  void laufBeendet() override { messung_.beenden(); }
  void wertUebernehmen(const KameraAntwort& antwort) override { PunktSpeichern(antwort); }
  /// Steps on, within the line.
  bool nachPunkt() override;
  AdaptivAufgabe* adaptiv() override { return AutoAdapt() ? this : nullptr; }

  // ---- AdaptivAufgabe ----

  void adaptBeginnt(float sekunden) override { messung_.starten(adaptVorgaben(), sekunden); }
  void adaptAntwort(float sekunden) override { messung_.antwort(sekunden); }
  void adaptAbgelehnt() override { messung_.abgelehnt(); }
  AdaptSchritt adaptProbe(const KameraAntwort& antwort, float sekunden) override;
  bool adaptImBereich(double halbbereich) const override;
  /// To multi-point measuring while it is running, else the step within the line.
  bool adaptUebergeben() override;
  void adaptNachTick() override;
  Fortschritt adaptFortschritt() const override;
  /// Number of samples, duration in seconds, and half width of Y in mm.
  std::string adaptZeile() const override;

 protected:
  /// Stores a pair in mm at the current point, which lies on the line.
  virtual void punktEintragen(double X, double Y) = 0;
  Profil& profil() { return profil_; }

 private:
  /// The reading of `antwort` in mm, turned for the mounting; Y as the head counts it.
  std::pair<double, double> gelesen(const KameraAntwort& antwort) const;
  void adaptVerfehlt(float sekunden);

  Profil& profil_;
  AdaptivMessung messung_;
  AdaptFehlerFrage* fehlerFrage_ = nullptr;
  MehrPunktAbnehmer* abnehmer_ = nullptr;
  bool richtungVor_ = true;
  bool biDiMessen_ = false;
  bool mehrPunktAktiv_ = false;
};

}  // namespace korvin
