#include "position/formpos.h"

#include <gtest/gtest.h>

#include "frame/leerwert.h"

namespace korvin {
namespace {

void take(FORMPOS& formpos, double x, double y, double when = 1) {
  formpos.arbeit().X.Aktuell = x;
  formpos.arbeit().Y.Aktuell = y;
  formpos.punktHinzufuegen(when);
}

FORMPOS started() {
  FORMPOS formpos;
  formpos.messungLoeschen();
  formpos.Info().RestMP = -1;
  return formpos;
}

TEST(Formpos, PointGoesToStoreSumsAndCursor) {
  FORMPOS formpos = started();
  take(formpos, 1, -2, 45000.25);
  take(formpos, 3, -5, 45000.5);
  EXPECT_EQ(formpos.Info().AnzahlMP, 2);
  EXPECT_EQ(formpos.Info().MPAktuell, 2);
  EXPECT_EQ(formpos.Info().MPVorher, 1);
  EXPECT_EQ(formpos.punkte().X().at(0), 2);
  EXPECT_EQ(formpos.punkte().T().at(0), 2);
  EXPECT_EQ(formpos.punkte().Y().at(2), -5);
  EXPECT_EQ(formpos.punkte().T().at(1), 45000.25);
  EXPECT_EQ(formpos.arbeit().X.Summe, 4);
  EXPECT_EQ(formpos.arbeit().X.Quadratsumme, 10);
  EXPECT_EQ(formpos.arbeit().X.Maximum, 3);
  EXPECT_EQ(formpos.arbeit().X.Minimum, 1);
  EXPECT_EQ(formpos.arbeit().Y.Maximum, -2);
  EXPECT_EQ(formpos.arbeit().Y.Minimum, -5);
}

TEST(Formpos, SumsAreRelativeToTheOffset) {
  FORMPOS formpos = started();
  formpos.arbeit().X.Offset = 10;
  take(formpos, 11, 0);
  EXPECT_EQ(formpos.arbeit().X.Summe, 1);
  EXPECT_EQ(formpos.punkte().X().at(1), 11);
}

TEST(Formpos, RestFallsBeforeTheLimitIsTested) {
  FORMPOS formpos = started();
  formpos.Info().AnzahlMP = MaxPunkteO;
  formpos.Info().RestMP = 5;
  take(formpos, 1, 1);
  EXPECT_EQ(formpos.Info().RestMP, 4);
  EXPECT_EQ(formpos.Info().AnzahlMP, MaxPunkteO);
  EXPECT_EQ(formpos.arbeit().X.Summe, 0);
}

TEST(Formpos, RestOfNoneBecomesNoLimit) {
  FORMPOS formpos = started();
  formpos.Info().RestMP = 0;
  take(formpos, 1, 1);
  EXPECT_EQ(formpos.Info().RestMP, -1);
  take(formpos, 1, 1);
  EXPECT_EQ(formpos.Info().RestMP, -1);
}

TEST(Formpos, ClearingEmptiesPointsStatisticsAndSwitches) {
  FORMPOS formpos = started();
  take(formpos, 1, 2);
  formpos.Info().ZeigeMittel = true;
  formpos.Info().ZeigeStreuung = true;
  formpos.Info().ZeigeSpanne = true;
  formpos.Info().OffsetMP = 4;
  formpos.messungLoeschen();
  EXPECT_EQ(formpos.Info().AnzahlMP, 0);
  EXPECT_EQ(formpos.Info().MPAktuell, 0);
  EXPECT_EQ(formpos.Info().MPVorher, 0);
  EXPECT_FALSE(formpos.Info().ZeigeMittel);
  EXPECT_FALSE(formpos.Info().ZeigeStreuung);
  EXPECT_FALSE(formpos.Info().ZeigeSpanne);
  EXPECT_EQ(formpos.punkte().X().at(0), 0);
  EXPECT_EQ(formpos.punkte().X().at(1), Leerwert);
  EXPECT_EQ(formpos.punkte().T().at(29999), Leerwert);
  for (const double value : {formpos.arbeit().Y.Maximum, formpos.arbeit().Y.Minimum,
                             formpos.arbeit().Y.Mittel, formpos.arbeit().Y.Streuung}) {
    EXPECT_EQ(value, Leerwert);
  }
  EXPECT_EQ(formpos.arbeit().Y.Summe, 0);
  EXPECT_EQ(formpos.Info().OffsetMP, 4) << "the offset is not the measurement's";
}

TEST(Formpos, StatisticsAnewUseThePresentOffset) {
  FORMPOS formpos = started();
  take(formpos, 1, 10);
  take(formpos, 4, 20);
  formpos.arbeit().X.Offset = 1;
  formpos.statistikNeu();
  EXPECT_EQ(formpos.arbeit().X.Summe, 3);
  EXPECT_EQ(formpos.arbeit().X.Quadratsumme, 9);
  EXPECT_EQ(formpos.arbeit().X.Maximum, 3);
  EXPECT_EQ(formpos.arbeit().X.Minimum, 0);
  EXPECT_EQ(formpos.arbeit().Y.Summe, 30);
}

TEST(Formpos, ExtremesOfOnePointAreThatPointLessTheOffset) {
  FORMPOS formpos = started();
  take(formpos, 5, -5);
  formpos.arbeit().X.Offset = 4;
  formpos.arbeit().Y.Offset = 4;
  formpos.statistikNeu();
  EXPECT_EQ(formpos.arbeit().X.Maximum, 1);
  EXPECT_EQ(formpos.arbeit().X.Minimum, 1);
  EXPECT_EQ(formpos.arbeit().Y.Maximum, -9);
  EXPECT_EQ(formpos.arbeit().Y.Minimum, -9);
}

TEST(Formpos, StatisticsOfNoPointsAreEmpty) {
  FORMPOS formpos = started();
  formpos.arbeit().X.Summe = 7;
  formpos.arbeit().X.Maximum = 7;
  formpos.statistikNeu();
  EXPECT_EQ(formpos.arbeit().X.Summe, 0);
  EXPECT_EQ(formpos.arbeit().X.Maximum, Leerwert);
  EXPECT_EQ(formpos.arbeit().X.Minimum, Leerwert);
}

TEST(Formpos, WorkingRecordAndImageAreSeparate) {
  FORMPOS formpos = started();
  formpos.Info().SFak = 3;
  formpos.bildFuellen();
  formpos.Info().SFak = 2;
  EXPECT_EQ(formpos.bild().Info.SFak, 3);
  formpos.bildUebernehmen();
  EXPECT_EQ(formpos.Info().SFak, 3);
}

}  // namespace
}  // namespace korvin
