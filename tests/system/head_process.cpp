#include "system/head_process.h"

#include <signal.h>

#include <sstream>
#include <stdexcept>

namespace korvin::test {
namespace {

std::vector<std::string> withPort(int port, const std::vector<std::string>& options) {
  std::vector<std::string> all{"--port", std::to_string(port)};
  all.insert(all.end(), options.begin(), options.end());
  return all;
}

}  // namespace

HeadProcess::HeadProcess(const std::filesystem::path& configHome, int port,
                         const std::vector<std::string>& options)
    : program_("korvin-head", withPort(port, options), {"XDG_CONFIG_HOME=" + configHome.string()}) {
  if (!program_.readLine().starts_with("ready ")) throw std::runtime_error("the head did not come up");
}

std::map<std::string, long> HeadProcess::end() {
  program_.sendSignal(SIGTERM);
  std::string line;
  do {
    line = program_.readLine();
    if (line.empty()) throw std::runtime_error("the head did not tell its end");
  } while (!line.starts_with("end "));
  program_.wait();
  std::map<std::string, long> counted;
  std::istringstream words(line.substr(4));
  for (std::string word; words >> word;) {
    const auto equals = word.find('=');
    counted[word.substr(0, equals)] = std::stol(word.substr(equals + 1));
  }
  return counted;
}

}  // namespace korvin::test
