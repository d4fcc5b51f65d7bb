// Thin smooth lines in pictures of pixels.
#include "frame/ui/line_brush.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QPolygonF>
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <vector>

namespace korvin {
namespace {

constexpr QRgb white = 0xffffffff;
constexpr QRgb black = 0xff000000;
using Places = std::vector<QPointF>;

QImage blank(QSize size = {60, 40}) {
  QImage picture(size, QImage::Format_RGB32);
  picture.fill(white);
  return picture;
}

QImage drawn(const Places& places, double width, QSize size = {60, 40}) {
  QImage picture = blank(size);
  LineBrush().draw(Pixels(picture), places, width, black);
  return picture;
}

/// How dark a pixel is, 0 to 255.
int ink(const QImage& picture, int x, int y) {
  return 255 - qGreen(picture.pixel(x, y));
}

int inkOfAll(const QImage& picture) {
  int sum = 0;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) sum += ink(picture, x, y);
  }
  return sum;
}

int largestDifference(const QImage& a, const QImage& b) {
  int largest = 0;
  for (int y = 0; y < a.height(); ++y) {
    for (int x = 0; x < a.width(); ++x) largest = std::max(largest, std::abs(ink(a, x, y) - ink(b, x, y)));
  }
  return largest;
}

TEST(LineBrush, ALineAlongAnAxisIsWholePixelsWithStraightEnds) {
  const QImage across = drawn({{10, 20}, {50, 20}}, 2);
  const QImage down = drawn({{30, 5}, {30, 35}}, 2);
  for (int x = 0; x < 60; ++x) {
    for (int y = 0; y < 40; ++y) {
      const bool onAcross = x >= 10 && x < 50 && (y == 19 || y == 20);
      EXPECT_EQ(across.pixel(x, y), onAcross ? black : white) << x << ", " << y;
      const bool onDown = y >= 5 && y < 35 && (x == 29 || x == 30);
      EXPECT_EQ(down.pixel(x, y), onDown ? black : white) << x << ", " << y;
    }
  }
}

TEST(LineBrush, AnEdgeBetweenTwoPixelsIsSharedByThem) {
  const QImage picture = drawn({{10, 20.25}, {50, 20.25}}, 2);
  EXPECT_NEAR(ink(picture, 30, 18), 0, 1);
  EXPECT_NEAR(ink(picture, 30, 19), 0.75 * 255, 2);
  EXPECT_NEAR(ink(picture, 30, 20), 255, 1);
  EXPECT_NEAR(ink(picture, 30, 21), 0.25 * 255, 2);
}

const Places bend = {{5, 30}, {14.3, 6.2}, {22.7, 33.1}, {40, 31.4}, {55.2, 9.9}};

TEST(LineBrush, PutsDownAsMuchInkAsTheLineIsLongAndWide) {
  double length = 0;
  for (std::size_t i = 1; i < bend.size(); ++i)
    length += std::hypot((bend[i] - bend[i - 1]).x(), (bend[i] - bend[i - 1]).y());
  for (const double width : {1.0, 1.5, 2.0, 3.0}) {
    // A joint adds up to a half circle on its outer side and takes away as much of what overlaps.
    EXPECT_NEAR(inkOfAll(drawn(bend, width)) / 255.0, length * width, 0.03 * length * width) << width;
  }
}

TEST(LineBrush, LooksAsAPainterDrawsIt) {
  for (const double width : {2.0, 3.0}) {
    QImage painted = blank();
    QPainter painter(&painted);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(black), width, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
    painter.drawPolyline(QPolygonF(QVector<QPointF>(bend.begin(), bend.end())));
    painter.end();
    const QImage picture = drawn(bend, width);
    int differing = 0;
    for (int y = 0; y < 40; ++y) {
      for (int x = 0; x < 60; ++x)
        differing += std::abs(ink(picture, x, y) - ink(painted, x, y)) > 40 ? 1 : 0;
    }
    EXPECT_LE(differing, 8) << "pixels at sharp corners may, at width " << width;
  }
}

TEST(LineBrush, PlacesOnTheWayChangeNothing) {
  const Places whole = {{4, 6}, {56, 32}};
  Places parts;
  for (int i = 0; i <= 26; ++i) parts.emplace_back(4 + 2 * i, 6 + i);
  EXPECT_LE(largestDifference(drawn(whole, 2), drawn(parts, 2)), 1);
}

TEST(LineBrush, ALineDrawnBackOverItselfIsNoDarker) {
  // Both turning points lie outside, where a joint is round and an end is straight.
  const QImage once = drawn({{-40, 6}, {100, 32}}, 2);
  EXPECT_EQ(once, drawn({{-40, 6}, {100, 32}, {-40, 6}}, 2));
}

TEST(LineBrush, AJointIsRoundAndClosed) {
  const QImage corner = drawn({{10, 30}, {30, 30}, {30, 10}}, 4);
  EXPECT_EQ(corner.pixel(30, 30), black) << "on the outer side of the joint";
  EXPECT_EQ(corner.pixel(28, 28), black);
  EXPECT_LT(ink(corner, 31, 31), 255) << "but the corner itself is round";
}

TEST(LineBrush, AJointReachesBeyondItsPlaceByHalfTheWidth) {
  const QImage turn = drawn({{10, 20}, {30, 20}, {10, 20}}, 4);
  EXPECT_GT(ink(turn, 31, 20), 200);
  EXPECT_EQ(turn.pixel(32, 20), white);
  const QImage start = drawn({{30, 20}, {10, 20}, {30, 20}}, 4);
  EXPECT_GT(ink(start, 8, 20), 200);
}

TEST(LineBrush, AStraightEndIsSquareToTheLine) {
  const QImage slanted = drawn({{10, 10}, {30, 30}}, 6);
  // Pixels beside both ends, whose centres lie on the cut.
  for (const QPoint cut : {QPoint(11, 8), QPoint(8, 11), QPoint(28, 31), QPoint(31, 28)})
    EXPECT_NEAR(ink(slanted, cut.x(), cut.y()), 127, 2) << cut.x();
  EXPECT_EQ(ink(slanted, 12, 9), 255);
  EXPECT_EQ(ink(slanted, 10, 7), 0);
}

TEST(LineBrush, ASlantedLineIsAsWideAsTold) {
  const QImage diagonal = drawn({{-100, -100}, {100, 100}}, 4, {40, 40});
  int sum = 0;
  for (int x = 0; x < 40; ++x) sum += ink(diagonal, x, 20);
  EXPECT_NEAR(sum / 255.0, 4 * std::sqrt(2.0), 0.12);
}

TEST(LineBrush, SteepAndFlatLinesLookTheSame) {
  const QImage flat = drawn({{5.3, 8.1}, {35.6, 17.7}, {38, 18}}, 2.5, {40, 40});
  const QImage steep = drawn({{8.1, 5.3}, {17.7, 35.6}, {18, 38}}, 2.5, {40, 40});
  for (int y = 0; y < 40; ++y) {
    for (int x = 0; x < 40; ++x) EXPECT_EQ(flat.pixel(x, y), steep.pixel(y, x)) << x << ", " << y;
  }
}

TEST(LineBrush, TheDirectionOfTheWayDoesNotMatter) {
  EXPECT_LE(largestDifference(drawn({{5, 30}, {20, 8}, {50, 12}}, 2), drawn({{50, 12}, {20, 8}, {5, 30}}, 2)),
            1);
}

TEST(LineBrush, WhatLiesOutsideIsCutAtTheEdge) {
  const QImage crossing = drawn({{-900000, 20}, {900000, 20}}, 2);
  EXPECT_EQ(crossing.pixel(0, 20), black);
  EXPECT_EQ(crossing.pixel(59, 19), black);
  EXPECT_EQ(inkOfAll(crossing), 2 * 60 * 255);
  EXPECT_EQ(drawn({{-50, -50}, {-10, -900000}, {900000, -3}}, 2), blank());
  EXPECT_EQ(drawn({{100, -10}, {62, 60}}, 2), blank());
  const QImage down = drawn({{30, -900000}, {30, 900000}}, 2);
  EXPECT_EQ(inkOfAll(down), 2 * 40 * 255);
  // An end that lies a little beside the picture still reaches into it.
  EXPECT_GT(ink(drawn({{-20, -0.5}, {80, -0.5}}, 3), 30, 0), 200);
}

TEST(LineBrush, ALineWithoutLengthDrawsNothing) {
  EXPECT_EQ(drawn({{20, 20}, {20, 20}}, 2), blank());
  EXPECT_EQ(drawn({{20, 20}}, 2), blank());
  EXPECT_EQ(drawn({}, 2), blank());
  EXPECT_EQ(drawn({{10, 20}, {10, 20}, {50, 20}, {50, 20}}, 2), drawn({{10, 20}, {50, 20}}, 2));
}

TEST(LineBrush, ServesOneLineAfterTheOtherAndPicturesOfAnySize) {
  LineBrush brush;
  const Places first = {{5, 5}, {85, 48}};
  const Places second = {{5, 48}, {85, 5}};
  for (const QSize size : {QSize(60, 40), QSize(60, 50), QSize(90, 50), QSize(20, 60)}) {
    QImage both = blank(size);
    brush.draw(Pixels(both), first, 2, black);
    const QImage one = both;
    EXPECT_EQ(one, drawn(first, 2, size));
    both.fill(white);
    brush.draw(Pixels(both), second, 2, black);
    EXPECT_EQ(both, drawn(second, 2, size)) << "nothing is left of the line before";
  }
}

TEST(LineBrush, MixesItsColourWithTheGround) {
  QImage picture = blank();
  picture.fill(0xff204060);
  LineBrush().draw(Pixels(picture), Places{{10, 20.5}, {50, 20.5}}, 2, 0xffe08040);
  EXPECT_EQ(picture.pixel(30, 20), 0xffe08040);
  EXPECT_NEAR(qRed(picture.pixel(30, 19)), 0x80, 1);
  EXPECT_NEAR(qBlue(picture.pixel(30, 21)), 0x50, 1);
  EXPECT_EQ(picture.pixel(30, 18), 0xff204060);
}

}  // namespace
}  // namespace korvin
