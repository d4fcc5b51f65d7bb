// The XY diagram on the screen: what is drawn when, and what the pointer does.
#include "position/ui/xy_diagram_view.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QToolTip>
#include <cmath>

#include "frame/posix_file_system.h"
#include "frame/ui/qt_text.h"
#include "position/position_limits.h"
#include "position/xy_ranges.h"
#include "support/test_ports.h"

namespace korvin {
namespace {

/// Counts what it draws and paints.
class CountingView : public PictureXYDiagramm {
 public:
  using PictureXYDiagramm::PictureXYDiagramm;

  int frames = 0;
  int contents = 0;
  QRegion painted;

 protected:
  void drawFrame(DrawingSurface& surface) override {
    ++frames;
    PictureXYDiagramm::drawFrame(surface);
  }
  void drawContents(DrawingSurface& surface) override {
    ++contents;
    PictureXYDiagramm::drawContents(surface);
  }
  void paintEvent(QPaintEvent* event) override {
    painted += event->region();
    PictureXYDiagramm::paintEvent(event);
  }
};

class XYView : public testing::Test {
 protected:
  XYView() {
    formpos.Info().RestMP = -1;
    formpos.Info().Gitter = true;
    formpos.Info().NKStellen = 3;
    formpos.messungLoeschen();
    view.onChosen = [this](int number) { chosen.push_back(number); };
    view.resize(600, 560);
    view.show();
    view.follow();
    settle();
  }
  static void settle() { QApplication::processEvents(); }
  void add(double x, double y) {
    formpos.arbeit().X.Aktuell = x;
    formpos.arbeit().Y.Aktuell = y;
    formpos.punktHinzufuegen(45000.5);
    view.follow();
  }
  void forget() {
    settle();
    view.frames = view.contents = 0;
    view.painted = QRegion();
  }
  QPoint placeOf(double x, double y) { return view.placeOf({x, y})->toPoint(); }
  QImage picture() { return view.grab().toImage().convertToFormat(QImage::Format_RGB32); }
  /// True if something else than the frame is seen near a place.
  bool marked(double x, double y) {
    const QImage image = picture();
    const QPoint middle = placeOf(x, y);
    for (int dy = -4; dy <= 4; ++dy) {
      for (int dx = -4; dx <= 4; ++dx) {
        const QColor c = image.pixelColor(middle + QPoint(dx, dy));
        if (c.blue() > c.green() + 40 || c.red() > c.green() + 40) return true;
      }
    }
    return false;
  }

  FORMPOS formpos;
  PosixFileSystem fileSystem;
  test::TestFileDialog fileDialog;
  test::TestMessages messages;
  test::TestDictionary dictionary;
  CountingView view{formpos, 0, PictureDesk{fileDialog, messages, dictionary, fileSystem, {}, {}}};
  std::vector<int> chosen;
};

// ---- What is drawn when ----

TEST_F(XYView, FollowingWithoutAChangeDrawsNothing) {
  add(0.003, 0.002);
  forget();
  for (int i = 0; i < 5; ++i) view.follow();
  settle();
  EXPECT_TRUE(view.painted.isEmpty());
  EXPECT_EQ(view.frames + view.contents, 0);
}

TEST_F(XYView, ANewPointWithinTheRangesPaintsItsPlaceAndTheCursorsOldOne) {
  add(0.004, 0.004);
  add(-0.004, -0.004);
  forget();
  add(0.002, -0.003);
  settle();
  EXPECT_EQ(view.frames + view.contents, 0);
  int area = 0;
  for (const QRect& each : view.painted) area += each.width() * each.height();
  EXPECT_LT(area, 2 * 20 * 20);
  EXPECT_TRUE(view.painted.contains(placeOf(0.002, -0.003)));
  EXPECT_TRUE(view.painted.contains(placeOf(-0.004, -0.004))) << "the cursor left it";
  EXPECT_FALSE(view.painted.contains(placeOf(0.004, 0.004)));
}

TEST_F(XYView, PointsAddedOneByOneLookLikeAllDrawnTogether) {
  add(0.0049, 0.0049);
  for (int i = 0; i < 60; ++i) add(0.004 * std::sin(i), 0.004 * std::cos(i * 1.7));
  const QImage one = picture();
  view.reload();
  EXPECT_EQ(picture(), one);
}

TEST_F(XYView, APointBeyondTheRangeDrawsAllAnewOnce) {
  add(0.003, 0.002);
  forget();
  add(0.03, 0.002);
  settle();
  EXPECT_EQ(view.frames, 1);
  EXPECT_EQ(view.contents, 1);
  EXPECT_DOUBLE_EQ(formpos.arbeit().X.Bereich, 0.05);
  EXPECT_TRUE(marked(0.003, 0.002));
  EXPECT_TRUE(marked(0.03, 0.002));
}

TEST_F(XYView, APointOutsideAManualRangeIsNotDrawn) {
  add(0.003, 0.002);
  bereichHand(formpos.arbeit());
  view.follow();
  const QImage before = picture();
  forget();
  add(0.2, 0.002);
  settle();
  EXPECT_EQ(view.frames + view.contents, 0);
  formpos.Info().MPAktuell = 1;
  view.follow();
  EXPECT_EQ(picture(), before);
}

TEST_F(XYView, ANewOffsetMovesAllPoints) {
  add(0.0035, 0.003);
  add(0.0041, 0.003);
  view.grab();
  formpos.arbeit().X.Offset = 0.0041;
  rahmenVerwerfen(formpos.arbeit());
  view.follow();
  settle();
  EXPECT_TRUE(marked(0, 0.003));
  EXPECT_TRUE(marked(-0.0006, 0.003));
}

TEST_F(XYView, AnOffsetOfOneAxisMovesThePointsWithinTheSameRanges) {
  add(0.0041, 0.0041);
  add(0.0021, 0.0021);
  forget();
  formpos.arbeit().X.Offset = 0.0001;
  view.follow();
  settle();
  EXPECT_EQ(view.frames, 0);
  EXPECT_EQ(view.contents, 1);
  EXPECT_TRUE(marked(0.004, 0.0041));
  formpos.arbeit().Y.Offset = 0.0001;
  view.follow();
  settle();
  EXPECT_EQ(view.contents, 2);
  EXPECT_TRUE(marked(0.004, 0.004));
}

TEST_F(XYView, DeletingLeavesTheEmptyFrame) {
  const QImage empty = picture();
  add(0.0005, 0.0005);
  EXPECT_NE(picture(), empty);
  formpos.messungLoeschen();
  view.follow();
  EXPECT_EQ(picture(), empty);
}

TEST_F(XYView, OnlyTheLastPointIsShownOnRequest) {
  add(0.003, 0.003);
  add(-0.003, 0.003);
  formpos.Info().NurAktuell = true;
  view.follow();
  EXPECT_FALSE(marked(0.003, 0.003));
  EXPECT_TRUE(marked(-0.003, 0.003));
  forget();
  add(-0.003, -0.003);
  settle();
  EXPECT_EQ(view.frames + view.contents, 0) << "one erasure and one circle";
  EXPECT_FALSE(marked(-0.003, 0.003));
  EXPECT_TRUE(marked(-0.003, -0.003));
  formpos.Info().NurAktuell = false;
  view.follow();
  EXPECT_TRUE(marked(0.003, 0.003));
}

TEST_F(XYView, TheCursorIsMarkedAndItsMoveKeepsTheLayers) {
  add(0.003, 0.003);
  add(-0.003, 0.003);
  forget();
  formpos.Info().MPAktuell = 1;
  view.follow();
  settle();
  EXPECT_EQ(view.frames + view.contents, 0);
  const QImage image = picture();
  EXPECT_GT(image.pixelColor(placeOf(0.003, 0.003)).red(), 150);
  EXPECT_LT(image.pixelColor(placeOf(-0.003, 0.003)).red(), 256);
  EXPECT_TRUE(view.painted.contains(placeOf(0.003, 0.003)));
  EXPECT_TRUE(view.painted.contains(placeOf(-0.003, 0.003)));
}

TEST_F(XYView, TheGridGoesWithItsSwitch) {
  const QPoint crossing = placeOf(0.0006, 0.0005);
  const auto gridSeen = [&] {
    const QImage image = picture();
    for (int dx = -2; dx <= 2; ++dx) {
      if (image.pixel(crossing + QPoint(dx, 0)) == 0xffc0c0c0) return true;
    }
    return false;
  };
  EXPECT_TRUE(gridSeen());
  gitterUmschalten(formpos.arbeit());
  view.follow();
  EXPECT_FALSE(gridSeen());
}

TEST_F(XYView, ADenserScreenOrAnotherSizeDrawsAllAnew) {
  add(0.003, 0.003);
  forget();
  view.resize(700, 700);
  settle();
  EXPECT_EQ(view.frames, 1);
  EXPECT_TRUE(marked(0.003, 0.003));
}

// ---- Pointer ----

TEST_F(XYView, APressOnAPointChoosesTheFirstThatIsHit) {
  add(0.004, 0.004);
  add(0.001, 0.001);
  add(0.00105, 0.001);
  add(-0.004, 0.002);
  settle();
  QTest::mouseClick(&view, Qt::LeftButton, {}, placeOf(0.00105, 0.001));
  EXPECT_EQ(chosen, std::vector<int>{2});
  QTest::mouseClick(&view, Qt::LeftButton, {}, placeOf(-0.004, 0.002));
  EXPECT_EQ(chosen, (std::vector<int>{2, 4}));
}

TEST_F(XYView, APressBesideAllPointsChoosesNone) {
  add(0.004, 0.004);
  settle();
  QTest::mouseClick(&view, Qt::LeftButton, {}, placeOf(0.0035, 0.004));
  QTest::mouseClick(&view, Qt::LeftButton, {}, QPoint(1, 1));
  EXPECT_TRUE(chosen.empty());
}

TEST_F(XYView, ThePointerOverAPointTellsNumberTimeAndValues) {
  add(0.004, 0.004);
  add(0.0025, -0.0035);
  formpos.arbeit().X.Offset = 0.001;
  formpos.arbeit().X.BereichHand = 0;
  view.follow();
  settle();
  QTest::mouseMove(&view, placeOf(0.0015, -0.0035));
  settle();
  EXPECT_EQ(utf8Text(QToolTip::text()), "MP 2\n15.03.2023 / 12:00:00\nX  0.0015 mm\nY  -0.0035 mm");
  EXPECT_EQ(view.cursor().shape(), Qt::PointingHandCursor);
  QTest::mouseMove(&view, placeOf(0, 0.001));
  settle();
  EXPECT_EQ(view.cursor().shape(), Qt::ArrowCursor);
}

TEST_F(XYView, InInchesTheHintSaysMil) {
  CountingView inch(formpos, 1, PictureDesk{fileDialog, messages, dictionary, fileSystem, {}, {}});
  add(0.3, 0.2);
  view.hide();
  inch.resize(500, 500);
  inch.show();
  inch.reload();
  settle();
  QTest::mouseMove(&inch, inch.placeOf({0.3, 0.2})->toPoint());
  settle();
  EXPECT_TRUE(QToolTip::text().contains(QStringLiteral("X  0.3000 mil")));
  EXPECT_DOUBLE_EQ(formpos.arbeit().X.Bereich, 0.5);
}

// ---- Crispness ----

TEST_F(XYView, LinesOfTheEmptyFrameHaveTheirFullColour) {
  for (const QSize size : {QSize(300, 300), QSize(433, 517), QSize(1201, 999)}) {
    view.resize(size);
    settle();
    const QImage image = picture();
    // Left of the middle no label: whatever isn't ground along a row is a line of its whole colour.
    const int row = placeOf(0, 0.00051).y();
    int lines = 0;
    for (int x = placeOf(-0.001, 0).x() + 3; x < placeOf(0.001, 0).x() - 3; ++x) {
      const QRgb c = image.pixel(x, row);
      EXPECT_TRUE(c == 0xffffffff || c == 0xffc0c0c0 || c == 0xff808080) << size.width() << ": " << x;
      if (c != 0xffffffff) ++lines;
    }
    EXPECT_GE(lines, 9) << size.width();
    EXPECT_LE(lines, 18) << size.width();
  }
}

TEST_F(XYView, FullStoreIsDrawnToo) {
  for (int i = 0; i < MaxPunkteO; ++i) {
    formpos.arbeit().X.Aktuell = 0.004 * std::sin(i * 0.1);
    formpos.arbeit().Y.Aktuell = 0.004 * std::cos(i * 0.37);
    formpos.punktHinzufuegen(45000);
  }
  view.follow();
  const QImage full = picture();
  forget();
  view.reload();
  settle();
  EXPECT_EQ(view.contents, 1);
  EXPECT_EQ(picture(), full);
}

}  // namespace
}  // namespace korvin
