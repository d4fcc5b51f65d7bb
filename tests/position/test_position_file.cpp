#include "position/position_file.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <set>

#include "frame/leerwert.h"
#include "frame/posix_file_system.h"
#include "position/erfassung.h"
#include "position/text_copy.h"
#include "support/child_process.h"
#include "support/faulty_file_system.h"
#include "support/json.h"
#include "support/save_trials.h"
#include "support/test_clock.h"
#include "support/test_files.h"
#include "support/test_ports.h"

namespace korvin {
namespace {

namespace fs = std::filesystem;
using test::TestFolder;

/// The file operations over a real folder, with everything else in memory.
class PositionFileTest : public ::testing::Test {
 protected:
  PositionFileTest() {
    dictionary.texts = {{3019, "Messprotokoll "}, {3048, "Messsystem"}, {3044, "Bezeichnung"},
                        {3049, "Pfad"},           {3056, "Datum"},      {3008, "Bediener"},
                        {3009, "Kommentar"},      {3010, "Anzahl"},     {3013, "Filter"},
                        {3018, "Messwerte"},      {5502, "Position"}};
  }
  PositionsDateien files(FileSystem& fileSystem) {
    return PositionsDateien({fileSystem, messages, meldung, dictionary, profil, formpos});
  }
  bool load(const std::string& name) { return files(system).o_DateiLaden(name); }
  bool save(const std::string& name) { return files(system).o_DateiSpeichern(name); }
  /// A measurement of `count` points.
  void measure(int count) {
    formpos.messungLoeschen();
    formpos.Info().RestMP = -1;
    for (int i = 1; i <= count; ++i) {
      formpos.arbeit().X.Aktuell = i * 0.001;
      formpos.arbeit().Y.Aktuell = -i * 0.002;
      formpos.punktHinzufuegen(45000 + i);
    }
  }
  const test::TestMessages::Shown& onlyMessage() {
    EXPECT_EQ(messages.shown.size(), 1U);
    return messages.shown.at(0);
  }

  TestFolder folder;
  test::UnflushedFileSystem system;
  test::TestMessages messages;
  test::TestDictionary dictionary;
  test::MemorySettingsTree tree;
  Profil profil{tree};
  Meldung meldung;
  FORMPOS formpos;
};

// ---- Loading ----

TEST_F(PositionFileTest, LoadsTheReferenceWithAllPoints) {
  ASSERT_TRUE(load(folder.copyOf("reference/point.O")) == false) << "a head without its points is refused";
  messages.shown.clear();
  folder.copyOf("reference/point.O1");
  ASSERT_TRUE(load(folder.path("point.O")));
  const test::Json reference = test::parseJson(test::readFile(test::dataFile("reference/point.O.json")));
  EXPECT_EQ(formpos.bild().Info.AnzahlMP, 40);
  EXPECT_EQ(formpos.bild().Info.Bezeichnung.trimmed(), "Spindellager");
  EXPECT_FALSE(formpos.bild().Info.Geaendert);
  EXPECT_TRUE(messages.shown.empty());
  ASSERT_EQ(reference["points"].list.size(), 40U);
  for (std::size_t i = 1; i <= 40; ++i) {
    const auto& point = reference["points"].list[i - 1].list;
    EXPECT_EQ(formpos.punkte().X().at(i), point[0].number);
    EXPECT_EQ(formpos.punkte().Y().at(i), point[1].number);
    EXPECT_EQ(formpos.punkte().T().at(i), point[2].number);
  }
  EXPECT_EQ(formpos.punkte().X().at(41), Leerwert);
}

TEST_F(PositionFileTest, LoadingLeavesTheWorkingRecordAlone) {
  folder.copyOf("reference/point.O1");
  formpos.Info().SFak = 77;
  ASSERT_TRUE(load(folder.copyOf("reference/point.O")));
  EXPECT_EQ(formpos.Info().SFak, 77);
}

TEST_F(PositionFileTest, TheChosenPathIsKeptWhateverTheRecordTells) {
  EXPECT_EQ(formpos.dateiGewaehlt(), "");
  folder.copyOf("reference/point.O");
  folder.copyOf("reference/point.O1");
  ASSERT_TRUE(load(folder.path("point.O")));
  EXPECT_EQ(formpos.bild().Info.DateiName.trimmed(), "C:\\KorFiles\\Punkt.O");
  EXPECT_EQ(formpos.dateiGewaehlt(), folder.path("point.O"));
  EXPECT_FALSE(load(folder.path("missing.O")));
  EXPECT_FALSE(save(folder.path("missing/other.O")));
  EXPECT_EQ(formpos.dateiGewaehlt(), folder.path("point.O")) << "what failed leaves it";
  ASSERT_TRUE(save(folder.path("other.O")));
  EXPECT_EQ(formpos.dateiGewaehlt(), folder.path("other.O"));
}

TEST_F(PositionFileTest, OtherLengthIsTakenOnYesAndMarkedAsChanged) {
  folder.copyOf("reference/short.O1");
  messages.answers = {MessageAnswer::yes};
  ASSERT_TRUE(load(folder.copyOf("reference/short.O")));
  EXPECT_EQ(onlyMessage().title, "KORVIN-Position");
  EXPECT_EQ(onlyMessage().text, "D6010");
  EXPECT_EQ(onlyMessage().buttons, MessageButtons::yesNoCancel);
  EXPECT_TRUE(formpos.bild().Info.Geaendert);
  EXPECT_EQ(formpos.bild().Info.Geaendert.raw(), -1);
  EXPECT_EQ(formpos.bild().Info.AnzahlMP, 40);
}

TEST_F(PositionFileTest, OtherLengthIsRefusedOnNoAndCancel) {
  folder.copyOf("reference/short.O1");
  const std::string file = folder.copyOf("reference/short.O");
  for (const MessageAnswer answer : {MessageAnswer::no, MessageAnswer::cancel}) {
    messages.shown.clear();
    messages.beeps = 0;
    messages.answers = {answer};
    EXPECT_FALSE(load(file));
    ASSERT_EQ(messages.shown.size(), 2U);
    EXPECT_EQ(messages.shown[1].title, "D1100 (o_DateiLaden): 0");
    EXPECT_EQ(messages.shown[1].text, "D1101\r\nFile: " + file + "1\r\nD1107");
    EXPECT_EQ(messages.shown[1].icon, MessageIcon::warning);
    EXPECT_EQ(messages.beeps, 1);
  }
}

TEST_F(PositionFileTest, PointFileOfAnotherCountIsRefused) {
  folder.copyOf("reference/miscount.O1");
  measure(3);
  formpos.bild().Info.SFak = 5;
  EXPECT_FALSE(load(folder.copyOf("reference/miscount.O")));
  EXPECT_EQ(onlyMessage().title, "D1100 (o_DateiLaden): 0");
  EXPECT_EQ(formpos.bild().Info.SFak, 5) << "a refused file changes nothing";
  EXPECT_EQ(formpos.punkte().X().anzahl(), 3U);
}

TEST_F(PositionFileTest, MissingFileIsToldWithTheSystemsNumber) {
  EXPECT_FALSE(load(folder.path("none.O")));
  EXPECT_EQ(onlyMessage().title, "D1100 (o_DateiLaden): " + std::to_string(ENOENT));
  EXPECT_TRUE(folder.names().empty()) << "looking for a file makes none";
}

TEST_F(PositionFileTest, NameIsTrimmedOnTheRight) {
  measure(2);
  ASSERT_TRUE(save(folder.path("a.O") + "   "));
  EXPECT_TRUE(fs::exists(folder.path("a.O")));
  EXPECT_TRUE(load(folder.path("a.O") + "  "));
}

TEST_F(PositionFileTest, EveryBadFileIsRefusedAndEveryOddOneShownAsItStands) {
  std::set<std::string> names;
  for (const auto& entry : fs::directory_iterator(test::dataFile("bad"))) {
    if (entry.path().extension() == ".O") names.insert(entry.path().stem().string());
  }
  ASSERT_GE(names.size(), 25U);
  const std::set<std::string> takenOnYes{"head-one-byte-short", "head-one-byte-long", "head-huge"};
  for (const std::string& name : names) {
    SCOPED_TRACE(name);
    measure(3);
    messages.shown.clear();
    messages.answers = {MessageAnswer::yes};
    const bool loaded = load((test::dataFile("bad") / (name + ".O")).string());
    const bool wanted = name.starts_with("odd-") || takenOnYes.contains(name);
    EXPECT_EQ(loaded, wanted);
    if (!loaded) {
      EXPECT_EQ(formpos.punkte().X().anzahl(), 3U);
      EXPECT_FALSE(messages.shown.empty());
    }
    // What was loaded can be shown, moved through and saved without harm.
    if (loaded) {
      test::TestClock clock;
      Systemwerte systemwerte;
      PositionsErfassung window({clock, messages, dictionary, profil, meldung, systemwerte, formpos});
      window.bildUebernehmen();
      window.cursorBewegen(1);
      window.offsetSchalten(true);
      window.offsetSchalten(false);
      EXPECT_FALSE(positionTextCopy(formpos.Info(), formpos.punkte(), dictionary).empty());
      EXPECT_TRUE(save(folder.path("again.O")));
    }
  }
}

TEST_F(PositionFileTest, CountThatWouldOverrunTheRecordIsRefused) {
  measure(29999);
  ASSERT_TRUE(save(folder.path("a.O")));
  std::string head = test::readFile(folder.path("a.O"));
  head[667] = 0x30;  // 29999 is 0x752F, 30000 is 0x7530
  test::writeFile(folder.path("a.O"), head);
  test::writeFile(folder.path("a.O1"), std::string(24 * 30001, '\0'));
  EXPECT_FALSE(load(folder.path("a.O")));
  EXPECT_NE(onlyMessage().text.find("D7331"), std::string::npos);
}

// ---- Saving ----

TEST_F(PositionFileTest, SaveAfterLoadGivesTheSameBytes) {
  folder.copyOf("reference/point.O1");
  const std::string file = folder.copyOf("reference/point.O");
  ASSERT_TRUE(load(file));
  formpos.bildUebernehmen();
  // The reference was saved when it was marked as unchanged, so nothing differs at all.
  ASSERT_TRUE(save(file));
  EXPECT_EQ(test::readFile(file), test::readFile(test::dataFile("reference/point.O")));
  EXPECT_EQ(test::readFile(file + "1"), test::readFile(test::dataFile("reference/point.O1")));
}

TEST_F(PositionFileTest, NoPointsGiveOneTripleOfZeros) {
  measure(0);
  ASSERT_TRUE(save(folder.path("a.O")));
  EXPECT_EQ(test::readFile(folder.path("a.O1")), std::string(24, '\0'));
  EXPECT_EQ(fs::file_size(folder.path("a.O")), 789U);
  EXPECT_TRUE(load(folder.path("a.O")));
}

TEST_F(PositionFileTest, FullMeasurementFills720000Bytes) {
  measure(29999);
  ASSERT_TRUE(save(folder.path("a.O")));
  EXPECT_EQ(fs::file_size(folder.path("a.O1")), 720000U);
  measure(1);
  ASSERT_TRUE(load(folder.path("a.O")));
  EXPECT_EQ(formpos.punkte().X().anzahl(), 29999U);
  EXPECT_EQ(formpos.punkte().X().at(29999), 29999 * 0.001);
}

TEST_F(PositionFileTest, CountsOfTheFirstTripleAreThePointsNumber) {
  measure(2);
  ASSERT_TRUE(save(folder.path("a.O")));
  const std::string bytes = test::readFile(folder.path("a.O1"));
  ASSERT_EQ(bytes.size(), 72U);
  for (std::size_t i = 0; i < 3; ++i) {
    double count = 0;
    FieldCodec<double>::load(count, test::bytesOf(bytes).data() + 8 * i);
    EXPECT_EQ(count, 2);
  }
}

TEST_F(PositionFileTest, SettingDecidesAboutTheTextCopyNotTheRecord) {
  measure(1);
  formpos.Info().AsciiDatei = true;
  ASSERT_TRUE(save(folder.path("a.O")));
  EXPECT_FALSE(fs::exists(folder.path("a.O$")));
  formpos.Info().AsciiDatei = false;
  profil.ProfilSchreiben("", "KorInfo", "AsciiDatei", "-1");
  ASSERT_TRUE(save(folder.path("a.O")));
  EXPECT_TRUE(fs::exists(folder.path("a.O$")));
}

TEST_F(PositionFileTest, FailedTextCopyMakesTheResultFalseButTheMeasurementIsSaved) {
  measure(1);
  profil.ProfilSchreiben("", "KorInfo", "AsciiDatei", "-1");
  fs::create_directory(folder.path("a.O$"));
  EXPECT_FALSE(save(folder.path("a.O")));
  EXPECT_EQ(onlyMessage().title.find("D1100 (o_AsciiDateiSpeichern): "), 0U);
  EXPECT_TRUE(load(folder.path("a.O")));
}

TEST_F(PositionFileTest, PathThatDoesNotFitTheRecordIsRefused) {
  measure(1);
  const std::string name = "/" + std::string(74, 'x');
  EXPECT_FALSE(save(name + "y"));
  EXPECT_EQ(onlyMessage().text, "D7300\r\nFile: " + name + "y");
  messages.shown.clear();
  EXPECT_FALSE(save(folder.path("\u4F4D.O")));
  EXPECT_EQ(onlyMessage().text.find("D7301"), 0U);
  EXPECT_TRUE(folder.names().empty());
}

TEST_F(PositionFileTest, FolderWithoutRightsIsToldAndNothingIsLost) {
  measure(2);
  ASSERT_TRUE(save(folder.path("a.O")));
  const std::string before = test::readFile(folder.path("a.O"));
  fs::permissions(folder.path(), fs::perms::owner_read | fs::perms::owner_exec | fs::perms::others_read |
                                     fs::perms::others_exec);
  EXPECT_TRUE(test::inChildWithoutRights([&] {
    measure(5);
    const bool saved = save(folder.path("a.O"));
    return !saved && messages.shown.size() == 1 &&
           messages.shown[0].text.find("D7311") != std::string::npos &&
           messages.shown[0].text.find("D7320") != std::string::npos && messages.beeps == 1;
  }));
  EXPECT_EQ(test::readFile(folder.path("a.O")), before);
}

TEST_F(PositionFileTest, EachFailingCallIsToldAndLeavesHeadAndPointsTogether) {
  test::FaultyFileSystem counting;
  measure(40);
  ASSERT_TRUE(files(counting).o_DateiSpeichern(folder.path("count.O")));
  test::withEachCallFailing(counting.calls, [this](test::FaultyFileSystem& faulty) {
    const std::string file = folder.path("a.O");
    measure(3);
    ASSERT_TRUE(save(file));
    measure(40);
    messages.shown.clear();
    const bool saved = files(faulty).o_DateiSpeichern(file);
    EXPECT_EQ(saved, messages.shown.empty());
    EXPECT_EQ(formpos.punkte().X().anzahl(), 40U) << "the measurement in work is unharmed";
    ASSERT_TRUE(load(file));
    const auto points = formpos.punkte().X().anzahl();
    EXPECT_TRUE(points == 40U || (points == 3U && !saved));
  });
}

TEST_F(PositionFileTest, EachCallThatFailsWhileLoadingIsToldAndLeavesThePresentMeasurement) {
  measure(40);
  ASSERT_TRUE(save(folder.path("a.O")));
  bool reached = true;
  for (int at = 1; reached; ++at) {
    SCOPED_TRACE(at);
    measure(3);
    formpos.bild() = {};
    messages.shown.clear();
    test::FaultyFileSystem faulty;
    faulty.failAt = at;
    const bool loaded = files(faulty).o_DateiLaden(folder.path("a.O"));
    reached = faulty.calls >= at;
    EXPECT_EQ(loaded, messages.shown.empty());
    EXPECT_EQ(formpos.punkte().X().anzahl(), loaded ? 40U : 3U);
    EXPECT_EQ(formpos.bild().Info.AnzahlMP, loaded ? 40 : 0);
    if (!loaded) {
      EXPECT_EQ(onlyMessage().title, "D1100 (o_DateiLaden): " + std::to_string(EIO));
    }
  }
}

TEST_F(PositionFileTest, SavesAndLoadsThroughTheSystemItself) {
  PosixFileSystem real;
  measure(7);
  ASSERT_TRUE(files(real).o_DateiSpeichern(folder.path("a.O")));
  measure(1);
  ASSERT_TRUE(files(real).o_DateiLaden(folder.path("a.O")));
  EXPECT_EQ(formpos.punkte().X().anzahl(), 7U);
  EXPECT_EQ(folder.names(), (std::vector<std::string>{"a.O", "a.O1"}));
}

TEST_F(PositionFileTest, AThousandKillsLeaveHeadAndPointsTogether) {
  const std::string file = folder.path("a.O");
  measure(1);
  ASSERT_TRUE(save(file));
  test::killWhileSaving(
      1000,
      [&](int generation) {
        measure(1 + generation % 200);
        save(file);
      },
      [&] { return load(file); });
}

// ---- The text copy ----

TEST_F(PositionFileTest, TextCopyOfTheReferenceWhole) {
  folder.copyOf("reference/point.O1");
  ASSERT_TRUE(load(folder.copyOf("reference/point.O")));
  formpos.bildUebernehmen();
  ASSERT_TRUE(files(system).o_AsciiDateiSpeichern(folder.path("copy")));
  const std::string copy = test::readFile(folder.path("copy"));
  const std::string head =
      "KORVIN-Messprotokoll:\tPr\xFC"
      "fstelle S\xFC"
      "d\r\n"
      "Messsystem:\tKORVIN-Position\r\n"
      "Bezeichnung:\tSpindellager\r\n"
      "Pfad:\tC:\\KorFiles\\Punkt.O\r\n"
      "Datum:\t04.03.2003 / 09:15:00\r\n"
      "Bediener:\tM. Gr\xF6\xDF\r\n"
      "Kommentar:\tWarmlauf\r\n"
      "Anzahl:\t-40-\r\n"
      "Filter:\t2s\r\n"
      "\r\n"
      "WIN-KORVIN, Version 5.55 / qk \r\n"
      "\r\n"
      "Messwerte: \r\n"
      "MP\tDatum/Zeit\tX[mm]\tY[mm]\r\n"
      "1\t14.01.2004 / 13:58:48\t0.0261\t-0.0888\r\n"
      "2\t14.01.2004 / 13:58:58\t0.0281\t-0.0495\r\n";
  EXPECT_EQ(copy.substr(0, head.size()), head);
  EXPECT_EQ(std::count(copy.begin(), copy.end(), '\n'), 14 + 40 + 1);
  EXPECT_TRUE(copy.ends_with("\r\n\r\n"));
  EXPECT_NE(copy.find("\r\n40\t"), std::string::npos);
}

TEST_F(PositionFileTest, TextCopyInMilKeepsTheHeadingInMm) {
  formpos.messungLoeschen();
  formpos.Info().RestMP = -1;
  formpos.Info().Filter = "4";
  formpos.Info().Datum = "--.--- ---- / --:--:--";
  // 1 mm is 39.3701 mil; the record holds mil and no unit.
  formpos.arbeit().X.Aktuell = 1 / 0.0254;
  formpos.arbeit().Y.Aktuell = -1 / 0.0254;
  formpos.punktHinzufuegen(45000.5);
  const std::string expected =
      "KORVIN-Messprotokoll:\t\r\nMesssystem:\t\r\nBezeichnung:\t\r\nPfad:\t\r\n"
      "Datum:\t--.--- ---- / --:--:--\r\nBediener:\t\r\nKommentar:\t\r\nAnzahl:\t-1-\r\nFilter:\t10s\r\n\r\n"
      "WIN-KORVIN, Version 5.55 / qk \r\n\r\nMesswerte: \r\nMP\tDatum/Zeit\tX[mm]\tY[mm]\r\n"
      "1\t15.03.2023 / 12:00:00\t39.3701\t-39.3701\r\n\r\n";
  EXPECT_EQ(positionTextCopy(formpos.Info(), formpos.punkte(), dictionary), expected);
}

TEST_F(PositionFileTest, UnknownLevelDropsItsLineAndEmptyValuesReadAsSuch) {
  measure(1);
  formpos.Info().Filter = "7";
  formpos.punkte().X().at(1) = Leerwert;
  const std::string copy = positionTextCopy(formpos.Info(), formpos.punkte(), dictionary);
  EXPECT_EQ(copy.find("Filter"), std::string::npos);
  EXPECT_NE(copy.find("\t?.?\t-0.0020\r\n"), std::string::npos);
}

TEST_F(PositionFileTest, TextCopyInAnotherScriptIsUtf8WithAByteOrderMark) {
  measure(1);
  dictionary.texts[3056] = "\u65E5\u4ED8";
  ASSERT_TRUE(files(system).o_AsciiDateiSpeichern(folder.path("copy")));
  const std::string copy = test::readFile(folder.path("copy"));
  EXPECT_TRUE(copy.starts_with("\xEF\xBB\xBF"));
  EXPECT_NE(copy.find("\u65E5\u4ED8:\t"), std::string::npos);
}

}  // namespace
}  // namespace korvin
