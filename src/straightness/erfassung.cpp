#include "straightness/erfassung.h"

#include <string>

#include "frame/cp1252.h"
#include "frame/datei_kopf.h"
#include "frame/messordner.h"
#include "frame/montage.h"
#include "frame/zahl_text.h"
#include "link/kor_com.h"
#include "straightness/auswertung.h"
#include "straightness/neue_reihe.h"
#include "straightness/punkt_lage.h"
#include "straightness/toleranz.h"

namespace korvin {
namespace {

namespace verbindung = einstellung::Verbindung;

constexpr std::int16_t TextMesskopf = 3003;

}  // namespace

// ---- The series of a window ----

void GeradErfassung::ersteAktivierung() {
  if (info().DateiStatus == DateiNeu) {
    u_.formgera.reihe() = neueReihe(u_.profil, MessOrdner(u_.profil, u_.system));
  } else {
    u_.formgera.bildUebernehmen();
  }
  filterVorgeben();
  einstellungenLesen();
}

void GeradErfassung::filterVorgeben() {
  u_.system.FilterVorgabe = filter();
}

void GeradErfassung::einstellungenLesen() {
  GeradInfo& g = info();
  g.KameraID = zuCp1252(u_.profil.wert(verbindung::KameraID)).value_or("0");
  g.PortNr = ganzzahlAusText(u_.profil.wert(verbindung::PortNr));
  g.BaudRate = SettingsAusBaudRate(ganzzahlAusText(u_.profil.wert(verbindung::BaudRate)));
  // The text names the mounting that the readings are turned by. Words of another script, for which the
  // record has no room, leave the text of before.
  const auto kamera =
      zuCp1252(u_.dictionary.DicText(TextMesskopf) + ": " + MontageText(u_.dictionary, g.Montage));
  if (kamera) g.KameraText = *kamera;
  richtungLesen();
}

void GeradErfassung::punktVersetzen(std::int16_t punkt, double z) {
  punktVerschieben(linie(), punkt, z);
  GeradReihe& reihe = u_.formgera.reihe();
  reihe.X.BereichAlt = 0;
  reihe.Y.BereichAlt = 0;
  reihe.Info.Geaendert = true;
}

void GeradErfassung::punkteGleichVerteilen() {
  if (ZAequidistant(linie())) return;
  punkteVerteilen(linie());
  GeradReihe& reihe = u_.formgera.reihe();
  reihe.X.BereichAlt = 0;
  reihe.Y.BereichAlt = 0;
  reihe.Info.Geaendert = true;
}

std::pair<double, double> GeradErfassung::PunktWert() {
  const auto punkt = static_cast<std::size_t>(linie().AktMP);
  const GeradReihe& reihe = u_.formgera.reihe();
  return {reihe.X.Wert.at(punkt), reihe.Y.Wert.at(punkt)};
}

LinkAngaben GeradErfassung::linkAngaben() const {
  const GeradInfo& g = info();
  return {g.PortNr, std::string(g.BaudRate.trimmed()), std::string(g.KameraID.trimmed())};
}

// ---- Keys of the evaluation ----

void GeradErfassung::ROH() {
  info().Auswertung = AuswertungROH;
}

void GeradErfassung::ISO() {
  info().Auswertung = AuswertungISO;
}

void GeradErfassung::REF() {
  info().Auswertung = AuswertungREF;
}

bool GeradErfassung::referenzNehmen(std::int16_t& ref, bool erlaubt) {
  const LinienGeometrie& line = linie();
  // A file may bring a cursor along that stands on no point.
  const bool genommen = erlaubt && line.AktMP >= 1 && line.AktMP <= line.AnzMPs;
  if (genommen) {
    ref = line.AktMP;
  } else {
    u_.messages.beep();
  }
  return genommen;
}

bool GeradErfassung::REF1() {
  return referenzNehmen(info().Ref1, linie().AktMP < info().Ref2);
}

bool GeradErfassung::REF2() {
  return referenzNehmen(info().Ref2, linie().AktMP > info().Ref1);
}

bool GeradErfassung::referenztastenSichtbar() const {
  return info().Auswertung == AuswertungREF;
}

}  // namespace korvin
