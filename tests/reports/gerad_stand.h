#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <initializer_list>
#include <string>

#include "frame/posix_file_system.h"
#include "reports/gerad_bericht.h"
#include "straightness/auswertung.h"
#include "straightness/formgera.h"
#include "straightness/straightness_reader.h"
#include "support/recording_drucker.h"
#include "support/test_clock.h"
#include "support/test_files.h"
#include "support/test_ports.h"

namespace korvin::test {

/// A straightness series and the paper that its report is printed on. Texts read "D3057" and so on.
class GeradStand : public ::testing::Test {
 protected:
  GeradStand() {
    series.Info.NKStellen = 2;
    series.Info.SFak = 2;
    series.Info.Gitter = true;
    series.Info.Filter = "2";
    series.Info.Auswertung = AuswertungROH;
    clock.setNow(40000.25);  // 6 July 2009, 06:00
  }

  /// Points at even distances over 1000 mm with these readings in X, and half of them in Y.
  void readings(std::initializer_list<double> values) {
    line(static_cast<std::int16_t>(values.size()));
    std::size_t i = 0;
    for (const double value : values) {
      series.X.Wert.at(++i) = value;
      series.Y.Wert.at(i) = value == Leerwert ? value : value / 2;
    }
  }
  /// Points at distances of 100 mm, readings X i/1000, Y -i/500.
  void points(std::int16_t count) {
    line(count);
    series.Linie.Distanz = 100.0 * (count - 1);
    ReiheLeeren(series);
    for (std::size_t i = 1; i <= series.X.Wert.anzahl(); ++i) {
      series.X.Wert.at(i) = static_cast<double>(i) * 0.001;
      series.Y.Wert.at(i) = static_cast<double>(i) * -0.002;
    }
  }

  /// Makes the reference measurement `name` the present one.
  void reference(const std::string& name) {
    PosixFileSystem system;
    StraightnessReader reader(system, dataFile("reference/" + name).string());
    ASSERT_FALSE(reader.read(series));
    dateiName = name;
  }

  Bericht report(GeradBerichtTeile teile) {
    return geradBericht({series, dictionary, clock, Masssystem, dateiName}, teile);
  }
  void print(GeradBerichtTeile teile) {
    paper = {};
    report(teile).drucken(paper);
  }

  /// The text that begins at (x, y) of a page.
  std::string at(int page, double x, double y) const { return paper.textBei(page, x, y).text; }
  /// The text that ends at x of a line at the height y.
  std::string endingAt(int page, double x, double y) const { return paper.textBis(page, x, y).text; }

  static constexpr GeradBerichtTeile bothDiagrams{true, true, false, false};
  static constexpr GeradBerichtTeile bothTables{false, false, true, true};
  static constexpr GeradBerichtTeile all{true, true, true, true};

  TestDictionary dictionary;
  TestClock clock;
  GeradReihe series;
  std::int16_t Masssystem = 0;
  std::string dateiName;
  RecordingDrucker paper;

 private:
  void line(std::int16_t count) {
    series.Linie.AnzMPs = count;
    series.Linie.Distanz = 1000;
    ReiheLeeren(series);
  }
};

}  // namespace korvin::test
