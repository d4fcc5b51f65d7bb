#include "korvin-head/port_link.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <stdlib.h>

#include <filesystem>
#include <fstream>
#include <string>

#include "support/temp_folder.h"

namespace fs = std::filesystem;

namespace korvin::head {
namespace {

using ::testing::HasSubstr;

class PortLinkTest : public ::testing::Test {
 protected:
  std::string complaint() const {
    try {
      PortLink link(path);
    } catch (const LinkError& error) {
      return error.what();
    }
    return "none";
  }
  void standsAlready(const std::string& target) const {
    fs::create_directories(fs::path(path).parent_path());
    fs::create_symlink(target, path);
  }

  const test::TempFolder own;
  const fs::path folder = own.path();
  std::string path = (folder / "ports" / "com7").string();
};

TEST_F(PortLinkTest, FolderFollowsTheConfigurationFolder) {
  EXPECT_EQ(portsFolder("/c", "/home/u"), "/c/korvin/ports");
  EXPECT_EQ(portsFolder(nullptr, "/home/u"), "/home/u/.config/korvin/ports");
  EXPECT_EQ(portsFolder("", "/home/u"), "/home/u/.config/korvin/ports");
  EXPECT_EQ(portsFolder("relative", "/home/u"), "/home/u/.config/korvin/ports");
  EXPECT_EQ(portsFolder(nullptr, nullptr), "");
}

TEST_F(PortLinkTest, ComesAndGoesWithItsHead) {
  {
    PortLink link(path);
    EXPECT_FALSE(fs::is_symlink(path));
    link.place("/dev/pts/7");
    EXPECT_EQ(fs::read_symlink(path), "/dev/pts/7");
    link.place("/dev/pts/8");
    EXPECT_EQ(fs::read_symlink(path), "/dev/pts/8");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder / "ports"), fs::directory_iterator()), 1);
  }
  EXPECT_FALSE(fs::is_symlink(path));
}

TEST_F(PortLinkTest, LeavesALinkThatIsNoLongerItsOwn) {
  {
    PortLink link(path);
    link.place("/dev/pts/7");
    fs::remove(path);
    fs::create_symlink("/dev/ttyUSB0", path);
  }
  EXPECT_EQ(fs::read_symlink(path), "/dev/ttyUSB0");
}

TEST_F(PortLinkTest, TakesOverWhatLeadsNowhereOrWasLeftByAHead) {
  standsAlready((folder / "gone").string());
  EXPECT_EQ(complaint(), "none");
  fs::remove(path);
  standsAlready("/dev/pts/ptmx");  // a name there that exists on every machine
  EXPECT_EQ(complaint(), "none");
}

TEST_F(PortLinkTest, NeverTakesThePlaceOfADeviceOfTheUser) {
  standsAlready("/dev/null");
  EXPECT_THAT(complaint(), HasSubstr("leads to /dev/null"));
  EXPECT_EQ(fs::read_symlink(path), "/dev/null");
}

TEST_F(PortLinkTest, NeverTakesThePlaceOfAFile) {
  fs::create_directories(folder / "ports");
  std::ofstream(path) << "mine";
  EXPECT_THAT(complaint(), HasSubstr("is no link"));
  EXPECT_TRUE(fs::is_regular_file(path));
}

TEST_F(PortLinkTest, TwoHeadsDoNotShareAPort) {
  PortLink first(path);
  EXPECT_THAT(complaint(), HasSubstr("another virtual head serves " + path));
  path = (folder / "ports" / "com8").string();
  EXPECT_EQ(complaint(), "none");
}

TEST_F(PortLinkTest, SaysWhenItsFolderCannotBeMade) {
  std::ofstream(folder / "ports") << "a file";
  EXPECT_THAT(complaint(), HasSubstr("cannot make the folder"));
}

}  // namespace
}  // namespace korvin::head
