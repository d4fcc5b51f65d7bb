#pragma once

#include <string>
#include <string_view>

#include "reports/achsen_block.h"
#include "reports/gerad_bericht.h"
#include "reports/linien_bericht.h"

namespace korvin {

/// The module `PRNG`: the report of one straightness series. It works on a snapshot, so that the measurement
/// may go on; composing changes nothing in it and can be repeated.
class PRNG {
 public:
  PRNG(const GeradBerichtQuelle& quelle, const GeradBerichtTeile& teile);
  PRNG(const PRNG&) = delete;  // diagrams and table look into this very snapshot
  PRNG& operator=(const PRNG&) = delete;

  /// Composes all pages and ends the document.
  void drucken(Drucker& drucker) const { linienBerichtDrucken(drucker, bericht_, clock_.now()); }

  const std::string& dateiName() const { return dateiName_; }

 private:
  /// What of an axis the report's axis is made of.
  struct Achse {
    std::string_view name;  ///< "X"
    GeradAchse& messung;
    AchsenAnzeigeDaten& daten;
  };

  // The report's words and pictures, made when the snapshot is taken: no dictionary is asked later.
  ProtokollAngaben angaben() const;
  void auswerten(GeradAchse& messung, AchsenAnzeigeDaten& daten);
  void achseAnlegen(LinienBerichtAchse& ziel, const Achse& achse, Dictionary& dictionary);
  void tabelleAnlegen(Dictionary& dictionary);
  std::string wert(const GeradAchse& messung, const Auswertefeld& ausgewertet, int punkt) const;
  std::string_view marke(const GeradAchse& messung, const Auswertefeld& ausgewertet, int punkt) const;

  GeradReihe reihe_;
  std::int16_t masssystem_;
  const Clock& clock_;
  std::string dateiName_;
  std::string auswertung_;  ///< the words for it
  AchsenAnzeigeDaten x_;
  AchsenAnzeigeDaten y_;
  LinienBericht bericht_;
};

}  // namespace korvin
