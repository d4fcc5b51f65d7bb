// The search for the head, with the real serial control and the virtual head as a process.
#include <gtest/gtest.h>

#include <optional>
#include <utility>

#include "frame/profil.h"
#include "frame/sqlite_settings_tree.h"
#include "link/scan_rs.h"
#include "system/link_stand.h"

namespace korvin {
namespace {

class Bar : public SuchAnsicht {
 public:
  void beginne(int, int, int wert) override { value = wert; }
  void setWert(int wert) override { value = wert; }
  int value = -1;
};

/// One start of the program: everything but the settings file and the ports is new.
struct Start {
  explicit Start(const std::filesystem::path& configHome, QtMSComm::PortFinder finder)
      : tree(configHome / "korvin" / "settings.db"), port(std::move(finder)) {
    KorRegistry(tree).RegistryAnlegen("/nowhere");
  }

  bool search() {
    SuchUmgebung surroundings{clock, pump, profil, korCom, port, answer};
    return ScanRS(surroundings, bar);
  }

  SystemClock clock;
  QtEventPump pump;
  QtRandomSource random;
  test::TestMessages messages;
  SqliteSettingsTree tree;
  Profil profil{tree};
  KorCom korCom{clock, pump, random, messages};
  KameraAntwort answer;
  test::WatchedPort port;
  Bar bar;
};

class Search : public ::testing::Test {
 protected:
  Start& newStart() { return start.emplace(stand.home.path(), stand.finder()); }

  SystemClock clock;
  test::LinkStand stand{clock};
  std::optional<Start> start;
};

TEST_F(Search, AnOlderHeadOnPort7IsFoundAndRememberedAndFoundAtOnceByTheNextStart) {
  auto head = stand.startHead(7, {"--baud", "19200", "--modulus", "95"});
  Start& first = newStart();
  ASSERT_TRUE(first.search());
  EXPECT_FALSE(first.port.PortOpen());
  EXPECT_EQ(first.profil.wert(einstellung::ScanRS::PortNr), "7");
  EXPECT_EQ(first.profil.wert(einstellung::ScanRS::BaudRate), "0");
  EXPECT_EQ(first.bar.value, 16 + 7);
  EXPECT_EQ(first.port.opened, (std::vector<std::int16_t>{7, 7})) << "at 115200, then at 19200";

  Start& second = newStart();
  ASSERT_TRUE(second.search());
  EXPECT_EQ(second.port.opened, std::vector<std::int16_t>{7});
  EXPECT_EQ(second.bar.value, 1) << "no port was searched";
  EXPECT_EQ(second.port.questions, 2);
  EXPECT_EQ(second.profil.wert(einstellung::ScanRS::PortNr), "7");
  EXPECT_EQ(second.profil.wert(einstellung::ScanRS::BaudRate), "0");

  const auto counted = head.end();
  EXPECT_EQ(counted.at("requests"), 2) << "one each, with the modulus of this head";
  EXPECT_EQ(counted.at("wrong-check-heard"), 2) << "the other modulus, tried first after each opening";
  EXPECT_EQ(counted.at("wrong-speed"), 3 * 17) << "three attempts at the other speed";
}

TEST_F(Search, TheFirstTransactionWithAnOlderHeadTakesTwoAttemptsLaterOnesOne) {
  auto head = stand.startHead(7, {"--baud", "19200", "--modulus", "95", "--time-scale", "0"});
  ASSERT_TRUE(stand.korCom.ComOeffnen(stand.port, 7, Settings19200, "0", stand.answer));
  std::vector<long> attempts;
  for (int i = 0; i < 20; ++i) {
    const long before = stand.port.questions;
    ASSERT_TRUE(stand.korCom.KameraAbfrage(stand.port, "02--J", PollLimit, stand.answer, true));
    attempts.push_back(stand.port.questions - before);
  }
  std::vector<long> expected(20, 1);
  expected.front() = 2;
  EXPECT_EQ(attempts, expected);
  const auto counted = head.end();
  EXPECT_EQ(counted.at("requests"), 20);
  EXPECT_EQ(counted.at("wrong-check-heard"), 1);
}

TEST_F(Search, ANewerHeadIsFoundInTheFirstPass) {
  auto head = stand.startHead(2);
  Start& first = newStart();
  ASSERT_TRUE(first.search());
  EXPECT_EQ(first.profil.wert(einstellung::ScanRS::PortNr), "2");
  EXPECT_EQ(first.profil.wert(einstellung::ScanRS::BaudRate), "1");
  EXPECT_EQ(first.bar.value, 2);
  EXPECT_EQ(head.end().at("requests"), 1);
}

TEST_F(Search, WithoutAHeadNothingIsStored) {
  auto head = stand.startHead(17);  // beyond the ports that are searched
  Start& first = newStart();
  const std::string before = first.profil.wert(einstellung::ScanRS::PortNr);
  EXPECT_FALSE(first.search());
  EXPECT_EQ(first.profil.wert(einstellung::ScanRS::PortNr), before);
  EXPECT_EQ(first.bar.value, 32);
  EXPECT_EQ(first.port.opened, std::vector<std::int16_t>{});
  EXPECT_EQ(head.end().at("requests"), 0);
}

}  // namespace
}  // namespace korvin
