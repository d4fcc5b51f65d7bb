#pragma once

#include <cstdint>

#include "environment/adapt_set.h"
#include "environment/analyse_ansicht.h"
#include "environment/unsicherheit.h"
#include "frame/flagge.h"
#include "position/punkt_erfassung.h"

namespace korvin {

/// Seconds that an analysis samples.
inline constexpr int AnalyseDauer = 31;

/// The environment analysis: for 31 seconds it takes readings as fast as the head delivers them, into the
/// position record; their spread tells how quiet the place is. What it keeps outlives its window.
///
/// Empty → `laufBeginnt` → running → `nachLauf` → finished, or empty again where fewer than three points were
/// taken. Points that were in the record before a run count towards its result. A finished analysis begins no
/// other run until it is cleared, not by the head's key either.
class UmgebungsErfassung : public PunktErfassung {
 public:
  /// `ergebnis` takes what a finished run gives; it outlives this object.
  UmgebungsErfassung(const ErfassungUmgebung& umgebung, AdaptSet& ergebnis)
      : PunktErfassung(umgebung), adaptSet_(ergebnis) {}

  /// The window is shown: no points, all settings read, lengths with four decimals. `ansicht` outlives its
  /// cycle.
  void ersteAktivierung(AnalyseAnsicht& ansicht);

  // ---- Commands of the window ----

  /// `XYMPNN` was pressed: a request to cancel is taken back. A start by the head's key does not come by
  /// here: after a clear it finds the request still set, and its run ends at the first tick.
  void startVerlangt();
  /// `M_MessLöschen`, its first part: a run ends at its next tick.
  void abbruchVerlangen() { AnalyseAbbruch_ = true; }
  /// Its second part, outside of the ticks: all points gone, switches of the statistics on, no offset, no
  /// result.
  void leeren();

  /// Finished: the result stands, until it is cleared.
  bool fertig() const { return fertig_; }
  AdaptSet& adaptSet() { return adaptSet_; }

  std::int16_t AnalyseAnzahl() const { return AnalyseAnzahl_; }  ///< N
  double AnalyseSekunden() const { return AnalyseSekunden_; }    ///< 31, or 32 where the end was passed
  double AnalyseEnde() const { return AnalyseEnde_; }            ///< seconds since midnight
  bool AnalyseAbbruch() const { return static_cast<bool>(AnalyseAbbruch_); }
  std::int16_t Beta() const { return Beta_; }  ///< level of significance, 5 or 1 percent

  // ---- Messaufgabe ----

  const ZyklusBeschreibung& beschreibung() const override { return ZyklusAnalyse; }
  bool vorMessung(char zustand) override;
  void laufBeginnt(float sekunden) override { AnalyseStarten(sekunden); }
  LaufSchritt laufSchritt() override;
  void unerwarteteAntwort() override { AnalyseAbbruch_ = true; }
  void schrittGetan() override { AnalyseTakt(); }
  bool laufFertig() const override { return zuEnde_; }
  void laufBeendet() override {}
  void nachLauf(LaufEnde ende) override;
  void wertUebernehmen(const KameraAntwort& antwort) override { MesswertUebernehmen(antwort); }

 private:
  void AnalyseStarten(float sekunden);
  /// The end of a tick: a request to cancel, then the time, end the run; else it shows its progress.
  void AnalyseTakt();
  /// Takes a good reading as a point. Where the spread of X can be told and the cursor stands beyond the
  /// second point, N becomes the number of points. Nothing else changes N in a run: neither what the window
  /// draws anew nor a refused reading makes samples of points that were there before.
  void MesswertUebernehmen(const KameraAntwort& antwort);
  void AnalyseBeenden();
  void AnalyseAbbrechen();
  AnalyseErgebnis analyseErgebnis() const;

  AdaptSet& adaptSet_;
  AnalyseAnsicht* ansicht_ = nullptr;
  double AnalyseEnde_ = 0;
  double AnalyseSekunden_ = 0;
  std::int16_t AnalyseAnzahl_ = 0;
  Flagge
      AnalyseAbbruch_;  ///< stays set from a clear to the next press of `XYMPNN`, or to the end of a cancel
  std::int16_t Beta_ = 5;
  bool zuEnde_ = false;       ///< the present step was the run's last
  bool abgebrochen_ = false;  ///< and it found the request to cancel
  bool fertig_ = false;
};

}  // namespace korvin
