#include "reports/druck_start.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <stdexcept>
#include <system_error>

#include "support/recording_drucker.h"
#include "support/test_ports.h"

namespace korvin {
namespace {

class DruckStartTest : public ::testing::Test {
 protected:
  bool start(std::function<void(Drucker&)> compose) {
    return DruckStart({"title", "file", std::move(compose)}, paper, {messages, meldung, dictionary});
  }

  test::TestMessages messages;
  test::TestDictionary dictionary;
  Meldung meldung;
  test::RecordingDrucker paper;
};

TEST_F(DruckStartTest, AFinishedPrintSaysNothing) {
  EXPECT_TRUE(start([](Drucker& drucker) { drucker.dokumentEnde(); }));
  EXPECT_EQ(paper.enden, 1);
  EXPECT_TRUE(messages.shown.empty());
}

TEST_F(DruckStartTest, AFailureIsShownAndGivesFalse) {
  EXPECT_FALSE(start([](Drucker&) { throw std::runtime_error("out of paper"); }));
  ASSERT_EQ(messages.shown.size(), 1U);
  EXPECT_EQ(messages.shown[0].title, "D1100 (DruckStart): 0");
  EXPECT_EQ(messages.shown[0].text, "D1101\r\nout of paper");
  EXPECT_EQ(messages.shown[0].icon, MessageIcon::warning);
  EXPECT_EQ(messages.shown[0].buttons, MessageButtons::ok);
  EXPECT_EQ(messages.beeps, 1);
  EXPECT_EQ(meldung.MsgTitel, messages.shown[0].title);
  EXPECT_EQ(meldung.MsgText, messages.shown[0].text);
}

TEST_F(DruckStartTest, TheSystemsErrorNumberIsTold) {
  EXPECT_FALSE(start([](Drucker&) { throw std::system_error(ENOSPC, std::generic_category(), "spool"); }));
  EXPECT_EQ(messages.shown.at(0).title, "D1100 (DruckStart): " + std::to_string(ENOSPC));
}

TEST_F(DruckStartTest, DataThatCannotBePrintedAreAFailureToo) {
  EXPECT_FALSE(start([](Drucker&) { throw std::out_of_range("index 30000"); }));
  EXPECT_EQ(messages.shown.at(0).text, "D1101\r\nindex 30000");
}

TEST_F(DruckStartTest, ThePrintJobIsLeftAsItWas) {
  EXPECT_FALSE(start([](Drucker& drucker) {
    drucker.drucke("half a page");
    throw std::runtime_error("jam");
  }));
  EXPECT_EQ(paper.alle.size(), 1U);
  EXPECT_EQ(paper.enden, 0);
}

TEST_F(DruckStartTest, ACancelledPrintPasses) {
  EXPECT_THROW(start([](Drucker&) { throw DruckAbgebrochen(); }), DruckAbgebrochen);
  EXPECT_TRUE(messages.shown.empty());
  EXPECT_EQ(messages.beeps, 0);
}

}  // namespace
}  // namespace korvin
