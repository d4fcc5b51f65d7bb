#include "frame/folders.h"

#include <fcntl.h>
#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <system_error>

namespace korvin {
namespace {

namespace fs = std::filesystem;

std::string variable(const char* name) {
  const char* value = std::getenv(name);
  return value != nullptr ? value : "";
}

fs::path homeFolder() {
  if (const std::string home = variable("HOME"); !home.empty()) return home;
  const passwd* user = getpwuid(geteuid());
  return user != nullptr && user->pw_dir != nullptr ? user->pw_dir : "";
}

fs::path userFolder(const std::string& set, const FolderEnvironment& environment, const char* below) {
  if (fs::path(set).is_absolute()) return fs::path(set) / "korvin";
  if (environment.home.empty()) return environment.executableFolder / "korvin";
  return environment.home / below / "korvin";
}

bool isOlderOrMissing(const fs::path& target, const fs::path& shipped) {
  std::error_code error;
  const auto targetTime = fs::last_write_time(target, error);
  if (error) return true;
  const auto shippedTime = fs::last_write_time(shipped, error);
  return !error && targetTime < shippedTime;
}

}  // namespace

bool folderCanBeWritten(const fs::path& folder) {
  return faccessat(AT_FDCWD, folder.c_str(), W_OK | X_OK, AT_EACCESS) == 0;
}

FolderEnvironment folderEnvironment() {
  std::error_code error;
  FolderEnvironment out;
  out.executableFolder = fs::read_symlink("/proc/self/exe", error).parent_path();
  if (error) out.executableFolder = fs::current_path(error);
  out.executableFolderWritable = folderCanBeWritten(out.executableFolder);
  out.home = homeFolder();
  out.xdgDataHome = variable("XDG_DATA_HOME");
  out.xdgConfigHome = variable("XDG_CONFIG_HOME");
  return out;
}

Folders chooseFolders(const FolderEnvironment& environment) {
  Folders out;
  out.program = environment.executableFolderWritable
                    ? environment.executableFolder
                    : userFolder(environment.xdgDataHome, environment, ".local/share");
  out.config = userFolder(environment.xdgConfigHome, environment, ".config");
  return out;
}

void bringShippedFile(const FolderEnvironment& environment, const Folders& folders, const std::string& name) {
  if (folders.program == environment.executableFolder) return;
  const fs::path shipped = environment.executableFolder / name;
  const fs::path target = folders.program / name;
  if (!isOlderOrMissing(target, shipped)) return;
  std::error_code error;
  fs::create_directories(folders.program, error);
  fs::path beside = target;
  beside += ".new";
  if (fs::copy_file(shipped, beside, fs::copy_options::overwrite_existing, error))
    fs::rename(beside, target, error);
  if (error) fs::remove(beside, error);
}

}  // namespace korvin
