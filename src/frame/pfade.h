#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace korvin {

/// Paths are UTF-8 with the platform's separators. The operations on files here ignore failures on purpose:
/// what could not be made or deleted shows itself where it is used next.

/// A path for the file system.
std::filesystem::path pfadAusUtf8(std::string_view utf8);

/// The folder of the measuring files. `PfadMessFile` as it stands; if it is blank, the folder "KorFiles" in
/// `programmOrdner`, with a separator at its end, which is made if it is missing.
std::string MessOrdner(std::string_view PfadMessFile, std::string_view programmOrdner);

/// Deletes a file.
void dateiLoeschen(std::string_view name);

/// The character behind the first point of a mask: "O" of "*.O"; "?" if there is none.
std::string EndungsBuchstabe(std::string_view maske);

/// A path in two parts.
struct GeteilterPfad {
  std::string ordner;  ///< without a separator at its end, but for the lone root
  std::string name;
};

/// Splits at the last separator; a path without one is all name. Where '/' separates, a path that has none is
/// split at the last '\\', since measuring files may hold paths of another system.
GeteilterPfad pfadTeilen(std::string_view pfad);

}  // namespace korvin
