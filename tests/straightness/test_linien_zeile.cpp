// The rows of a line's table.
#include "straightness/linien_zeile.h"

#include <gtest/gtest.h>

#include "frame/leerwert.h"
#include "straightness/formgera.h"

namespace korvin {
namespace {

class LinienZeileTest : public ::testing::Test {
 protected:
  LinienZeileTest() {
    series.Linie.AnzMPs = 3;
    series.Linie.Distanz = 1000;
    series.Info.NKStellen = 2;
    ReiheLeeren(series);
    series.X.Wert.at(1) = 0.0254;
    series.Y.Wert.at(1) = -0.127;
    series.Linie.Z.at(2) = 508;
  }
  LinienZeile row(int number, std::int16_t Masssystem) {
    x = achseBerechnen(series, series.X, Masssystem);
    y = achseBerechnen(series, series.Y, Masssystem);
    return linienZeile(series, x, y, number, Masssystem);
  }

  GeradReihe series;
  AchsenAnzeigeDaten x;
  AchsenAnzeigeDaten y;
};

TEST_F(LinienZeileTest, MetricAndInch) {
  series.Info.Auswertung = AuswertungROH;
  const LinienZeile metric = row(1, 0);
  EXPECT_EQ(metric.nummer, "1");
  EXPECT_EQ(metric.z, "0.0");
  EXPECT_EQ(metric.X, "0.025");
  EXPECT_EQ(metric.Y, "-0.127");
  EXPECT_EQ(row(2, 0).z, "508.0") << "where the point lies, not where it was planned";
  EXPECT_EQ(row(2, 1).z, "20.0");
  EXPECT_EQ(row(1, 1).X, "1.000");
  EXPECT_EQ(row(1, 1).Y, "-5.000");
}

TEST_F(LinienZeileTest, OpenReadingsInEveryModeAndUnit) {
  for (const std::int16_t mode : {AuswertungROH, AuswertungISO, AuswertungREF}) {
    series.Info.Auswertung = mode;
    EXPECT_EQ(row(3, 0).X, "?.?") << mode;
    EXPECT_EQ(row(3, 1).Y, "?.?") << mode;
  }
}

TEST_F(LinienZeileTest, RowsAreThoseOfTheShorterAxis) {
  EXPECT_EQ(linienZeilen(series, {}, {}), 0) << "nothing computed yet";
  row(1, 0);
  EXPECT_EQ(linienZeilen(series, x, y), 3);
  series.Y.Wert.setAnzahl(2);
  row(1, 0);
  EXPECT_EQ(linienZeilen(series, x, y), 2);
}

}  // namespace
}  // namespace korvin
