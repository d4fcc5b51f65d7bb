#include "environment/umgebungs_erfassung.h"

#include <cmath>
#include <optional>

#include "frame/cp1252.h"
#include "frame/zahl_text.h"
#include "position/statistics_texts.h"

namespace korvin {
namespace {

namespace vorgaben = einstellung::FormUmgebungsAnalyse;

/// Lengths are shown with as many decimals, whatever the settings say.
constexpr std::int16_t Nachkommastellen = 4;
/// The spread of fewer points is no ground for a result.
constexpr std::int16_t MindestensJenseits = 2;

void statistikZeigen(PositionsInfo& info) {
  info.ZeigeMittel = true;
  info.ZeigeStreuung = true;
  info.ZeigeSpanne = true;
}

}  // namespace

// ---- The window's commands ----

void UmgebungsErfassung::ersteAktivierung(AnalyseAnsicht& ansicht) {
  ansicht_ = &ansicht;
  neueMessung();
  PositionsDatei& arbeit = umgebung().formpos.arbeit();
  arbeit.Info.NKStellen = Nachkommastellen;
  arbeit.Info.Filter = zuCp1252(umgebung().profil.wert(vorgaben::Filter)).value_or("1");
  umgebung().system.FilterVorgabe = filter();
  Beta_ = flagAusText(umgebung().profil.wert(vorgaben::Beta5)) ? 5 : 1;
  // This window has no keys for ranges and large numbers.
  for (AchsenInfo* achse : {&arbeit.X, &arbeit.Y}) {
    achse->BereichHand = false;
    achse->NumZoom = false;
  }
  statistikZeigen(arbeit.Info);
  adaptSet_.ersteAktivierung();
  fertig_ = false;
}

void UmgebungsErfassung::startVerlangt() {
  AnalyseAbbruch_ = false;
}

void UmgebungsErfassung::leeren() {
  M_MessLöschen();
  statistikZeigen(Info());
  fertig_ = false;
  adaptSet_.verbergen();
  ansicht_->setStartFrei(true);
  ansicht_->zeigeFortschritt(std::nullopt);
  ansicht_->zeigeErgebnis();
  ansicht_->zeigeGeleert();
}

// ---- The run ----

bool UmgebungsErfassung::vorMessung(char zustand) {
  return zustand != 'J' || !fertig_;
}

void UmgebungsErfassung::AnalyseStarten(float sekunden) {
  adaptSet_.verbergen();
  ansicht_->zeigeErgebnis();
  AnalyseAnzahl_ = 0;
  AnalyseEnde_ = static_cast<double>(sekunden) + AnalyseDauer;
  abgebrochen_ = false;
  ansicht_->zeigeFortschritt(0);
}

LaufSchritt UmgebungsErfassung::laufSchritt() {
  if (grenzeErreicht()) return {LaufSchritt::Art::beenden, ' '};
  return {LaufSchritt::Art::senden, 'J'};
}

void UmgebungsErfassung::MesswertUebernehmen(const KameraAntwort& antwort) {
  PunktErfassung::wertUebernehmen(antwort);
  const PositionsInfo& info = Info();
  const auto s = standardabweichung(umgebung().formpos.arbeit().X, info.AnzahlMP);
  if (s && info.MPAktuell > MindestensJenseits) AnalyseAnzahl_ = info.AnzahlMP;
}

void UmgebungsErfassung::AnalyseTakt() {
  abgebrochen_ = AnalyseAbbruch();
  zuEnde_ = abgebrochen_;
  if (abgebrochen_) return;
  const float jetzt = umgebung().clock.secondsOfDay();
  // Whole seconds that are left round down: an end that is passed by a little makes 32 of a run of 31. The
  // result takes 1 off again.
  const double vergangen = AnalyseDauer - std::floor(AnalyseEnde_ - static_cast<double>(jetzt));
  // Times of day are compared as 32-bit floats. After midnight the clock stays below every end of yesterday:
  // such a run goes on until the record is full or it is cancelled.
  zuEnde_ = static_cast<float>(AnalyseEnde_) <= jetzt;
  if (zuEnde_) {
    AnalyseSekunden_ = vergangen;
  } else {
    ansicht_->zeigeFortschritt(static_cast<int>(vergangen));
  }
}

void UmgebungsErfassung::nachLauf(LaufEnde ende) {
  ansicht_->zeigeFortschritt(std::nullopt);
  if (abgebrochen_ || ende == LaufEnde::verbindung) {
    AnalyseAbbrechen();
  } else {
    AnalyseBeenden();
  }
}

void UmgebungsErfassung::AnalyseBeenden() {
  if (AnalyseAnzahl_ < 1) {
    ansicht_->setStartFrei(true);
    return;
  }
  adaptSet_.UnsicherheitBerechnen(analyseErgebnis());
  adaptSet_.SliderEinrichten();
  fertig_ = true;
  ansicht_->zeigeErgebnis();
}

void UmgebungsErfassung::AnalyseAbbrechen() {
  leeren();
  AnalyseAbbruch_ = false;
}

AnalyseErgebnis UmgebungsErfassung::analyseErgebnis() const {
  const PositionsDatei& arbeit = umgebung().formpos.arbeit();
  const int anzahl = arbeit.Info.AnzahlMP;
  AnalyseErgebnis ergebnis;
  ergebnis.AnalyseAnzahl = AnalyseAnzahl_;
  ergebnis.AnalyseSekunden = AnalyseSekunden_;
  ergebnis.Beta = Beta_;
  ergebnis.sX = standardabweichung(arbeit.X, anzahl).value_or(0);
  ergebnis.sY = standardabweichung(arbeit.Y, anzahl).value_or(0);
  ergebnis.Masssystem = umgebung().system.Masssystem;
  return ergebnis;
}

}  // namespace korvin
