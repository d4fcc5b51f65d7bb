// The limits of every entry box of the dialog, metric and inch, by the keyboard.

#include "options_g_ui_stand.h"

namespace korvin {
namespace {

/// A box, the page that it stands on, what is refused there and what the message tells, and entries at the
/// limits with the form that they get.
struct BoxLimits {
  int index;
  std::int16_t units;
  const char* page;
  std::vector<const char*> refused;
  const char* range;
  bool blank;  ///< is accepted
  std::vector<std::pair<const char*, const char*>> accepted;
};

class OptionsGLimits : public test::OptionsGStand, public ::testing::WithParamInterface<BoxLimits> {
 protected:
  OptionsGLimits() {
    system.Masssystem = GetParam().units;
    store("MessInfo_G", "AutoAdapt", "-1");
    store("MessInfo_G", "MessZeitMin", "7");
    showFromSeries();
    openTab(GetParam().page);
  }
  int index() const { return GetParam().index; }
};

TEST_P(OptionsGLimits, WhatLiesBeyondIsToldInTheBoxAndBesideTheField) {
  std::string range = GetParam().range;
  std::string beside = range;
  beside.replace(beside.find(" .."), 3, " .. ");
  for (const char* bad : GetParam().refused) {
    messages.shown.clear();
    enter(index(), bad);
    leave(index());
    ASSERT_EQ(messages.shown.size(), 1U) << bad;
    EXPECT_EQ(messages.shown[0].title, "D6013:");
    EXPECT_EQ(messages.shown[0].text, (GetParam().blank ? "D6014\r\n" : "D6015D6014\r\n") + range + ": ");
    EXPECT_EQ(messages.shown[0].icon, MessageIcon::warning);
    EXPECT_EQ(hint(index()), "D6014: " + beside);
    EXPECT_TRUE(box(index())->property("refused").toBool());
    EXPECT_TRUE(box(index())->hasFocus()) << bad;
    EXPECT_EQ(text(index()), bad) << "what was typed stays";
  }
}

TEST_P(OptionsGLimits, NorIsItTakenOver) {
  enter(index(), GetParam().refused.front());
  ok();
  EXPECT_FALSE(closed());
  apply();
  QTest::keyClick(box(index()), Qt::Key_Return);
  EXPECT_FALSE(closed());
  EXPECT_EQ(messages.shown.size(), 3U);
  EXPECT_TRUE(box(index())->hasFocus());
  EXPECT_EQ(stored("KorInfo", "FirmaName"), "none");
  messages.shown.clear();
  cancel();
  EXPECT_TRUE(closed()) << "cancelling needs no right entry";
  EXPECT_TRUE(messages.shown.empty());
}

TEST_P(OptionsGLimits, AnotherTabComesBack) {
  enter(index(), GetParam().refused.front());
  openTab("TabDisplay");
  EXPECT_EQ(tabs().currentWidget(), find<QWidget>(GetParam().page));
  EXPECT_TRUE(box(index())->hasFocus());
}

TEST_P(OptionsGLimits, TheLimitsThemselvesPassAndGetTheirForm) {
  for (const auto& [entered, form] : GetParam().accepted) {
    enter(index(), entered);
    leave(index());
    EXPECT_EQ(text(index()), form) << entered;
    EXPECT_FALSE(box(index())->hasFocus());
    EXPECT_EQ(hint(index()), "");
  }
  EXPECT_TRUE(messages.shown.empty());
}

TEST_P(OptionsGLimits, ABlankIsATolerancesRight) {
  enter(index(), "");
  leave(index());
  EXPECT_EQ(messages.shown.empty(), GetParam().blank);
}

constexpr const char* object = "TabMessobjekt";
constexpr const char* instrument = "TabMessinstrument";

BoxLimits tolerance(int index, std::int16_t units) {
  if (units == 0)
    return {index, 0, object, {"-0.001", "10.001"}, "0 ..10", true, {{"0", "0.000"}, {"10", "10.000"}}};
  return {index, 1, object, {"-0.01", "393.71"}, "0 ..393.7", true, {{"0", "0.00"}, {"393,7", "393.70"}}};
}
BoxLimits accuracy(int index, std::int16_t units) {
  if (units == 0)
    return {index,
            0,
            instrument,
            {"0.0009", "1.0001", "x"},
            "0.001 ..1",
            false,
            {{"0.001", "0.0010"}, {"1", "1.0000"}}};
  return {index, 1, instrument, {"0.99", "1000.01"}, "1 ..1000", false, {{"1", "1.00"}, {"1000", "1000.00"}}};
}

INSTANTIATE_TEST_SUITE_P(
    Boxes, OptionsGLimits,
    ::testing::Values(
        BoxLimits{8,
                  0,
                  object,
                  {"1", "201", "0", "-6", "many"},
                  "2 ..200",
                  false,
                  {{"2", "2"}, {"200", "200"}, {"7,4", "7"}}},
        BoxLimits{9,
                  0,
                  object,
                  {"9.9", "50000.1"},
                  "10 ..50000",
                  false,
                  {{"10", "10.0"}, {"50000", "50000.0"}, {"12,55", "12.6"}}},
        BoxLimits{
            9, 1, object, {"0.3", "1968.6"}, "0.4 ..1968.5", false, {{"0.4", "0.4"}, {"1968.5", "1968.5"}}},
        tolerance(10, 0), tolerance(10, 1), tolerance(11, 0), tolerance(11, 1), tolerance(13, 0),
        tolerance(13, 1), tolerance(14, 0), tolerance(14, 1), accuracy(16, 0), accuracy(16, 1),
        accuracy(17, 0), accuracy(17, 1),
        BoxLimits{18, 0, instrument, {"4", "100"}, "5 ..99", false, {{"5", "5"}, {"99", "99"}}},
        BoxLimits{19, 0, instrument, {"6", "100"}, "7 ..99", false, {{"7", "7"}, {"99", "99"}}},
        BoxLimits{21, 0, instrument, {"0", "17"}, "1 ..16", false, {{"1", "1"}, {"16", "16"}}}),
    [](const auto& each) {
      return "Box" + std::to_string(each.param.index) + (each.param.units == 0 ? "Metric" : "Inch");
    });

// ---- Boxes that are not checked ----

class OptionsGUnchecked : public test::OptionsGStand {};

TEST_F(OptionsGUnchecked, TheLengthOfASectionIsTakenAsItIsRead) {
  showFromSeries();
  openTab(object);
  for (const int index : {12, 15}) {
    enter(index, "about 10");
    EXPECT_EQ(hint(index), "D7480: 0") << "said beside the box";
    leave(index);
    EXPECT_FALSE(box(index)->hasFocus());
    enter(index, "123.456");
    EXPECT_EQ(hint(index), "");
  }
  ok();
  EXPECT_TRUE(closed());
  EXPECT_TRUE(messages.shown.empty());
  EXPECT_EQ(stored("Toleranz_G", "XProEinheit"), "123.456");
  EXPECT_EQ(series().Y.ProEinheit, 123.456);
}

TEST_F(OptionsGUnchecked, TextsAreHeldToTheRecordsFields) {
  showFromMainWindow();
  for (const int index : {0, 2, 4, 5}) {
    enter(index, std::string(80, 'x').c_str());
    EXPECT_EQ(text(index).size(), 75U) << index;
  }
}

// ---- What was stored by other hands ----

TEST_F(OptionsGUnchecked, AStoredLineThatIsNoneIsAskedForBeforeTakingOver) {
  for (const auto& [key, index] : {std::pair{"AnzMPs", 8}, std::pair{"Distanz", 9}}) {
    store("MessInfo_G", key, "1");
    messages.shown.clear();
    showFromSeries();
    enter(0, "Maker");
    ok();
    EXPECT_FALSE(closed()) << key;
    EXPECT_EQ(messages.shown.size(), 1U);
    EXPECT_EQ(tabs().currentIndex(), 1) << "the box is brought to the front";
    EXPECT_TRUE(box(index)->hasFocus());
    enter(index, "100");
    ok();
    EXPECT_TRUE(closed());
  }
}

TEST_F(OptionsGUnchecked, OtherStoredValuesBeyondTheirLimitsStayUntilTheyAreTouched) {
  system.Masssystem = 1;
  store("KorInfo", "PortNr", "20");
  store("MessInfo_G", "AutoAdapt", "-1");
  store("MessInfo_G", "MessZeitMin", "3");
  showFromSeries();
  openTab(instrument);
  click(box(16));
  for (const int index : {16, 17, 18, 21}) {
    box(index)->setFocus();
    leave(index);
    EXPECT_FALSE(box(index)->hasFocus()) << "walking through asks nothing";
  }
  choose("cmbFilter", 3);
  ok();
  EXPECT_TRUE(closed());
  EXPECT_TRUE(messages.shown.empty());
  EXPECT_EQ(stored("KorInfo", "PortNr"), "20");
  EXPECT_EQ(stored("MessInfo_G", "MessZeitMin"), "3");
  EXPECT_EQ(stored("MessInfo_G", "X_Genauigkeit"), "0.01");
}

}  // namespace
}  // namespace korvin
