#include <array>
#include <cerrno>
#include <cmath>
#include <filesystem>
#include <functional>
#include <limits>
#include <set>
#include <vector>

#include "frame/leerwert.h"
#include "straightness/file_stand.h"
#include "support/json.h"

namespace korvin {
namespace {

namespace fs = std::filesystem;

constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
constexpr double Inf = std::numeric_limits<double>::infinity();

template <class Form>
Form referenceAs(const std::string& name) {
  const std::string bytes = test::readFile(test::dataFile("reference/" + name));
  return fromBytes<Form>(test::bytesOf(bytes));
}

class StraightnessLoadingTest : public StraightnessFileStand {
 protected:
  template <class Form>
  std::string write(const Form& record) {
    test::writeFile(folder.path("made.G"), test::textOf(toBytes(record)));
    return folder.path("made.G");
  }
  /// A series that an older form held before it was written.
  template <class Form>
  static Form olderForm(std::int16_t count) {
    Form form;
    form.Linie.AnzMPs = count;
    form.X.Wert.at(0) = form.Y.Wert.at(0) = count;
    for (std::size_t i = 1; i <= static_cast<std::size_t>(count) && i <= MaxPunkteAlt; ++i) {
      form.X.Wert.at(i) = 0.25;
      form.Y.Wert.at(i) = 0.5;
      form.Linie.Z.at(i) = static_cast<double>(i);
    }
    return form;
  }
  /// The image as a file handled before left it.
  void imageOfBefore() {
    image() = seriesOf(201);
    image().X.Gesamt = 0.5;
    image().X.ToleranzBezug = 2;
    image().X.Mittel = 7;
    image().X.AbschnittStart = 3;
    image().Y.Gesamt = 0.25;
    image().Y.Bereich = 0.75;
    image().Y.Bereichsart = 1;
    image().X.Bereich = 0.75;
  }
};

// ---- The present form ----

TEST_F(StraightnessLoadingTest, EveryReferenceOfThePresentFormLoadsWithoutAWord) {
  for (const char* name : {"six.G", "holes.G", "moved.G", "full.G", "set1.G", "set2.G", "set3.G"}) {
    SCOPED_TRACE(name);
    ASSERT_TRUE(loadReference(name));
    EXPECT_TRUE(messages.shown.empty());
    auto wanted = referenceAs<GeradDatei>(name);
    wanted.Info.Geaendert = false;
    EXPECT_EQ(toBytes(image()), toBytes(wanted));
  }
}

TEST_F(StraightnessLoadingTest, SixPointsAreSixPointsWhateverLiesBehindThem) {
  auto record = referenceAs<GeradDatei>("six.G");
  for (std::size_t i = 7; i <= 201; ++i) record.X.Wert.at(i) = record.Y.Wert.at(i) = NaN;
  ASSERT_TRUE(load(write(record)));
  EXPECT_EQ(image().X.Wert.anzahl(), 6U);
  EXPECT_EQ(image().Y.Wert.at(6), -0.2068);
}

TEST_F(StraightnessLoadingTest, LoadingTouchesTheImageAlone) {
  measure(3);
  const auto before = toBytes(series());
  system.Masssystem = 1;
  ASSERT_TRUE(loadReference("six.G"));
  EXPECT_EQ(toBytes(series()), before);
}

TEST_F(StraightnessLoadingTest, ALoadedFileIsUnchangedWhateverItSays) {
  ASSERT_TRUE(referenceAs<GeradDatei>("six.G").Info.Geaendert);
  ASSERT_TRUE(loadReference("six.G"));
  EXPECT_FALSE(image().Info.Geaendert);
  formgera.bildUebernehmen();
  EXPECT_EQ(series().Info.DateiStatus, 1);
  EXPECT_FALSE(series().Info.Geaendert);
}

TEST_F(StraightnessLoadingTest, TheChosenPathIsKeptWhateverTheRecordTells) {
  EXPECT_EQ(formgera.dateiGewaehlt(), "");
  ASSERT_TRUE(loadReference("six.G"));
  EXPECT_NE(image().Info.DateiName.trimmed(), folder.path("six.G"));
  EXPECT_EQ(formgera.dateiGewaehlt(), folder.path("six.G"));
  EXPECT_FALSE(load(folder.path("missing.G")));
  EXPECT_FALSE(save(folder.path("missing/other.G")));
  EXPECT_EQ(formgera.dateiGewaehlt(), folder.path("six.G")) << "what failed leaves it";
  ASSERT_TRUE(save(folder.path("other.G")));
  EXPECT_EQ(formgera.dateiGewaehlt(), folder.path("other.G"));
}

TEST_F(StraightnessLoadingTest, BlanksBehindTheNameAreCut) {
  EXPECT_TRUE(load(folder.copyOf("reference/six.G") + "   "));
}

// ---- The older forms ----

TEST_F(StraightnessLoadingTest, BothOlderFormsLoadAfterYes) {
  for (const char* name : {"old.G", "older.G"}) {
    SCOPED_TRACE(name);
    messages.shown.clear();
    answer(MessageAnswer::yes);
    ASSERT_TRUE(loadReference(name));
    EXPECT_EQ(onlyMessage().title, "KORVIN-D5500");
    EXPECT_EQ(onlyMessage().text, "D6010");
    EXPECT_EQ(onlyMessage().icon, MessageIcon::question);
    EXPECT_EQ(onlyMessage().buttons, MessageButtons::yesNoCancel);
    EXPECT_TRUE(image().Info.Geaendert) << "converted, and not yet saved so";
  }
}

TEST_F(StraightnessLoadingTest, OlderFormsStayAwayAfterNoAndCancel) {
  imageOfBefore();
  const auto before = toBytes(image());
  for (const char* name : {"old.G", "older.G", "short.G", "long.G"}) {
    const std::string file = folder.copyOf(std::string("reference/") + name);
    for (const MessageAnswer a : {MessageAnswer::no, MessageAnswer::cancel}) {
      messages.shown.clear();
      answer(a);
      EXPECT_FALSE(load(file));
      EXPECT_EQ(onlyMessage().text, "D6010") << "the question is all";
      EXPECT_EQ(toBytes(image()), before);
    }
  }
  EXPECT_EQ(messages.beeps, 0);
}

TEST_F(StraightnessLoadingTest, OlderPointsAreTakenAndThoseAboveStay) {
  imageOfBefore();
  answer(MessageAnswer::yes);
  ASSERT_TRUE(loadReference("old.G"));
  const auto old = referenceAs<GeradDateiVorher>("old.G");
  for (std::size_t i = 0; i <= 21; ++i) {
    EXPECT_EQ(image().X.Wert.at(i), old.X.Wert.at(i));
    EXPECT_EQ(image().Y.Wert.at(i), old.Y.Wert.at(i));
    EXPECT_EQ(image().Linie.Z.at(i), old.Linie.Z.at(i));
  }
  EXPECT_EQ(image().X.Wert.at(22), 22 * 0.001);
  EXPECT_EQ(image().Y.Wert.at(201), 201 * -0.002);
  EXPECT_EQ(image().Linie.Z.at(22), 2100);
}

/// Kept for files of earlier versions: of X the display comes from the file, of Y the tolerances and results.
TEST_F(StraightnessLoadingTest, OlderAxesAreTakenInOppositeHalves) {
  for (const char* name : {"old.G", "older.G"}) {
    SCOPED_TRACE(name);
    imageOfBefore();
    const AchsenErgebnis xBefore = image().X;
    const AchsenAnzeige yBefore = image().Y;
    answer(MessageAnswer::yes);
    ASSERT_TRUE(loadReference(name));
    const test::Json fields =
        test::parseJson(test::readFile(test::dataFile("reference/" + std::string(name) + ".json")))["fields"];
    const std::set<std::string> display{"Bereich", "BereichAlt", "Bereichsart", "NumZoom", "Reserve1"};
    for (const FieldDump& line : dump(image())) {
      if (!line.name.starts_with("X.") && !line.name.starts_with("Y.")) continue;
      const std::string field = line.name.substr(2);
      if (field == "Wert" || display.contains(field) != line.name.starts_with("X.")) continue;
      EXPECT_EQ(std::stod(line.text), fields[line.name].number) << line.name;
    }
    EXPECT_EQ(toBytes<AchsenErgebnis>(image().X), toBytes(xBefore));
    EXPECT_EQ(toBytes<AchsenAnzeige>(image().Y), toBytes(yBefore));
  }
}

TEST_F(StraightnessLoadingTest, OlderGeneralPartIsTakenWhole) {
  answer(MessageAnswer::yes);
  ASSERT_TRUE(loadReference("old.G"));
  const auto old = referenceAs<GeradDateiVorher>("old.G");
  GeradInfo wanted = old.Info;
  wanted.Geaendert = true;
  EXPECT_EQ(toBytes(image().Info), toBytes(wanted));
  EXPECT_EQ(toBytes(image().Adapt), toBytes(old.Adapt));
  EXPECT_EQ(image().Linie.AktMP, 19);
  EXPECT_EQ(image().Linie.Distanz, 3000);
  EXPECT_EQ(image().Linie.AnzMPs, 21);
  EXPECT_EQ(image().Linie.ZSchritt, 150);
}

TEST_F(StraightnessLoadingTest, TheOldestFormGetsTheLineSettingsOfItsTime) {
  image().Info.BaudRate = "19200,N,8,1";
  answer(MessageAnswer::yes);
  ASSERT_TRUE(loadReference("older.G"));
  EXPECT_EQ(image().Info.BaudRate.trimmed(), "115200,N,8,1");
  EXPECT_EQ(image().Info.PortNr, 7);
  EXPECT_EQ(image().Info.KameraID.trimmed(), "0");
  answer(MessageAnswer::yes);
  ASSERT_TRUE(loadReference("old.G"));
  EXPECT_EQ(image().Info.BaudRate.trimmed(), "19200,N,8,1");
}

TEST_F(StraightnessLoadingTest, OlderFormWithAllItsPointsLoads) {
  answer(MessageAnswer::yes);
  ASSERT_TRUE(load(write(olderForm<GeradDateiVorher>(101))));
  EXPECT_EQ(image().X.Wert.at(101), 0.25);
  EXPECT_EQ(image().X.Wert.at(102), Leerwert);
}

TEST_F(StraightnessLoadingTest, OlderFormCountingMoreThanItsPointsIsRefused) {
  imageOfBefore();
  const auto before = toBytes(image());
  const auto refuse = [&](auto form) {
    messages.shown.clear();
    answer(MessageAnswer::yes);
    EXPECT_FALSE(load(write(form)));
    ASSERT_EQ(messages.shown.size(), 2U);
    EXPECT_EQ(messages.shown[1].title, "D1100 (g_DateiLaden): 0");
    EXPECT_EQ(messages.shown[1].text, "D1101\r\nD7331");
    EXPECT_EQ(toBytes(image()), before);
  };
  refuse(olderForm<GeradDateiVorher>(102));
  refuse(olderForm<GeradDateiErste>(102));
  auto onlyX = olderForm<GeradDateiVorher>(101);
  onlyX.X.Wert.at(0) = 102;
  refuse(onlyX);
  auto onlyY = olderForm<GeradDateiVorher>(101);
  onlyY.Y.Wert.at(0) = 102;
  refuse(onlyY);
}

// ---- Refused ----

TEST_F(StraightnessLoadingTest, AnyOtherLengthIsRefusedOnlyAfterYes) {
  for (const char* name : {"short.G", "long.G"}) {
    messages.shown.clear();
    messages.beeps = 0;
    answer(MessageAnswer::yes);
    EXPECT_FALSE(loadReference(name));
    ASSERT_EQ(messages.shown.size(), 2U) << "one question, one failure";
    EXPECT_EQ(messages.shown[0].text, "D6010");
    EXPECT_EQ(messages.shown[1].title, "D1100 (g_DateiLaden): 0");
    EXPECT_EQ(messages.shown[1].text, "D1101\r\n");
    EXPECT_EQ(messages.shown[1].icon, MessageIcon::warning);
    EXPECT_EQ(messages.shown[1].buttons, MessageButtons::ok);
    EXPECT_EQ(messages.beeps, 1);
  }
}

TEST_F(StraightnessLoadingTest, EveryBadFileIsRefusedAndEveryOddOneLoads) {
  imageOfBefore();
  const GeradDatei before = image();
  int bad = 0;
  for (const auto& entry : fs::directory_iterator(test::dataFile("bad"))) {
    if (entry.path().extension() != ".G") continue;
    SCOPED_TRACE(entry.path().string());
    image() = before;
    messages.shown.clear();
    messages.answers = {MessageAnswer::yes};
    const bool odd = entry.path().stem().string().starts_with("odd-");
    EXPECT_EQ(load(entry.path().string()), odd);
    EXPECT_EQ(messages.shown.empty(), odd);
    if (odd) continue;
    EXPECT_EQ(toBytes(image()), toBytes(before));
    ++bad;
  }
  EXPECT_GE(bad, 20);
}

/// Lengths that come near one of the three, and those that do so in their low 16 bits alone.
TEST_F(StraightnessLoadingTest, OnlyTheThreeLengthsAreForms) {
  for (const std::size_t length :
       {0U, 1U, 3230U, 3232U, 3242U, 3244U, 5642U, 5644U, 65536U + 3231U, 65536U + 3243U, 65536U + 5643U}) {
    SCOPED_TRACE(length);
    test::writeFile(folder.path("made.G"), std::string(length, '\0'));
    messages.shown.clear();
    answer(MessageAnswer::yes);
    EXPECT_FALSE(load(folder.path("made.G")));
    EXPECT_EQ(messages.shown.size(), 2U);
  }
}

TEST_F(StraightnessLoadingTest, MissingFileIsToldAndNotMade) {
  EXPECT_FALSE(load(folder.path("none.G")));
  EXPECT_EQ(onlyMessage().title, "D1100 (g_DateiLaden): " + std::to_string(ENOENT));
  EXPECT_EQ(onlyMessage().text, "D1101\r\nD7315");
  EXPECT_TRUE(folder.names().empty());
}

TEST_F(StraightnessLoadingTest, FolderIsNoMeasurement) {
  fs::create_directory(folder.path("a.G"));
  EXPECT_FALSE(load(folder.path("a.G")));
  EXPECT_EQ(onlyMessage().text, "D1101\r\nD7317");
}

struct BadRecord {
  const char* what;
  std::function<void(GeradDatei&)> spoil;
};
const std::vector<BadRecord> countsAreBad{
    {"no count", [](GeradDatei& r) { r.X.Wert.at(0) = NaN; }},
    {"endless count", [](GeradDatei& r) { r.X.Wert.at(0) = Inf; }},
    {"negative count", [](GeradDatei& r) { r.X.Wert.at(0) = -1; }},
    {"one point too many", [](GeradDatei& r) { r.X.Wert.at(0) = 202; }},
    {"no count of Y", [](GeradDatei& r) { r.Y.Wert.at(0) = NaN; }},
    {"one point of Y too many", [](GeradDatei& r) { r.Y.Wert.at(0) = 202; }},
    {"more positions than there are", [](GeradDatei& r) { r.Linie.AnzMPs = 202; }},
    {"negative number of positions", [](GeradDatei& r) { r.Linie.AnzMPs = -1; }},
};
const std::vector<BadRecord> pointsAreBad{
    {"Ref1 above", [](GeradDatei& r) { r.Info.Ref1 = 202; }},
    {"Ref1 below", [](GeradDatei& r) { r.Info.Ref1 = -1; }},
    {"Ref2 above", [](GeradDatei& r) { r.Info.Ref2 = 202; }},
    {"Ref2 below", [](GeradDatei& r) { r.Info.Ref2 = -1; }},
    {"cursor above", [](GeradDatei& r) { r.Linie.AktMP = 202; }},
    {"cursor below", [](GeradDatei& r) { r.Linie.AktMP = -1; }},
};
const std::vector<BadRecord> numbersAreBad{
    {"first reading", [](GeradDatei& r) { r.X.Wert.at(1) = NaN; }},
    {"last reading", [](GeradDatei& r) { r.Y.Wert.at(6) = Inf; }},
    {"first position", [](GeradDatei& r) { r.Linie.Z.at(1) = NaN; }},
    {"last position", [](GeradDatei& r) { r.Linie.Z.at(6) = -Inf; }},
    {"position of Y alone",
     [](GeradDatei& r) {
       r.Y.Wert.at(0) = 7;
       r.Linie.Z.at(7) = NaN;
     }},
    {"position without a reading",
     [](GeradDatei& r) {
       r.Linie.AnzMPs = 7;
       r.Linie.Z.at(7) = NaN;
     }},
    {"length", [](GeradDatei& r) { r.Linie.Distanz = NaN; }},
    {"step", [](GeradDatei& r) { r.Linie.ZSchritt = Inf; }},
    {"range", [](GeradDatei& r) { r.X.Bereich = NaN; }},
    {"whole tolerance", [](GeradDatei& r) { r.X.Gesamt = NaN; }},
    {"tolerance of a section", [](GeradDatei& r) { r.Y.WertPro = Inf; }},
    {"section", [](GeradDatei& r) { r.Y.ProEinheit = NaN; }},
    {"accuracy of X", [](GeradDatei& r) { r.Adapt.X_Genauigkeit = NaN; }},
    {"accuracy of Y", [](GeradDatei& r) { r.Adapt.Y_Genauigkeit = Inf; }},
};
const std::vector<BadRecord> odd{
    {"count and positions disagree", [](GeradDatei& r) { r.Linie.AnzMPs = 4; }},
    {"axes disagree", [](GeradDatei& r) { r.Y.Wert.at(0) = 3; }},
    {"half a point", [](GeradDatei& r) { r.X.Wert.at(0) = 6.5; }},
    {"no points", [](GeradDatei& r) { r.X.Wert.at(0) = r.Y.Wert.at(0) = 0; }},
    {"as many as there can be",
     [](GeradDatei& r) {
       r.X.Wert.at(0) = r.Y.Wert.at(0) = 201;
       r.Linie.AnzMPs = 201;
     }},
    {"reference behind the last point", [](GeradDatei& r) { r.Info.Ref2 = 201; }},
    {"no reference", [](GeradDatei& r) { r.Info.Ref1 = r.Info.Ref2 = 0; }},
    {"cursor at 0", [](GeradDatei& r) { r.Linie.AktMP = 0; }},
    {"unknown filter", [](GeradDatei& r) { r.Info.Filter = "x"; }},
    {"unknown mode", [](GeradDatei& r) { r.Info.Auswertung = 99; }},
    {"results are no numbers",
     [](GeradDatei& r) {
       r.X.Mittel = r.X.Streuung = r.Y.MaxWert = r.Y.MinWert = NaN;
       r.X.AbschnittWert = r.X.AbschnittLaenge = r.X.BereichAlt = r.X.Reserve2 = Inf;
     }},
};

TEST_F(StraightnessLoadingTest, BadContentIsRefusedAndTheImageStays) {
  const auto six = referenceAs<GeradDatei>("six.G");
  imageOfBefore();
  const auto before = toBytes(image());
  const auto refuseAll = [&](const std::vector<BadRecord>& cases, const char* reason) {
    for (const BadRecord& bad : cases) {
      SCOPED_TRACE(bad.what);
      GeradDatei record = six;
      bad.spoil(record);
      messages.shown.clear();
      EXPECT_FALSE(load(write(record)));
      EXPECT_EQ(onlyMessage().title, "D1100 (g_DateiLaden): 0");
      EXPECT_EQ(onlyMessage().text, std::string("D1101\r\n") + reason);
      EXPECT_EQ(toBytes(image()), before);
    }
  };
  refuseAll(countsAreBad, "D7331");
  refuseAll(pointsAreBad, "D7332");
  refuseAll(numbersAreBad, "D7330");
}

TEST_F(StraightnessLoadingTest, WhatIsMerelyOddIsTakenAsItStands) {
  const auto six = referenceAs<GeradDatei>("six.G");
  for (const BadRecord& one : odd) {
    SCOPED_TRACE(one.what);
    GeradDatei record = six;
    one.spoil(record);
    record.Info.Geaendert = false;
    ASSERT_TRUE(load(write(record)));
    EXPECT_EQ(toBytes(image()), toBytes(record));
    formgera.bildUebernehmen();
    EXPECT_TRUE(save(folder.path("again.G")));
  }
  EXPECT_TRUE(messages.shown.empty());
}

/// Whatever bytes have the right length, nothing breaks, and a refusal changes nothing.
TEST_F(StraightnessLoadingTest, NoiseIsRefusedOrTaken) {
  std::uint32_t state = 1;
  for (int round = 0; round < 300; ++round) {
    const std::size_t length = std::array{5643U, 3243U, 3231U}.at(static_cast<std::size_t>(round % 3));
    std::string bytes(length, '\0');
    for (char& b : bytes) b = static_cast<char>((state = state * 1664525U + 1013904223U) >> 24U);
    test::writeFile(folder.path("noise.G"), bytes);
    const auto before = toBytes(image());
    answer(MessageAnswer::yes);
    const bool loaded = load(folder.path("noise.G"));
    messages.answers.clear();
    if (!loaded) {
      EXPECT_EQ(toBytes(image()), before);
    }
  }
}

TEST_F(StraightnessLoadingTest, EachCallThatFailsIsToldAndLeavesTheImage) {
  for (const char* name : {"six.G", "old.G"}) {
    const std::string file = folder.copyOf(std::string("reference/") + name);
    bool reached = true;
    for (int at = 1; reached; ++at) {
      SCOPED_TRACE(at);
      imageOfBefore();
      const auto before = toBytes(image());
      messages.shown.clear();
      messages.answers = {MessageAnswer::yes};
      test::FaultyFileSystem faulty;
      faulty.failAt = at;
      const bool loaded = files(faulty).g_DateiLaden(file);
      reached = faulty.calls >= at;
      if (loaded) {
        EXPECT_EQ(image().X.Wert.at(1), std::string(name) == "six.G" ? -0.043 : 0.1685);
        continue;
      }
      EXPECT_EQ(messages.shown.back().title, "D1100 (g_DateiLaden): " + std::to_string(EIO));
      EXPECT_EQ(toBytes(image()), before);
    }
  }
}

}  // namespace
}  // namespace korvin
