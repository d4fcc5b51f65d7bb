// The diagram of an axis on the screen: what it keeps, what the mouse and the keys hand out.
#include "straightness/ui/axis_diagram_view.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QToolTip>

#include "frame/posix_file_system.h"
#include "frame/ui/theme.h"
#include "straightness/achsen_anzeige.h"
#include "straightness/achsen_bereich.h"
#include "straightness/formgera.h"
#include "straightness/punkt_lage.h"
#include "support/test_ports.h"

namespace korvin {
namespace {

/// Counts how often its layers are drawn.
class CountingDiagram : public PictureAchsenDiagramm {
 public:
  using PictureAchsenDiagramm::PictureAchsenDiagramm;
  int framesDrawn = 0;
  int contentsDrawn = 0;

 protected:
  void drawFrame(DrawingSurface& surface) override {
    ++framesDrawn;
    PictureAchsenDiagramm::drawFrame(surface);
  }
  void drawContents(DrawingSurface& surface) override {
    ++contentsDrawn;
    PictureAchsenDiagramm::drawContents(surface);
  }
};

/// Five points at 0, 250 ... 1000 mm. All lengths of z below are mm.
class AxisDiagramView : public testing::Test {
 protected:
  AxisDiagramView() {
    series.Linie.AnzMPs = 5;
    series.Linie.Distanz = 1000;
    ReiheLeeren(series);
    for (int i = 1; i <= 5; ++i) series.X.Wert.at(static_cast<std::size_t>(i)) = 0.001 * i;
    series.Info.Auswertung = AuswertungROH;
    diagram.resize(700, 330);
    diagram.onPressed = [this](double z) { pressed.push_back(z); };
    diagram.onDragged = [this](double z) { dragged.push_back(z); };
    diagram.onReleased = [this] { ++released; };
    diagram.onShifted = [this](double dz) { shifted.push_back(dz); };
    diagram.hintOf = [this](std::int16_t punkt) {
      return punktHinweis(achsenQuelle(series, series.X, 0), data, achsenSchalter(series.Info, 0), "X",
                          punkt);
    };
  }

  void redraw() {
    data = achseBerechnen(series, series.X, 0);
    const AchsenQuelle source = achsenQuelle(series, series.X, 0);
    diagram.setPicture(achsenRahmen(source, data, static_cast<bool>(series.Info.Gitter)),
                       achsenInhalt(source, data, achsenSchalter(series.Info, 0)), rahmenVeraltet(series.X));
  }
  void open() {
    redraw();
    diagram.show();
    settle();
  }
  static void settle() { QApplication::processEvents(); }
  void forget() {
    settle();
    diagram.framesDrawn = diagram.contentsDrawn = 0;
  }
  QPoint placeOf(double z, double height = 0) const { return diagram.placeOf({z, height})->toPoint(); }
  /// z of a pixel's width.
  double pixel() const { return 1000 * 55.0 / 50 / diagram.width(); }
  QImage shown() { return diagram.grab().toImage().convertToFormat(QImage::Format_RGB32); }
  /// How many pixels from top to bottom have the colour.
  int height(QRgb colour, double z) {
    const QImage image = shown();
    int count = 0;
    for (int y = 0; y < image.height(); ++y) count += image.pixel(placeOf(z).x(), y) == colour ? 1 : 0;
    return count;
  }

  void press(QPoint at) { QTest::mousePress(&diagram, Qt::LeftButton, {}, at); }
  void release(QPoint at) { QTest::mouseRelease(&diagram, Qt::LeftButton, {}, at); }
  void move(QPoint at, Qt::MouseButtons held = {}) {
    QMouseEvent event(QEvent::MouseMove, at, diagram.mapToGlobal(at), Qt::NoButton, held, {});
    QApplication::sendEvent(&diagram, &event);
  }

  PosixFileSystem fileSystem;
  test::TestFileDialog fileDialog;
  test::TestMessages messages;
  test::TestDictionary dictionary;
  PictureDesk desk{fileDialog,
                   messages,
                   dictionary,
                   fileSystem,
                   [] { return std::string("/start"); },
                   [] { return std::string("rail"); }};
  GeradReihe series;
  AchsenAnzeigeDaten data;
  CountingDiagram diagram{QStringLiteral("PictureXDiagramm"), desk};
  std::vector<double> pressed;
  std::vector<double> dragged;
  std::vector<double> shifted;
  int released = 0;
};

// ---- Layers ----

TEST_F(AxisDiagramView, IsAnEmptyLightGroundBeforeTheFirstPicture) {
  diagram.show();
  settle();
  QImage white = shown();
  white.fill(Qt::white);
  EXPECT_EQ(shown(), white);
  press({300, 150});
  move({320, 150}, Qt::LeftButton);
  release({320, 150});
  EXPECT_TRUE(pressed.empty());
  EXPECT_TRUE(dragged.empty());
  EXPECT_EQ(released, 0);
}

TEST_F(AxisDiagramView, ANewReadingKeepsTheFrame) {
  open();
  forget();
  series.X.Wert.at(2) = 0.004;
  redraw();
  settle();
  EXPECT_EQ(diagram.framesDrawn, 0);
  EXPECT_EQ(diagram.contentsDrawn, 1);
}

TEST_F(AxisDiagramView, AnotherRangeDrawsTheFrameAnew) {
  open();
  forget();
  series.X.Wert.at(2) = 0.4;
  redraw();
  settle();
  EXPECT_EQ(diagram.framesDrawn, 1);
  EXPECT_EQ(diagram.contentsDrawn, 1);
}

TEST_F(AxisDiagramView, ARequestAndAnotherSizeDrawTheFrameAnew) {
  open();
  forget();
  series.X.BereichAlt = 0;
  redraw();
  settle();
  EXPECT_EQ(diagram.framesDrawn, 1);
  diagram.resize(500, 250);
  settle();
  EXPECT_EQ(diagram.framesDrawn, 2);
}

TEST_F(AxisDiagramView, AFrameThatNoLongerHoldsIsDrawnAnewUnasked) {
  open();
  const auto framesAfter = [&](auto change) {
    forget();
    change();
    redraw();
    settle();
    return diagram.framesDrawn;
  };
  EXPECT_EQ(framesAfter([&] { series.Linie.Z.at(3) = 480; }), 1);
  EXPECT_EQ(framesAfter([&] { series.Linie.Distanz = 1100; }), 1);
  EXPECT_EQ(framesAfter([&] { series.Linie.AnzMPs = 4; }), 1);
  EXPECT_EQ(framesAfter([&] { series.Info.Gitter = !series.Info.Gitter; }), 1);
  EXPECT_EQ(framesAfter([&] { series.Linie.AktMP = 2; }), 0);
}

TEST_F(AxisDiagramView, KeepsCopiesOfWhatItWasHanded) {
  open();
  const QImage before = shown();
  series.Linie.Z.fill(0);
  series.X.Wert = {};
  data = {};
  diagram.resize(701, 330);  // all is drawn anew
  diagram.resize(700, 330);
  EXPECT_EQ(shown(), before);
}

TEST_F(AxisDiagramView, LiesOnALightGroundInADarkDesktop) {
  open();
  const QImage light = shown();
  applyTheme(Appearance::dark, 1, 0);
  diagram.resize(701, 330);
  diagram.resize(700, 330);
  const QColor ground = shown().pixelColor(diagram.width() - 3, 3);
  applyTheme(Appearance::light, screenScale(1024 / 1280.0, 768 / 1024.0), 0);
  EXPECT_EQ(ground, QColor(Qt::white));
}

// ---- Mouse ----

TEST_F(AxisDiagramView, APressHandsOutItsZ) {
  open();
  press(placeOf(250, 0.003));
  release(placeOf(250, 0.003));
  ASSERT_EQ(pressed.size(), 1U);
  EXPECT_NEAR(pressed[0], 250, pixel());
  EXPECT_EQ(released, 1);
  EXPECT_TRUE(dragged.empty());
}

TEST_F(AxisDiagramView, OnlyTheLeftButtonCounts) {
  open();
  QTest::mousePress(&diagram, Qt::MiddleButton, {}, placeOf(250));
  move(placeOf(300), Qt::MiddleButton);
  QTest::mouseRelease(&diagram, Qt::MiddleButton, {}, placeOf(300));
  EXPECT_TRUE(pressed.empty());
  EXPECT_TRUE(dragged.empty());
  EXPECT_EQ(released, 0);
  press(placeOf(250));
  QTest::mouseRelease(&diagram, Qt::MiddleButton, {}, placeOf(250));
  EXPECT_EQ(released, 0);
  release(placeOf(250));
  EXPECT_EQ(released, 1);
}

TEST_F(AxisDiagramView, ADragHandsOutZAlsoBeyondTheEdge) {
  open();
  press(placeOf(500));
  move(placeOf(600), Qt::LeftButton);
  move({diagram.width() + 100, 20}, Qt::LeftButton);
  move({-100, 20}, Qt::LeftButton);
  release({-100, 20});
  ASSERT_EQ(dragged.size(), 3U);
  EXPECT_NEAR(dragged[0], 600, pixel());
  EXPECT_GT(dragged[1], 1040);
  EXPECT_LT(dragged[2], -60);
  EXPECT_EQ(released, 1);
  move(placeOf(600));
  EXPECT_EQ(dragged.size(), 3U);
}

TEST_F(AxisDiagramView, ALostReleaseIsMadeUpFor) {
  open();
  press(placeOf(500));
  move(placeOf(600));  // a box has taken the release
  EXPECT_EQ(released, 1);
  EXPECT_TRUE(dragged.empty());
  press(placeOf(500));
  diagram.hide();
  EXPECT_EQ(released, 2);
}

TEST_F(AxisDiagramView, PressedPointsAreChosen) {
  diagram.onPressed = [this](double z) {
    if (const auto point = punktBei(series.Linie, z))
      PunktWechseln(series.Linie, *point - series.Linie.AktMP);
    redraw();
  };
  open();
  EXPECT_GT(height(qRgb(0, 0, 0), 0), 200);
  QTest::mouseClick(&diagram, Qt::LeftButton, {}, placeOf(750, 0.004));
  settle();
  EXPECT_EQ(series.Linie.AktMP, 4);
  EXPECT_GT(height(qRgb(0, 0, 0), 750), 200);
  EXPECT_LT(height(qRgb(0, 0, 0), 0), 20);
}

// ---- Keys ----

TEST_F(AxisDiagramView, ArrowsShiftByATenthWhileTheButtonIsHeld) {
  open();
  QTest::keyClick(&diagram, Qt::Key_Right);
  EXPECT_TRUE(shifted.empty());
  press(placeOf(500));
  QTest::keyClick(&diagram, Qt::Key_Right);
  QTest::keyClick(&diagram, Qt::Key_Left);
  QTest::keyClick(&diagram, Qt::Key_Up);
  QTest::keyClick(&diagram, Qt::Key_Left, Qt::ControlModifier);
  release(placeOf(500));
  QTest::keyClick(&diagram, Qt::Key_Left);
  EXPECT_EQ(shifted, (std::vector<double>{0.1, -0.1}));
}

TEST_F(AxisDiagramView, ArrowsWithoutAHeldButtonAreLeftToTheWindow) {
  open();
  QKeyEvent arrow(QEvent::KeyPress, Qt::Key_Left, Qt::NoModifier);
  QApplication::sendEvent(&diagram, &arrow);
  EXPECT_FALSE(arrow.isAccepted());
}

// ---- Pointer and hint ----

TEST_F(AxisDiagramView, ThePointerTellsWhatAPressDoes) {
  open();
  EXPECT_EQ(diagram.cursor().shape(), Qt::UpArrowCursor);
  move(placeOf(250));
  EXPECT_EQ(diagram.cursor().shape(), Qt::UpArrowCursor);
  diagram.setPointer(AxisPointer::move);
  move(placeOf(300));
  EXPECT_EQ(diagram.cursor().shape(), Qt::SizeAllCursor);
  diagram.setPointer(AxisPointer::drag);
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(&diagram, &leave);
  EXPECT_EQ(diagram.cursor().shape(), Qt::SizeHorCursor);
}

TEST_F(AxisDiagramView, ThePointerOverAPointShowsNumberZAndValue) {
  series.Info.NKStellen = 2;
  open();
  move(placeOf(250) + QPoint(5, 40));
  EXPECT_EQ(QToolTip::text(), QStringLiteral("MP 2\nz  250.0 mm\nX  0.002 mm"));
}

TEST_F(AxisDiagramView, OverTwoClosePointsTheNearerOneIsShown) {
  series.Linie.Z.at(3) = 256;
  std::vector<int> asked;
  diagram.hintOf = [&](std::int16_t point) { return asked.push_back(point), std::string(); };
  open();
  move(placeOf(249));
  move(placeOf(257));
  move(placeOf(380));
  move(placeOf(-30));
  EXPECT_EQ(asked, (std::vector<int>{2, 3}));
}

}  // namespace
}  // namespace korvin
