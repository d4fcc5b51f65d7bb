#include "position/formpos.h"

#include "frame/leerwert.h"

namespace korvin {
namespace {

void achseLoeschen(AchsenInfo& achse) {
  achse.Summe = 0;
  achse.Quadratsumme = 0;
  achse.Maximum = Leerwert;
  achse.Minimum = Leerwert;
  achse.Mittel = Leerwert;
  achse.Streuung = Leerwert;
}

/// Counts a value into the sums and extremes of its axis.
void zaehlen(AchsenInfo& achse, double wert) {
  const double d = wert - achse.Offset;
  achse.Summe += d;
  achse.Quadratsumme += d * d;
  if (istLeer(achse.Maximum) || achse.Maximum < d) achse.Maximum = d;
  if (istLeer(achse.Minimum) || !(d > achse.Minimum)) achse.Minimum = d;
}

void achseNeu(AchsenInfo& achse, const PunktFeld& werte) {
  achse.Summe = 0;
  achse.Quadratsumme = 0;
  achse.Maximum = Leerwert;
  achse.Minimum = Leerwert;
  const std::size_t anzahl = werte.anzahl();
  if (anzahl == 0) return;
  achse.Maximum = achse.Minimum = werte.at(1) - achse.Offset;
  for (std::size_t i = 1; i <= anzahl; ++i) zaehlen(achse, werte.at(i));
}

}  // namespace

void FORMPOS::messungLoeschen() {
  PositionsInfo& info = arbeit_.Info;
  info.MPAktuell = 0;
  info.MPVorher = 0;
  info.AnzahlMP = 0;
  achseLoeschen(arbeit_.X);
  achseLoeschen(arbeit_.Y);
  punkte_.clear();
  info.ZeigeMittel = false;
  info.ZeigeStreuung = false;
  info.ZeigeSpanne = false;
}

void FORMPOS::punktHinzufuegen(double jetzt) {
  PositionsInfo& info = arbeit_.Info;
  // Falls before the limit is tested, and from 0 to -1: then without a limit.
  if (info.RestMP != -1) --info.RestMP;
  if (info.AnzahlMP >= MaxPunkteO) return;
  const auto n = static_cast<std::size_t>(++info.AnzahlMP);
  zaehlen(arbeit_.X, arbeit_.X.Aktuell);
  zaehlen(arbeit_.Y, arbeit_.Y.Aktuell);
  punkte_.X().at(n) = arbeit_.X.Aktuell;
  punkte_.Y().at(n) = arbeit_.Y.Aktuell;
  punkte_.T().at(n) = jetzt;
  punkte_.X().setAnzahl(n);
  punkte_.Y().setAnzahl(n);
  punkte_.T().setAnzahl(n);
  info.MPVorher = info.MPAktuell;
  info.MPAktuell = info.AnzahlMP;
}

void FORMPOS::statistikNeu() {
  achseNeu(arbeit_.X, punkte_.X());
  achseNeu(arbeit_.Y, punkte_.Y());
}

}  // namespace korvin
