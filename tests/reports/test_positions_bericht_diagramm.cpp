#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "reports/bericht_stand.h"

namespace korvin {
namespace {

using test::DruckMarke;

/// The XY diagram on its page.
class PositionsBerichtDiagramm : public test::BerichtStand {};

TEST_F(PositionsBerichtDiagramm, TheDiagramHasAMarkForEachPoint) {
  reference();
  print(diagram);
  const auto circles = paper.marken(1, DruckMarke::Art::kreis);
  // Less the offset, X reaches to 0.0436 mm and Y to 0.0812 mm: half ranges of 0.05 and 0.1 mm.
  const double mm = 177 / (0.05 * 117 / 50);
  const double centreX = 20 + 177 * 62 / 117.0;
  const double centreY = 80 + 177 * 53 / 110.0;
  int points = 0;
  for (const DruckMarke& circle : circles) points += std::abs(circle.radius - 0.05 / 125 * mm) < 1e-6;
  EXPECT_EQ(points, 40 + 1) << "the current one has its own on top";
  EXPECT_EQ(std::count_if(circles.begin(), circles.end(),
                          [mm](const DruckMarke& c) { return std::abs(c.radius - 0.05 / 75 * mm) < 1e-6; }),
            1)
      << "the circle round the current point";
  const DruckMarke& first = circles.at(0);
  EXPECT_NEAR(first.x, centreX + (0.0261 - 0.0379) * mm, 1e-6);
  EXPECT_NEAR(first.y, centreY - (-0.0888 + 0.0879) * 177 / (0.1 * 110 / 50), 1e-6);
}

TEST_F(PositionsBerichtDiagramm, TheDiagramFillsItsSquareAndNoMore) {
  reference();
  print(diagram);
  double left = 210;
  double bottom = 0;
  for (const DruckMarke& mark : paper.alle) {
    if (mark.art == DruckMarke::Art::text || mark.y < 84 || mark.y > 270) continue;
    EXPECT_GE(mark.x, 20);
    EXPECT_LE(mark.x2, 197);
    EXPECT_LE(mark.y2, 257);
    left = std::min(left, mark.x);
    bottom = std::max(bottom, mark.y2);
  }
  EXPECT_NEAR(left, 20 + 177 * 12 / 117.0, 1e-6) << "the lowest grid line of X";
  EXPECT_NEAR(bottom, 80 + 177 * 103 / 110.0, 1e-6);
}

TEST_F(PositionsBerichtDiagramm, TickValuesHaveOneDecimalInTheUnitOfTheAxis) {
  reference();
  print(diagram);
  std::vector<std::string> texts;
  for (const DruckMarke& mark : paper.texte(1))
    if (mark.y > 80 && mark.y < 257) texts.push_back(mark.text);
  const auto has = [&texts](const std::string& text) {
    return std::find(texts.begin(), texts.end(), text) != texts.end();
  };
  EXPECT_TRUE(has("X [um]"));
  EXPECT_TRUE(has("Y [um]"));
  EXPECT_TRUE(has("+40.0")) << "X: 50 um in five steps";
  EXPECT_TRUE(has("-40.0"));
  EXPECT_TRUE(has("+80.0")) << "Y: 100 um";
  EXPECT_TRUE(has("0.0"));
  for (const DruckMarke& mark : paper.texte(1)) {
    if (mark.text != "X [um]" && mark.text != "+40.0") continue;
    EXPECT_EQ(mark.groesse, 8) << mark.text;
  }
}

TEST_F(PositionsBerichtDiagramm, WithoutAGridThereAreAxesOnly) {
  points(3);
  print(diagram);
  const std::size_t without = paper.linien(1).size();
  info().Gitter = true;
  paper = {};
  print(diagram);
  EXPECT_EQ(paper.linien(1).size(), without + 22);
}

TEST_F(PositionsBerichtDiagramm, ARangeByHandHoldsOnPaperToo) {
  points(3);
  formpos.arbeit().X.BereichHand = 1;
  formpos.arbeit().X.Bereich = 0.002;
  formpos.arbeit().Y.BereichHand = 1;
  formpos.arbeit().Y.Bereich = 1;
  print(diagram);
  EXPECT_EQ(paper.marken(1, DruckMarke::Art::kreis).size(), 2U) << "the third lies outside";
}

}  // namespace
}  // namespace korvin
