#include "frame/profil.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

#include "support/test_ports.h"

namespace korvin {
namespace {

using test::MemorySettingsTree;

class ProfilTest : public testing::Test {
 protected:
  void store(const std::string& section, const std::string& key, const RegWert& value) {
    tree.createKey(RegSektionPfad(section), "test");
    tree.writeValue(RegSektionPfad(section), key, value);
  }
  std::string className(const std::string& section) {
    std::string path = RegSektionPfad(section);
    for (char& c : path) c = static_cast<char>(std::tolower(c));
    return tree.keys.at(path).className;
  }

  MemorySettingsTree tree;
  Profil profil{tree};
};

TEST_F(ProfilTest, BlanksAroundAValueAreTrimmed) {
  store("KorInfo", "FirmaName", "   Muster  AG ");
  EXPECT_EQ(profil.wert("KorInfo", "FirmaName", "?"), "Muster  AG");
  store("KorInfo", "FirmaName", "    ");
  EXPECT_EQ(profil.wert("KorInfo", "FirmaName", "?"), "");
}

TEST_F(ProfilTest, OnlyBlanksAreTrimmed) {
  store("KorInfo", "FirmaName", "\tA\n");
  EXPECT_EQ(profil.wert("KorInfo", "FirmaName", "?"), "\tA\n");
}

TEST_F(ProfilTest, AMissingSectionGivesTheDefaultAsItStands) {
  EXPECT_EQ(profil.wert("MessInfo_O", "Filter", " 2 "), " 2 ");
}

TEST_F(ProfilTest, AMissingKeyGivesTheDefault) {
  store("MessInfo_O", "Montage", "1");
  EXPECT_EQ(profil.wert("MessInfo_O", "Filter", "2"), "2");
}

TEST_F(ProfilTest, AnEmptyValueIsNotAMissingOne) {
  store("MessInfo_O", "Bezeichnung", "");
  EXPECT_EQ(profil.wert("MessInfo_O", "Bezeichnung", "?"), "");
}

TEST_F(ProfilTest, AStoredNumberComesAsText) {
  store("KorInfo", "PortNr", std::int32_t{-7});
  EXPECT_EQ(profil.wert("KorInfo", "PortNr", "1"), "-7");
}

TEST_F(ProfilTest, AValueOfAnotherKindGivesTheDefault) {
  store("KorInfo", "PortNr", std::monostate{});
  EXPECT_EQ(profil.wert("KorInfo", "PortNr", "1"), "1");
}

TEST_F(ProfilTest, KeysAreFoundWithoutRegardToCase) {
  profil.ProfilSchreiben(KorvinIni, "MessInfo_O", "SFAK", "5");
  EXPECT_EQ(profil.wert("messinfo_o", "SFak", "1"), "5");
}

TEST_F(ProfilTest, WritingIntoAMissingSectionMakesIt) {
  profil.ProfilSchreiben(KorvinIni, "MessInfo_O", "Filter", "3");
  EXPECT_EQ(profil.wert("MessInfo_O", "Filter", "2"), "3");
  EXPECT_EQ(className("MessInfo_O"), "WIN-KORVIN");
}

TEST_F(ProfilTest, WritingIntoASectionThatIsThereKeepsItsClass) {
  store("MessInfo_O", "Montage", "1");
  profil.ProfilSchreiben(KorvinIni, "MessInfo_O", "Filter", "3");
  EXPECT_EQ(className("MessInfo_O"), "test");
  EXPECT_EQ(profil.wert("MessInfo_O", "Montage", "0"), "1");
}

TEST_F(ProfilTest, AFailedWriteIsSilent) {
  tree.writable = false;
  profil.ProfilSchreiben(KorvinIni, "MessInfo_O", "Filter", "3");
  EXPECT_EQ(profil.wert("MessInfo_O", "Filter", "2"), "2");
}

TEST_F(ProfilTest, NothingIsCached) {
  store("KorInfo", "Sprache", "1");
  EXPECT_EQ(profil.wert(einstellung::Hauptfenster::Sprache), "1");
  tree.writeValue(RegSektionPfad("KorInfo"), "Sprache", "5");
  EXPECT_EQ(profil.wert(einstellung::Hauptfenster::Sprache), "5");
}

TEST_F(ProfilTest, TheFileIsIgnored) {
  const auto folder = std::filesystem::temp_directory_path() / ("korvin-profil-" + std::to_string(getpid()));
  std::filesystem::create_directory(folder);
  const std::string file = folder / "Korvin.ini";
  profil.ProfilSchreiben(file, "KorInfo", "PortNr", "4");
  std::string value;
  profil.ProfilLesen("another.ini", "KorInfo", "PortNr", "1", value);
  EXPECT_EQ(value, "4");
  EXPECT_TRUE(std::filesystem::is_empty(folder));
  std::filesystem::remove(folder);
}

TEST_F(ProfilTest, ReadersOfOneKeyKeepTheirOwnDefaults) {
  EXPECT_EQ(profil.wert(einstellung::FormPosition::NKStellen), "3");
  EXPECT_EQ(profil.wert(einstellung::FormPosition::AsciiDatei), "0");
  EXPECT_EQ(profil.wert(einstellung::ScanRS::PortNr), "");
  EXPECT_EQ(profil.wert(einstellung::Verbindung::PortNr), "1");
  ASSERT_TRUE(KorRegistry(tree).RegistryAnlegen("/p"));
  EXPECT_EQ(profil.wert(einstellung::FormPosition::NKStellen), "2");
  EXPECT_EQ(profil.wert(einstellung::FormPosition::AsciiDatei), "-1");
}

}  // namespace
}  // namespace korvin
