#include "frame/datei_verteilung.h"

#include <gmock/gmock.h>

#include "frame/messart.h"
#include "support/test_ports.h"

namespace korvin {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A kind that keeps what it was asked for, and which `Messart` was in force then.
class TestKind : public MessartEmpfaenger {
 public:
  explicit TestKind(const std::int16_t& messart) : messart_(messart) {}

  bool laden(const std::string& name) override {
    calls.push_back("load " + name + " as " + std::to_string(messart_));
    return accepts;
  }
  void zeigen(std::int16_t DateiStatus) override {
    calls.push_back("show " + std::to_string(DateiStatus) + " as " + std::to_string(messart_));
  }

  bool accepts = true;
  std::vector<std::string> calls;

 private:
  const std::int16_t& messart_;
};

class DateiVerteilungTest : public testing::Test {
 protected:
  DateiVerteilungTest() {
    verteilung.anmelden(MessartGeradheit, geradheit);
    verteilung.anmelden(MessartPosition, position);
    verteilung.anmelden(MessartParallel, parallel);
    verteilung.anmelden(MessartRechtwinkel, rechtwinkel);
  }

  void expectNothingHappened() {
    for (const TestKind* kind : {&geradheit, &position, &parallel, &rechtwinkel})
      EXPECT_THAT(kind->calls, IsEmpty());
    EXPECT_THAT(messages.shown, IsEmpty());
    EXPECT_EQ(messages.beeps, 0);
    EXPECT_EQ(messart, 7);
  }

  std::int16_t messart = 7;
  test::TestDictionary dictionary;
  test::TestMessages messages;
  Meldung meldung;
  DateiVerteilung verteilung{messart, dictionary, messages, meldung};
  TestKind geradheit{messart};
  TestKind position{messart};
  TestKind parallel{messart};
  TestKind rechtwinkel{messart};
};

TEST_F(DateiVerteilungTest, EachLetterGoesToItsKind) {
  verteilung.verteilen("/m/a.G");
  EXPECT_THAT(geradheit.calls, ElementsAre("load /m/a.G as 0", "show 1 as 0"));
  verteilung.verteilen("/m/a.O");
  EXPECT_THAT(position.calls, ElementsAre("load /m/a.O as 1", "show 1 as 1"));
  verteilung.verteilen("/m/a.P");
  EXPECT_THAT(parallel.calls, ElementsAre("load /m/a.P as 2", "show 1 as 2"));
  verteilung.verteilen("/m/a.R");
  EXPECT_THAT(rechtwinkel.calls, ElementsAre("load /m/a.R as 3", "show 1 as 3"));
  EXPECT_THAT(messages.shown, IsEmpty());
}

TEST_F(DateiVerteilungTest, SmallLettersCountToo) {
  verteilung.verteilen("/m/a.o");
  EXPECT_THAT(position.calls, ElementsAre("load /m/a.o as 1", "show 1 as 1"));
}

TEST_F(DateiVerteilungTest, OnlyTheLastCharacterCounts) {
  verteilung.verteilen("/m/shopping.bag");
  verteilung.verteilen("/m/no dot in the namo");
  EXPECT_THAT(geradheit.calls, ElementsAre("load /m/shopping.bag as 0", "show 1 as 0"));
  EXPECT_THAT(position.calls, ElementsAre("load /m/no dot in the namo as 1", "show 1 as 1"));
}

TEST_F(DateiVerteilungTest, BlanksAtTheEndAreTrimmed) {
  verteilung.verteilen(" /m/a.O   ");
  EXPECT_THAT(position.calls, ElementsAre("load  /m/a.O as 1", "show 1 as 1"));
}

TEST_F(DateiVerteilungTest, CancelHasNoEffectAtAll) {
  verteilung.verteilen("");
  expectNothingHappened();
}

TEST_F(DateiVerteilungTest, AFileFDoesNothing) {
  verteilung.verteilen("/m/a.F");
  verteilung.verteilen("/m/a.f");
  expectNothingHappened();
}

TEST_F(DateiVerteilungTest, AnyOtherEndingIsRefused) {
  int count = 0;
  for (const char* name : {"/m/a.txt", "/m/a.O1", "/m/a.O$", "/m/a.ö", "/m/a.", "   "}) {
    verteilung.verteilen(name);
    ASSERT_EQ(messages.shown.size(), static_cast<std::size_t>(++count)) << name;
    EXPECT_EQ(messages.beeps, count);
    EXPECT_EQ(messages.shown.back().title, "D6000:");
    EXPECT_EQ(messages.shown.back().text, "D6001!\r\nD6002: *.G, *.P, *.R, *.F, *.O ");
    EXPECT_EQ(messages.shown.back().buttons, MessageButtons::ok);
  }
  EXPECT_EQ(messart, 7);
}

TEST_F(DateiVerteilungTest, ARefusedFileLeavesEverythingAsItWas) {
  position.accepts = false;
  verteilung.verteilen("/m/a.O");
  EXPECT_THAT(position.calls, ElementsAre("load /m/a.O as 1"));
  EXPECT_EQ(messart, 7);
  EXPECT_THAT(messages.shown, IsEmpty());
}

TEST_F(DateiVerteilungTest, AKindWithoutAWindowIsRefusedVisibly) {
  DateiVerteilung onlyPosition(messart, dictionary, messages, meldung);
  onlyPosition.anmelden(MessartPosition, position);
  EXPECT_TRUE(onlyPosition.vorhanden(MessartPosition));
  EXPECT_FALSE(onlyPosition.vorhanden(MessartGeradheit));
  EXPECT_FALSE(onlyPosition.vorhanden(-1));
  EXPECT_FALSE(onlyPosition.vorhanden(4));
  onlyPosition.verteilen("/m/a.G");
  onlyPosition.starten(MessartRechtwinkel);
  ASSERT_EQ(messages.shown.size(), 2U);
  EXPECT_EQ(messages.shown[0].title, "D6000:");
  EXPECT_EQ(messages.shown[0].text, "D7031");
  EXPECT_EQ(messages.shown[1].text, "D7031");
  EXPECT_EQ(messages.beeps, 2);
  EXPECT_EQ(messart, 7);
}

TEST_F(DateiVerteilungTest, StartingAKindSetsMessartAndShowsItWithNewData) {
  verteilung.starten(MessartParallel);
  EXPECT_THAT(parallel.calls, ElementsAre("show 0 as 2"));
}

TEST(FilterDateiOeffnen, TheFiveKindsInACycleFromTheKindChosen) {
  test::TestDictionary dictionary;
  const std::string g = "D501 (*.G)|*.G";
  const std::string p = "D502 (*.P)|*.P";
  const std::string r = "D503 (*.R)|*.R";
  const std::string f = "D504 (*.F)|*.F";
  const std::string o = "D505 (*.O)|*.O";
  EXPECT_EQ(FilterDateiOeffnen(dictionary, 0), g + "|" + p + "|" + r + "|" + f + "|" + o);
  EXPECT_EQ(FilterDateiOeffnen(dictionary, 1), p + "|" + r + "|" + f + "|" + o + "|" + g);
  EXPECT_EQ(FilterDateiOeffnen(dictionary, 2), f + "|" + o + "|" + g + "|" + p + "|" + r);
  EXPECT_EQ(FilterDateiOeffnen(dictionary, 3), r + "|" + f + "|" + o + "|" + g + "|" + p);
  EXPECT_EQ(FilterDateiOeffnen(dictionary, 4), o + "|" + g + "|" + p + "|" + r + "|" + f);
  EXPECT_EQ(FilterAlleMessdateien(dictionary), "D500 (*.?)|*.?|" + g + "|" + p + "|" + r + "|" + f + "|" + o);
}

TEST(FilterDateiOeffnen, TheDialogOpensInTheMeasuringFolder) {
  test::TestDictionary dictionary;
  test::TestFileDialog dialog;
  dialog.answers = {"/m/KorFiles/a.O"};
  const std::string filter = FilterDateiOeffnen(dictionary, 4);
  EXPECT_EQ(messdateiErfragen(dialog, dictionary, filter, "/m/KorFiles/"), "/m/KorFiles/a.O");
  EXPECT_EQ(messdateiErfragen(dialog, dictionary, filter, "/m/KorFiles/"), "");
  ASSERT_EQ(dialog.requests.size(), 2U);
  EXPECT_EQ(dialog.requests[0].folder, "/m/KorFiles/");
  EXPECT_EQ(dialog.requests[0].filter, filter);
  EXPECT_EQ(dialog.requests[0].title, "D2044");
  EXPECT_TRUE(dialog.requests[0].open);
}

}  // namespace
}  // namespace korvin
