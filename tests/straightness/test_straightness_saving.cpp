#include <filesystem>

#include "frame/leerwert.h"
#include "straightness/file_stand.h"
#include "support/child_process.h"
#include "support/save_trials.h"

namespace korvin {
namespace {

namespace fs = std::filesystem;

class StraightnessSavingTest : public StraightnessFileStand {
 protected:
  void wantTextCopy() { profil.ProfilSchreiben("", "KorInfo", "AsciiDatei", "-1"); }
};

TEST_F(StraightnessSavingTest, LoadAndSaveChangeOnlyWhatSavingChanges) {
  const std::string file = folder.copyOf("reference/six.G");
  const std::string before = test::readFile(file);
  ASSERT_TRUE(load(file));
  formgera.bildUebernehmen();
  series().Info.DateiStatus = 2;
  ASSERT_TRUE(save(file));
  const std::string after = test::readFile(file);
  const auto recordOf = [](const std::string& bytes) {
    return dump(fromBytes<GeradDatei>(test::bytesOf(bytes)));
  };
  const std::vector<FieldDump> wanted = recordOf(before);
  const std::vector<FieldDump> found = recordOf(after);
  std::vector<std::string> changed;
  for (std::size_t i = 0; i < wanted.size(); ++i) {
    if (found.at(i).text != wanted.at(i).text) changed.push_back(found.at(i).name);
  }
  EXPECT_EQ(changed, (std::vector<std::string>{"X.BereichAlt", "Y.BereichAlt", "Geaendert"}));
}

TEST_F(StraightnessSavingTest, BytesNoOneReadsComeBack) {
  std::string bytes = test::readFile(test::dataFile("reference/six.G"));
  // Kept words, the first z, readings behind the last point, and bytes of texts behind their blanks.
  for (const std::size_t at :
       {1636U, 1696U, 3454U, 3528U, 3532U, 3609U, 3993U, 4049U, 800U, 1722U + 800U, 3490U}) {
    bytes.at(at) = static_cast<char>(at * 7 + 1);
  }
  test::writeFile(folder.path("a.G"), bytes);
  ASSERT_TRUE(load(folder.path("a.G")));
  image().Info.Geaendert = true;
  series() = image();
  ASSERT_TRUE(save(folder.path("a.G")));
  EXPECT_EQ(test::readFile(folder.path("a.G")), bytes);
}

TEST_F(StraightnessSavingTest, TakesTheSeriesAndLeavesIt) {
  measure(6);
  image() = seriesOf(3);
  const auto before = toBytes(series());
  ASSERT_TRUE(save(folder.path("a.G")));
  EXPECT_EQ(toBytes(image()), before);
  EXPECT_EQ(toBytes(series()), before);
  EXPECT_EQ(test::readFile(folder.path("a.G")), test::textOf(before));
}

TEST_F(StraightnessSavingTest, ReadingsAreInMmInEverySystemOfUnits) {
  measure(6);
  ASSERT_TRUE(save(folder.path("metric.G")));
  system.Masssystem = 1;
  ASSERT_TRUE(save(folder.path("inch.G")));
  EXPECT_EQ(test::readFile(folder.path("inch.G")), test::readFile(folder.path("metric.G")));
}

TEST_F(StraightnessSavingTest, AConvertedFileIsSavedInThePresentForm) {
  const std::string file = folder.copyOf("reference/old.G");
  answer(MessageAnswer::yes);
  ASSERT_TRUE(load(file));
  formgera.bildUebernehmen();
  ASSERT_TRUE(save(file));
  EXPECT_EQ(fs::file_size(file), 5643U);
  messages.shown.clear();
  EXPECT_TRUE(load(file));
  EXPECT_TRUE(messages.shown.empty());
  EXPECT_EQ(image().X.Wert.at(21), -0.3327);
}

TEST_F(StraightnessSavingTest, BlanksBehindTheNameAreCut) {
  measure(2);
  wantTextCopy();
  ASSERT_TRUE(save(folder.path("a.G") + "   "));
  EXPECT_EQ(folder.names(), (std::vector<std::string>{"a.G", "a.G$"}));
}

TEST_F(StraightnessSavingTest, SettingDecidesAboutTheTextCopyNotTheRecord) {
  measure(2);
  series().Info.AsciiDatei = true;
  ASSERT_TRUE(save(folder.path("a.G")));
  EXPECT_EQ(folder.names(), std::vector<std::string>{"a.G"});
  series().Info.AsciiDatei = false;
  wantTextCopy();
  ASSERT_TRUE(save(folder.path("a.G")));
  EXPECT_EQ(folder.names(), (std::vector<std::string>{"a.G", "a.G$"}));
}

TEST_F(StraightnessSavingTest, TextCopyIsReplacedEachTime) {
  wantTextCopy();
  measure(200);
  ASSERT_TRUE(save(folder.path("a.G")));
  const std::string longer = test::readFile(folder.path("a.G$"));
  measure(2);
  ASSERT_TRUE(save(folder.path("a.G")));
  const std::string copy = test::readFile(folder.path("a.G$"));
  EXPECT_LT(copy.size(), longer.size());
  EXPECT_TRUE(copy.ends_with("2\t100.0\t0.0020\t-0.0040\r\n\r\n")) << copy;
}

TEST_F(StraightnessSavingTest, TextCopyIsInTheSystemOfUnits) {
  wantTextCopy();
  measure(2);
  for (const std::int16_t unit : {std::int16_t{0}, std::int16_t{1}}) {
    system.Masssystem = unit;
    ASSERT_TRUE(save(folder.path("a.G")));
    const std::string heading = unit == 0 ? "\tX[mm]\t" : "\tX[mil]\t";
    EXPECT_NE(test::readFile(folder.path("a.G$")).find(heading), std::string::npos);
  }
}

TEST_F(StraightnessSavingTest, FailedTextCopyMakesTheResultFalseButTheSeriesIsSaved) {
  measure(3);
  wantTextCopy();
  fs::create_directory(folder.path("a.G$"));
  EXPECT_FALSE(save(folder.path("a.G")));
  EXPECT_EQ(onlyMessage().title.find("D1100 (g_AsciiDateiSpeichern): "), 0U);
  EXPECT_EQ(messages.beeps, 1);
  EXPECT_TRUE(load(folder.path("a.G")));
}

TEST_F(StraightnessSavingTest, PathThatDoesNotFitTheRecordIsRefused) {
  measure(3);
  const std::string name = "/" + std::string(74, 'x');
  EXPECT_FALSE(save(name + "y"));
  EXPECT_EQ(onlyMessage().title, "D1100 (g_DateiSpeichern): 0");
  EXPECT_EQ(onlyMessage().text, "D7300\r\nFile: " + name + "y");
  messages.shown.clear();
  EXPECT_FALSE(save(folder.path("\u4F4D.G")));
  EXPECT_EQ(onlyMessage().text.find("D7301"), 0U);
  EXPECT_TRUE(folder.names().empty());
}

TEST_F(StraightnessSavingTest, FolderWithoutRightsIsToldAndNothingIsLost) {
  measure(3);
  ASSERT_TRUE(save(folder.path("a.G")));
  const std::string before = test::readFile(folder.path("a.G"));
  fs::permissions(folder.path(), fs::perms::owner_read | fs::perms::owner_exec | fs::perms::others_read |
                                     fs::perms::others_exec);
  EXPECT_TRUE(test::inChildWithoutRights([&] {
    measure(5);
    const bool saved = save(folder.path("a.G"));
    return !saved && messages.shown.size() == 1 &&
           messages.shown[0].title.starts_with("D1100 (g_DateiSpeichern): ") &&
           messages.shown[0].text.find("D7311") != std::string::npos &&
           messages.shown[0].text.find("D7320") != std::string::npos && messages.beeps == 1;
  }));
  EXPECT_EQ(test::readFile(folder.path("a.G")), before);
}

TEST_F(StraightnessSavingTest, EachFailingCallIsToldAndLeavesAWholeFile) {
  wantTextCopy();
  test::FaultyFileSystem counting;
  measure(40);
  ASSERT_TRUE(files(counting).g_DateiSpeichern(folder.path("count.G")));
  test::withEachCallFailing(counting.calls, [this](test::FaultyFileSystem& faulty) {
    const std::string file = folder.path("a.G");
    measure(3);
    ASSERT_TRUE(save(file));
    measure(40);
    const auto before = toBytes(series());
    messages.shown.clear();
    const bool saved = files(faulty).g_DateiSpeichern(file);
    EXPECT_EQ(saved, messages.shown.empty());
    EXPECT_EQ(toBytes(series()), before) << "the series in work is unharmed";
    ASSERT_TRUE(load(file));
    const auto points = image().X.Wert.anzahl();
    EXPECT_TRUE(points == 40U || (points == 3U && !saved));
  });
}

TEST_F(StraightnessSavingTest, ShortWritesLeaveNothingOut) {
  test::FaultyFileSystem slow;
  slow.mostPerWrite = 7;
  measure(201);
  ASSERT_TRUE(files(slow).g_DateiSpeichern(folder.path("a.G")));
  EXPECT_EQ(test::readFile(folder.path("a.G")), test::textOf(toBytes(series())));
}

TEST_F(StraightnessSavingTest, SavesAndLoadsThroughTheSystemItself) {
  PosixFileSystem real;
  measure(7);
  ASSERT_TRUE(files(real).g_DateiSpeichern(folder.path("a.G")));
  ASSERT_TRUE(files(real).g_DateiLaden(folder.path("a.G")));
  EXPECT_EQ(image().X.Wert.anzahl(), 7U);
  EXPECT_EQ(folder.names(), std::vector<std::string>{"a.G"});
}

TEST_F(StraightnessSavingTest, ManyKillsLeaveAWholeFile) {
  const std::string file = folder.path("a.G");
  measure(2);
  ASSERT_TRUE(save(file));
  test::killWhileSaving(
      200,
      [&](int generation) {
        measure(static_cast<std::int16_t>(2 + generation % 200));
        save(file);
      },
      [&] {
        return load(file) && image().X.Wert.anzahl() == static_cast<std::size_t>(image().Linie.AnzMPs);
      });
}

}  // namespace
}  // namespace korvin
