#include "straightness/auswertung.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>

#include "frame/posix_file_system.h"
#include "straightness/masseinheit.h"
#include "straightness/numeric/kennwerte.h"
#include "straightness/straightness_reader.h"
#include "straightness/toleranz.h"
#include "support/json.h"
#include "support/test_files.h"

namespace korvin {
namespace {

constexpr std::int16_t Metrisch = 0;
constexpr std::int16_t Inch = 1;

/// Relative to the larger of the number and 1: the reference was computed by another program, with its sums
/// in the same order.
constexpr double ReferenceTolerance = 1e-12;

GeradDatei reference(const std::string& name) {
  PosixFileSystem files;
  GeradDatei image;
  StraightnessReader reader(files, test::dataFile("reference/" + name).string());
  EXPECT_FALSE(reader.read(image)) << name;
  return image;
}

void expectNear(double found, double wanted, const std::string& what) {
  EXPECT_NEAR(found, wanted, ReferenceTolerance * std::max(1.0, std::abs(wanted))) << what;
}

/// Settings of a series with a line of points at even distances.
GeradReihe series(std::vector<double> readings, double distance = 1000) {
  GeradReihe made;
  made.Linie.AnzMPs = static_cast<std::int16_t>(readings.size());
  made.Linie.Distanz = distance;
  made.Linie.ZSchritt = distance / static_cast<double>(readings.size() - 1);
  made.X.Wert.setAnzahl(readings.size());
  for (std::size_t i = 1; i <= readings.size(); ++i) {
    made.X.Wert.at(i) = readings[i - 1];
    made.Linie.Z.at(i) = static_cast<double>(i - 1) * made.Linie.ZSchritt;
  }
  made.Info.Auswertung = AuswertungISO;
  made.Info.Ref1 = 1;
  made.Info.Ref2 = made.Linie.AnzMPs;
  return made;
}

std::vector<double> evaluated(GeradReihe made, std::int16_t mode, std::int16_t system = Metrisch) {
  made.Info.Auswertung = mode;
  const Auswertefeld result = ReiheAuswerten(made, made.X, system);
  std::vector<double> values;
  for (std::size_t i = 1; i <= result.anzahl(); ++i) values.push_back(result.at(i));
  return values;
}

class EvaluatedReference
    : public ::testing::TestWithParam<std::tuple<const char*, const char*, std::int16_t, std::int16_t>> {
 protected:
  void compareAxis(const GeradDatei& image, const GeradAchse& axis, const test::Json& wanted,
                   double sectionLength, std::int16_t system) {
    const Auswertefeld result = ReiheAuswerten(image, axis, system);
    const auto& values = wanted["values"].list;
    ASSERT_EQ(result.anzahl(), values.size());
    for (std::size_t i = 0; i < values.size(); ++i)
      expectNear(result.at(i + 1), values[i].number, "point " + std::to_string(i + 1));
    expectNear(Mittelwert(result.elements()).wert, wanted["mean"].number, "mean");
    expectNear(Standardabweichung(result.elements()).wert, wanted["deviation"].number, "deviation");
    expectNear(MinMax(result.elements()).Maximum, wanted["max"].number, "max");
    expectNear(MinMax(result.elements()).Minimum, wanted["min"].number, "min");
    if (wanted.object.count("section") == 0) return;
    const test::Json& section = wanted["section"];
    AchsenAbschnitt found;
    // An older file doesn't hand on its tolerances of X; the section that is looked for is the file's own.
    AchsenToleranz tolerance;
    tolerance.ProEinheit = sectionLength;
    const bool there = AbschnittSuchen(result.elements(), image.Linie.ZSchritt, tolerance, found);
    EXPECT_EQ(there, section["found"].number != 0);
    if (section["found"].number == 0) return;
    expectNear(found.AbschnittWert, section["value"].number, "section");
    expectNear(found.AbschnittLaenge, section["length"].number, "length of the section");
    EXPECT_EQ(found.AbschnittStart, section["start"].number);
  }
};

TEST_P(EvaluatedReference, AgreesInEveryModeAndUnit) {
  const auto& [name, key, mode, system] = GetParam();
  GeradDatei image = reference(name);
  const test::Json json =
      test::parseJson(test::readFile(test::dataFile("reference/" + std::string(name) + ".json")));
  const test::Json& wanted = json["evaluated"][key];
  image.Info.Auswertung = mode;
  compareAxis(image, image.X, wanted["X"], json["fields"]["X.ProEinheit"].number, system);
  compareAxis(image, image.Y, wanted["Y"], json["fields"]["Y.ProEinheit"].number, system);
}

std::vector<std::tuple<const char*, const char*, std::int16_t, std::int16_t>> allReferences() {
  std::vector<std::tuple<const char*, const char*, std::int16_t, std::int16_t>> all;
  for (const char* name :
       {"six.G", "holes.G", "moved.G", "full.G", "old.G", "older.G", "set1.G", "set2.G", "set3.G"}) {
    all.emplace_back(name, "ROH_mm", AuswertungROH, Metrisch);
    all.emplace_back(name, "ROH_mil", AuswertungROH, Inch);
    all.emplace_back(name, "ISO_mm", AuswertungISO, Metrisch);
    all.emplace_back(name, "ISO_mil", AuswertungISO, Inch);
    all.emplace_back(name, "REF_mm", AuswertungREF, Metrisch);
    all.emplace_back(name, "REF_mil", AuswertungREF, Inch);
  }
  return all;
}

INSTANTIATE_TEST_SUITE_P(Files, EvaluatedReference, ::testing::ValuesIn(allReferences()),
                         [](const auto& each) {
                           std::string name = std::string(std::get<0>(each.param)) + std::get<1>(each.param);
                           std::erase_if(name, [](char c) { return c == '.' || c == '_'; });
                           return name;
                         });

TEST(ReiheAuswerten, KeepsTheCountAsItStands) {
  GeradReihe made = series({1, 2, 3});
  made.X.Wert.at(0) = 2.5;
  const Auswertefeld result = ReiheAuswerten(made, made.X, Metrisch);
  EXPECT_EQ(result.at(0), 2.5);
  EXPECT_EQ(result.anzahl(), 2U);
  EXPECT_TRUE(istLeer(result.at(3)));
}

TEST(ReiheAuswerten, TakesTheLeastSquaresLineOffAndSkipsOpenPoints) {
  const auto values = evaluated(series({0, Leerwert, 0.2, 0.3}), AuswertungISO);
  EXPECT_NEAR(values[0], 0, 1e-15);
  EXPECT_EQ(values[1], Leerwert);
  EXPECT_NEAR(values[2], 0, 1e-15);
  EXPECT_NEAR(values[3], 0, 1e-15);
}

TEST(ReiheAuswerten, GivesTheReadingWhereISOHasOneValidPoint) {
  EXPECT_EQ(evaluated(series({Leerwert, 0.25, Leerwert}), AuswertungISO),
            (std::vector<double>{Leerwert, 0.25, Leerwert}));
}

TEST(ReiheAuswerten, LeavesAllOpenWhereISOHasNoValidPoint) {
  EXPECT_EQ(evaluated(series({Leerwert, Leerwert}), AuswertungISO, Inch),
            (std::vector<double>{Leerwert, Leerwert}));
}

TEST(ReiheAuswerten, ShowsReadingsInREFWithAnOpenReferencePoint) {
  const std::vector<double> readings{Leerwert, 0.2, 0.1};
  EXPECT_EQ(evaluated(series(readings), AuswertungREF), readings);
}

TEST(ReiheAuswerten, AReferencePointOfZeroIsNoFailure) {
  // As files of a series without points have it.
  GeradReihe made = series({0.1, 0.2, 0.4});
  made.Info.Ref1 = 0;
  made.Info.Ref2 = 0;
  EXPECT_EQ(evaluated(made, AuswertungREF), (std::vector<double>{0.1, 0.2, 0.4}));
}

TEST(ReiheAuswerten, IsZeroAtBothReferencePoints) {
  GeradReihe made = series({0.1, 0.2, 0.7, 0.4});
  made.Info.Ref1 = 2;
  made.Info.Ref2 = 4;
  const auto values = evaluated(made, AuswertungREF);
  EXPECT_EQ(values[1], 0);
  EXPECT_NEAR(values[3], 0, 1e-16);
  EXPECT_NEAR(values[0], 0.0, 1e-16);  // on the same line: 0.2 − 0.1
  EXPECT_NEAR(values[2], 0.4, 1e-15);
}

TEST(ReiheAuswerten, UsesTruePositionsOfMovedPoints) {
  GeradReihe made = series({0, 0.1, 1});
  made.Linie.Z.at(2) = 100;
  const auto values = evaluated(made, AuswertungREF);
  EXPECT_NEAR(values[1], 0, 1e-16);
}

TEST(ReiheAuswerten, ConvertsOpenReadingsInROHAndInchAndOnlyThere) {
  const GeradReihe made = series({0.0254, Leerwert});
  EXPECT_EQ(evaluated(made, AuswertungROH)[1], Leerwert);
  EXPECT_EQ(evaluated(made, AuswertungROH, Inch)[1], Leerwert / 0.0254);
  EXPECT_EQ(evaluated(made, AuswertungISO, Inch)[1], Leerwert);
  EXPECT_EQ(evaluated(made, AuswertungREF, Inch)[1], Leerwert);
}

TEST(ReiheAuswerten, MeanOfROHTakesOpenPointsInOnlyInInch) {
  GeradReihe made = series({0.0254, Leerwert, 0.0508});
  made.Info.Auswertung = AuswertungROH;
  const auto mean = [&](std::int16_t system) {
    return Mittelwert(ReiheAuswerten(made, made.X, system).elements()).wert;
  };
  EXPECT_NEAR(mean(Metrisch), 0.0381, 1e-15);
  EXPECT_NEAR(mean(Inch), (1 + Leerwert / 0.0254 + 2) / 3, 1e-9);
}

TEST(ReiheAuswerten, TakesAnyOtherModeForROH) {
  EXPECT_EQ(evaluated(series({0.1, 0.3}), 7), (std::vector<double>{0.1, 0.3}));
}

TEST(ReiheAuswerten, GivesReadingsWherePointsShareTheirPosition) {
  GeradReihe made = series({0.1, 0.3});
  made.Linie.Z.at(2) = 0;
  EXPECT_EQ(evaluated(made, AuswertungISO), (std::vector<double>{0.1, 0.3}));
  EXPECT_EQ(evaluated(made, AuswertungREF), (std::vector<double>{0.1, 0.3}));
}

TEST(ReiheAuswerten, ThrowsOnAReferencePointOutsideTheSeries) {
  GeradReihe made = series({0.1, 0.3});
  for (const std::int16_t point : {std::int16_t{-1}, std::int16_t{202}}) {
    made.Info.Ref2 = point;
    EXPECT_THROW(evaluated(made, AuswertungREF), std::out_of_range);
  }
}

TEST(PunktWertText, TellsTheValueWithABlankInFront) {
  EXPECT_EQ(punktWertText(0.1234, 0.1234, 2), " 0.123");
  EXPECT_EQ(punktWertText(-0.1, -0.1, 0), " -0.1");
  EXPECT_EQ(punktWertText(1, 0.00005, 7), " 0.0001");
}

TEST(PunktWertText, AsksWhereTheReadingIsOpenInEveryModeAndUnit) {
  EXPECT_EQ(punktWertText(Leerwert, Leerwert, 2), "?.?");
  EXPECT_EQ(punktWertText(Leerwert, Leerwert / 0.0254, 2), "?.?");
  EXPECT_EQ(punktWertText(0.1, Leerwert / 0.0254, 2), "?.?");
}

TEST(PunktLeerText, ShowsTheDashesOfTheFormat) {
  EXPECT_EQ(punktLeerText(0), " -.-");
  EXPECT_EQ(punktLeerText(1), " -.--");
  EXPECT_EQ(punktLeerText(2), " -.---");
  EXPECT_EQ(punktLeerText(3), " -.----");
}

}  // namespace
}  // namespace korvin
