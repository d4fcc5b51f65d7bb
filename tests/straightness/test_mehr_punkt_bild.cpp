#include "straightness/mehr_punkt_bild.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "support/recording_surface.h"

namespace korvin {
namespace {

using test::DrawingOp;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;
using Kind = DrawingOp::Kind;

/// One unit in the last place of a drawing's coordinates, mm.
constexpr double exact = 1e-9;

class MehrPunktPicture : public ::testing::Test {
 protected:
  MehrPunkt& taken(std::vector<std::pair<double, double>> positions, std::int16_t wanted = 4) {
    measurement.setMehrPunktSoll(wanted);
    measurement.beginnen();
    for (const auto& [x, y] : positions) measurement.aufnehmen(x, y);
    return measurement;
  }
  void draw(std::int16_t system = 0) {
    picture = mehrPunktBild(measurement, system);
    mehrPunktRahmenZeichnen(frame, picture);
    mehrPunktInhaltZeichnen(content, picture);
  }
  /// Where a text of the frame stands, seen from the middle, in half ranges.
  DataPoint placeOf(const std::string& text) {
    for (const DrawingOp& op : frame.all(Kind::text)) {
      if (op.text != text) continue;
      return {(op.points[0].x - picture.ursprung.x) / picture.bereich,
              (op.points[0].y - picture.ursprung.y) / picture.bereich};
    }
    ADD_FAILURE() << "no text " << text;
    return {};
  }
  std::vector<std::string> boldTexts() {
    std::vector<std::string> all;
    for (const DrawingOp& op : frame.all(Kind::text))
      if (op.bold) all.push_back(op.text);
    return all;
  }
  std::size_t count(const test::RecordingSurface& surface, Kind kind, Farbe colour) {
    const auto all = surface.all(kind);
    return static_cast<std::size_t>(
        std::count_if(all.begin(), all.end(), [=](const DrawingOp& op) { return op.colour == colour; }));
  }

  MehrPunkt measurement;
  MehrPunktBild picture;
  test::RecordingSurface frame;
  test::RecordingSurface content;
};

TEST_F(MehrPunktPicture, BeforeTheFirstPositionItShowsTheAngles) {
  taken({}, 3);
  draw();
  EXPECT_THAT(frame.texts(), ElementsAre("0°", "120°", "240°"));
  EXPECT_THAT(boldTexts(), ElementsAre("0°")) << "where to begin";
  EXPECT_THAT(frame.all(Kind::polyline), IsEmpty()) << "nothing to turn yet";
  EXPECT_THAT(content.all(Kind::disc), IsEmpty());
  EXPECT_THAT(content.all(Kind::circle), IsEmpty());
}

TEST_F(MehrPunktPicture, DialBeginsAtTheTopAndGoesToTheRight) {
  taken({});
  draw();
  EXPECT_NEAR(placeOf("0°").x, 0, exact);
  EXPECT_GT(placeOf("0°").y, 1.2);
  EXPECT_GT(placeOf("90°").x, 1.2);
  EXPECT_NEAR(placeOf("90°").y, 0, exact);
  EXPECT_LT(placeOf("180°").y, -1.2);
  EXPECT_LT(placeOf("270°").x, -1.2);
}

TEST_F(MehrPunktPicture, NextAngleStandsOutWithTheWayToIt) {
  taken({{0.5, 0}, {0, 0.5}});
  draw();
  EXPECT_THAT(boldTexts(), ElementsAre("180°"));
  const auto ways = frame.all(Kind::polyline);
  ASSERT_EQ(ways.size(), 2U) << "an arc and its arrow";
  const auto angle = [this](DataPoint at) {
    return std::atan2(at.x - picture.ursprung.x, at.y - picture.ursprung.y) * 180 / 3.14159265358979;
  };
  EXPECT_NEAR(angle(ways[0].points.front()), 97, 0.01);
  EXPECT_NEAR(angle(ways[0].points.back()), 173, 0.01);
  EXPECT_EQ(ways[0].colour, FarbeNaechsterWinkel);
  EXPECT_EQ(count(frame, Kind::disc, FarbeGedreht), 2U) << "two angles are done";
}

TEST_F(MehrPunktPicture, WithAllPositionsTakenNothingIsLeftToTurn) {
  taken({{0.5, 0}, {0, 0.5}, {-0.5, 0}, {0, -0.5}});
  draw();
  EXPECT_THAT(boldTexts(), IsEmpty());
  EXPECT_THAT(frame.all(Kind::polyline), IsEmpty());
  EXPECT_EQ(count(frame, Kind::disc, FarbeGedreht), 4U);
}

TEST_F(MehrPunktPicture, PositionsLieWhereTheyAreWithTheirNumbers) {
  taken({{0.6, 0.3}, {0.1, 0.8}});
  draw();
  const auto discs = content.all(Kind::disc);
  ASSERT_EQ(discs.size(), 2U);
  EXPECT_EQ(discs[0].points[0], (DataPoint{0.6, 0.3}));
  EXPECT_EQ(discs[1].points[0], (DataPoint{0.1, 0.8}));
  EXPECT_THAT(content.texts(), ElementsAre("1", "2"));
  EXPECT_THAT(content.all(Kind::circle), IsEmpty()) << "no circle before the evaluation";
}

TEST_F(MehrPunktPicture, NumbersKeepClearOfTheDialAndOfTheCentre) {
  taken({{0.5, 0.1}, {0, 0.5}, {-0.5, -0.1}, {0.1, 0.1}}).auswerten();
  draw();
  const auto numbers = content.all(Kind::text);
  ASSERT_EQ(numbers.size(), 4U);
  EXPECT_EQ(numbers[0].horizontal, HorizontalAnchor::right) << "from the right edge inward";
  EXPECT_EQ(numbers[2].horizontal, HorizontalAnchor::left);
  EXPECT_EQ(numbers[2].vertical, VerticalAnchor::bottom);
  EXPECT_LT(std::hypot(0.1 - picture.ursprung.x, 0.1 - picture.ursprung.y), picture.bereich / 2);
  EXPECT_EQ(numbers[3].horizontal == HorizontalAnchor::left, 0.1 >= picture.ursprung.x) << "outward";
}

TEST_F(MehrPunktPicture, PositionsAtOnePlaceShareTheirNumber) {
  taken({{0.5, 0.5}, {0.5, 0.5}, {0.9, 0.5}, {0.5, 0.5}});
  draw();
  EXPECT_THAT(content.texts(), ElementsAre("1, 2, 4", "3"));
}

TEST_F(MehrPunktPicture, FittedCircleWithItsCentreAndRadius) {
  taken({{1.5, -2}, {1, -1.5}, {0.5, -2}, {1, -2.5}}).auswerten();
  draw();
  const auto circles = content.all(Kind::circle);
  ASSERT_EQ(circles.size(), 1U);
  EXPECT_NEAR(circles[0].points[0].x, 1, exact);
  EXPECT_NEAR(circles[0].points[0].y, -2, exact);
  EXPECT_NEAR(circles[0].radius, 0.5, exact);
  EXPECT_EQ(circles[0].colour, FarbeKreis);
  EXPECT_EQ(count(content, Kind::line, FarbeMitte), 2U) << "a cross";
  EXPECT_THAT(frame.texts(), Contains("r 0.5000 mm"));
  EXPECT_THAT(frame.texts(), Contains("±0.5750 mm"));
  EXPECT_NEAR(picture.ursprung.x, 1, exact);
}

TEST_F(MehrPunktPicture, CircleOfAShortArcIsSeenWhole) {
  taken({{1.5, 0}, {1 + 0.5 * std::sqrt(0.5), 0.5 * std::sqrt(0.5)}, {1, 0.5}}, 3).auswerten();
  draw();
  EXPECT_NEAR(picture.ursprung.x, 1, 1e-4) << "round its centre, not round the positions";
  EXPECT_NEAR(picture.ursprung.y, 0, 1e-4);
  EXPECT_GT(picture.bereich, picture.radius);
}

TEST_F(MehrPunktPicture, PlainMeansHaveACrossAndNoCircle) {
  taken({{0.1, 0.1}, {0.1, 0.1}, {0.1, 0.1}}, 3).auswerten();
  draw();
  EXPECT_THAT(content.all(Kind::circle), IsEmpty());
  EXPECT_EQ(count(content, Kind::line, FarbeMitte), 2U);
  for (const std::string& text : frame.texts()) EXPECT_THAT(text, Not(::testing::StartsWith("r ")));
  EXPECT_NEAR(picture.bereich, 0.00575, exact) << "nothing is enlarged beyond what counts as a movement";
}

TEST_F(MehrPunktPicture, InMil) {
  taken({{0.0254, 0}, {0, 0.0254}, {-0.0254, 0}, {0, -0.0254}}).auswerten();
  draw(1);
  EXPECT_NEAR(picture.positionen[0].x, 1, exact);
  EXPECT_NEAR(picture.radius, 1, exact);
  EXPECT_THAT(frame.texts(), Contains("r 1.00 mil"));
  EXPECT_THAT(frame.texts(), Contains("±1.15 mil"));
  EXPECT_EQ(picture.hinweise[0], "1\nX  1.00 mil\nY  0.00 mil");
}

TEST_F(MehrPunktPicture, EverythingLiesWithinThePicture) {
  for (const std::int16_t wanted : std::vector<std::int16_t>{3, 4}) {
    taken({{2, 1}, {-1.5, 0.5}, {0.3, -2}}, wanted);
    if (wanted == 3) measurement.auswerten();
    draw();
    const DataWindow window = mehrPunktFenster(picture);
    EXPECT_NEAR(window.right - window.left, window.top - window.bottom, exact) << "a square";
    for (const auto* surface : {&frame, &content}) {
      for (const DrawingOp& op : surface->ops) {
        for (const DataPoint at : op.points) {
          EXPECT_TRUE(at.x >= window.left && at.x <= window.right) << op.text;
          EXPECT_TRUE(at.y >= window.bottom && at.y <= window.top) << op.text;
        }
        const bool left = op.horizontal == HorizontalAnchor::left;
        if (op.kind == Kind::text && left && !op.text.starts_with("±")) {
          EXPECT_LE(op.points[0].x + op.room.width, window.right) << op.text;
        }
      }
    }
    frame.ops.clear();
    content.ops.clear();
  }
}

TEST_F(MehrPunktPicture, PointerFindsTheNearestPosition) {
  taken({{0.5, 0}, {0, 0.5}});
  draw();
  EXPECT_EQ(positionBei(picture, {0.49, 0.01}), 0U);
  EXPECT_EQ(positionBei(picture, {0.01, 0.49}), 1U);
  EXPECT_EQ(positionBei(picture, {0.25, 0.25}), std::nullopt);
  taken({});
  draw();
  EXPECT_EQ(positionBei(picture, {0, 0}), std::nullopt);
}

}  // namespace
}  // namespace korvin
