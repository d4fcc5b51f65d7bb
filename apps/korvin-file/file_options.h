#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace korvin::file {

/// Says what is wrong with the command line, in words for the user.
struct OptionError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

enum class Command { show, text, csv, report, check };

/// What the command line asks for.
struct FileOptions {
  Command command = Command::show;
  std::vector<std::string> files;  ///< at least one, unless help or version is asked for
  std::string output;              ///< empty or "-": standard output
  bool json = false;
  int language = 0;        ///< 0 to 7, in the order of the dictionary's columns
  std::string dictionary;  ///< empty: where the program has it
  bool inch = false;
  double pentaArcseconds = 0;
  std::vector<std::string> parts;  ///< of the report; none: all
  bool help = false;
  bool version = false;

  bool toStandardOutput() const { return output.empty() || output == "-"; }
};

/// Reads the arguments (without the program's name): a command, then files and options in any order; a value
/// stands behind its option or after an equals sign; behind "--" all are files. Throws `OptionError`.
FileOptions parseOptions(const std::vector<std::string>& arguments);

/// "csv".
std::string_view commandName(Command command);

/// Names of all options, with their dashes, and of all commands; for the help's own test.
std::vector<std::string> optionNames();
std::vector<std::string> commandNames();

/// The manual page as text.
std::string helpText();

}  // namespace korvin::file
