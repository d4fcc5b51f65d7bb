#include "reports/achsen_block.h"

#include <array>

#include "frame/number_format.h"
#include "frame/zahl_text.h"
#include "reports/protokoll.h"
#include "straightness/masseinheit.h"

namespace korvin {
namespace {

constexpr double links = 20;
constexpr double schmaleSpalte = 25;  // where the first column ends
constexpr double rechts = 176.5;
constexpr double zeile = 5;  // height of a row
constexpr double textY = 1;
constexpr double luft = 0.5;
constexpr std::array<double, 3> ganzeHoehe = {links, schmaleSpalte, rechts};
constexpr std::array<double, 3> obereZeile = {101, 126, 151};
constexpr std::array<double, 4> untereZeile = {50, 85, 95, 130};

void senkrechte(Block& block, std::span<const double> stellen, double oben, double unten) {
  for (const double x : stellen) block.regeln.push_back({x, oben, x, unten});
}

/// "x 0.012"; "x  ?.?" without a value.
std::string kennwert(const std::string& zeichen, bool vorhanden, double wert, std::string_view muster) {
  return vorhanden ? zeichen + " " + formatNumber(wert, muster) : zeichen + "  " + std::string(OhneWert);
}

/// The measured in the worst section: "0.004 / 1000.0 z3".
std::string abschnittGemessen(const AchsenErgebnis& ergebnis, const LinienGeometrie& linie,
                              const AchsenSchalter& schalter) {
  if (!ZAequidistant(linie)) return "-.--- / -.- z-";
  if (ergebnis.AbschnittStart == KeinAbschnitt) return "?.?/? z?";
  return formatNumber(ergebnis.AbschnittWert, ZahlMuster(schalter.NKStellen)) + " / " +
         formatNumber(anzeigeLaenge(ergebnis.AbschnittLaenge, schalter.Masssystem), "0.0") + " z" +
         formatNumber(ergebnis.AbschnittStart, "0");
}

}  // namespace

Block achsenBlock(const AchsenBlockTexte& texte) {
  Block block;
  for (const double y : {0.0, zeile, 2 * zeile}) block.regeln.push_back({links, y, rechts, y});
  senkrechte(block, ganzeHoehe, 0, 2 * zeile);
  senkrechte(block, obereZeile, 0, zeile);
  senkrechte(block, untereZeile, zeile, 2 * zeile);
  constexpr double unten = zeile + textY;
  block.zellen = {{25, textY, 101 - luft, texte.titel},
                  {103, textY, 126 - luft, texte.mittel, true},
                  {128, textY, 151 - luft, texte.streuung},
                  {153, textY, rechts - luft, texte.spanne},
                  {21, unten, schmaleSpalte - luft, texte.gesamtName},
                  {25, unten, 50 - luft, texte.gesamt},
                  {50, unten, 85 - luft, texte.abschnittVorgabe},
                  {85, unten, 95 - luft, texte.ist},
                  {95, unten, 130 - luft, texte.extreme},
                  {130, unten, rechts - luft, texte.abschnitt}};
  std::erase_if(block.zellen, [](const BlockZelle& zelle) { return zelle.text.empty(); });
  return block;
}

std::string auswertungsText(Dictionary& dictionary, std::int16_t Auswertung) {
  if (Auswertung == AuswertungISO) return dictionary.DicText(3059) + " 1101";
  return dictionary.DicText(Auswertung == AuswertungREF ? 3058 : 3060);
}

AchsenBlockTexte achsenBlockTexte(Dictionary& dictionary, std::string_view name, const BlockAchse& achse) {
  const AchsenAnzeigeDaten& daten = achse.daten;
  const AchsenErgebnis& ergebnis = achse.ergebnis;
  const AchsenSchalter& schalter = achse.schalter;
  const std::string_view muster = ZahlMuster(schalter.NKStellen);
  const Extremwerte extreme = daten.extreme.value_or(Extremwerte{});
  AchsenBlockTexte texte;
  texte.mittel = kennwert("x", daten.mittel && daten.mittel->gueltig, ergebnis.Mittel, muster);
  texte.streuung = kennwert(formatNumber(schalter.SFak, "0") + "s", daten.streuung && daten.streuung->gueltig,
                            schalter.SFak * ergebnis.Streuung, muster);
  texte.spanne = kennwert("R", extreme.gueltig, extreme.Maximum - extreme.Minimum, muster);
  texte.gesamtName = std::string(name) + " t";
  texte.gesamt = gesamtText(ergebnis, schalter.Masssystem, "0.000");
  texte.abschnittVorgabe = abschnittVorgabeGeschrieben(ergebnis, schalter.Masssystem);
  texte.ist = dictionary.DicText(5001);
  texte.extreme = extremeText(ergebnis, extreme, schalter.NKStellen);
  texte.abschnitt = abschnittGemessen(ergebnis, achse.linie, schalter);
  return texte;
}

std::string_view ToleranzMarke(double wert, const AchsenErgebnis& block, std::int16_t Masssystem) {
  const auto band = toleranzband(block, {block.MaxWert, block.MinWert, true}, Masssystem);
  if (!band || (wert >= band->unten && wert <= band->oben)) return {};
  if (block.ToleranzBezug == BezugNull) return " *1";
  return block.ToleranzBezug == BezugMaximum ? " *2" : " *0";
}

}  // namespace korvin
