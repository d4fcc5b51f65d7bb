#include "environment/adapt_set.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

#include "frame/memory_settings_tree.h"
#include "frame/number_format.h"

namespace korvin {
namespace {

/// A settings tree that remembers the writes in their order.
class NotingTree : public MemorySettingsTree {
 public:
  bool writeValue(std::string_view path, std::string_view name, const RegWert& value) override {
    const std::string section(path.substr(path.rfind('\\') + 1));
    writes.push_back(section + " " + std::string(name) + "=" + std::get<std::string>(value));
    return MemorySettingsTree::writeValue(path, name, value);
  }
  std::vector<std::string> writes;
};

class AdaptSetTest : public ::testing::Test {
 protected:
  void store(std::string_view section, std::string_view key, std::string_view value) {
    profil.ProfilSchreiben(KorvinIni, section, key, value);
    tree.writes.clear();
  }
  std::string stored(std::string_view section, std::string_view key) {
    return profil.wert(section, key, "missing");
  }
  /// A finished run, as the window goes through it.
  void finish(std::int16_t N, double sX = 0.01, double sY = 0.02, double AnalyseSekunden = 32) {
    set.UnsicherheitBerechnen({.AnalyseAnzahl = N, .AnalyseSekunden = AnalyseSekunden, .sX = sX, .sY = sY});
    set.SliderEinrichten();
  }
  std::vector<std::string> panels() const { return {set.anzeige().zeit, set.anzeige().FX, set.anzeige().FY}; }
  std::vector<int> slider() const { return {set.slider().minimum, set.slider().wert, set.slider().maximum}; }
  using Texts = std::vector<std::string>;
  using Numbers = std::vector<int>;

  NotingTree tree;
  Profil profil{tree};
  AdaptSet set{profil};
};

// ---- The frame ----

TEST_F(AdaptSetTest, IsHiddenUntilARunHasEnded) {
  EXPECT_FALSE(set.sichtbar());
  finish(150);
  EXPECT_TRUE(set.sichtbar());
  set.verbergen();
  EXPECT_FALSE(set.sichtbar());
  finish(150);
  EXPECT_TRUE(set.sichtbar());
}

TEST_F(AdaptSetTest, SettingUpInvertsTheVisibility) {
  finish(150);
  set.SliderEinrichten();
  EXPECT_FALSE(set.sichtbar());
}

TEST_F(AdaptSetTest, OpeningTheWindowHidesItAndChooses95Percent) {
  finish(150);
  set.OptPrio(1);
  set.ersteAktivierung();
  EXPECT_FALSE(set.sichtbar());
  EXPECT_TRUE(set.speichernFrei());
  EXPECT_TRUE(set.anzeige().Beta5);
  EXPECT_FALSE(set.anzeige().Beta1);
}

TEST_F(AdaptSetTest, MoreSamplesThanTheTablesTakeLeaveItHidden) {
  EXPECT_THROW(finish(501), std::out_of_range);
  EXPECT_FALSE(set.sichtbar());
}

// ---- The slider ----

TEST_F(AdaptSetTest, SliderGoesFromTheShortestTimeToNearlyTwiceTheRun) {
  finish(150);
  // 150 * 5 / 31 = 24.19, 150 * 1.8 = 270
  EXPECT_EQ(slider(), (Numbers{24, 150, 270}));
}

TEST_F(AdaptSetTest, SliderEndsAreTruncated) {
  store("MessInfo_G", "MessZeitMin", "8");
  finish(7);
  // 7 * 8 / 31 = 1.81, 7 * 1.8 = 12.6
  EXPECT_EQ(slider(), (Numbers{1, 7, 12}));
}

TEST_F(AdaptSetTest, SliderTakesTheShortestTimeOfStraightnessOnly) {
  store("MessInfo_P", "MessZeitMin", "20");
  store("MessInfo_R", "MessZeitMin", "25");
  store("MessInfo_G", "MessZeitMin", "10");
  finish(31);
  EXPECT_EQ(slider(), (Numbers{10, 31, 55}));
}

TEST_F(AdaptSetTest, SliderMinimumBeyondTheMaximumIsHeldAtN) {
  store("MessInfo_G", "MessZeitMin", "56");
  finish(310);
  EXPECT_EQ(slider(), (Numbers{310, 310, 558}));
}

TEST_F(AdaptSetTest, SliderMinimumAboveNTakesTheValueAlong) {
  store("MessInfo_G", "MessZeitMin", "55");
  finish(310);
  EXPECT_EQ(slider(), (Numbers{550, 550, 558}));
  EXPECT_EQ(set.anzeige().zeit, "55 s");
}

TEST_F(AdaptSetTest, NegativeShortestTimeStandsForNone) {
  store("MessInfo_G", "MessZeitMin", "-5");
  finish(310);
  EXPECT_EQ(slider(), (Numbers{0, 310, 558}));
}

TEST_F(AdaptSetTest, SliderStaysWithinItsEnds) {
  finish(150);
  set.SliderGeaendert(500);
  EXPECT_EQ(set.slider().wert, 270);
  set.SliderGeaendert(-1);
  EXPECT_EQ(set.slider().wert, 24);
}

TEST_F(AdaptSetTest, PositionsReadAsTimes) {
  finish(155);
  EXPECT_EQ(set.anzeige().zeit, "31 s");
  set.SliderGeaendert(set.slider().minimum);
  EXPECT_EQ(set.anzeige().zeit, "5 s");
  set.SliderGeaendert(set.slider().maximum);
  EXPECT_EQ(set.anzeige().zeit, "56 s");
}

TEST_F(AdaptSetTest, RunThatMetItsEndExactlyReadsAsThirtySeconds) {
  finish(150, 0.01, 0.02, 31);
  EXPECT_EQ(set.anzeige().zeit, "30 s");
}

TEST_F(AdaptSetTest, PanelsShowTheTablesAtThePosition) {
  finish(150, 1, 2);
  for (const int position : {24, 100, 150, 151, 270}) {
    set.SliderGeaendert(position);
    const auto index = static_cast<std::size_t>(position);
    EXPECT_EQ(set.anzeige().FX, formatNumber(set.unsicherheit().FxTabelle.at(index), "0.0000"));
    EXPECT_EQ(set.anzeige().FY, formatNumber(set.unsicherheit().FyTabelle.at(index), "0.0000"));
  }
  EXPECT_NE(set.anzeige().FX, set.anzeige().FY);
}

TEST_F(AdaptSetTest, FewSamplesPutTheMinimumAtPositionZeroWhichShowsNothing) {
  for (std::int16_t N = 1; N < 7; ++N) {
    // At one sample a second or fewer the panels show 0 anyway; the run is made as short as its samples.
    set.verbergen();
    finish(N, 0.01, 0.02, N + 1);
    EXPECT_EQ(set.slider().minimum, 0) << N;
    set.SliderGeaendert(0);
    EXPECT_EQ(panels(), (Texts{"0 s", "0.0000", "0.0000"})) << N;
  }
}

TEST_F(AdaptSetTest, FewerSamplesThanSecondsShowZero) {
  finish(30);
  EXPECT_EQ(panels(), (Texts{"31 s", "0", "0"}));
  EXPECT_EQ(set.bild().maximum, 0);
  finish(31);
  EXPECT_EQ(set.anzeige().FX, formatNumber(set.unsicherheit().FxTabelle.at(31), "0.0000"));
  EXPECT_EQ(set.bild().maximum, 55);
}

TEST_F(AdaptSetTest, TellsWhatAPositionSays) {
  finish(155, 1, 0.5);
  EXPECT_EQ(set.hinweis(100), "20 s: FX 0.4623  FY 0.2311");
  EXPECT_EQ(set.anzeige().zeit, "31 s") << "nothing is picked by that";
}

TEST_F(AdaptSetTest, TheOutlookIsThatOfTheSettingsAsTheFrameComesUp) {
  store("MessInfo_G", "X_Genauigkeit", ".5");
  store("MessInfo_G", "MessZeitMax", "20 s");
  finish(155, 0.1, 10);
  EXPECT_EQ(set.aussicht().vorgabe.X_Genauigkeit, 0.5);
  EXPECT_EQ(set.aussicht().proben, 100);
  EXPECT_EQ(set.aussicht().erfolg, Erfolg::unwahrscheinlich);
}

// ---- What can be saved when ----

TEST_F(AdaptSetTest, SavingIsDisabledUntilSomethingChanges) {
  finish(150);
  EXPECT_TRUE(set.speichernFrei());
  set.ParameterSpeichern();
  EXPECT_FALSE(set.speichernFrei());
  set.SliderGeaendert(100);
  EXPECT_TRUE(set.speichernFrei());
  set.ParameterSpeichern();
  set.OptPrio(0);
  EXPECT_TRUE(set.speichernFrei());
  set.ParameterSpeichern();
  set.verbergen();
  EXPECT_TRUE(set.speichernFrei());
}

TEST_F(AdaptSetTest, TheLevelButtonsChangeNoShownValue) {
  finish(150);
  const Texts before = panels();
  set.OptPrio(1);
  EXPECT_EQ(panels(), before);
  EXPECT_FALSE(set.anzeige().Beta5);
  EXPECT_TRUE(set.anzeige().Beta1);
  set.OptPrio(0);
  EXPECT_TRUE(set.anzeige().Beta5);
  EXPECT_FALSE(set.anzeige().Beta1);
}

// ---- Saving ----

TEST_F(AdaptSetTest, SavingWritesEachKeyIntoTheThreeSectionsInTurn) {
  finish(155, 1, 0.5);
  set.SliderGeaendert(100);
  // The line from 2.447 * s / sqrt(6) down to 1.9751 * s / sqrt(155), at position 100 of 155.
  EXPECT_EQ(panels(), (Texts{"20 s", "0.4623", "0.2311"}));
  tree.writes.clear();
  set.ParameterSpeichern();
  EXPECT_EQ(tree.writes, (Texts{"MessInfo_G AutoAdapt=-1",
                                "MessInfo_P AutoAdapt=-1",
                                "MessInfo_R AutoAdapt=-1",
                                "MessInfo_G X_Genauigkeit= .4623",
                                "MessInfo_P X_Genauigkeit= .4623",
                                "MessInfo_R X_Genauigkeit= .4623",
                                "MessInfo_G Y_Genauigkeit= .2311",
                                "MessInfo_P Y_Genauigkeit= .2311",
                                "MessInfo_R Y_Genauigkeit= .2311",
                                "MessInfo_G Beta5=-1",
                                "MessInfo_P Beta5=-1",
                                "MessInfo_R Beta5=-1",
                                "MessInfo_G Beta1=0",
                                "MessInfo_P Beta1=0",
                                "MessInfo_R Beta1=0",
                                "MessInfo_G MessZeitMin= 5",
                                "MessInfo_P MessZeitMin= 5",
                                "MessInfo_R MessZeitMin= 5",
                                "MessInfo_G MessZeitMax=20 s",
                                "MessInfo_P MessZeitMax=20 s",
                                "MessInfo_R MessZeitMax=20 s"}));
}

TEST_F(AdaptSetTest, AnotherLevelChangesTheKeysButNotTheAccuracy) {
  finish(150);
  const Texts before = panels();
  set.OptPrio(1);
  set.ParameterSpeichern();
  for (const char* section : {"MessInfo_G", "MessInfo_P", "MessInfo_R"}) {
    EXPECT_EQ(stored(section, "Beta5"), "0");
    EXPECT_EQ(stored(section, "Beta1"), "-1");
    EXPECT_EQ("0" + stored(section, "X_Genauigkeit"), before.at(1));
    EXPECT_EQ("0" + stored(section, "Y_Genauigkeit"), before.at(2));
  }
}

TEST_F(AdaptSetTest, TheLargestShortestTimeGoesIntoAllThree) {
  store("MessInfo_P", "MessZeitMin", "8");
  finish(150);
  set.ParameterSpeichern();
  for (const char* section : {"MessInfo_G", "MessInfo_P", "MessInfo_R"})
    EXPECT_EQ(stored(section, "MessZeitMin"), "8");
}

TEST_F(AdaptSetTest, TheShortestTimeOfSquarenessCountsToo) {
  store("MessInfo_G", "MessZeitMin", "6");
  store("MessInfo_R", "MessZeitMin", " 12 s");
  finish(150);
  set.ParameterSpeichern();
  EXPECT_EQ(stored("MessInfo_G", "MessZeitMin"), "12");
}

TEST_F(AdaptSetTest, ATimeBelowTheShortestIsLiftedToIt) {
  store("MessInfo_R", "MessZeitMin", "21");
  finish(155);
  set.SliderGeaendert(100);
  set.ParameterSpeichern();
  EXPECT_EQ(tree.writes.back(), "MessInfo_R MessZeitMax= 21");
  EXPECT_EQ(stored("MessInfo_G", "MessZeitMax"), "21");
}

TEST_F(AdaptSetTest, ATimeThatEqualsTheShortestKeepsItsText) {
  store("MessInfo_G", "MessZeitMin", "20");
  finish(155);
  set.SliderGeaendert(100);
  set.ParameterSpeichern();
  EXPECT_EQ(stored("MessInfo_G", "MessZeitMax"), "20 s");
}

TEST_F(AdaptSetTest, UncertaintiesBelowTheLowestAreLiftedWhenSaved) {
  finish(6, 0.01, 0.02, 7);
  set.SliderGeaendert(0);
  set.ParameterSpeichern();
  EXPECT_EQ(set.anzeige().FX, "0.0002");
  EXPECT_EQ(set.anzeige().FY, "0.0002");
  EXPECT_EQ(stored("MessInfo_G", "X_Genauigkeit"), ".0002");
  EXPECT_EQ(stored("MessInfo_R", "Y_Genauigkeit"), ".0002");
}

TEST_F(AdaptSetTest, ARunThatShowsZeroSavesTheLowestUncertainty) {
  finish(20);
  EXPECT_EQ(panels(), (Texts{"31 s", "0", "0"}));
  set.ParameterSpeichern();
  EXPECT_EQ(tree.writes.at(3), "MessInfo_G X_Genauigkeit= .0002");
  EXPECT_EQ(tree.writes.at(8), "MessInfo_R Y_Genauigkeit= .0002");
}

TEST_F(AdaptSetTest, NumbersAreStoredAsShownInMilToo) {
  AnalyseErgebnis inMil{.AnalyseAnzahl = 155, .AnalyseSekunden = 32, .sX = 7.5, .sY = 15};
  inMil.Masssystem = 1;
  set.UnsicherheitBerechnen(inMil);
  set.SliderEinrichten();
  EXPECT_TRUE(set.bild().inch);
  set.ParameterSpeichern();
  EXPECT_EQ(set.anzeige().FY, "2.4610");
  EXPECT_EQ(tree.writes.at(6), "MessInfo_G Y_Genauigkeit= 2.461");
}

TEST_F(AdaptSetTest, NumbersHaveNoClosingZeros) {
  AdaptParameter parameter{.zeit = "31 s", .FX = "0.1200", .FY = "3.0000"};
  ParameterSpeichern(profil, parameter);
  EXPECT_EQ(tree.writes.at(3), "MessInfo_G X_Genauigkeit= .12");
  EXPECT_EQ(tree.writes.at(6), "MessInfo_G Y_Genauigkeit= 3");
}

}  // namespace
}  // namespace korvin
