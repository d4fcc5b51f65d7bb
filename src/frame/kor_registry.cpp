#include "frame/kor_registry.h"

#include <algorithm>
#include <filesystem>

namespace korvin {
namespace {

constexpr std::uint32_t Wurzel = HKEY_CURRENT_USER_Root;

constexpr std::string_view Geradheit = "GeradheitsmessungsDaten";
constexpr std::string_view Position = "PositionsmessungsDaten";
constexpr std::string_view Parallel = "ParallelmessungsDaten";
constexpr std::string_view Rechtwinkel = "RechtwinkelmessungsDaten";

constexpr auto Sektionen = std::to_array<RegSektion>({
    {"KorInfo", "AllgemeineDaten"},
    {"MessInfo_G", Geradheit},
    {"Toleranz_G", Geradheit},
    {"DruckInfo_G", Geradheit},
    {"MessInfo_O", Position},
    {"DruckInfo_O", Position},
    {"MessInfo_P", Parallel},
    {"Bezugslinie_P", Parallel},
    {"Messlinie_P", Parallel},
    {"Toleranz_P", Parallel},
    {"DruckInfo_P", Parallel},
    {"MessInfo_R", Rechtwinkel},
    {"Bezugslinie_R", Rechtwinkel},
    {"Messlinie_R", Rechtwinkel},
    {"Toleranz_R", Rechtwinkel},
    {"DruckInfo_R", Rechtwinkel},
    {"ToleranzBezugslinie_P", Parallel},
    {"ToleranzMesslinie_P", Parallel},
    {"ToleranzParallel_P", Parallel},
    {"ToleranzBezugslinie_R", Rechtwinkel},
    {"ToleranzMesslinie_R", Rechtwinkel},
    {"ToleranzParallel_R", Rechtwinkel},
});

/// The folder of the measuring files that a new tree names.
std::string anfangsMessordner(std::string_view programFolder) {
  constexpr char separator = static_cast<char>(std::filesystem::path::preferred_separator);
  std::string folder(programFolder);
  if (!folder.ends_with(separator)) folder += separator;
  return folder + "KorFiles" + separator;
}

struct Anfangswert {
  std::string_view key;
  std::string value;
};

/// What `KorInfo` holds at first. No other section gets values when it is made.
std::array<Anfangswert, 12> anfangswerte(std::string_view programFolder) {
  return {{
      {"Version", std::string(RegVersion)},
      {"PentaFehler", "0"},
      {"NormInt_Laser", "0"},
      {"MassArt", "0"},
      {"FirmaName", ""},
      {"AsciiDatei", "-1"},
      {"NKStellen", "2"},
      {"BaudRate", "1"},
      {"PortNr", "1"},
      {"KameraID", "0"},
      {"Sprache", "1"},
      {"PfadMessFile", anfangsMessordner(programFolder)},
  }};
}

}  // namespace

std::span<const RegSektion> RegSektionen() {
  return Sektionen;
}

std::string RegSektionPfad(std::string_view section) {
  return std::string(RegBasisPfad).append("\\").append(section);
}

bool KorRegistry::RegSchluesselDa(std::uint32_t root, std::string_view path) {
  return root == Wurzel && tree_.keyExists(path);
}

bool KorRegistry::RegWertLesen(std::uint32_t root, std::string_view path, std::string_view name,
                               RegWert& value) {
  if (root != Wurzel) return false;
  const auto read = tree_.readValue(path, name);
  if (!read) return false;
  if (!std::holds_alternative<std::monostate>(*read)) value = *read;
  return true;
}

bool KorRegistry::RegSchluesselAnlegen(std::uint32_t root, std::string_view path, std::string_view klasse) {
  return root == Wurzel && tree_.createKey(path, klasse) == SettingsTree::Creation::created;
}

bool KorRegistry::RegWertSchreiben(std::uint32_t root, std::string_view path, std::string_view name,
                                   const RegWert& value) {
  if (root != Wurzel || std::holds_alternative<std::monostate>(value)) return false;
  return tree_.writeValue(path, name, value);
}

bool KorRegistry::RegSchluesselLoeschen(std::uint32_t root, std::string_view path) {
  return root == Wurzel && tree_.deleteKey(path);
}

bool KorRegistry::RegistryAnlegen(std::string_view programFolder) {
  return tree_.inOneChange([&] { return korInfoAnlegen(programFolder) && sektionenAnlegen(); });
}

bool KorRegistry::korInfoAnlegen(std::string_view programFolder) {
  const std::string path = RegSektionPfad(Sektionen.front().name);
  if (!RegSchluesselAnlegen(Wurzel, path, Sektionen.front().klasse)) return false;
  const auto values = anfangswerte(programFolder);
  return std::all_of(values.begin(), values.end(), [&](const Anfangswert& initial) {
    return RegWertSchreiben(Wurzel, path, initial.key, initial.value);
  });
}

bool KorRegistry::sektionenAnlegen() {
  return std::all_of(Sektionen.begin() + 1, Sektionen.end(), [&](const RegSektion& sektion) {
    const std::string path = RegSektionPfad(sektion.name);
    return RegSchluesselDa(Wurzel, path) || RegSchluesselAnlegen(Wurzel, path, sektion.klasse);
  });
}

bool KorRegistry::RegistryLoeschen() {
  return tree_.inOneChange([&] {
    if (!sektionenLoeschen() || !RegSchluesselLoeschen(Wurzel, RegBasisPfad)) return false;
    // Other programs of the house may hang there too; then it stays, and that is no failure.
    if (RegSchluesselDa(Wurzel, RegBasisElternPfad)) RegSchluesselLoeschen(Wurzel, RegBasisElternPfad);
    return true;
  });
}

bool KorRegistry::sektionenLoeschen() {
  return std::all_of(Sektionen.begin(), Sektionen.end(), [&](const RegSektion& sektion) {
    const std::string path = RegSektionPfad(sektion.name);
    return !RegSchluesselDa(Wurzel, path) || RegSchluesselLoeschen(Wurzel, path);
  });
}

}  // namespace korvin
