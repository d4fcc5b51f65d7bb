#include "frame/datei_verteilung.h"

#include <algorithm>
#include <optional>

#include "frame/datei_dialog.h"
#include "frame/messart.h"

namespace korvin {
namespace {

constexpr std::int16_t TextAlleMessdateien = 500;
constexpr std::int16_t TextDialog = 2044;
constexpr std::int16_t TextTitel = 6000;
constexpr std::int16_t TextUnbekannt = 6001;
constexpr std::int16_t TextZulaessig = 6002;
constexpr std::int16_t TextNochNicht = 7031;

struct Dateiart {
  char buchstabe;
  std::int16_t text;
};

/// The cycle of the dialog.
constexpr std::array<Dateiart, 5> Zyklus{{{'G', 501}, {'P', 502}, {'R', 503}, {'F', 504}, {'O', 505}}};
/// Where the cycle begins, by the index of `M_DateiOeffnen`. The menu has another order than the cycle.
constexpr std::array<std::size_t, 5> Anfang{0, 1, 3, 2, 4};

std::string paar(Dictionary& dictionary, std::int16_t text, char buchstabe) {
  const std::string muster = std::string("*.") + buchstabe;
  return dictionary.DicText(text) + " (" + muster + ")|" + muster;
}

std::string zyklusAb(Dictionary& dictionary, std::size_t first) {
  std::string filter;
  for (std::size_t i = 0; i < Zyklus.size(); ++i) {
    const Dateiart& art = Zyklus.at((first + i) % Zyklus.size());
    if (i > 0) filter += '|';
    filter += paar(dictionary, art.text, art.buchstabe);
  }
  return filter;
}

/// The last letter of a trimmed name, large; blank if there is none.
char letzterBuchstabe(const std::string& name) {
  const char last = name.empty() ? ' ' : name.back();
  return last >= 'a' && last <= 'z' ? static_cast<char>(last - 'a' + 'A') : last;
}

std::optional<std::int16_t> messartVon(char buchstabe) {
  switch (buchstabe) {
    case 'G':
      return MessartGeradheit;
    case 'O':
      return MessartPosition;
    case 'P':
      return MessartParallel;
    case 'R':
      return MessartRechtwinkel;
    default:
      return std::nullopt;
  }
}

}  // namespace

std::string FilterDateiOeffnen(Dictionary& dictionary, int index) {
  return zyklusAb(dictionary, Anfang.at(static_cast<std::size_t>(index)));
}

std::string FilterAlleMessdateien(Dictionary& dictionary) {
  return paar(dictionary, TextAlleMessdateien, '?') + "|" + zyklusAb(dictionary, 0);
}

std::string messdateiErfragen(FileDialog& dialog, Dictionary& dictionary, const std::string& filter,
                              const std::string& ordner) {
  return dateiErfragen(dialog, ordner, filter, dictionary.DicText(TextDialog), true);
}

void DateiVerteilung::anmelden(std::int16_t messart, MessartEmpfaenger& empfaenger) {
  empfaenger_.at(static_cast<std::size_t>(messart)) = &empfaenger;
}

bool DateiVerteilung::vorhanden(std::int16_t messart) const {
  return empfaenger(messart) != nullptr;
}

MessartEmpfaenger* DateiVerteilung::empfaenger(std::int16_t messart) const {
  const bool known = messart >= 0 && static_cast<std::size_t>(messart) < empfaenger_.size();
  return known ? empfaenger_.at(static_cast<std::size_t>(messart)) : nullptr;
}

void DateiVerteilung::starten(std::int16_t messart) {
  MessartEmpfaenger* kind = empfaenger(messart);
  if (kind == nullptr) return ablehnen(dictionary_.DicText(TextNochNicht));
  messart_ = messart;
  kind->zeigen(0);
}

void DateiVerteilung::verteilen(const std::string& name) {
  if (name.empty()) return;
  const std::string trimmed = name.substr(0, name.find_last_not_of(' ') + 1);
  const char buchstabe = letzterBuchstabe(trimmed);
  if (buchstabe == 'F') return;
  if (const auto messart = messartVon(buchstabe)) return oeffnen(*messart, trimmed);
  ablehnen(dictionary_.DicText(TextUnbekannt) + "!" + NeueZeile + dictionary_.DicText(TextZulaessig) +
           ": *.G, *.P, *.R, *.F, *.O ");
}

void DateiVerteilung::oeffnen(std::int16_t messart, const std::string& name) {
  MessartEmpfaenger* kind = empfaenger(messart);
  if (kind == nullptr) return ablehnen(dictionary_.DicText(TextNochNicht));
  const std::int16_t before = messart_;
  messart_ = messart;
  if (kind->laden(name)) {
    kind->zeigen(1);
  } else {
    messart_ = before;
  }
}

void DateiVerteilung::ablehnen(const std::string& text) {
  meldung_.MsgTitel = dictionary_.DicText(TextTitel) + ":";
  meldung_.MsgText = text;
  messages_.beep();
  messages_.show(meldung_, MessageIcon::warning, MessageButtons::ok);
}

}  // namespace korvin
