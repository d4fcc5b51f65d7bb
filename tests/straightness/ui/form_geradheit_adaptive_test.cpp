// Adaptive points in the real window: from the key to the stored mean, the failure dialog, the bar and the
// service line, and the live view.

#include <QAction>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QSplitter>
#include <QTimer>
#include <cmath>

#include "frame/ui/mouse_pointer.h"
#include "frame/ui/qt_colour.h"
#include "gerad_stand.h"

namespace korvin {
namespace {

class AdaptiveWindow : public test::GeradStand {
 protected:
  AdaptiveWindow() {
    set("AutoAdapt", "-1");
    set("X_Genauigkeit", "0.01");
    set("Y_Genauigkeit", "0.01");
    set("MessZeitMin", "5");
    set("MessZeitMax", "8");
    world.head.delay = 0.1;
    world.head.behaviour = [this](char command) { return answer(command); };
  }
  void set(const char* key, const char* value) { world.profil.ProfilSchreiben("", "MessInfo_G", key, value); }
  /// Readings jump by `spread` mm to both sides of 0.5 and -0.25 mm.
  std::string answer(char command) {
    side = -side;
    const int jump = static_cast<int>(std::lround(side * spread * 10000));
    const char kind = command == 'T' ? 'T' : command == 'J' ? answerKind : 'm';
    return test::answerFrame(test::answerBody(kind, headKey, 255000 + jump, 247500 + jump, intensity));
  }
  /// Starts a point with the toolbar's key and waits until it is under way. After a run a press lapses in
  /// half a second, and the next poll may be later.
  void start() {
    for (int i = 0; i < 10 && !sampling(); ++i) {
      click("XYMP1");
      until([this] { return sampling(); }, 1.2);
    }
    ASSERT_TRUE(sampling());
  }
  bool until(const std::function<bool()>& done, double seconds = 60) {
    for (double waited = 0; !done() && waited < seconds; waited += 0.1) run(0.1);
    return done();
  }
  bool sampling() { return progress().isVisibleTo(form.get()); }
  QProgressBar& progress() { return *form->findChild<QProgressBar*>(QStringLiteral("AdaptProgress")); }
  ConvergenceView& view() { return *form->findChild<ConvergenceView*>(); }
  bool viewShown() { return shown("FrmKonvergenz"); }
  /// How many pixels of the live view have a colour.
  int pixels(Farbe colour) {
    const QImage drawn =
        form->findChild<PictureKonvergenz*>()->grab().toImage().convertToFormat(QImage::Format_RGB32);
    int found = 0;
    for (int row = 0; row < drawn.height(); ++row)
      for (int column = 0; column < drawn.width(); ++column)
        found += drawn.pixel(column, row) == qColour(colour).rgb() ? 1 : 0;
    return found;
  }
  double x(std::size_t point) { return series().X.Wert.at(point); }
  std::string line1() { return text("lblMSCommInput(1)"); }
  /// Answers the failure dialog when it comes.
  void answerDialog(const std::function<void(FormAdaptFehler&)>& act) {
    timer.setInterval(0);
    QObject::connect(&timer, &QTimer::timeout, form.get(), [this, act] {
      auto* dialog = form->findChild<FormAdaptFehler*>();
      if (dialog == nullptr || !dialog->isVisible()) return;
      ++dialogs;
      act(*dialog);
    });
    timer.start();
  }
  static void press(FormAdaptFehler& dialog, int index) {
    QTest::mouseClick(dialog.findChild<QPushButton*>(QStringLiteral("CmdAdaptCont(%1)").arg(index)),
                      Qt::LeftButton);
  }

  double spread = 0.005;  ///< half width at 5 s: below 0.002 mm
  double side = 1;
  char headKey = 'K';
  char answerKind = 'j';
  int intensity = 80;
  int dialogs = 0;
  QTimer timer;
};

TEST_F(AdaptiveWindow, APointFromTheKeyToTheStoredMean) {
  show();
  EXPECT_TRUE(pictured("XYMP1", "ICON85"));
  EXPECT_FALSE(sampling());
  EXPECT_FALSE(shown("lblMSCommInput(1)"));
  start();
  EXPECT_TRUE(pressed("XYMP1"));
  EXPECT_TRUE(enabled("XYMP1")) << "a second press cancels";
  for (const char* each : {"XYMPN", "XYMPNN", "EINRICHTEN"}) EXPECT_FALSE(enabled(each)) << each;
  EXPECT_EQ(text("lblBetrieb"), "D7619");
  EXPECT_TRUE(hourglassShown());
  run(3);
  EXPECT_TRUE(istLeer(x(1))) << "nothing is stored on the way";
  EXPECT_EQ(line().AktMP, 1);
  EXPECT_TRUE(viewShown());
  ASSERT_TRUE(until([this] { return !sampling(); }, 4));
  EXPECT_NEAR(x(1), 0.5, 0.001);
  EXPECT_NEAR(series().Y.Wert.at(1), -0.25, 0.001);
  EXPECT_EQ(line().AktMP, 2);
  EXPECT_TRUE(info().Geaendert);
  EXPECT_EQ(text("lblBetrieb"), "D7220");
  EXPECT_FALSE(pressed("XYMP1"));
  EXPECT_FALSE(viewShown());
  EXPECT_FALSE(hourglassShown());
  for (const char* each : {"XYMP1", "XYMPN", "XYMPNN"}) EXPECT_TRUE(enabled(each)) << each;
}

TEST_F(AdaptiveWindow, TheHeadsKeyTakesAPointToo) {
  show();
  headKey = 'M';
  ASSERT_TRUE(until([this] { return sampling(); }, 3));
  headKey = 'K';
  ASSERT_TRUE(until([this] { return !sampling(); }, 8));
  EXPECT_EQ(line().AktMP, 2);
}

TEST_F(AdaptiveWindow, BarAndLineTellHowFarThePointIs) {
  show();
  start();
  EXPECT_EQ(progress().minimum(), 0);
  EXPECT_EQ(progress().maximum(), 40) << "five samples a second for 8 s";
  run(2);
  const int samples = erfassung().adaptMessung().zustand().AdaptN;
  EXPECT_GT(samples, 10);
  EXPECT_EQ(progress().value(), samples);
  EXPECT_TRUE(line1().starts_with("Nmess:   " + std::to_string(samples) + "  \u00A6  MA-Zeit:   2."))
      << line1();
  EXPECT_TRUE(line1().ends_with(" s  \u00A6  Y_ERR:   0.0000")) << "no test yet: " << line1();
  ASSERT_TRUE(until([this] { return !sampling(); }, 5));
  EXPECT_TRUE(line1().find("MA-Zeit:   5.") != std::string::npos) << "of the last measurement: " << line1();
  EXPECT_TRUE(line1().find("Y_ERR:   0.001") != std::string::npos) << line1();
}

TEST_F(AdaptiveWindow, ASecondPressCancelsThePoint) {
  show();
  for (const bool byKey : {false, true}) {
    start();
    run(2);
    byKey ? type(Qt::Key_F5) : click("XYMP1");
    run(0.5);
    EXPECT_FALSE(sampling()) << byKey;
    EXPECT_FALSE(viewShown()) << byKey;
    EXPECT_TRUE(istLeer(x(1))) << byKey;
    EXPECT_EQ(line().AktMP, 1) << byKey;
    EXPECT_FALSE(pressed("XYMP1")) << byKey;
    run(2);
  }
  EXPECT_FALSE(info().Geaendert);
}

TEST_F(AdaptiveWindow, AnAnswerOfAnotherKindEndsThePoint) {
  show();
  start();
  run(1);
  answerKind = 'm';
  run(1);
  EXPECT_FALSE(sampling());
  EXPECT_TRUE(istLeer(x(1)));
}

// ---- The failure dialog ----

TEST_F(AdaptiveWindow, TimeUpAsksAndALongerTimeIsKeptForTheNextTry) {
  spread = 0.1;
  show();
  std::string proposal;
  answerDialog([&](FormAdaptFehler& dialog) {
    proposal = utf8Text(dialog.findChild<QLabel*>(QStringLiteral("lblAdaptMsg(5)"))->text());
    press(dialog, 0);
  });
  start();
  ASSERT_TRUE(until([this] { return !sampling(); }, 30));
  EXPECT_EQ(dialogs, 1);
  EXPECT_TRUE(istLeer(x(1)));
  EXPECT_EQ(line().AktMP, 1);
  EXPECT_FALSE(viewShown());
  const int time = series().Adapt.MessZeitMax;
  EXPECT_GT(time, 8);
  EXPECT_EQ(proposal, "D2218 " + std::to_string(time) + " s ?");
  EXPECT_EQ(world.profil.wert("MessInfo_G", "MessZeitMax", ""), std::to_string(time));
  spread = 0.005;
  start();
  EXPECT_EQ(progress().maximum(), 5 * time);
  ASSERT_TRUE(until([this] { return !sampling(); }, 30));
  EXPECT_EQ(line().AktMP, 2);
}

TEST_F(AdaptiveWindow, EscapeInTheDialogGivesThePointUp) {
  spread = 0.1;
  show();
  answerDialog([](FormAdaptFehler& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
  start();
  ASSERT_TRUE(until([this] { return !sampling(); }, 30));
  EXPECT_EQ(dialogs, 1);
  EXPECT_EQ(series().Adapt.MessZeitMax, 8);
  EXPECT_TRUE(istLeer(x(1)));
  EXPECT_TRUE(enabled("XYMP1"));
  run(2);
  EXPECT_EQ(text("lblBetrieb"), "D7220");
}

TEST_F(AdaptiveWindow, InInchTheDialogIsInMil) {
  spread = 0.1;
  world.system.Masssystem = 1;
  show();
  std::string nominal;
  answerDialog([&](FormAdaptFehler& dialog) {
    nominal = utf8Text(dialog.findChild<QLabel*>(QStringLiteral("lblSollX"))->text());
    press(dialog, 1);
  });
  start();
  ASSERT_TRUE(until([this] { return !sampling(); }, 30));
  EXPECT_EQ(nominal, "0.39");
}

TEST_F(AdaptiveWindow, AClosedWindowTakesItsDialogAlong) {
  show();
  form.reset();
  AdaptVorgaben& goals = series().Adapt;
  goals.MessZeitMin = goals.MessZeitMax = 0;
  goals.X_Genauigkeit = 0;
  erfassung().adaptBeginnt(1000);
  EXPECT_EQ(erfassung().adaptProbe(world.answer, 1002), AdaptSchritt::verfehlt) << "without a dialog";
}

// ---- The live view ----

TEST_F(AdaptiveWindow, TheViewCoversTheTableAndMovesNothing) {
  show();
  const auto places = [this] {
    std::vector<QRect> found;
    for (QWidget* each :
         {widget("PanelxWertNormal"), widget("PanelyWertNormal"), widget("PictureXDiagramm"),
          widget("PictureYDiagramm"), widget("PointList"), widget("lblKamera"), widget("lblBetrieb")})
      found.emplace_back(each->mapTo(form.get(), QPoint(0, 0)), each->size());
    found.pop_back();  // its width follows its words
    found.emplace_back(widget("lblBetrieb")->mapTo(form.get(), QPoint(0, 0)), QSize());
    return found;
  };
  const auto before = places();
  start();
  run(1);
  ASSERT_TRUE(viewShown());
  EXPECT_EQ(places(), before);
  const QPoint middle = list().mapTo(form.get(), list().rect().center());
  EXPECT_TRUE(view().isAncestorOf(form->childAt(middle)));
  EXPECT_EQ(view().size(), list().size());
  ASSERT_TRUE(until([this] { return !sampling(); }, 8));
  EXPECT_EQ(places(), before);
  EXPECT_FALSE(view().isAncestorOf(form->childAt(middle)));
  EXPECT_TRUE(list().isAncestorOf(form->childAt(middle)));
  EXPECT_EQ(form->size(), QSize(1024, 768));
}

TEST_F(AdaptiveWindow, AlsoWithTheTableAsLowAsItGetsNothingMoves) {
  show();
  auto* column = form->findChild<QSplitter*>();
  column->setSizes({10000, 0});
  settle();
  const QList<int> before = column->sizes();
  ASSERT_LT(before.at(1), before.at(0) / 2);
  start();
  run(1);
  ASSERT_TRUE(viewShown());
  EXPECT_EQ(column->sizes(), before);
  EXPECT_GE(view().height(), view().minimumSizeHint().height());
}

TEST_F(AdaptiveWindow, ADoubleClickOnTheLineOpensTheServicePanel) {
  show();
  start();
  EXPECT_FALSE(shown("ServicePanel"));
  QTest::mouseDClick(widget("lblMSCommInput(1)"), Qt::LeftButton);
  EXPECT_TRUE(shown("ServicePanel"));
}

TEST_F(AdaptiveWindow, ABlockedBeamLetsThePointWaitUntilItIsCancelled) {
  show();
  start();
  run(1);
  const auto samples = erfassung().adaptMessung().zustand().AdaptN;
  intensity = 5;
  run(12);
  EXPECT_TRUE(sampling());
  EXPECT_TRUE(viewShown());
  EXPECT_LE(erfassung().adaptMessung().zustand().AdaptN, samples + 1);
  EXPECT_TRUE(line1().find("MA-Zeit:   13.") != std::string::npos) << "time goes on: " << line1();
  click("XYMP1");
  run(0.5);
  EXPECT_FALSE(sampling());
  EXPECT_EQ(dialogs, 0);
}

TEST_F(AdaptiveWindow, ALostLinkEndsThePointWithBarAndView) {
  show();
  start();
  run(1);
  world.head.behaviour = [](char) { return std::string(); };
  run(15);
  EXPECT_FALSE(sampling());
  EXPECT_FALSE(viewShown());
  EXPECT_TRUE(istLeer(x(1)));
  EXPECT_TRUE(series().Adapt.AutoAdapt);
}

TEST_F(AdaptiveWindow, AnAdaptivePositionOfACentreIsWatchedBesideItsFrame) {
  show();
  click("XYMPKMP");
  auto* frame = widget("FRM_MPM");
  ASSERT_TRUE(frame->isVisible());
  auto* measure = form->findChild<QPushButton*>(QStringLiteral("CmdMehrPunkt(0)"));
  QTest::mouseClick(measure, Qt::LeftButton);
  ASSERT_TRUE(until([this] { return sampling(); }, 3));
  run(1);
  ASSERT_TRUE(viewShown());
  const QRect shownAt(view().mapTo(form.get(), QPoint(0, 0)), view().size());
  const QRect frameAt(frame->mapTo(form.get(), QPoint(0, 0)), frame->size());
  EXPECT_FALSE(shownAt.intersects(frameAt));
  ASSERT_TRUE(until([this] { return !sampling(); }, 8));
  EXPECT_FALSE(viewShown());
  EXPECT_EQ(form->findChild<QListWidget*>(QStringLiteral("LstXvals"))->count(), 1);
  EXPECT_EQ(line().AktMP, 1) << "no step within the frame";
}

TEST_F(AdaptiveWindow, TheTableKeepsTheKeyboardUnderTheView) {
  show();
  ASSERT_TRUE(list().hasFocus());
  start();
  run(1);
  EXPECT_TRUE(list().hasFocus());
  ASSERT_TRUE(until([this] { return !sampling(); }, 8));
  EXPECT_TRUE(list().hasFocus());
}

TEST_F(AdaptiveWindow, TheHandleHidesTheViewAndTheMenuBringsItBack) {
  show();
  EXPECT_TRUE(entry("M_Konvergenz")->isChecked());
  start();
  run(1);
  QTest::mouseClick(form->findChild<QToolButton*>(QStringLiteral("KonvergenzZu")), Qt::LeftButton);
  EXPECT_FALSE(viewShown());
  EXPECT_TRUE(sampling()) << "the point goes on";
  EXPECT_FALSE(entry("M_Konvergenz")->isChecked());
  EXPECT_EQ(world.profil.wert("MessInfo_G", "KonvergenzAnzeige", ""), "0");
  run(1);
  EXPECT_FALSE(viewShown());
  entry("M_Konvergenz")->trigger();
  EXPECT_TRUE(viewShown());
  EXPECT_EQ(world.profil.wert("MessInfo_G", "KonvergenzAnzeige", ""), "-1");
  ASSERT_TRUE(until([this] { return !sampling(); }, 8));
  EXPECT_EQ(line().AktMP, 2);
}

TEST_F(AdaptiveWindow, TheChoiceIsRememberedFromWindowToWindow) {
  set("KonvergenzAnzeige", "0");
  show();
  EXPECT_FALSE(entry("M_Konvergenz")->isChecked());
  start();
  run(1);
  EXPECT_FALSE(viewShown());
  EXPECT_TRUE(shown("PointList"));
}

TEST_F(AdaptiveWindow, WithoutTheTableTheViewKeepsItsPlaceBetweenThePoints) {
  show();
  entry("M_PunktListe")->trigger();
  settle();
  EXPECT_FALSE(shown("PointList"));
  EXPECT_TRUE(viewShown());
  const QRect before = view().geometry();
  const int panels = widget("PanelxWertNormal")->height();
  start();
  run(1);
  EXPECT_EQ(view().geometry(), before);
  EXPECT_EQ(widget("PanelxWertNormal")->height(), panels);
  ASSERT_TRUE(until([this] { return !sampling(); }, 8));
  EXPECT_TRUE(viewShown()) << "the course of the last point";
  entry("M_Konvergenz")->trigger();
  settle();
  EXPECT_FALSE(viewShown());
  EXPECT_GT(widget("PanelxWertNormal")->height(), panels) << "the panels take the place";
}

TEST_F(AdaptiveWindow, BroughtBackTheViewShowsWhatIsKnown) {
  set("KonvergenzAnzeige", "0");
  show();
  entry("M_PunktListe")->trigger();
  entry("M_Konvergenz")->trigger();
  settle();
  EXPECT_GT(pixels(FarbeKonvergenzFeld), 200) << "where the first point will be accepted";
  entry("M_Konvergenz")->trigger();
  start();
  ASSERT_TRUE(until([this] { return !sampling(); }, 8));
  EXPECT_EQ(pixels(FarbeKonvergenzX), 0);
  entry("M_Konvergenz")->trigger();
  settle();
  EXPECT_GT(pixels(FarbeKonvergenzX), 20) << "the course of the last point";
}

TEST_F(AdaptiveWindow, WithoutAdaptiveMeasuringThereIsNoViewAndNoPlaceForIt) {
  set("AutoAdapt", "0");
  show();
  entry("M_PunktListe")->trigger();
  settle();
  EXPECT_FALSE(viewShown());
  set("AutoAdapt", "-1");
  click("NEU");
  settle();
  EXPECT_TRUE(viewShown());
}

TEST_F(AdaptiveWindow, TheViewDrawsTheCourseAndTellsItUnderThePointer) {
  show();
  start();
  run(3);
  auto& picture = *form->findChild<PictureKonvergenz*>();
  EXPECT_GT(pixels(FarbeKonvergenzX), 20);
  EXPECT_GT(pixels(FarbeKonvergenzY), 20);
  EXPECT_GT(pixels(FarbeKonvergenzFeld), 200);
  const auto& last = erfassung().adaptMessung().verlauf().back();
  const QPoint place = picture.placeOf({last.sekunden, -2})->toPoint();
  QMouseEvent move(QEvent::MouseMove, place, picture.mapToGlobal(place), Qt::NoButton, Qt::NoButton, {});
  QApplication::sendEvent(&picture, &move);
  EXPECT_EQ(picture.cursor().shape(), Qt::PointingHandCursor) << "there is a hint";
  const QPoint beyond = picture.placeOf({7.5, -2})->toPoint();
  QMouseEvent away(QEvent::MouseMove, beyond, picture.mapToGlobal(beyond), Qt::NoButton, Qt::NoButton, {});
  QApplication::sendEvent(&picture, &away);
  EXPECT_NE(picture.cursor().shape(), Qt::PointingHandCursor);
}

}  // namespace
}  // namespace korvin
