// From the start of the process to the first painted window: the program's whole station against a bare
// main window, in turns. Each start is a process of its own (the first is this program with "--station"), on
// Qt's platform without a screen, with settings as an earlier start has left them.
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <vector>

#include "first_window.h"
#include "korvin/application.h"
#include "korvin/station.h"

namespace {

namespace fs = std::filesystem;

constexpr int rounds = 25;

int showStation(int argc, char** argv) {
  if (!korvin::preparePlatform()) return EXIT_FAILURE;
  const korvin::Application application(argc, argv);
  const EndAtFirstWindow end;
  korvin::Station station(korvin::folderEnvironment(), korvin::desktopAppearance());
  return station.start() ? korvin::Application::exec() : EXIT_FAILURE;
}

/// Milliseconds of the process that `arguments` tell.
double lifetime(std::vector<std::string> arguments) {
  std::vector<char*> pointers;
  for (std::string& argument : arguments) pointers.push_back(argument.data());
  pointers.push_back(nullptr);
  // The platform without a screen complains of every window.
  posix_spawn_file_actions_t quiet;
  posix_spawn_file_actions_init(&quiet);
  posix_spawn_file_actions_addopen(&quiet, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
  const auto start = std::chrono::steady_clock::now();
  pid_t child = 0;
  int status = -1;
  if (posix_spawn(&child, pointers.front(), &quiet, nullptr, pointers.data(), environ) != 0 ||
      waitpid(child, &status, 0) != child || status != 0) {
    std::fprintf(stderr, "%s did not show a window\n", pointers.front());
    std::exit(EXIT_FAILURE);
  }
  posix_spawn_file_actions_destroy(&quiet);
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

double median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

void compare(const std::string& self) {
  std::vector<double> station;
  std::vector<double> bare;
  std::vector<double> ratios;
  lifetime({self, "--station"});
  lifetime({KORVIN_BIN "/bench_start_bare"});
  for (int i = 0; i < rounds; ++i) {
    bare.push_back(lifetime({KORVIN_BIN "/bench_start_bare"}));
    station.push_back(lifetime({self, "--station"}));
    ratios.push_back(station.back() / bare.back());
  }
  std::printf("start to first window: %.0f ms, bare main window %.0f ms, ratio %.2f\n", median(station),
              median(bare), median(ratios));
}

/// Folders of this run only, so that the user's settings stay as they are.
class OwnFolders {
 public:
  OwnFolders() : path_(fs::temp_directory_path() / ("korvin-bench-start-" + std::to_string(::getpid()))) {
    fs::create_directory(path_);
    for (const char* variable : {"XDG_CONFIG_HOME", "XDG_DATA_HOME"}) ::setenv(variable, path_.c_str(), 1);
    ::setenv("QT_QPA_PLATFORM", "offscreen", 0);
    // Settings of an earlier start: a first one tells about the new settings before it shows its window.
    korvin::SqliteSettingsTree tree(path_ / "korvin" / "settings.db");
    korvin::KorRegistry(tree).RegistryAnlegen(path_.string());
  }
  ~OwnFolders() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
  }
  OwnFolders(const OwnFolders&) = delete;
  OwnFolders& operator=(const OwnFolders&) = delete;

 private:
  fs::path path_;
};

}  // namespace

int main(int argc, char** argv) {
  if (argc > 1 && std::string(argv[1]) == "--station") return showStation(argc, argv);
  const OwnFolders folders;
  compare(fs::read_symlink("/proc/self/exe").string());
}
