#pragma once

#include <gtest/gtest.h>

#include <string>

#include "frame/posix_file_system.h"
#include "frame/profil.h"
#include "position/formpos.h"
#include "position/position_file.h"
#include "reports/positions_bericht.h"
#include "support/recording_drucker.h"
#include "support/test_clock.h"
#include "support/test_files.h"
#include "support/test_ports.h"

namespace korvin::test {

/// A position measurement and the paper that its report is printed on. Texts read "D3057" and so on.
class BerichtStand : public ::testing::Test {
 protected:
  BerichtStand() {
    info().RestMP = -1;
    info().NKStellen = 2;
    info().SFak = 2;
    clock.setNow(40000.25);  // 6 July 2009, 06:00
  }

  PositionsInfo& info() { return formpos.Info(); }

  /// Points (i/1000, -i/500), a minute apart.
  void points(int count) {
    formpos.messungLoeschen();
    for (int i = 1; i <= count; ++i) point(i * 0.001, -i * 0.002, 38000.5 + i / 1440.0);
  }
  void point(double x, double y, double moment) {
    formpos.arbeit().X.Aktuell = x;
    formpos.arbeit().Y.Aktuell = y;
    formpos.punktHinzufuegen(moment);
  }

  /// Makes the reference measurement of 40 points the present one.
  void reference() {
    PosixFileSystem system;
    MemorySettingsTree tree;
    Profil profil{tree};
    TestMessages messages;
    Meldung meldung;
    PositionsDateien files({system, messages, meldung, dictionary, profil, formpos});
    ASSERT_TRUE(files.o_DateiLaden(dataFile("reference/point.O").string()));
    formpos.bildUebernehmen();
  }

  Bericht report(PositionsBerichtTeile teile) {
    return positionsBericht({formpos.arbeit(), formpos.punkte(), dictionary, clock, Masssystem, dateiName},
                            teile);
  }
  void print(PositionsBerichtTeile teile) { report(teile).drucken(paper); }

  /// The text that begins at (x, y) of a page.
  std::string at(int page, double x, double y) const { return paper.textBei(page, x, y).text; }
  /// The text that ends at x of a line at the height y.
  std::string endingAt(int page, double x, double y) const { return paper.textBis(page, x, y).text; }

  static constexpr PositionsBerichtTeile diagram{true, false, false};
  static constexpr PositionsBerichtTeile bothTables{false, true, true};
  static constexpr PositionsBerichtTeile all{true, true, true};

  TestDictionary dictionary;
  TestClock clock;
  FORMPOS formpos;
  int Masssystem = 0;
  std::string dateiName;
  RecordingDrucker paper;
};

}  // namespace korvin::test
