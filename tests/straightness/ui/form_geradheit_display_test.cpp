// What the straightness window shows of a series: evaluation, statistics, tolerances, ranges, big numbers,
// table.

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QMenu>
#include <QSignalSpy>

#include "gerad_stand.h"

namespace korvin {
namespace {

class Display : public test::GeradStand {
 protected:
  /// Six points, in mm: X 0 0.02 0.02 0.01 0.03 0, Y the negative.
  void measureLine() {
    show();
    takePoints({0, 0.02, 0.02, 0.01, 0.03, 0});
    click("ROH");
  }
  void tolerances() {
    series().X.Gesamt = 0.02;
    series().X.ToleranzBezug = 1;
    series().X.WertPro = 0.005;
    series().X.ProEinheit = 1000;
  }
};

TEST_F(Display, ToolbarHasItsKeysInOrder) {
  show();
  QStringList keys;
  for (QAction* each : bar().actions()) {
    if (!each->isSeparator()) keys += bar().widgetForAction(each)->objectName();
  }
  EXPECT_EQ(utf8Text(keys.join(QLatin1Char(' '))),
            "NEU EINRICHTEN LADEN SPEICHERN DRUCKEN REF REF1 REF2 ISO ROH STATISTIK x s R t XNZOOM YNZOOM "
            "XYAMPL ZMMOD ZL ZR XYMP1 XYMPN XYMPNN XYMPKMP AUTO_MESSRICHTUNG HILFE");
}

TEST_F(Display, EvaluationIsOneOfThreeAndItsKeyStaysPressed) {
  measureLine();
  EXPECT_TRUE(pressed("ROH"));
  EXPECT_EQ(cell(1, LineTableModel::X), "0.0200");
  click("ISO");
  EXPECT_TRUE(pressed("ISO"));
  EXPECT_FALSE(pressed("ROH"));
  EXPECT_EQ(cell(1, LineTableModel::X), "0.0075");
  EXPECT_FALSE(keyShown("REF1"));
  click("REF");
  EXPECT_TRUE(keyShown("REF1"));
  EXPECT_TRUE(keyShown("REF2"));
  click("REF");
  EXPECT_TRUE(pressed("REF")) << "a click on the pressed key keeps it";
  EXPECT_EQ(info().Auswertung, AuswertungREF);
  type(Qt::Key_3, Qt::AltModifier);
  EXPECT_TRUE(pressed("ROH"));
  EXPECT_FALSE(keyShown("REF2"));
}

TEST_F(Display, ReferencePointsAreTakenAtTheCursor) {
  measureLine();
  click("REF");
  EXPECT_EQ(line().AktMP, 6);
  const int before = world.messages.beeps;
  click("REF1");
  EXPECT_EQ(info().Ref1, 1) << "not behind Ref2";
  EXPECT_EQ(world.messages.beeps, before + 1);
  type(Qt::Key_Left);
  click("REF2");
  EXPECT_EQ(info().Ref2, 5);
  for (int i = 0; i < 3; ++i) type(Qt::Key_Left);
  click("REF1");
  EXPECT_EQ(info().Ref1, 2);
  EXPECT_EQ(cell(1, LineTableModel::X), "0.0000");
  EXPECT_EQ(cell(4, LineTableModel::X), "0.0000");
  EXPECT_EQ(cell(2, LineTableModel::X), "-0.0033");
  EXPECT_EQ(text("PanelxWertNormal"), " 0.0000");
}

TEST_F(Display, EvaluationDoesNotCountAsAChange) {
  measureLine();
  info().Geaendert = false;
  for (const char* each : {"REF", "ISO", "ROH", "STATISTIK", "x", "XYAMPL", "XNZOOM", "ZMMOD"}) click(each);
  for (const char* each : {"HAND", "PLUS", "MINUS", "TOL", "AUTO"})
    QTest::mouseClick(bar("tbrXBereich").button(QString::fromUtf8(each)), Qt::LeftButton);
  entry("M_Gitter")->trigger();
  list().setCurrentIndex(list().model()->index(2, 0));
  EXPECT_EQ(line().AktMP, 3);
  EXPECT_FALSE(info().Geaendert);
}

TEST_F(Display, StatisticsKeysAppearAndSwitchTheRows) {
  measureLine();
  for (const char* each : {"x", "s", "R", "t"}) EXPECT_FALSE(keyShown(each)) << each;
  type(Qt::Key_F2);
  for (const char* each : {"x", "s", "R", "t"}) EXPECT_TRUE(keyShown(each)) << each;
  EXPECT_FALSE(shown("PanelXStatistik(0)"));
  click("x");
  EXPECT_TRUE(info().ZeigeMittel);
  EXPECT_EQ(text("PanelXStatistik(0)"), "x 0.0133");
  EXPECT_EQ(text("PanelYStatistik(0)"), "x -0.0133");
  EXPECT_FALSE(shown("PanelXStatistik(1)"));
  click("s");
  EXPECT_EQ(text("PanelXStatistik(1)"), "±1s 0.0121");
  click("R");
  EXPECT_EQ(text("PanelXStatistik(2)"), "R 0.0300");
  click("x");
  EXPECT_FALSE(info().ZeigeMittel);
  EXPECT_FALSE(shown("PanelXStatistik(0)"));
  EXPECT_TRUE(shown("PanelXStatistik(2)"));
  click("STATISTIK");
  EXPECT_FALSE(keyShown("R"));
  EXPECT_TRUE(shown("PanelXStatistik(2)")) << "the key hides keys, not results";
}

TEST_F(Display, TolerancesAllowedAndMeasured) {
  measureLine();
  tolerances();
  click("STATISTIK");
  click("t");
  EXPECT_EQ(text("PanelXStatistik(5)"), "±0.010");
  EXPECT_EQ(text("PanelXStatistik(6)"), "0.005/1000.0");
  EXPECT_EQ(text("PanelXStatistik(7)"), "0.0300 , 0.0000");
  EXPECT_EQ(text("PanelXStatistik(8)"), "0.0300/1000.0/4");
  EXPECT_EQ(text("PanelYStatistik(5)"), "?.?") << "no tolerance of Y";
  EXPECT_EQ(text("PanelYStatistik(7)"), "?.?");
  EXPECT_EQ(text("PanelYStatistik(8)"), "?.? / ? z ?");
  click("t");
  EXPECT_FALSE(shown("PanelXStatistik(5)"));
}

TEST_F(Display, RangeBarsAppearAndTheirKeysSetTheRange) {
  measureLine();
  EXPECT_FALSE(shown("tbrXBereich"));
  type(Qt::Key_F3);
  ASSERT_TRUE(shown("tbrXBereich"));
  ASSERT_TRUE(shown("tbrYBereich"));
  KeyToolBar& x = bar("tbrXBereich");
  const auto press = [&](const char* name) {
    QTest::mouseClick(x.button(QString::fromUtf8(name)), Qt::LeftButton);
  };
  EXPECT_TRUE(x.isPressed(QStringLiteral("AUTO")));
  EXPECT_FALSE(x.isKeyEnabled(QStringLiteral("PLUS")));
  EXPECT_EQ(text("PanelXStatistik(9)"), "±50um");
  press("AUTO");
  EXPECT_TRUE(x.isPressed(QStringLiteral("AUTO"))) << "a click on the pressed key keeps it";
  press("HAND");
  EXPECT_TRUE(x.isPressed(QStringLiteral("HAND")));
  EXPECT_FALSE(x.isPressed(QStringLiteral("AUTO")));
  press("PLUS");
  EXPECT_EQ(text("PanelXStatistik(9)"), "±100um");
  press("MINUS");
  press("MINUS");
  EXPECT_EQ(text("PanelXStatistik(9)"), "±20um");
  EXPECT_EQ(series().X.Bereich, 0.02);
  EXPECT_EQ(series().Y.Bereichsart, 0) << "each axis has its own";
  EXPECT_EQ(text("PanelYStatistik(9)"), "±50um");
  series().X.Gesamt = 0.1;
  press("TOL");
  EXPECT_TRUE(x.isPressed(QStringLiteral("TOL")));
  EXPECT_EQ(series().X.Bereich, 0.05);
  EXPECT_FALSE(x.isKeyEnabled(QStringLiteral("MINUS")));
  click("XYAMPL");
  EXPECT_FALSE(shown("tbrYBereich"));
}

TEST_F(Display, WordsOfThePanelsAndBarsAreThere) {
  show();
  EXPECT_EQ(text("lblEinheitX"), "[mm]");
  EXPECT_EQ(text("lblEinheitY"), "[mm]");
  EXPECT_EQ(text("lblEinheitXZoom"), "[mm]");
  EXPECT_EQ(text("PanelLabelMP"), "D7166");
  EXPECT_EQ(text("lblDistanz"), "D7540");
  EXPECT_EQ(text("lblDistanzVon"), "/");
  for (const char* each : {"tbrXBereich", "tbrYBereich"}) {
    EXPECT_EQ(utf8Text(bar(each).button(QStringLiteral("AUTO"))->toolTip()), "D7525");
    EXPECT_EQ(utf8Text(bar(each).button(QStringLiteral("MINUS"))->toolTip()), "D7522");
  }
  EXPECT_EQ(utf8Text(diagram("X").findChild<QAction*>(QStringLiteral("BildAlsPng"))->text()), "D7351");
  QStringList captions;
  for (const QLabel* each : widget("PanelXStatistik(5)")->parentWidget()->findChildren<QLabel*>())
    captions += each->text();
  for (const char* each : {"t D7541", "t D7542", "D5000", "D5001"})
    EXPECT_TRUE(captions.contains(QString::fromUtf8(each))) << each;
}

TEST_F(Display, EntriesOfTheMenusHaveTheirOwnWords) {
  show();
  const auto words = [this](const char* name) {
    return utf8Text(entry(name)->text().section(QLatin1Char('\t'), 0, 0));
  };
  EXPECT_EQ(words("M_SingleMeas"), "D7185");
  EXPECT_EQ(words("M_PJustage"), "D7530");
  EXPECT_EQ(words("M_QJustage"), "D7531");
  EXPECT_EQ(words("M_xNumZoom"), "D7532");
  EXPECT_EQ(words("M_yNumZoom"), "D7533");
  EXPECT_EQ(words("M_Gitter"), "D7192");
  EXPECT_EQ(utf8Text(form->findChild<QMenu*>(QStringLiteral("M_Panel"))->title()), "D7190");
  EXPECT_TRUE(key("XYAMPL")->toolTip().startsWith(QStringLiteral("XY-D3061")))
      << utf8Text(key("XYAMPL")->toolTip());
}

TEST_F(Display, PanelsAreWhiteBeforeTheFirstReading) {
  show();
  for (const char* each : {"PanelxWertNormal", "PanelyWertNormal", "PanelXWertZoom", "PanelYWertZoom"})
    EXPECT_EQ(ground(each), QColor(Qt::white)) << each;
}

TEST_F(Display, ControlsTellAScreenReaderWhatTheyAre) {
  show();
  const auto name = [this](const char* each) { return utf8Text(widget(each)->accessibleName()); };
  EXPECT_EQ(name("PictureXDiagramm"), "X-D3017");
  EXPECT_EQ(name("PictureYDiagramm"), "Y-D3017");
  EXPECT_EQ(name("PanelXStatistik(5)"), "t D7541 D5000");
  EXPECT_EQ(name("PanelXStatistik(7)"), "t D7541 D5001");
  EXPECT_EQ(name("PanelYStatistik(6)"), "t D7542 D5000");
  EXPECT_EQ(name("PanelYStatistik(8)"), "t D7542 D5001");
  EXPECT_EQ(name("PanelMessPkt"), "D7166");
  EXPECT_EQ(name("txtDistanz"), "D7540");
  EXPECT_EQ(name("PointList"), "D7154");
}

TEST_F(Display, ResultsCanBeMarkedAndCopied) {
  show();
  for (int i : {0, 1, 2, 5, 6, 7, 8}) {
    const QLabel* row = form->findChild<QLabel*>(QStringLiteral("PanelXStatistik(%1)").arg(i));
    EXPECT_TRUE(row->textInteractionFlags().testFlag(Qt::TextSelectableByMouse)) << i;
  }
}

TEST_F(Display, BigNumberTakesTheRoomOfTheOtherDiagram) {
  measureLine();
  click("XNZOOM");
  EXPECT_TRUE(series().X.NumZoom);
  EXPECT_TRUE(shown("PanelXWertZoom"));
  EXPECT_TRUE(shown("PictureXDiagramm"));
  EXPECT_FALSE(shown("PictureYDiagramm"));
  EXPECT_TRUE(entry("M_xNumZoom")->isChecked());
  settle();
  EXPECT_GT(diagram("X").mapTo(form.get(), QPoint(0, 0)).y(), form->height() * 2 / 5) << "the lower half";
  EXPECT_EQ(text("LabelXZoom"), "X6");
  EXPECT_EQ(text("PanelXWertZoom"), " 0.0000");
  entry("M_yNumZoom")->trigger();
  EXPECT_TRUE(pressed("YNZOOM"));
  EXPECT_TRUE(shown("PanelYWertZoom"));
  EXPECT_FALSE(shown("PictureXDiagramm"));
  type(Qt::Key_F8);
  EXPECT_FALSE(shown("PanelXWertZoom"));
  EXPECT_TRUE(shown("PictureYDiagramm"));
  type(Qt::Key_F9);
  EXPECT_TRUE(shown("PictureXDiagramm"));
  EXPECT_TRUE(shown("PictureYDiagramm"));
  EXPECT_FALSE(shown("PanelYWertZoom"));
}

TEST_F(Display, GridOfBothDiagrams) {
  measureLine();
  const auto differ = [](const QImage& a, const QImage& b) {
    int count = 0;
    for (int y = 0; y < a.height(); ++y)
      for (int x = 0; x < a.width(); ++x) count += a.pixel(x, y) != b.pixel(x, y);
    return count;
  };
  EXPECT_TRUE(entry("M_Gitter")->isChecked());
  const QImage withGrid = diagram("Y").grab().toImage();
  type(Qt::Key_G, Qt::ControlModifier);
  EXPECT_FALSE(info().Gitter);
  EXPECT_FALSE(entry("M_Gitter")->isChecked());
  EXPECT_GT(differ(withGrid, diagram("Y").grab().toImage()), 1000);
  entry("M_Gitter")->trigger();
  EXPECT_EQ(differ(withGrid, diagram("Y").grab().toImage()), 0);
}

TEST_F(Display, TableIsShownHiddenAndCopied) {
  measureLine();
  EXPECT_EQ(list().model()->rowCount(), 6);
  QTest::keyClick(&list(), Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&list(), Qt::Key_C, Qt::ControlModifier);
  const QStringList lines = QGuiApplication::clipboard()->text().split(QLatin1Char('\n'));
  ASSERT_EQ(lines.size(), 7);
  EXPECT_EQ(utf8Text(lines.at(1)), "2\t500.0\t0.0200\t-0.0200");
  type(Qt::Key_L, Qt::ControlModifier);
  EXPECT_FALSE(shown("PointList"));
}

TEST_F(Display, AReadingPaintsTheTableAnewAndKeepsItsMarkedRows) {
  measureLine();
  QTest::keyClick(&list(), Qt::Key_A, Qt::ControlModifier);
  QSignalSpy painted(list().model(), &QAbstractItemModel::dataChanged);
  QSignalSpy reset(list().model(), &QAbstractItemModel::modelReset);
  click("ISO");
  ASSERT_EQ(painted.size(), 1);
  EXPECT_EQ(painted[0][0].toModelIndex().row(), 0);
  EXPECT_EQ(painted[0][1].toModelIndex().row(), 5) << "any reading may move the reference line";
  EXPECT_EQ(reset.size(), 0);
  EXPECT_EQ(list().selectionModel()->selectedRows().size(), 6);
}

TEST_F(Display, ARowChosenInTheTableIsTheCurrentPoint) {
  measureLine();
  QTest::mouseClick(list().viewport(), Qt::LeftButton, {},
                    list().visualRect(list().model()->index(2, 1)).center());
  EXPECT_EQ(line().AktMP, 3);
  EXPECT_EQ(text("PanelMessPkt"), "3 / 6");
  QTest::keyClick(&list(), Qt::Key_Down);
  EXPECT_EQ(text("PanelMessPkt"), "4 / 6");
}

TEST_F(Display, HelpKey) {
  show();
  click("HILFE");
  EXPECT_EQ(helpOpened, 1);
}

}  // namespace
}  // namespace korvin
