#include "korvin-head/head_options.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <fstream>
#include <functional>
#include <optional>

namespace korvin::head {

namespace {

using Take = std::function<void(HeadOptions&, const std::string& value)>;

struct Option {
  std::string name;
  bool hasValue;
  Take take;  // throws OptionError with what the value should be
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

char character(const std::string& text) {
  if (text.size() != 1 || text[0] <= ' ' || text[0] > '~')
    throw OptionError("needs one visible ASCII character");
  return text[0];
}

Spot pair(const std::string& text, double limit) {
  const std::string what = "two numbers, X,Y, from -" + std::to_string(std::lround(limit)) + " to " +
                           std::to_string(std::lround(limit));
  const auto comma = text.find(',');
  if (comma == std::string::npos) throw OptionError("needs " + what);
  return {numberIn(std::string_view(text).substr(0, comma), -limit, limit, what),
          numberIn(std::string_view(text).substr(comma + 1), -limit, limit, what)};
}

double noise(std::string_view text) {
  return numberIn(text, 0.0, 10000.0, "a noise in um, 0 to 10000");
}

void setLine(HeadOptions& options, const std::string& text) {
  const std::string what = "three numbers, TILT,BOW,NOISE, the first two from -1000 to 1000";
  const auto first = text.find(',');
  const auto second = first == std::string::npos ? first : text.find(',', first + 1);
  if (second == std::string::npos) throw OptionError("needs " + what);
  const std::string_view all = text;
  const LineShape shape{numberIn(all.substr(0, first), -1000.0, 1000.0, what),
                        numberIn(all.substr(first + 1, second - first - 1), -1000.0, 1000.0, what)};
  options.config.head.noiseUm = noise(all.substr(second + 1));
  options.config.guideway = shape;
}

void setCircle(HeadOptions& options, const std::string& text) {
  const std::string what = "two numbers, RADIUS,POSITIONS, in mm from 0 to 100 and from 1 to 360";
  const auto comma = text.find(',');
  if (comma == std::string::npos) throw OptionError("needs " + what);
  const std::string_view all = text;
  options.config.circle = {numberIn(all.substr(0, comma), 0.0, 100.0, what),
                           numberIn(all.substr(comma + 1), 1, 360, what)};
}

double seconds(const std::string& text) {
  return numberIn(text, 0.0, 86400.0, "a time in seconds, 0 to 86400");
}

double position(const std::string& text) {
  return numberIn(text, -100.0, 100.0, "a length in mm, -100 to 100");
}

std::vector<ScriptedKey> scriptFrom(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::string text;
  for (std::string line; std::getline(file, line);) text += line + '\n';
  if (!file.is_open() || file.bad()) throw OptionError("cannot read " + path);
  try {
    return parseKeyScript(text);
  } catch (const ScriptError& error) {
    throw OptionError(path + ", " + error.what());
  }
}

long baud(const std::string& text) {
  if (text == "19200") return 19200;
  if (text == "115200") return 115200;
  throw OptionError("needs 19200 or 115200");
}

int modulus(const std::string& text) {
  if (text == "95") return 95;
  if (text == "223") return 223;
  throw OptionError("needs 95 or 223");
}

void setSeed(HeadOptions& options, const std::string& text) {
  const auto seed = numberIn<std::uint64_t>(text, 0, UINT64_MAX, "a whole number from 0");
  options.config.head.seed = seed;
  options.config.faults.seed = seed;
}

std::vector<Option> lineOptions() {
  return {
      {"--port", true, [](auto& o, auto& v) { o.port = numberIn(v, 1, 999, "a port number, 1 to 999"); }},
      {"--device-link", true,
       [](auto& o, auto& v) {
         if (v.empty()) throw OptionError("needs a path");
         o.config.linkPath = v;
       }},
      {"--baud", true, [](auto& o, auto& v) { o.config.line.baud = baud(v); }},
      {"--modulus", true, [](auto& o, auto& v) { o.config.line.modulus = modulus(v); }},
      {"--class", true, [](auto& o, auto& v) { o.config.head.headClass = character(v); }},
      {"--id", true, [](auto& o, auto& v) { o.config.head.id = character(v); }},
      {"--time-scale", true,
       [](auto& o, auto& v) { o.config.head.timeScale = numberIn(v, 0.0, 100.0, "a factor, 0 to 100"); }},
  };
}

std::vector<Option> beamOptions() {
  return {
      {"--x", true, [](auto& o, auto& v) { o.config.start.xMm = position(v); }},
      {"--y", true, [](auto& o, auto& v) { o.config.start.yMm = position(v); }},
      {"--drift", true, [](auto& o, auto& v) { o.config.driftMmPerHour = pair(v, 10000); }},
      {"--noise", true, [](auto& o, auto& v) { o.config.head.noiseUm = noise(v); }},
      {"--line", true, setLine},
      {"--circle", true, setCircle},
      {"--intensity", true,
       [](auto& o, auto& v) {
         o.config.head.intensity = numberIn(v, 0, 99, "an intensity in percent, 0 to 99");
       }},
      {"--battery-low", false, [](auto& o, auto&) { o.config.head.batteryLowAfter = 0; }},
      {"--battery-low-after", true, [](auto& o, auto& v) { o.config.head.batteryLowAfter = seconds(v); }},
      {"--keys", true, [](auto& o, auto& v) { o.config.keyScript = scriptFrom(v); }},
      {"--key-hold", true, [](auto& o, auto& v) { o.config.keyHoldSeconds = seconds(v); }},
      {"--seed", true, setSeed},
  };
}

std::vector<Option> faultOptions() {
  std::vector<Option> options;
  for (const FaultInfo& info : faultTable()) {
    options.push_back(
        {"--" + std::string(info.name), true, [fault = info.fault](HeadOptions& o, const std::string& v) {
           const auto dose = parseDose(v);
           if (!dose) throw OptionError("needs a rate from 0 to 1 or a count as 3x, and may end in @K");
           o.config.faults.dose(fault) = *dose;
         }});
  }
  options.push_back({"--late-time", true, [](auto& o, auto& v) { o.config.faults.times.late = seconds(v); }});
  options.push_back(
      {"--split-pause", true, [](auto& o, auto& v) { o.config.faults.times.splitPause = seconds(v); }});
  options.push_back(
      {"--hang-up-time", true, [](auto& o, auto& v) { o.config.faults.times.hangUp = seconds(v); }});
  return options;
}

std::vector<Option> programOptions() {
  return {
      {"--ready-file", true,
       [](auto& o, auto& v) {
         if (v.empty()) throw OptionError("needs a path");
         o.readyFile = v;
       }},
      {"--trace", false, [](auto& o, auto&) { o.trace = true; }},
      {"--quiet", false, [](auto& o, auto&) { o.quiet = true; }},
      {"--help", false, [](auto& o, auto&) { o.help = true; }},
      {"--version", false, [](auto& o, auto&) { o.version = true; }},
  };
}

const std::vector<Option>& allOptions() {
  static const std::vector<Option> options = [] {
    std::vector<Option> all;
    for (auto group : {lineOptions(), beamOptions(), faultOptions(), programOptions()}) {
      all.insert(all.end(), group.begin(), group.end());
    }
    return all;
  }();
  return options;
}

/// An argument taken apart: "--name" or "--name=value".
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
  if (found != options.end()) return *found;
  throw OptionError((name.starts_with("-") ? "unknown option " : "unexpected argument ") + name);
}

}  // namespace

HeadOptions parseOptions(const std::vector<std::string>& arguments) {
  HeadOptions parsed;
  for (auto next = arguments.begin(); next != arguments.end(); ++next) {
    Argument argument = split(*next);
    const Option& option = optionNamed(argument.name);
    if (!option.hasValue && argument.value) throw OptionError(option.name + " takes no value");
    if (option.hasValue && !argument.value) {
      if (next + 1 == arguments.end()) throw OptionError(option.name + " needs a value");
      argument.value = *++next;
    }
    try {
      option.take(parsed, argument.value.value_or(""));
    } catch (const OptionError& error) {
      throw OptionError(option.name + " " + argument.value.value_or("") + ": " + error.what());
    }
    if (parsed.help || parsed.version) break;
  }
  return parsed;
}

std::vector<std::string> optionNames() {
  std::vector<std::string> names;
  for (const Option& option : allOptions()) names.push_back(option.name);
  return names;
}

}  // namespace korvin::head
