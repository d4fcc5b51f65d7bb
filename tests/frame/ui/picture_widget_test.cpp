// A diagram in a window: layers, pointer, copies and files.
#include "frame/ui/picture_widget.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QPainter>
#include <QSvgRenderer>
#include <QTest>
#include <QTimer>
#include <QToolTip>
#include <cerrno>

#include "frame/posix_file_system.h"
#include "frame/ui/qt_text.h"
#include "frame/ui/theme.h"
#include "support/faulty_file_system.h"
#include "support/test_files.h"
#include "support/test_ports.h"

namespace korvin {
namespace {

/// A diagram of some discs on a frame with a border, with one of them marked.
class Discs : public PictureWidget {
 public:
  using PictureWidget::addContents;
  using PictureWidget::contentsChanged;
  using PictureWidget::frameChanged;
  using PictureWidget::overlayChanged;
  using PictureWidget::PictureWidget;

  void add(DataPoint point) {
    points.push_back(point);
    addContents([&](DrawingSurface& surface) { surface.disc(point, 0.02, 0); });
  }

  std::vector<DataPoint> points;
  std::optional<DataPoint> marked;
  std::vector<DataPoint> presses;
  int framesDrawn = 0;
  int contentsDrawn = 0;
  double textHeight = 0;  ///< share of the picture's half
  std::vector<QRect> painted;

 protected:
  void drawFrame(DrawingSurface& surface) override {
    ++framesDrawn;
    surface.setWindow({-1, 1, 1, -1});
    surface.clear(FarbeWeiss);
    surface.line({-0.9, 0}, {0.9, 0}, {FarbeGrau});
    surface.text({0, 0.5}, "label", {}, {});
    textHeight = surface.textSize("label", {}).height;
  }
  void drawContents(DrawingSurface& surface) override {
    ++contentsDrawn;
    for (const DataPoint point : points) surface.disc(point, 0.02, 0);
  }
  void drawOverlay(DrawingSurface& surface) override {
    if (marked) surface.circle(*marked, 0.05, {0x0000FF});
  }
  QString hint(DataPoint at) override { return at.x > 0 ? QStringLiteral("right") : QString(); }
  void pressed(DataPoint at) override { presses.push_back(at); }
  void paintEvent(QPaintEvent* event) override {
    painted.push_back(event->rect());
    PictureWidget::paintEvent(event);
  }
};

class PictureWidgetTest : public testing::Test {
 protected:
  PictureWidgetTest() {
    diagram.setTexts();
    diagram.resize(400, 300);
    diagram.show();
    settle();
  }
  static void settle() { QApplication::processEvents(); }
  void forget() {
    settle();
    diagram.painted.clear();
    diagram.framesDrawn = diagram.contentsDrawn = 0;
  }
  QRect paintedArea() const {
    QRect area;
    for (const QRect& each : diagram.painted) area |= each;
    return area;
  }
  QImage shown() { return diagram.grab().toImage().convertToFormat(QImage::Format_RGB32); }

  test::TestFolder folder;
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
  Discs diagram{desk, 1};
};

/// A disk without room for one byte more.
class FullDisk : public test::UnflushedFileSystem {
 public:
  long write(int, std::span<const std::byte>) override { return -ENOSPC; }
};

// ---- Layers ----

TEST_F(PictureWidgetTest, TextsOfASmallPictureKeepUpWithTheWindows) {
  diagram.grab();
  const double small = diagram.textHeight;
  applyTheme(Appearance::light, 2, 0);
  diagram.resize(400, 301);
  diagram.grab();
  applyTheme(Appearance::light, screenScale(1024 / 1280.0, 768 / 1024.0), 0);
  EXPECT_GT(diagram.textHeight, 1.7 * small);
}

TEST_F(PictureWidgetTest, PaintingAgainDrawsNothingAnew) {
  forget();
  diagram.update();
  settle();
  EXPECT_FALSE(diagram.painted.empty());
  EXPECT_EQ(diagram.framesDrawn, 0);
  EXPECT_EQ(diagram.contentsDrawn, 0);
}

TEST_F(PictureWidgetTest, NewContentsKeepTheFrame) {
  forget();
  diagram.contentsChanged();
  settle();
  EXPECT_EQ(diagram.framesDrawn, 0);
  EXPECT_EQ(diagram.contentsDrawn, 1);
  diagram.frameChanged();
  settle();
  EXPECT_EQ(diagram.framesDrawn, 1);
  EXPECT_EQ(diagram.contentsDrawn, 2);
}

TEST_F(PictureWidgetTest, AnotherSizeDrawsAllAnew) {
  forget();
  diagram.resize(500, 400);
  settle();
  EXPECT_EQ(diagram.framesDrawn, 1);
  EXPECT_EQ(diagram.contentsDrawn, 1);
}

TEST_F(PictureWidgetTest, OneMorePointPaintsItsRectangleOnly) {
  forget();
  diagram.add({0.5, 0.25});
  settle();
  EXPECT_EQ(diagram.contentsDrawn, 0);
  const QRect area = paintedArea();
  EXPECT_FALSE(area.isEmpty());
  EXPECT_LE(area.width(), 12);
  EXPECT_LE(area.height(), 12);
  EXPECT_TRUE(area.contains(diagram.placeOf({0.5, 0.25})->toPoint()));
}

TEST_F(PictureWidgetTest, PointsAddedLookLikePointsDrawnTogether) {
  for (int i = 0; i < 20; ++i) diagram.add({-0.8 + 0.07 * i, 0.5 - 0.05 * i});
  settle();
  const QImage added = shown();
  diagram.frameChanged();
  EXPECT_EQ(added, shown());
}

TEST_F(PictureWidgetTest, ErasingDrawsTheFrameAgain) {
  const QImage empty = shown();
  diagram.add({0.5, 0.25});
  EXPECT_NE(shown(), empty);
  diagram.points.clear();
  diagram.contentsChanged();
  EXPECT_EQ(shown(), empty);
}

TEST_F(PictureWidgetTest, TheOverlayMovesWithoutTrace) {
  diagram.add({0.5, 0.25});
  const QImage bare = shown();
  diagram.marked = DataPoint{0.5, 0.25};
  diagram.overlayChanged();
  settle();
  EXPECT_NE(shown(), bare);
  forget();
  diagram.marked = DataPoint{-0.5, -0.25};
  diagram.overlayChanged();
  settle();
  EXPECT_EQ(diagram.framesDrawn + diagram.contentsDrawn, 0);
  EXPECT_TRUE(paintedArea().contains(diagram.placeOf({0.5, 0.25})->toPoint())) << "where it was";
  EXPECT_TRUE(paintedArea().contains(diagram.placeOf({-0.5, -0.25})->toPoint())) << "where it is";
  diagram.marked.reset();
  EXPECT_EQ(shown(), bare);
}

TEST_F(PictureWidgetTest, AnOverlayHalfPaintedOverIsStillTakenAwayWhole) {
  diagram.marked = DataPoint{0.5, 0.25};
  diagram.overlayChanged();
  settle();
  diagram.marked = DataPoint{-0.5, 0.25};
  diagram.update(0, 0, 20, 20);
  settle();
  forget();
  diagram.overlayChanged();
  settle();
  EXPECT_TRUE(paintedArea().contains(diagram.placeOf({0.5, 0.25})->toPoint()));
}

// ---- Place and look ----

TEST_F(PictureWidgetTest, KeepsItsShapeInTheMiddle) {
  EXPECT_EQ(diagram.pictureRect(), QRect(50, 0, 300, 300));
  diagram.resize(200, 300);
  EXPECT_EQ(diagram.pictureRect(), QRect(0, 50, 200, 200));
  Discs filling(desk, 0);
  filling.resize(400, 300);
  EXPECT_EQ(filling.pictureRect(), filling.rect());
}

TEST_F(PictureWidgetTest, HasALightGroundInADarkDesktopToo) {
  const QImage light = shown();
  EXPECT_EQ(light.pixel(2, 2), 0xffffffff) << "beside the picture";
  EXPECT_EQ(light.pixel(60, 10), 0xffffffff) << "in it";
  applyTheme(Appearance::dark, 0.9, 0);
  settle();
  EXPECT_EQ(shown(), light);
  applyTheme(Appearance::light, 0.9, 0);
}

TEST_F(PictureWidgetTest, TellsDataOfPlacesAndPlacesOfData) {
  const auto at = diagram.dataAt(QPointF(200, 75));
  ASSERT_TRUE(at);
  EXPECT_NEAR(at->x, 0, 1e-12);
  EXPECT_NEAR(at->y, 0.5, 1e-12);
  EXPECT_EQ(*diagram.placeOf({0, 0.5}), QPointF(200, 75));
  EXPECT_FALSE(diagram.dataAt(QPointF(20, 75))) << "beside the picture";
  Discs unseen(desk, 1);
  EXPECT_FALSE(unseen.dataAt(QPointF(5, 5)));
  EXPECT_FALSE(unseen.placeOf({0, 0}));
}

// ---- Pointer ----

TEST_F(PictureWidgetTest, APressTellsItsPlace) {
  QTest::mouseClick(&diagram, Qt::LeftButton, {}, QPoint(200, 75));
  ASSERT_EQ(diagram.presses.size(), 1U);
  EXPECT_NEAR(diagram.presses[0].x, 0, 0.01);
  EXPECT_NEAR(diagram.presses[0].y, 0.5, 0.01);
  QTest::mouseClick(&diagram, Qt::LeftButton, {}, QPoint(20, 75));
  QTest::mouseClick(&diagram, Qt::MiddleButton, {}, QPoint(200, 75));
  EXPECT_EQ(diagram.presses.size(), 1U);
}

TEST_F(PictureWidgetTest, TheHintComesAtOnce) {
  QTest::mouseMove(&diagram, QPoint(300, 75));
  settle();
  EXPECT_EQ(QToolTip::text(), QStringLiteral("right"));
  EXPECT_EQ(diagram.cursor().shape(), Qt::PointingHandCursor);
  QTest::mouseMove(&diagram, QPoint(100, 75));
  settle();
  EXPECT_EQ(diagram.cursor().shape(), Qt::ArrowCursor);
}

// ---- Copies and files ----

TEST_F(PictureWidgetTest, IsCopiedByTheKeyWithItsMark) {
  diagram.marked = DataPoint{0, 0};
  QGuiApplication::clipboard()->clear();
  QTest::keyClick(&diagram, Qt::Key_C, Qt::ControlModifier);
  const QImage copy = QGuiApplication::clipboard()->image();
  EXPECT_EQ(copy.size(), QSize(1600, 1600));
  EXPECT_EQ(copy.pixelColor(3, 3), QColor(Qt::white));
  bool red = false;
  for (int x = 800; x < 900; ++x) red = red || copy.pixelColor(x, 800) == QColor(Qt::red);
  EXPECT_TRUE(red);
  EXPECT_EQ(diagram.dataAt(QPointF(200, 150))->x, 0) << "the picture on the screen is untouched";
}

TEST_F(PictureWidgetTest, TheContextMenuOffersCopyAndBothFiles) {
  QStringList entries;
  QTimer::singleShot(0, [&] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(menu, nullptr);
    for (const QAction* each : menu->actions()) {
      if (!each->isSeparator()) entries << each->text();
    }
    menu->close();
  });
  QContextMenuEvent request(QContextMenuEvent::Mouse, QPoint(100, 100),
                            diagram.mapToGlobal(QPoint(100, 100)));
  QApplication::sendEvent(&diagram, &request);
  EXPECT_EQ(utf8Text(entries.join(QLatin1Char('/'))), "D7350\tCtrl+C/D7351/D7352");
}

TEST_F(PictureWidgetTest, IsSavedAsPng) {
  diagram.add({0.5, 0.25});
  fileDialog.answers.push_back(folder.path("a.png"));
  diagram.findChild<QAction*>(QStringLiteral("BildAlsPng"))->trigger();
  ASSERT_EQ(fileDialog.requests.size(), 1U);
  EXPECT_EQ(fileDialog.requests[0].folder, "/start");
  EXPECT_EQ(fileDialog.requests[0].name, "rail.png");
  EXPECT_EQ(fileDialog.requests[0].filter, "D7353 (*.png)|*.png");
  EXPECT_EQ(fileDialog.requests[0].title, "D7355");
  EXPECT_FALSE(fileDialog.requests[0].open);
  const QImage saved(QString::fromStdString(folder.path("a.png")));
  EXPECT_EQ(saved.size(), QSize(1600, 1600));
  EXPECT_EQ(saved.pixelColor(1200, 600), QColor(Qt::black));
  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(PictureWidgetTest, IsSavedAsSvgWithItsWords) {
  diagram.add({0.5, 0.25});
  diagram.setAccessibleName(QStringLiteral("Title & more"));
  fileDialog.answers.push_back(folder.path("a"));
  diagram.savePicture(PictureFormat::svg);
  const std::string svg = test::readFile(folder.path("a.svg"));
  EXPECT_NE(svg.find(">label</text>"), std::string::npos);
  EXPECT_NE(svg.find("Title &amp; more"), std::string::npos);
  QSvgRenderer renderer(QString::fromStdString(folder.path("a.svg")));
  ASSERT_TRUE(renderer.isValid());
  EXPECT_EQ(renderer.viewBox(), QRect(0, 0, 800, 800));
  QImage drawn(800, 800, QImage::Format_RGB32);
  drawn.fill(Qt::white);
  QPainter painter(&drawn);
  renderer.render(&painter);
  EXPECT_EQ(drawn.pixelColor(600, 300), QColor(Qt::black));
  EXPECT_NE(drawn.pixelColor(400, 400), QColor(Qt::white)) << "the line through the middle";
}

TEST_F(PictureWidgetTest, CancelSavesNothing) {
  diagram.savePicture(PictureFormat::png);
  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(PictureWidgetTest, AFolderThatIsNotThereIsTold) {
  fileDialog.answers.push_back(folder.path("no/such/a.png"));
  diagram.savePicture(PictureFormat::png);
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(messages.shown[0].title.substr(0, 22), "D1100 (BildSpeichern):");
  EXPECT_NE(messages.shown[0].text.find("no/such/a.png"), std::string::npos);
  EXPECT_NE(messages.shown[0].text.find("D7315"), std::string::npos);
  EXPECT_EQ(messages.beeps, 1);
}

TEST_F(PictureWidgetTest, AFullDiskLeavesTheOldFile) {
  FullDisk disk;
  test::writeFile(folder.path("a.svg"), "old");
  PictureDesk full{fileDialog, messages, dictionary, disk, {}, {}};
  fileDialog.answers.push_back(folder.path("a.svg"));
  EXPECT_FALSE(savePicture(full, PictureFormat::svg, "new"));
  EXPECT_EQ(test::readFile(folder.path("a.svg")), "old");
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_NE(messages.shown[0].text.find("D7310"), std::string::npos);
}

TEST_F(PictureWidgetTest, APictureThatCannotBeMadeIsTold) {
  fileDialog.answers.push_back(folder.path("a.png"));
  EXPECT_FALSE(savePicture(desk, PictureFormat::png, {}));
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(messages.shown[0].text, "D1102");
}

}  // namespace
}  // namespace korvin
