// The window's diagram: its keys, panels and statistics.
#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QStackedWidget>
#include <filesystem>

#include "frame/ui/theme.h"
#include "position_stand.h"

namespace korvin {
namespace {

class Diagram : public test::PositionStand {
 protected:
  PictureXYDiagramm& picture() { return *form->findChild<PictureXYDiagramm*>(); }
  KeyToolBar& rangeBar() { return *form->findChild<KeyToolBar*>(QStringLiteral("tbrXYBereich")); }
  void clickRange(const char* name) {
    QTest::mouseClick(rangeBar().button(QString::fromLatin1(name)), Qt::LeftButton);
  }
  bool rangePressed(const char* name) { return rangeBar().isPressed(QString::fromLatin1(name)); }
  bool rangeEnabled(const char* name) { return rangeBar().isKeyEnabled(QString::fromLatin1(name)); }
  AchsenInfo& X() { return formpos.arbeit().X; }
  AchsenInfo& Y() { return formpos.arbeit().Y; }
  void pressAt(int number) {
    const auto index = static_cast<std::size_t>(number);
    const DataPoint point{formpos.punkte().X().at(index) - X().Offset,
                          formpos.punkte().Y().at(index) - Y().Offset};
    QTest::mouseClick(&picture(), Qt::LeftButton, {}, picture().placeOf(point)->toPoint());
  }
  QImage shot() {
    settle();
    return picture().grab().toImage();
  }
};

// ---- The diagram ----

TEST_F(Diagram, ShowsThePointsAsTheyCome) {
  show();
  EXPECT_TRUE(shown("PictureXYDiagramm"));
  EXPECT_DOUBLE_EQ(X().Bereich, 0.001);
  EXPECT_EQ(text("PanelXBereich"), "±1um");
  const QImage empty = shot();
  takePoints(3);
  EXPECT_DOUBLE_EQ(X().Bereich, 0.5);
  EXPECT_DOUBLE_EQ(Y().Bereich, 0.001);
  EXPECT_EQ(text("PanelXBereich"), "±500um");
  EXPECT_NE(shot(), empty);
}

TEST_F(Diagram, APressOnAPointMovesTheCursorThere) {
  show();
  takePoints(3);
  settle();
  pressAt(1);
  EXPECT_EQ(text("PanelMessPkt"), "1");
  EXPECT_EQ(text("PanelxWertNormal"), "0.1000");
  EXPECT_EQ(info().MPVorher, 3);
  QTest::mouseClick(&picture(), Qt::LeftButton, {}, picture().placeOf({-0.3, 0.0005})->toPoint());
  EXPECT_EQ(text("PanelMessPkt"), "1") << "beside all points";
  EXPECT_EQ(info().MPVorher, 3);
}

TEST_F(Diagram, APressHitsThePointUnderAnOffsetToo) {
  show();
  takePoints(3);
  click("OFFSET");
  settle();
  EXPECT_DOUBLE_EQ(X().Offset, 0.3);
  pressAt(2);
  EXPECT_EQ(text("PanelMessPkt"), "2");
  EXPECT_EQ(text("PanelxWertNormal"), "-0.1000");
}

TEST_F(Diagram, CursorKeysMoveTheMark) {
  show();
  takePoints(3);
  const QImage last = shot();
  click("MPL");
  EXPECT_NE(shot(), last);
  click("MPR");
  EXPECT_EQ(shot(), last);
}

TEST_F(Diagram, DeletedPointsAreGoneFromIt) {
  show();
  const QImage empty = shot();
  takePoints(2);
  click("LOESCHEN");
  EXPECT_EQ(shot(), empty);
}

TEST_F(Diagram, ALoadedMeasurementIsDrawn) {
  show();
  takePoints(3);
  const QImage drawn = shot();
  ASSERT_TRUE(dateien.o_DateiSpeichern(folder.path("a.O")));
  info().Geaendert = false;
  click("NEU");
  EXPECT_NE(shot(), drawn);
  formpos.bild() = {};
  fileDialog.answers.push_back(folder.path("a.O"));
  click("LADEN");
  EXPECT_EQ(info().AnzahlMP, 3);
  EXPECT_EQ(shot(), drawn);
}

TEST_F(Diagram, KeepsALightGroundInADarkDesktop) {
  show();
  takePoints(2);
  const QImage light = shot();
  applyTheme(Appearance::dark, screenScale(1024 / 1280.0, 768 / 1024.0), 0);
  const QImage dark = shot();
  applyTheme(Appearance::light, screenScale(1024 / 1280.0, 768 / 1024.0), 0);
  EXPECT_EQ(dark.pixelColor(2, 2), QColor(Qt::white));
  EXPECT_EQ(dark, light);
}

TEST_F(Diagram, IsCopiedAndSavedUnderTheMeasurementsName) {
  show();
  takePoints(2);
  info().DateiName = folder.path("shaft.bed.O");
  picture().setFocus();
  QGuiApplication::clipboard()->clear();
  QTest::keyClick(&picture(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_FALSE(QGuiApplication::clipboard()->image().isNull());
  fileDialog.answers.push_back(folder.path("diagram.svg"));
  picture().findChild<QAction*>(QStringLiteral("BildAlsSvg"))->trigger();
  ASSERT_FALSE(fileDialog.requests.empty());
  EXPECT_EQ(fileDialog.requests.back().folder, folder.path());
  EXPECT_EQ(fileDialog.requests.back().name, "shaft.bed.svg");
  const std::string svg = test::readFile(folder.path("diagram.svg"));
  EXPECT_NE(svg.find("±200um"), std::string::npos);
  EXPECT_NE(svg.find("<title>XY-D3017</title>"), std::string::npos);
}

TEST_F(Diagram, WithoutAFileASavedPictureHasAPlainName) {
  show();
  picture().savePicture(PictureFormat::png);
  EXPECT_EQ(fileDialog.requests.back().name, "XY.png");
  EXPECT_EQ(fileDialog.requests.back().folder, folder.path());
}

// ---- Switches ----

TEST_F(Diagram, AllOrOnlyTheLastIsKeptInTheRecord) {
  show();
  EXPECT_TRUE(pressed("ALLE"));
  takePoints(3);
  const QImage all = shot();
  click("ALLE");
  EXPECT_TRUE(info().NurAktuell);
  EXPECT_FALSE(pressed("ALLE"));
  EXPECT_NE(shot(), all);
  type(Qt::Key_F4);
  EXPECT_FALSE(info().NurAktuell);
  EXPECT_EQ(shot(), all);
  EXPECT_FALSE(info().Geaendert && world.messages.shown.size() > 0);
}

TEST_F(Diagram, TheGridIsSwitchedInTheMenuAndKeptInTheRecord) {
  show();
  EXPECT_TRUE(entry("M_Gitter")->isChecked());
  EXPECT_TRUE(entry("M_Gitter")->isEnabled());
  const QImage grid = shot();
  entry("M_Gitter")->trigger();
  EXPECT_FALSE(info().Gitter);
  EXPECT_FALSE(entry("M_Gitter")->isChecked());
  EXPECT_NE(shot(), grid);
  type(Qt::Key_G, Qt::ControlModifier);
  EXPECT_TRUE(info().Gitter);
  EXPECT_TRUE(entry("M_Gitter")->isChecked());
  EXPECT_EQ(shot(), grid);
}

TEST_F(Diagram, TheGridOfALoadedMeasurementIsShownInTheMenu) {
  show();
  entry("M_Gitter")->trigger();
  click("NEU");
  EXPECT_TRUE(info().Gitter);
  EXPECT_TRUE(entry("M_Gitter")->isChecked());
}

// ---- Ranges ----

TEST_F(Diagram, TheRangeBarIsShownOnRequestWithTheRecordsPair) {
  show();
  EXPECT_FALSE(shown("tbrXYBereich"));
  click("XYAMPL");
  EXPECT_TRUE(shown("tbrXYBereich"));
  EXPECT_TRUE(shown("PanelXBereich"));
  EXPECT_TRUE(rangePressed("AUTO"));
  EXPECT_FALSE(rangePressed("HAND"));
  type(Qt::Key_F3);
  EXPECT_FALSE(shown("tbrXYBereich"));
  X().BereichHand = Y().BereichHand = 1;
  click("XYAMPL");
  EXPECT_TRUE(rangePressed("HAND"));
  EXPECT_FALSE(rangePressed("AUTO"));
  EXPECT_TRUE(rangeEnabled("XPLUS"));
}

TEST_F(Diagram, AutoAndHandAreAPair) {
  show();
  click("XYAMPL");
  for (const char* key : {"XPLUS", "XMINUS", "YPLUS", "YMINUS"}) EXPECT_FALSE(rangeEnabled(key)) << key;
  clickRange("AUTO");
  EXPECT_TRUE(rangePressed("AUTO")) << "a second click does not release it";
  clickRange("HAND");
  EXPECT_TRUE(rangePressed("HAND"));
  EXPECT_FALSE(rangePressed("AUTO"));
  EXPECT_EQ(X().BereichHand, 1);
  EXPECT_EQ(Y().BereichHand, 1);
  for (const char* key : {"XPLUS", "XMINUS", "YPLUS", "YMINUS"}) EXPECT_TRUE(rangeEnabled(key)) << key;
  clickRange("HAND");
  EXPECT_TRUE(rangePressed("HAND"));
  clickRange("AUTO");
  EXPECT_EQ(X().BereichHand, 0);
  EXPECT_FALSE(rangeEnabled("YPLUS"));
}

TEST_F(Diagram, RangesGoUpAndDownByHandAndBackToAutomatic) {
  show();
  click("XYAMPL");
  takePoints(3);
  clickRange("HAND");
  EXPECT_DOUBLE_EQ(X().Bereich, 0.5);
  clickRange("XPLUS");
  EXPECT_EQ(text("PanelXBereich"), "±1mm");
  EXPECT_EQ(text("PanelYBereich"), "±1um");
  const QImage wide = shot();
  clickRange("XMINUS");
  clickRange("XMINUS");
  EXPECT_EQ(text("PanelXBereich"), "±200um");
  EXPECT_NE(shot(), wide);
  clickRange("YPLUS");
  EXPECT_EQ(text("PanelYBereich"), "±2um");
  clickRange("AUTO");
  EXPECT_EQ(text("PanelXBereich"), "±500um");
  EXPECT_EQ(text("PanelYBereich"), "±1um");
}

TEST_F(Diagram, KeysOfTheRangesStayUnderThePointer) {
  show();
  click("XYAMPL");
  clickRange("HAND");
  settle();
  const int place = rangeBar().button(QStringLiteral("YPLUS"))->x();
  for (int rung = 0; rung < 14; ++rung) {
    clickRange("XPLUS");
    settle();
    EXPECT_EQ(rangeBar().button(QStringLiteral("YPLUS"))->x(), place) << text("PanelXBereich");
  }
}

TEST_F(Diagram, TheLowestRungStays) {
  show();
  click("XYAMPL");
  clickRange("HAND");
  clickRange("YMINUS");
  EXPECT_EQ(text("PanelYBereich"), "±1um");
  EXPECT_DOUBLE_EQ(Y().Bereich, 0.001);
}

TEST_F(Diagram, InInchesTheRangesAreInMil) {
  world.system.Masssystem = 1;
  show();
  EXPECT_DOUBLE_EQ(X().Bereich, 0.02);
  EXPECT_EQ(text("PanelXBereich"), "±0.02mil");
  click("NZOOM");
  EXPECT_EQ(text("pnlXY"), "[mil]");
}

// ---- Statistics ----

TEST_F(Diagram, StatisticsPanelIsSwitchedByItsKey) {
  show();
  EXPECT_TRUE(pressed("STATISTIK"));
  EXPECT_TRUE(shown("PictureStatistik"));
  click("STATISTIK");
  EXPECT_FALSE(shown("PictureStatistik"));
  type(Qt::Key_F2);
  EXPECT_TRUE(shown("PanelXStatistik"));
  EXPECT_TRUE(shown("PanelYStatistik"));
}

TEST_F(Diagram, LinesOfTheStatisticsAreSwitchedOneByOne) {
  show();
  EXPECT_FALSE(shown("PanelXStatistik(0)"));
  info().SFak = 2;
  click("x");
  EXPECT_TRUE(info().ZeigeMittel);
  EXPECT_EQ(text("PanelXStatistik(0)"), "x  ?.?");
  click("s");
  click("R");
  EXPECT_TRUE(info().ZeigeStreuung);
  EXPECT_TRUE(info().ZeigeSpanne);
  EXPECT_EQ(text("PanelXStatistik(3)"), "X   n 0");
  EXPECT_EQ(text("PanelXStatistik(1)"), "±2s ?.?");
  EXPECT_EQ(text("PanelXStatistik(2)"), "R ?.?");
  takePoints(3);
  EXPECT_EQ(text("PanelXStatistik(3)"), "X   n 3");
  EXPECT_EQ(text("PanelXStatistik(0)"), "x 0.2000");
  EXPECT_EQ(text("PanelXStatistik(1)"), "±2s 0.2000");
  EXPECT_EQ(text("PanelXStatistik(2)"), "R 0.2000");
  EXPECT_EQ(text("PanelYStatistik(0)"), "x 0.0000");
  EXPECT_NEAR(X().Mittel, 0.2, 1e-12);
  EXPECT_NEAR(X().Streuung, 0.1, 1e-12);
  click("s");
  EXPECT_FALSE(info().ZeigeStreuung);
  EXPECT_FALSE(shown("PanelXStatistik(1)"));
  EXPECT_TRUE(shown("PanelXStatistik(2)"));
}

TEST_F(Diagram, DeletingReleasesTheStatisticsKeys) {
  show();
  click("x");
  takePoints(1);
  click("LOESCHEN");
  EXPECT_FALSE(pressed("x"));
  EXPECT_FALSE(shown("PanelXStatistik(0)"));
}

TEST_F(Diagram, KeysOfTheDiagramWorkDuringARun) {
  show();
  click("XYMPN");
  run(0.2);
  for (const char* each : {"STATISTIK", "x", "s", "R", "XYAMPL", "ALLE", "NZOOM"}) {
    EXPECT_TRUE(key(each)->isEnabled()) << each;
    EXPECT_FALSE(key(each)->toolTip().contains(QStringLiteral("D7030"))) << each;
  }
  click("XYAMPL");
  clickRange("HAND");
  run(0.2);
  EXPECT_EQ(X().BereichHand, 1);
  EXPECT_TRUE(pressed("XYMPN"));
}

TEST_F(Diagram, SwitchesAloneDoNotCountAsAChangeOfTheMeasurement) {
  show();
  for (const char* each : {"x", "s", "R", "ALLE", "XYAMPL"}) click(each);
  entry("M_Gitter")->trigger();
  clickRange("HAND");
  EXPECT_FALSE(info().Geaendert);
}

}  // namespace
}  // namespace korvin
