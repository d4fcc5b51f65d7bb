#include "frame/folders.h"

#include <gtest/gtest.h>

#include "support/child_process.h"
#include "support/temp_folder.h"

namespace korvin {
namespace {

namespace fs = std::filesystem;
using test::fileBytes;
using test::TempFolder;
using test::writeBytes;

FolderEnvironment installed() {
  FolderEnvironment environment;
  environment.executableFolder = "/usr/bin";
  environment.home = "/home/user";
  return environment;
}

TEST(Folders, TheProgramsFolderIsTheExecutablesIfItCanBeWritten) {
  FolderEnvironment environment = installed();
  environment.executableFolderWritable = true;
  environment.xdgDataHome = "/data";
  EXPECT_EQ(chooseFolders(environment).program, "/usr/bin");
}

TEST(Folders, ElseItLiesInTheUsersData) {
  FolderEnvironment environment = installed();
  EXPECT_EQ(chooseFolders(environment).program, "/home/user/.local/share/korvin");
  environment.xdgDataHome = "/data";
  EXPECT_EQ(chooseFolders(environment).program, "/data/korvin");
}

TEST(Folders, TheConfigurationIsTheUsersInAnyCase) {
  FolderEnvironment environment = installed();
  environment.executableFolderWritable = true;
  EXPECT_EQ(chooseFolders(environment).config, "/home/user/.config/korvin");
  environment.xdgConfigHome = "/conf";
  const Folders folders = chooseFolders(environment);
  EXPECT_EQ(folders.config, "/conf/korvin");
  EXPECT_EQ(folders.settingsFile(), "/conf/korvin/settings.db");
  EXPECT_EQ(folders.ports(), "/conf/korvin/ports");
}

TEST(Folders, ARelativePathInTheEnvironmentCountsAsNotSet) {
  FolderEnvironment environment = installed();
  environment.xdgDataHome = "data";
  environment.xdgConfigHome = "../conf";
  EXPECT_EQ(chooseFolders(environment).program, "/home/user/.local/share/korvin");
  EXPECT_EQ(chooseFolders(environment).config, "/home/user/.config/korvin");
}

TEST(Folders, WithoutAHomeTheExecutablesFolderStandsIn) {
  FolderEnvironment environment = installed();
  environment.home.clear();
  EXPECT_EQ(chooseFolders(environment).config, "/usr/bin/korvin");
}

TEST(Folders, TheEnvironmentIsThatOfTheProcess) {
  EXPECT_TRUE(test::inChild([] {
    setenv("HOME", "/h", 1);
    setenv("XDG_DATA_HOME", "/d", 1);
    setenv("XDG_CONFIG_HOME", "/c", 1);
    const FolderEnvironment environment = folderEnvironment();
    return environment.home == "/h" && environment.xdgDataHome == "/d" && environment.xdgConfigHome == "/c" &&
           fs::exists(environment.executableFolder / "test_frame");
  }));
  EXPECT_TRUE(test::inChild([] {
    unsetenv("HOME");
    unsetenv("XDG_DATA_HOME");
    const FolderEnvironment environment = folderEnvironment();
    return environment.home.is_absolute() && environment.xdgDataHome.empty();
  }));
}

TEST(Folders, RightsDecideWhetherTheExecutablesFolderCanBeWritten) {
  const auto writable = [](const fs::path& folder) { return folderCanBeWritten(folder); };
  const TempFolder folder;
  EXPECT_TRUE(writable(folder.path()));
  EXPECT_FALSE(writable(folder / "missing"));
  fs::permissions(folder.path(), fs::perms::owner_read | fs::perms::owner_exec | fs::perms::others_read |
                                     fs::perms::others_exec);
  EXPECT_TRUE(test::inChildWithoutRights([&] { return !writable(folder.path()); }));
  fs::permissions(folder.path(), fs::perms::owner_all);
}

class ShippedFile : public testing::Test {
 protected:
  ShippedFile() {
    environment.executableFolder = folder / "bin";
    folders.program = folder / "data" / "korvin";
    fs::create_directory(environment.executableFolder);
    writeBytes(shipped, "shipped");
  }
  void bring() { bringShippedFile(environment, folders, "korvin.mdb"); }

  TempFolder folder;
  FolderEnvironment environment;
  Folders folders;
  fs::path shipped = folder / "bin" / "korvin.mdb";
  fs::path copy = folder / "data" / "korvin" / "korvin.mdb";
};

TEST_F(ShippedFile, IsBroughtWhereItIsMissing) {
  bring();
  EXPECT_EQ(fileBytes(copy), "shipped");
  EXPECT_EQ(fileBytes(shipped), "shipped");
}

TEST_F(ShippedFile, ReplacesAnOlderOneOnly) {
  bring();
  writeBytes(copy, "the user's own");
  fs::last_write_time(copy, fs::last_write_time(shipped) + std::chrono::hours{1});
  bring();
  EXPECT_EQ(fileBytes(copy), "the user's own");
  fs::last_write_time(copy, fs::last_write_time(shipped) - std::chrono::hours{1});
  bring();
  EXPECT_EQ(fileBytes(copy), "shipped");
}

TEST_F(ShippedFile, LeavesNothingBehindWhereItCannotBeBrought) {
  fs::create_directories(copy / "a folder of that name");
  fs::last_write_time(copy, fs::last_write_time(shipped) - std::chrono::hours{1});
  bring();
  EXPECT_TRUE(fs::is_directory(copy));
  EXPECT_EQ(std::distance(fs::directory_iterator(folders.program), fs::directory_iterator()), 1);
}

TEST_F(ShippedFile, AMissingOneChangesNothing) {
  fs::remove(shipped);
  bring();
  EXPECT_FALSE(fs::exists(copy));
}

TEST_F(ShippedFile, StaysWhereItIsIfTheProgramsFolderIsTheExecutables) {
  folders.program = environment.executableFolder;
  bring();
  EXPECT_EQ(std::distance(fs::directory_iterator(folders.program), fs::directory_iterator()), 1);
}

}  // namespace
}  // namespace korvin
