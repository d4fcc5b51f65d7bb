#include "straightness/text_copy.h"

#include <string_view>

#include "frame/filterzeit.h"
#include "frame/leerwert.h"
#include "frame/number_format.h"
#include "frame/textkopie.h"
#include "frame/zahl_text.h"
#include "straightness/auswertung.h"
#include "straightness/masseinheit.h"
#include "straightness/toleranz.h"

namespace korvin {
namespace {

/// What a system of units writes.
struct Einheiten {
  std::string_view laenge;
  std::string_view toleranzMuster;
  std::string_view spalten;
};

const Einheiten& einheiten(std::int16_t Masssystem) {
  static constexpr Einheiten metrisch{" mm", "0.000", "MP\tZ[mm]\tX[mm]\tY[mm]"};
  static constexpr Einheiten inch{" in", "0.00", "MP\tZ[in]\tX[mil]\tY[mil]"};
  return Masssystem == MasssystemInch ? inch : metrisch;
}

std::string toleranzText(const AchsenToleranz& t, std::int16_t Masssystem) {
  const std::string_view muster = einheiten(Masssystem).toleranzMuster;
  return wertOderVorgabe(anzeigeWert(t.Gesamt, Masssystem), muster, "?.?") + "  " +
         abschnittVorgabeGeschrieben(t, Masssystem);
}

class GeradKopie {
 public:
  GeradKopie(const GeradReihe& reihe, std::int16_t Masssystem, Dictionary& dictionary)
      : reihe_(reihe), masssystem_(Masssystem), dictionary_(dictionary) {}

  std::string text() {
    kopf();
    toleranzen();
    filter();
    kopie_.zeile(Programmzeile);
    kopie_.zeile();
    kopie_.zeile(wort(3018) + ": ");
    punkte();
    kopie_.zeile();
    return kopie_.text();
  }

 private:
  std::string wort(std::int16_t nummer) { return rechtsGetrimmt(dictionary_.DicText(nummer)); }
  void angabe(std::int16_t nummer, std::string_view inhalt) { kopie_.angabe(wort(nummer), inhalt); }

  void kopf() {
    const GeradInfo& info = reihe_.Info;
    kopie_.angabe("KORVIN-" + wort(3019), utf8(info.FirmaName));
    angabe(3048, utf8(info.KameraText));
    angabe(3044, utf8(info.Bezeichnung));
    angabe(3049, utf8(info.DateiName));
    angabe(3056, utf8(info.Datum));
    angabe(3008, utf8(info.Bediener));
    angabe(3009, utf8(info.Kommentar));
    angabe(3010, "-" + formatNumber(reihe_.Linie.AnzMPs, "0") + "-");
    angabe(3000, formatGeneral(anzeigeLaenge(reihe_.Linie.Distanz, masssystem_)) +
                     std::string(einheiten(masssystem_).laenge));
  }

  void toleranzen() {
    kopie_.angabe("X-t" + wort(5000), toleranzText(reihe_.X, masssystem_));
    kopie_.angabe("Y-t" + wort(5000), toleranzText(reihe_.Y, masssystem_));
  }

  void filter() {
    const std::string_view zeit = filterzeit(reihe_.Info.Filter.full().front());
    // Kept: without a measuring time the next line follows on this one.
    if (zeit.empty()) return kopie_.stueck(wort(3013) + ":\t");
    angabe(3013, zeit);
  }

  void punkte() {
    kopie_.zeile(einheiten(masssystem_).spalten);
    const Auswertefeld X = ReiheAuswerten(reihe_, reihe_.X, masssystem_);
    const Auswertefeld Y = ReiheAuswerten(reihe_, reihe_.Y, masssystem_);
    for (std::size_t i = 1; i <= reihe_.X.Wert.anzahl(); ++i) {
      // Kept: even distances, wherever the points were moved to.
      const double z = anzeigeLaenge(static_cast<double>(i - 1) * reihe_.Linie.ZSchritt, masssystem_);
      kopie_.zeile(std::to_string(i) + "\t" + formatNumber(z, "0.0") + "\t" + wert(reihe_.X, X, i) + "\t" +
                   wert(reihe_.Y, Y, i));
    }
  }

  /// The reading is asked, not the value: in mil an open reading of ROH would look like one. A point that X
  /// alone counts has no value in Y.
  static std::string wert(const GeradAchse& achse, const Auswertefeld& ausgewertet, std::size_t i) {
    const bool offen = i > achse.Wert.anzahl() || istLeer(achse.Wert.at(i));
    return offen ? "?.?" : formatNumber(ausgewertet.at(i), "0.0000");
  }

  const GeradReihe& reihe_;
  std::int16_t masssystem_;
  Dictionary& dictionary_;
  Textkopie kopie_;
};

}  // namespace

std::string geradTextCopy(const GeradReihe& reihe, std::int16_t Masssystem, Dictionary& dictionary) {
  return GeradKopie(reihe, Masssystem, dictionary).text();
}

}  // namespace korvin
