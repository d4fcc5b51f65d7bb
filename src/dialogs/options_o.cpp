#include "dialogs/options_o.h"

#include <algorithm>
#include <cstddef>

#include "frame/messart.h"
#include "frame/zahl_text.h"
#include "link/kor_com.h"

namespace korvin {
namespace {

namespace vorgaben = einstellung::FormOptionsO;

constexpr std::int16_t TextPunkteLoeschen = 2038;
constexpr int RecordText = 75;
constexpr int Pfadlaenge = 4096;
constexpr int Portlaenge = 10;

constexpr std::array<EinstellFeld, 15> Felder = {
    {{"TextEinstellung(0)", vorgaben::FirmaName, FeldForm::text, RecordText},
     {"TextEinstellung(2)", vorgaben::Bezeichnung, FeldForm::text, RecordText},
     {"TextEinstellung(3)", vorgaben::PfadMessFile, FeldForm::text, Pfadlaenge},
     {"TextEinstellung(4)", vorgaben::Bediener, FeldForm::text, RecordText},
     {"TextEinstellung(5)", vorgaben::Kommentar, FeldForm::text, RecordText},
     {"TextEinstellung(6)", vorgaben::PortNr, FeldForm::text, Portlaenge, FeldPruefung::port},
     {"cmbBpS", vorgaben::BaudRate, FeldForm::index, AnzahlBaudRaten},
     {"cmbFilter", vorgaben::Filter, FeldForm::index, AnzahlFilter},
     {"cmbKameraBefestigung", vorgaben::Montage, FeldForm::index, AnzahlMontagen},
     {"cmbAnzStellen", vorgaben::NKStellen, FeldForm::index, AnzahlNKStellen},
     {"cmbSfak", vorgaben::SFak, FeldForm::faktor, AnzahlSFaktoren},
     {"CheckDiagramm", vorgaben::CheckXYDiagramm, FeldForm::schalter},
     {"CheckTabelle(0)", vorgaben::CheckXTabelle, FeldForm::schalter},
     {"CheckTabelle(1)", vorgaben::CheckYTabelle, FeldForm::schalter},
     {"CheckAsciiDatei", vorgaben::AsciiDatei, FeldForm::schalter}}};

/// The value of the field with this key.
const FeldWert& wertVon(const FeldWerte& werte, const Einstellung& gesucht) {
  const auto zeile = std::find_if(Felder.begin(), Felder.end(), [&](const EinstellFeld& feld) {
    return feld.einstellung.key == gesucht.key;
  });
  return werte.at(static_cast<std::size_t>(zeile - Felder.begin()));
}

std::int16_t platz(const FeldWerte& werte, const Einstellung& gesucht) {
  return static_cast<std::int16_t>(std::get<int>(wertVon(werte, gesucht)));
}

}  // namespace

std::span<const EinstellFeld> FelderO() {
  return Felder;
}

FeldWerte OptionsO::lesen() {
  FeldWerte werte;
  for (const EinstellFeld& feld : Felder) werte.push_back(feldLesen(u_.profil, feld));
  return werte;
}

MessplanTexte OptionsO::messplan() const {
  return messung_ != nullptr ? messplanTexte(messung_->formpos.Info()) : MessplanTexte{};
}

void OptionsO::uebernehmen(const FeldWerte& werte, const MessplanTexte& plan) {
  if (messung_ != nullptr) messungAnpassen(werte, plan);
  for (std::size_t i = 0; i < Felder.size(); ++i) feldSchreiben(u_.profil, Felder.at(i), werte.at(i));
}

void OptionsO::messungAnpassen(const FeldWerte& werte, const MessplanTexte& plan) {
  PositionsInfo& info = messung_->formpos.Info();
  messplanSetzen(plan, info);
  const auto filter = static_cast<char>('0' + platz(werte, vorgaben::Filter));
  filterUndMontage(filter, platz(werte, vorgaben::Montage));
  info.NKStellen = platz(werte, vorgaben::NKStellen);
  // Also where the measurement keeps its own filter: the next reading goes by the chosen one.
  u_.system.FilterVorgabe = filter;
  // For the next going online; the open port stays.
  info.PortNr = ganzzahlAusText(std::get<std::string>(wertVon(werte, vorgaben::PortNr)));
  info.Settings = SettingsAusBaudRate(platz(werte, vorgaben::BaudRate));
}

void OptionsO::filterUndMontage(char filter, std::int16_t montage) {
  PositionsInfo& info = messung_->formpos.Info();
  if (info.Filter.full().front() == filter && info.Montage == montage) return;
  // Points of another filter or mounting can't stand beside the new ones.
  if (info.AnzahlMP > 0 && !frageLoeschen()) return;
  messung_->erfassung.M_MessLöschen();
  info.Filter = std::string_view(&filter, 1);
  info.Montage = montage;
}

bool OptionsO::frageLoeschen() {
  u_.meldung.MsgTitel = "KORVIN " + MessartTitel(u_.dictionary, MessartPosition);
  u_.meldung.MsgText = u_.dictionary.DicText(TextPunkteLoeschen) + " ?";
  return u_.messages.show(u_.meldung, MessageIcon::question, MessageButtons::yesNo) == MessageAnswer::yes;
}

}  // namespace korvin
