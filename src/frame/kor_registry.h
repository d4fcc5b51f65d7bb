#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "frame/settings_tree.h"

namespace korvin {

/// Where the tree hangs below the present user's hive.
inline constexpr std::string_view RegBasisPfad = R"(SOFTWARE\Vantro Systems AG\WIN-KORVIN)";
/// The key above it, which goes with the tree.
inline constexpr std::string_view RegBasisElternPfad = R"(SOFTWARE\Vantro Systems AG)";
/// `Version` in `KorInfo`: the layout of this tree. Compared as text; a tree of any other version is made
/// anew.
inline constexpr std::string_view RegVersion = "v555";

/// A section of the tree: a key below the base path.
struct RegSektion {
  std::string_view name;
  std::string_view klasse;  ///< class string of the key
};

/// All sections, in the order in which they are made and deleted; `KorInfo` is the first.
///
/// To add one: put it here, under the class string of its measuring kind. Its keys appear when they are first
/// written; their readers' defaults stand in settings_defaults.h. A change that earlier programs can't live
/// with needs another `RegVersion`, which costs every user all settings.
std::span<const RegSektion> RegSektionen();

/// Path of a section from the hive's root.
std::string RegSektionPfad(std::string_view section);

/// The registry operations, on the settings tree. `root` is always the present user's hive: under any other
/// root nothing is found and nothing is made. Paths separate keys by '\\'; names compare without regard to
/// case.
class KorRegistry {
 public:
  explicit KorRegistry(SettingsTree& tree) : tree_(tree) {}

  /// True if the key opens with read rights.
  bool RegSchluesselDa(std::uint32_t root, std::string_view path);
  /// True on success. A text and a 32-bit number come back as they were written; with any other type the
  /// answer is true too, but `value` is left untouched.
  bool RegWertLesen(std::uint32_t root, std::string_view path, std::string_view name, RegWert& value);
  /// True only if the key was new.
  bool RegSchluesselAnlegen(std::uint32_t root, std::string_view path, std::string_view klasse);
  /// True on success. A number is written as `REG_DWORD`, a text as `REG_SZ`, anything else not at all.
  bool RegWertSchreiben(std::uint32_t root, std::string_view path, std::string_view name,
                        const RegWert& value);
  /// True if the key was there and had no keys below it.
  bool RegSchluesselLoeschen(std::uint32_t root, std::string_view path);

  /// Makes the whole tree: `KorInfo` with its twelve initial values, the other sections empty. False if
  /// `KorInfo` was there already or anything can't be written. `programFolder` carries `KorFiles`, the first
  /// folder of the measuring files. All of it is one change: a crash leaves no half tree.
  bool RegistryAnlegen(std::string_view programFolder);
  /// Deletes the tree and, if nothing else hangs there, the key above it. False at the first section that
  /// can't be deleted; the rest then stays.
  bool RegistryLoeschen();

 private:
  bool korInfoAnlegen(std::string_view programFolder);
  bool sektionenAnlegen();
  bool sektionenLoeschen();

  SettingsTree& tree_;
};

}  // namespace korvin
