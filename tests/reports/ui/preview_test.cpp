#include <QLabel>
#include <QScrollBar>
#include <QWheelEvent>

#include "print_stand.h"
#include "reports/ui/preview_pages.h"
#include "reports/ui/print_preview.h"

namespace korvin {
namespace {

class Preview : public test::PrintStand {
 protected:
  void open(int count, QSize size = QSize(1024, 768)) {
    TextShaper shaper(0);
    composed = composedPages(pages(count), shaper, {});
    preview = std::make_unique<PrintPreview>(texts, "Welle", composed, 0, true, nullptr);
    preview->resize(size);
    preview->show();
    QApplication::processEvents();
  }
  PreviewPages& area() { return *preview->findChild<PreviewPages*>(); }
  std::string label(const char* name) {
    return utf8Text(preview->findChild<QLabel*>(QString::fromLatin1(name))->text());
  }
  void key(Qt::Key key) { QTest::keyClick(&area(), key); }
  QImage seen() { return area().viewport()->grab().toImage(); }
  bool whollySeen(int page) { return area().viewport()->rect().contains(area().placeOf(page)); }

  std::vector<PageMarks> composed;
  std::unique_ptr<PrintPreview> preview;
};

TEST_F(Preview, WholePagesStandSideBySideAtFirst) {
  open(3);
  EXPECT_EQ(area().columns(), 2);
  EXPECT_TRUE(whollySeen(1));
  EXPECT_TRUE(whollySeen(2));
  EXPECT_FALSE(whollySeen(3));
  EXPECT_EQ(area().placeOf(1).top(), area().placeOf(2).top());
  EXPECT_LT(area().placeOf(1).right(), area().placeOf(2).left());
  EXPECT_EQ(label("PreviewPage"), "Seite 1 / 3");
}

TEST_F(Preview, ThePaperHasTheProportionsOfA4) {
  open(1);
  const QRect paper = area().placeOf(1);
  EXPECT_NEAR(paper.height() / double(paper.width()), 297 / 210.0, 0.003);
}

TEST_F(Preview, PagesShowTheirMarks) {
  open(2);
  const QRect paper = area().placeOf(2);
  const double mm = paper.width() / 210.0;
  const QRect text(paper.left() + int(20 * mm), paper.top() + int(30 * mm), int(20 * mm), int(5 * mm));
  const QImage picture = seen();
  int dark = 0;
  for (int y = text.top(); y < text.bottom(); ++y) {
    for (int x = text.left(); x < text.right(); ++x) dark += qGray(picture.pixel(x, y)) < 128;
  }
  EXPECT_GT(dark, 10);
  EXPECT_EQ(picture.pixelColor(paper.center()), QColor(Qt::white));
}

TEST_F(Preview, ZoomKeysAndFit) {
  open(3);
  const double whole = area().zoom();
  QTest::mouseClick(preview->findChild<QAbstractButton*>(QStringLiteral("GROESSER")), Qt::LeftButton);
  EXPECT_NEAR(area().zoom(), whole * 1.25, 0.001);
  QTest::mouseClick(preview->findChild<QAbstractButton*>(QStringLiteral("KLEINER")), Qt::LeftButton);
  QTest::mouseClick(preview->findChild<QAbstractButton*>(QStringLiteral("KLEINER")), Qt::LeftButton);
  EXPECT_NEAR(area().zoom(), whole / 1.25, 0.001);
  QTest::mouseClick(preview->findChild<QAbstractButton*>(QStringLiteral("KLEINER")), Qt::LeftButton);
  EXPECT_EQ(area().columns(), 3) << "smaller pages, more in a row";
  QTest::mouseClick(preview->findChild<QAbstractButton*>(QStringLiteral("BREITE")), Qt::LeftButton);
  EXPECT_EQ(area().columns(), 1);
  EXPECT_GT(area().placeOf(1).width(), area().viewport()->width() * 0.9);
  EXPECT_LE(area().placeOf(1).width(), area().viewport()->width());
  QTest::mouseClick(preview->findChild<QAbstractButton*>(QStringLiteral("SEITE")), Qt::LeftButton);
  EXPECT_NEAR(area().zoom(), whole, 0.001);
  EXPECT_EQ(label("PreviewZoom"), std::to_string(std::lround(whole * 100)) + " %");
}

TEST_F(Preview, ZoomHasItsLimits) {
  open(2);
  for (int i = 0; i < 40; ++i) key(Qt::Key_Plus);
  EXPECT_DOUBLE_EQ(area().zoom(), 5);
  seen();
  for (int i = 0; i < 60; ++i) key(Qt::Key_Minus);
  EXPECT_DOUBLE_EQ(area().zoom(), 0.1);
  key(Qt::Key_0);
  EXPECT_TRUE(whollySeen(1));
}

TEST_F(Preview, KeysGoThroughThePages) {
  open(100);
  EXPECT_EQ(label("PreviewPage"), "Seite 1 / 100");
  key(Qt::Key_PageDown);
  EXPECT_EQ(label("PreviewPage"), "Seite 3 / 100") << "a row further";
  EXPECT_TRUE(whollySeen(3));
  EXPECT_TRUE(whollySeen(4));
  key(Qt::Key_PageUp);
  EXPECT_EQ(label("PreviewPage"), "Seite 1 / 100");
  key(Qt::Key_End);
  EXPECT_EQ(label("PreviewPage"), "Seite 99 / 100");
  EXPECT_TRUE(whollySeen(100));
  key(Qt::Key_Home);
  EXPECT_EQ(label("PreviewPage"), "Seite 1 / 100");
}

TEST_F(Preview, TheWheelWithCtrlZooms) {
  open(2);
  const double before = area().zoom();
  QWheelEvent wheel(QPointF(10, 10), QPointF(10, 10), QPoint(), QPoint(0, 120), Qt::NoButton,
                    Qt::ControlModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(area().viewport(), &wheel);
  EXPECT_GT(area().zoom(), before);
}

TEST_F(Preview, ALargeWindowShowsMorePagesAndFitsThemAnew) {
  open(10);
  const double small = area().zoom();
  preview->resize(2000, 1200);
  QApplication::processEvents();
  EXPECT_GT(area().zoom(), small * 1.4);
  EXPECT_TRUE(whollySeen(2));
}

TEST_F(Preview, HundredsOfPagesAreLaidOutButOnlyTheSeenArePainted) {
  open(834);
  EXPECT_EQ(area().pageCount(), 834);
  area().showPage(833);
  EXPECT_TRUE(whollySeen(834));
  seen();
  EXPECT_EQ(label("PreviewPage"), "Seite 833 / 834");
}

TEST_F(Preview, ThePageInTheMiddleStaysWhileZooming) {
  open(100);
  key(Qt::Key_PageDown);
  key(Qt::Key_PageDown);
  const int page = area().currentPage();
  area().setFit(PreviewPages::Fit::width);
  EXPECT_EQ(area().currentPage(), page);
  area().setFit(PreviewPages::Fit::page);
  EXPECT_EQ(area().currentPage(), page);
}

}  // namespace
}  // namespace korvin
