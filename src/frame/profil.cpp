#include "frame/profil.h"

namespace korvin {
namespace {

constexpr std::uint32_t Wurzel = HKEY_CURRENT_USER_Root;
/// Class string of a section that is made by writing into it.
constexpr std::string_view SektionsKlasse = "WIN-KORVIN";

std::string ohneRandBlanks(const std::string& text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace

void Profil::ProfilLesen(std::string_view /*file*/, std::string_view section, std::string_view key,
                         std::string_view vorgabe, std::string& value) {
  RegWert stored;
  const bool read = registry_.RegWertLesen(Wurzel, RegSektionPfad(section), key, stored);
  const auto* text = std::get_if<std::string>(&stored);
  const auto* number = std::get_if<std::int32_t>(&stored);
  if (read && text != nullptr) {
    value = ohneRandBlanks(*text);
  } else if (read && number != nullptr) {
    value = std::to_string(*number);
  } else {
    value = vorgabe;
  }
}

void Profil::ProfilSchreiben(std::string_view /*file*/, std::string_view section, std::string_view key,
                             std::string_view value) {
  const std::string path = RegSektionPfad(section);
  const auto sectionThere = [&] {
    return registry_.RegSchluesselDa(Wurzel, path) ||
           registry_.RegSchluesselAnlegen(Wurzel, path, SektionsKlasse);
  };
  if (sectionThere()) registry_.RegWertSchreiben(Wurzel, path, key, std::string(value));
}

std::string Profil::wert(std::string_view section, std::string_view key, std::string_view vorgabe) {
  std::string value;
  ProfilLesen(KorvinIni, section, key, vorgabe, value);
  return value;
}

std::string Profil::wert(const Einstellung& einstellung) {
  return wert(einstellung.section, einstellung.key, einstellung.vorgabe);
}

void Profil::schreiben(const Einstellung& einstellung, std::string_view value) {
  ProfilSchreiben(KorvinIni, einstellung.section, einstellung.key, value);
}

}  // namespace korvin
