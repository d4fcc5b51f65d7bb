#pragma once

#include <string>
#include <string_view>

#include "frame/kor_registry.h"
#include "frame/settings_defaults.h"

namespace korvin {

/// The first argument of all calls; there is no file of this name, and none is ever read or written.
inline constexpr std::string_view KorvinIni = "Korvin.ini";

/// The module `PROFILE`: settings in the manner of an ini file, section and key. All code but the start reads
/// and writes settings through it. Nothing is cached: each call goes to the tree. Texts are UTF-8.
class Profil {
 public:
  explicit Profil(SettingsTree& tree) : registry_(tree) {}

  /// `value` is the stored text without blanks at both ends, or `vorgabe` as it stands if the section or the
  /// key isn't there or can't be read. A stored number comes as its decimal text.
  void ProfilLesen(std::string_view file, std::string_view section, std::string_view key,
                   std::string_view vorgabe, std::string& value);
  /// Stores `value`; makes the section if it is missing. A failure is silent.
  void ProfilSchreiben(std::string_view file, std::string_view section, std::string_view key,
                       std::string_view value);

  /// `ProfilLesen` with the value as its result.
  std::string wert(std::string_view section, std::string_view key, std::string_view vorgabe);
  std::string wert(const Einstellung& einstellung);
  void schreiben(const Einstellung& einstellung, std::string_view value);

 private:
  KorRegistry registry_;
};

}  // namespace korvin
