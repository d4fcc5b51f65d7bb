#include "straightness/text_copy.h"

#include <array>
#include <map>

#include "frame/leerwert.h"
#include "frame/number_format.h"
#include "straightness/file_stand.h"
#include "support/json.h"

namespace korvin {
namespace {

struct Unit {
  std::int16_t system;
  const char* name;    ///< in the reference files
  const char* length;  ///< behind the length of the line
  const char* columns;
  const char* tolerance;  ///< pattern
  double perMm;           ///< mm of one unit across
  double perLength;       ///< mm of one unit along
};
constexpr Unit metric{0, "mm", " mm", "MP\tZ[mm]\tX[mm]\tY[mm]", "0.000", 1, 1};
constexpr Unit inch{1, "mil", " in", "MP\tZ[in]\tX[mil]\tY[mil]", "0.00", 0.0254, 25.4};

constexpr std::array<std::int16_t, 2> bothUnits{0, 1};
constexpr std::array<std::int16_t, 3> everyMode{0, 1, 2};

std::string orUnknown(double value, const char* pattern, const char* unknown) {
  return value == 0 ? unknown : formatNumber(value, pattern);
}

class StraightnessTextCopyTest : public StraightnessFileStand {
 protected:
  StraightnessTextCopyTest() {
    dictionary.texts = {{3019, "Messprotokoll "}, {3048, "Messsystem"}, {3044, "Bezeichnung  "},
                        {3049, "Pfad"},           {3056, "Datum"},      {3008, "Bediener"},
                        {3009, "Kommentar"},      {3010, "Anzahl"},     {3000, "Messlänge"},
                        {3013, "Filter "},        {3018, "Messwerte "}, {5000, "oleranz "}};
  }
  /// The copy of a reference as the values beside it tell it.
  std::string wanted(const test::Json& reference, const Unit& unit) {
    const test::Json& fields = reference["fields"];
    std::string text = head(fields, unit);
    const std::map<int, const char*> modes{{1, "ISO_"}, {2, "REF_"}};
    const auto mode = modes.find(static_cast<int>(fields["Auswertung"].number));
    const std::string key = std::string(mode == modes.end() ? "ROH_" : mode->second) + unit.name;
    const test::Json& evaluated = reference["evaluated"][key];
    const auto points = static_cast<std::size_t>(fields["X.Wert"].list[0].number);
    for (std::size_t i = 1; i <= points; ++i) {
      const double z = static_cast<double>(i - 1) * fields["ZSchritt"].number / unit.perLength;
      text += std::to_string(i) + "\t" + formatNumber(z, "0.0") + "\t" + value(fields, evaluated, "X", i) +
              "\t" + value(fields, evaluated, "Y", i) + "\r\n";
    }
    return text + "\r\n";
  }
  GeradReihe reference(const std::string& name) {
    if (name == "old.G" || name == "older.G") answer(MessageAnswer::yes);
    EXPECT_TRUE(loadReference(name));
    formgera.bildUebernehmen();
    return series();
  }

 private:
  static std::string head(const test::Json& f, const Unit& unit) {
    const std::map<std::string, std::string> times{
        {"0", "0.5s"}, {"1", "1s"}, {"2", "2s"}, {"3", "5s"}, {"4", "10s"}};
    const auto tolerance = [&](const std::string& axis) {
      return orUnknown(f[axis + ".Gesamt"].number / unit.perMm, unit.tolerance, "?.?") + "  " +
             orUnknown(f[axis + ".WertPro"].number / unit.perMm, unit.tolerance, "?.? ") + "/" +
             orUnknown(f[axis + ".ProEinheit"].number / unit.perLength, "0.0", " ?");
    };
    return "KORVIN-Messprotokoll:\t" + f["FirmaName"].text + "\r\nMesssystem:\t" + f["KameraText"].text +
           "\r\nBezeichnung:\t" + f["Bezeichnung"].text + "\r\nPfad:\t" + f["DateiName"].text +
           "\r\nDatum:\t" + f["Datum"].text + "\r\nBediener:\t" + f["Bediener"].text + "\r\nKommentar:\t" +
           f["Kommentar"].text + "\r\nAnzahl:\t-" + std::to_string(static_cast<int>(f["AnzMPs"].number)) +
           "-\r\nMesslänge:\t" + formatGeneral(f["Distanz"].number / unit.perLength) + unit.length +
           "\r\nX-toleranz:\t" + tolerance("X") + "\r\nY-toleranz:\t" + tolerance("Y") + "\r\nFilter:\t" +
           times.at(f["Filter"].text) + "\r\nWIN-KORVIN, Version 5.55 / qk \r\n\r\nMesswerte: \r\n" +
           unit.columns + "\r\n";
  }
  static std::string value(const test::Json& fields, const test::Json& evaluated, const std::string& axis,
                           std::size_t i) {
    if (fields[axis + ".Wert"].list[i].number == Leerwert) return "?.?";
    return formatNumber(evaluated[axis]["values"].list[i - 1].number, "0.0000");
  }
};

TEST_F(StraightnessTextCopyTest, OfEveryReferenceWholeInBothUnits) {
  for (const char* name :
       {"six.G", "holes.G", "moved.G", "full.G", "set1.G", "set2.G", "set3.G", "old.G", "older.G"}) {
    GeradReihe loaded = reference(name);
    const test::Json beside =
        test::parseJson(test::readFile(test::dataFile("reference/" + std::string(name) + ".json")));
    if (std::string(name).starts_with("old")) {
      // A converted file keeps the tolerances of X that the image held before.
      loaded.X.Gesamt = beside["fields"]["X.Gesamt"].number;
      loaded.X.WertPro = beside["fields"]["X.WertPro"].number;
      loaded.X.ProEinheit = beside["fields"]["X.ProEinheit"].number;
    }
    for (const Unit& unit : {metric, inch}) {
      SCOPED_TRACE(std::string(name) + " " + unit.name);
      EXPECT_EQ(geradTextCopy(loaded, unit.system, dictionary), wanted(beside, unit));
    }
  }
}

TEST_F(StraightnessTextCopyTest, OfSixPointsLetterByLetter) {
  reference("six.G");
  ASSERT_TRUE(files(disk).g_AsciiDateiSpeichern(folder.path("copy")));
  EXPECT_EQ(test::readFile(folder.path("copy")),
            "KORVIN-Messprotokoll:\tPr\xFC"
            "fstelle S\xFC"
            "d \x96 Me\xDFraum 3\r\n"
            "Messsystem:\tKamera 0\xB0\r\n"
            "Bezeichnung:\tF\xFChrungsbahn Fr\xE4smaschine 164\r\n"
            "Pfad:\tC:\\KorFiles\\F\xFChrungsbahn 60.G\r\n"
            "Datum:\t21.08 2003 / 14:03:07\r\n"
            "Bediener:\tM. Gr\xF6\xDF\r\n"
            "Kommentar:\tnach \xDC"
            "berholung, 20 \xB0"
            "C \xB1"
            "1\r\n"
            "Anzahl:\t-6-\r\n"
            "Messl\xE4nge:\t2500 mm\r\n"
            "X-toleranz:\t0.064  0.026/1000.0\r\n"
            "Y-toleranz:\t0.049  0.028/1000.0\r\n"
            "Filter:\t5s\r\n"
            "WIN-KORVIN, Version 5.55 / qk \r\n"
            "\r\n"
            "Messwerte: \r\n"
            "MP\tZ[mm]\tX[mm]\tY[mm]\r\n"
            "1\t0.0\t-0.0256\t-0.0120\r\n"
            "2\t500.0\t0.0051\t0.0020\r\n"
            "3\t1000.0\t0.0229\t0.0103\r\n"
            "4\t1500.0\t0.0175\t0.0110\r\n"
            "5\t2000.0\t0.0038\t-0.0009\r\n"
            "6\t2500.0\t-0.0237\t-0.0104\r\n"
            "\r\n");
}

TEST_F(StraightnessTextCopyTest, OfSixPointsInInch) {
  const std::string copy = geradTextCopy(reference("six.G"), 1, dictionary);
  EXPECT_NE(copy.find("Messlänge:\t98.4251968503937 in\r\nX-toleranz:\t2.52  1.02/39.4\r\n"),
            std::string::npos);
  EXPECT_NE(copy.find("MP\tZ[in]\tX[mil]\tY[mil]\r\n1\t0.0\t-1.0066\t-0.4736\r\n2\t19.7\t0.2013\t0.0804\r\n"),
            std::string::npos);
}

TEST_F(StraightnessTextCopyTest, MovedPointsStandAtEvenDistances) {
  const GeradReihe moved = reference("moved.G");
  const std::string copy = geradTextCopy(moved, 0, dictionary);
  EXPECT_NE(moved.Linie.Z.at(3), 2 * moved.Linie.ZSchritt);
  EXPECT_NE(copy.find("\r\n3\t" + formatNumber(2 * moved.Linie.ZSchritt, "0.0") + "\t"), std::string::npos);
}

TEST_F(StraightnessTextCopyTest, OpenReadingsAreToldByTheReadingInEveryModeAndUnit) {
  measure(3);
  series().X.Wert.at(2) = Leerwert;
  for (const std::int16_t mode : everyMode) {
    for (const std::int16_t unit : bothUnits) {
      series().Info.Auswertung = mode;
      const std::string copy = geradTextCopy(series(), unit, dictionary);
      EXPECT_NE(copy.find(unit == 0 ? "\r\n2\t100.0\t?.?\t" : "\r\n2\t3.9\t?.?\t"), std::string::npos)
          << copy;
    }
  }
}

/// A value that comes out as the empty one is a value all the same.
TEST_F(StraightnessTextCopyTest, AValueThatLooksEmptyIsAValue) {
  measure(3);
  series().Info.Auswertung = 2;
  series().Info.Ref1 = 1;
  series().Info.Ref2 = 3;
  series().X.Wert.at(1) = series().X.Wert.at(3) = 1;
  series().X.Wert.at(2) = 1000;
  EXPECT_NE(geradTextCopy(series(), 0, dictionary).find("\r\n2\t100.0\t999.0000\t"), std::string::npos);
}

TEST_F(StraightnessTextCopyTest, UnsetTolerancesAreQuestioned) {
  measure(2);
  series().Info.Filter = "2";
  for (const std::int16_t unit : bothUnits) {
    const std::string copy = geradTextCopy(series(), unit, dictionary);
    EXPECT_NE(copy.find("\r\nX-toleranz:\t?.?  ?.? / ?\r\nY-toleranz:\t?.?  ?.? / ?\r\n"), std::string::npos);
  }
}

TEST_F(StraightnessTextCopyTest, LevelWithoutATimeRunsOnIntoTheNextLine) {
  measure(2);
  for (const char* level : {"5", "7", " ", "x"}) {
    series().Info.Filter = level;
    EXPECT_NE(geradTextCopy(series(), 0, dictionary)
                  .find("\r\nFilter:\tWIN-KORVIN, Version 5.55 / qk \r\n\r\nMesswerte: \r\n"),
              std::string::npos);
  }
}

TEST_F(StraightnessTextCopyTest, PointsAreThoseThatXCounts) {
  measure(6);
  series().Linie.AnzMPs = 2;
  series().Y.Wert.at(0) = 3;
  const std::string copy = geradTextCopy(series(), 0, dictionary);
  EXPECT_NE(copy.find("Anzahl:\t-2-"), std::string::npos);
  EXPECT_NE(copy.find("\r\n6\t500.0\t"), std::string::npos);
  EXPECT_NE(copy.find("\t?.?\r\n6\t"), std::string::npos) << "Y counts fewer";
  series().X.Wert.at(0) = 0;
  EXPECT_TRUE(geradTextCopy(series(), 0, dictionary).ends_with("Y[mm]\r\n\r\n"));
}

TEST_F(StraightnessTextCopyTest, InAnotherScriptIsUtf8WithAByteOrderMark) {
  measure(2);
  dictionary.texts[3056] = "\u65E5\u4ED8";
  ASSERT_TRUE(files(disk).g_AsciiDateiSpeichern(folder.path("copy") + " "));
  const std::string copy = test::readFile(folder.path("copy"));
  EXPECT_TRUE(copy.starts_with("\xEF\xBB\xBF"));
  EXPECT_NE(copy.find("\u65E5\u4ED8:\t"), std::string::npos);
}

}  // namespace
}  // namespace korvin
