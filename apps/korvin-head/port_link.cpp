#include "korvin-head/port_link.h"

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <functional>
#include <system_error>
#include <utility>

namespace fs = std::filesystem;

namespace korvin::head {

namespace {

constexpr std::string_view kTerminals = "/dev/pts/";

/// Where the link at `path` leads; empty if no link is there.
std::string targetOf(const std::string& path) {
  std::error_code none;
  return fs::read_symlink(path, none).string();
}

void refuseForeign(const std::string& path) {
  std::error_code error;
  const fs::file_status status = fs::symlink_status(path, error);
  if (!fs::exists(status)) return;
  if (!fs::is_symlink(status)) throw LinkError(path + " is there and is no link; it is left as it is");
  const std::string target = targetOf(path);
  // A terminal's link whose head is gone stays behind after a kill; its number may serve someone else by now.
  if (target.starts_with(kTerminals) || !fs::exists(path, error)) return;
  throw LinkError(path + " leads to " + target + "; remove the link or choose another port");
}

}  // namespace

std::string portsFolder(const char* configHome, const char* home) {
  if (configHome != nullptr && configHome[0] == '/') return std::string(configHome) + "/korvin/ports";
  if (home != nullptr && home[0] != '\0') return std::string(home) + "/.config/korvin/ports";
  return {};
}

PortLink::PortLink(std::string path) : path_(fs::absolute(std::move(path)).lexically_normal().string()) {
  std::error_code error;
  const fs::path folder = fs::path(path_).parent_path();
  fs::create_directories(folder, error);
  if (error) throw LinkError("cannot make the folder " + folder.string() + ": " + error.message());
  claim();
  refuseForeign(path_);
}

PortLink::~PortLink() {
  remove();
}

// A name in the socket space is free again the moment its process ends, however it ends: no lock file is left
// behind.
void PortLink::claim() {
  claim_ = FileDescriptor(::socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0));
  if (!claim_.valid()) return;
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  const std::string name =
      "korvin-head-" + std::to_string(::getuid()) + "-" + std::to_string(std::hash<std::string>()(path_));
  std::copy(name.begin(), name.end(), address.sun_path + 1);  // the leading NUL makes it a name, not a file
  const auto length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + name.size());
  if (::bind(claim_.get(), reinterpret_cast<const sockaddr*>(&address), length) == 0) return;
  if (errno == EADDRINUSE) throw LinkError("another virtual head serves " + path_);
}

void PortLink::place(const std::string& device) {
  const std::string beside = path_ + ".new-" + std::to_string(::getpid());
  std::error_code error;
  fs::remove(beside, error);
  fs::create_symlink(device, beside, error);
  if (!error) fs::rename(beside, path_, error);
  if (error) {
    std::error_code ignored;
    fs::remove(beside, ignored);
    throw LinkError("cannot link " + path_ + ": " + error.message());
  }
  device_ = device;
}

void PortLink::remove() {
  std::error_code ignored;
  if (!device_.empty() && targetOf(path_) == device_) fs::remove(path_, ignored);
  device_.clear();
}

}  // namespace korvin::head
