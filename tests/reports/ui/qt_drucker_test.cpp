#include "reports/ui/qt_drucker.h"

#include <gtest/gtest.h>

#include <QFontInfo>
#include <limits>

#include "support/test_files.h"

namespace korvin {
namespace {

constexpr double hair = 0.001;  // mm

class Collected : public PageSink {
 public:
  void page(PageMarks&& page) override { pages.push_back(std::move(page)); }
  void end() override { ended = true; }
  std::vector<PageMarks> pages;
  bool ended = false;
};

class QtDruckerTest : public ::testing::Test {
 protected:
  /// The marks of the page at hand, which ends with it.
  PageMarks page() {
    drucker.neueSeite();
    return sink.pages.back();
  }

  TextShaper shaper{0};
  Collected sink;
  QtDrucker drucker{shaper, sink};
};

TEST_F(QtDruckerTest, UnitsAreMillimetresAtFirstAndOnEachNewPage) {
  drucker.linie(20, 30, 190, 292, 0);
  drucker.setSkala(0, 0, 1, 1);
  const PageMark first = page().marks.at(0);
  EXPECT_FLOAT_EQ(first.x1, 20);
  EXPECT_FLOAT_EQ(first.y1, 30);
  EXPECT_FLOAT_EQ(first.x2, 190);
  EXPECT_FLOAT_EQ(first.y2, 292);
  drucker.linie(1, 2, 3, 4, 0);
  const PageMark second = page().marks.at(0);
  EXPECT_FLOAT_EQ(second.x2, 3);
  EXPECT_FLOAT_EQ(second.y2, 4);
}

TEST_F(QtDruckerTest, AScaleRunsFromCornerToCornerOf210By292Millimetres) {
  drucker.setSkala(-1, 10, 1, -10);
  drucker.linie(-1, 10, 1, -10, 0);
  drucker.linie(0, 0, 0.5, 5, 0);
  const PageMarks marks = page();
  EXPECT_NEAR(marks.marks.at(0).x1, 0, hair);
  EXPECT_NEAR(marks.marks.at(0).y1, 0, hair);
  EXPECT_NEAR(marks.marks.at(0).x2, 210, hair);
  EXPECT_NEAR(marks.marks.at(0).y2, 292, hair);
  EXPECT_NEAR(marks.marks.at(1).x1, 105, hair);
  EXPECT_NEAR(marks.marks.at(1).y1, 146, hair);
  EXPECT_NEAR(marks.marks.at(1).x2, 157.5, hair);
  EXPECT_NEAR(marks.marks.at(1).y2, 73, hair);
}

TEST_F(QtDruckerTest, AScaleWithoutExtentIsRefusedAndTheFormerStays) {
  EXPECT_THROW(drucker.setSkala(1, 0, 1, 292), std::invalid_argument);
  EXPECT_THROW(drucker.setSkala(0, 5, 210, 5), std::invalid_argument);
  EXPECT_THROW(drucker.setSkala(0, 0, std::numeric_limits<double>::quiet_NaN(), 1), std::invalid_argument);
  drucker.linie(7, 8, 9, 10, 0);
  EXPECT_FLOAT_EQ(page().marks.at(0).x1, 7);
}

TEST_F(QtDruckerTest, TheRadiusOfACircleIsMeasuredAlongX) {
  drucker.setSkala(0, 0, 21, 2.92);
  drucker.kreis(10, 1, 0.5, FarbeRot);
  const PageMark mark = page().marks.at(0);
  EXPECT_EQ(mark.kind, PageMark::Kind::circle);
  EXPECT_NEAR(mark.x1, 100, hair);
  EXPECT_NEAR(mark.y1, 100, hair);
  EXPECT_NEAR(mark.x2, 5, hair);
  EXPECT_EQ(mark.colour, FarbeRot);
}

TEST_F(QtDruckerTest, ATextMovesThePositionToItsRightEnd) {
  drucker.setSchrift("ARIAL");
  drucker.setSchriftGroesse(9);
  drucker.setX(20);
  drucker.setY(30);
  drucker.drucke("0.123");
  EXPECT_NEAR(drucker.x(), 20 + drucker.textBreite("0.123"), hair);
  EXPECT_NEAR(drucker.y(), 30, hair);
  drucker.drucke(" mm");
  const PageMarks marks = page();
  EXPECT_NEAR(marks.marks.at(1).x1, marks.marks.at(0).x2, hair);
  EXPECT_EQ(marks.text(marks.marks.at(0)), "0.123");
  EXPECT_EQ(marks.text(marks.marks.at(1)), " mm");
}

TEST_F(QtDruckerTest, ThePlaceOnPaperStaysWhenTheScaleChanges) {
  drucker.setX(105);
  drucker.setY(146);
  drucker.setSkala(-1, -1, 1, 1);
  EXPECT_NEAR(drucker.x(), 0, hair);
  EXPECT_NEAR(drucker.y(), 0, hair);
}

TEST_F(QtDruckerTest, WidthsAreThoseOfTheFontInUnitsOfTheScale) {
  drucker.setSchrift("ARIAL");
  drucker.setSchriftGroesse(10);
  // A figure of this font is 1139 of 2048 parts of its size wide, a blank 569.
  const double figure = 10 * 25.4 / 72 * 1139 / 2048;
  EXPECT_NEAR(drucker.textBreite("00000"), 5 * figure, hair);
  EXPECT_NEAR(drucker.textBreite("0 "), figure * (1 + 569.0 / 1139), hair);
  EXPECT_NEAR(drucker.textBreite("mm "), drucker.textBreite("mm") + figure * 569 / 1139, hair);
  drucker.setSkala(0, 0, 2100, 29.2);
  EXPECT_NEAR(drucker.textBreite("0"), 10 * figure, 10 * hair);
  EXPECT_NEAR(drucker.textHoehe("0"), 10 * 25.4 / 72 * (1854 + 434) / 2048 / 10, hair);
  drucker.setSchriftGroesse(5);
  EXPECT_NEAR(drucker.textBreite("0"), 5 * figure, 10 * hair);
}

TEST_F(QtDruckerTest, FiguresAlignInColumns) {
  drucker.setSchrift("ARIAL");
  EXPECT_NEAR(drucker.textBreite("11.1"), drucker.textBreite("88.8"), hair);
  EXPECT_NEAR(drucker.textBreite("-1.23") + drucker.textBreite(" !"), drucker.textBreite("-1.23 !"), hair);
}

TEST_F(QtDruckerTest, TextsOfAnySizeAreMeasuredHoweverManySizesThereAre) {
  drucker.setSchrift("ARIAL");
  drucker.setSchriftGroesse(9);
  const double before = drucker.textBreite("Messwert 1");
  for (int i = 1; i < 200; ++i) {
    drucker.setSchriftGroesse(i * 0.05);
    EXPECT_GT(drucker.textBreite("Messwert 1"), 0);
    EXPECT_NEAR(drucker.textBreite("00"), i * 0.05 * 25.4 / 72 * 2 * 1139 / 2048, hair);
  }
  drucker.setSchriftGroesse(9);
  EXPECT_EQ(drucker.textBreite("Messwert 1"), before);
}

TEST_F(QtDruckerTest, HeightIsTheFontsWhateverTheSigns) {
  drucker.setSchrift("ARIAL");
  drucker.setSchriftGroesse(9);
  EXPECT_EQ(drucker.textHoehe("x"), drucker.textHoehe("測定"));
}

TEST_F(QtDruckerTest, BoldIsWider) {
  drucker.setSchrift("ARIAL");
  const double plain = drucker.textBreite("Dateiinformation");
  drucker.setFett(true);
  EXPECT_GT(drucker.textBreite("Dateiinformation"), plain * 1.02);
}

TEST_F(QtDruckerTest, FontWidthsAndColourOutliveThePage) {
  drucker.setSchrift("ARIAL");
  drucker.setSchriftGroesse(18);
  drucker.setFett(true);
  drucker.setLinienBreite(3);
  drucker.setFarbe(FarbeRot);
  drucker.neueSeite();
  drucker.drucke("a");
  drucker.linie(0, 0, 1, 0, 0);
  const PageMarks marks = page();
  EXPECT_EQ(marks.fonts.at(0), (PageFont{"ARIAL", 18, true}));
  EXPECT_EQ(marks.marks.at(0).colour, FarbeRot);
  EXPECT_FLOAT_EQ(marks.marks.at(1).width, 3);
}

TEST_F(QtDruckerTest, PagesAreCountedFromOne) {
  EXPECT_EQ(drucker.seite(), 1);
  drucker.neueSeite();
  EXPECT_EQ(drucker.seite(), 2);
  EXPECT_EQ(drucker.x(), 0);
  drucker.dokumentEnde();
  EXPECT_EQ(sink.pages.size(), 2U);
  EXPECT_TRUE(sink.ended);
}

TEST_F(QtDruckerTest, NothingIsPrintedAfterTheEnd) {
  drucker.dokumentEnde();
  EXPECT_THROW(drucker.neueSeite(), std::logic_error);
  EXPECT_THROW(drucker.dokumentEnde(), std::logic_error);
  EXPECT_EQ(sink.pages.size(), 1U);
}

TEST_F(QtDruckerTest, FiguresThatAreNotFiniteMakeNoMark) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  drucker.linie(0, 0, nan, 1, 0);
  drucker.kreis(1, 1, std::numeric_limits<double>::infinity(), 0);
  drucker.flaeche(nan, 0, 1, 1, 0);
  drucker.setX(nan);
  drucker.drucke("x");
  EXPECT_TRUE(page().marks.empty());
}

TEST_F(QtDruckerTest, LineEndsAndTabsInATextAreBlanks) {
  const double blank = drucker.textBreite(" ");
  EXPECT_NEAR(drucker.textBreite("\n"), blank, hair);
  EXPECT_NEAR(drucker.textBreite("\t"), blank, hair);
  EXPECT_NEAR(drucker.textBreite("a\r\nb"), drucker.textBreite("a  b"), hair);
  EXPECT_GT(drucker.textBreite(std::string_view("a\0b", 3)), drucker.textBreite("ab"));
}

TEST_F(QtDruckerTest, AnEmptyTextTakesNoRoom) {
  EXPECT_EQ(drucker.textBreite(""), 0);
  drucker.setX(5);
  drucker.drucke("");
  EXPECT_EQ(drucker.x(), 5);
}

TEST_F(QtDruckerTest, MoreTextsThanAreKeptAreMeasuredAlike) {
  const double before = drucker.textBreite("first");
  for (int i = 0; i < 10000; ++i) drucker.textBreite(std::to_string(i));
  EXPECT_EQ(drucker.textBreite("first"), before);
  EXPECT_NEAR(drucker.textBreite("5000"), drucker.textBreite("0000"), hair);
}

}  // namespace
}  // namespace korvin
