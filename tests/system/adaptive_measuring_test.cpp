// Adaptive points over a real line: the straightness window with the virtual head as a process, whose
// readings are unquiet. Times of the points are real, so they are kept short.
#include <gtest/gtest.h>

#include <QPushButton>
#include <QTimer>
#include <cmath>

#include "system/line_window_stand.h"

namespace korvin {
namespace {

class AdaptiveLine : public ::testing::Test {
 protected:
  AdaptiveLine() {
    set("AutoAdapt", "-1");
    set("MessZeitMin", "1");
    set("MessZeitMax", "20");
    set("X_Genauigkeit", "0.005");
    set("Y_Genauigkeit", "0.005");
  }
  void set(const char* key, const char* value) {
    stand.profil.ProfilSchreiben(KorvinIni, "MessInfo_G", key, value);
  }
  /// A head whose readings scatter by `noise` um after a second of averaging, by more within the answer time
  /// of the fast telegrams.
  test::HeadProcess startHead(const char* noise) {
    return stand.link.startHead(
        1, {"--x", "0.5", "--y", "-0.3", "--noise", noise, "--time-scale", "0.2", "--seed", "7"});
  }
  const AdaptivMessung& point() { return stand.erfassung.adaptMessung(); }
  bool samplingShown() { return widget("AdaptProgress")->isVisibleTo(stand.form.get()); }
  QWidget* widget(const char* name) { return stand.form->findChild<QWidget*>(QString::fromUtf8(name)); }
  /// Presses the key until a point is under way.
  bool start() {
    return stand.until([this] {
      if (!point().laeuft() && !stand.pressed("XYMP1")) stand.click("XYMP1");
      return point().laeuft();
    });
  }
  /// Answers the dialog of the failed point by its button.
  void answerBy(int index) {
    QObject::connect(&watch, &QTimer::timeout, stand.form.get(), [this, index] {
      auto* dialog = stand.form->findChild<FormAdaptFehler*>();
      if (dialog == nullptr || !dialog->isVisible()) return;
      ++dialogs;
      QTest::mouseClick(dialog->findChild<QPushButton*>(QStringLiteral("CmdAdaptCont(%1)").arg(index)),
                        Qt::LeftButton);
    });
    watch.start(20);
  }
  bool ended() {
    return stand.until([this] { return !point().laeuft(); });
  }

  SystemClock clock;
  test::LineWindowStand stand{clock};
  QTimer watch;
  int dialogs = 0;
};

TEST_F(AdaptiveLine, AnUnquietBeamIsSampledUntilItsMeanIsKnown) {
  auto head = startHead("2");
  stand.show();
  ASSERT_TRUE(start());
  ASSERT_TRUE(stand.until([&] { return point().zustand().AdaptN >= 5; }));
  EXPECT_TRUE(samplingShown());
  EXPECT_TRUE(widget("FrmKonvergenz")->isVisible());
  EXPECT_TRUE(istLeer(stand.x(1)));
  ASSERT_TRUE(ended());
  ASSERT_EQ(stand.line().AktMP, 2);
  EXPECT_NEAR(stand.x(1), 0.5, 0.005);
  EXPECT_NEAR(stand.y(1), -0.3, 0.005);
  EXPECT_NE(stand.x(1), 0.5) << "a mean of noise";
  const AdaptZustand& state = point().zustand();
  EXPECT_GT(state.AdaptLaufzeit, 1);
  EXPECT_LT(state.AdaptLaufzeit, 20);
  EXPECT_LT(state.AdaptKX, 0.005);
  EXPECT_FALSE(samplingShown());
  ASSERT_TRUE(stand.close());
}

TEST_F(AdaptiveLine, ABeamTooUnquietEndsInTheDialogAndALongerTimeIsKept) {
  set("MessZeitMax", "2");
  set("X_Genauigkeit", "0.001");
  auto head = startHead("20");
  stand.show();
  answerBy(0);
  ASSERT_TRUE(start());
  ASSERT_TRUE(ended());
  EXPECT_EQ(dialogs, 1);
  EXPECT_TRUE(istLeer(stand.x(1)));
  EXPECT_EQ(stand.line().AktMP, 1);
  const int time = stand.formgera.reihe().Adapt.MessZeitMax;
  EXPECT_GT(time, 2);
  EXPECT_EQ(stand.profil.wert("MessInfo_G", "MessZeitMax", ""), std::to_string(time));
  EXPECT_TRUE(start()) << "the next try";
  ASSERT_TRUE(stand.close());
}

TEST_F(AdaptiveLine, TheHeadsKeyStartsAPointAndTheToolbarCancelsIt) {
  set("X_Genauigkeit", "0.001");
  auto head = startHead("20");
  stand.show();
  head.press("m");
  ASSERT_TRUE(stand.until([&] { return point().laeuft(); }));
  ASSERT_TRUE(stand.until([&] { return point().zustand().AdaptN >= 3; }));
  stand.click("XYMP1");
  ASSERT_TRUE(ended());
  EXPECT_EQ(dialogs, 0);
  EXPECT_TRUE(istLeer(stand.x(1)));
  ASSERT_TRUE(stand.close());
}

TEST_F(AdaptiveLine, ClosesWhileAPointIsSampled) {
  auto head = startHead("20");
  stand.show();
  ASSERT_TRUE(start());
  ASSERT_TRUE(stand.close());
  EXPECT_FALSE(stand.link.port.PortOpen());
  EXPECT_TRUE(istLeer(stand.x(1)));
}

}  // namespace
}  // namespace korvin
