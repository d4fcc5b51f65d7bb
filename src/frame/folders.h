#pragma once

#include <filesystem>
#include <string>

namespace korvin {

/// What the choice of folders depends on.
struct FolderEnvironment {
  std::filesystem::path executableFolder;  ///< where the running program lies
  bool executableFolderWritable = false;
  std::filesystem::path home;  ///< the user's home, empty if unknown
  std::string xdgDataHome;     ///< XDG_DATA_HOME, empty if not set
  std::string xdgConfigHome;   ///< XDG_CONFIG_HOME, empty if not set
};

/// The program's folders. Chosen once, in main(); none of them needs to exist yet.
struct Folders {
  std::filesystem::path program;  ///< korvin.mdb, KorFiles/, KORVIN.TMP, the help file
  std::filesystem::path config;   ///< the settings' file, ports/

  std::filesystem::path settingsFile() const { return config / "settings.db"; }
  std::filesystem::path ports() const { return config / "ports"; }
};

/// True if this process may make files in `folder`.
bool folderCanBeWritten(const std::filesystem::path& folder);

/// The one place that looks at the environment.
FolderEnvironment folderEnvironment();

/// The program's folder is that of the executable if it can be written, else "korvin" in the user's data
/// folder (XDG_DATA_HOME, without it .local/share in the home). The configuration folder is "korvin" in
/// XDG_CONFIG_HOME, without it in .config. A relative path in either variable counts as not set, as the XDG
/// base directory rules ask. Without a home, the executable's folder stands in.
Folders chooseFolders(const FolderEnvironment& environment);

/// Brings a file that lies beside the executable (the dictionary, the help file) into the program's folder,
/// if that is another one: where it is missing, or older than the shipped file, which belongs to this
/// program. The folder is made if missing. The copy appears whole or not at all; a failure is silent, since
/// the missing file is told where it is used.
void bringShippedFile(const FolderEnvironment& environment, const Folders& folders, const std::string& name);

}  // namespace korvin
