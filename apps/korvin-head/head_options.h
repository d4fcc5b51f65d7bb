#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "korvin-head/head_server.h"

namespace korvin::head {

/// Says what is wrong with the command line, in words for the user.
struct OptionError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// What the command line asks for.
struct HeadOptions {
  HeadConfig config;  ///< `linkPath` is empty unless --device-link tells it; `keysFd` is set by the caller
  int port = 1;
  std::string readyFile;
  bool trace = false;
  bool quiet = false;
  bool help = false;
  bool version = false;

  /// "7", or the path of --device-link.
  std::string label() const { return config.linkPath.empty() ? std::to_string(port) : config.linkPath; }
};

/// Reads the arguments (without the program's name), "--name value" or "--name=value". Reads the key script,
/// too. Throws `OptionError`.
HeadOptions parseOptions(const std::vector<std::string>& arguments);

/// Names of all options, with their "--"; for the help's own test.
std::vector<std::string> optionNames();

/// The manual page as text.
std::string helpText();

}  // namespace korvin::head
