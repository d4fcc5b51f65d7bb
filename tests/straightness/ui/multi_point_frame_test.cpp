// Multi-point measuring in the real window: clicks and keys, what the frame shows, and what it locks.

#include <QCheckBox>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <cmath>
#include <filesystem>
#include <numbers>

#include "frame/ui/mouse_pointer.h"
#include "gerad_stand.h"

namespace korvin {
namespace {

class MultiPointWindow : public test::GeradStand {
 protected:
  static constexpr int take = 0;
  static constexpr int accept = 1;
  static constexpr int cancel = 2;

  void open() {
    show();
    run(1);
    click("XYMPKMP");
    settle();
  }
  MultiPointFrame& frame() { return *form->findChild<MultiPointFrame*>(QStringLiteral("FRM_MPM")); }
  QPushButton& button(int index) {
    return *form->findChild<QPushButton*>(QStringLiteral("CmdMehrPunkt(%1)").arg(index));
  }
  void press(int index) { QTest::mouseClick(&button(index), Qt::LeftButton); }
  QCheckBox& positions(int index) {
    return *form->findChild<QCheckBox*>(QStringLiteral("CheckPkt1(%1)").arg(index));
  }
  void choose(int index) { QTest::mouseClick(&positions(index), Qt::LeftButton, {}, QPoint(8, 8)); }
  std::vector<std::string> lines(const char* name) {
    std::vector<std::string> all;
    const auto& list = *form->findChild<QListWidget*>(QString::fromUtf8(name));
    for (int i = 0; i < list.count(); ++i) all.push_back(utf8Text(list.item(i)->text()));
    return all;
  }
  void at(double degrees) {
    const double w = degrees * std::numbers::pi / 180;
    beam(0.2 + 0.5 * std::cos(w), -0.3 + 0.5 * std::sin(w));
  }
  void takeAt(double degrees) {
    at(degrees);
    press(take);
    settle();
  }
  PictureMehrPunkt& picture() { return *form->findChild<PictureMehrPunkt*>(); }
  double x(std::size_t point) { return series().X.Wert.at(point); }
  bool locked(const char* menu) { return !form->findChild<QMenu*>(QString::fromUtf8(menu))->isEnabled(); }
};

// ---- The frame ----

TEST_F(MultiPointWindow, OpensByItsKey) {
  show();
  EXPECT_FALSE(frame().isVisible());
  EXPECT_TRUE(enabled("XYMPKMP"));
  EXPECT_FALSE(key("XYMPKMP")->toolTip().contains(QStringLiteral("D7030"))) << "no longer to come";
  click("ZR");
  click("XYMPKMP");
  EXPECT_TRUE(frame().isVisible());
  EXPECT_TRUE(pressed("XYMPKMP"));
  EXPECT_EQ(text("FRM_MPM_Caption"), " D2100  /  MP: #2");
  EXPECT_EQ(text("Label1(0)"), "Xc:");
  EXPECT_EQ(text("Label1(1)"), "Yc:");
  EXPECT_EQ(text("Label1(2)"), "D2101 0° / 360° D2102");
  EXPECT_EQ(text("LblX_mitte"), "");
  EXPECT_EQ(text("lblBetrieb"), "D2100");
  EXPECT_TRUE(lines("LstXvals").empty());
}

TEST_F(MultiPointWindow, ButtonsAndTheirStateAtTheOpening) {
  open();
  EXPECT_EQ(utf8Text(button(take).text()), "D2102");
  EXPECT_EQ(utf8Text(button(accept).text()), "D2103");
  EXPECT_EQ(utf8Text(button(cancel).text()), "D3020");
  EXPECT_TRUE(button(take).isEnabled());
  EXPECT_FALSE(button(accept).isEnabled());
  EXPECT_TRUE(button(cancel).isEnabled());
  EXPECT_EQ(button(take).grab().toImage().pixelColor(button(take).width() / 2, 4), QColor(0x80, 0xFF, 0x80));
}

TEST_F(MultiPointWindow, LiesOverTheDiagramsAndFollowsThem) {
  open();
  const QRect before = frame().geometry();
  EXPECT_TRUE(frame().parentWidget()->rect().contains(before));
  const QPoint numbers = label("PanelxWertNormal")->mapTo(frame().parentWidget(), QPoint());
  EXPECT_LT(before.right(), numbers.x()) << "the numbers stay in sight";
  form->resize(1600, 1100);
  settle();
  EXPECT_NE(frame().geometry().center(), before.center());
  EXPECT_TRUE(frame().parentWidget()->rect().contains(frame().geometry()));
  form->resize(1024, 700);
  settle();
  EXPECT_TRUE(frame().parentWidget()->rect().contains(frame().geometry()));
}

TEST_F(MultiPointWindow, ThreeOrFourPositionsExcludeEachOther) {
  open();
  EXPECT_EQ(utf8Text(positions(0).text()), "D7630: 120°-");
  EXPECT_EQ(utf8Text(positions(1).text()), "D7631: 90°-");
  EXPECT_TRUE(positions(0).isChecked());
  choose(1);
  EXPECT_FALSE(positions(0).isChecked());
  EXPECT_TRUE(positions(1).isChecked());
  choose(1);
  EXPECT_TRUE(positions(1).isChecked()) << "one of them always holds";
  EXPECT_EQ(picture().picture().winkel.size(), 4U);
  choose(0);
  EXPECT_TRUE(positions(0).isChecked());
  choose(1);
  takeAt(0);
  EXPECT_FALSE(positions(0).isEnabled());
  EXPECT_EQ(text("Label1(2)"), " D2102 90° / 360° ");
}

// ---- Measuring ----

TEST_F(MultiPointWindow, FourPositionsByClicksGiveTheCentreOfTheirCircle) {
  open();
  choose(1);
  for (const double w : {0, 90, 180}) {
    takeAt(w);
    EXPECT_TRUE(button(take).isEnabled());
    EXPECT_TRUE(button(take).hasFocus());
    EXPECT_FALSE(hourglassShown());
  }
  EXPECT_EQ(lines("LstXvals"), (std::vector<std::string>{"1: 0.7000", "2: 0.2000", "3: -0.3000"}));
  EXPECT_EQ(lines("LstYvals")[1], "2: 0.2000");
  EXPECT_EQ(text("PanelxWertNormal"), " -0.3000") << "the window shows the position, too";
  takeAt(270);
  EXPECT_EQ(text("LblX_mitte"), "0.2000");
  EXPECT_EQ(text("LblY_mitte"), "-0.3000");
  EXPECT_EQ(text("Label1(2)"), " --- ");
  EXPECT_FALSE(button(take).isEnabled());
  EXPECT_TRUE(button(accept).isEnabled());
  press(accept);
  measured();
  EXPECT_FALSE(frame().isVisible());
  EXPECT_DOUBLE_EQ(x(1), 0.2);
  EXPECT_EQ(line().AktMP, 2);
  EXPECT_EQ(text("lblBetrieb"), "D7220");
  EXPECT_TRUE(info().Geaendert);
}

TEST_F(MultiPointWindow, HourglassWhileAPositionIsTaken) {
  open();
  world.head.delay = 0.3;
  bool looked = false;
  world.clock.after(0.1, [&] {
    looked = true;
    EXPECT_TRUE(hourglassShown());
    EXPECT_FALSE(button(take).isEnabled());
    EXPECT_FALSE(button(cancel).hasFocus()) << "the next press of a key must not cancel";
  });
  press(take);
  EXPECT_TRUE(looked);
  EXPECT_FALSE(hourglassShown());
}

TEST_F(MultiPointWindow, EnterAndSpaceWorkTheButtonThatIsNext) {
  open();
  EXPECT_TRUE(button(take).hasFocus());
  int degrees = 0;
  for (const Qt::Key k : {Qt::Key_Return, Qt::Key_Space, Qt::Key_Enter}) {
    at(degrees);
    degrees += 120;
    QTest::keyClick(QApplication::focusWidget(), k);
    settle();
  }
  EXPECT_EQ(lines("LstXvals").size(), 3U);
  EXPECT_TRUE(button(accept).hasFocus());
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  measured();
  EXPECT_DOUBLE_EQ(x(1), 0.2);
}

TEST_F(MultiPointWindow, InInchTheReadingsAreInMil) {
  world.system.Masssystem = 1;
  open();
  for (const double w : {0, 120, 240}) takeAt(w);
  EXPECT_EQ(lines("LstXvals")[0], "1: 27.56");
  EXPECT_EQ(text("LblX_mitte"), "7.87");
  EXPECT_EQ(text("LblY_mitte"), "-11.81");
}

TEST_F(MultiPointWindow, NoCircleIsTold) {
  open();
  beam(0.25, 0.5);
  for (int i = 0; i < 3; ++i) press(take);
  EXPECT_EQ(text("Label1(0)"), "X/:");
  EXPECT_EQ(text("Label1(1)"), "Y/:");
  EXPECT_EQ(text("LblMittelwert"), "D7632");
  EXPECT_EQ(text("LblX_mitte"), "0.2500");
}

TEST_F(MultiPointWindow, CancelLeavesThePointOpen) {
  show();
  takePoints({0.1});
  click("ZL");
  click("XYMPKMP");
  takeAt(0);
  takeAt(120);
  press(cancel);
  EXPECT_FALSE(frame().isVisible());
  EXPECT_TRUE(istLeer(x(1)));
  EXPECT_EQ(cell(0, LineTableModel::X), "?.?");
  EXPECT_EQ(line().AktMP, 1);
  click("XYMPKMP");
  EXPECT_TRUE(lines("LstXvals").empty()) << "cleared by the next opening";
}

TEST_F(MultiPointWindow, PictureFollowsThePositions) {
  open();
  EXPECT_TRUE(picture().isVisible());
  EXPECT_EQ(picture().picture().Ist, 0);
  takeAt(0);
  EXPECT_EQ(picture().picture().positionen.size(), 1U);
  EXPECT_FALSE(picture().picture().mitte);
  takeAt(120);
  takeAt(240);
  EXPECT_NEAR(picture().picture().mitte->x, 0.2, 1e-4);
  EXPECT_NEAR(picture().picture().radius, 0.5, 1e-4);
}

// ---- What is locked ----

TEST_F(MultiPointWindow, ToolbarAndMenusAreLockedWhileItIsOpen) {
  open();
  EXPECT_FALSE(bar().isEnabled());
  for (const char* menu : {"M_Datei", "M_Extras", "M_Panel", "M_Messung"}) EXPECT_TRUE(locked(menu)) << menu;
  for (const char* menu : {"M_Verbindung", "M_HilfeMenu"}) EXPECT_FALSE(locked(menu)) << menu;
  press(cancel);
  EXPECT_TRUE(bar().isEnabled());
  EXPECT_FALSE(pressed("XYMPKMP"));
  for (const char* menu : {"M_Datei", "M_Extras", "M_Panel", "M_Messung"}) EXPECT_FALSE(locked(menu)) << menu;
}

TEST_F(MultiPointWindow, ShortcutsOfLockedKeysDoNothing) {
  show();
  takePoints({0.1, 0.2});
  click("XYMPKMP");
  world.head.commands.clear();
  const bool grid = static_cast<bool>(info().Gitter);
  for (const Qt::Key k : {Qt::Key_F5, Qt::Key_F6, Qt::Key_F7, Qt::Key_F8, Qt::Key_Left, Qt::Key_Right})
    type(k);
  type(Qt::Key_N, Qt::ControlModifier);
  type(Qt::Key_S, Qt::ControlModifier);
  type(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
  type(Qt::Key_G, Qt::ControlModifier);
  run(3);
  EXPECT_EQ(world.head.commands.find_first_not_of('T'), std::string::npos);
  EXPECT_EQ(line().AktMP, 3);
  EXPECT_EQ(x(1), 0.1);
  EXPECT_TRUE(fileDialog.requests.empty());
  EXPECT_TRUE(world.messages.shown.empty());
  EXPECT_EQ(static_cast<bool>(info().Gitter), grid);
  EXPECT_FALSE(static_cast<bool>(series().X.NumZoom));
}

TEST_F(MultiPointWindow, NeitherDiagramNorTableMovesTheCursor) {
  show();
  takePoints({0.1, 0.2});
  click("XYMPKMP");
  const auto place = diagram().placeOf({2500, 0});
  ASSERT_TRUE(place);
  QTest::mouseClick(&diagram(), Qt::LeftButton, {}, place->toPoint());
  QTest::mouseClick(list().viewport(), Qt::LeftButton, {},
                    list().visualRect(list().model()->index(0, 0)).center());
  EXPECT_EQ(line().AktMP, 3);
  press(cancel);
  QTest::mouseClick(list().viewport(), Qt::LeftButton, {},
                    list().visualRect(list().model()->index(0, 0)).center());
  EXPECT_EQ(line().AktMP, 1);
}

TEST_F(MultiPointWindow, PointsStayWhereTheyAreWhileItIsOpen) {
  show();
  click("ZMMOD");
  EXPECT_TRUE(z().isEnabled());
  click("XYMPKMP");
  EXPECT_FALSE(z().isEnabled());
  press(cancel);
  EXPECT_TRUE(z().isEnabled()) << "the mode is as before";
}

TEST_F(MultiPointWindow, BigNumbersAreSwitchedOff) {
  show();
  click("XNZOOM");
  ASSERT_TRUE(shown("PanelXWertZoom"));
  click("XYMPKMP");
  EXPECT_FALSE(static_cast<bool>(series().X.NumZoom));
  EXPECT_FALSE(static_cast<bool>(series().Y.NumZoom));
  EXPECT_FALSE(shown("PanelXWertZoom"));
  EXPECT_FALSE(pressed("XNZOOM"));
  press(cancel);
  click("YNZOOM");
  click("XYMPKMP");
  EXPECT_FALSE(static_cast<bool>(series().Y.NumZoom));
}

TEST_F(MultiPointWindow, HeadsKeysAreIgnored) {
  open();
  for (const char k : {'M', 'J', 'L', 'R'}) {
    world.head.key = k;
    run(2);
  }
  EXPECT_EQ(world.head.commands.find_first_not_of('T'), std::string::npos);
  EXPECT_EQ(line().AktMP, 1);
}

TEST_F(MultiPointWindow, HelpStaysInReach) {
  open();
  entry("M_Hilfe")->trigger();
  EXPECT_EQ(helpOpened, 1);
}

// ---- What happens to the window ----

TEST_F(MultiPointWindow, LostLinkIsMendedUnderTheOpenFrame) {
  open();
  takeAt(0);
  world.head.behaviour = [](char) { return std::string(); };
  press(take);
  EXPECT_TRUE(button(take).isEnabled());
  EXPECT_FALSE(hourglassShown());
  run(8);
  world.head.behaviour = nullptr;
  run(5);
  EXPECT_TRUE(frame().isVisible());
  EXPECT_FALSE(bar().isEnabled()) << "the end of the recovery unlocks nothing";
  takeAt(120);
  takeAt(240);
  EXPECT_EQ(text("LblX_mitte"), "0.2000");
}

TEST_F(MultiPointWindow, CentreTooFarOffClosesTheFrameWithAMessage) {
  open();
  beam(4.3, 0);
  for (int i = 0; i < 3; ++i) press(take);
  ASSERT_EQ(world.messages.shown.size(), 1U);
  EXPECT_EQ(world.messages.shown[0].title, "KORVIN-D2100");
  EXPECT_EQ(world.messages.shown[0].text, "D2107 (Xc / Yc)");
  EXPECT_FALSE(frame().isVisible());
  EXPECT_TRUE(bar().isEnabled());
  EXPECT_EQ(x(1), 4.3);
}

TEST_F(MultiPointWindow, ClosingTheWindowSavesNoPositionForACentre) {
  show();
  takePoints({0.1, 0.2});
  info().DateiStatus = 2;
  info().DateiName = folder.path("half.G");
  click("XYMPKMP");
  takeAt(0);
  takeAt(120);
  world.messages.answers.push_back(MessageAnswer::yes);
  form->close();
  run(2);
  EXPECT_FALSE(form->offen());
  EXPECT_TRUE(std::filesystem::exists(folder.path("half.G")));
  EXPECT_EQ(formgera.bild().X.Wert.at(2), 0.2);
  EXPECT_TRUE(istLeer(formgera.bild().X.Wert.at(3)));
}

TEST_F(MultiPointWindow, CancelOfTheClosingKeepsFrameAndPositions) {
  open();
  takeAt(0);
  world.messages.answers.push_back(MessageAnswer::cancel);
  form->close();
  run(2);
  EXPECT_TRUE(form->offen());
  EXPECT_TRUE(frame().isVisible());
  EXPECT_DOUBLE_EQ(x(1), 0.7);
  takeAt(120);
  takeAt(240);
  press(accept);
  measured();
  EXPECT_DOUBLE_EQ(x(1), 0.2);
}

TEST_F(MultiPointWindow, AWindowOpenedAnewHearsTheHeadsKeys) {
  open();
  form->close();
  run(2);
  ASSERT_FALSE(form->offen());
  show();
  EXPECT_FALSE(frame().isVisible());
  world.head.key = 'M';
  measured();
  EXPECT_EQ(line().AktMP, 2);
}

TEST_F(MultiPointWindow, NewDataThatWaitedForATelegramCloseTheFrame) {
  show();
  run(1);
  bool done = false;
  world.head.behaviour = [&](char command) {
    if (command == 'T' && !std::exchange(done, true)) {
      click("NEU");
      click("XYMPKMP");
      EXPECT_TRUE(frame().isVisible());
    }
    return test::answerFrame(test::answerBody(command == 'M' ? 'm' : command));
  };
  run(2);
  EXPECT_TRUE(done);
  EXPECT_FALSE(frame().isVisible());
  EXPECT_TRUE(bar().isEnabled());
}

// ---- Adaptive positions ----

TEST_F(MultiPointWindow, AdaptivePositionsAndTheirCentre) {
  Profil& p = world.profil;
  p.ProfilSchreiben("", "MessInfo_G", "AutoAdapt", "-1");
  p.ProfilSchreiben("", "MessInfo_G", "MessZeitMin", "2");
  p.ProfilSchreiben("", "MessInfo_G", "MessZeitMax", "6");
  open();
  for (const double w : {0, 120, 240}) {
    at(w);
    press(take);
    EXPECT_FALSE(button(take).isEnabled());
    EXPECT_TRUE(hourglassShown());
    run(4);
    EXPECT_FALSE(hourglassShown());
  }
  EXPECT_EQ(text("LblX_mitte"), "0.2000");
  EXPECT_TRUE(button(accept).isEnabled());
  EXPECT_TRUE(frame().isVisible());
  EXPECT_FALSE(bar().isEnabled()) << "the end of an adaptive point unlocks nothing";
  press(accept);
  measured();
  EXPECT_NEAR(x(1), 0.2, 1e-4);
  EXPECT_EQ(line().AktMP, 2);
}

}  // namespace
}  // namespace korvin
