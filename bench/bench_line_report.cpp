// The straightness report of the longest line, 201 points, with all its parts (a page with both diagrams,
// three pages of tables) as a PDF: its time against half a second, which is the aim, and against a bare
// QPdfWriter that writes the same texts and lines at the same places, in turns. Its first one, which looks
// for the fonts, beside.
#include <QGuiApplication>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <string>

#include "bare_pdf.h"
#include "frame/clock.h"
#include "frame/sprache.h"
#include "frame/sqlite_dictionary.h"
#include "in_turns.h"
#include "reports/gerad_bericht.h"
#include "reports/ui/pdf_document.h"
#include "straightness/auswertung.h"
#include "straightness/formgera.h"

namespace korvin {
namespace {

constexpr int rounds = 21;
constexpr double aim = 500;  // ms

class EndOfBench : public ProgramEnd {
 public:
  [[noreturn]] void end(const std::string& systemText, long /*number*/) override {
    std::fprintf(stderr, "%s\n", systemText.c_str());
    std::exit(EXIT_FAILURE);
  }
};

/// A bowed line with some noise and a few open points, with all its lines shown.
GeradReihe longestLine() {
  GeradReihe series;
  series.Linie.AnzMPs = MaxPunkteG;
  series.Linie.Distanz = 20000;
  ReiheLeeren(series);
  for (std::size_t i = 1; i <= series.X.Wert.anzahl(); ++i) {
    const auto share = static_cast<double>(i) / MaxPunkteG;
    series.X.Wert.at(i) = 0.05 * std::sin(6.28 * share) + 0.0003 * static_cast<double>(i * 7919 % 13);
    series.Y.Wert.at(i) =
        i % 40 == 0 ? Leerwert : 0.02 * share + 0.0005 * static_cast<double>(i * 104729 % 17);
  }
  series.X.Gesamt = series.Y.Gesamt = 0.06;
  series.X.ProEinheit = series.Y.ProEinheit = 1000;
  GeradInfo& info = series.Info;
  info.Auswertung = AuswertungISO;
  info.NKStellen = 3;
  info.SFak = 2;
  info.Gitter = info.ZeigeMittel = info.ZeigeStreuung = info.ZeigeSpanne = info.ZeigeAbschnitt = true;
  return series;
}

void run() {
  const std::string language = SpalteDeutsch;
  EndOfBench end;
  SqliteDictionary dictionary(language, end);
  dictionary.DicOeffnen(KORVIN_BIN "/korvin.mdb");
  const SystemClock clock;
  const GeradReihe series = longestLine();
  std::size_t bytes = 0;
  // From the series to the bytes of the file, as a user's click has it done.
  const auto ours = [&] {
    ByteBlocks pdf;
    renderPdf(geradBericht({series, dictionary, clock, 0, "Bahn.G"}, {true, true, true, true}), 0, {}, pdf);
    bytes = pdf.byteCount();
  };
  const double first = microseconds(ours) / 1000;
  const BareReport bare =
      bareReport(geradBericht({series, dictionary, clock, 0, "Bahn.G"}, {true, true, true, true}));
  std::size_t marks = 0;
  for (const BarePage& page : bare.pages) marks += page.texts.size() + page.lines.size();
  const auto times = inTurns(rounds, {ours, [&bare] { writeBare(bare, true); }});
  const double own = times[0] / 1000;
  std::printf("%zu pages, %zu marks, %zu bytes: %.1f ms, the first %.1f ms\n", bare.pages.size(), marks,
              bytes, own, first);
  std::printf("against half a second: ratio %.3f, the first %.3f (aim: below 1)\n", own / aim, first / aim);
  std::printf("bare writer, texts and lines: %.1f ms, ratio %.2f\n", times[1] / 1000, times[0] / times[1]);
}

}  // namespace
}  // namespace korvin

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  korvin::run();
}
