#include "korvin-head/head_options.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace korvin::head {
namespace {

using ::testing::HasSubstr;

std::string complaint(const std::vector<std::string>& arguments) {
  try {
    parseOptions(arguments);
  } catch (const OptionError& error) {
    return error.what();
  }
  return "none";
}

TEST(Options, DefaultsAreASmallNewHeadOnPortOne) {
  const HeadOptions options = parseOptions({});
  EXPECT_EQ(options.label(), "1");
  EXPECT_EQ(options.config.line.baud, 115200);
  EXPECT_EQ(options.config.line.modulus, 223);
  EXPECT_EQ(options.config.head.headClass, '1');
  EXPECT_FALSE(options.quiet || options.trace || options.help);
}

TEST(Options, EachReachesItsPlace) {
  const HeadOptions options = parseOptions({"--port",
                                            "7",
                                            "--baud=19200",
                                            "--modulus",
                                            "95",
                                            "--class",
                                            "2",
                                            "--id=4",
                                            "--x",
                                            "1.5",
                                            "--y",
                                            "-0.25",
                                            "--line",
                                            "12,-2.5,0.25",
                                            "--circle",
                                            "0.75,3",
                                            "--drift",
                                            "-1,2.5",
                                            "--noise",
                                            "2",
                                            "--seed",
                                            "42",
                                            "--intensity",
                                            "60",
                                            "--battery-low-after",
                                            "8",
                                            "--key-hold=0.3",
                                            "--time-scale",
                                            "0.1",
                                            "--silence=0.5",
                                            "--double",
                                            "3x@9",
                                            "--late-time",
                                            "2",
                                            "--split-pause",
                                            "0.1",
                                            "--hang-up-time",
                                            "5",
                                            "--trace",
                                            "--quiet",
                                            "--ready-file",
                                            "r"});
  EXPECT_EQ(options.label(), "7");
  const HeadConfig& config = options.config;
  EXPECT_EQ(config.line.baud, 19200);
  EXPECT_EQ(config.line.modulus, 95);
  EXPECT_EQ(config.head.headClass, '2');
  EXPECT_EQ(config.head.id, '4');
  EXPECT_EQ(config.start.xMm, 1.5);
  EXPECT_EQ(config.start.yMm, -0.25);
  EXPECT_EQ(config.guideway.tiltUm, 12);
  EXPECT_EQ(config.guideway.bowUm, -2.5);
  EXPECT_EQ(config.circle.radiusMm, 0.75);
  EXPECT_EQ(config.circle.positions, 3);
  EXPECT_EQ(config.driftMmPerHour.xMm, -1);
  EXPECT_EQ(config.driftMmPerHour.yMm, 2.5);
  EXPECT_EQ(config.head.noiseUm, 2);
  EXPECT_EQ(config.head.seed, 42U);
  EXPECT_EQ(config.faults.seed, 42U);
  EXPECT_EQ(config.head.intensity, 60);
  EXPECT_EQ(config.head.batteryLowAfter, 8);
  EXPECT_EQ(config.keyHoldSeconds, 0.3);
  EXPECT_EQ(config.head.timeScale, 0.1);
  EXPECT_EQ(config.faults.doses.at(static_cast<std::size_t>(Fault::silence)).rate, 0.5);
  EXPECT_EQ(config.faults.doses.at(static_cast<std::size_t>(Fault::doubled)).count, 3);
  EXPECT_EQ(config.faults.doses.at(static_cast<std::size_t>(Fault::doubled)).skip, 9);
  EXPECT_EQ(config.faults.times.late, 2);
  EXPECT_EQ(config.faults.times.splitPause, 0.1);
  EXPECT_EQ(config.faults.times.hangUp, 5);
  EXPECT_TRUE(options.trace && options.quiet);
  EXPECT_EQ(options.readyFile, "r");
  EXPECT_EQ(parseOptions({"--battery-low"}).config.head.batteryLowAfter, 0);
  EXPECT_EQ(parseOptions({"--device-link=/tmp/x"}).label(), "/tmp/x");
}

TEST(Options, WrongOnesAreNamedWithWhatTheyNeed) {
  EXPECT_EQ(complaint({"--colour"}), "unknown option --colour");
  EXPECT_EQ(complaint({"7"}), "unexpected argument 7");
  EXPECT_EQ(complaint({"--port"}), "--port needs a value");
  EXPECT_EQ(complaint({"--trace=1"}), "--trace takes no value");
  EXPECT_EQ(complaint({"--port", "0"}), "--port 0: needs a port number, 1 to 999");
  EXPECT_THAT(complaint({"--port", "7x"}), HasSubstr("needs a port number"));
  EXPECT_THAT(complaint({"--baud", "9600"}), HasSubstr("needs 19200 or 115200"));
  EXPECT_THAT(complaint({"--modulus", "96"}), HasSubstr("needs 95 or 223"));
  EXPECT_THAT(complaint({"--class", "12"}), HasSubstr("one visible"));
  EXPECT_THAT(complaint({"--id", ""}), HasSubstr("one visible"));
  EXPECT_THAT(complaint({"--x", "nan"}), HasSubstr("length in mm"));
  EXPECT_THAT(complaint({"--y", "1,5"}), HasSubstr("length in mm"));
  EXPECT_THAT(complaint({"--drift", "1"}), HasSubstr("two numbers"));
  for (const char* wrong : {"1", "1,2", "1,2,-1", "1,2000,0", "a,b,c", "1,2,3,4"})
    EXPECT_THAT(complaint({"--line", wrong}), HasSubstr("--line " + std::string(wrong))) << wrong;
  for (const char* wrong : {"1", "-1,4", "1,0", "1,4.5", "1,361", "101,4", "1,2,3"})
    EXPECT_THAT(complaint({"--circle", wrong}), HasSubstr("--circle " + std::string(wrong))) << wrong;
  EXPECT_THAT(complaint({"--noise", "-1"}), HasSubstr("noise in um"));
  EXPECT_THAT(complaint({"--intensity", "100"}), HasSubstr("0 to 99"));
  EXPECT_THAT(complaint({"--time-scale", "inf"}), HasSubstr("0 to 100"));
  EXPECT_THAT(complaint({"--seed", "-1"}), HasSubstr("whole number"));
  EXPECT_THAT(complaint({"--flip", "2"}), HasSubstr("rate from 0 to 1"));
  EXPECT_THAT(complaint({"--late-time", "soon"}), HasSubstr("time in seconds"));
  EXPECT_THAT(complaint({"--device-link="}), HasSubstr("needs a path"));
  EXPECT_THAT(complaint({"--keys", "/nowhere/keys"}), HasSubstr("cannot read /nowhere/keys"));
  EXPECT_THAT(complaint({"--keys", "/"}), HasSubstr("cannot read /"));
}

TEST(Options, AKeyScriptIsReadFromItsFile) {
  const auto path = std::filesystem::temp_directory_path() / ("korvin-keys-" + std::to_string(::getpid()));
  std::ofstream(path) << "1 M\n2 Q\n";
  EXPECT_THAT(complaint({"--keys", path}), HasSubstr("line 2: no key"));
  std::ofstream(path) << "1 M\n2 J";
  EXPECT_EQ(parseOptions({"--keys", path}).config.keyScript.size(), 2U);
  std::filesystem::remove(path);
}

/// Whether `text` has `name` not merely as the beginning of a longer option.
bool names(const std::string& text, const std::string& name) {
  for (auto at = text.find(name); at != std::string::npos; at = text.find(name, at + 1)) {
    const char next = at + name.size() < text.size() ? text[at + name.size()] : ' ';
    if (next != '-' && (next < 'a' || next > 'z')) return true;
  }
  return false;
}

TEST(Options, HelpAndManualPageNameEveryOption) {
  std::ifstream file(KORVIN_SOURCE "/docs/man/korvin-head.1");
  std::ostringstream page;
  page << file.rdbuf();
  std::string manual;
  for (const char c : page.str()) {
    if (c != '\\') manual += c;
  }
  for (const std::string& name : optionNames()) {
    EXPECT_TRUE(names(helpText(), name)) << name;
    EXPECT_TRUE(names(manual, name)) << name;
  }
}

TEST(Options, HelpFitsATerminalOfEightyColumns) {
  std::istringstream lines(helpText());
  for (std::string line; std::getline(lines, line);) EXPECT_LE(line.size(), 79U) << line;
}

}  // namespace
}  // namespace korvin::head
