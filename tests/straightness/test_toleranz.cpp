#include "straightness/toleranz.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

#include "frame/leerwert.h"

namespace korvin {
namespace {

constexpr std::int16_t Metrisch = 0;
constexpr std::int16_t Inch = 1;

std::vector<double> counted(std::vector<double> values) {
  values.insert(values.begin(), static_cast<double>(values.size()));
  return values;
}

AchsenToleranz tolerance(double whole, std::int16_t reference = BezugNull, double perSection = 0,
                         double section = 0) {
  AchsenToleranz made;
  made.ToleranzBezug = reference;
  made.Gesamt = whole;
  made.WertPro = perSection;
  made.ProEinheit = section;
  return made;
}

AchsenToleranz section(double length) {
  return tolerance(0, BezugNull, 0.01, length);
}

LinienGeometrie evenLine(std::int16_t points, double step = 500) {
  LinienGeometrie line;
  line.AnzMPs = points;
  line.ZSchritt = step;
  line.Distanz = step * (points - 1);
  for (std::int16_t i = 1; i <= points; ++i) line.Z.at(static_cast<std::size_t>(i)) = (i - 1) * step;
  return line;
}

struct Search {
  bool found;
  AchsenAbschnitt result;
};
Search search(const std::vector<double>& values, double length, double step = 500) {
  Search s{};
  s.result.AbschnittWert = -1;
  s.found = AbschnittSuchen(values, step, section(length), s.result);
  return s;
}

TEST(ZAequidistant, HoldsForEvenDistancesAndForNoPoints) {
  EXPECT_TRUE(ZAequidistant(evenLine(6)));
  EXPECT_TRUE(ZAequidistant(LinienGeometrie{}));
  LinienGeometrie moved = evenLine(6);
  moved.Z.at(3) += 0.1;
  EXPECT_FALSE(ZAequidistant(moved));
  LinienGeometrie shifted = evenLine(6);
  shifted.Z.at(1) = 1;
  EXPECT_FALSE(ZAequidistant(shifted));
}

TEST(AbschnittSuchen, FindsTheSectionWithTheLargestRange) {
  const Search s = search(counted({0, 1, 3, 2, -4, -4}), 1000);
  ASSERT_TRUE(s.found);
  EXPECT_EQ(s.result.AbschnittWert, 7);
  EXPECT_EQ(s.result.AbschnittStart, 3);
  EXPECT_EQ(s.result.AbschnittLaenge, 1000);
}

TEST(AbschnittSuchen, ForgetsTheSectionOfTheLastDrawing) {
  AchsenAbschnitt result{.AbschnittWert = 100, .AbschnittLaenge = 1, .AbschnittStart = 5};
  ASSERT_TRUE(AbschnittSuchen(counted({0, 1, 3, 2}), 500, section(500), result));
  EXPECT_EQ(result.AbschnittWert, 2);
  EXPECT_EQ(result.AbschnittLaenge, 500);
  EXPECT_EQ(result.AbschnittStart, 2);
}

TEST(AbschnittSuchen, TakesTheFirstOfEqualSections) {
  EXPECT_EQ(search(counted({0, 1, 0, 1}), 500).result.AbschnittStart, 1);
}

TEST(AbschnittSuchen, ReachesTheLastPoint) {
  const Search s = search(counted({0, 0, 0, 5}), 500);
  EXPECT_EQ(s.result.AbschnittStart, 3);
  EXPECT_EQ(s.result.AbschnittWert, 5);
}

TEST(AbschnittSuchen, FindsRangeZeroInASeriesWithoutAny) {
  const Search s = search(counted({2, 2, 2}), 500);
  EXPECT_TRUE(s.found);
  EXPECT_EQ(s.result.AbschnittWert, 0);
  EXPECT_EQ(s.result.AbschnittStart, 1);
}

TEST(AbschnittSuchen, RoundsTheSectionToWholeSteps) {
  const auto values = counted({0, 1, 2, 3, 4});
  EXPECT_EQ(search(values, 749).result.AbschnittLaenge, 500);
  EXPECT_EQ(search(values, 750).result.AbschnittLaenge, 1000);
  EXPECT_TRUE(search(values, 250).found);
  EXPECT_FALSE(search(values, 249).found);
}

TEST(AbschnittSuchen, FindsNoneAsLongAsTheSeriesOrLonger) {
  const auto values = counted({0, 1, 2});
  EXPECT_TRUE(search(values, 1000).found);
  EXPECT_FALSE(search(values, 1500).found);
  EXPECT_FALSE(search(values, 1e9).found);
  EXPECT_FALSE(search(values, 1000, 0).found);
}

TEST(AbschnittSuchen, FindsNoneWithoutALengthOrWithAnOpenPoint) {
  EXPECT_FALSE(search(counted({0, 1, 2}), 0).found);
  EXPECT_FALSE(search(counted({0, Leerwert, 2}), 500).found);
  EXPECT_FALSE(search(counted({}), 500).found);
}

TEST(AbschnittSuchen, MarksTheStartAndLeavesTheRestWhereThereIsNone) {
  const Search s = search(counted({0, Leerwert, 2}), 500);
  EXPECT_EQ(s.result.AbschnittStart, KeinAbschnitt);
  EXPECT_EQ(s.result.AbschnittWert, -1);
}

TEST(AbschnittSuchen, ThrowsOnACountBeyondTheArray) {
  AchsenAbschnitt result;
  EXPECT_THROW(AbschnittSuchen(std::vector<double>{3, 0, 0}, 500, section(500), result), std::out_of_range);
  EXPECT_THROW(AbschnittSuchen(std::vector<double>{}, 500, section(500), result), std::out_of_range);
}

constexpr Extremwerte Values{0.03, -0.01, true};

TEST(Toleranzband, LiesByItsReference) {
  const auto band = [](std::int16_t reference) {
    const auto b = toleranzband(tolerance(0.1, reference), Values, Metrisch);
    return std::pair{b->unten, b->oben};
  };
  EXPECT_EQ(band(BezugMinimum), (std::pair{-0.01, -0.01 + 0.1}));
  EXPECT_EQ(band(BezugNull), (std::pair{-0.05, 0.05}));
  EXPECT_EQ(band(BezugMaximum), (std::pair{0.03 - 0.1, 0.03}));
}

TEST(Toleranzband, IsInTheUnitShown) {
  EXPECT_DOUBLE_EQ(toleranzband(tolerance(0.0254), Values, Inch)->oben, 0.5);
}

TEST(Toleranzband, NeedsAToleranceAndValues) {
  EXPECT_FALSE(toleranzband(tolerance(0), Values, Metrisch));
  EXPECT_FALSE(toleranzband(tolerance(0.1), Extremwerte{}, Metrisch));
}

TEST(GesamtText, TellsTheAllowed) {
  EXPECT_EQ(gesamtText(tolerance(0.02, BezugMinimum), Metrisch), "0.020");
  EXPECT_EQ(gesamtText(tolerance(0.02), Metrisch), "±0.010");
  EXPECT_EQ(gesamtText(tolerance(0.0254, BezugMaximum), Inch), "1.0");
  EXPECT_EQ(gesamtText(tolerance(0.0508), Inch), "±1.0");
  EXPECT_EQ(gesamtText(tolerance(0), Inch), "?.?");
  EXPECT_EQ(gesamtText(tolerance(0, BezugMinimum), Metrisch), "?.?");
}

TEST(AbschnittVorgabeText, TellsTheAllowedInASection) {
  EXPECT_EQ(abschnittVorgabeText(tolerance(0, 0, 0.005, 1000), Metrisch), "0.005/1000.0");
  EXPECT_EQ(abschnittVorgabeText(tolerance(0, 0, 0.00508, 1016), Inch), "0.2/40");
  EXPECT_EQ(abschnittVorgabeText(tolerance(0), Metrisch), "?.? / ?.?");
  EXPECT_EQ(abschnittVorgabeText(tolerance(0), Inch), "?.? / ?");
}

TEST(GesamtErgebnisText, TellsTheMeasuredByItsReference) {
  EXPECT_EQ(gesamtErgebnisText(tolerance(0.1, BezugNull), Values, 2), "0.030 , -0.010");
  EXPECT_EQ(gesamtErgebnisText(tolerance(0.1, BezugMinimum), Values, 2), "0.040");
  EXPECT_EQ(gesamtErgebnisText(tolerance(0.1, BezugMaximum), Values, 1), "0.04");
  EXPECT_EQ(gesamtErgebnisText(tolerance(0), Values, 2), "?.?");
  EXPECT_EQ(gesamtErgebnisText(tolerance(0.1), Extremwerte{}, 2), "?.?");
}

TEST(AbschnittErgebnisText, TellsTheWorstSection) {
  AchsenAbschnitt result;
  const auto text = [&](const std::vector<double>& values, const LinienGeometrie& line, double length,
                        std::int16_t system = Metrisch) {
    return abschnittErgebnisText(values, line, section(length), result, 2, system);
  };
  EXPECT_EQ(text(counted({0, 0.001, 0.004}), evenLine(3), 500), "0.003/500.0/2");
  EXPECT_EQ(text(counted({0, 1, 4}), evenLine(3, 508), 508, Inch), "3.000/20.0/2");
  EXPECT_EQ(text(counted({0, 1, 4}), evenLine(3), 0), "?.? / ? z ?");
  LinienGeometrie moved = evenLine(3);
  moved.Z.at(2) = 400;
  EXPECT_EQ(text(counted({0, 1, 4}), moved, 500), "-.---- / -.- z -");
}

}  // namespace
}  // namespace korvin
