#pragma once

#include <stdexcept>
#include <string>

#include "korvin-head/file_descriptor.h"

namespace korvin::head {

/// Why a link cannot be placed, in words for the user.
struct LinkError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// Folder in which port n is the link "com<n>": korvin/ports in the user's configuration folder, which is
/// `configHome` (XDG_CONFIG_HOME; counts only if absolute) or .config in `home`. Empty if neither is known.
std::string portsFolder(const char* configHome, const char* home);

/// The link through which programs find the head's device. It comes and goes in one step, and never takes the
/// place of anything but a link that leads nowhere or that a head left behind.
class PortLink {
 public:
  /// Claims `path` and makes its folder. Throws `LinkError` if another head serves it, or if something stands
  /// there that is not a head's: a file, or a link to a device of the user's.
  explicit PortLink(std::string path);
  /// Removes the link if it is still its own.
  ~PortLink();
  PortLink(const PortLink&) = delete;
  PortLink& operator=(const PortLink&) = delete;

  /// Lets the link lead to `device`. Throws `LinkError`.
  void place(const std::string& device);
  /// Takes the link away if it still leads where `place` led it.
  void remove();
  const std::string& path() const { return path_; }

 private:
  void claim();

  std::string path_;
  std::string device_;
  FileDescriptor claim_;
};

}  // namespace korvin::head
