#include "position/panel_texts.h"

#include <gtest/gtest.h>

#include "frame/leerwert.h"
#include "support/test_ports.h"

namespace korvin {
namespace {

class PanelTextsTest : public ::testing::Test {
 protected:
  PanelTextsTest() {
    formpos.Info().RestMP = -1;
    formpos.Info().NKStellen = 2;
  }
  void point(double x, double y) {
    formpos.arbeit().X.Aktuell = x;
    formpos.arbeit().Y.Aktuell = y;
    formpos.punktHinzufuegen(45000.5);
  }
  PositionsTexte texts() { return positionsTexte(formpos); }
  PositionsInfo& info() { return formpos.Info(); }

  FORMPOS formpos;
};

TEST_F(PanelTextsTest, WithoutPoints) {
  const PositionsTexte t = texts();
  EXPECT_EQ(t.X, "-.---");
  EXPECT_EQ(t.Y, "-.---");
  EXPECT_EQ(t.MessPkt, "- ");
  EXPECT_EQ(t.MPsTotal, "- ");
  EXPECT_EQ(t.Offset, "--- / -.--- / -.--- ");
  EXPECT_FALSE(t.MessRate);
  EXPECT_FALSE(t.MpsStart);
  EXPECT_FALSE(t.StartZeit);
  EXPECT_FALSE(t.StopZeit);
}

TEST_F(PanelTextsTest, ValueUnderTheCursorLessTheOffset) {
  point(1.5, -2.25);
  point(2, 0);
  info().MPAktuell = 1;
  info().OffsetAktiv = true;
  info().OffsetMP = 2;
  formpos.arbeit().X.Offset = 2;
  EXPECT_EQ(texts().X, "-0.500");
  EXPECT_EQ(texts().Y, "-2.250");
  EXPECT_EQ(texts().MessPkt, "1");
  EXPECT_EQ(texts().MPsTotal, "2");
  EXPECT_EQ(texts().Offset, "2 / 2.000 / 0.000");
}

TEST_F(PanelTextsTest, EmptyValueAndACursorOutsideThePointsShowThePattern) {
  point(Leerwert, 1);
  EXPECT_EQ(texts().X, "-.---");
  EXPECT_EQ(texts().Y, "1.000");
  for (const std::int16_t cursor :
       {std::int16_t{0}, std::int16_t{-1}, std::int16_t{2}, std::int16_t{30001}}) {
    info().MPAktuell = cursor;
    EXPECT_EQ(texts().Y, "-.---") << cursor;
  }
}

TEST_F(PanelTextsTest, PlanOfARun) {
  info().Intervall = 0.5;
  info().RestMP = 0;
  info().StartAktiv = true;
  info().StartZeit = 45000.25;
  info().StopAktiv = true;
  info().StopZeit = 45001.75;
  const PositionsTexte t = texts();
  EXPECT_EQ(t.MessRate, "0.5");
  EXPECT_EQ(t.MpsStart, "0");
  EXPECT_EQ(t.StartZeit, "  06:00:00");
  EXPECT_EQ(t.StopZeit, "  18:00:00");
}

TEST_F(PanelTextsTest, TitleIsPathAndKind) {
  test::TestDictionary dictionary;
  info().DateiName = "C:\\M\xFCller.O";
  EXPECT_EQ(fensterTitel(info(), dictionary), "C:\\Müller.O [D5502]");
}

}  // namespace
}  // namespace korvin
