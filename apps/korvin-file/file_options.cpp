#include "korvin-file/file_options.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <functional>
#include <optional>
#include <utility>

namespace korvin::file {
namespace {

constexpr std::array<std::pair<std::string_view, Command>, 5> commands{{{"show", Command::show},
                                                                        {"text", Command::text},
                                                                        {"csv", Command::csv},
                                                                        {"report", Command::report},
                                                                        {"check", Command::check}}};

struct Option {
  std::string_view name;
  bool hasValue;
  std::function<void(FileOptions&, const std::string& value)> take;  // throws with what the value should be
};

template <class Number>
Number numberIn(std::string_view text, Number least, Number most, const std::string& what) {
  Number value{};
  const char* end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, value);
  const bool inRange = value >= least && value <= most;  // also false for a NaN
  if (result.ec != std::errc() || result.ptr != end || !inRange) throw OptionError("needs " + what);
  return value;
}

const std::string& path(const std::string& text) {
  if (text.empty()) throw OptionError("needs a path");
  return text;
}

// A prism that is off by more than a degree is none.
double penta(const std::string& text) {
  return numberIn(text, -3600.0, 3600.0, "an angle in seconds of arc, -3600 to 3600");
}

/// The names between commas.
std::vector<std::string> names(const std::string& text) {
  std::vector<std::string> all;
  std::size_t from = 0;
  for (std::size_t comma = 0; comma != std::string::npos; from = comma + 1) {
    comma = text.find(',', from);
    all.push_back(text.substr(from, comma == std::string::npos ? comma : comma - from));
    if (all.back().empty()) throw OptionError("needs names with commas between");
  }
  return all;
}

const std::vector<Option>& allOptions() {
  static const std::vector<Option> options{
      {"-o", true, [](auto& o, auto& v) { o.output = path(v); }},
      {"--output", true, [](auto& o, auto& v) { o.output = path(v); }},
      {"--json", false, [](auto& o, auto&) { o.json = true; }},
      {"--language", true,
       [](auto& o, auto& v) { o.language = numberIn(v, 0, 7, "the number of a language, 0 to 7"); }},
      {"--dictionary", true, [](auto& o, auto& v) { o.dictionary = path(v); }},
      {"--inch", false, [](auto& o, auto&) { o.inch = true; }},
      {"--penta", true, [](auto& o, auto& v) { o.pentaArcseconds = penta(v); }},
      {"--parts", true, [](auto& o, auto& v) { o.parts = names(v); }},
      {"--help", false, [](auto& o, auto&) { o.help = true; }},
      {"--version", false, [](auto& o, auto&) { o.version = true; }},
  };
  return options;
}

/// An argument taken apart: "-o", "--name" or "--name=value".
struct Argument {
  std::string name;
  std::optional<std::string> value;
};

Argument split(const std::string& text) {
  const auto equals = text.starts_with("--") ? text.find('=') : std::string::npos;
  if (equals == std::string::npos) return {text, std::nullopt};
  return {text.substr(0, equals), text.substr(equals + 1)};
}

const Option& optionNamed(const std::string& name) {
  const auto& options = allOptions();
  const auto found =
      std::find_if(options.begin(), options.end(), [&](const Option& o) { return o.name == name; });
  if (found == options.end()) throw OptionError("unknown option " + name);
  return *found;
}

std::optional<Command> commandNamed(std::string_view name) {
  for (const auto& [known, command] : commands) {
    if (known == name) return command;
  }
  return std::nullopt;
}

/// Goes through the arguments once.
class Parser {
 public:
  explicit Parser(const std::vector<std::string>& arguments)
      : next_(arguments.begin()), end_(arguments.end()) {}

  FileOptions parse() {
    while (next_ != end_ && !parsed_.help && !parsed_.version) {
      const std::string& argument = *next_++;
      if (onlyFiles_ || !argument.starts_with("-") || argument == "-") {
        plain(argument);
      } else if (argument == "--") {
        onlyFiles_ = true;
      } else {
        option(argument);
      }
    }
    if (!parsed_.help && !parsed_.version) checkWhole();
    return parsed_;
  }

 private:
  /// The command, or a file.
  void plain(const std::string& argument) {
    if (!hasCommand_) {
      const auto command = commandNamed(argument);
      if (!command) throw OptionError("unknown command " + argument);
      parsed_.command = *command;
      hasCommand_ = true;
    } else if (argument == "-" || argument.empty()) {
      throw OptionError("a measuring file needs a name: standard input cannot be read");
    } else {
      parsed_.files.push_back(argument);
    }
  }

  void option(const std::string& text) {
    Argument argument = split(text);
    const Option& option = optionNamed(argument.name);
    if (!option.hasValue && argument.value) throw OptionError(argument.name + " takes no value");
    if (option.hasValue && !argument.value) {
      if (next_ == end_) throw OptionError(argument.name + " needs a value");
      argument.value = *next_++;
    }
    try {
      option.take(parsed_, argument.value.value_or(""));
    } catch (const OptionError& error) {
      throw OptionError(argument.name + " " + argument.value.value_or("") + ": " + error.what());
    }
  }

  void checkWhole() const {
    if (!hasCommand_) throw OptionError("needs a command");
    const std::string command(commandName(parsed_.command));
    if (parsed_.files.empty()) throw OptionError(command + " needs a measuring file");
    if (parsed_.json && parsed_.command != Command::show) throw OptionError(command + " knows no --json");
    if (!parsed_.parts.empty() && parsed_.command != Command::report)
      throw OptionError(command + " knows no --parts");
    if (parsed_.output.empty() && parsed_.command == Command::report)
      throw OptionError(command + " needs -o OUT.pdf");
    if (!parsed_.output.empty() && parsed_.command == Command::check)
      throw OptionError(command + " knows no --output");
  }

  std::vector<std::string>::const_iterator next_;
  std::vector<std::string>::const_iterator end_;
  FileOptions parsed_;
  bool hasCommand_ = false;
  bool onlyFiles_ = false;
};

}  // namespace

FileOptions parseOptions(const std::vector<std::string>& arguments) {
  return Parser(arguments).parse();
}

std::string_view commandName(Command command) {
  return std::find_if(commands.begin(), commands.end(),
                      [command](const auto& c) { return c.second == command; })
      ->first;
}

std::vector<std::string> optionNames() {
  std::vector<std::string> names;
  for (const Option& option : allOptions()) names.emplace_back(option.name);
  return names;
}

std::vector<std::string> commandNames() {
  std::vector<std::string> names;
  for (const auto& known : commands) names.emplace_back(known.first);
  return names;
}

}  // namespace korvin::file
