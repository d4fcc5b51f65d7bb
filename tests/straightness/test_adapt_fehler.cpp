// The dialog of an adaptive point that failed: what it shows and what its buttons do.

#include "straightness/adapt_fehler.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "frame/memory_settings_tree.h"
#include "support/test_ports.h"

namespace korvin {
namespace {

constexpr float Noon = 43200;

class AdaptFehlerTest : public ::testing::Test {
 protected:
  AdaptFehlerTest() {
    aims.X_Genauigkeit = 0.01;
    aims.Y_Genauigkeit = 0.02;
    aims.MessZeitMin = 10;
    aims.MessZeitMax = 12;
  }
  /// A point with these half widths. With two samples a mm apart they are 2.1515 mm of it.
  AdaptFehler failed(double X, double Y) {
    point.starten(aims, Noon);
    point.probe(0, 0, aims, Noon + 1);
    point.probe(X / 2.1515, Y / 2.1515, aims, Noon + 11);
    return now();
  }
  AdaptFehler now() { return AdaptFehler({point, aims, profil, section, Noon + 30}); }
  AdaptFehlerTexte texts(double X, double Y, std::int16_t Masssystem = 0) {
    return adaptFehlerTexte(failed(X, Y), dictionary, Masssystem);
  }
  std::string stored(std::string_view where) { return profil.wert(where, "MessZeitMax", "none"); }

  AdaptVorgaben aims;
  AdaptivMessung point;
  test::MemorySettingsTree tree;
  Profil profil{tree};
  test::TestDictionary dictionary;
  std::string_view section = "MessInfo_G";
};

// ---- The proposal ----

TEST_F(AdaptFehlerTest, ProposalIsOfTheWorseAxisWithTenPercentToSpare) {
  // 0.022 / 0.01 / 1.1 · 12 and 0.066 / 0.02 / 1.1 · 12
  EXPECT_EQ(failed(0.022, 0.01).Vorschlag(), 24);
  EXPECT_EQ(failed(0.001, 0.066).Vorschlag(), 36);
}

TEST_F(AdaptFehlerTest, ProposalIsAWholeNumber) {
  EXPECT_EQ(failed(0.0224, 0).Vorschlag(), 24) << "24.44";
  EXPECT_EQ(failed(0.0225, 0).Vorschlag(), 25) << "24.55";
}

TEST_F(AdaptFehlerTest, ProposalOfOneHundredSecondsIsTooLong) {
  // At 12 s and 0.01 mm the proposal is 1090.9 s for each mm.
  EXPECT_EQ(failed(0.0911, 0).Vorschlag(), 99) << "99.4";
  EXPECT_TRUE(now().VorschlagMoeglich());
  EXPECT_EQ(failed(0.0913, 0).Vorschlag(), 100) << "99.6";
  EXPECT_FALSE(now().VorschlagMoeglich());
}

TEST_F(AdaptFehlerTest, ProposalWithoutSpreadIsOneSecond) {
  EXPECT_EQ(failed(0, 0).Vorschlag(), 1);
  aims.X_Genauigkeit = 0;
  EXPECT_EQ(failed(0, 0).Vorschlag(), 1);
}

TEST_F(AdaptFehlerTest, ProposalBeyondAllNumbersIsTooLong) {
  for (const double accuracy : {0.0, 1e-300, -0.01}) {
    aims.X_Genauigkeit = accuracy;
    EXPECT_GT(failed(1, 0).Vorschlag(), 99) << accuracy;
    EXPECT_FALSE(now().VorschlagMoeglich());
  }
}

TEST_F(AdaptFehlerTest, TooFewSamplesLeaveNoProposal) {
  point.starten(aims, Noon);
  point.probe(0, 0, aims, Noon + 13);
  EXPECT_EQ(now().erreicht().X, Leerwert);
  EXPECT_EQ(now().Vorschlag(), std::numeric_limits<std::int16_t>::max());
  EXPECT_FALSE(now().VorschlagMoeglich());
  const AdaptFehlerTexte t = adaptFehlerTexte(now(), dictionary, 0);
  EXPECT_EQ(t.XIst.text, "-.----");
  EXPECT_EQ(t.XIst.farbe, FarbeRot);
  EXPECT_EQ(t.XSoll.text, "0.0100");
  EXPECT_EQ(adaptFehlerTexte(now(), dictionary, 1).YIst.text, "-.--");
}

// ---- Words and values ----

TEST_F(AdaptFehlerTest, WordsOfTheDialog) {
  const AdaptFehlerTexte t = texts(0.022, 0.01);
  EXPECT_EQ(t.titel, "AutoAdapt Fehlmessung!");
  EXPECT_EQ(t.CmdAdaptCont[0], "D2217");
  EXPECT_EQ(t.CmdAdaptCont[1], "D3020");
  const std::array<std::string, 12> words{"D1006",         "D2241",        "", "X-D1100", "",
                                          "D2218 24 s ?",  "Y-D1100",      "", "",        "D2240",
                                          "D5001 - D5005", "D5000 - D5005"};
  EXPECT_EQ(t.lblAdaptMsg, words);
}

TEST_F(AdaptFehlerTest, TooLongATimeIsToldWithoutAQuestion) {
  EXPECT_EQ(texts(0.0913, 0).lblAdaptMsg[5], "D2219 > 100s !!!");
  EXPECT_EQ(texts(0.0911, 0).lblAdaptMsg[5], "D2218 99 s ?");
}

TEST_F(AdaptFehlerTest, ValuesInMmWithTheColourOfTheirAxis) {
  const AdaptFehlerTexte t = texts(0.0115, 0.01234);
  EXPECT_EQ(t.XSoll.text, "0.0100");
  EXPECT_EQ(t.XIst.text, "0.0115");
  EXPECT_EQ(t.YSoll.text, "0.0200");
  EXPECT_EQ(t.YIst.text, "0.0123");
  EXPECT_EQ(t.XSoll.farbe, FarbeRot);
  EXPECT_EQ(t.XIst.farbe, FarbeRot);
  EXPECT_EQ(t.YSoll.farbe, FarbeGruen);
  EXPECT_EQ(t.YIst.farbe, FarbeGruen);
}

TEST_F(AdaptFehlerTest, ValuesInMil) {
  const AdaptFehlerTexte t = texts(0.0508, 0.0127, 1);
  EXPECT_EQ(t.XSoll.text, "0.39");
  EXPECT_EQ(t.XIst.text, "2.00");
  EXPECT_EQ(t.YSoll.text, "0.79");
  EXPECT_EQ(t.YIst.text, "0.50");
}

TEST_F(AdaptFehlerTest, ReachingExactlyTheTargetIsGreen) {
  failed(0.5, 0);
  aims.X_Genauigkeit = point.zustand().AdaptKX;
  EXPECT_EQ(adaptFehlerTexte(now(), dictionary, 0).XIst.farbe, FarbeGruen);
  aims.X_Genauigkeit = std::nextafter(aims.X_Genauigkeit, 0);
  EXPECT_EQ(adaptFehlerTexte(now(), dictionary, 0).XIst.farbe, FarbeRot);
}

// ---- Buttons ----

TEST_F(AdaptFehlerTest, LongerTimeGoesIntoTheSeriesAndTheSettings) {
  AdaptFehler failure = failed(0.022, 0.01);
  failure.CmdAdaptCont(0);
  EXPECT_EQ(aims.MessZeitMax, 24);
  EXPECT_EQ(stored("MessInfo_G"), "24");
  const AdaptZustand& z = point.zustand();
  EXPECT_EQ(z.AdaptN, 0);
  EXPECT_FALSE(z.AdaptWeiter);
  EXPECT_EQ(z.AdaptStart, Noon + 30);
  EXPECT_EQ(z.AdaptMinEnde, Noon + 40);
  EXPECT_EQ(z.AdaptMaxEnde, Noon + 54);
}

TEST_F(AdaptFehlerTest, LongerTimeGoesIntoTheSectionOfTheKind) {
  section = "MessInfo_P";
  failed(0.022, 0.01).CmdAdaptCont(0);
  EXPECT_EQ(stored("MessInfo_P"), "24");
  EXPECT_EQ(stored("MessInfo_G"), "none");
}

TEST_F(AdaptFehlerTest, TimeThatIsTooLongIsNotTaken) {
  AdaptFehler failure = failed(0.0913, 0);
  failure.CmdAdaptCont(0);
  EXPECT_EQ(aims.MessZeitMax, 12);
  EXPECT_EQ(stored("MessInfo_G"), "none");
  EXPECT_EQ(point.zustand().AdaptN, 2);
}

TEST_F(AdaptFehlerTest, GivingUpChangesNoTime) {
  AdaptFehler failure = failed(0.022, 0.01);
  failure.CmdAdaptCont(1);
  EXPECT_EQ(aims.MessZeitMax, 12);
  EXPECT_EQ(stored("MessInfo_G"), "none");
  EXPECT_EQ(point.zustand().AdaptN, 2);
  EXPECT_TRUE(point.zustand().AdaptWeiter);
}

}  // namespace
}  // namespace korvin
