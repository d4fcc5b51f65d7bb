#include "straightness/formgera.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "frame/leerwert.h"

namespace korvin {
namespace {

GeradReihe measured(std::int16_t points, double length) {
  GeradReihe series;
  series.Linie.AnzMPs = points;
  series.Linie.Distanz = length;
  ReiheLeeren(series);
  for (std::int16_t i = 1; i <= points; ++i) {
    series.X.Wert.at(static_cast<std::size_t>(i)) = i * 0.001;
    series.Y.Wert.at(static_cast<std::size_t>(i)) = i * -0.002;
  }
  return series;
}

TEST(ReiheLeeren, LaysThePointsAtEvenDistances) {
  GeradReihe series;
  series.Linie.AnzMPs = 6;
  series.Linie.Distanz = 2500;
  ReiheLeeren(series);
  EXPECT_EQ(series.X.Wert.anzahl(), 6U);
  EXPECT_EQ(series.Y.Wert.anzahl(), 6U);
  EXPECT_EQ(series.Linie.ZSchritt, 500);
  for (std::int16_t i = 1; i <= 6; ++i) EXPECT_EQ(ZWert(series.Linie, i), (i - 1) * 500);
}

TEST(ReiheLeeren, EmptiesAllReadings) {
  GeradReihe series = measured(201, 1000);
  series.Linie.AnzMPs = 3;
  ReiheLeeren(series);
  for (std::size_t i = 1; i <= 201; ++i) {
    EXPECT_EQ(series.X.Wert.at(i), Leerwert);
    EXPECT_EQ(series.Y.Wert.at(i), Leerwert);
  }
}

TEST(ReiheLeeren, SetsReferencesCursorAndSwitchesBack) {
  GeradReihe series = measured(6, 2500);
  series.Linie.AktMP = 4;
  series.Info.Ref1 = 2;
  series.Info.Ref2 = 3;
  series.Info.ZeigeMittel = series.Info.ZeigeStreuung = series.Info.ZeigeSpanne = true;
  series.Info.ZeigeAbschnitt = true;
  series.Info.Gitter = true;
  ReiheLeeren(series);
  EXPECT_EQ(series.Linie.AktMP, 1);
  EXPECT_EQ(series.Info.Ref1, 1);
  EXPECT_EQ(series.Info.Ref2, 6);
  EXPECT_FALSE(series.Info.ZeigeMittel);
  EXPECT_FALSE(series.Info.ZeigeStreuung);
  EXPECT_FALSE(series.Info.ZeigeSpanne);
  EXPECT_FALSE(series.Info.ZeigeAbschnitt);
  EXPECT_TRUE(series.Info.Gitter);
}

/// A single point has no step, and no series holds more points than its record.
TEST(ReiheLeeren, RefusesACountThatMakesNoLine) {
  GeradReihe series = measured(6, 2500);
  const auto before = toBytes(series);
  series.Linie.AnzMPs = 1;
  EXPECT_THROW(ReiheLeeren(series), std::domain_error);
  series.Linie.AnzMPs = 202;
  EXPECT_THROW(ReiheLeeren(series), std::out_of_range);
  series.Linie.AnzMPs = -1;
  EXPECT_THROW(ReiheLeeren(series), std::out_of_range);
  series.Linie.AnzMPs = 6;
  EXPECT_EQ(toBytes(series), before);
}

TEST(ZWert, GivesThePositionAndKeepsToTheRecord) {
  const GeradReihe series = measured(201, 1000);
  EXPECT_EQ(ZWert(series.Linie, 0), 0);
  EXPECT_EQ(ZWert(series.Linie, 201), 1000);
  EXPECT_THROW(ZWert(series.Linie, 202), std::out_of_range);
  EXPECT_THROW(ZWert(series.Linie, -1), std::out_of_range);
}

TEST(FORMGERA, ImageBecomesTheSeriesAsLoadedAndIsDrawnAnew) {
  FORMGERA formgera;
  formgera.bild() = measured(6, 2500);
  formgera.bild().X.BereichAlt = formgera.bild().Y.BereichAlt = 0.2;
  formgera.bild().X.Bereich = 0.1;
  formgera.bild().Info.DateiStatus = 2;
  formgera.bild().Info.Geaendert = true;
  formgera.bildUebernehmen();
  EXPECT_EQ(formgera.reihe().X.BereichAlt, 0);
  EXPECT_EQ(formgera.reihe().Y.BereichAlt, 0);
  EXPECT_EQ(formgera.reihe().X.Bereich, 0.1);
  EXPECT_EQ(formgera.reihe().Info.DateiStatus, 1);
  EXPECT_TRUE(formgera.reihe().Info.Geaendert);
  EXPECT_EQ(formgera.reihe().X.Wert.at(6), 0.006);
  EXPECT_EQ(formgera.bild().Info.DateiStatus, 2) << "the image stays what the file holds";
}

TEST(FORMGERA, SavingTakesTheWholeSeries) {
  FORMGERA formgera;
  formgera.reihe() = measured(6, 2500);
  formgera.reihe().Info.Kommentar = "kept";
  formgera.bildFuellen();
  EXPECT_EQ(toBytes(formgera.bild()), toBytes(formgera.reihe()));
}

TEST(FORMGERA, TakesReadingsAtTheCurrentPoint) {
  FORMGERA formgera;
  formgera.reihe() = measured(6, 2500);
  formgera.reihe().Linie.AktMP = 4;
  formgera.punktEintragen(0.5, -0.25);
  EXPECT_EQ(formgera.reihe().X.Wert.at(4), 0.5);
  EXPECT_EQ(formgera.reihe().Y.Wert.at(4), -0.25);
  EXPECT_EQ(formgera.reihe().X.Wert.at(3), 0.003);
  EXPECT_TRUE(formgera.reihe().Info.Geaendert);
  EXPECT_EQ(formgera.eingetragen(), 1U);
}

/// A loaded cursor may stand at 0, where the count of points lies.
TEST(FORMGERA, NoReadingReplacesTheCount) {
  FORMGERA formgera;
  formgera.reihe() = measured(6, 2500);
  for (const std::int16_t outside : {std::int16_t{0}, std::int16_t{-1}, std::int16_t{202}}) {
    formgera.reihe().Linie.AktMP = outside;
    EXPECT_THROW(formgera.punktEintragen(1, 1), std::out_of_range);
  }
  EXPECT_EQ(formgera.reihe().X.Wert.anzahl(), 6U);
  EXPECT_FALSE(formgera.reihe().Info.Geaendert);
  EXPECT_EQ(formgera.eingetragen(), 0U);
}

}  // namespace
}  // namespace korvin
