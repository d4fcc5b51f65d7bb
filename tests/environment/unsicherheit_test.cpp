#include "environment/unsicherheit.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <map>
#include <sstream>
#include <stdexcept>
#include <string>
#include <tuple>
#include <vector>

#include "straightness/numeric/student_t.h"

namespace korvin {
namespace {

// Values are below 0.1; a few roundings of a double each.
constexpr double RoundingOfTables = 1e-15;

AnalyseErgebnis run(std::int16_t N, double sX, double sY, std::int16_t Beta = 5) {
  return {.AnalyseAnzahl = N, .AnalyseSekunden = 32, .Beta = Beta, .sX = sX, .sY = sY};
}

Unsicherheit computed(const AnalyseErgebnis& ergebnis) {
  Unsicherheit result;
  result.UnsicherheitBerechnen(ergebnis);
  return result;
}

using Case = std::tuple<int, int, double>;  // N, Beta, s

/// By position; position 0 is the largest value of the raw curve.
std::map<Case, std::map<int, double>> referenceTables() {
  std::ifstream file(KORVIN_TEST_DATA "/environment/tables.tsv");
  std::map<Case, std::map<int, double>> tables;
  for (std::string line; std::getline(file, line);) {
    std::istringstream fields(line);
    int N = 0;
    int Beta = 0;
    int position = 0;
    double s = 0;
    double value = 0;
    if (fields >> N >> Beta >> s >> position >> value) tables[{N, Beta, s}][position] = value;
  }
  return tables;
}

TEST(UnsicherheitBerechnen, TablesAreThoseOfTheReference) {
  const auto tables = referenceTables();
  ASSERT_EQ(tables.size(), 12u);
  for (const auto& [key, values] : tables) {
    const auto [N, Beta, s] = key;
    SCOPED_TRACE("N " + std::to_string(N) + ", " + std::to_string(Beta) + " %");
    ASSERT_EQ(values.size(), static_cast<std::size_t>(2 * N + 1));
    // The other axis is given a spread of its own, so that a mix-up shows.
    const auto asX = computed(run(static_cast<std::int16_t>(N), s, 0.5, static_cast<std::int16_t>(Beta)));
    const auto asY = computed(run(static_cast<std::int16_t>(N), 0.5, s, static_cast<std::int16_t>(Beta)));
    EXPECT_NEAR(asX.MaxFx, values.at(0), RoundingOfTables);
    EXPECT_NEAR(asY.MaxFy, values.at(0), RoundingOfTables);
    for (int i = 1; i <= 2 * N; ++i) {
      EXPECT_NEAR(asX.FxTabelle.at(static_cast<std::size_t>(i)), values.at(i), RoundingOfTables) << i;
      EXPECT_NEAR(asY.FyTabelle.at(static_cast<std::size_t>(i)), values.at(i), RoundingOfTables) << i;
    }
  }
}

TEST(UnsicherheitBerechnen, IndexZeroAndWhatLiesBehindTwiceNStayZero) {
  const Unsicherheit result = computed(run(7, 0.01, 0.02));
  for (const auto* table : {&result.FxTabelle, &result.FyTabelle}) {
    EXPECT_EQ(table->front(), 0);
    EXPECT_NE(table->at(14), 0);
    EXPECT_TRUE(std::all_of(table->begin() + 15, table->end(), [](double value) { return value == 0; }));
  }
}

TEST(UnsicherheitBerechnen, ErasesWhatALongerRunLeft) {
  Unsicherheit result = computed(run(500, 0.01, 0.02));
  result.UnsicherheitBerechnen(run(3, 0.01, 0.02));
  EXPECT_EQ(result.FxTabelle.at(6), GenauigkeitMin);
  for (std::size_t i = 7; i < result.FxTabelle.size(); ++i) {
    ASSERT_EQ(result.FxTabelle.at(i), 0) << i;
    ASSERT_EQ(result.FyTabelle.at(i), 0) << i;
  }
}

TEST(UnsicherheitBerechnen, WithoutSamplesTheTablesAreEmpty) {
  for (const std::int16_t N : {std::int16_t{0}, std::int16_t{-1}}) {
    Unsicherheit result = computed(run(20, 0.01, 0.02));
    result.UnsicherheitBerechnen(run(N, 0.01, 0.02));
    EXPECT_EQ(result.FxTabelle, UnsicherheitsTabelle{});
    EXPECT_EQ(result.FyTabelle, UnsicherheitsTabelle{});
    EXPECT_GT(result.MaxFx, 0) << "the panels keep what they showed";
  }
}

TEST(UnsicherheitBerechnen, FewerThanSixSamplesGiveTheLowestUncertainty) {
  for (std::int16_t N = 1; N <= 5; ++N) {
    const Unsicherheit result = computed(run(N, 12, 34));
    EXPECT_EQ(result.MaxFxText(), "MAX_Fx: 0.0000");
    EXPECT_EQ(result.MaxFyText(), "MAX_Fy: 0.0000");
    for (std::size_t i = 1; i <= static_cast<std::size_t>(2 * N); ++i) {
      EXPECT_EQ(result.FxTabelle.at(i), GenauigkeitMin);
      EXPECT_EQ(result.FyTabelle.at(i), GenauigkeitMin);
    }
  }
}

TEST(UnsicherheitBerechnen, EqualSamplesGiveTheLowestUncertainty) {
  const Unsicherheit result = computed(run(150, 0, 0));
  EXPECT_EQ(result.MaxFxText(), "MAX_Fx: 0.0000");
  EXPECT_EQ(result.MaxFyText(), "MAX_Fy: 0.0000");
  for (std::size_t i = 1; i <= 300; ++i) {
    ASSERT_EQ(result.FxTabelle.at(i), GenauigkeitMin);
    ASSERT_EQ(result.FyTabelle.at(i), GenauigkeitMin);
  }
}

TEST(UnsicherheitBerechnen, LowestUncertaintyHasTheUnitOfTheSamples) {
  AnalyseErgebnis inMil = run(150, 0, 0);
  inMil.Masssystem = 1;
  EXPECT_EQ(computed(inMil).FxTabelle.at(1), 0.0002);
}

TEST(UnsicherheitBerechnen, TakesFiveHundredSamplesAndNoMore) {
  EXPECT_EQ(UnsicherheitsTabelle{}.size(), 1002u);
  EXPECT_NO_THROW(computed(run(500, 0.01, 0.02)));
  for (const std::int16_t N :
       {std::int16_t{501}, std::int16_t{1001}, std::int16_t{1002}, std::int16_t{29999}})
    EXPECT_THROW(computed(run(N, 0.01, 0.02)), std::out_of_range) << N;
}

TEST(UnsicherheitBerechnen, LargestValuesAreShownWithFourDecimals) {
  const Unsicherheit result = computed(run(6, 1, 0.1));
  // 2.447 / sqrt(6) = 0.99898...
  EXPECT_EQ(result.MaxFxText(), "MAX_Fx: 0.9990");
  EXPECT_EQ(result.MaxFyText(), "MAX_Fy: 0.0999");
}

TEST(AnalyseErgebnis, OneSecondOfTheMeasuredTimeIsTakenOff) {
  EXPECT_DOUBLE_EQ(run(155, 0, 0).sekundenJePosition(), 0.2);
}

}  // namespace
}  // namespace korvin
