#include "straightness/neue_reihe.h"

#include <gtest/gtest.h>

#include <array>

#include "frame/datum_text.h"
#include "frame/leerwert.h"
#include "support/test_ports.h"

namespace korvin {
namespace {

class NewSeriesTest : public ::testing::Test {
 protected:
  void set(const char* section, const char* key, const char* value) {
    profil.ProfilSchreiben("", section, key, value);
  }
  GeradReihe made() { return neueReihe(profil, "/mess/"); }

  test::MemorySettingsTree tree;
  Profil profil{tree};
};

TEST_F(NewSeriesTest, WithoutSettingsHasTheDefaults) {
  const GeradReihe series = made();
  const GeradInfo& info = series.Info;
  EXPECT_EQ(info.FirmaName.trimmed(), "");
  EXPECT_EQ(info.Bezeichnung.trimmed(), "?");
  EXPECT_EQ(info.Bediener.trimmed(), "?");
  EXPECT_EQ(info.Kommentar.trimmed(), "?");
  EXPECT_EQ(info.DateiName.trimmed(), "/mess/*.G");
  EXPECT_EQ(info.ReserveF.full(), std::string(20, ' '));
  EXPECT_FALSE(info.AsciiDatei);
  EXPECT_FALSE(info.CheckXDiagramm);
  EXPECT_FALSE(info.CheckYDiagramm);
  EXPECT_FALSE(info.CheckXTabelle);
  EXPECT_FALSE(info.CheckYTabelle);
  EXPECT_EQ(series.Linie.AnzMPs, 6);
  EXPECT_EQ(series.Linie.Distanz, 2500);
  EXPECT_EQ(info.SFak, 1);
  EXPECT_EQ(series.X.ToleranzBezug, 1);
  EXPECT_EQ(series.Y.ToleranzBezug, 1);
  EXPECT_EQ(series.X.Gesamt, 0);
  EXPECT_EQ(series.Y.ProEinheit, 0);
  EXPECT_EQ(info.Filter.full(), "2");
  EXPECT_EQ(info.Montage, 0);
  EXPECT_EQ(info.NKStellen, 3);
  EXPECT_FALSE(series.Adapt.AutoAdapt);
  EXPECT_TRUE(series.Adapt.Beta5);
  EXPECT_FALSE(series.Adapt.Beta1);
  EXPECT_EQ(series.Adapt.MessZeitMax, 12);
  EXPECT_EQ(series.Adapt.MessZeitMin, 10);
  EXPECT_EQ(series.Adapt.X_Genauigkeit, 0.01);
  EXPECT_EQ(series.Adapt.Y_Genauigkeit, 0.01);
}

TEST_F(NewSeriesTest, StartsEmptyUnsavedAndEvaluatedByItsLine) {
  const GeradReihe series = made();
  EXPECT_EQ(series.Info.Datum.trimmed(), LeerDatum);
  EXPECT_EQ(series.Info.DateiStatus, 0);
  EXPECT_FALSE(series.Info.Geaendert);
  EXPECT_EQ(series.Info.Auswertung, 1);
  EXPECT_EQ(series.Info.Gitter.raw(), -1);
  EXPECT_FALSE(series.Info.ZeigeMittel);
  EXPECT_FALSE(series.Info.ZeigeAbschnitt);
  for (const GeradAchse* axis : {&series.X, &series.Y}) {
    EXPECT_EQ(axis->Bereich, 0);
    EXPECT_EQ(axis->BereichAlt, 0);
    EXPECT_EQ(axis->Bereichsart, 0);
    EXPECT_FALSE(axis->NumZoom);
    EXPECT_EQ(axis->Wert.anzahl(), 6U);
    EXPECT_EQ(axis->Wert.at(1), Leerwert);
  }
  EXPECT_EQ(series.Linie.Z.at(6), 2500);
  EXPECT_EQ(series.Linie.AktMP, 1);
  EXPECT_EQ(series.Info.Ref2, 6);
}

TEST_F(NewSeriesTest, TakesEachPrintChoiceFromItsOwnSetting) {
  const auto choices = [this] {
    const GeradInfo info = made().Info;
    return std::array{static_cast<bool>(info.CheckXDiagramm), static_cast<bool>(info.CheckYDiagramm),
                      static_cast<bool>(info.CheckXTabelle), static_cast<bool>(info.CheckYTabelle)};
  };
  std::size_t place = 0;
  for (const char* key : {"CheckXDiagramm", "CheckYDiagramm", "CheckXTabelle", "CheckYTabelle"}) {
    set("DruckInfo_G", key, "-1");
    std::array<bool, 4> wanted{};
    wanted.at(place++) = true;
    EXPECT_EQ(choices(), wanted) << key;
    set("DruckInfo_G", key, "0");
  }
}

TEST_F(NewSeriesTest, TakesAVeryShortLine) {
  set("MessInfo_G", "Distanz", "0.5");
  EXPECT_EQ(made().Linie.Distanz, 0.5);
}

TEST_F(NewSeriesTest, TakesEverySetting) {
  set("KorInfo", "FirmaName", "Prüfstelle");
  set("KorInfo", "AsciiDatei", "-1");
  set("KorInfo", "NKStellen", "2");
  set("MessInfo_G", "Bezeichnung", "Bahn");
  set("MessInfo_G", "Bediener", "Ada");
  set("MessInfo_G", "Kommentar", "kalt");
  set("MessInfo_G", "AnzMPs", "11");
  set("MessInfo_G", "Distanz", "1000,5");
  set("MessInfo_G", "SFak", "3");
  set("MessInfo_G", "Filter", "4");
  set("MessInfo_G", "Montage", "2");
  set("MessInfo_G", "AutoAdapt", "-1");
  set("MessInfo_G", "Beta5", "0");
  set("MessInfo_G", "Beta1", "-1");
  set("MessInfo_G", "MessZeitMax", "20");
  set("MessInfo_G", "MessZeitMin", "5");
  set("MessInfo_G", "X_Genauigkeit", "0.02");
  set("MessInfo_G", "Y_Genauigkeit", "0.03");
  set("DruckInfo_G", "CheckXDiagramm", "-1");
  set("DruckInfo_G", "CheckYTabelle", "-1");
  const GeradReihe series = made();
  EXPECT_EQ(series.Info.FirmaName.trimmed(),
            "Pr\xFC"
            "fstelle");
  EXPECT_TRUE(series.Info.AsciiDatei);
  EXPECT_EQ(series.Info.NKStellen, 2);
  EXPECT_EQ(series.Info.Bezeichnung.trimmed(), "Bahn");
  EXPECT_EQ(series.Info.Bediener.trimmed(), "Ada");
  EXPECT_EQ(series.Info.Kommentar.trimmed(), "kalt");
  EXPECT_EQ(series.Linie.AnzMPs, 11);
  EXPECT_EQ(series.Linie.Distanz, 1000.5);
  EXPECT_EQ(series.Linie.ZSchritt, 100.05);
  EXPECT_EQ(series.Info.SFak, 3);
  EXPECT_EQ(series.Info.Filter.full(), "4");
  EXPECT_EQ(series.Info.Montage, 2);
  EXPECT_TRUE(series.Adapt.AutoAdapt);
  EXPECT_FALSE(series.Adapt.Beta5);
  EXPECT_TRUE(series.Adapt.Beta1);
  EXPECT_EQ(series.Adapt.MessZeitMax, 20);
  EXPECT_EQ(series.Adapt.MessZeitMin, 5);
  EXPECT_EQ(series.Adapt.X_Genauigkeit, 0.02);
  EXPECT_EQ(series.Adapt.Y_Genauigkeit, 0.03);
  EXPECT_TRUE(series.Info.CheckXDiagramm);
  EXPECT_FALSE(series.Info.CheckYDiagramm);
  EXPECT_FALSE(series.Info.CheckXTabelle);
  EXPECT_TRUE(series.Info.CheckYTabelle);
}

TEST_F(NewSeriesTest, TolerancesAreOfTheAxisTheirBasisOfBoth) {
  set("Toleranz_G", "ToleranzBezug", "2");
  set("Toleranz_G", "XGesamt", "0.1");
  set("Toleranz_G", "XWertPro", "0.2");
  set("Toleranz_G", "XProEinheit", "300");
  set("Toleranz_G", "YGesamt", "0.4");
  set("Toleranz_G", "YWertPro", "0.5");
  set("Toleranz_G", "YProEinheit", "600");
  const GeradReihe series = made();
  EXPECT_EQ(series.X.ToleranzBezug, 2);
  EXPECT_EQ(series.Y.ToleranzBezug, 2);
  EXPECT_EQ(series.X.Gesamt, 0.1);
  EXPECT_EQ(series.X.WertPro, 0.2);
  EXPECT_EQ(series.X.ProEinheit, 300);
  EXPECT_EQ(series.Y.Gesamt, 0.4);
  EXPECT_EQ(series.Y.WertPro, 0.5);
  EXPECT_EQ(series.Y.ProEinheit, 600);
}

/// The settings dialog keeps these out; a tree changed by hand may have them.
TEST_F(NewSeriesTest, SettingsThatMakeNoLineGiveWayToTheDefaults) {
  for (const char* points : {"1", "0", "-5", "202", "99999", "", "x"}) {
    set("MessInfo_G", "AnzMPs", points);
    EXPECT_EQ(made().Linie.AnzMPs, 6) << points;
  }
  for (const char* length : {"0", "-100", "", "x", "1e999"}) {
    set("MessInfo_G", "Distanz", length);
    EXPECT_EQ(made().Linie.Distanz, 2500) << length;
  }
  for (const char* points : {"2", "201"}) {
    set("MessInfo_G", "AnzMPs", points);
    EXPECT_EQ(std::to_string(made().Linie.AnzMPs), points);
  }
}

TEST_F(NewSeriesTest, NumbersBeyondAllMeasureCountAsNone) {
  set("Toleranz_G", "XGesamt", "1e999");
  set("MessInfo_G", "X_Genauigkeit", "1e999");
  EXPECT_EQ(made().X.Gesamt, 0);
  EXPECT_EQ(made().Adapt.X_Genauigkeit, 0);
}

TEST_F(NewSeriesTest, WordsTheRecordCannotHoldGiveWayToTheDefaults) {
  set("MessInfo_G", "Bediener", "測定者");
  set("KorInfo", "FirmaName", "測定");
  EXPECT_EQ(made().Info.Bediener.trimmed(), "?");
  EXPECT_EQ(made().Info.FirmaName.trimmed(), "");
  EXPECT_EQ(neueReihe(profil, "/測定/").Info.DateiName.trimmed(), "*.G");
}

}  // namespace
}  // namespace korvin
