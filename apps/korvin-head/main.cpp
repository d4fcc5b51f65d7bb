#include <signal.h>
#include <sys/signalfd.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <iostream>
#include <string>
#include <system_error>
#include <vector>

#include "korvin-head/file_descriptor.h"
#include "korvin-head/head_options.h"
#include "korvin-head/head_server.h"

namespace {

using korvin::head::FaultInfo;
using korvin::head::FileDescriptor;
using korvin::head::HeadOptions;
using korvin::head::HeadServer;
using korvin::head::LinkError;
using korvin::head::OptionError;

/// A descriptor that becomes readable with SIGINT, SIGTERM or SIGHUP, which then end the head in its own
/// time.
FileDescriptor endSignals() {
  sigset_t signals;
  sigemptyset(&signals);
  sigaddset(&signals, SIGINT);
  sigaddset(&signals, SIGTERM);
  struct sigaction hangUp {};
  sigaction(SIGHUP, nullptr, &hangUp);
  if (hangUp.sa_handler != SIG_IGN) sigaddset(&signals, SIGHUP);  // nohup asks to outlive the terminal
  sigprocmask(SIG_BLOCK, &signals, nullptr);
  // A reader that has gone must not end the head, nor a terminal that a background job may not read stop it.
  signal(SIGPIPE, SIG_IGN);
  signal(SIGTTIN, SIG_IGN);
  FileDescriptor descriptor(signalfd(-1, &signals, SFD_CLOEXEC));
  if (!descriptor.valid())
    throw std::system_error(errno, std::generic_category(), "cannot watch for signals");
  return descriptor;
}

/// Tells scripts when the line is there, on standard output and in a file.
class Announcer {
 public:
  explicit Announcer(const HeadOptions& options) : options_(options), label_(options.label()) {}
  ~Announcer() { removeFile(); }
  Announcer(const Announcer&) = delete;
  Announcer& operator=(const Announcer&) = delete;

  void lineChanged(const std::string& device) {
    if (device.empty()) {
      removeFile();
      print("gone " + label_);
      return;
    }
    const std::string line = "ready " + label_ + " " + device;
    writeFile(line);
    print(line);
  }

  void print(const std::string& line) const {
    if (!options_.quiet) std::cout << line << std::endl;
  }

 private:
  /// Written beside and renamed: who waits for the file finds it whole.
  void writeFile(const std::string& line) const {
    if (options_.readyFile.empty()) return;
    const std::string beside = options_.readyFile + ".new";
    std::ofstream file(beside, std::ios::trunc);
    file << line << '\n';
    file.close();
    if (file.fail() || std::rename(beside.c_str(), options_.readyFile.c_str()) != 0) {
      throw std::runtime_error("cannot write " + options_.readyFile);
    }
  }

  void removeFile() const {
    if (!options_.readyFile.empty()) std::remove(options_.readyFile.c_str());
  }

  const HeadOptions& options_;
  std::string label_;
};

std::string summary(const HeadServer& head) {
  const auto& counters = head.counters();
  std::string line = "end requests=" + std::to_string(counters.requests) +
                     " answers=" + std::to_string(counters.answers) +
                     " wrong-check-heard=" + std::to_string(counters.wrongCheck) +
                     " malformed=" + std::to_string(counters.malformed) +
                     " other-head=" + std::to_string(counters.otherHead) +
                     " wrong-speed=" + std::to_string(counters.wrongSpeed);
  for (const FaultInfo& info : korvin::head::faultTable()) {
    const long struck = head.faults().struck().at(static_cast<std::size_t>(info.fault));
    line += " " + std::string(info.name) + "=" + std::to_string(struck);
  }
  return line;
}

void traceLine(double now, std::string_view text) {
  std::fprintf(stderr, "%10.4f  %.*s\n", now, static_cast<int>(text.size()), text.data());
}

void serve(HeadOptions& options) {
  const FileDescriptor stop = endSignals();
  Announcer announcer(options);
  if (options.config.linkPath.empty()) {
    const std::string folder = korvin::head::portsFolder(std::getenv("XDG_CONFIG_HOME"), std::getenv("HOME"));
    if (folder.empty()) throw LinkError("neither XDG_CONFIG_HOME nor HOME is set; use --device-link");
    options.config.linkPath = folder + "/com" + std::to_string(options.port);
  }
  HeadServer head(options.config);
  if (options.trace) head.setTrace(traceLine);
  head.setLineChange([&](const std::string& device) { announcer.lineChanged(device); });
  announcer.lineChanged(head.device());
  head.runUntil(stop.get());
  announcer.print(summary(head));
}

}  // namespace

int main(int argc, char** argv) {
  HeadOptions options;
  try {
    options = korvin::head::parseOptions({argv + 1, argv + argc});
  } catch (const OptionError& error) {
    std::cerr << "korvin-head: " << error.what() << "\nTry korvin-head --help.\n";
    return 2;
  }
  if (options.help) {
    std::cout << korvin::head::helpText();
    return 0;
  }
  if (options.version) {
    std::cout << "korvin-head " KORVIN_VERSION "\n";
    return 0;
  }
  options.config.keysFd = STDIN_FILENO;
  try {
    serve(options);
  } catch (const std::exception& error) {
    std::cerr << "korvin-head: " << error.what() << "\n";
    return 1;
  }
  return 0;
}
