// Points moved along the line: by entry, by mouse and by arrow keys.

#include "gerad_stand.h"

namespace korvin {
namespace {

class Points : public test::GeradStand {
 protected:
  QPoint at(double z_mm) { return diagram().placeOf({z_mm, 0})->toPoint(); }
  double zOf(std::size_t point) { return line().Z.at(point); }
  void mode() {
    show();
    click("ZMMOD");
    settle();
  }
  void typeZ(const char* text) {
    z().setFocus();
    z().selectAll();
    QTest::keyClicks(&z(), QString::fromUtf8(text));
    QTest::keyClick(&z(), Qt::Key_Return);
  }
};

TEST_F(Points, APressChoosesThePointAndNothingMoves) {
  show();
  QTest::mousePress(&diagram(), Qt::LeftButton, {}, at(1500));
  EXPECT_EQ(text("PanelMessPkt"), "4 / 6");
  QTest::mouseMove(&diagram(), at(1600));
  QTest::mouseRelease(&diagram(), Qt::LeftButton, {}, at(1600));
  EXPECT_EQ(zOf(4), 1500);
  EXPECT_EQ(world.messages.beeps, 0);
  EXPECT_FALSE(info().Geaendert);
  QTest::mouseClick(&diagram(), Qt::LeftButton, {}, at(1250));
  EXPECT_EQ(text("PanelMessPkt"), "4 / 6") << "between two points";
}

TEST_F(Points, TheModeShowsAtPointerAndEntry) {
  show();
  EXPECT_EQ(diagram().cursor().shape(), Qt::UpArrowCursor);
  EXPECT_FALSE(z().isEnabled());
  EXPECT_TRUE(z().toolTip().isEmpty());
  EXPECT_EQ(z().grab().toImage().pixelColor(8, z().height() / 2), QColor(0xC0, 0xC0, 0xC0));
  type(Qt::Key_F4);
  EXPECT_EQ(diagram("X").cursor().shape(), Qt::SizeAllCursor);
  EXPECT_EQ(diagram("Y").cursor().shape(), Qt::SizeAllCursor);
  EXPECT_TRUE(z().isEnabled());
  EXPECT_EQ(z().toolTip().toStdString(), "D3092");
  EXPECT_EQ(z().grab().toImage().pixelColor(8, z().height() / 2), QColor(255, 255, 255));
  click("ZMMOD");
  EXPECT_EQ(diagram("Y").cursor().shape(), Qt::UpArrowCursor);
  EXPECT_FALSE(z().isEnabled());
}

TEST_F(Points, ADragMovesThePointAndEndsWithABeep) {
  mode();
  QTest::mousePress(&diagram(), Qt::LeftButton, {}, at(1000));
  EXPECT_EQ(line().AktMP, 3);
  QTest::mouseMove(&diagram(), at(1200));
  EXPECT_EQ(diagram().cursor().shape(), Qt::SizeHorCursor);
  EXPECT_NEAR(zOf(3), 1200, 5);
  EXPECT_EQ(z().text().toStdString(), cell(2, LineTableModel::Z));
  EXPECT_EQ(world.messages.beeps, 0);
  QTest::mouseRelease(&diagram(), Qt::LeftButton, {}, at(1200));
  EXPECT_EQ(diagram().cursor().shape(), Qt::SizeAllCursor);
  EXPECT_EQ(world.messages.beeps, 1);
  EXPECT_TRUE(info().Geaendert);
  QTest::mouseMove(&diagram(), at(900));
  EXPECT_NEAR(zOf(3), 1200, 5) << "let go";
}

TEST_F(Points, PointsKeepTheirOrderAndAGap) {
  mode();
  QTest::mousePress(&diagram(), Qt::LeftButton, {}, at(1000));
  QTest::mouseMove(&diagram(), at(2200));
  EXPECT_DOUBLE_EQ(zOf(3), 1500 - 12.5);
  QTest::mouseMove(&diagram(), at(10));
  EXPECT_DOUBLE_EQ(zOf(3), 500 + 12.5);
  QTest::mouseRelease(&diagram(), Qt::LeftButton, {}, at(10));
}

TEST_F(Points, TheFirstPointCannotBeDragged) {
  mode();
  QTest::mousePress(&diagram(), Qt::LeftButton, {}, at(0));
  QTest::mouseMove(&diagram(), at(200));
  QTest::mouseRelease(&diagram(), Qt::LeftButton, {}, at(200));
  EXPECT_EQ(zOf(1), 0);
  EXPECT_EQ(world.messages.beeps, 0);
}

TEST_F(Points, ArrowKeysShiftTheHeldPoint) {
  mode();
  QTest::mousePress(&diagram("Y"), Qt::LeftButton, {}, diagram("Y").placeOf({1000, 0})->toPoint());
  QTest::keyClick(&diagram("Y"), Qt::Key_Right);
  QTest::keyClick(&diagram("Y"), Qt::Key_Right);
  QTest::keyClick(&diagram("Y"), Qt::Key_Left);
  EXPECT_NEAR(zOf(3), 1000.1, 1e-9);
  EXPECT_EQ(line().AktMP, 3) << "the cursor stays at the held point";
  QTest::mouseRelease(&diagram("Y"), Qt::LeftButton);
  QTest::keyClick(&diagram("Y"), Qt::Key_Right);
  EXPECT_EQ(line().AktMP, 4) << "without a held point the key moves the cursor";
  EXPECT_NEAR(zOf(3), 1000.1, 1e-9);
}

TEST_F(Points, EntryMovesTheCurrentPoint) {
  mode();
  click("ZR");
  typeZ("612,5");
  EXPECT_EQ(zOf(2), 612.5);
  EXPECT_EQ(z().text().toStdString(), "612.5");
  EXPECT_EQ(cell(1, LineTableModel::Z), "612.5");
  EXPECT_TRUE(info().Geaendert);
  typeZ("9999");
  EXPECT_EQ(zOf(2), 1000 - 12.5);
  EXPECT_EQ(z().text().toStdString(), "987.5");
}

TEST_F(Points, EntryShowsTheZOfThePointAlsoWhereItDidNotMove) {
  mode();
  typeZ("50");
  EXPECT_EQ(zOf(1), 0);
  EXPECT_EQ(z().text().toStdString(), "0.0") << "the first point stays";
  click("ZR");
  typeZ("9999");
  typeZ("5000");
  EXPECT_EQ(z().text().toStdString(), "987.5") << "up to its neighbour already";
}

TEST_F(Points, DataThatReplaceTheOnesUnderADragLetGoOfThePoint) {
  mode();
  QTest::mousePress(&diagram(), Qt::LeftButton, {}, at(1000));
  QTest::mouseMove(&diagram(), at(1200));
  world.messages.answers.push_back(MessageAnswer::no);
  type(Qt::Key_N, Qt::ControlModifier);
  EXPECT_EQ(zOf(3), 1000);
  EXPECT_EQ(diagram().cursor().shape(), Qt::SizeAllCursor);
  EXPECT_TRUE(z().isEnabled());
  QTest::mouseMove(&diagram(), at(1300));
  EXPECT_EQ(zOf(3), 1000);
  EXPECT_FALSE(info().Geaendert);
  QTest::mouseRelease(&diagram(), Qt::LeftButton, {}, at(1300));
}

TEST_F(Points, EndOfTheModeLetsGoOfThePoint) {
  mode();
  QTest::mousePress(&diagram(), Qt::LeftButton, {}, at(1000));
  type(Qt::Key_F4);
  QTest::mouseMove(&diagram(), at(1300));
  EXPECT_EQ(zOf(3), 1000);
  EXPECT_EQ(diagram().cursor().shape(), Qt::UpArrowCursor);
  QTest::mouseRelease(&diagram(), Qt::LeftButton, {}, at(1300));
  EXPECT_EQ(world.messages.beeps, 0);
}

TEST_F(Points, EntryIsInInchThere) {
  world.system.Masssystem = 1;
  mode();
  click("ZR");
  typeZ("20");
  EXPECT_DOUBLE_EQ(zOf(2), 508);
  EXPECT_EQ(z().text().toStdString(), "20.0");
}

TEST_F(Points, EntryWithoutANumberIsRefusedAndThePointStays) {
  mode();
  click("ZR");
  typeZ("abc");
  EXPECT_EQ(zOf(2), 500);
  ASSERT_EQ(world.messages.shown.size(), 1U);
  EXPECT_EQ(world.messages.shown[0].text, "D6013");
  EXPECT_EQ(world.messages.beeps, 1);
  EXPECT_EQ(z().text().toStdString(), "500.0");
  EXPECT_FALSE(info().Geaendert);
}

TEST_F(Points, ArrowKeysInTheEntryMoveItsCaretAndNotTheCursor) {
  mode();
  click("ZR");
  z().setFocus();
  z().setCursorPosition(0);
  QTest::keyClick(&z(), Qt::Key_Right);
  EXPECT_EQ(line().AktMP, 2);
  EXPECT_EQ(z().cursorPosition(), 1);
}

TEST_F(Points, WhatIsBeingTypedIsLeftAloneByReadings) {
  mode();
  click("XYMPN");
  run(1.5);
  z().setFocus();
  z().selectAll();
  QTest::keyClicks(&z(), QStringLiteral("12"));
  run(1);
  EXPECT_EQ(z().text().toStdString(), "12");
}

TEST_F(Points, MovedPointsHaveNoSectionResult) {
  mode();
  takePoints({0, 0.02, 0.02, 0.01, 0.03, 0});
  series().X.ProEinheit = 1000;
  click("STATISTIK");
  click("t");
  EXPECT_EQ(text("PanelXStatistik(8)").substr(0, 6), "0.0306") << text("PanelXStatistik(8)");
  click("ZL");
  typeZ("1900");
  EXPECT_EQ(text("PanelXStatistik(8)"), "-.---- / -.- z -");
}

}  // namespace
}  // namespace korvin
