#include "korvin-head/pty_line.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <poll.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <string>

namespace korvin::head {
namespace {

FileDescriptor opened(const std::string& device) {
  return FileDescriptor(::open(device.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC));
}

std::string readAll(const FileDescriptor& fd) {
  std::array<char, 256> buffer;
  const ssize_t count = ::read(fd.get(), buffer.data(), buffer.size());
  return count > 0 ? std::string(buffer.data(), static_cast<std::size_t>(count)) : std::string();
}

termios settingsOf(const FileDescriptor& fd) {
  termios settings{};
  ::tcgetattr(fd.get(), &settings);
  return settings;
}

/// Opens `line` and sends a byte through it, as a program does that asks: until then the line takes nobody to
/// be there.
FileDescriptor speaking(PtyLine& line) {
  FileDescriptor client = opened(line.device());
  EXPECT_EQ(::write(client.get(), "?", 1), 1);
  EXPECT_EQ(line.read(), "?");
  return client;
}

bool hasEvents(const PtyLine& line) {
  pollfd fd{line.fd(), POLLIN, 0};
  return ::poll(&fd, 1, 0) > 0;
}

TEST(PtyLine, CarriesEveryByteBothWays) {
  PtyLine line;
  const FileDescriptor client = speaking(line);
  std::string all;
  for (int value = 0; value < 256; ++value) all += static_cast<char>(value);
  line.write(all);
  EXPECT_EQ(readAll(client), all);
  ASSERT_EQ(::write(client.get(), all.data(), all.size()), 256);
  EXPECT_EQ(line.read(), all);
  EXPECT_EQ(line.read(), "");
}

TEST(PtyLine, IsRawForWhoeverOpensIt) {
  PtyLine line;
  for (int round = 0; round < 2; ++round) {
    const termios settings = settingsOf(speaking(line));
    EXPECT_EQ(settings.c_lflag & (ECHO | ICANON | ISIG), 0U);
    EXPECT_EQ(settings.c_oflag & OPOST, 0U);
    EXPECT_EQ(line.read(), "");
  }
}

TEST(PtyLine, TellsTheSpeedThatAProgramSets) {
  const PtyLine line;
  const FileDescriptor client = opened(line.device());
  for (const auto& [code, baud] :
       {std::pair{B19200, 19200L}, {B115200, 115200L}, {B9600, 9600L}, {B300, 0L}}) {
    termios settings = settingsOf(client);
    ::cfsetspeed(&settings, code);
    ASSERT_EQ(::tcsetattr(client.get(), TCSANOW, &settings), 0);
    EXPECT_EQ(line.baud(), baud);
  }
}

TEST(PtyLine, WhatNobodyListensToIsLost) {
  PtyLine line;
  line.write("before");
  EXPECT_EQ(readAll(opened(line.device())), "");
  speaking(line);
  EXPECT_EQ(line.read(), "");  // notices that it was closed
  line.write("between");
  const FileDescriptor client = speaking(line);
  EXPECT_EQ(readAll(client), "");
  line.write("now");
  EXPECT_EQ(readAll(client), "now");
}

TEST(PtyLine, WhatWasNotReadIsGoneAfterClosing) {
  PtyLine line;
  {
    const FileDescriptor client = speaking(line);
    line.write("unread");
  }
  EXPECT_EQ(line.read(), "");
  EXPECT_EQ(readAll(opened(line.device())), "");
}

TEST(PtyLine, AReaderThatStaysKeepsItsBytesWhenAnotherCloses) {
  PtyLine line;
  const FileDescriptor stays = speaking(line);
  opened(line.device());
  line.write("kept");
  EXPECT_EQ(line.read(), "");
  EXPECT_EQ(readAll(stays), "kept");
}

TEST(PtyLine, LastWordsBeforeClosingAreHeard) {
  PtyLine line;
  ASSERT_EQ(::write(opened(line.device()).get(), "bye", 3), 3);
  EXPECT_EQ(line.read(), "bye");
}

TEST(PtyLine, IsQuietBetweenTwoPrograms) {
  PtyLine line;
  EXPECT_FALSE(hasEvents(line));
  speaking(line);
  EXPECT_TRUE(hasEvents(line));
  EXPECT_EQ(line.read(), "");
  EXPECT_FALSE(hasEvents(line));
}

TEST(PtyLine, AFullLineLosesBytesAndDoesNotBlock) {
  PtyLine line;
  const FileDescriptor client = speaking(line);
  for (int i = 0; i < 100; ++i) line.write(std::string(10000, 'x'));
  EXPECT_FALSE(readAll(client).empty());
}

}  // namespace
}  // namespace korvin::head
