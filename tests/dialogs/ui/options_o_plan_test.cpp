// The plan of the measurement in work, in the settings dialog of position measuring.

#include "options_o_stand.h"

namespace korvin {
namespace {

class PlanInDialog : public test::OptionsOStand {
 protected:
  bool shown(int index) { return box(index)->isVisible(); }
  /// The dialog from the measuring window, at its plan, switched on.
  void showPlan() {
    showFromPosition();
    openTab("TabMessinstrument");
    if (!check("CheckAutoOn")->isChecked()) click(check("CheckAutoOn"));
  }
};

TEST_F(PlanInDialog, CheckAutoOnShowsTheFieldsAndRunsTheClock) {
  showFromPosition();
  openTab("TabMessinstrument");
  for (int i = 7; i <= 12; ++i) EXPECT_FALSE(shown(i)) << i;
  EXPECT_FALSE(label("lblZeitAktuell")->isVisible());
  click(check("CheckAutoOn"));
  for (int i = 7; i <= 12; ++i) EXPECT_TRUE(shown(i)) << i;
  EXPECT_EQ(utf8Text(label("lblDatumAktuell")->text()), "15.03.23");
  EXPECT_EQ(utf8Text(label("lblZeitAktuell")->text()), "12:00:00");
  clock.advance(61);
  EXPECT_EQ(utf8Text(label("lblZeitAktuell")->text()), "12:01:01");
  click(check("CheckAutoOn"));
  clock.advance(10);
  EXPECT_EQ(utf8Text(label("lblZeitAktuell")->text()), "12:01:01") << "the clock stands";
}

TEST_F(PlanInDialog, TheDialogKeepsItsSizeWhenThePlanIsSwitched) {
  showFromPosition();
  openTab("TabMessinstrument");
  const QSize before = dialog->minimumSizeHint();
  const int button = find<QPushButton>("Commands(0)")->y();
  click(check("CheckAutoOn"));
  ASSERT_TRUE(check("CheckAutoOn")->isChecked());
  EXPECT_EQ(dialog->minimumSizeHint(), before);
  EXPECT_EQ(find<QPushButton>("Commands(0)")->y(), button);
}

TEST_F(PlanInDialog, TheRecordsPlanIsShownAtOnce) {
  info().RestMP = 25;
  info().Intervall = 10;
  info().StartAktiv = true;
  info().StartZeit = 45000.75;
  showFromPosition();
  openTab("TabMessinstrument");
  EXPECT_TRUE(check("CheckAutoOn")->isChecked());
  EXPECT_EQ(text(7), "25");
  EXPECT_EQ(text(8), "10");
  EXPECT_EQ(text(9), "15.03.23");
  EXPECT_EQ(text(10), "18:00:00");
  EXPECT_EQ(text(11), "");
  EXPECT_EQ(text(12), "");
}

TEST_F(PlanInDialog, WhatIsEnteredGoesToTheRecord) {
  showPlan();
  enter(7, "12");
  enter(8, "2,5");
  enter(9, "15.3.23");
  enter(10, "18.30");
  enter(11, "16.03.2023");
  enter(12, "6:00");
  EXPECT_EQ(text(10), "18:30:00") << "in its form once it was left";
  ok();
  EXPECT_TRUE(closed());
  EXPECT_EQ(commands, 1) << "outside of the ticks";
  EXPECT_EQ(info().RestMP, 12);
  EXPECT_EQ(info().Intervall, 2.5);
  EXPECT_TRUE(info().StartAktiv);
  EXPECT_DOUBLE_EQ(info().StartZeit, 45000 + 18.5 / 24);
  EXPECT_TRUE(info().StopAktiv);
  EXPECT_DOUBLE_EQ(info().StopZeit, 45001.25);
}

TEST_F(PlanInDialog, AnInvalidTimeTakesTheFocusBack) {
  showPlan();
  for (const int index : {10, 12}) {
    enter(index, "25:00");
    QTest::keyClick(box(index), Qt::Key_Tab);
    settle();
    EXPECT_TRUE(box(index)->hasFocus()) << index;
    EXPECT_EQ(text(index), "25:00");
    EXPECT_EQ(hint(index), "D6014: 00:00:00 .. 23:59:59");
    EXPECT_EQ(messages.shown.back().text, "D6014\r\n00:00:00 ..23:59:59: ");
    enter(index, "");
  }
  EXPECT_EQ(messages.shown.size(), 2U);
  ok();
  EXPECT_TRUE(closed());
  EXPECT_FALSE(info().StartAktiv);
}

TEST_F(PlanInDialog, TheTabulatorGoesThroughThePlanInItsOrder) {
  showPlan();
  check("CheckAutoOn")->setFocus();
  for (int index = 7; index <= 12; ++index) {
    QTest::keyClick(dialog->focusWidget(), Qt::Key_Tab);
    settle();
    EXPECT_TRUE(box(index)->hasFocus()) << index;
  }
}

TEST_F(PlanInDialog, OkDoesNotTakeAnInvalidTime) {
  showPlan();
  enter(12, "soon");
  ok();
  EXPECT_FALSE(closed());
  EXPECT_TRUE(box(12)->hasFocus());
  EXPECT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(commands, 0);
}

TEST_F(PlanInDialog, TwoBadTimesDoNotSendTheFocusToAndFro) {
  showPlan();
  enter(12, "soon");
  box(10)->setText(QStringLiteral("never"));
  click(box(10));
  for (int i = 0; i < 10; ++i) settle();
  EXPECT_TRUE(box(12)->hasFocus());
  EXPECT_EQ(messages.shown.size(), 1U);
}

TEST_F(PlanInDialog, LeavingForAnotherWindowChecksNothing) {
  showPlan();
  enter(10, "25:00");
  QLineEdit other;
  other.show();
  QApplication::setActiveWindow(&other);
  other.setFocus();
  for (int i = 0; i < 10; ++i) settle();
  ASSERT_TRUE(other.hasFocus());
  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(PlanInDialog, OtherNumbersAreReadLenientlyAndSaidSo) {
  showPlan();
  enter(7, "12 points");
  enter(8, "5 min");
  EXPECT_EQ(hint(7), "D7480: 12");
  EXPECT_EQ(hint(8), "D7480: 5");
  ok();
  EXPECT_TRUE(closed());
  EXPECT_TRUE(messages.shown.empty());
  EXPECT_EQ(info().RestMP, 12);
  EXPECT_EQ(info().Intervall, 5);
}

TEST_F(PlanInDialog, ATimeWithoutADateSaysWhatItDoes) {
  showPlan();
  enter(10, "18:00");
  EXPECT_EQ(hint(10), "D7482");
  enter(12, "19:00");
  EXPECT_EQ(hint(12), "D7483");
  enter(9, "15.03.23");
  EXPECT_EQ(hint(10), "");
  enter(11, "99.99.99");
  EXPECT_EQ(hint(12), "D7481");
  ok();
  EXPECT_DOUBLE_EQ(info().StartZeit, 45000.75);
  EXPECT_DOUBLE_EQ(info().StopZeit, 19 / 24.0) << "a date that is none counts as none";
}

TEST_F(PlanInDialog, AnEmptyNumberOfPointsMeansNoLimit) {
  info().RestMP = 5;
  showPlan();
  enter(7, "");
  ok();
  EXPECT_EQ(info().RestMP, -1);
}

TEST_F(PlanInDialog, SwitchedOffItSetsNothingAndComesBackWhenSwitchedOn) {
  info().RestMP = 5;
  info().StartAktiv = true;
  info().StartZeit = 45000.75;
  showPlan();
  click(check("CheckAutoOn"));
  EXPECT_FALSE(shown(7));
  click(check("CheckAutoOn"));
  EXPECT_EQ(text(7), "5");
  EXPECT_EQ(text(10), "18:00:00");
  click(check("CheckAutoOn"));
  ok();
  EXPECT_EQ(info().RestMP, -1);
  EXPECT_FALSE(info().StartAktiv);
}

TEST_F(PlanInDialog, AnInvalidTimeIsDroppedBySwitchingThePlanOff) {
  showPlan();
  enter(10, "25:00");
  QAbstractButton* plan = check("CheckAutoOn");
  const QPoint mark(plan->height() / 2, plan->height() / 2);
  QTest::mousePress(plan, Qt::LeftButton, {}, mark);
  // A hand takes its time between press and release.
  for (int i = 0; i < 10; ++i) settle();
  QTest::mouseRelease(plan, Qt::LeftButton, {}, mark);
  EXPECT_FALSE(check("CheckAutoOn")->isChecked());
  EXPECT_TRUE(messages.shown.empty());
  ok();
  EXPECT_TRUE(closed());
}

TEST_F(PlanInDialog, FromTheMainWindowItSaysWhereAPlanIsEntered) {
  info().RestMP = 5;
  const auto before = toBytes(info());
  showFromMainWindow();
  openTab("TabMessinstrument");
  EXPECT_FALSE(check("CheckAutoOn")->isEnabled());
  EXPECT_EQ(text(7), "");
  for (const int index : {7, 8, 9, 10, 11, 12}) box(index)->setText(QStringLiteral("1"));
  choose("cmbFilter", 4);
  ok();
  EXPECT_TRUE(closed());
  EXPECT_EQ(toBytes(info()), before);
  EXPECT_EQ(system.FilterVorgabe, '2');
}

// ---- Filter and mounting of the measurement in work ----

TEST_F(PlanInDialog, ANewFilterAsksWhatBecomesOfThePoints) {
  formpos.punktHinzufuegen(45000);
  showFromPosition();
  openTab("TabMessinstrument");
  choose("cmbFilter", 4);
  messages.answers = {MessageAnswer::no};
  ok();
  EXPECT_TRUE(closed());
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(messages.shown[0].title, "KORVIN D5502");
  EXPECT_EQ(messages.shown[0].text, "D2038 ?");
  EXPECT_EQ(info().AnzahlMP, 1);
  EXPECT_EQ(info().Filter.full(), "2");
  EXPECT_EQ(system.FilterVorgabe, '4');
}

}  // namespace
}  // namespace korvin
