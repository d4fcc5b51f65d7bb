#include "position/punkt_erfassung.h"

#include <string>

#include "frame/cp1252.h"
#include "frame/datum_text.h"
#include "frame/messart.h"
#include "frame/messordner.h"
#include "frame/number_format.h"
#include "frame/werte.h"
#include "frame/zahl_text.h"
#include "link/kor_com.h"
#include "link/messwert.h"
#include "position/xy_diagram.h"

namespace korvin {
namespace {

namespace vorgaben = einstellung::FormPosition;
namespace verbindung = einstellung::Verbindung;

constexpr std::int16_t inch = 1;

/// A setting as record text. What does not fit the record's character set leaves `sonst`: it was not entered
/// here.
std::string recordText(Profil& profil, const Einstellung& einstellung, const char* sonst) {
  return zuCp1252(profil.wert(einstellung)).value_or(sonst);
}

bool flag(Profil& profil, const Einstellung& einstellung) {
  return flagAusText(profil.wert(einstellung));
}

std::int16_t zahl(Profil& profil, const Einstellung& einstellung) {
  return ganzzahlAusText(profil.wert(einstellung));
}

void anzeigeBehalten(AchsenInfo& achse, const AchsenInfo& vorher) {
  achse.Bereich = vorher.Bereich;
  achse.BereichHand = vorher.BereichHand;
  achse.NumZoom = vorher.NumZoom;
}

}  // namespace

// ---- The working record ----

void PunktErfassung::neueMessung() {
  PositionsDatei& arbeit = u_.formpos.arbeit();
  const PositionsDatei vorher = arbeit;
  // Bytes that nothing sets are 0 in a new measurement; how the window shows it stays as the user left it.
  arbeit = PositionsDatei{};
  anzeigeBehalten(arbeit.X, vorher.X);
  anzeigeBehalten(arbeit.Y, vorher.Y);
  arbeit.Info.NurAktuell = vorher.Info.NurAktuell;
  PositionsInfo& info = arbeit.Info;
  Profil& profil = u_.profil;
  info.FirmaName = recordText(profil, vorgaben::FirmaName, "");
  info.AsciiDatei = flag(profil, vorgaben::AsciiDatei);
  info.NKStellen = zahl(profil, vorgaben::NKStellen);
  info.Bezeichnung = recordText(profil, vorgaben::Bezeichnung, "?");
  info.Bediener = recordText(profil, vorgaben::Bediener, "?");
  info.Kommentar = recordText(profil, vorgaben::Kommentar, "?");
  info.Filter = recordText(profil, vorgaben::Filter, "2");
  info.Montage = zahl(profil, vorgaben::Montage);
  info.SFak = zahl(profil, vorgaben::SFak);
  info.CheckXYDiagramm = flag(profil, vorgaben::CheckXYDiagramm);
  info.CheckXTabelle = flag(profil, vorgaben::CheckXTabelle);
  info.CheckYTabelle = flag(profil, vorgaben::CheckYTabelle);
  info.DateiName = zuCp1252(MessOrdner(profil, u_.system) + "*.O").value_or("*.O");
  info.Gitter = true;
  info.RestMP = -1;
  info.Datum = LeerDatum;
  u_.formpos.messungLoeschen();
  verbindungLesen();
}

void PunktErfassung::verbindungLesen() {
  PositionsInfo& info = u_.formpos.Info();
  info.KameraID = recordText(u_.profil, verbindung::KameraID, "0");
  info.PortNr = zahl(u_.profil, verbindung::PortNr);
  info.Settings = SettingsAusBaudRate(zahl(u_.profil, verbindung::BaudRate));
  // The record's text has no room for a title in another script; it keeps the German one then.
  const std::string titel = "KORVIN-" + MessartTitel(u_.dictionary, MessartPosition);
  info.ProgrammText = zuCp1252(titel).value_or("KORVIN-Position");
  u_.system.FilterVorgabe = filter();
}

// ---- Commands ----

bool PunktErfassung::offsetSchalten(bool an) {
  PositionsDatei& arbeit = u_.formpos.arbeit();
  const std::int16_t punkt = arbeit.Info.MPAktuell;
  // A loaded record's cursor may stand anywhere.
  if (an && (punkt < 1 || punkt > arbeit.Info.AnzahlMP)) return false;
  const auto index = static_cast<std::size_t>(an ? punkt : 0);
  arbeit.Info.OffsetAktiv = an;
  arbeit.Info.OffsetMP = an ? punkt : std::int16_t{0};
  arbeit.X.Offset = an ? u_.formpos.punkte().X().at(index) : 0;
  arbeit.Y.Offset = an ? u_.formpos.punkte().Y().at(index) : 0;
  u_.formpos.statistikNeu();
  rahmenVerwerfen(arbeit);
  return true;
}

void PunktErfassung::cursorBewegen(int schritt) {
  PositionsInfo& info = u_.formpos.Info();
  if (info.AnzahlMP == 0) return;
  info.MPVorher = info.MPAktuell;
  info.MPAktuell = static_cast<std::int16_t>(cursorSchritt(info.MPAktuell, info.AnzahlMP, schritt));
}

void PunktErfassung::M_MessLöschen() {
  PositionsDatei& arbeit = u_.formpos.arbeit();
  u_.formpos.messungLoeschen();
  rahmenVerwerfen(arbeit);
  arbeit.Info.OffsetAktiv = false;
  arbeit.Info.OffsetMP = 0;
  arbeit.X.Offset = 0;
  arbeit.Y.Offset = 0;
}

// ---- What the cycle asks ----

LinkAngaben PunktErfassung::linkAngaben() const {
  const PositionsInfo& info = u_.formpos.Info();
  return {info.PortNr, std::string(info.Settings.trimmed()), std::string(info.KameraID.trimmed())};
}

char PunktErfassung::filter() const {
  return u_.formpos.Info().Filter.full().front();
}

void PunktErfassung::setFilter(char stufe) {
  u_.formpos.Info().Filter = std::string_view(&stufe, 1);
}

std::int16_t PunktErfassung::nkStellen() const {
  return u_.formpos.Info().NKStellen;
}

void PunktErfassung::wertUebernehmen(const KameraAntwort& antwort) {
  PositionsDatei& arbeit = u_.formpos.arbeit();
  const auto [x, y] = positionAusRoh(antwort, u_.system.Masssystem == inch, arbeit.Info.Montage);
  arbeit.X.Aktuell = x;
  arbeit.Y.Aktuell = y;
  u_.formpos.punktHinzufuegen(u_.clock.now());
}

bool PunktErfassung::grenzeErreicht() {
  if (Info().AnzahlMP < MaxPunkteO) return false;
  u_.meldung.MsgTitel = "KORVIN-" + u_.dictionary.DicText(beschreibung().titelText);
  u_.meldung.MsgText =
      u_.dictionary.DicText(6019) + " (" + formatNumber(MaxPunkteO, "0") + ") " + u_.dictionary.DicText(6020);
  u_.messages.beep();
  u_.messages.show(u_.meldung, MessageIcon::warning, MessageButtons::ok);
  return true;
}

}  // namespace korvin
