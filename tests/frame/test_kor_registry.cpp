#include "frame/kor_registry.h"

#include <gmock/gmock.h>

#include "support/test_ports.h"

namespace korvin {
namespace {

using test::MemorySettingsTree;
using testing::ElementsAre;

constexpr std::uint32_t Wurzel = HKEY_CURRENT_USER_Root;
constexpr std::uint32_t AndereWurzel = 0x80000002;
constexpr const char* Basis = R"(SOFTWARE\Vantro Systems AG\WIN-KORVIN)";
constexpr const char* KorInfo = R"(SOFTWARE\Vantro Systems AG\WIN-KORVIN\KorInfo)";

/// A tree that keeps the order of what is asked of it and fails where it is told to.
class RecordingTree : public MemorySettingsTree {
 public:
  Creation createKey(std::string_view path, std::string_view className) override {
    created.emplace_back(path);
    return path == failAt ? Creation::failed : MemorySettingsTree::createKey(path, className);
  }
  bool deleteKey(std::string_view path) override {
    deleted.emplace_back(path);
    return path != failAt && MemorySettingsTree::deleteKey(path);
  }
  bool writeValue(std::string_view path, std::string_view name, const RegWert& value) override {
    written.emplace_back(name);
    return name != failAt && MemorySettingsTree::writeValue(path, name, value);
  }
  bool inOneChange(const std::function<bool()>& steps) override {
    ++changes;
    return steps();
  }

  std::vector<std::string> created;
  std::vector<std::string> deleted;
  std::vector<std::string> written;
  std::string failAt;
  int changes = 0;
};

std::string section(const std::string& name) {
  return std::string(Basis) + "\\" + name;
}

std::string textAt(MemorySettingsTree& tree, const std::string& name) {
  const auto value = tree.readValue(KorInfo, name);
  return value && std::holds_alternative<std::string>(*value) ? std::get<std::string>(*value) : "missing";
}

TEST(KorRegistry, NumbersAndTextsComeBackAsTheyWereWritten) {
  MemorySettingsTree tree;
  KorRegistry registry(tree);
  ASSERT_TRUE(registry.RegSchluesselAnlegen(Wurzel, KorInfo, "AllgemeineDaten"));
  for (const RegWert& value : {RegWert("last character x"), RegWert(std::string()), RegWert(" "),
                               RegWert(std::int32_t{-2147483647 - 1}), RegWert(std::int32_t{555})}) {
    EXPECT_TRUE(registry.RegWertSchreiben(Wurzel, KorInfo, "Wert", value));
    RegWert read;
    EXPECT_TRUE(registry.RegWertLesen(Wurzel, KorInfo, "Wert", read));
    EXPECT_EQ(read, value);
  }
}

TEST(KorRegistry, OtherKindsAreNotWritten) {
  MemorySettingsTree tree;
  KorRegistry registry(tree);
  registry.RegSchluesselAnlegen(Wurzel, KorInfo, "");
  EXPECT_FALSE(registry.RegWertSchreiben(Wurzel, KorInfo, "Wert", std::monostate{}));
  RegWert read;
  EXPECT_FALSE(registry.RegWertLesen(Wurzel, KorInfo, "Wert", read));
}

TEST(KorRegistry, AStoredValueOfAnotherKindLeavesTheOutValueUntouched) {
  MemorySettingsTree tree;
  KorRegistry registry(tree);
  registry.RegSchluesselAnlegen(Wurzel, KorInfo, "");
  tree.writeValue(KorInfo, "Bild", std::monostate{});
  RegWert read = "before";
  EXPECT_TRUE(registry.RegWertLesen(Wurzel, KorInfo, "Bild", read));
  EXPECT_EQ(read, RegWert("before"));
}

TEST(KorRegistry, AKeyIsMadeOnlyOnce) {
  MemorySettingsTree tree;
  KorRegistry registry(tree);
  EXPECT_FALSE(registry.RegSchluesselDa(Wurzel, KorInfo));
  EXPECT_TRUE(registry.RegSchluesselAnlegen(Wurzel, KorInfo, "AllgemeineDaten"));
  EXPECT_TRUE(registry.RegSchluesselDa(Wurzel, KorInfo));
  EXPECT_FALSE(registry.RegSchluesselAnlegen(Wurzel, KorInfo, "Anders"));
  EXPECT_EQ(tree.keys.at(R"(software\vantro systems ag\win-korvin\korinfo)").className, "AllgemeineDaten");
}

TEST(KorRegistry, UnderAnotherRootThereIsNothing) {
  MemorySettingsTree tree;
  KorRegistry registry(tree);
  registry.RegSchluesselAnlegen(Wurzel, KorInfo, "");
  registry.RegWertSchreiben(Wurzel, KorInfo, "Wert", "x");
  RegWert read;
  EXPECT_FALSE(registry.RegSchluesselDa(AndereWurzel, KorInfo));
  EXPECT_FALSE(registry.RegWertLesen(AndereWurzel, KorInfo, "Wert", read));
  EXPECT_FALSE(registry.RegWertSchreiben(AndereWurzel, KorInfo, "Wert", "y"));
  EXPECT_FALSE(registry.RegSchluesselAnlegen(AndereWurzel, section("Neu"), ""));
  EXPECT_FALSE(registry.RegSchluesselLoeschen(AndereWurzel, KorInfo));
  EXPECT_TRUE(registry.RegSchluesselDa(Wurzel, KorInfo));
}

TEST(KorRegistry, ANewTreeHasTheTwelveInitialValuesInTheirOrder) {
  RecordingTree tree;
  KorRegistry registry(tree);
  ASSERT_TRUE(registry.RegistryAnlegen("/opt/korvin"));
  EXPECT_THAT(tree.written,
              ElementsAre("Version", "PentaFehler", "NormInt_Laser", "MassArt", "FirmaName", "AsciiDatei",
                          "NKStellen", "BaudRate", "PortNr", "KameraID", "Sprache", "PfadMessFile"));
  std::vector<std::string> values;
  for (const std::string& name : tree.written) values.push_back(textAt(tree, name));
  EXPECT_THAT(values,
              ElementsAre("v555", "0", "0", "0", "", "-1", "2", "1", "1", "0", "1", "/opt/korvin/KorFiles/"));
}

TEST(KorRegistry, AProgramFolderWithASeparatorAtItsEndGetsNoSecondOne) {
  MemorySettingsTree tree;
  ASSERT_TRUE(KorRegistry(tree).RegistryAnlegen("/"));
  EXPECT_EQ(textAt(tree, "PfadMessFile"), "/KorFiles/");
}

TEST(KorRegistry, ANewTreeHasAllSectionsWithTheirClassesInTheirOrder) {
  RecordingTree tree;
  ASSERT_TRUE(KorRegistry(tree).RegistryAnlegen("/opt/korvin"));
  const std::vector<std::pair<std::string, std::string>> expected = {
      {"KorInfo", "AllgemeineDaten"},
      {"MessInfo_G", "GeradheitsmessungsDaten"},
      {"Toleranz_G", "GeradheitsmessungsDaten"},
      {"DruckInfo_G", "GeradheitsmessungsDaten"},
      {"MessInfo_O", "PositionsmessungsDaten"},
      {"DruckInfo_O", "PositionsmessungsDaten"},
      {"MessInfo_P", "ParallelmessungsDaten"},
      {"Bezugslinie_P", "ParallelmessungsDaten"},
      {"Messlinie_P", "ParallelmessungsDaten"},
      {"Toleranz_P", "ParallelmessungsDaten"},
      {"DruckInfo_P", "ParallelmessungsDaten"},
      {"MessInfo_R", "RechtwinkelmessungsDaten"},
      {"Bezugslinie_R", "RechtwinkelmessungsDaten"},
      {"Messlinie_R", "RechtwinkelmessungsDaten"},
      {"Toleranz_R", "RechtwinkelmessungsDaten"},
      {"DruckInfo_R", "RechtwinkelmessungsDaten"},
      {"ToleranzBezugslinie_P", "ParallelmessungsDaten"},
      {"ToleranzMesslinie_P", "ParallelmessungsDaten"},
      {"ToleranzParallel_P", "ParallelmessungsDaten"},
      {"ToleranzBezugslinie_R", "RechtwinkelmessungsDaten"},
      {"ToleranzMesslinie_R", "RechtwinkelmessungsDaten"},
      {"ToleranzParallel_R", "RechtwinkelmessungsDaten"},
  };
  ASSERT_EQ(tree.created.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_EQ(tree.created[i], section(expected[i].first));
    std::string path = tree.created[i];
    for (char& c : path) c = static_cast<char>(std::tolower(c));
    EXPECT_EQ(tree.keys.at(path).className, expected[i].second) << path;
  }
}

TEST(KorRegistry, OnlyKorInfoGetsValues) {
  MemorySettingsTree tree;
  ASSERT_TRUE(KorRegistry(tree).RegistryAnlegen("/opt/korvin"));
  for (const auto& [path, key] : tree.keys)
    EXPECT_EQ(key.values.empty(), !path.ends_with("\\korinfo")) << path;
}

TEST(KorRegistry, ASectionThatIsThereAlreadyStaysAsItIs) {
  MemorySettingsTree tree;
  tree.createKey(section("MessInfo_O"), "WIN-KORVIN");
  tree.writeValue(section("MessInfo_O"), "Filter", "4");
  ASSERT_TRUE(KorRegistry(tree).RegistryAnlegen("/opt/korvin"));
  EXPECT_EQ(tree.readValue(section("MessInfo_O"), "Filter"), RegWert("4"));
}

TEST(KorRegistry, CreationFailsWhereKorInfoIsThereAlready) {
  RecordingTree tree;
  tree.createKey(KorInfo, "AllgemeineDaten");
  tree.created.clear();
  EXPECT_FALSE(KorRegistry(tree).RegistryAnlegen("/opt/korvin"));
  EXPECT_TRUE(tree.written.empty());
}

TEST(KorRegistry, CreationFailsAtTheFirstValueOrSectionThatFails) {
  for (const std::string& place : {std::string("PfadMessFile"), section("ToleranzParallel_R")}) {
    RecordingTree tree;
    tree.failAt = place;
    EXPECT_FALSE(KorRegistry(tree).RegistryAnlegen("/opt/korvin")) << place;
  }
}

TEST(KorRegistry, MakingAndDeletingTheTreeIsOneChangeEach) {
  RecordingTree tree;
  KorRegistry registry(tree);
  registry.RegistryAnlegen("/opt/korvin");
  EXPECT_EQ(tree.changes, 1);
  registry.RegistryLoeschen();
  EXPECT_EQ(tree.changes, 2);
}

TEST(KorRegistry, DeletingTakesTheTreeAndTheKeyAboveIt) {
  MemorySettingsTree tree;
  KorRegistry registry(tree);
  registry.RegistryAnlegen("/opt/korvin");
  EXPECT_TRUE(registry.RegistryLoeschen());
  EXPECT_FALSE(tree.keyExists(Basis));
  EXPECT_FALSE(tree.keyExists(R"(SOFTWARE\Vantro Systems AG)"));
  EXPECT_TRUE(tree.keyExists("SOFTWARE"));
}

TEST(KorRegistry, DeletingLeavesTheKeyAboveToOtherPrograms) {
  MemorySettingsTree tree;
  KorRegistry registry(tree);
  registry.RegistryAnlegen("/opt/korvin");
  tree.createKey(R"(SOFTWARE\Vantro Systems AG\Other)", "");
  EXPECT_TRUE(registry.RegistryLoeschen());
  EXPECT_FALSE(tree.keyExists(Basis));
  EXPECT_TRUE(tree.keyExists(R"(SOFTWARE\Vantro Systems AG\Other)"));
}

TEST(KorRegistry, DeletingPassesOverMissingSections) {
  MemorySettingsTree tree;
  tree.createKey(section("DruckInfo_O"), "");
  EXPECT_TRUE(KorRegistry(tree).RegistryLoeschen());
  EXPECT_FALSE(tree.keyExists(Basis));
}

TEST(KorRegistry, DeletingStopsAtTheFirstFailureAndTheRestStays) {
  RecordingTree tree;
  KorRegistry registry(tree);
  registry.RegistryAnlegen("/opt/korvin");
  tree.failAt = section("DruckInfo_O");
  EXPECT_FALSE(registry.RegistryLoeschen());
  EXPECT_FALSE(tree.keyExists(KorInfo));
  EXPECT_FALSE(tree.keyExists(section("MessInfo_O")));
  EXPECT_TRUE(tree.keyExists(section("DruckInfo_O")));
  EXPECT_TRUE(tree.keyExists(section("MessInfo_P")));
}

TEST(KorRegistry, ABaseKeyThatCannotBeDeletedIsAFailure) {
  MemorySettingsTree tree;
  KorRegistry registry(tree);
  registry.RegistryAnlegen("/opt/korvin");
  tree.createKey(section("Fremd"), "");
  EXPECT_FALSE(registry.RegistryLoeschen());
}

}  // namespace
}  // namespace korvin
