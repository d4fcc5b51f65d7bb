// The report of the longest position measurement, 29999 points on 834 pages of tables, as a PDF: time against
// a bare QPdfWriter that writes the same texts at the same places, and the same with its rules, in turns; and
// the memory that is taken beyond the bytes of the file.
#include <malloc.h>

#include <QGuiApplication>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "bare_pdf.h"
#include "frame/clock.h"
#include "frame/sprache.h"
#include "frame/sqlite_dictionary.h"
#include "position/formpos.h"
#include "reports/positions_bericht.h"
#include "reports/seiten_zahl.h"
#include "reports/ui/pdf_document.h"

namespace korvin {
namespace {

constexpr int rounds = 7;

class EndOfBench : public ProgramEnd {
 public:
  [[noreturn]] void end(const std::string& systemText, long /*number*/) override {
    std::fprintf(stderr, "%s\n", systemText.c_str());
    std::exit(EXIT_FAILURE);
  }
};

void measure(FORMPOS& formpos, int points) {
  formpos.messungLoeschen();
  formpos.Info().RestMP = -1;
  formpos.Info().NKStellen = 3;
  for (int i = 1; i <= points; ++i) {
    formpos.arbeit().X.Aktuell = (i * 7919 % 20011 - 10000) * 0.0001;
    formpos.arbeit().Y.Aktuell = (i * 104729 % 20011 - 10000) * 0.0001;
    formpos.punktHinzufuegen(45000 + i / 8640.0);
  }
}

// ---- Measuring ----

double milliseconds(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
}

double median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

void times(const Bericht& bericht) {
  const BareReport bare = bareReport(bericht);
  std::vector<double> ours;
  std::vector<double> texts;
  std::vector<double> rules;
  std::vector<double> counting;
  std::size_t bytes = 0;
  std::size_t bareBytes = 0;
  for (int i = 0; i < rounds; ++i) {
    texts.push_back(milliseconds([&] { writeBare(bare, false); }));
    ours.push_back(milliseconds([&] {
      ByteBlocks pdf;
      renderPdf(bericht, 0, {}, pdf);
      bytes = pdf.byteCount();
    }));
    rules.push_back(milliseconds([&] { bareBytes = writeBare(bare, true); }));
    counting.push_back(milliseconds([&] { SeitenZahl(bericht); }));
  }
  std::printf("%zu pages: %.0f ms, %zu bytes\n", bare.pages.size(), median(ours), bytes);
  std::printf("bare writer, the texts: %.0f ms, ratio %.2f (aim: 1.2)\n", median(texts),
              median(ours) / median(texts));
  std::printf("bare writer, texts and rules: %.0f ms, %zu bytes, ratio %.2f\n", median(rules), bareBytes,
              median(ours) / median(rules));
  std::printf("counting the pages: %.0f ms\n", median(counting));
}

std::size_t liveBytes() {
  const struct mallinfo2 info = ::mallinfo2();
  return info.uordblks + info.hblkhd;
}

/// The most memory that was in use beyond the bytes of the file so far.
void memory(const char* what, const Bericht& bericht) {
  ByteBlocks warm;
  renderPdf(bericht, 0, {}, warm);
  const std::size_t before = liveBytes();
  long most = 0;
  ByteBlocks pdf;
  renderPdf(
      bericht, 0,
      [&](int) { most = std::max(most, static_cast<long>(liveBytes() - before - pdf.byteCount())); }, pdf);
  std::printf("memory beyond the %zu bytes of the file, %s: at most %.2f MB\n", pdf.byteCount(), what,
              static_cast<double>(most) / 1e6);
}

void preview(const Bericht& bericht) {
  const std::size_t before = liveBytes();
  TextShaper shaper(0);
  std::vector<PageMarks> pages;
  const double time = milliseconds([&] { pages = composedPages(bericht, shaper, {}); });
  std::printf("all pages for the preview: %.0f ms, %.1f MB\n", time,
              static_cast<double>(liveBytes() - before) / 1e6);
}

void run() {
  const std::string language = SpalteDeutsch;
  EndOfBench end;
  SqliteDictionary dictionary(language, end);
  dictionary.DicOeffnen(KORVIN_BIN "/korvin.mdb");
  const SystemClock clock;
  FORMPOS formpos;
  const auto report = [&](int points) {
    measure(formpos, points);
    return positionsBericht({formpos.arbeit(), formpos.punkte(), dictionary, clock, 0, "Welle.O"},
                            {false, true, true});
  };
  const Bericht tenth = report(2980);
  const Bericht longest = report(29999);
  times(longest);
  memory("83 pages", tenth);
  memory("834 pages", longest);
  preview(longest);
}

}  // namespace
}  // namespace korvin

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  korvin::run();
}
