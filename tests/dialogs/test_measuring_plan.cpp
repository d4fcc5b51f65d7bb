// The plan of a measurement: record to texts, texts to record.

#include <gtest/gtest.h>

#include <cmath>

#include "dialogs/measuring_plan.h"
#include "support/test_ports.h"

namespace korvin {
namespace {

constexpr double day = 45000;  // 15.03.2023
constexpr double noon = 0.5;

PositionsInfo fresh() {
  PositionsInfo info;
  info.RestMP = -1;
  return info;
}

PositionsInfo entered(const MessplanTexte& plan, PositionsInfo info = fresh()) {
  messplanSetzen(plan, info);
  return info;
}

// ---- From the record ----

TEST(MeasuringPlan, ARecordWithoutAPlanShowsOnlyTheIntervalOfNone) {
  EXPECT_EQ(messplanTexte(fresh()), (MessplanTexte{"", "0", "", "", "", ""}));
  EXPECT_FALSE(hatMessplan(fresh()));
}

TEST(MeasuringPlan, EachPartOfTheRecordHasItsBox) {
  PositionsInfo info = fresh();
  info.RestMP = 12;
  info.Intervall = 2.5;
  info.StartAktiv = true;
  info.StartZeit = day + noon;
  info.StopAktiv = true;
  info.StopZeit = day + 1 + 0.25;
  EXPECT_EQ(messplanTexte(info),
            (MessplanTexte{"12", "2.5", "15.03.23", "12:00:00", "16.03.23", "06:00:00"}));
}

TEST(MeasuringPlan, TimesThatAreNotSetStayEmptyWhateverTheirValue) {
  PositionsInfo info = fresh();
  info.StartZeit = day;
  info.StopZeit = day;
  const MessplanTexte plan = messplanTexte(info);
  EXPECT_EQ(plan.startDatum + plan.startZeit + plan.stopDatum + plan.stopZeit, "");
}

TEST(MeasuringPlan, AnyPartMakesAPlan) {
  for (const auto& set :
       {+[](PositionsInfo& i) { i.RestMP = 0; }, +[](PositionsInfo& i) { i.Intervall = 1; },
        +[](PositionsInfo& i) { i.StartAktiv = true; }, +[](PositionsInfo& i) { i.StopAktiv = true; }}) {
    PositionsInfo info = fresh();
    set(info);
    EXPECT_TRUE(hatMessplan(info));
  }
}

// ---- Into the record ----

TEST(MeasuringPlan, AnEmptyNumberOfPointsMeansNoLimit) {
  EXPECT_EQ(entered({.anzahl = ""}).RestMP, -1);
  EXPECT_EQ(entered({.anzahl = "  "}).RestMP, -1);
  EXPECT_EQ(entered({.anzahl = "0"}).RestMP, 0);
  EXPECT_EQ(entered({.anzahl = "25"}).RestMP, 25);
}

TEST(MeasuringPlan, NumbersAreReadLeniently) {
  EXPECT_EQ(entered({.anzahl = "12 points"}).RestMP, 12);
  EXPECT_EQ(entered({.anzahl = "many"}).RestMP, 0);
  EXPECT_EQ(entered({.anzahl = "99999"}).RestMP, 32767);
  EXPECT_EQ(entered({.intervall = "1,5"}).Intervall, 1.5);
  EXPECT_EQ(entered({.intervall = "60 s"}).Intervall, 60);
  EXPECT_EQ(entered({.intervall = ""}).Intervall, 0);
  EXPECT_EQ(entered({.intervall = "1e999"}).Intervall, 0) << "a file with it could not be read again";
}

TEST(MeasuringPlan, ATimeSetsItsFlagAndLiesOnItsDate) {
  const PositionsInfo info = entered(
      {.startDatum = "15.03.23", .startZeit = "12:00:00", .stopDatum = "16.3.2023", .stopZeit = "06:00:00"});
  EXPECT_TRUE(info.StartAktiv);
  EXPECT_EQ(info.StartZeit, day + noon);
  EXPECT_TRUE(info.StopAktiv);
  EXPECT_EQ(info.StopZeit, day + 1.25);
  EXPECT_EQ(info.StartAktiv.raw(), -1);
}

TEST(MeasuringPlan, ATimeWithoutADateTakesDateZero) {
  const PositionsInfo info = entered({.startZeit = "12:00:00", .stopZeit = "18:00:00"});
  EXPECT_TRUE(info.StartAktiv);
  EXPECT_EQ(info.StartZeit, noon);
  EXPECT_TRUE(info.StopAktiv);
  EXPECT_EQ(info.StopZeit, 0.75);
}

TEST(MeasuringPlan, ADateThatIsNoneCountsAsNone) {
  EXPECT_EQ(entered({.startDatum = "31.02.23", .startZeit = "12:00:00"}).StartZeit, noon);
}

TEST(MeasuringPlan, AnEmptyTimeClearsItsFlagWhateverTheDate) {
  PositionsInfo info = fresh();
  info.StartAktiv = info.StopAktiv = true;
  info = entered({.startDatum = "15.03.23", .startZeit = " ", .stopDatum = "15.03.23"}, info);
  EXPECT_FALSE(info.StartAktiv);
  EXPECT_FALSE(info.StopAktiv);
}

// ---- Both ways ----

TEST(MeasuringPlan, WhatIsShownAndTakenAgainStays) {
  PositionsInfo before = fresh();
  before.RestMP = 3;
  before.Intervall = 0.1;
  before.StartAktiv = before.StopAktiv = true;
  before.StartZeit = day + noon + 0.3 / 86400;  // not on a whole second
  before.StopZeit = day + 50 * 366;             // its year has no two digits of its own
  const PositionsInfo after = entered(messplanTexte(before), before);
  EXPECT_EQ(after.RestMP, before.RestMP);
  EXPECT_EQ(after.Intervall, before.Intervall);
  EXPECT_EQ(after.StartZeit, before.StartZeit);
  EXPECT_EQ(after.StopZeit, before.StopZeit);
}

TEST(MeasuringPlan, ATimeOfDateZeroComesBackWithoutADate) {
  const PositionsInfo info = entered({.startZeit = "12:00:00"});
  EXPECT_EQ(messplanTexte(info).startDatum, "");
  EXPECT_EQ(messplanTexte(info).startZeit, "12:00:00");
  EXPECT_EQ(entered(messplanTexte(info)).StartZeit, noon);
}

TEST(MeasuringPlan, ATimeThatIsSetAnewDoesNotKeepTheOldMoment) {
  PositionsInfo info = fresh();
  info.StartZeit = day + noon + 0.3 / 86400;
  EXPECT_EQ(entered({.startDatum = "15.03.23", .startZeit = "12:00:00"}, info).StartZeit, day + noon);
}

// ---- What stands beside the boxes ----

class PlanHints : public testing::Test {
 protected:
  MessplanHinweise hints(const MessplanTexte& plan) { return messplanHinweise(plan, dictionary); }
  test::TestDictionary dictionary;
};

TEST_F(PlanHints, APlainPlanHasNone) {
  const MessplanHinweise all = hints({"12", "2,5", "15.03.23", "12:00:00", "", ""});
  EXPECT_EQ(all.anzahl + all.intervall + all.start + all.stop, "");
}

TEST_F(PlanHints, TellHowANumberIsRead) {
  EXPECT_EQ(hints({.anzahl = "2.6"}).anzahl, "D7480: 3");
  EXPECT_EQ(hints({.anzahl = "many"}).anzahl, "D7480: 0");
  EXPECT_EQ(hints({.intervall = "5 min"}).intervall, "D7480: 5");
  EXPECT_EQ(hints({.intervall = std::string(400, '9')}).intervall, "D7480: 0");
}

TEST_F(PlanHints, TellOfANumberThatIsCutOffOrHeldWithinItsField) {
  EXPECT_EQ(hints({.anzahl = "40000"}).anzahl, "D7480: 32767");
  EXPECT_EQ(hints({.anzahl = "5-3"}).anzahl, "D7480: 5");
  EXPECT_EQ(hints({.anzahl = "1 000"}).anzahl, "D7480: 1");
  EXPECT_EQ(hints({.intervall = "1,5,2"}).intervall, "D7480: 1.5");
  EXPECT_EQ(hints({.intervall = "-"}).intervall, "D7480: 0");
  EXPECT_EQ(hints({.intervall = "."}).intervall, "D7480: 0");
}

TEST_F(PlanHints, SayNothingOfAPlainNumberHoweverItIsWritten) {
  for (const char* text : {"", "  ", "7", " 7 ", "+7", "-7", "007", "7.", "7,0"})
    EXPECT_EQ(hints({.anzahl = text}).anzahl, "") << text;
  for (const char* text : {"0", ".5", "0,25", " 3600.125 "})
    EXPECT_EQ(hints({.intervall = text}).intervall, "") << text;
}

TEST_F(PlanHints, TellWhatADateDoes) {
  EXPECT_EQ(hints({.startDatum = "tomorrow", .startZeit = "12:00:00"}).start, "D7481");
  EXPECT_EQ(hints({.startZeit = "12:00:00"}).start, "D7482");
  EXPECT_EQ(hints({.stopZeit = "12:00:00"}).stop, "D7483");
  EXPECT_EQ(hints({.stopDatum = "15.03.23"}).stop, "");
}

}  // namespace
}  // namespace korvin
