#include "dialogs/options_o.h"

#include <array>

#include "frame/messart.h"
#include "link/kor_com.h"

namespace korvin {
namespace {

namespace vorgaben = einstellung::FormOptionsO;

constexpr std::int16_t TextPunkteLoeschen = 2038;

constexpr std::array<EinstellFeld, 15> Felder = {
    {{"TextEinstellung(0)", vorgaben::FirmaName, FeldForm::text, LaengeRecordText},
     {"TextEinstellung(2)", vorgaben::Bezeichnung, FeldForm::text, LaengeRecordText},
     {"TextEinstellung(3)", vorgaben::PfadMessFile, FeldForm::text, LaengePfad},
     {"TextEinstellung(4)", vorgaben::Bediener, FeldForm::text, LaengeRecordText},
     {"TextEinstellung(5)", vorgaben::Kommentar, FeldForm::text, LaengeRecordText},
     {"TextEinstellung(6)", vorgaben::PortNr, FeldForm::text, LaengeZahl, FeldPruefung::port},
     {"cmbBpS", vorgaben::BaudRate, FeldForm::index, AnzahlBaudRaten},
     {"cmbFilter", vorgaben::Filter, FeldForm::index, AnzahlFilter},
     {"cmbKameraBefestigung", vorgaben::Montage, FeldForm::index, AnzahlMontagen},
     {"cmbAnzStellen", vorgaben::NKStellen, FeldForm::index, AnzahlNKStellen},
     {"cmbSfak", vorgaben::SFak, FeldForm::faktor, AnzahlSFaktoren},
     {"CheckDiagramm", vorgaben::CheckXYDiagramm, FeldForm::schalter},
     {"CheckTabelle(0)", vorgaben::CheckXTabelle, FeldForm::schalter},
     {"CheckTabelle(1)", vorgaben::CheckYTabelle, FeldForm::schalter},
     {"CheckAsciiDatei", vorgaben::AsciiDatei, FeldForm::schalter}}};

}  // namespace

std::span<const EinstellFeld> FelderO() {
  return Felder;
}

OptionsO::OptionsO(const OptionenUmgebung& umgebung, OffeneMessung* messung)
    : u_(umgebung), messung_(messung), satz_(umgebung.profil, Felder) {}

MessplanTexte OptionsO::messplan() const {
  return messung_ != nullptr ? messplanTexte(messung_->formpos.Info()) : MessplanTexte{};
}

void OptionsO::uebernehmen(const FeldWerte& werte, const MessplanTexte& plan) {
  const FeldTexte texte = satz_.texte(werte);
  if (messung_ != nullptr) messungAnpassen(texte, plan);
  texte.schreiben(u_.profil, 0, Felder.size());
}

void OptionsO::messungAnpassen(const FeldTexte& texte, const MessplanTexte& plan) {
  PositionsInfo& info = messung_->formpos.Info();
  messplanSetzen(plan, info);
  const auto filter = static_cast<char>('0' + texte.ganz(vorgaben::Filter));
  filterUndMontage(filter, texte.ganz(vorgaben::Montage));
  info.NKStellen = texte.ganz(vorgaben::NKStellen);
  // Also where the measurement keeps its own filter: the next reading goes by the chosen one.
  u_.system.FilterVorgabe = filter;
  // For the next going online; the open port stays.
  info.PortNr = texte.ganz(vorgaben::PortNr);
  info.Settings = SettingsAusBaudRate(texte.ganz(vorgaben::BaudRate));
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
