#include "link/scan_rs.h"

#include <gtest/gtest.h>

#include <vector>

#include "support/recording_view.h"

namespace korvin {
namespace {

class RecordingBar : public SuchAnsicht {
 public:
  void beginne(int lowest, int highest, int value) override { limits = {lowest, highest, value}; }
  void setWert(int value) override { values.push_back(value); }

  std::vector<int> limits;
  std::vector<int> values;
};

class ScanTest : public ::testing::Test {
 protected:
  ScanTest() { world.head.delay = 0.02; }
  bool scan() {
    SuchUmgebung surroundings{world.clock, world.clock, world.profil, world.korCom, world.head, world.answer};
    return ScanRS(surroundings, bar);
  }
  void store(const char* port, const char* rate) {
    world.profil.ProfilSchreiben("", "KorInfo", "PortNr", port);
    world.profil.ProfilSchreiben("", "KorInfo", "BaudRate", rate);
  }
  std::string stored(const char* key) { return world.profil.wert("KorInfo", key, ""); }
  /// Only ports 1 to `last` exist.
  void portsUpTo(std::int16_t last) {
    world.head.openErrorOfPort = [last](std::int16_t port) {
      return port >= 1 && port <= last ? 0 : CommPortFehlt;
    };
  }

  test::CycleWorld world;
  RecordingBar bar;
};

TEST_F(ScanTest, StoredPortIsTriedFirstAndNothingElseIsTouched) {
  store("3", "1");
  world.head.onlyPort = 3;
  EXPECT_TRUE(scan());
  EXPECT_EQ(world.head.opened, std::vector<std::int16_t>{3});
  EXPECT_FALSE(world.head.PortOpen());
  EXPECT_EQ(world.head.sent.front().substr(10, 5), "00--J");
}

TEST_F(ScanTest, StoredPortAboveSixteenIsTriedToo) {
  store("20", "1");
  world.head.onlyPort = 20;
  EXPECT_TRUE(scan());
  EXPECT_EQ(stored("PortNr"), "20");
}

TEST_F(ScanTest, HeadOnPort20IsNotFoundBySearching) {
  store("1", "1");
  portsUpTo(0);
  world.head.onlyPort = 20;
  EXPECT_FALSE(scan());
  for (const std::int16_t port : world.head.opened) EXPECT_LE(port, 16);
}

TEST_F(ScanTest, SlowHeadOnPort7OfTheOldModulusIsFoundAndStored) {
  store("1", "1");
  world.head.onlyPort = 7;
  world.head.speed = Settings19200;
  world.head.modulus = 95;
  EXPECT_TRUE(scan());
  EXPECT_EQ(stored("PortNr"), "7");
  EXPECT_EQ(stored("BaudRate"), "0");
  EXPECT_EQ(bar.values.back(), 16 + 7);
  EXPECT_FALSE(world.head.PortOpen());
  world.head.opened.clear();
  EXPECT_TRUE(scan());
  EXPECT_EQ(world.head.opened, std::vector<std::int16_t>{7});
}

TEST_F(ScanTest, FastPassComesWhollyBeforeTheSlowOne) {
  store("1", "1");
  world.head.onlyPort = 1;
  world.head.speed = Settings19200;
  EXPECT_TRUE(scan());
  // The stored values, all sixteen ports at 115200, then port 1 at 19200.
  EXPECT_EQ(world.head.opened.size(), 18U);
  EXPECT_EQ(world.head.openedSettings.back(), Settings19200);
}

TEST_F(ScanTest, MissingPortsFailAtOnceAndNothingIsStored) {
  store("2", "0");
  portsUpTo(0);
  EXPECT_FALSE(scan());
  EXPECT_NEAR(world.clock.elapsed(), 32 * 0.05, 0.1);
  EXPECT_EQ(stored("PortNr"), "2");
  EXPECT_EQ(stored("BaudRate"), "0");
  EXPECT_EQ(bar.limits, (std::vector<int>{0, 32, 1}));
  ASSERT_EQ(bar.values.size(), 32U);
  for (int i = 0; i < 32; ++i) EXPECT_EQ(bar.values[static_cast<std::size_t>(i)], i + 1);
}

TEST_F(ScanTest, SilentPortsTakeThreeAttemptsEach) {
  store("1", "1");
  world.head.behaviour = [](char) { return std::string{}; };
  portsUpTo(2);
  EXPECT_FALSE(scan());
  // Stored, two ports in each of two passes: five times three attempts of half a second, and the pauses.
  EXPECT_NEAR(world.clock.elapsed(), 5 * 1.5 + 32 * 0.05, 0.3);
}

TEST_F(ScanTest, StoredNumberBeyondSixteenBitsIsNoOtherPort) {
  store("65539", "1");
  world.head.onlyPort = 3;
  EXPECT_TRUE(scan());
  EXPECT_NE(world.head.opened.front(), 3);
  EXPECT_EQ(stored("PortNr"), "3");
}

TEST_F(ScanTest, SearchOvertakenByMidnightGoesOn) {
  store("1", "1");
  portsUpTo(2);
  world.clock.setNow(45000 + 86399.0 / 86400.0);
  world.head.behaviour = [](char) { return std::string{}; };
  EXPECT_FALSE(scan());
  EXPECT_LT(world.clock.elapsed(), 60);
}

TEST_F(ScanTest, MissingSettingsCountAsZero) {
  world.head.onlyPort = 1;
  EXPECT_TRUE(scan());
  EXPECT_EQ(world.head.opened.front(), 0);
  EXPECT_EQ(world.head.openedSettings.front(), Settings19200);
  EXPECT_EQ(stored("PortNr"), "1");
  EXPECT_EQ(stored("BaudRate"), "1");
}

}  // namespace
}  // namespace korvin
