// The position measurement: saving and loading 29999 points against a bare write and read of the same bytes,
// with the flush to the disk left out of both, and adding a point. Prints the ratios of this run.
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <new>
#include <vector>

#include "frame/layout.h"
#include "frame/memory_settings_tree.h"
#include "frame/posix_file_system.h"
#include "position/position_file.h"

namespace {

std::size_t allocations = 0;

}  // namespace

void* operator new(std::size_t size) {
  ++allocations;
  if (void* memory = std::malloc(size)) return memory;
  throw std::bad_alloc();
}
void operator delete(void* memory) noexcept {
  std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}

namespace korvin {
namespace {

namespace fs = std::filesystem;

/// The system without the flush, which costs what the disk costs.
class UnflushedFileSystem : public PosixFileSystem {
 public:
  int sync(int) override { return 0; }
  int syncFolder(const std::string&) override { return 0; }
};

class NoMessages : public MessagePort {
 public:
  MessageAnswer show(const Meldung& message, MessageIcon, MessageButtons) override {
    std::fprintf(stderr, "%s\n%s\n", message.MsgTitel.c_str(), message.MsgText.c_str());
    std::exit(1);
  }
  void beep() override {}
};

class NoTexts : public Dictionary {
 public:
  std::string DicText(std::int16_t) override { return {}; }
};

/// Median time of `runs` calls in microseconds.
double median(int runs, const std::function<void()>& work) {
  std::vector<double> times;
  for (int i = 0; i < runs; ++i) {
    const auto start = std::chrono::steady_clock::now();
    work();
    times.push_back(
        std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start).count());
  }
  std::nth_element(times.begin(), times.begin() + runs / 2, times.end());
  return times[static_cast<std::size_t>(runs / 2)];
}

void bareWrite(const std::string& path, const std::vector<char>& bytes) {
  // The peer, too, writes beside and renames: that much is the least of a safe save.
  const std::string fresh = path + ".new";
  const int file = ::open(fresh.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0666);
  if (::write(file, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size())) std::abort();
  ::close(file);
  ::rename(fresh.c_str(), path.c_str());
}

void bareRead(const std::string& path, std::vector<char>& bytes) {
  const int file = ::open(path.c_str(), O_RDONLY);
  if (::read(file, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size())) std::abort();
  ::close(file);
}

void fill(FORMPOS& formpos, int count) {
  formpos.messungLoeschen();
  formpos.Info().RestMP = -1;
  for (int i = 0; i < count; ++i) {
    formpos.arbeit().X.Aktuell = i * 0.001;
    formpos.arbeit().Y.Aktuell = -i * 0.001;
    formpos.punktHinzufuegen(45000 + i * 1e-5);
  }
}

void adding(FORMPOS& formpos) {
  const std::size_t before = allocations;
  fill(formpos, MaxPunkteO);
  const std::size_t made = allocations - before;
  const double all = median(20, [&] { fill(formpos, MaxPunkteO); });
  const double clearing = median(20, [&] { formpos.messungLoeschen(); });
  std::printf("adding a point: %.1f ns (aim: under 50), %zu allocations in %d points (aim: 0)\n",
              (all - clearing) * 1000 / MaxPunkteO, made, MaxPunkteO);
}

void files(FORMPOS& formpos) {
  const fs::path folder = fs::temp_directory_path() / ("korvin-bench-" + std::to_string(::getpid()));
  fs::create_directory(folder);
  const std::string name = (folder / "a.O").string();
  UnflushedFileSystem system;
  NoMessages messages;
  NoTexts texts;
  Meldung meldung;
  MemorySettingsTree tree;
  Profil profil{tree};
  PositionsDateien store({system, messages, meldung, texts, profil, formpos});
  fill(formpos, MaxPunkteO);

  std::vector<char> head(789);
  std::vector<char> points(24 * (MaxPunkteO + 1));
  constexpr int runs = 200;
  const double save = median(runs, [&] { store.o_DateiSpeichern(name); });
  const double bareSave = median(runs, [&] {
    bareWrite(name + "x", head);
    bareWrite(name + "y", points);
  });
  const double load = median(runs, [&] { store.o_DateiLaden(name); });
  const double bareLoad = median(runs, [&] {
    bareRead(name, head);
    bareRead(name + "1", points);
  });
  std::printf("saving 29999 points: %.0f us, bare %.0f us, ratio %.2f (aim: 1.3)\n", save, bareSave,
              save / bareSave);
  std::printf("loading 29999 points: %.0f us, bare %.0f us, ratio %.2f (aim: 1.3)\n", load, bareLoad,
              load / bareLoad);
  fs::remove_all(folder);
}

}  // namespace
}  // namespace korvin

int main() {
  korvin::FORMPOS formpos;
  korvin::adding(formpos);
  korvin::files(formpos);
}
